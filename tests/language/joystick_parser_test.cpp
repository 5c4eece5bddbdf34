// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "language/model.h"
#include "language/use_forms.h"

#include <gmock/gmock.h>

using namespace zeph;
using namespace zeph::language;
using testing::ElementsAre;

namespace {

JoystickFile parsed(const QString &text, const QString &macros = {})
{
    return parsePair(text, macros).joystick;
}

std::vector<std::string> statementTexts(const JoystickFile &file)
{
    std::vector<std::string> texts;
    for (const JoystickStatement &statement : file.statements)
        texts.push_back(file.at(statement.place).toString().toStdString());
    return texts;
}

std::vector<std::string> itemTexts(const JoystickFile &file, const JoystickStatement &statement)
{
    std::vector<std::string> texts;
    for (int i = statement.body.items.first; i < statement.body.items.end; ++i)
        texts.push_back(file.at(file.items[i]).toString().toStdString());
    return texts;
}

std::vector<StatementKind> kinds(const JoystickFile &file)
{
    std::vector<StatementKind> result;
    for (const JoystickStatement &statement : file.statements)
        result.push_back(statement.kind);
    return result;
}

} // namespace

TEST(JoystickParser, AStatementRunsToTheNextKeywordAtALinesStart)
{
    const JoystickFile file = parsed(u"BTN S1 /U a\n       /D b\n\n  btn T1 c\nUSE RATE (60)\n"_s);
    EXPECT_THAT(statementTexts(file),
                ElementsAre("BTN S1 /U a\n       /D b", "btn T1 c", "USE RATE (60)"));
    EXPECT_EQ(file.statements[1].place.line, 4);
    EXPECT_EQ(file.statements[1].place.position, 27);
    EXPECT_EQ(file.at(file.statements[1].subject), u"T1");
}

TEST(JoystickParser, ASecondStatementOnALineIsAStatementOfItsOwn)
{
    const JoystickFile file = parsed(u"BTN S1 a BTN T11 b  use hat1 as pov Rem BTN\n c"_s);
    EXPECT_THAT(statementTexts(file),
                ElementsAre("BTN S1 a", "BTN T11 b", "use hat1 as pov Rem BTN\n c"));
    EXPECT_EQ(file.at(file.statements[1].subject), u"T11");
    EXPECT_EQ(file.statements[2].keyword.line, 1);
}

TEST(JoystickParser, AnAxisWithItsTypeStartsAStatementAnywhereAndAnArgumentNowhere)
{
    EXPECT_THAT(statementTexts(parsed(u"BTN S1 CURVE (RNG, 2) RNG /I 3 a ^ b"_s)),
                ElementsAre("BTN S1 CURVE (RNG, 2)", "RNG /I 3 a ^ b"));
    EXPECT_EQ(parsed(u"BTN S1 LOCK (THR 5) ANT SWAP (ANT, RNG 1)"_s).statements.size(), 1);
}

TEST(JoystickParser, CurveStartsAStatementInALineIfModifiersFollowAndIsACallIfABracketDoes)
{
    EXPECT_THAT(statementTexts(parsed(u"BTN S1 /O a CURVE /I (THR, 4)\n /O (THR, 0) BTN S2 b"_s)),
                ElementsAre("BTN S1 /O a", "CURVE /I (THR, 4)\n /O (THR, 0)", "BTN S2 b"));
    EXPECT_EQ(parsed(u"BTN S1 /P CURVE (THR, 4) /R CURVE (THR, 0)"_s).statements.size(), 1);
    EXPECT_EQ(parsed(u"BTN S1 Curve /I (a)"_s, u"Curve = c"_s).statements.size(), 1);
}

TEST(JoystickParser, TildesBeforeAStatementBelongToNone)
{
    EXPECT_THAT(statementTexts(parsed(u"foo BTN S1 a ~~BTN S2 b\n~ ~BTN S3 c"_s)),
                ElementsAre("foo", "BTN S1 a", "BTN S2 b", "BTN S3 c"));
}

