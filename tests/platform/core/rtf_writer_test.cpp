// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/rtf.h"
#include "tests/support/rich_texts.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace zeph;

namespace {

RichText writtenAndRead(const RichText &text)
{
    const Expected<RichText, RtfError> back = readRtf(writeRtf(text));
    EXPECT_TRUE(back.has_value()) << back.error().reason.toStdString();
    return back.value_or(RichText());
}

void expectSurvives(const QString &text)
{
    EXPECT_EQ(writtenAndRead(RichText::plain(text)), RichText::plain(text));
}

} // namespace

TEST(RtfWriter, WritesTablesThenParagraphsClosedWithPar)
{
    CharFormat first;
    first.family = u"Courier New"_s;
    first.pointSize = 9.5;
    CharFormat second = first;
    second.colour = colorRef(255, 0, 128);
    second.bold = true;
    const RichText text{ u"BTN S1\nx"_s,
                         { { 4, first }, { 2, second }, { 2, first } },
                         { { 1, {} }, { 1, { 240, ParagraphAlignment::Right, false } } } };
    EXPECT_EQ(writeRtf(text).toStdString(),
              "{\\rtf1\\ansi\\ansicpg1252\\uc1{\\fonttbl{\\f1\\fnil\\fcharset0 Courier New;}}\r\n"
              "{\\colortbl ;\\red255\\green0\\blue128;}\r\n"
              "\\f1\\fs19\\pard BTN \\b\\cf1 S1\\b0\\cf0\\par\r\n"
              "\\pard\\li240\\qr x\\par\r\n"
              "}\r\n");
}

TEST(RtfWriter, WritesAnEmptyTextAsOneParagraph)
{
    EXPECT_EQ(writeRtf(RichText::plain({})).toStdString(),
              "{\\rtf1\\ansi\\ansicpg1252\\uc1\r\n{\\colortbl ;}\r\n\\pard\\par\r\n}\r\n");
}

TEST(RtfWriter, WritesSevenBitAsciiAndEscapes)
{
    const QByteArray rtf = writeRtf(RichText::plain(u"a{b}\\\u00e9\u20ac\u65e5\t1"_s));
    EXPECT_TRUE(rtf.contains("\\pard a\\{b\\}\\\\\\'e9\\'80\\u26085?\\tab 1\\par\r\n"))
        << rtf.toStdString();
    EXPECT_TRUE(std::ranges::none_of(rtf, [](char c) { return uchar(c) >= 0x80; }));
}

TEST(RtfWriter, WritesBulletsAsWindowsControlDoes)
{
    const RichText text = RichText::plain(u"a\nb"_s, {}, { 100, ParagraphAlignment::Left, true });
    EXPECT_TRUE(writeRtf(text).contains(
        "\\pard{\\pntext\\'95\\tab}{\\*\\pn\\pnlvlblt\\pnindent360{\\pntxtb\\'95}}\\fi-360\\li460 a"
        "\\par\r\n{\\pntext\\'95\\tab}b\\par\r\n"));
}

TEST(RtfWriter, CoversWhatTheRunsLeaveUncovered)
{
    RichText text;
    text.text = u"a\nb\n"_s;
    text.characters = { { 1, { {}, 0, true, false, false, {} } } };
    RichText normal = text;
    normal.normalise();
    EXPECT_EQ(writtenAndRead(text), normal);
}

TEST(RtfIdentity, EndsOfTextsComeBack)
{
    for (const QString &text :
         { u""_s, u"\n"_s, u"\n\n"_s, u"a"_s, u"a\n"_s, u"a\n\n"_s, u"\na"_s }) {
        expectSurvives(text);
    }
}

TEST(RtfIdentity, EveryByteOf1252ComesBack)
{
    QByteArray bytes;
    for (int byte = 0; byte < 256; ++byte) {
        if (byte != '\r') {
            bytes.append(char(byte));
        }
    }
    QString text = QString::fromLatin1(bytes);
    expectSurvives(text);
    // The same bytes as 1252 reads them, unassigned ones included.
    text.replace(QChar(0x80), QChar(0x20ac)).replace(QChar(0x92), QChar(0x2019));
    expectSurvives(text);
    EXPECT_TRUE(writeRtf(RichText::plain(QString(QChar(0x81)))).contains("\\'81"));
}

