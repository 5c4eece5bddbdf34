// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/richtext/rich_text_box.h"
#include "tests/composer/pages/page_fixture.h"
#include "tests/support/soon.h"

#include <QAction>
#include <QLabel>
#include <QListWidget>
#include <QTabWidget>

#include <tuple>

using namespace zeph;

namespace {

/// The tabs of SSTab4.
enum MouseTab { TypeTab, AxisTab, ButtonTab, MoveTab, ZeroTab, AdvancedTab };

class MousePageTest : public test::PageTest
{
protected:
    void SetUp() override { openPage(InsertOptions::Mouse); }
    void showTab(MouseTab tab) { control<QTabWidget>(u"SSTab4"_s).setCurrentIndex(tab); }
    void chooseType(const QString &type)
    {
        auto &list = control<QListWidget>(u"MouseList"_s);
        list.setCurrentItem(list.findItems(type, Qt::MatchExactly).value(0));
    }
    void chooseAxis(const QString &axis, const QString &mouseAxis)
    {
        choose(u"ComboAnalogueAxes_8"_s, axis);
        choose(u"ComboMouseAxes"_s, mouseAxis);
    }
    QStringList enabledAxisOptions()
    {
        QStringList words;
        for (const int i : { 6, 7, 8, 10 }) {
            const auto &box = control<QCheckBox>(u"CheckHatUse_%1"_s.arg(i));
            if (box.isEnabled()) {
                words.append(box.text());
            }
        }
        return words;
    }
    /// Shows that a button inserts a word at the caret of the selected document.
    void expectWord(const QString &button, const QString &word)
    {
        SCOPED_TRACE(word.toStdString());
        makeLineEnds(true);
        setJoystick(QString());
        click(button);
        EXPECT_EQ(joystick().text(), word);
        EXPECT_EQ(joystick().selStart(), word.size());
        expectOneStepFrom(joystick(), QString());

        setJoystick(u"BTN S4 x"_s, 7);
        click(button);
        EXPECT_EQ(joystick().text(), u"BTN S4 %1x"_s.arg(word));
        EXPECT_EQ(joystick().selStart(), 7 + word.size());
        expectOneStepFrom(joystick(), u"BTN S4 x"_s);

        setJoystick(u"BTN S4"_s);
        click(button);
        EXPECT_EQ(joystick().text(), u"BTN S4 "_s + word);
        makeLineEnds(false);
    }
    void expectInMacroFile(const QString &button, const QString &word)
    {
        setJoystick(QString());
        setMacro(u"Fire = "_s);
        click(button);
        EXPECT_EQ(macro().text(), u"Fire = "_s + word);
        EXPECT_EQ(editor->selected().kind(), DocumentKind::Macro);
        EXPECT_EQ(joystick().text(), QString());
    }
};

} // namespace

TEST_F(MousePageTest, TheListsHaveTheirEntriesAndTheirDefaults)
{
    QStringList types;
    for (int i = 0; i < control<QListWidget>(u"MouseList"_s).count(); ++i) {
        types.append(control<QListWidget>(u"MouseList"_s).item(i)->text());
    }
    EXPECT_EQ(types, (QStringList{ u"A1"_s, u"A2"_s, u"A3"_s, u"A4"_s, u"A5"_s }));
    EXPECT_EQ(entries(u"ComboScaleValue"_s),
              (QStringList{ u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s, u"7"_s, u"8"_s, u"9"_s, u"10"_s,
                            u"11"_s, u"12"_s }));
    EXPECT_EQ(control<QComboBox>(u"ComboScaleValue"_s).currentText(), u"11"_s);
    EXPECT_EQ(textOf(u"TXT_Mouse_1"_s), u"2"_s);
    QStringList axes = entries(u"ComboAnalogueAxes_8"_s);
    axes.sort();
    EXPECT_EQ(axes,
              (QStringList{ u"ANT"_s, u"JOYSTICK"_s, u"JOYX"_s, u"JOYY"_s, u"LBRK"_s,
                            u"MICROSTICK"_s, u"MIX"_s, u"MIY"_s, u"RBRK"_s, u"RDDR"_s, u"RNG"_s,
                            u"ROTARIES"_s, u"THR"_s, u"TOEBRAKES"_s }));
}

