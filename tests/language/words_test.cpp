// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "language/words.h"

#include "language/use_forms.h"
#include "language/word_map.h"

#include <QSet>
#include <QStringList>

#include <gmock/gmock.h>

using namespace zeph;
using namespace zeph::language;

namespace {

QStringList listOf(Words words)
{
    QStringList list;
    for (const QStringView word : words)
        list.append(word.toString());
    return list;
}

QString joined(Words words)
{
    return listOf(words).join(u' ');
}

/// The words of a colour, brackets apart.
QSet<QString> painted(ColourClass colour)
{
    QSet<QString> found;
    for (const Word &word : words) {
        if (word.colour == colour && !word.is(BracketRole))
            found.insert(word.text.toString());
    }
    return found;
}

QSet<QString> setOf(const QString &list)
{
    const QStringList each = list.split(u' ', Qt::SkipEmptyParts);
    return { each.begin(), each.end() };
}

QStringList namesOfShape(CallShape shape)
{
    QStringList found;
    for (const Word &word : words) {
        if (word.arguments == shape)
            found.append(word.text.toString());
    }
    found.sort();
    return found;
}

} // namespace

TEST(TheTable, HasNoWordTwice)
{
    QSet<QString> seen;
    for (const Word &word : words) {
        EXPECT_FALSE(word.text.isEmpty());
        EXPECT_FALSE(seen.contains(word.text.toString().toLower())) << word.text.toUtf8().data();
        seen.insert(word.text.toString().toLower());
    }
}

TEST(TheTable, FindsEachOfItsRowsInAnyCase)
{
    for (const Word &word : words) {
        EXPECT_EQ(&rowOf(word.text), &word) << word.text.toUtf8().data();
        EXPECT_EQ(&rowOf(word.text.toString().toLower()), &word);
        EXPECT_EQ(&words[size_t(indexOf(word))], &word);
    }
}

TEST(TheTable, KnowsNothingOfOtherWords)
{
    for (const QStringView other : { u"", u"JOYZ", u"USES", u"Radar", u"H5U" }) {
        EXPECT_FALSE(rowOf(other).isKnown());
        EXPECT_TRUE(rowOf(other).text.isEmpty());
    }
    EXPECT_FALSE(rowOf(QString(100000, u'(')).isKnown());
}

TEST(TheTable, HasRadioswitchForItsUseStatementAlone)
{
    EXPECT_EQ(rowOf(u"radioswitch").text, u"RADIOSWITCH");
    EXPECT_FALSE(rowOf(u"RADIOSWITCH").isKnown());
}

TEST(Controls, AreSixteenButtonsAndNinePositionsOfFourHats)
{
    EXPECT_EQ(wordsOf<ControlRole>().size(), 16U + 4U * 9U);
    for (int hat = 1; hat <= 4; ++hat) {
        for (const QStringView position :
             { u"U", u"D", u"L", u"R", u"M", u"UL", u"UR", u"DL", u"DR" })
            EXPECT_TRUE(rowOf(u"H%1%2"_s.arg(hat).arg(position)).is(ControlRole));
    }
    for (const QStringView name : { u"S1", u"s4", u"TG1", u"tg2", u"T1", u"t10" })
        EXPECT_TRUE(rowOf(name).is(ControlRole));
    for (const QStringView name : { u"S5", u"S0", u"TG3", u"T11", u"T0", u"H5U", u"H1", u"H1X" })
        EXPECT_FALSE(rowOf(name).is(ControlRole));
}

TEST(Axes, GroupsAreNoSingleAxes)
{
    EXPECT_EQ(joined(wordsOf<AxisRole>()), u"JOYX JOYY THR RDDR LBRK RBRK MIX MIY ANT RNG");
    EXPECT_EQ(joined(wordsOf<AxisGroupRole>()), u"JOYSTICK ROTARIES TOEBRAKES MICROSTICK");
    EXPECT_TRUE(rowOf(u"rng").is(AxisRole));
    EXPECT_FALSE(rowOf(u"ROTARIES").is(AxisRole));
    EXPECT_TRUE(rowOf(u"Rotaries").is(AxisGroupRole));
}

TEST(Axes, OnlyTheStickAndTheMicrostickCannotBeDisabled)
{
    const QStringList list = listOf(wordsOf<DisableableRole>());
    EXPECT_EQ(QSet<QString>(list.begin(), list.end()),
              setOf(u"THR ANT RNG ROTARIES RDDR LBRK RBRK TOEBRAKES"_s));
}

TEST(WordsOf, HatsPovAndMouse)
{
    EXPECT_EQ(joined(wordsOf<HatRole>()), u"HAT1 HAT2 HAT3 HAT4");
    EXPECT_EQ(joined(wordsOf<PovRole>()), u"POVU POVD POVL POVR POVUL POVDL POVUR POVDR");
    EXPECT_EQ(joined(wordsOf<MouseAxisRole>()), u"MOUSEX MOUSEY MOUSEZ");
    EXPECT_EQ(joined(wordsOf<MouseButtonRole>()), u"MOUSE_LB MOUSE_RB MOUSE_MB");
    const QStringList uses = listOf(wordsOf<HatUseRole>());
    EXPECT_EQ(QSet<QString>(uses.begin(), uses.end()), setOf(u"POV ARROWKEYS KEYPAD MOUSE"_s));
}

