// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/analysis/box_colours.h"

#include "layouts/analysis/box_texts.h"
#include "tests/layouts/analysis/box_colours_twin.h"
#include "tests/layouts/analysis/joystick_file_maker.h"
#include "tests/support/rich_texts.h"
#include "text/layout_passes.h"

#include <gtest/gtest.h>

using namespace zeph;

namespace {

constexpr ColorRef pureRed = 255;
constexpr ColourScheme boxScheme = {
    .plain = 1, .btn = 2, .slash = 3, .raw = 4, .miscellaneous = 5, .rem = 6
};
constexpr ColorRef remColour = 6;

CharFormat boxFont()
{
    return { .family = u"Arial"_s, .pointSize = 9, .bold = true, .colour = {} };
}

/// Styles 7 to 9 in colours 7 to 9, each with looks of its own.
TextStyles numberedStyles()
{
    TextStyles styles = defaultTextStyles();
    for (size_t i = 0; i < styles.size(); ++i) {
        styles[i].format.colour = ColorRef(i + 1);
        styles[i].format.pointSize = double(10 + i);
    }
    styles[6].format.underline = true;
    styles[7].format.italic = true;
    styles[8].format.bold = true;
    return styles;
}

/// One letter a character: "." black, b buttons and captions, s slash, r raw, m miscellaneous,
/// c comment, u /U, i /M, d /D, ! pure red.
QString colourMarks(const RichText &box)
{
    QString marks;
    for (const CharRun &run : box.characters) {
        const ColorRef colour = run.format.colour.value_or(1);
        const QChar letter = colour == pureRed ? u'!' : QStringView(u".?bsrmcuid")[colour];
        marks += QString(run.length, letter);
    }
    return marks;
}

QString coloured(const QString &text, SheetKind kind = SheetKind::Joystick)
{
    return colourMarks(ApplyColours(kind, RichText::plain(text), { boxScheme, boxFont() }));
}

QString modesOf(const QString &text)
{
    CharFormat black;
    black.colour = 0;
    return colourMarks(ApplyUMDcolours(RichText::plain(text, black), numberedStyles(), remColour));
}

std::vector<CharFormat> looksOf(const RichText &box)
{
    std::vector<CharFormat> looks;
    for (const CharRun &run : box.characters) {
        looks.insert(looks.end(), size_t(run.length), run.format);
    }
    return looks;
}

} // namespace

TEST(ApplyColours, LeavesAnEmptyBoxAlone)
{
    const RichText box = RichText::plain({});
    EXPECT_EQ(ApplyColours(SheetKind::Joystick, box, { boxScheme, boxFont() }), box);
    EXPECT_EQ(ApplyUMDcolours(box, numberedStyles(), remColour), box);
}

TEST(ApplyColours, GivesAllTextTheFontAndBlack)
{
    const RichText box = ApplyColours(
        SheetKind::Joystick,
        RichText::plain(u"a b"_s, { .family = u"Courier"_s, .pointSize = 30, .colour = 9 }),
        { boxScheme, boxFont() });
    CharFormat expected = boxFont();
    expected.colour = 0;
    EXPECT_EQ(box, RichText::plain(u"a b"_s, expected));
}

TEST(ApplyColours, LeavesItalicUnderlineAndParagraphs)
{
    CharFormat slanted;
    slanted.italic = true;
    slanted.underline = true;
    const ParagraphFormat centred{ .alignment = ParagraphAlignment::Centre };
    const RichText box =
        ApplyColours(SheetKind::Joystick, RichText::plain(u"a\nb"_s, slanted, centred),
                     { boxScheme, boxFont() });
    EXPECT_TRUE(box.formatAt(0).italic);
    EXPECT_TRUE(box.formatAt(2).underline);
    EXPECT_EQ(box.paragraphs, (std::vector<ParagraphRun>{ { 2, centred } }));
}

TEST(ApplyColours, AButtonTakesItsNameWithIt)
{
    EXPECT_EQ(coloured(u"BTN S1 a"_s), u"bbbbbb..");
    EXPECT_EQ(coloured(u"btn S1 BTNS"_s), u"bbbbbb.....");
    EXPECT_EQ(coloured(u"BTN  x"_s), u"bbbb..");
    EXPECT_EQ(coloured(u"x BTN"_s), u"..bbb");
    EXPECT_EQ(coloured(u"BTN S1\na b"_s), u"bbbbbbbb..");
}

TEST(ApplyColours, AButtonsNameReachesOverATab)
{
    EXPECT_EQ(coloured(u"BTN S1\tab c"_s), u"bbbbbbbbb..");
}

TEST(ApplyColours, OnlyTheFirstOfEachCaptionIsColoured)
{
    EXPECT_EQ(coloured(u"U: a U: b"_s), u"bb.......");
    EXPECT_EQ(coloured(u"Hat 1 Hat 1"_s), u"bbbbb......");
    EXPECT_EQ(coloured(u"Sim: x Sim:"_s), u"bbbb.......");
}