TEST_F(MousePageTest, TheButtonsOfATypeAreTold)
{
    const QString told[][3] = { { u"A1"_s, u"T1"_s, u"T6"_s },
                                { u"A2"_s, u"T6"_s, u"T1"_s },
                                { u"A3"_s, u"T1"_s, u"n/a"_s },
                                { u"A4"_s, u"T6"_s, u"n/a"_s },
                                { u"A5"_s, u"n/a"_s, u"n/a"_s } };
    for (const auto &[type, left, right] : told) {
        chooseType(type);
        EXPECT_EQ(control<QLabel>(u"label5"_s).text(),
                  u"Left mouse button: %1\nRight mouse button: %2"_s.arg(left, right));
    }
}

TEST_F(MousePageTest, AMouseTypeIsAWholeStatement)
{
    chooseType(u"A3"_s);
    expectWholeStatement(u"Command9_0"_s, u"USE MTYPE A3"_s);
    tick(u"CheckHatUse_4"_s);
    expectWholeStatement(u"Command9_0"_s, u"USE MTYPE A3 - REVERSE_LR"_s);
    tick(u"CheckHatUse_5"_s);
    expectWholeStatement(u"Command9_0"_s, u"USE MTYPE A3 - REVERSE_UD, REVERSE_LR"_s);
}

TEST_F(MousePageTest, AnAxisAsMouseIsAWholeStatement)
{
    showTab(AxisTab);
    chooseAxis(u"MICROSTICK"_s, u"MOUSE"_s);
    expectWholeStatement(u"Command9_1"_s, u"USE MICROSTICK AS MOUSE (11, 2)"_s);
    tick(u"CHK_Mouse_0"_s);
    write(u"TXT_Mouse_2"_s, u"1"_s);
    for (const int i : { 6, 7, 10 }) {
        tick(u"CheckHatUse_%1"_s.arg(i));
    }
    expectWholeStatement(
        u"Command9_1"_s,
        u"USE MICROSTICK AS MOUSE (11, 2, 1) - REVERSE_UD, REVERSE_LR, NO_BUTTON"_s);
    chooseAxis(u"RNG"_s, u"MOUSEZ"_s);
    choose(u"ComboScaleValue"_s, u"4"_s);
    tick(u"CHK_Mouse_0"_s, false);
    tick(u"CheckHatUse_8"_s);
    expectWholeStatement(u"Command9_1"_s, u"USE RNG AS MOUSEZ (4, 2) - REVERSE_DIR"_s);
}

TEST_F(MousePageTest, TheStartingValueCanBeTypedWithItsTickAlone)
{
    EXPECT_FALSE(isEnabled(u"TXT_Mouse_2"_s));
    tick(u"CHK_Mouse_0"_s);
    EXPECT_TRUE(isEnabled(u"TXT_Mouse_2"_s));
}

TEST_F(MousePageTest, AnAxisAsMouseRefusesMissingAndTooLargeValues)
{
    showTab(AxisTab);
    write(u"TXT_Mouse_1"_s, QString());
    tick(u"CHK_Mouse_0"_s);
    expectRefusal(u"Command9_1"_s, u"Missing Increment Value"_s,
                  u"You have left out the Increment value which I need to create the statement."_s);
    EXPECT_EQ(composer()->focusWidget()->objectName(), u"TXT_Mouse_1"_s);
    write(u"TXT_Mouse_1"_s, u"2"_s);
    expectRefusal(u"Command9_1"_s, u"Missing some text buddy"_s,
                  u"You haven't provided the Starting value."_s);
    EXPECT_EQ(composer()->focusWidget()->objectName(), u"TXT_Mouse_2"_s);
    write(u"TXT_Mouse_2"_s, u"1"_s);
    choose(u"ComboScaleValue"_s, u"12"_s);
    write(u"TXT_Mouse_1"_s, u"11"_s);
    expectRefusal(u"Command9_1"_s, u"Invalid values"_s,
                  u"The Scale value value multiplied by the Increment value must be less than 128. "
                  "In your case you have: 12 x 11 = 132"_s);
    choose(u"ComboScaleValue"_s, u"11"_s);
    setJoystick(QString());
    click(u"Command9_1"_s);
    EXPECT_EQ(joystick().text(), u"USE MICROSTICK AS MOUSE (11, 11, 1)"_s);
}