TEST(JoystickParser, AnAxisAfterDisableIsWhatItNames)
{
    EXPECT_THAT(statementTexts(parsed(u"DISABLE THR 3 a\nBTN S1 DISABLE RNG 5 6"_s)),
                ElementsAre("DISABLE THR 3 a", "BTN S1 DISABLE RNG 5 6"));
    EXPECT_THAT(statementTexts(parsed(u"DISABLE THR RNG 3 a ^ b"_s)),
                ElementsAre("DISABLE THR", "RNG 3 a ^ b"));
}

TEST(JoystickParser, AMacroNamedLikeAKeywordStartsNothingInsideALine)
{
    const QString macros = u"Use = e\nBTN = f\nTHR = g"_s;
    EXPECT_EQ(parsed(u"BTN S1 Use HAT1 AS BTN THR 3"_s, macros).statements.size(), 1);
    EXPECT_EQ(parsed(u"BTN S1 Use this Def that"_s).statements.size(), 1);
}

TEST(JoystickParser, AMacroThatBeginsLikeAKeywordContinuesTheStatement)
{
    const JoystickFile file = parsed(u"BTN S1 a\nUse_Flaps\nTHR-Up\nBTNS\nTHR 3 a ^ b"_s);
    ASSERT_EQ(file.statements.size(), 2);
    EXPECT_THAT(itemTexts(file, file.statements[0]),
                ElementsAre("a", "Use_Flaps", "THR-Up", "BTNS"));
}

TEST(JoystickParser, KindsFollowTheKeyword)
{
    const JoystickFile file = parsed(u"BTN S1 a\nBTN X1 a\nDEF X1 S3\nJOYX 3 a ^ b\n"
                                     "CURVE /I (THR, 4)\nRATE (60)\nSHIFTBTN (S4)\n"
                                     "DISABLE RNG\nTHR_RANGE (0%, 90%)\nUSE S3_LOCK\nJSX 1\n"_s);
    using enum StatementKind;
    EXPECT_THAT(kinds(file),
                ElementsAre(Button, FlagButton, FlagDefinition, Axis, Curve, Rate, ShiftButton,
                            Disable, ThrottleRange, Use, Legacy));
}

TEST(JoystickParser, TextBeforeTheFirstKeywordIsKeptAsUnknown)
{
    const JoystickFile file = parsed(u"Hello there\nBTN S1 a\n"_s);
    ASSERT_EQ(file.statements.size(), 2);
    EXPECT_EQ(file.statements[0].kind, StatementKind::Unknown);
    EXPECT_EQ(file.at(file.statements[0].place), u"Hello there");
}

TEST(JoystickParser, CommentsAreLeftOut)
{
    const JoystickFile file = parsed(u"BTN S1 a Rem BTN S2 b\nRem BTN S3 c\nREM\n  f rem g\n"_s);
    ASSERT_EQ(file.statements.size(), 1);
    EXPECT_THAT(itemTexts(file, file.statements[0]), ElementsAre("a", "f"));
}

TEST(JoystickParser, ATildeSwitchesNoLineOff)
{
    const JoystickFile file = parsed(u"BTN S1 a\n   ~ e\n~BTN S4 d\n ~ USE RATE (5)"_s);
    EXPECT_THAT(statementTexts(file), ElementsAre("BTN S1 a\n   ~ e", "BTN S4 d", "USE RATE (5)"));
    EXPECT_THAT(itemTexts(file, file.statements[0]), ElementsAre("a", "~", "e"));
}

TEST(JoystickParser, ATildeInsideKeysHasNoMeaning)
{
    const JoystickFile file = parsed(u"BTN S1 a ~ b"_s);
    EXPECT_THAT(itemTexts(file, file.statements[0]), ElementsAre("a", "~", "b"));
}

