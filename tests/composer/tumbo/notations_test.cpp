// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/tumbo/notations.h"

#include "tests/composer/generators/compilation.h"
#include "tests/composer/generators/generator_rows.h"

#include <QSet>

#include <map>
#include <vector>

using namespace zeph;

namespace tumbo_notations_test {

namespace {

/// What is typed here of the USB keyboard table: a first number, and the keys that have it and the
/// ones after it.
struct UsageRange {
    int first;
    const char *keys;
};
const UsageRange usages[] = {
    { 0x04, "a b c d e f g h i j k l m n o p q r s t u v w x y z" },
    { 0x1E, "1 2 3 4 5 6 7 8 9 0 ENT ESC BSP TAB SPC - = [ ] \\" },
    { 0x33, "; ' ` , . / CAPS F1 F2 F3 F4 F5 F6 F7 F8 F9 F10 F11 F12 PRNTSCRN SCRLCK BRK" },
    { 0x49, "INS HOME PGUP DEL END PGDN RARROW LARROW DARROW UARROW NUML" },
    { 0x54, "KP/ KP* KP- KP+ KPENT KP1 KP2 KP3 KP4 KP5 KP6 KP7 KP8 KP9 KP0 KP." },
    { 0xE0, "LCTL LSHF LALT" },
    { 0xE4, "RCTL RSHF RALT" },
};

/// The keys in the order of their numbers on the board, which has gaps.
const char *const numbered[] = {
    "0 1 2 3 4 5 6 7 8 9 KP0 KP1 KP2 KP3 KP4 KP5 KP6 KP7 KP8 KP9",
    "a b c d e f g h i j k l m n o p q r s t u v w x y z ` - = \\ [ ] ; '",
    ", . / LSHF RSHF LCTL RCTL LALT RALT ENT KPENT KP. KP+ KP- KP* KP/",
    "F1 F2 F3 F4 F5 F6 F7 F8 F9 F10 F11 F12 ESC INS HOME PGUP DEL END PGDN TAB CAPS SPC NUML",
    "UARROW DARROW LARROW RARROW SCRLCK BRK PRNTSCRN BSP",
    "MOUSE_LB MOUSE_MB MOUSE_RB POVU POVUR POVR POVDR POVD POVDL POVL POVUL",
};

/// Each symbol after the key that has it with Shift.
const QString symbols = u"1!2@3#4$5%6^7&8*9(0)`~-_=+\\|[{]};:'\",<.>/?"_s;

QStringList words(const char *text)
{
    return QString::fromLatin1(text).split(u' ');
}

QStringList allNames()
{
    QStringList names;
    for (const char *each : numbered) {
        names += words(each);
    }
    return names;
}

/// By name; mouse and POV have none.
std::map<QString, QString> allCodes()
{
    std::map<QString, QString> codes;
    for (const UsageRange &range : usages) {
        int usage = range.first;
        for (const QString &name : words(range.keys)) {
            codes[name] = QString::number(usage++, 16).toUpper().rightJustified(2, u'0');
        }
    }
    return codes;
}

// The states are sums of Shift 1, Ctrl 2, Alt 4.
const QStringList modifierTexts{ QString(), u"SHF "_s,     u"CTL "_s,     u"CTL SHF "_s,
                                 u"ALT "_s, u"ALT SHF "_s, u"CTL ALT "_s, u"CTL ALT SHF "_s };

KeyToggles togglesOf(int state)
{
    return { (state & 1) != 0, (state & 2) != 0, (state & 4) != 0 };
}

struct Modifier {
    int bit;
    QString name;
    QString code;
};

/// A key held between its modifiers, which go down in order and come up in reverse.
struct CodeLists {
    QStringList down;
    QStringList up;
};
CodeLists expectedCodes(const QString &code, const QString &shownAs, int state, CodeView view)
{
    const bool isUsb = view == CodeView::Usb;
    const std::map<int, Modifier> order{ { 1, { 2, u"LCTL"_s, u"E0"_s } },
                                         { 2, { 4, u"LALT"_s, u"E2"_s } },
                                         { 3, { 1, u"LSHF"_s, u"E1"_s } } };
    CodeLists expected;
    for (const auto &[place, modifier] : order) {
        if (state & modifier.bit) {
            expected.down.append(isUsb ? u"D"_s + modifier.code : modifier.name);
            expected.up.prepend(isUsb ? u"U"_s + modifier.code : modifier.name);
        }
    }
    expected.down.append(!isUsb ? shownAs : code.isEmpty() ? QString() : u"D"_s + code);
    expected.up.prepend(!isUsb ? shownAs : code.isEmpty() ? QString() : u"U"_s + code);
    return expected;
}

const BoardKey &keyNamed(const QString &name)
{
    return *boardKeyNamed(name);
}

/// Each state that a key can be shown in.
template <class Act> void forEachState(Act act)
{
    for (const BoardKey &key : boardKeys()) {
        for (int state = 0; state < 8; ++state) {
            for (const CodeView view : { CodeView::KdKu, CodeView::Usb }) {
                for (const bool useShfKey : { true, false }) {
                    act(key, state, view, useShfKey);
                }
            }
        }
    }
}

} // namespace

TEST(KeyTable, Has112KeysWithTheirNumbersAndNames)
{
    const QStringList names = allNames();
    ASSERT_EQ(names.size(), 112);
    ASSERT_EQ(boardKeys().size(), 112U);
    qsizetype next = 0;
    for (int index = 0; index <= 210; ++index) {
        const bool isUnused = index == 54 || (index >= 102 && index <= 199);
        const BoardKey *key = boardKey(index);
        ASSERT_EQ(key != nullptr, !isUnused) << index;
        if (key) {
            EXPECT_EQ(key->name.toString(), names[next++]) << index;
        }
    }
}

TEST(KeyTable, HasTheCodesOfTheUsbKeyboardTable)
{
    const auto codes = allCodes();
    EXPECT_EQ(codes.size(), 101U);
    for (const BoardKey &key : boardKeys()) {
        const auto expected = codes.find(key.name.toString());
        EXPECT_EQ(key.code.toString(), expected == codes.end() ? QString() : expected->second)
            << key.index;
    }
}

TEST(KeyTable, TwentyOneKeysHaveASecondSymbol)
{
    int count = 0;
    for (const BoardKey &key : boardKeys()) {
        const qsizetype at = key.name.size() == 1 ? symbols.indexOf(key.name) : -1;
        const bool has = at >= 0 && at % 2 == 0;
        EXPECT_EQ(key.shifted.toString(), has ? QString(symbols[at + 1]) : QString()) << key.index;
        count += has ? 1 : 0;
    }
    EXPECT_EQ(count, 21);
}

TEST(Modifiers, AreWrittenInTheOrderCtrlAltShift)
{
    for (int state = 0; state < 8; ++state) {
        EXPECT_EQ(GetModifier(togglesOf(state)), modifierTexts[state]);
    }
}

TEST(Modifiers, BothSpellingsGoIntoTheCodes)
{
    for (const QString &spelt : { u"CTL ALT SHF "_s, u"LCTL LALT LSHF "_s }) {
        KeyStrings strings{ u"a"_s, u"D04"_s, u"U04"_s, {} };
        addModifiers(strings, spelt, CodeView::Usb);
        EXPECT_EQ(strings.MakeCodes, u"DE0 DE2 DE1 D04"_s);
        EXPECT_EQ(strings.BreakCodes, u"U04 UE1 UE2 UE0"_s);
    }
}

TEST(Notations, ShiftAnd1WithSHF)
{
    const KeyStrings one = GetKeystrings(keyNamed(u"1"_s), { true }, CodeView::Usb, true);
    EXPECT_EQ(one, (KeyStrings{ u"SHF 1"_s, u"DE1 D1E"_s, u"U1E UE1"_s, u"DE1 D1E U1E UE1"_s }));
}

TEST(Notations, ShiftAnd1AsTheSymbolHasTheSameCodes)
{
    const KeyStrings one = GetKeystrings(keyNamed(u"1"_s), { true }, CodeView::Usb, false);
    EXPECT_EQ(one, (KeyStrings{ u"!"_s, u"DE1 D1E"_s, u"U1E UE1"_s, u"DE1 D1E U1E UE1"_s }));
}

TEST(Notations, ThreeModifiersComeUpInReverseOrder)
{
    const KeyStrings strings =
        GetKeystrings(keyNamed(u"DEL"_s), { true, true, true }, CodeView::Usb, true);
    EXPECT_EQ(strings.KeySyntax, u"CTL ALT SHF DEL"_s);
    EXPECT_EQ(strings.MakeCodes, u"DE0 DE2 DE1 D4C"_s);
    EXPECT_EQ(strings.BreakCodes, u"U4C UE1 UE2 UE0"_s);
}

TEST(Notations, CtrlShiftA)
{
    const KeyStrings strings =
        GetKeystrings(keyNamed(u"a"_s), { true, true, false }, CodeView::Usb, true);
    EXPECT_EQ(strings.MakeCodes, u"DE0 DE1 D04"_s);
    EXPECT_EQ(strings.BreakCodes, u"U04 UE1 UE0"_s);
}

TEST(Notations, APovKeyHasNoCodesAndItsCombinedTextIsOneBlank)
{
    const KeyStrings strings = GetKeystrings(keyNamed(u"POVUL"_s), {}, CodeView::Usb, true);
    EXPECT_EQ(strings, (KeyStrings{ u"POVUL"_s, QString(), QString(), u" "_s }));
}

TEST(Notations, InTheViewOfNamesMakeAndBreakAreTheName)
{
    const KeyStrings strings =
        GetKeystrings(keyNamed(u"F12"_s), { false, true }, CodeView::KdKu, true);
    EXPECT_EQ(strings,
              (KeyStrings{ u"CTL F12"_s, u"LCTL F12"_s, u"F12 LCTL"_s, u"LCTL F12 F12 LCTL"_s }));
}

TEST(Notations, OfAllKeysInAllStatesAreWhatTheRulesSay)
{
    const auto codes = allCodes();
    int checked = 0;
    forEachState([&](const BoardKey &key, int state, CodeView view, bool useShfKey) {
        const QString name = key.name.toString();
        const qsizetype at = name.size() == 1 ? symbols.indexOf(name) : -1;
        const bool isSymbol = !useShfKey && (state & 1) != 0 && at >= 0 && at % 2 == 0;
        const QString shownAs = isSymbol ? QString(symbols[at + 1]) : name;
        const auto code = codes.find(name);
        const CodeLists expected =
            expectedCodes(code == codes.end() ? QString() : code->second, shownAs, state, view);
        KeyStrings strings;
        strings.KeySyntax = modifierTexts[isSymbol ? state - 1 : state] + shownAs;
        strings.MakeCodes = expected.down.join(u' ');
        strings.BreakCodes = expected.up.join(u' ');
        strings.CombinedCodes = strings.MakeCodes + u' ' + strings.BreakCodes;
        EXPECT_EQ(GetKeystrings(key, togglesOf(state), view, useShfKey), strings)
            << name.toStdString() << ' ' << state;
        ++checked;
    });
    EXPECT_EQ(checked, 112 * 8 * 2 * 2);
}

TEST(Notations, EachKeyThatTheCodesPressIsReleasedInReverseOrder)
{
    forEachState([](const BoardKey &key, int state, CodeView view, bool useShfKey) {
        if (view != CodeView::Usb) {
            return;
        }
        const KeyStrings strings = GetKeystrings(key, togglesOf(state), view, useShfKey);
        std::vector<QString> down;
        for (const QString &code : strings.CombinedCodes.split(u' ', Qt::SkipEmptyParts)) {
            if (code.startsWith(u'D')) {
                down.push_back(code.mid(1));
            } else {
                ASSERT_FALSE(down.empty());
                EXPECT_EQ(u"U"_s + down.back(), code);
                down.pop_back();
            }
        }
        EXPECT_TRUE(down.empty()) << key.index << ' ' << state;
    });
}

TEST(Notations, EachKeyThatKDPressesKUReleasesInReverseOrder)
{
    forEachState([](const BoardKey &key, int state, CodeView view, bool useShfKey) {
        if (view != CodeView::KdKu) {
            return;
        }
        const KeyStrings strings = GetKeystrings(key, togglesOf(state), view, useShfKey);
        QStringList down = strings.MakeCodes.split(u' ');
        EXPECT_EQ(down.size(), modifierTexts[state].count(u' ') + 1);
        std::ranges::reverse(down);
        EXPECT_EQ(strings.BreakCodes, down.join(u' ')) << key.index << ' ' << state;
    });
}

TEST(Statements, CodesGetTheBracketsOfTheirWord)
{
    using enum Notation;
    const auto text = [](Notation notation, CodeView view, bool brackets) {
        return statementText(notation, u"x"_s, view, brackets);
    };
    EXPECT_EQ(text(Syntax, CodeView::KdKu, true), u"x"_s);
    EXPECT_EQ(text(Syntax, CodeView::Usb, true), u"x"_s);
    EXPECT_EQ(text(Make, CodeView::KdKu, true), u"KD (x)"_s);
    EXPECT_EQ(text(Break, CodeView::KdKu, true), u"KU (x)"_s);
    EXPECT_EQ(text(Combined, CodeView::KdKu, true), u"USB (x)"_s);
    EXPECT_EQ(text(Make, CodeView::Usb, true), u"USB (x)"_s);
    EXPECT_EQ(text(Break, CodeView::Usb, true), u"USB (x)"_s);
    EXPECT_EQ(text(Combined, CodeView::Usb, true), u"USB (x)"_s);
    for (const Notation each : notations) {
        EXPECT_EQ(text(each, CodeView::KdKu, false), u"x"_s);
        EXPECT_EQ(statementText(each, QString(), CodeView::Usb, true), QString());
    }
}

TEST(Statements, Button3InTheViewOfNamesWritesUSB)
{
    const KeyStrings strings = GetKeystrings(keyNamed(u"a"_s), {}, CodeView::KdKu, true);
    EXPECT_EQ(statementText(Notation::Combined, strings.CombinedCodes, CodeView::KdKu, true),
              u"USB (a a)"_s);
}

TEST(Statements, PressAndRelease)
{
    const BoardKey &key = keyNamed(u"q"_s);
    EXPECT_EQ(pressAndReleaseStatement(GetKeystrings(key, { true }, CodeView::KdKu, true),
                                       CodeView::KdKu),
              u"/P KD(LSHF q) /R KU(q LSHF) Rem 'SHF q'"_s);
    EXPECT_EQ(pressAndReleaseStatement(GetKeystrings(key, {}, CodeView::Usb, true), CodeView::Usb),
              u"/P USB(D14) /R USB(U14) Rem 'q'"_s);
}

TEST(Statements, PressAndReleaseNeedsAllThreeBoxes)
{
    const KeyStrings full{ u"a"_s, u"a"_s, u"a"_s, u"a a"_s };
    for (QString KeyStrings::*box :
         { &KeyStrings::KeySyntax, &KeyStrings::MakeCodes, &KeyStrings::BreakCodes }) {
        KeyStrings lacking = full;
        (lacking.*box).clear();
        EXPECT_EQ(pressAndReleaseStatement(lacking, CodeView::KdKu), QString());
    }
}

TEST(Statements, CombinedWithRem)
{
    const KeyStrings strings = GetKeystrings(keyNamed(u"q"_s), {}, CodeView::Usb, true);
    EXPECT_EQ(combinedWithRem(strings), u"USB (D14 U14) Rem 'q'"_s);
    EXPECT_EQ(combinedWithRem({}), QString());
}

TEST(Statements, ACombinedBoxOfOneBlankCountsAsFilled)
{
    const KeyStrings pov = GetKeystrings(keyNamed(u"POVU"_s), {}, CodeView::Usb, true);
    EXPECT_EQ(combinedWithRem(pov), u"USB ( ) Rem 'POVU'"_s);
}

TEST(Statements, OStartsALineOfItsOwnAfterI)
{
    EXPECT_EQ(toldBy(statementToInsert(u"/I a /O b"_s)), u"/I a \n/O b"_s);
    EXPECT_EQ(toldBy(statementToInsert(u"/I /U a /D b /O /U c /D d"_s)),
              u"/I /U a /D b \n/O /U c /D d"_s);
}

TEST(Statements, OBeforeIIsRefused)
{
    EXPECT_EQ(toldBy(statementToInsert(u"/O b /I a"_s)),
              u"Incorrect modifier order buddy: /I must come before /O in a statement, with the "
              "/O statement appearing on a different line."_s);
}

TEST(Statements, IOrOAloneAndOtherCasesStayAsTheyAre)
{
    for (const QString &text : { u"/I a"_s, u"/O a"_s, u"/i a /o b"_s, u"/o b /i a"_s, u"a"_s,
                                 u"/INS /OUT"_s, u"/OUT /INS"_s }) {
        EXPECT_EQ(toldBy(statementToInsert(text)), text);
    }
}

TEST(Statements, AMacrosNameLosesWhatItCannotHave)
{
    EXPECT_EQ(macroLine(u"a b(c)"_s, u"SPC"_s), u"a_b_c_ = SPC"_s);
    EXPECT_EQ(macroLine(u" <>{}()^,="_s, u"SPC"_s), u"__________ = SPC"_s);
    EXPECT_EQ(macroLine(QString(), u"SPC"_s), QString());
    EXPECT_EQ(macroLine(u"Fire"_s, QString()), QString());
}

using CompiledStatements = test::CompiledTest;

TEST_F(CompiledStatements, AreAllThatTumboCanWrite)
{
    QSet<QString> written;
    forEachState([&written](const BoardKey &key, int state, CodeView view, bool useShfKey) {
        const KeyStrings strings = GetKeystrings(key, togglesOf(state), view, useShfKey);
        written << pressAndReleaseStatement(strings, view) << combinedWithRem(strings);
        const QStringList texts{ strings.KeySyntax, strings.MakeCodes, strings.BreakCodes,
                                 strings.CombinedCodes };
        for (const Notation notation : notations) {
            for (const bool brackets : { true, false }) {
                written << statementText(notation, texts[int(notation)], view, brackets);
            }
        }
    });
    // 101 keys with codes and 11 without, in 8 states, have at least these of their own.
    EXPECT_GT(written.size(), 112 * 8 * 6);
    for (const QString &statement : std::as_const(written)) {
        EXPECT_EQ(findingsIn(u"BTN S1 "_s + statement + u'\n'), QStringList())
            << statement.toStdString();
        compilation.add(u"BTN S1 "_s + statement);
    }
}

} // namespace tumbo_notations_test
