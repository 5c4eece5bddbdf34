// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "text/painter.h"

#include "documents/editor_texts.h"
#include "settings/colour_settings.h"
#include "settings/settings.h"
#include "tests/text/painter_twin.h"

#include <gtest/gtest.h>

#include <random>

using namespace zeph;

namespace {

constexpr ColorRef pureRed = 255;
constexpr ColourScheme scheme = {
    .plain = 1, .btn = 2, .slash = 3, .raw = 4, .miscellaneous = 5, .rem = 6
};

/// One letter a character: "." plain, b BTN and DEF, s slash, r raw, m miscellaneous, c comment,
/// ! pure red.
QString marks(QStringView text, std::span<const PaintPass> passes)
{
    QString marks;
    for (const ColourRun &run : paint(text, passes, scheme)) {
        const QChar letter = run.colour == pureRed ? u'!' : QStringView(u"?.bsrmc")[run.colour];
        marks += QString(run.length, letter);
    }
    return marks;
}

QString joystick(QStringView text)
{
    return marks(text, joystickPasses());
}

QString macro(QStringView text)
{
    return marks(text, macroPasses());
}

QString typing(QStringView text)
{
    return marks(text, typingPasses());
}

} // namespace

TEST(Painter, AnEmptyTextHasNoRuns)
{
    EXPECT_TRUE(paint(u"", joystickPasses(), scheme).empty());
}

TEST(Painter, RunsFollowEachOtherInTheFewestPieces)
{
    const std::vector<ColourRun> expected = { { 6, 2 }, { 1, 1 }, { 2, 3 }, { 2, 1 } };
    EXPECT_EQ(paint(u"BTN S1 /U a", joystickPasses(), scheme), expected);
    const ColourScheme blue = { 7, 7, 7, 7, 7, 7 };
    EXPECT_EQ(paint(u"BTN S1 /U a", joystickPasses(), blue), (std::vector<ColourRun>{ { 11, 7 } }));
}

TEST(Painter, BtnTakesItsControlsNameInAnyCase)
{
    EXPECT_EQ(joystick(u"BTN S1 a"), u"bbbbbb..");
    EXPECT_EQ(joystick(u"btn s1 a"), u"bbbbbb..");
    EXPECT_EQ(joystick(u"Btn H1U\ta"), u"bbbbbbb..");
}

TEST(Painter, DefNeedsItsExactCase)
{
    EXPECT_EQ(joystick(u"DEF X1 a"), u"bbbbbb..");
    EXPECT_EQ(joystick(u"def X1 a"), u"........");
}

TEST(Painter, ANameRunsAcrossALineEndToTheNextBlankOrTab)
{
    EXPECT_EQ(joystick(u"BTN S1\nabc MDEF a"), u"bbbbbbbbbb.mmmm..");
    EXPECT_EQ(joystick(u"BTN\nS1 a"), u"bbbbbb..");
}

TEST(Painter, ASecondBlankAfterBtnLeavesTheNamePlain)
{
    EXPECT_EQ(joystick(u"BTN  S1 a"), u"bbbb.....");
}

TEST(Painter, BtnInsideAPaintedNameIsNoHit)
{
    // The name "x(BTN" ends the stretch, so that the second BTN takes no name of its own.
    EXPECT_EQ(joystick(u"BTN x-BTN S1 a"), u"bbbbbbbbb.....");
    EXPECT_EQ(joystick(u"BTN x BTN S1 a"), u"bbbbb.bbbbbb..");
}

TEST(Painter, BtnAtTheVeryEndIsPainted)
{
    EXPECT_EQ(joystick(u"a BTN"), u"..bbb");
    EXPECT_EQ(joystick(u"a BTN "), u"..bbbb");
}

TEST(Painter, SlashWordsNeedTheirCaseAndNothingAfter)
{
    EXPECT_EQ(joystick(u"/U /I/O /u /Up"), u"ss.ssss.......");
    EXPECT_EQ(joystick(u"a/U"), u".ss");
}

TEST(Painter, ALongerWordIsNoHit)
{
    EXPECT_EQ(joystick(u"MY_USE a XUSE a USED a"), u"......................");
    EXPECT_EQ(joystick(u"JOYX2 _JOYX JOYX_"), u".................");
    EXPECT_EQ(joystick(u"JOYX-JOYY"), u"mmmm.mmmm");
}

