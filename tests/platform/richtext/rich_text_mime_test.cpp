// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/richtext/rich_text_mime.h"

#include "platform/core/rtf.h"

#include <gtest/gtest.h>

using namespace zeph;

namespace {

RichText redWord()
{
    RichText text = RichText::plain(u"a b\nc"_s);
    text.change(2, 1, [](CharFormat &format) { format.colour = 255; });
    return text;
}

} // namespace

TEST(RichTextMime, ATextIsOfferedTwice)
{
    const RichTextMime data(redWord());
    EXPECT_TRUE(data.hasText());
    EXPECT_EQ(data.text(), u"a b\nc");
    for (const QString &type : { u"text/rtf"_s, u"application/rtf"_s }) {
        ASSERT_TRUE(data.formats().contains(type));
        const auto read = readRtf(data.data(type));
        ASSERT_TRUE(read);
        EXPECT_EQ(read->text, u"a b\nc");
        EXPECT_EQ(read->formatAt(2).colour, 255U);
    }
    EXPECT_FALSE(data.hasHtml());
}

TEST(RichTextMime, RichTextComesUnderEitherName)
{
    for (const QString &type : { u"text/rtf"_s, u"application/rtf"_s }) {
        QMimeData data;
        data.setData(type, writeRtf(redWord()));
        EXPECT_TRUE(holdsText(&data));
        const auto text = richTextOf(data);
        ASSERT_TRUE(text);
        EXPECT_EQ(text->text, u"a b\nc");
    }
}

TEST(RichTextMime, WhatIsNoRichTextIsNone)
{
    QMimeData data;
    EXPECT_FALSE(holdsText(&data));
    EXPECT_FALSE(holdsText(nullptr));
    data.setData(u"text/rtf"_s, "no such thing");
    EXPECT_FALSE(richTextOf(data));
}

TEST(RichTextMime, PlainTextHasLineEndsOfOneKindAndNoNul)
{
    QMimeData data;
    data.setText(u"a\r\nb\rc"_s + QChar(0) + u'd' + QChar(QChar::ParagraphSeparator) + u'e');
    EXPECT_EQ(plainTextOf(data), u"a\nb\ncd\ne");
}