TEST_F(MousePageTest, AGroupDrivesTheWholeMouseAndAnAxisOneOfItsAxes)
{
    const QStringList both{ u"REVERSE_UD"_s, u"REVERSE_LR"_s };
    chooseAxis(u"JOYSTICK"_s, u"MOUSE"_s);
    EXPECT_EQ(entries(u"ComboMouseAxes"_s), QStringList{ u"MOUSE"_s });
    EXPECT_EQ(enabledAxisOptions(), both);
    EXPECT_FALSE(isEnabled(u"LabelNoButton"_s));
    chooseAxis(u"MICROSTICK"_s, u"MOUSE"_s);
    EXPECT_EQ(enabledAxisOptions(), both + QStringList{ u"NO_BUTTON"_s });
    EXPECT_TRUE(isEnabled(u"LabelNoButton"_s));
    for (const int i : { 6, 10 }) {
        tick(u"CheckHatUse_%1"_s.arg(i));
    }
    choose(u"ComboAnalogueAxes_8"_s, u"JOYX"_s);
    EXPECT_EQ(entries(u"ComboMouseAxes"_s), (QStringList{ u"MOUSEX"_s, u"MOUSEY"_s, u"MOUSEZ"_s }));
    EXPECT_EQ(enabledAxisOptions(), QStringList{ u"REVERSE_DIR"_s });
    EXPECT_FALSE(isTicked(u"CheckHatUse_6"_s));
    EXPECT_FALSE(isTicked(u"CheckHatUse_10"_s));
    EXPECT_FALSE(isEnabled(u"LabelNoButton"_s));
    choose(u"ComboMouseAxes"_s, u"MOUSEY"_s);
    choose(u"ComboAnalogueAxes_8"_s, u"JOYY"_s);
    EXPECT_EQ(control<QComboBox>(u"ComboMouseAxes"_s).currentText(), u"MOUSEY"_s);
}

TEST_F(MousePageTest, TheWordsOfTheButtonsGoToTheCaretOfTheSelectedDocument)
{
    showTab(ButtonTab);
    expectWord(u"CMD_MouseButton_0"_s, u"MOUSE_LB "_s);
    expectWord(u"CMD_MouseButton_1"_s, u"MOUSE_MB "_s);
    expectWord(u"CMD_MouseButton_2"_s, u"MOUSE_RB "_s);
    expectInMacroFile(u"CMD_MouseButton_0"_s, u"MOUSE_LB "_s);
    expectInMacroFile(u"CMD_MouseButton_1"_s, u"MOUSE_MB "_s);
    expectInMacroFile(u"CMD_MouseButton_2"_s, u"MOUSE_RB "_s);
}

TEST_F(MousePageTest, DisableMouseIsAWordOfTheJoystickFile)
{
    showTab(ButtonTab);
    expectWord(u"CMD_MouseButton_3"_s, u"DISABLE MOUSE "_s);
    setJoystick(u"BTN S4 "_s);
    setMacro(u"Fire = "_s);
    click(u"CMD_MouseButton_3"_s);
    EXPECT_EQ(joystick().text(), u"BTN S4 DISABLE MOUSE "_s);
    EXPECT_EQ(macro().text(), u"Fire = "_s);
    EXPECT_EQ(editor->selected().kind(), DocumentKind::Joystick);
}

TEST_F(MousePageTest, TheStatementForT1HasOneButtonOrTwo)
{
    showTab(ButtonTab);
    expectWholeStatement(u"CMD_MouseButton_4"_s, u"BTN T1 /H MOUSE_LB "_s);
    click(u"OptionMousebuttonStatement_1"_s);
    expectWholeStatement(u"CMD_MouseButton_4"_s,
                         u"BTN T1 /I /H MOUSE_RB \n            /O /H MOUSE_LB "_s);
}