TEST(RtfIdentity, EveryUnitOfUtf16ComesBack)
{
    QString text;
    for (int unit = 0; unit <= 0xFFFF; ++unit) {
        if (unit != '\r' && unit != QChar::LineSeparator && unit != QChar::ParagraphSeparator) {
            text.append(QChar(unit));
        }
    }
    EXPECT_TRUE(writtenAndRead(RichText::plain(text)).text == text);
}

TEST(RtfIdentity, DigitsAndBlanksAfterWordsStayText)
{
    expectSurvives(u"\t1\t-2\t \t  x\t*"_s);
    CharFormat bold;
    bold.bold = true;
    const RichText text{ u" 1-2  "_s,
                         { { 1, {} }, { 1, bold }, { 1, {} }, { 1, bold }, { 2, {} } },
                         { { 1, {} } } };
    EXPECT_EQ(writtenAndRead(text), text);
}

TEST(RtfIdentity, FormatsOfLineEndsComeBack)
{
    CharFormat bold;
    bold.bold = true;
    const RichText text{ u"a\nb\n"_s,
                         { { 1, {} }, { 1, bold }, { 1, {} }, { 1, bold } },
                         { { 3, {} } } };
    EXPECT_EQ(writtenAndRead(text), text);
}

TEST(RtfIdentity, FamiliesOfAnyCharactersComeBack)
{
    CharFormat format;
    for (const QString &family :
         { u"A;B"_s, u"{\\}"_s, u"\u65e5\u672c"_s, u"caf\u00e9"_s, u"7"_s }) {
        format.family = family;
        EXPECT_EQ(writtenAndRead(RichText::plain(u"x"_s, format)).formatAt(0).family, family);
    }
}

TEST(RtfIdentity, SizesAreKeptInHalfPoints)
{
    CharFormat format;
    const auto sizeOf = [&](double size) {
        format.pointSize = size;
        return writtenAndRead(RichText::plain(u"x"_s, format)).formatAt(0).pointSize;
    };
    EXPECT_EQ(sizeOf(8.25), 8.5);
    EXPECT_EQ(sizeOf(10), 10);
    EXPECT_EQ(sizeOf(0), 0);
    EXPECT_EQ(sizeOf(-3), 0);
    EXPECT_EQ(sizeOf(1e300), 1638);
    EXPECT_EQ(sizeOf(std::numeric_limits<double>::quiet_NaN()), 0);
}

TEST(RtfIdentity, GeneratedTextsComeBack)
{
    test::RichTextMaker maker(20240817);
    const QString alphabet = u"ab1 \n\n\t\\{};-'*\u00e9\u0081\u20ac\u00a0\u65e5"_s + QChar(0xd83d);
    for (int round = 0; round < 4000; ++round) {
        const RichText text = maker.make(alphabet, 60);
        ASSERT_EQ(writtenAndRead(text), text) << writeRtf(text).toStdString();
    }
}

TEST(RtfIdentity, CutTextsAreRefusedAndNeverHarm)
{
    test::RichTextMaker maker(3);
    for (int round = 0; round < 200; ++round) {
        const QByteArray rtf = writeRtf(maker.make(u"ab\n\u00e9{}"_s, 30));
        const qsizetype end = rtf.lastIndexOf('}');
        const qsizetype cut = maker.upTo(int(end));
        EXPECT_FALSE(readRtf(rtf.left(cut)).has_value()) << rtf.left(cut).toStdString();
    }
}

TEST(RtfIdentity, LargeTextsOfOneRunComeBack)
{
    QString text;
    for (int line = 0; line < 3000; ++line) {
        text += u"\u65e5\u672c line %1\n"_s.arg(line);
    }
    EXPECT_TRUE(writtenAndRead(RichText::plain(text)).text == text);
}

TEST(RtfWriter, NamesThePlainTextsLookWhereItIsGiven)
{
    const CharFormat plain = {
        .family = u"Courier New"_s, .pointSize = 9.5, .bold = true, .colour = {}
    };
    RtfWriter writer;
    writer.setPlain(plain);
    writer.add(RichText::plain(u"a"_s, { .family = u"Arial"_s, .pointSize = 20, .colour = {} }));
    const auto read = readRtfWithLosses(writer.take());
    ASSERT_TRUE(read);
    EXPECT_EQ(read->plain, plain);
    EXPECT_EQ(read->text.text, u"a");
    EXPECT_EQ(read->text.rich().formatAt(0).pointSize, 20);
    EXPECT_FALSE(readRtfWithLosses(writeRtf(RichText::plain(u"a"_s)))->plain);
}
