// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// Every button of the pages of digital and analogue axes that inserts a statement.

#include "tests/composer/pages/axis_pages.h"

using namespace zeph;
using test::AxisPages;
using test::InsertCase;

namespace {

constexpr auto digital = InsertOptions::DigitalAxis;
constexpr auto analogue = InsertOptions::AnalogueAxis;

const InsertCase cases[] = {
    { "Type1", digital, u"CMD_DigitalAxis_0"_s,
      [](AxisPages &w) {
          w.choose(u"Combo_DigitalAxis_0"_s, u"ANT"_s);
          w.type(u"TXT_DigitalAxis_0"_s, u"6"_s);
          w.type(u"RTB_digitalAxis_0"_s, u"Right"_s);
          w.type(u"RTB_digitalAxis_1"_s, u"Left"_s);
          w.type(u"RTB_digitalAxis_2"_s, u"Centre"_s);
      },
      u"ANT 1 6 Right Left Centre "_s, u"mmm......................."_s, true },
    { "Type2", digital, u"CMD_DigitalAxis_1"_s,
      [](AxisPages &w) {
          w.turnTo(u"SSTab3"_s, 1);
          w.choose(u"Combo_DigitalAxis_1"_s, u"RNG"_s);
          w.type(u"TXT_DigitalAxis_1"_s, u"5"_s);
          w.type(u"RTB_digitalAxis_3"_s, u"a b c d e"_s);
          w.click(u"CheckForceMacros_1"_s);
      },
      u"RNG 2 5 a b c d e - FORCE_MACROS"_s, u"mmm.................mmmmmmmmmmmm"_s, true },
    { "Type3", digital, u"CMD_DigitalAxis_2"_s,
      [](AxisPages &w) {
          w.turnTo(u"SSTab3"_s, 2);
          w.choose(u"Combo_DigitalAxis_2"_s, u"RDDR"_s);
          w.choose(u"ComboSlashList"_s, u"/I"_s);
          w.type(u"RTB_digitalAxis_4"_s, u"Left"_s);
          w.type(u"RTB_digitalAxis_5"_s, u"^"_s);
          w.type(u"RTB_digitalAxis_6"_s, u"Right"_s);
      },
      u"RDDR /I 3 Left ^ Right "_s, u"mmmm.ss................"_s, false },
    { "Type4", digital, u"CMD_DigitalAxis_3"_s,
      [](AxisPages &w) {
          w.turnTo(u"SSTab3"_s, 3);
          w.choose(u"Combo_DigitalAxis_3"_s, u"RNG"_s);
          w.type(u"TXT_DigitalAxis_2"_s, u"500"_s);
          w.type(u"RTB_digitalAxis_7"_s, u"Left"_s);
          w.type(u"RTB_digitalAxis_8"_s, u"Centre"_s);
          w.type(u"RTB_digitalAxis_9"_s, u"Right"_s);
      },
      u"RNG 4 500 Left Centre Right "_s, u"mmm........................."_s, true },
    { "Type5", digital, u"CMD_DigitalAxis_4"_s,
      [](AxisPages &w) {
          w.turnTo(u"SSTab3"_s, 4);
          w.choose(u"Combo_DigitalAxis_4"_s, u"THR"_s);
          w.type(u"TXT_DigitalAxis_3"_s, u"3"_s);
          w.click(u"Command15_0"_s);
          w.type(u"RTB_digitalAxis_10"_s, u"a"_s);
          w.choose(u"ComboBandSelect"_s, u"Band 3"_s);
          w.type(u"RTB_digitalAxis_10"_s, u"c"_s);
      },
      u"THR 5 3 (0 33 67 100) a ^ c "_s, u"mmm.....r...........r......."_s, true },
    { "Type6", digital, u"CMD_DigitalAxis_5"_s,
      [](AxisPages &w) {
          w.turnTo(u"SSTab3"_s, 5);
          w.choose(u"Combo_DigitalAxis_5"_s, u"ANT"_s);
          w.type(u"TXT_DigitalAxis_6"_s, u"3"_s);
          w.click(u"Command15_2"_s);
          w.type(u"RTB_digitalAxis_11"_s, u"Up"_s);
          w.type(u"RTB_digitalAxis_13"_s, u"Mid"_s);
          w.click(u"CheckUMDIOdigital"_s);
      },
      u" 6 3 (0 33 67 100) Up ^ Mid "_s, u".....r...........r.........."_s, false },
    { "Curve", analogue, u"CMD_AnaAxes_0"_s,
      [](AxisPages &w) {
          w.choose(u"ComboAnalogueAxes_0"_s, u"JOYSTICK"_s);
          w.type(u"TextAnalogueAxes_0"_s, u"-2"_s);
      },
      u"USE CURVE (JOYSTICK, -2)"_s, u"mmm.rrrrr.rmmmmmmmm....r"_s, true },
    { "CurveOfAButton", analogue, u"CMD_AnaAxes_0"_s,
      [](AxisPages &w) {
          w.click(u"OptionAnaCurve_2"_s);
          w.choose(u"ComboAnalogueAxes_0"_s, u"RNG"_s);
          w.type(u"TextAnalogueAxes_0"_s, u"2"_s);
      },
      u"/P CURVE (RNG, 2)"_s, u"ss.rrrrr.rmmm...r"_s, false },
    { "Trim", analogue, u"CMD_AnaAxes_1"_s,
      [](AxisPages &w) {
          w.turnTo(u"SSTab2"_s, 1);
          w.choose(u"ComboAnalogueAxes_1"_s, u"JOYY"_s);
          w.type(u"TextAnalogueAxes_1"_s, u"2"_s);
          w.click(u"LBL_TrimSign_0"_s);
      },
      u"TRIM (JOYY, 2-)"_s, u"rrrr.rmmmm....r"_s, false },
    { "Disable", analogue, u"CMD_AnaAxes_2"_s,
      [](AxisPages &w) {
          w.turnTo(u"SSTab2"_s, 2);
          w.choose(u"ComboAnalogueAxes_2"_s, u"RDDR"_s);
      },
      u"DISABLE RDDR"_s, u"mmmmmmm.mmmm"_s, true },
    { "Lock", analogue, u"CMD_AnaAxes_3"_s,
      [](AxisPages &w) {
          w.turnTo(u"SSTab2"_s, 2);
          w.choose(u"ComboAnalogueAxes_3"_s, u"THR"_s);
          w.type(u"TextAnalogueAxes_2"_s, u"50"_s);
      },
      u"LOCK (THR, 50%)"_s, u"rrrr.rmmm.....r"_s, false },
    { "Swap", analogue, u"CMD_AnaAxes_4"_s,
      [](AxisPages &w) {
          w.turnTo(u"SSTab2"_s, 3);
          w.choose(u"ComboAnalogueAxes_4"_s, u"TOEBRAKES"_s);
          w.choose(u"ComboAnalogueAxes_5"_s, u"ROTARIES"_s);
          w.click(u"CheckAnaSWAP"_s);
      },
      u"USE SWAP (TOEBRAKES, ROTARIES)"_s, u"mmm.rrrr.rmmmmmmmmm..mmmmmmmmr"_s, true },
    { "UseReverse", analogue, u"CMD_AnaAxes_5"_s,
      [](AxisPages &w) {
          w.turnTo(u"SSTab2"_s, 4);
          w.choose(u"ComboAnalogueAxes_6"_s, u"THR"_s);
      },
      u"USE REVERSE (THR)"_s, u"mmm.rrrrrrr.rmmmr"_s, true },
    { "Forward", analogue, u"CMD_AnaAxes_6"_s,
      [](AxisPages &w) {
          w.turnTo(u"SSTab2"_s, 4);
          w.choose(u"ComboAnalogueAxes_7"_s, u"JOYY"_s);
          w.click(u"OptionAnaREVERSE_1"_s);
      },
      u"FORWARD (JOYY)"_s, u"rrrrrrr.rmmmmr"_s, false },
    { "AxesConfig", analogue, u"CMD_AnaAxes_7"_s,
      [](AxisPages &w) {
          w.turnTo(u"SSTab2"_s, 5);
          w.click(u"OptionAnaHotas_1"_s);
          w.click(u"Command3"_s);
      },
      u"USE AXES_CONFIG (1, JOYX), (2, JOYY), (3, -THR)"_s,
      u"mmm.mmmmmmmmmmm.r...mmmmr..r...mmmmr..r....mmmr"_s, true },
    { "ThrottleRange", analogue, u"CMD_AnaAxes_8"_s,
      [](AxisPages &w) {
          w.turnTo(u"SSTab2"_s, 6);
          w.type(u"TextAnalogueAxes_3"_s, u"0"_s);
          w.type(u"TextAnalogueAxes_4"_s, u"90"_s);
      },
      u"THR_RANGE (0%, 90%)"_s, u"mmmmmmmmm.r.......r"_s, false },
};

class AxisInserts : public test::TestIn<AxisPages>, public testing::WithParamInterface<InsertCase>
{
protected:
    void SetUp() override
    {
        openPage(GetParam().page);
        GetParam().fill(*this);
    }
    void insert() { click(GetParam().button); }
};

} // namespace