TEST_F(MousePageTest, TheMovesGoToTheCaretWithTheTypedValue)
{
    showTab(MoveTab);
    write(u"TXT_DigitalAxis_8"_s, u"-5"_s);
    expectWord(u"CMD_MouseButton_5"_s, u"MSX(-5) "_s);
    write(u"TXT_DigitalAxis_8"_s, u"5+"_s);
    expectWord(u"CMD_MouseButton_6"_s, u"MSY(5+) "_s);
    expectInMacroFile(u"CMD_MouseButton_5"_s, u"MSX(5+) "_s);
}

TEST_F(MousePageTest, TheMovesRefuseWithoutAValue)
{
    showTab(MoveTab);
    for (const QString &button : { u"CMD_MouseButton_5"_s, u"CMD_MouseButton_6"_s }) {
        expectRefusal(button, u"You're missing the value"_s,
                      u"You need to enter a value - the textbox is empty"_s);
    }
    EXPECT_EQ(composer()->focusWidget()->objectName(), u"TXT_DigitalAxis_8"_s);
}

TEST_F(MousePageTest, TheMoveThatHadTheFocusLastIsShownWhereItGoes)
{
    showTab(MoveTab);
    auto &shown = control<RichTextBox>(u"PreviewText"_s);
    auto &landing = control<QLabel>(u"LabelLanding"_s);
    setJoystick(u"BTN S4 x"_s, 7);
    EXPECT_SOON_EQ(landing.text(), u"You need to enter a value - the textbox is empty"_s);
    write(u"TXT_DigitalAxis_8"_s, u"5+"_s);
    EXPECT_SOON_EQ(shown.toPlainText(), u"MSX(5+) "_s);
    EXPECT_EQ(landing.text(), u"Goes into line 1 of Untitled.tmj"_s);
    control<QWidget>(u"CMD_MouseButton_6"_s).setFocus();
    EXPECT_SOON_EQ(shown.toPlainText(), u"MSY(5+) "_s);
    setMacro(u"Fire = a\nTurn = "_s);
    EXPECT_SOON_EQ(landing.text(), u"Goes into line 2 of Untitled.tmm"_s);
    // A piece of a statement takes no whole statement's place.
    readFromFile(u"USE MTYPE A4"_s);
    EXPECT_TRUE(isEnabled(u"CMD_ReplaceStatement"_s));
    showTab(MoveTab);
    EXPECT_SOON_EQ(isEnabled(u"CMD_ReplaceStatement"_s), false);
}

TEST_F(MousePageTest, ZeroMouseIsAWholeStatement)
{
    showTab(ZeroTab);
    expectWholeStatement(u"CMD_MouseButton_7"_s, u"USE ZERO_MOUSE "_s);
}

TEST_F(MousePageTest, TheStatementsHaveTheColoursOfTyping)
{
    showTab(ButtonTab);
    click(u"CMD_MouseButton_4"_s);
    ASSERT_EQ(joystick().text(), u"BTN T1 /H MOUSE_LB "_s);
    EXPECT_EQ(coloursOf(joystick()).left(18), u"bbbbbb.ss.mmmmmmmm"_s);
    setJoystick(QString());
    write(u"TXT_DigitalAxis_8"_s, u"5"_s);
    click(u"CMD_MouseButton_5"_s);
    ASSERT_EQ(joystick().text(), u"MSX(5) "_s);
    EXPECT_EQ(coloursOf(joystick()).left(6), u"rrrr.r"_s);
}

TEST_F(MousePageTest, EachWholeStatementHasItsColours)
{
    tick(u"CheckHatUse_5"_s);
    const std::tuple<QString, QString, QString> written[] = {
        { u"Command9_0"_s, u"USE MTYPE A1 - REVERSE_UD"_s, u"mmm.mmmmm......mmmmmmmmmm"_s },
        { u"Command9_1"_s, u"USE MICROSTICK AS MOUSE (11, 2)"_s,
          u"mmm.mmmmmmmmmm.mm.mmmmm.r.....r"_s },
        { u"CMD_MouseButton_3"_s, u"DISABLE MOUSE "_s, u"mmmmmmm.mmmmm."_s },
        { u"CMD_MouseButton_7"_s, u"USE ZERO_MOUSE "_s, u"mmm.mmmmmmmmmm."_s },
    };
    for (const auto &[button, text, colours] : written) {
        setJoystick(QString());
        click(button);
        ASSERT_EQ(joystick().text(), text);
        // A blank between two words has the colour of one of them.
        const QString looks = coloursOf(joystick());
        for (qsizetype i = 0; i < text.size(); ++i) {
            EXPECT_TRUE(text[i] == u' ' || looks[i] == colours[i])
                << text.toStdString() << ": " << looks.toStdString();
        }
    }
}