TEST(JoystickParser, TabsAndControlCharactersAreBlanks)
{
    const JoystickFile file = parsed(u"\tBTN\tS1\t\ta\rb"_s);
    ASSERT_EQ(file.statements.size(), 1);
    EXPECT_EQ(file.at(file.statements[0].subject), u"S1");
    EXPECT_THAT(itemTexts(file, file.statements[0]), ElementsAre("a", "b"));
}

TEST(JoystickParser, AModifierMayTouchTheControl)
{
    const JoystickFile file = parsed(u"BTN S1/U a\nBTN S2/Up\n"_s);
    EXPECT_EQ(file.at(file.statements[0].subject), u"S1");
    EXPECT_THAT(itemTexts(file, file.statements[0]), ElementsAre("/U", "a"));
    EXPECT_EQ(file.at(file.statements[1].subject), u"S2/Up");
}

TEST(JoystickParser, TheTailOfAUseFormIsTheRestOfItsLine)
{
    const JoystickFile file = parsed(u"use  zeph graphic  My (new picture.bmp  Rem nice\n"
                                     "USE MDEF\n"_s);
    ASSERT_EQ(file.statements.size(), 2);
    EXPECT_EQ(file.at(file.statements[0].tail), u"My (new picture.bmp");
    EXPECT_EQ(file.at(file.statements[0].subject), u"zeph graphic");
    EXPECT_TRUE(file.strayBrackets.isEmpty());
    EXPECT_EQ(file.statements[1].tail.length, 0);
}

TEST(JoystickParser, OptionsAndRolesOfAUseFormAreItems)
{
    const JoystickFile file = parsed(u"USE HAT1 AS MOUSE (20) - REVERSE_UD, NOHOLD\n"_s);
    EXPECT_EQ(useForms()[size_t(file.statements[0].useForm)].head, u"HAT1 AS");
    EXPECT_THAT(itemTexts(file, file.statements[0]),
                ElementsAre("MOUSE (20)", "20", "-", "REVERSE_UD", ",", "NOHOLD"));
    EXPECT_EQ(file.items[file.statements[0].body.items.first].kind, ItemKind::Call);
}

TEST(Bodies, WordsHaveTheirKinds)
{
    const JoystickFile file =
        parsed(u"BTN S1 a SHF 5 SPC ^ Fire x9z X12 MOUSE_LB T1\n"_s, u"Fire = b"_s);
    std::vector<ItemKind> found;
    for (const Item &item : file.items)
        found.push_back(item.kind);
    using enum ItemKind;
    EXPECT_THAT(
        found,
        ElementsAre(Key, ModifierKey, Number, Key, Null, MacroUse, Unknown, Flag, Word, Word));
}

TEST(Bodies, AWordWithBracketsAfterItIsACallWithOrWithoutABlank)
{
    const JoystickFile file = parsed(u"BTN S1 DLY(60) KD (a b) x (c) RPT\n(2)"_s);
    std::vector<std::string> calls;
    for (const Item &item : file.items) {
        if (item.kind == ItemKind::Call)
            calls.push_back(file.at(item).toString().toStdString());
    }
    EXPECT_THAT(calls, ElementsAre("DLY(60)", "KD (a b)"));
    EXPECT_TRUE(file.items[0].closed);
    EXPECT_EQ(file.items[1].parent, 0);
    EXPECT_EQ(file.items[0].endItem, 2);
}

