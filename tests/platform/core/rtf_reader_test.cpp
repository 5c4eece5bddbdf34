// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/rtf.h"
#include "tests/support/rich_texts.h"

#include <gtest/gtest.h>

#include <QFile>

using namespace zeph;

namespace {

QByteArray sampleFile(const char *name)
{
    QFile file(QStringLiteral(ZEPH_SOURCE_DIR "/tests/data/rtf/") + QLatin1String(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return file.readAll();
}

RichText read(const QByteArray &rtf)
{
    const Expected<RichText, RtfError> text = readRtf(rtf);
    EXPECT_TRUE(text.has_value()) << text.error().reason.toStdString();
    return text.value_or(RichText());
}

QString textOf(const char *rtf)
{
    return read(rtf).text;
}

void expectRefused(const QByteArray &rtf, const QString &reason)
{
    const Expected<RichText, RtfError> text = readRtf(rtf);
    ASSERT_FALSE(text.has_value());
    EXPECT_EQ(text.error().reason, reason);
    EXPECT_LE(text.error().offset, rtf.size());
}

CharFormat font(const QString &family, double size)
{
    CharFormat format;
    format.family = family;
    format.pointSize = size;
    return format;
}

CharFormat with(CharFormat format, std::optional<ColorRef> colour, const char *styles = "")
{
    const QLatin1String wanted(styles);
    format.colour = colour;
    format.bold = wanted.contains(u'b');
    format.italic = wanted.contains(u'i');
    format.underline = wanted.contains(u'u');
    return format;
}

constexpr auto none = std::nullopt;
constexpr ParagraphFormat plainParagraph;

} // namespace

TEST(RtfReaderFiles, WordPadFontsAndColours)
{
    const CharFormat arial = font(u"Arial"_s, 10);
    const CharFormat courier = font(u"Courier New"_s, 9);
    const ColorRef green = colorRef(0, 128, 0);
    EXPECT_EQ(read(sampleFile("wordpad_fonts_and_colours.rtf")),
              (RichText{ u"Read mefirst\nBTN S1 X\nindented"_s,
                         { { 7, arial },
                           { 5, with(arial, colorRef(255, 0, 0), "b") },
                           { 1, arial },
                           { 6, with(courier, green, "i") },
                           { 1, with(courier, green) },
                           { 1, with(courier, green, "u") },
                           { 1, with(courier, green) },
                           { 8, arial } },
                         { { 1, plainParagraph },
                           { 1, { 0, ParagraphAlignment::Centre, false } },
                           { 1, { 720, ParagraphAlignment::Left, false } } } }));
}

TEST(RtfReaderFiles, WordPadBulletsAreParagraphsAndNotText)
{
    EXPECT_EQ(read(sampleFile("wordpad_bullets.rtf")),
              (RichText{ u"Before\none\ntwo\nafter"_s,
                         { { 20, font(u"Arial"_s, 10) } },
                         { { 1, plainParagraph },
                           { 2, { 0, ParagraphAlignment::Left, true } },
                           { 1, plainParagraph } } }));
}

TEST(RtfReaderFiles, WordNestedGroupsRestoreTheFormats)
{
    const CharFormat roman = font(u"Times New Roman"_s, 12);
    EXPECT_EQ(
        read(sampleFile("word_nested_groups.rtf")),
        (RichText{ u"bold both italic blue plain\n\u010d end"_s,
                   { { 5, with(roman, none, "b") },
                     { 5, with(roman, none, "bi") },
                     { 7, with(roman, none, "i") },
                     { 4, with(roman, colorRef(0, 0, 255), "b") },
                     { 7, roman },
                     { 5, font(u"Times New Roman CE"_s, 12) } },
                   { { 1, plainParagraph }, { 1, { 0, ParagraphAlignment::Right, false } } } }));
}

TEST(RtfReaderFiles, WordFieldsKeepTheirResultPicturesAndObjectsAreSkipped)
{
    const RichText text = read(sampleFile("word_fields_pictures_objects.rtf"));
    EXPECT_EQ(text.text, u"See the page now.|"_s);
    EXPECT_FALSE(text.formatAt(3).underline);
    EXPECT_TRUE(text.formatAt(4).underline);
    EXPECT_FALSE(text.formatAt(12).underline);
}

TEST(RtfReaderFiles, WordListsKeepNumbersAsText)
{
    EXPECT_EQ(
        read(sampleFile("word_lists_with_text.rtf")),
        (RichText{ u"first\nsecond\n1.\tnumbered\na)\tlettered"_s,
                   { { 36, font(u"Arial"_s, 0) } },
                   { { 2, { 360, ParagraphAlignment::Left, true } }, { 2, plainParagraph } } }));
}

TEST(RtfReaderFiles, LibreOfficeBullets)
{
    const CharFormat serif = font(u"Liberation Serif"_s, 12);
    EXPECT_EQ(
        read(sampleFile("libreoffice_bullets.rtf")),
        (RichText{ u"List:\nalpha\nbeta"_s,
                   { { 12, serif }, { 4, with(serif, none, "b") } },
                   { { 1, plainParagraph }, { 2, { 360, ParagraphAlignment::Left, true } } } }));
}

TEST(RtfReaderFiles, UnicodeStepsOverItsFallback)
{
    EXPECT_EQ(read(sampleFile("unicode_with_fallback.rtf")).text,
              u"\u20ac1 \uf100 \u03a9B\u00e9C \u65e5\u672cD \u03c0E\U0001f600"_s);
}

TEST(RtfReaderFiles, SymbolsAreCharacters)
{
    EXPECT_EQ(
        read(sampleFile("symbols.rtf")).text,
        u"a\u00a0b\u2011c\u00add\u2022e\u2014f\u2013\u2018g\u2019\u201ch\u201d\ti\nj{}\\\tk\nl"_s);
}

TEST(RtfReaderFiles, BytesAreOfTheFontsCodePage)
{
    const RichText text = read(sampleFile("code_pages_of_fonts.rtf"));
    EXPECT_EQ(text.text, u"\u010d\u0436\u0426\u00e8\u03b1\u00e9\u65e5\u672c\u010d"_s);
    EXPECT_EQ(text.formatAt(6).family, u"\uff2d\uff33"_s);
    EXPECT_EQ(text.formatAt(8).family, u"Plain"_s);
}

TEST(RtfReaderFiles, DosCodePages)
{
    EXPECT_EQ(read(sampleFile("dos_code_pages.rtf")).text, u"\u00e9\u00f8\u0131"_s);
}

TEST(RtfReaderFiles, UnassignedBytesStandForThemselves)
{
    const char16_t expected[] = { 0x81, 0x8d, 0x8f, 0x90, 0x9d, 0xa0, 0x2026 };
    EXPECT_EQ(read(sampleFile("unassigned_bytes.rtf")).text, QStringView(expected, 7));
}

TEST(RtfReaderFiles, RawBytesAreReadAndNulsAreNothing)
{
    const RichText text = read(sampleFile("raw_high_bytes_and_nuls.rtf"));
    const char16_t expected[] = { u'c', u'a', u'f', 0xe9, u' ', 0x81, u'x', u'y', u'z' };
    EXPECT_EQ(text.text, QStringView(expected, 9));
    EXPECT_TRUE(text.formatAt(8).bold);
}

TEST(RtfReaderFiles, FontTableWithoutGroups)
{
    EXPECT_EQ(read(sampleFile("font_table_without_groups.rtf")),
              (RichText{ u"abcde"_s,
                         { { 1, font(u"Helvetica"_s, 0) },
                           { 1, font(u"Courier"_s, 0) },
                           { 1, font(u"Last"_s, 0) },
                           { 1, {} },
                           { 1, font(u"Courier"_s, 0) } },
                         { { 1, plainParagraph } } }));
}

TEST(RtfReaderFiles, HugeNumbersAreClamped)
{
    const CharFormat far = font(u"Far"_s, 1638);
    EXPECT_EQ(read(sampleFile("huge_numbers.rtf")),
              (RichText{
                  u"abc\ufffd"_s,
                  { { 1, with(far, colorRef(255, 0, 255)) }, { 1, far }, { 2, font(u"Far"_s, 0) } },
                  { { 1, plainParagraph } } }));
}

TEST(RtfReaderRefuses, WhatIsNoRtf)
{
    const QString reason = u"The file is not in Rich Text Format."_s;
    expectRefused(sampleFile("broken_no_rtf.rtf"), reason);
    expectRefused("", reason);
    expectRefused("{", reason);
    expectRefused("{rtf1 text}", reason);
    expectRefused("{\\rt", reason);
    expectRefused("}", reason);
}

TEST(RtfReaderRefuses, GroupsThatAreNotBalanced)
{
    expectRefused(sampleFile("broken_unclosed_group.rtf"), u"The file ends within a group."_s);
    expectRefused(sampleFile("broken_ends_in_an_escape.rtf"), u"The file ends within a group."_s);
    expectRefused(sampleFile("broken_extra_closing_brace.rtf"),
                  u"A group is closed that was not opened."_s);
}

TEST(RtfReaderRefuses, GroupsBeyondTheDepth)
{
    expectRefused(sampleFile("broken_too_deep.rtf"), u"The file's groups are nested too deeply."_s);
    expectRefused("{\\rtf1 " + QByteArray(1000000, '{'),
                  u"The file's groups are nested too deeply."_s);
}

TEST(RtfReaderRefuses, BinaryDataThatReachesBeyondTheEnd)
{
    expectRefused(sampleFile("broken_binary_beyond_the_end.rtf"),
                  u"The file ends within a group."_s);
}

TEST(RtfReader, TwoHundredGroupsAreNotTooDeep)
{
    EXPECT_EQ(read("{\\rtf1 " + QByteArray(200, '{') + "x" + QByteArray(200, '}') + "}").text,
              u"x"_s);
}

TEST(RtfReader, ErrorTellsWhereReadingGaveUp)
{
    EXPECT_EQ(readRtf("{\\rtf1 abc").error().offset, 10);
}

TEST(RtfReader, FinalParEndsTheLastParagraphAndAddsNone)
{
    EXPECT_EQ(textOf("{\\rtf1 a\\par}"), u"a"_s);
    EXPECT_EQ(textOf("{\\rtf1 a\\par\\par}"), u"a\n"_s);
    EXPECT_EQ(textOf("{\\rtf1 a}"), u"a"_s);
    EXPECT_EQ(textOf("{\\rtf1 \\par}"), u""_s);
    EXPECT_EQ(textOf("{\\rtf1}"), u""_s);
    EXPECT_EQ(textOf("{\\rtf1 a\\par b}"), u"a\nb"_s);
}

TEST(RtfReader, FinalLineIsNoFinalPar)
{
    EXPECT_EQ(textOf("{\\rtf1 a\\line}"), u"a\n"_s);
}

TEST(RtfReader, WordsAfterTheFinalParMakeNoParagraph)
{
    EXPECT_EQ(textOf("{\\rtf1 {a\\par\\pard\\b }{\\*\\themedata 00}}"), u"a"_s);
}

TEST(RtfReader, SourceLineEndsAreIgnored)
{
    EXPECT_EQ(textOf("{\\rtf1\r\na\r\nb\n c\\b\r\n d}"), u"ab c d"_s);
}

TEST(RtfReader, OneBlankAfterAWordBelongsToIt)
{
    EXPECT_EQ(textOf("{\\rtf1 a\\b  b\\b0c\\i-1 d}"), u"a bcd"_s);
}

TEST(RtfReader, StarredDestinationsThatAreNotKnownAreSkipped)
{
    EXPECT_EQ(textOf("{\\rtf1 a{\\*\\generator b;}c{\\*\\b d}e}"), u"ace"_s);
}

TEST(RtfReader, UnknownWordsArePassedOver)
{
    EXPECT_EQ(textOf("{\\rtf1 a\\nosuchword12 b{\\alsonosuch c}\\ d\\'zze}"), u"abcdzze"_s);
}

TEST(RtfReader, PlainResetsCharactersAndPardResetsParagraphs)
{
    const RichText text = read("{\\rtf1\\qc\\li100\\b\\i\\ul\\fs30 a\\plain b\\par\\pard c\\par}");
    EXPECT_EQ(text.characters,
              (std::vector<CharRun>{ { 1, with(font({}, 15), none, "biu") }, { 3, {} } }));
    EXPECT_EQ(text.paragraphs,
              (std::vector<ParagraphRun>{ { 1, { 100, ParagraphAlignment::Centre, false } },
                                          { 1, plainParagraph } }));
}

TEST(RtfReader, ColoursAreOfTheTableWhoseFirstEntryMayBeAutomatic)
{
    const char *const automatic =
        "{\\rtf1{\\colortbl;\\red1\\green2\\blue3;}a\\cf1 b\\cf0 c\\cf9 d}";
    EXPECT_EQ(read(automatic).characters,
              (std::vector<CharRun>{ { 1, {} }, { 1, with({}, colorRef(1, 2, 3)) }, { 2, {} } }));
    const char *const given = "{\\rtf1{\\colortbl\\red9\\green0\\blue0;}a\\cf0 b}";
    EXPECT_EQ(read(given).characters,
              (std::vector<CharRun>{ { 1, {} }, { 1, with({}, colorRef(9, 0, 0)) } }));
}

TEST(RtfReader, EveryKindOfUnderlineIsOne)
{
    const RichText text = read("{\\rtf1\\uldb a\\ulnone b\\ulwave c\\ul0 d}");
    EXPECT_TRUE(text.formatAt(0).underline);
    EXPECT_FALSE(text.formatAt(1).underline);
    EXPECT_TRUE(text.formatAt(2).underline);
    EXPECT_FALSE(text.formatAt(3).underline);
}

TEST(RtfReader, HangingFirstLineBeginsTheParagraph)
{
    EXPECT_EQ(read("{\\rtf1\\li720\\fi-300 a}").paragraphs.front().format.leftIndentTwips, 420);
    EXPECT_EQ(read("{\\rtf1\\li720\\fi300 a}").paragraphs.front().format.leftIndentTwips, 720);
}

TEST(RtfReader, LineEndsHoweverSpelledAreOneCharacter)
{
    EXPECT_EQ(textOf("{\\rtf1 a\\'0db\\'0ac\\u8232?d\\u8233?e\\sect f\\\r\ng\\\nh}"),
              u"a\nb\nc\nd\ne\nf\ng\nh"_s);
}

TEST(RtfReader, BinaryDataStandingInForACharacterIsSteppedOver)
{
    EXPECT_EQ(textOf("{\\rtf1\\uc2 \\u960\\bin3 }}}?a}"), u"\u03c0a"_s);
}

TEST(RtfReader, GroupEndsTheFallback)
{
    EXPECT_EQ(textOf("{\\rtf1\\uc9 {\\u960 ?}ab}"), u"\u03c0ab"_s);
}

TEST(RtfReader, ALookAfterATableMeansWhatTheTableSays)
{
    const RichText colours = read("{\\rtf1{\\colortbl ;\\red255;}\\cf2 a\\cf1 b"
                                  "{\\colortbl\\blue255;}\\cf2 c\\cf1 d}");
    EXPECT_EQ(colours.formatAt(0).colour, std::nullopt);
    EXPECT_EQ(colours.formatAt(1).colour, colorRef(255, 0, 0));
    EXPECT_EQ(colours.formatAt(2).colour, colorRef(0, 0, 255));
    EXPECT_EQ(colours.formatAt(3).colour, colorRef(255, 0, 0));

    const RichText fonts = read("{\\rtf1\\f1 a\\f2 b{\\fonttbl{\\f1 Arial;}}\\f1 c\\f2 d}");
    EXPECT_EQ(fonts.formatAt(0).family, u""_s);
    EXPECT_EQ(fonts.formatAt(2).family, u"Arial"_s);
    EXPECT_EQ(fonts.formatAt(3).family, u""_s);

    const RichText defaults = read("{\\rtf1{\\fonttbl{\\f0 Arial;}{\\f1 Courier;}}"
                                   "a\\b b\\deff1\\b0 c}");
    EXPECT_EQ(defaults.formatAt(0).family, u"Arial"_s);
    EXPECT_EQ(defaults.formatAt(2).family, u"Courier"_s);
}

TEST(RtfReader, RunsThatComeToLookAlikeAreOne)
{
    // A number beyond the colour table is the control's own colour, as 0 is.
    const RichText text = read("{\\rtf1 a\\cf7 b\\cf0 c\\b d\\b0\\par\\par}");
    ASSERT_EQ(text.characters.size(), 3U);
    EXPECT_EQ(text.characters[0].length, 3);
    EXPECT_EQ(text.characters[1].length, 1);
    EXPECT_EQ(text.characters[2].length, 1);

    EXPECT_EQ(read("{\\rtf1 a\\b\\par}").characters.size(), 1U);
}

TEST(RtfReader, TextAfterTheLastBraceIsIgnored)
{
    EXPECT_EQ(textOf("{\\rtf1 a}\r\nwhatever {"), u"a"_s);
}

namespace {

RtfLosses lossesOf(const char *rtf)
{
    const auto reading = readRtfWithLosses(rtf);
    EXPECT_TRUE(reading.has_value());
    return reading ? reading->losses : RtfLosses();
}

} // namespace

TEST(RtfReader, StrikeIsKept)
{
    const RichText text = read("{\\rtf1 a{\\strike b}\\strike c\\strike0 d{\\strike e\\plain f}}");
    EXPECT_EQ(text.text, u"abcdef");
    for (qsizetype i = 0; i < 6; ++i) {
        EXPECT_EQ(text.formatAt(i).strike, i == 1 || i == 2 || i == 4) << i;
    }
}

TEST(RtfReader, AHyperlinkBelongsToTheTextThatItShows)
{
    const RichText text =
        read("{\\rtf1 see {\\field{\\*\\fldinst{ HYPERLINK \"http://x/a\" \\\\o \"A tip\" }}"
             "{\\fldrslt{\\ul here\\plain , or}}} there}");
    EXPECT_EQ(text.text, u"see here, or there");
    EXPECT_EQ(text.formatAt(3).link, QString());
    EXPECT_EQ(text.formatAt(4).link, u"http://x/a");
    EXPECT_TRUE(text.formatAt(4).underline);
    EXPECT_EQ(text.formatAt(11).link, u"http://x/a");
    EXPECT_EQ(text.formatAt(12).link, QString());
}

TEST(RtfReader, HyperlinksLeadToFilesAndPlacesToo)
{
    const auto linkOf = [](const char *instruction) {
        const QByteArray rtf =
            QByteArray("{\\rtf1{\\field{\\*\\fldinst ") + instruction + "}{\\fldrslt x}}}";
        return read(rtf).formatAt(0).link;
    };
    // A backslash is doubled once for the field and once for the file.
    EXPECT_EQ(linkOf("HYPERLINK \"C:\\\\\\\\a b.txt\""), u"C:\\a b.txt");
    EXPECT_EQ(linkOf("HYPERLINK \\\\l \"here\""), u"#here");
    EXPECT_EQ(linkOf("hyperlink http://x/a"), u"http://x/a");
    EXPECT_EQ(linkOf("PAGE"), QString());
}

TEST(RtfReader, WhatIsLostIsTold)
{
    const std::pair<const char *, RtfLosses> cases[] = {
        { "{\\rtf1\\b\\strike\\cf1\\fs20\\li200\\qc text\\par}", {} },
        { "{\\rtf1{\\info{\\title t}}\\sb0\\sa0\\sl240\\slmult1\\caps0\\ri0 text}", {} },
        { "{\\rtf1{\\pntext\\'95\\tab}{\\*\\pn\\pnlvlblt}\\fi-360\\li360 text}", {} },
        { "{\\rtf1{\\field{\\*\\fldinst HYPERLINK \"x\"}{\\fldrslt x}}}", {} },
        { "{\\rtf1{\\pict\\pngblip 00}}", RtfLoss::Pictures },
        { "{\\rtf1{\\*\\shppict{\\pict 00}}}", RtfLoss::Pictures },
        { "{\\rtf1{\\shp{\\*\\shpinst}}}", RtfLoss::Drawings },
        { "{\\rtf1{\\object{\\*\\objdata 00}}}", RtfLoss::Objects },
        { "{\\rtf1\\trowd\\cellx100 a\\cell\\row}", RtfLoss::Tables },
        { "{\\rtf1{\\header h\\par}text}", RtfLoss::HeadersAndFooters },
        { "{\\rtf1 text{\\footer f}}", RtfLoss::HeadersAndFooters },
        { "{\\rtf1 text{\\super 1}{\\footnote f}}", RtfLoss::Footnotes | RtfLoss::Effects },
        { "{\\rtf1 text{\\*\\annotation a}}", RtfLoss::Comments },
        { "{\\rtf1{\\field{\\*\\fldinst PAGE}{\\fldrslt 1}}}", RtfLoss::Fields },
        { "{\\rtf1 a\\page b}", RtfLoss::PageBreaks },
        { "{\\rtf1 a{\\deleted b}}", RtfLoss::TrackedChanges },
        { "{\\rtf1{\\listtext 1.\\tab}a}", RtfLoss::NumberedLists },
        { "{\\rtf1\\highlight2 a}", RtfLoss::Effects },
        { "{\\rtf1\\sa200\\sl276\\slmult1 a}", RtfLoss::ParagraphLayout },
        { "{\\rtf1\\qj a}", RtfLoss::ParagraphLayout },
    };
    for (const auto &[rtf, losses] : cases) {
        EXPECT_EQ(lossesOf(rtf), losses) << rtf;
    }
}

TEST(RtfReader, TheTextsOfATablesCellsAreKept)
{
    EXPECT_EQ(textOf("{\\rtf1\\trowd\\intbl one\\cell two\\cell\\row three\\cell\\row}"),
              u"one\ttwo\t\nthree\t\n");
}

TEST(RtfReader, CanBeStopped)
{
    const QByteArray rtf = "{\\rtf1 " + QByteArray("\\b x\\b0 y").repeated(200'000) + '}';
    qsizetype seen = 0;
    const auto reading = readRtfWithLosses(rtf, [&seen](qsizetype done) {
        EXPECT_GT(done, seen);
        seen = done;
        return done < 1'000'000;
    });
    EXPECT_FALSE(reading.has_value());
    EXPECT_GE(seen, 1'000'000);
    EXPECT_LT(seen, 1'500'000);
}