TEST_F(MousePageTest, AProtectedMacroFileStopsEveryButton)
{
    write(u"TXT_DigitalAxis_8"_s, u"5"_s);
    for (const QString &button : { u"Command9_0"_s, u"Command9_1"_s }) {
        expectRefusedWhileProtected(button);
    }
    for (int i = 0; i < 8; ++i) {
        expectRefusedWhileProtected(u"CMD_MouseButton_%1"_s.arg(i));
    }
}

TEST_F(MousePageTest, AProtectedMacroFileThatIsNotSelectedStopsNothing)
{
    editor->documents().setProtected(true);
    click(u"Command9_0"_s);
    EXPECT_EQ(joystick().text(), u"USE MTYPE A1"_s);
}

TEST_F(MousePageTest, StatementsOfTheFileFillTheFieldsAndCanBeReplaced)
{
    readFromFile(u"USE MTYPE A4 - REVERSE_UD"_s);
    EXPECT_EQ(control<QListWidget>(u"MouseList"_s).currentItem()->text(), u"A4"_s);
    EXPECT_TRUE(isTicked(u"CheckHatUse_5"_s));
    EXPECT_FALSE(isTicked(u"CheckHatUse_4"_s));
    chooseType(u"A1"_s);
    expectReplaced(u"USE MTYPE A4 - REVERSE_UD"_s, u"USE MTYPE A1 - REVERSE_UD"_s);

    readFromFile(u"USE ANT AS MOUSEY (3, 40, 7) - REVERSE_DIR"_s);
    EXPECT_EQ(control<QTabWidget>(u"SSTab4"_s).currentIndex(), AxisTab);
    EXPECT_EQ(control<QComboBox>(u"ComboMouseAxes"_s).currentText(), u"MOUSEY"_s);
    EXPECT_EQ(textOf(u"TXT_Mouse_1"_s), u"40"_s);
    EXPECT_EQ(textOf(u"TXT_Mouse_2"_s), u"7"_s);
    tick(u"CHK_Mouse_0"_s, false);
    expectReplaced(u"USE ANT AS MOUSEY (3, 40, 7) - REVERSE_DIR"_s,
                   u"USE ANT AS MOUSEY (3, 40) - REVERSE_DIR"_s);

    readFromFile(u"BTN T1 /I /H MOUSE_RB /O /H MOUSE_LB"_s);
    EXPECT_EQ(control<QTabWidget>(u"SSTab4"_s).currentIndex(), ButtonTab);
    EXPECT_TRUE(control<QAbstractButton>(u"OptionMousebuttonStatement_1"_s).isChecked());
    click(u"OptionMousebuttonStatement_0"_s);
    expectReplaced(u"BTN T1 /I /H MOUSE_RB /O /H MOUSE_LB"_s, u"BTN T1 /H MOUSE_LB"_s);

    readFromFile(u"USE ZERO_MOUSE"_s);
    EXPECT_EQ(control<QTabWidget>(u"SSTab4"_s).currentIndex(), ZeroTab);
}

TEST_F(MousePageTest, TheWizardIsOpenedByItsMenuEntry)
{
    showTab(AdvancedTab);
    QAction *entry = editor->action(u"mnuMouseWizard");
    EXPECT_EQ(isEnabled(u"CMD_MouseWizard"_s), entry->isEnabled());
    entry->setEnabled(true);
    composer()->settingsChanged();
    bool opened = false;
    QObject::connect(entry, &QAction::triggered, entry, [&opened] { opened = true; });
    click(u"CMD_MouseWizard"_s);
    EXPECT_TRUE(opened);
}
