// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// What is written is read by a program that is not Zeph: unrtf, which turns it into HTML.

#include "platform/core/rtf.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <QProcess>
#include <QRegularExpression>

using namespace zeph;

namespace {

QString asHtml(const RichText &text)
{
    const test::TempFolder folder;
    const QString path = folder.write(u"text.rtf"_s, writeRtf(text));
    QProcess unrtf;
    unrtf.start(u"unrtf"_s, { u"--html"_s, u"--quiet"_s, u"--nopict"_s, path });
    EXPECT_TRUE(unrtf.waitForFinished()) << unrtf.errorString().toStdString();
    EXPECT_EQ(unrtf.exitCode(), 0) << unrtf.readAllStandardError().toStdString();
    return QString::fromUtf8(unrtf.readAllStandardOutput());
}

/// The body's text: HTML's own line ends are nothing, <br> is one.
QString textOfHtml(QString html)
{
    html = html.mid(html.indexOf(u"<body>"_s));
    html.remove(u'\n');
    html.replace(u"<br>"_s, u"\n"_s);
    html.remove(QRegularExpression(u"<[^>]*>"_s));
    const std::pair<QString, QString> entities[] = {
        { u"&lt;"_s, u"<"_s },          { u"&gt;"_s, u">"_s },   { u"&eacute;"_s, u"\u00e9"_s },
        { u"&euro;"_s, u"\u20ac"_s },   { u"&nbsp;"_s, u" "_s }, { u"&#8364;"_s, u"\u20ac"_s },
        { u"&#26085;"_s, u"\u65e5"_s }, { u"&amp;"_s, u"&"_s },
    };
    for (const auto &[entity, character] : entities) {
        html.replace(entity, character);
    }
    return html;
}

CharFormat courier()
{
    CharFormat format;
    format.family = u"Courier New"_s;
    format.pointSize = 10;
    return format;
}

} // namespace

TEST(RtfOtherReader, ReadsTheText)
{
    const QString text = u"BTN S1 /I {a} \\ <b>\n\nRem caf\u00e9 & \u20ac\nMTYPE A3 \u65e5\nend"_s;
    EXPECT_EQ(textOfHtml(asHtml(RichText::plain(text, courier()))), text + u'\n');
}

TEST(RtfOtherReader, ReadsColoursAndStyles)
{
    CharFormat red = courier();
    red.colour = colorRef(255, 0, 16);
    red.bold = true;
    CharFormat underlined = courier();
    underlined.underline = true;
    underlined.italic = true;
    const RichText text{ u"one two three"_s,
                         { { 4, courier() }, { 4, red }, { 5, underlined } },
                         { { 1, {} } } };
    const QString html = asHtml(text);
    EXPECT_EQ(textOfHtml(html), u"one two three\n"_s);
    EXPECT_TRUE(html.contains(u"face=\"Courier New\""_s));
    const auto stands = [&](const QString &pattern) {
        return QRegularExpression(pattern).match(html).hasMatch();
    };
    EXPECT_TRUE(stands(u"<font color=\"#ff0010\">(<[^>]*>)*two"_s)) << html.toStdString();
    EXPECT_TRUE(stands(u"<b>(<[^>]*>)*two"_s));
    EXPECT_TRUE(stands(u"<i>(<[^>]*>)*three"_s));
    EXPECT_TRUE(stands(u"<u>(<[^>]*>)*three"_s));
    EXPECT_FALSE(stands(u"<b>(<[^>]*>)*one"_s));
}

TEST(RtfOtherReader, ReadsAlignmentAndBullets)
{
    const RichText text{ u"centre\npoint\nright"_s,
                         { { 18, courier() } },
                         { { 1, { 0, ParagraphAlignment::Centre, false } },
                           { 1, { 0, ParagraphAlignment::Left, true } },
                           { 1, { 0, ParagraphAlignment::Right, false } } } };
    const QString html = asHtml(text);
    EXPECT_TRUE(html.contains(QRegularExpression(u"<center>(<[^>]*>|\\n)*centre"_s)))
        << html.toStdString();
    EXPECT_TRUE(html.contains(QRegularExpression(u"<div align=\"right\">(<[^>]*>|\\n)*right"_s)));
    EXPECT_TRUE(html.contains(QRegularExpression(u"&bull;(&nbsp;|<[^>]*>|\\n)*point"_s)));
}