TEST(ApplyColours, ACaptionIsFoundInAnyCaseAndWithinAWord)
{
    EXPECT_EQ(coloured(u"xHAT 2x"_s), u".bbbbb.");
    // "L:" is met within "UL:", which is coloured anyway.
    EXPECT_EQ(coloured(u"UL: a L: b"_s), u"bbb.......");
}

TEST(ApplyColours, AnAxisCaptionEndsInTheWordsColour)
{
    // As a caption it ends in the colour of those that come after it, as a word in its own.
    EXPECT_EQ(coloured(u"JOYX a"_s), u"mmmm..");
    EXPECT_EQ(coloured(u"JoyX a"_s), u"bbbb..");
    EXPECT_EQ(coloured(u"JoyX Sim:"_s), u"mmmm.bbbb");
}

TEST(ApplyColours, TheThrottlesCaptionsAreItsAxes)
{
    EXPECT_EQ(coloured(u"Hat 1 U:"_s, SheetKind::Throttle), u"........");
    EXPECT_EQ(coloured(u"thr a Sim:"_s, SheetKind::Throttle), u"mmm...bbbb");
    // Where a caption is missing, the one before gets its colour.
    EXPECT_EQ(coloured(u"thr a Date:"_s, SheetKind::Throttle), u"bbb...bbbbb");
    EXPECT_EQ(coloured(u"thr a"_s, SheetKind::Throttle), u"bbb..");
    EXPECT_EQ(coloured(u"thr a"_s), u".....");
}

TEST(ApplyColours, ATextWithoutButtonsAndCaptionsStaysBlack)
{
    EXPECT_EQ(coloured(u"Custom notes"_s), u"............");
}

TEST(ApplyColours, WordsHaveTheColoursOfTheEditor)
{
    EXPECT_EQ(coloured(u"/U /u DLY(6) DLY {POV}"_s), u"ss....rrrr.r.....mmmmm");
    EXPECT_EQ(coloured(u"CURVE x CURVE"_s), u"rrrrr........");
    EXPECT_EQ(coloured(u"RUN_APP <EMPTY_BUFFERS>"_s), u"!!!!!!!.s!!!!!!!!!!!!!s");
    EXPECT_EQ(coloured(u"USE DEF X"_s), u".........");
}

TEST(ApplyColours, ACommentCoversAllElse)
{
    EXPECT_EQ(coloured(u"/U a Rem BTN S1 /U\n/M"_s), u"ss...ccccccccccccc.ss");
}

TEST(LayoutPasses, TakeTheirWordsAndColoursFromTheTable)
{
    for (const PaintPass &pass : layoutPasses()) {
        const language::Word &row = language::rowOf(pass.word);
        EXPECT_EQ(row.text, pass.word);
        EXPECT_EQ(row.colour, pass.colour) << pass.word.toUtf8().data();
    }
}

TEST(ApplyUMDcolours, EachModesTextGetsItsStyle)
{
    EXPECT_EQ(modesOf(u"x /U a /M b /D c"_s), u"..uuuuuiiiiidddd");
}

TEST(ApplyUMDcolours, AStyleGivesAllItsLooks)
{
    CharFormat before = boxFont();
    before.strike = true;
    before.colour = 0;
    const TextStyles styles = numberedStyles();
    const RichText box = ApplyUMDcolours(RichText::plain(u"/M b"_s, before), styles, remColour);
    CharFormat expected = styles[7].format;
    expected.strike = true;
    EXPECT_EQ(box, RichText::plain(u"/M b"_s, expected));
}

TEST(ApplyUMDcolours, ADirectionEndsAMode)
{
    EXPECT_EQ(modesOf(u"/U a\nD:   /U b"_s), u"uuuuu.....uuuu");
    EXPECT_EQ(modesOf(u"/U a\nUL:  b"_s), u"uuuuu......");
    // Without its blank a direction of one letter is none, and case counts.
    EXPECT_EQ(modesOf(u"/U D:b u: c"_s), u"uuuuuuuuuuu");
}

TEST(ApplyUMDcolours, AModeRunsOverLineEnds)
{
    EXPECT_EQ(modesOf(u"/U a\nb\n/I c"_s), u"uuuuuuuuuuu");
}

TEST(ApplyUMDcolours, AStopAtTheVeryEndStaysInside)
{
    EXPECT_EQ(modesOf(u"/U a /M "_s), u"uuuuuiii");
    EXPECT_EQ(modesOf(u"/U a U: "_s), u"uuuuuuuu");
    EXPECT_EQ(modesOf(u"/U a U: x"_s), u"uuuuu....");
}

TEST(ApplyUMDcolours, ATagIsAWholeWordInAnyCaseAndItsStopsAreAsWritten)
{
    EXPECT_EQ(modesOf(u"/Up /u a"_s), u"....uuuu");
    EXPECT_EQ(modesOf(u"/U a /m b x"_s), u"uuuuuiiiiii");
    EXPECT_EQ(modesOf(u"/U a /M\nb"_s), u"uuuuuiiii");
}