TEST(Bodies, BracketsAmongTheKeysOfKdAreKeys)
{
    for (const QString &text :
         { u"BTN S1 /P KD (LSHF () /R KU (( LSHF)"_s, u"BTN S1 KD (LSHF ))"_s, u"BTN S1 KD ())"_s,
           u"BTN S1 KU(<)"_s, u"BTN S1 {KD(a)} (KD(b))"_s, u"BTN S1 /P KD(LSHF )) /R KU() LSHF)"_s,
           u"BTN S1 USB (LSHF ( ( LSHF)"_s, u"BTN S1 USB (LSHF ) ) LSHF)"_s,
           u"BTN S1 (KU() LSHF))"_s, u"BTN S1 ( KD( a ) b )"_s, u"BTN S1 (KD( a ))"_s,
           u"BTN S1 KD( a ) (b)"_s, u"BTN S1 KD(a ) KU(a )"_s, u"BTN S1 KD( ) KU( )"_s,
           u"BTN S1 KD ( ( { ) > ) DLY(60)"_s, u"BTN S1 [KD (LSHF ()]"_s,
           u"BTN S1 {KD( a )} {b}"_s }) {
        const JoystickFile file = parsed(text);
        EXPECT_TRUE(file.strayBrackets.isEmpty()) << text.toStdString();
    }
}

TEST(Bodies, AKeyListWithoutItsBracketEndsAtAModifierOrACall)
{
    const JoystickFile file = parsed(u"BTN S1 /P KD(a /R KU(b) USB(D04 DLY(60)"_s);
    EXPECT_THAT(
        itemTexts(file, file.statements[0]),
        ElementsAre("/P", "KD(a", "a", "/R", "KU(b)", "b", "USB(D04", "D04", "DLY(60)", "60"));
    EXPECT_FALSE(file.items[1].closed);
    EXPECT_EQ(file.items[1].endItem, 3);
    EXPECT_EQ(file.items[8].parent, -1);
}

TEST(Bodies, SquareBracketsAreTakenOffAMacrosNameOneByOne)
{
    const QString name = QString(150, u'n');
    const FilePair pair =
        parsePair(u"BTN S1 [[A[1]] ["_s + name + u"]"_s, u"A[1] = a\n"_s + name + u" = b"_s);
    EXPECT_THAT(itemTexts(pair.joystick, pair.joystick.statements[0]),
                ElementsAre("[", "[", "A[1]", "]", "[", name.toStdString(), "]"));
    EXPECT_EQ(pair.joystick.items[2].kind, ItemKind::MacroUse);
    EXPECT_EQ(pair.joystick.items[5].kind, ItemKind::MacroUse);
}

TEST(Bodies, SquareBracketsAreKeysAndMayHoldAMacro)
{
    const QString macros = u"Left_Button = a\nRadar[1] = b"_s;
    const FilePair pair = parsePair(u"BTN S1 [ ] [Left_Button] Radar[1]"_s, macros);
    const JoystickFile &file = pair.joystick;
    EXPECT_THAT(itemTexts(file, file.statements[0]),
                ElementsAre("[", "]", "[", "Left_Button", "]", "Radar[1]"));
    EXPECT_EQ(file.items[3].kind, ItemKind::MacroUse);
    EXPECT_EQ(file.items[5].kind, ItemKind::MacroUse);
}

TEST(Bodies, ASlashInsideAMacrosNameIsNoModifier)
{
    const FilePair pair = parsePair(u"BTN S1 Gear/U"_s, u"Gear/U = a"_s);
    ASSERT_EQ(pair.joystick.items.size(), 1);
    EXPECT_EQ(pair.joystick.items[0].kind, ItemKind::MacroUse);
}

TEST(MacroReferences, TheLastUseMdefDecidesAndQuotesGo)
{
    const JoystickFile file = parsed(u"USE MDEF first\nBTN S1 a\nuse mdef \"My macros.tmm\" Rem x\n"
                                     "Rem USE MDEF comment\n"_s);
    const auto reference = macroReference(file);
    ASSERT_TRUE(reference);
    EXPECT_EQ(reference->name, u"My macros.tmm");
    EXPECT_EQ(reference->place.line, 3);
}

TEST(MacroReferences, ALineWithNothingButACommentGivesAnEmptyName)
{
    const auto reference = macroReference(parsed(u"USE MDEF Rem none\n"_s));
    ASSERT_TRUE(reference);
    EXPECT_EQ(reference->name, QString());
    EXPECT_FALSE(macroReference(parsed(u"BTN S1 a"_s)));
}
