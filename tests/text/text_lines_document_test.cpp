// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "text/text_lines.h"

#include <gtest/gtest.h>

using namespace zeph;

TEST(DocumentText, EachKindOfLineEndEndsALine)
{
    EXPECT_EQ(documentText("a\r\nb\rc\nd").value(), u"a\nb\nc\nd");
    EXPECT_EQ(documentText("a\r\r\n\n").value(), u"a\n\n\n");
}

TEST(DocumentText, CtrlZIsACharacter)
{
    EXPECT_EQ(documentText("a\x1A"
                           "b")
                  .value(),
              u"a\u001Ab");
}

TEST(DocumentText, ANulIsAnErrorWithItsPlace)
{
    const auto text = documentText(QByteArray("ab\0c", 4));
    ASSERT_FALSE(text);
    EXPECT_EQ(text.error(), 2);
}

TEST(DocumentText, EveryOtherByteComesBack)
{
    QByteArray bytes;
    for (int byte = 1; byte < 256; ++byte) {
        if (byte != '\r' && byte != '\n') {
            bytes.append(char(byte));
        }
    }
    EXPECT_EQ(documentBytes(documentText(bytes).value()), bytes);
}

TEST(DocumentText, IsWrittenWithCrLfAndNoClosingLineEnd)
{
    EXPECT_EQ(documentBytes(u"a\nb"), "a\r\nb");
    EXPECT_EQ(documentBytes(u"a\n"), "a\r\n");
    EXPECT_EQ(documentBytes(u""), "");
}