TEST(Painter, ALetterOfTheCodePageJoinsAWord)
{
    EXPECT_EQ(joystick(u"\u00DCJOYX JOYX\u00E9 JOYX"), u"............mmmm");
}

TEST(Painter, UseNeedsABlankAfterItInTheFullPass)
{
    EXPECT_EQ(joystick(u"USE a"), u"mmm..");
    EXPECT_EQ(joystick(u"a USE a"), u"..mmm..");
    EXPECT_EQ(joystick(u"use a"), u"mmm..");
    EXPECT_EQ(joystick(u"USE\ta"), u".....");
    EXPECT_EQ(joystick(u"USE(a"), u"...r.");
}

TEST(Painter, UseAtALinesVeryEndIsPlainInTheFullPassAndColouredInTyping)
{
    EXPECT_EQ(joystick(u"a USE\nb"), u".......");
    EXPECT_EQ(joystick(u"a USE"), u".....");
    EXPECT_EQ(typing(u"a USE\nb"), u"..mmm..");
    EXPECT_EQ(typing(u"a USE"), u"..mmm");
}

TEST(Painter, TheFirstGroupNeedsItsExactCaseInTyping)
{
    EXPECT_EQ(typing(u"use MDEF a"), u"....mmmm..");
    EXPECT_EQ(joystick(u"use MDEF a"), u"mmm.mmmm..");
    EXPECT_EQ(typing(u"curve CURVE"), u"......rrrrr");
}

TEST(Painter, AKeyCallNeedsItsBracketAtOnceOrOneFurther)
{
    EXPECT_EQ(joystick(u"DLY(1) a"), u"rrrr.r..");
    EXPECT_EQ(joystick(u"DLY (1) a"), u"rrr.r.r..");
    EXPECT_EQ(joystick(u"DLY  (1)"), u".....r.r");
    EXPECT_EQ(joystick(u"dly(1)"), u"rrrr.r");
}

TEST(Painter, DlyWithoutABracketStaysInTheDefaultColour)
{
    EXPECT_EQ(joystick(u"BTN S1 DLY a"), u"bbbbbb......");
    EXPECT_EQ(joystick(u"DLY"), u"...");
}

TEST(Painter, ALaterPassPaintsOverAnEarlierOne)
{
    // CURVE is raw either way; MOUSE and SHIFTBTN stand in two lists.
    EXPECT_EQ(joystick(u"CURVE (1)"), u"rrrrr.r.r");
    EXPECT_EQ(joystick(u"MOUSE mouse( shiftbtn SHIFTBTN"), u"mmmmm.mmmmmr..........mmmmmmmm");
    // The name after BTN is first the button's, then the axis's.
    EXPECT_EQ(joystick(u"BTN JOYX a"), u"bbbbmmmm..");
    // DEF is painted after the brackets, BTN before them.
    EXPECT_EQ(joystick(u"DEF X(1) a"), u"bbbbbbbb..");
    EXPECT_EQ(joystick(u"BTN X(1) a"), u"bbbbbrbr..");
}

TEST(Painter, AutoIsPaintedAndThenItsBracketsAreByTheBracketPass)
{
    EXPECT_EQ(joystick(u"x(AUTO)y"), u".rmmmmr.");
    EXPECT_EQ(joystick(u"(CUSTOM) (custom)"), u"rmmmmmmr.r......r");
    EXPECT_EQ(macro(u"(AUTO)"), u"r....r");
}

TEST(Painter, BracketsHaveTheirClassEach)
{
    EXPECT_EQ(joystick(u"(<{a}>)"), u"rsm.msr");
    EXPECT_EQ(macro(u"(<{a}>)"), u"rsm.msr");
}

TEST(Painter, ThreeWordsArePureRedWhateverTheSchemeSays)
{
    EXPECT_EQ(joystick(u"RUN_APP STICK_OFF EMPTY_BUFFERS"), u"!!!!!!!.!!!!!!!!!.!!!!!!!!!!!!!");
    EXPECT_EQ(macro(u"RUN_APP STICK_OFF EMPTY_BUFFERS"), u"........!!!!!!!!!.!!!!!!!!!!!!!");
    EXPECT_EQ(joystick(u"run_app"), u".......");
}