TEST(ColourClasses, HoldTheirWords)
{
    EXPECT_EQ(painted(ColourClass::Slash), setOf(u"/U /M /D /I /O /A /H /T /P /R"_s));
    EXPECT_EQ(painted(ColourClass::Raw),
              setOf(u"CURVE DELAY PULSE USB DLY RPT KD KU MSX MSY MSZ TRIM HOLDTRIM LOCK UNLOCK "
                    "SWAP REVERSE FORWARD MOUSEXY MOUSEMOVE MOUSEROTATE EMULATION_ON EMULATION_OFF "
                    "AXIS_MODE_USER AXIS_MODE_WINDOWS CALIBRATION_AUTO CALIBRATION_MANUAL"_s));
    EXPECT_EQ(painted(ColourClass::Miscellaneous),
              setOf(u"USE DISABLE MDEF NULLCHR OR NOT AND MTYPE KEYBOARD AS POV ARROWKEYS KEYPAD "
                    "ZEPH GRAPHIC README PROFILE MOUSE RATE HAT1_SENSITIVITY HAT2_SENSITIVITY "
                    "HAT3_SENSITIVITY HAT4_SENSITIVITY T1_SENSITIVITY SHIFTBTN THR_RANGE "
                    "SCREEN_RESOLUTION REVERSE_LR REVERSE_UD REVERSE_DIR FORCED_CORNERS NOHOLD "
                    "FORCE_MACROS NO_BUTTON ZERO_MOUSE CHORDED_FDFU HWSTARTUP WINDOW_STYLE "
                    "ALL_DIRECTX_BUTTONS S3_LOCK S3_UNLOCK LASTVALUE AXES_CONFIG MOUSE_LB MOUSE_RB "
                    "MOUSE_MB REVERSE_TOGGLES RESET_TOGGLES MOUSEX MOUSEY MOUSEZ JOYX JOYY ANT RNG "
                    "THR RDDR LBRK RBRK MIX MIY JOYSTICK ROTARIES TOEBRAKES MICROSTICK POVU POVD "
                    "POVL POVR POVUL POVDL POVUR POVDR TO_CURRENT (AUTO) (CUSTOM)"_s));
    EXPECT_EQ(painted(ColourClass::Btn), setOf(u"BTN DEF"_s));
    EXPECT_EQ(painted(ColourClass::Rem), setOf(u"Rem"_s));
    EXPECT_EQ(painted(ColourClass::PureRed), setOf(u"RUN_APP STICK_OFF EMPTY_BUFFERS"_s));
}

TEST(ColourClasses, GiveBracketsTheirColours)
{
    EXPECT_EQ(joined(wordsOf<BracketRole>()), u"( ) < > { }");
    for (const QStringView bracket : { u"(", u")" })
        EXPECT_EQ(rowOf(bracket).colour, ColourClass::Raw);
    for (const QStringView bracket : { u"<", u">" })
        EXPECT_EQ(rowOf(bracket).colour, ColourClass::Slash);
    for (const QStringView bracket : { u"{", u"}" })
        EXPECT_EQ(rowOf(bracket).colour, ColourClass::Miscellaneous);
}

TEST(InsertWords, HaveTheMenusCaptionsInItsOrder)
{
    QStringList captions;
    for (const Word &word : insertWords)
        captions.append(QString::fromUtf16(word.caption).remove(u'&'));
    EXPECT_EQ(
        captions,
        (QStringList{ u"/U dogfight switch is up"_s, u"/M dogfight switch middle position"_s,
                      u"/D dogfight switch is down"_s, u"/I  S3 is held in"_s, u"/O S3 is out"_s,
                      u"/P  press event"_s, u"/R  release event"_s, u"/T  toggle modifier"_s,
                      u"/A  autorepeat the statement"_s, u"/H  hold down"_s,
                      u"DLY delay statement"_s, u"RPT repeat statement"_s }));
}

TEST(InsertWords, SayWhatTheyAreAndHaveNoMnemonicTwice)
{
    QString mnemonics;
    for (const Word &word : insertWords) {
        const QString caption = QString::fromUtf16(word.caption);
        EXPECT_TRUE(QString(caption).remove(u'&').startsWith(word.text));
        EXPECT_NE(*word.tip, 0);
        const QChar mnemonic = caption[caption.indexOf(u'&') + 1].toUpper();
        EXPECT_FALSE(mnemonics.contains(mnemonic)) << caption.toStdString();
        mnemonics += mnemonic;
    }
}