INSTANTIATE_TEST_SUITE_P(, AxisInserts, testing::ValuesIn(cases),
                         [](const auto &test) { return test.param.name; });

TEST_P(AxisInserts, GoIntoAnEmptyFileInTheirColours)
{
    addsLineEnd() = false;
    insert();
    EXPECT_EQ(joystick().text(), GetParam().text);
    EXPECT_EQ(marks(), GetParam().marks);
    EXPECT_EQ(joystick().selStart(), GetParam().text.size());
}

TEST_P(AxisInserts, EndTheLineIfThatIsWantedAndAreOneStepToUndo)
{
    EXPECT_TRUE(addsLineEnd());
    insert();
    insert();
    EXPECT_EQ(joystick().text(), GetParam().text + u'\n' + GetParam().text + u'\n');
    EXPECT_EQ(joystick().selStart(), joystick().text().size());
    joystick().undo();
    EXPECT_EQ(joystick().text(), GetParam().text + u'\n');
    joystick().undo();
    EXPECT_EQ(joystick().text(), QString());
}

TEST_P(AxisInserts, StartALineWhereTheyAreLinesOfTheirOwn)
{
    addsLineEnd() = false;
    const QString before = u"BTN S1 a b"_s;
    setJoystick(before, 8);
    insert();
    // A half without its axis begins with a blank of its own.
    const bool needsBlank = !GetParam().startsLine && !GetParam().text.startsWith(u' ');
    const QString start = GetParam().startsLine ? u"BTN S1 a\n"_s
        : needsBlank                            ? u"BTN S1 a "_s
                                                : u"BTN S1 a"_s;
    EXPECT_EQ(joystick().text(), start + GetParam().text + u" b"_s);
    EXPECT_EQ(joystick().selStart(), start.size() + GetParam().text.size());
    joystick().undo();
    EXPECT_EQ(joystick().text(), before);
}