TEST(Painter, ACommentStaysAllOneColour)
{
    EXPECT_EQ(joystick(u"a Rem BTN S1 (USE ) /U\nJOYX"), u"..cccccccccccccccccccc.mmmm");
    EXPECT_EQ(joystick(u"rem a\nREM b"), u"ccccc.ccccc");
    EXPECT_EQ(macro(u"F = a rem <b> /U"), u"......cccccccccc");
}

TEST(Painter, ALongerWordBeginningWithRemIsNoComment)
{
    EXPECT_EQ(joystick(u"Remark /U Rem_ /U"), u".......ss......ss");
    EXPECT_EQ(joystick(u"-Rem-x"), u".ccccc");
}

TEST(Painter, TheMacroFileHasNoButtonsAndNoUse)
{
    EXPECT_EQ(macro(u"BTN S1 USE MDEF DEF X"), u".....................");
    EXPECT_EQ(macro(u"Fire = /U JOYX USB (D04)"), u".......ss.mmmm.rrr.r...r");
    EXPECT_EQ(macro(u"FORCED_CORNERS POV PULSE(1)"), u"........................r.r");
}

TEST(Painter, RemPassesPaintCommentsAlone)
{
    EXPECT_EQ(marks(u"BTN S1 Rem x\n/U", remPasses()), u".......ccccc...");
}

TEST(Painter, TheSchemeTakesEachDocumentsOwnPlainColour)
{
    Settings settings;
    settings.of<ColourSettings>().BTNColour = 12;
    settings.of<ColourSettings>().SlashColour = 13;
    settings.of<ColourSettings>().RAWColour = 14;
    settings.of<ColourSettings>().MiscellaneousColour = 15;
    settings.of<ColourSettings>().RemStatements = 16;
    settings.of<ColourSettings>().JoystickTextDefaultColour = 10;
    settings.of<ColourSettings>().MacroTextDefaultColour = 11;
    const ColourScheme joystickScheme =
        colourScheme(settings.of<ColourSettings>(), DocumentKind::Joystick);
    EXPECT_EQ(joystickScheme.plain, 10U);
    EXPECT_EQ(joystickScheme.btn, 12U);
    EXPECT_EQ(joystickScheme.slash, 13U);
    EXPECT_EQ(joystickScheme.raw, 14U);
    EXPECT_EQ(joystickScheme.miscellaneous, 15U);
    EXPECT_EQ(joystickScheme.rem, 16U);
    EXPECT_EQ(colourScheme(settings.of<ColourSettings>(), DocumentKind::Macro).plain, 11U);
}

TEST(Painter, RunsAsLooksKeepThePlainFormatButItsColour)
{
    CharFormat plain;
    plain.family = u"Arial"_s;
    plain.bold = true;
    const auto runs = characterRuns({ { 3, 5 }, { 2, 6 } }, plain);
    ASSERT_EQ(runs.size(), 2U);
    EXPECT_EQ(runs[1].length, 2);
    EXPECT_EQ(runs[1].format.family, u"Arial");
    EXPECT_TRUE(runs[1].format.bold);
    EXPECT_EQ(runs[1].format.colour, ColorRef(6));
}

namespace {

/// Texts that are full of what the passes disagree about.
class TextMaker
{
public:
    explicit TextMaker(unsigned seed) : m_random(seed)
    {
        for (const PaintPass &pass : joystickPasses()) {
            m_words.append(pass.word.toString());
        }
        m_words += { u"S1"_s,    u"H1UL"_s, u"x"_s,      u"Radar_Mode"_s, u"10"_s,    u"/u"_s,
                     u"BTNX"_s,  u"DEFX"_s, u"Remark"_s, u"MOUSEXYZ"_s,   u"/UP"_s,   u"(AUTO"_s,
                     u"AUTO)"_s, u"REM"_s,  u"rem "_s,   u"(("_s,         u"\u00E9"_s };
    }

    QString next()
    {
        QString text;
        const int pieces = below(40);
        for (int i = 0; i < pieces; ++i) {
            text += below(3) == 0 ? QString() : separator();
            text += word();
        }
        return below(2) == 0 ? text + separator() : text;
    }

private:
    int below(int limit) { return std::uniform_int_distribution(0, limit - 1)(m_random); }

    QString separator()
    {
        static const QStringList separators = { u" "_s, u" "_s,  u" "_s, u"\n"_s,  u"\t"_s, u"_"_s,
                                                u"("_s, u" ("_s, u")"_s, u"<"_s,   u"}"_s,  u"  "_s,
                                                u"-"_s, u"="_s,  u","_s, u"\n\n"_s };
        return separators[below(int(separators.size()))];
    }