TEST(ApplyUMDcolours, ATagThatIsItselfAStopKeepsItsSlash)
{
    EXPECT_EQ(modesOf(u"/U: a"_s), u"u....");
}

TEST(ApplyUMDcolours, CommentsGetTheirColourLast)
{
    EXPECT_EQ(modesOf(u"/U a rem /M b\nc"_s), u"uuuuuccccccccii");
    EXPECT_EQ(modesOf(u"Remark Rem_x"_s), u"............");
}

namespace {

/// Boxes that are full of what both ways of colouring look at, in looks of all kinds.
class BoxMaker
{
public:
    explicit BoxMaker(unsigned seed) : m_random(seed), m_looks(seed)
    {
        for (const PaintPass &pass : layoutPasses()) {
            m_words.append(pass.word.toString());
        }
        for (int times = 0; times < 3; ++times) {
            m_words +=
                { u"U:"_s,    u"D: "_s,       u"L: "_s,  u"R:"_s,     u"M: "_s,     u"UL:"_s,
                  u"UR:"_s,   u"DL:"_s,       u"DR:"_s,  u"Hat 1"_s,  u"Hat 4"_s,   u"Triggers"_s,
                  u"TG1"_s,   u"TG2"_s,       u"JOYX"_s, u"JoyY"_s,   u"Sim:"_s,    u"File:"_s,
                  u"Date:"_s, u"Custom 2:"_s, u"BTN"_s,  u"BTN S1"_s, u"/U "_s,     u"/M "_s,
                  u"/D "_s,   u"/U"_s,        u"THR"_s,  u"Remark"_s, u"BTN\tS1"_s, u"x"_s,
                  u"USE"_s };
        }
    }

    RichText next()
    {
        QString text;
        for (int pieces = below(30); pieces > 0; --pieces) {
            text += separator() + word();
        }
        if (below(2) == 0) {
            text += separator();
        }
        RichText box{ text, {}, {} };
        for (qsizetype covered = 0; covered < text.size();) {
            const qsizetype length = 1 + below(20);
            box.characters.push_back({ length, m_looks.characterFormat() });
            covered += length;
        }
        box.normalise();
        return box;
    }

private:
    int below(qsizetype limit) { return int(m_random() % unsigned(limit)); }

    QString separator()
    {
        static const QStringList separators = { u" "_s, u" "_s,  u" "_s, u"\n"_s,   u"\t"_s, {},
                                                u"("_s, u" ("_s, u"_"_s, u"\n\n"_s, u"  "_s };
        return separators[below(separators.size())];
    }

    QString word()
    {
        const QString word = m_words[below(m_words.size())];
        switch (below(10)) {
        case 0:
            return word.toLower();
        case 1:
            return word.left(below(word.size() + 1));
        default:
            return word;
        }
    }

    std::mt19937 m_random;
    test::RichTextMaker m_looks;
    QStringList m_words;
};

/// Both ways of colouring, one after the other, against the slow ones.
void expectColoursOfTwin(SheetKind kind, const RichText &box)
{
    const TextStyles styles = numberedStyles();
    test::BoxColoursTwin twin(box, boxScheme);
    twin.applyColours(kind == SheetKind::Throttle, boxFont());
    const RichText normal = ApplyColours(kind, box, { boxScheme, boxFont() });
    ASSERT_EQ(looksOf(normal), twin.looks()) << box.text.toStdString();
    ASSERT_EQ(normal.text, box.text);
    ASSERT_EQ(normal.paragraphs, box.paragraphs);
    twin.applyModes(styles);
    ASSERT_EQ(looksOf(ApplyUMDcolours(normal, styles, remColour)), twin.looks())
        << box.text.toStdString();
}

} // namespace

TEST(BoxColours, AgreeWithTheSlowColouringOnFiveThousandBoxes)
{
    BoxMaker maker(5);
    for (int i = 0; i < 5000; ++i) {
        const RichText box = maker.next();
        for (const SheetKind kind : { SheetKind::Joystick, SheetKind::Throttle }) {
            ASSERT_NO_FATAL_FAILURE(expectColoursOfTwin(kind, box));
        }
    }
}

TEST(BoxColours, AgreeWithTheSlowColouringOnWhatFiveThousandFilesFill)
{
    test::JoystickFileMaker maker(41);
    int filled = 0;
    for (int i = 0; i < 5000; ++i) {
        const auto file = AnalyseAndExtract(QString::fromLatin1(maker.next().c_str()));
        if (!file) {
            continue;
        }
        for (const SheetKind kind : { SheetKind::Joystick, SheetKind::Throttle }) {
            for (const QString &text : AnalyseJoystickFile(kind, *file, {})) {
                if (text.contains(u'\n')) {
                    ASSERT_NO_FATAL_FAILURE(expectColoursOfTwin(kind, RichText::plain(text)));
                    ++filled;
                }
            }
        }
    }
    EXPECT_GT(filled, 10000);
}