TEST(SlashModifiers, AreTheFirstTenWithTheirLevels)
{
    ASSERT_EQ(slashModifiers.size(), 10U);
    const auto level = [](QStringView word) {
        return rowOf(word).level;
    };
    for (const QStringView word : { u"/U", u"/M", u"/D" })
        EXPECT_EQ(level(word), SlashLevel::Dogfight);
    for (const QStringView word : { u"/I", u"/O" })
        EXPECT_EQ(level(word), SlashLevel::S3);
    for (const QStringView word : { u"/P", u"/R" })
        EXPECT_EQ(level(word), SlashLevel::Action);
    // It stands in one column with presses and releases, and may hold both.
    EXPECT_EQ(level(u"/T"), SlashLevel::Toggle);
    for (const QStringView word : { u"/A", u"/H" })
        EXPECT_EQ(level(word), SlashLevel::Repeat);
    for (const Word &word : words.subspan(slashModifiers.size())) {
        EXPECT_FALSE(word.is(SlashRole));
        EXPECT_EQ(word.level, SlashLevel::None);
    }
}

TEST(StatementWords, AreTheAxesAndWhatElseStartsALine)
{
    for (const QStringView axis : wordsOf<AxisRole>())
        EXPECT_TRUE(rowOf(axis).is(StatementRole));
    for (const QStringView word : { u"BTN", u"DEF", u"USE", u"CURVE", u"RATE", u"SHIFTBTN", u"MDEF",
                                    u"JSX", u"JSY", u"PORTB", u"SWAPTG", u"DISABLE", u"THR_RANGE" })
        EXPECT_TRUE(rowOf(word).is(StatementRole));
    EXPECT_EQ(wordsOf<StatementRole>().size(), 23U);
}

TEST(Calls, TakeArgumentsOfAShape)
{
    EXPECT_EQ(namesOfShape(CallShape::Keys), (QStringList{ u"KD"_s, u"KU"_s, u"USB"_s }));
    EXPECT_EQ(namesOfShape(CallShape::Axis),
              (QStringList{ u"FORWARD"_s, u"HOLDTRIM"_s, u"REVERSE"_s, u"UNLOCK"_s }));
    EXPECT_EQ(namesOfShape(CallShape::Screen),
              (QStringList{ u"MOUSEMOVE"_s, u"MOUSEROTATE"_s, u"MOUSEXY"_s }));
    EXPECT_EQ(rowOf(u"CURVE").arguments, CallShape::AxisAndCurve);
    EXPECT_EQ(rowOf(u"TRIM").arguments, CallShape::AxisAndTrim);
    EXPECT_EQ(rowOf(u"LOCK").arguments, CallShape::AxisAndLock);
    EXPECT_EQ(rowOf(u"SWAP").arguments, CallShape::TwoAxes);
    EXPECT_EQ(rowOf(u"THR_RANGE").arguments, CallShape::TwoPercents);
    EXPECT_EQ(rowOf(u"SHIFTBTN").arguments, CallShape::Control);
    EXPECT_EQ(rowOf(u"MOUSE").arguments, CallShape::Any);
    EXPECT_EQ(rowOf(u"USE").arguments, CallShape::None);
}

TEST(UseForms, AreRecognisedByTheirHeadWordsInAnyCaseAndSpacing)
{
    const auto form = [](QStringView text) {
        const int index = useFormOf(text);
        return index < 0 ? QString() : useForms()[size_t(index)].head.toString();
    };
    EXPECT_EQ(form(u"MDEF my file"), u"MDEF");
    EXPECT_EQ(form(u"zeph\t  Run_App c:\\x.exe"), u"ZEPH RUN_APP");
    EXPECT_EQ(form(u"HAT3 as POV"), u"HAT3 AS");
    EXPECT_EQ(form(u"RATE(60)"), u"RATE");
    EXPECT_EQ(form(u"MDEFAULT x"), QString());
    EXPECT_EQ(form(u"HAT3 FORCED_CORNERS"), QString());
    EXPECT_EQ(form(u""), QString());
}

TEST(MacroNames, RefuseTheBlankAndWhatBodiesAreWrittenWith)
{
    EXPECT_EQ(forbiddenMacroNameCharacters, u" <>{}()^,=");
}

TEST(Keys, AreKnownInAnyCaseAndModifiersApart)
{
    EXPECT_TRUE(rowOf(u"spc").is(KeyRole));
    EXPECT_TRUE(rowOf(u"KP/").is(KeyRole));
    EXPECT_TRUE(rowOf(u"PrntScrn").is(KeyRole));
    EXPECT_TRUE(rowOf(u"ctl").is(ModifierKeyRole));
    EXPECT_FALSE(rowOf(u"ctl").is(KeyRole));
    EXPECT_FALSE(rowOf(u"F13").is(KeyRole));
    EXPECT_EQ(joined(wordsOf<ModifierKeyRole>()), u"SHF CTL ALT LSHF RSHF LCTL RCTL LALT RALT");
}