    QString word()
    {
        const QString word = m_words[below(int(m_words.size()))];
        switch (below(8)) {
        case 0:
            return word.toLower();
        case 1:
            return word.left(1) + word.mid(1).toLower();
        case 2:
            return word.left(below(int(word.size()) + 1));
        default:
            return word;
        }
    }

    std::mt19937 m_random;
    QStringList m_words;
};

void expectAsTold(const QString &text, std::span<const PaintPass> passes,
                  const test::PainterTwin &twin)
{
    ASSERT_EQ(test::perCharacter(paint(text, passes, scheme)), twin.colours())
        << text.toStdString();
}

} // namespace

TEST(Painter, PaintsTenThousandTextsAsOnePassAfterAnotherWould)
{
    constexpr int texts = 10000;
    TextMaker maker(20);
    for (int i = 0; i < texts; ++i) {
        const QString text = maker.next();
        test::PainterTwin full(text, scheme);
        full.joystick(false);
        ASSERT_NO_FATAL_FAILURE(expectAsTold(text, joystickPasses(), full));
        test::PainterTwin typed(text, scheme);
        typed.joystick(true);
        ASSERT_NO_FATAL_FAILURE(expectAsTold(text, typingPasses(), typed));
        test::PainterTwin macroFile(text, scheme);
        macroFile.macro();
        ASSERT_NO_FATAL_FAILURE(expectAsTold(text, macroPasses(), macroFile));
    }
}

TEST(Painter, ALongTextIsPaintedAsAShortOneIs)
{
    // Long stretches of one pass reach over whatever parts the painter takes a text in: a name
    // runs to the next blank, a comment to the line's end.
    constexpr qsizetype length = 140000;
    TextMaker maker(21);
    QString text;
    while (text.size() < length) {
        text += maker.next() + u"BTN S1"_s + QString(3000, u'x') + u"/U BTN"_s;
        text +=
            maker.next() + u" rem "_s + QString(700, u'-') + u" /U DLY BTN S1 "_s + maker.next();
    }
    test::PainterTwin full(text, scheme);
    full.joystick(false);
    expectAsTold(text, joystickPasses(), full);
    test::PainterTwin macroFile(text, scheme);
    macroFile.macro();
    expectAsTold(text, macroPasses(), macroFile);
}

TEST(Passes, TakeTheirWordsAndColoursFromTheTable)
{
    for (const auto passes : { joystickPasses(), macroPasses(), typingPasses(), remPasses() }) {
        for (const PaintPass &pass : passes) {
            const language::Word &row = language::rowOf(pass.word);
            EXPECT_EQ(row.text, pass.word);
            EXPECT_EQ(row.colour, pass.colour) << pass.word.toUtf8().data();
            EXPECT_NE(row.colour, language::ColourClass::Plain);
        }
    }
}

TEST(Passes, OfTheJoystickFileLeaveNoWordWithAColourOut)
{
    for (const language::Word &word : language::words) {
        const bool isPainted = std::ranges::find(joystickPasses(), word.text, &PaintPass::word)
            != joystickPasses().end();
        EXPECT_EQ(isPainted, word.colour != language::ColourClass::Plain)
            << word.text.toUtf8().data();
    }
}

TEST(Recolouring, GivesEachChangedColourItsNewOne)
{
    const ColourScheme before{
        .plain = 0, .btn = 1, .slash = 2, .raw = 3, .miscellaneous = 4, .rem = 5
    };
    ColourScheme after = before;
    EXPECT_TRUE(recolouring(before, after).isEmpty());
    after.btn = 10;
    after.rem = 1;
    EXPECT_EQ(recolouring(before, after), (QHash<ColorRef, ColorRef>{ { 1, 10 }, { 5, 1 } }));
}

TEST(Recolouring, LeavesAColourAloneWhoseClassesPart)
{
    const ColourScheme before{
        .plain = 0, .btn = 7, .slash = 7, .raw = 3, .miscellaneous = 4, .rem = 5
    };
    ColourScheme after = before;
    after.btn = 10;
    EXPECT_TRUE(recolouring(before, after).isEmpty());
    after.slash = 10;
    EXPECT_EQ(recolouring(before, after), (QHash<ColorRef, ColorRef>{ { 7, 10 } }));
}