TEST_P(AxisInserts, GoIntoTheJoystickFileWhileTheProtectedMacroFileIsSelected)
{
    addsLineEnd() = false;
    setMacro(u"Fire = a"_s);
    editor->documents().setProtected(true);
    insert();
    EXPECT_EQ(joystick().text(), GetParam().text);
    EXPECT_EQ(macro().text(), u"Fire = a"_s);
    EXPECT_EQ(editor->selected().kind(), DocumentKind::Joystick);
}

TEST_P(AxisInserts, AreWhatThePageSaysItWouldInsert)
{
    const ComposerPage &page = *composer()->page(GetParam().page);
    insert();
    const auto current = page.current();
    ASSERT_TRUE(current && *current);
    EXPECT_EQ((*current)->text(), GetParam().text);
}

TEST_P(AxisInserts, ComeBackFromTheFileIntoTheFields)
{
    addsLineEnd() = false;
    insert();
    ComposerPage &page = *composer()->page(GetParam().page);
    // Other tabs are in front, and other fields say something else.
    const QString tabs = GetParam().page == digital ? u"SSTab3"_s : u"SSTab2"_s;
    const int tab = control<QTabWidget>(tabs).currentIndex();
    turnTo(tabs, tab == 0 ? 1 : 0);
    for (QLineEdit *each : page.findChildren<QLineEdit *>()) {
        if (each->isEnabled() && !each->isReadOnly()) {
            each->setText(u"1"_s);
        }
    }
    for (QCheckBox *each : page.findChildren<QCheckBox *>()) {
        if (each->isEnabled() && !each->objectName().startsWith(u"CheckMulti")) {
            each->toggle();
        }
    }
    for (QComboBox *each : page.findChildren<QComboBox *>())
        each->setCurrentIndex(each->count() - 1);
    QSignalSpy spy(&page, &ComposerPage::changed);
    ASSERT_TRUE(page.read(GetParam().text));
    EXPECT_EQ(spy.count(), 1);
    EXPECT_EQ(control<QTabWidget>(tabs).currentIndex(), tab);
    ASSERT_TRUE(page.current() && *page.current());
    EXPECT_EQ((*page.current())->text(), GetParam().text);
}
