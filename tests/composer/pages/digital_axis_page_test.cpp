// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/pages/band_bar.h"
#include "composer/pages/digitalaxispage.h"
#include "tests/composer/pages/axis_pages.h"

#include <QDropEvent>
#include <QMimeData>
#include <QRadioButton>
#include <QSlider>

using namespace zeph;

namespace {

class DigitalPage : public test::TestIn<test::AxisPages>
{
protected:
    void SetUp() override { openPage(InsertOptions::DigitalAxis); }
    ComposerPage &page() { return *composer()->page(InsertOptions::DigitalAxis); }
    QString label(const QString &name) { return control<QLabel>(name).text(); }
    void applyType5(const QString &count)
    {
        turnTo(u"SSTab3"_s, 4);
        type(u"TXT_DigitalAxis_3"_s, count);
        click(u"Command15_0"_s);
    }
    void applyType6(const QString &count)
    {
        turnTo(u"SSTab3"_s, 5);
        type(u"TXT_DigitalAxis_6"_s, count);
        click(u"Command15_2"_s);
    }
    QString statement()
    {
        const auto made = page().current();
        return made && *made ? (*made)->text() : u"none"_s;
    }
    QSlider &slider() { return control<QSlider>(u"SliderType5"_s); }
    BandBar &bar() { return control<BandBar>(u"LBL_Type5"_s); }
    QPoint at(double percent) { return { qRound(bar().placeOf(percent)), bar().height() / 2 }; }
    QString chosen() { return control<QComboBox>(u"ComboBandSelect"_s).currentText(); }
    QString borders() { return text(u"TXT_DigitalAxis_4"_s) + u' ' + text(u"TXT_DigitalAxis_5"_s); }
    void expectRefused(const QString &title, const QString &button)
    {
        dialogs.answer(title, BoxButton::Ok);
        click(button);
        EXPECT_EQ(joystick().text(), QString());
    }
};

} // namespace

TEST_F(DigitalPage, HasTheAxesAndModifiersInTheirOrder)
{
    const QStringList axes{ u"JOYX"_s, u"JOYY"_s, u"THR"_s,  u"ANT"_s, u"RNG"_s,
                            u"RDDR"_s, u"LBRK"_s, u"RBRK"_s, u"MIX"_s, u"MIY"_s };
    const auto items = [](const QComboBox &list) {
        QStringList texts;
        for (int i = 0; i < list.count(); ++i) {
            texts.append(list.itemText(i));
        }
        return texts;
    };
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(items(control<QComboBox>(u"Combo_DigitalAxis_%1"_s.arg(i))), axes);
    }
    EXPECT_EQ(items(control<QComboBox>(u"ComboSlashList"_s)),
              (QStringList{ u"none"_s, u"/U"_s, u"/M"_s, u"/D"_s, u"/I"_s, u"/O"_s }));
}

TEST_F(DigitalPage, TheAxisNamesTheTickAndTheKeys)
{
    choose(u"Combo_DigitalAxis_0"_s, u"RNG"_s);
    EXPECT_EQ(label(u"LabelKey_0"_s), u"Range knob: CCW to CW character"_s);
    EXPECT_EQ(label(u"LabelKey_1"_s), u"Range: CW to CCW character"_s);
    EXPECT_EQ(control<QCheckBox>(u"CheckUMDIOdigital"_s).text(), u"Don't insert with RNG"_s);
    choose(u"Combo_DigitalAxis_1"_s, u"MIY"_s);
    EXPECT_EQ(label(u"LabelKey_3"_s),
              u"Characters to generate when the Microstick Y axis is moved from Down to Up"_s);
    EXPECT_EQ(control<QCheckBox>(u"CheckUMDIOdigital"_s).text(), u"Don't insert with RNG"_s);
    turnTo(u"SSTab3"_s, 1);
    EXPECT_EQ(control<QCheckBox>(u"CheckUMDIOdigital"_s).text(), u"Don't insert with MIY"_s);
    choose(u"Combo_DigitalAxis_2"_s, u"THR"_s);
    EXPECT_EQ(label(u"LabelKey_4"_s), u"Throttle Back: Held character"_s);
    EXPECT_EQ(label(u"LabelKey_6"_s), u"Throttle Forwards: Held character"_s);
    choose(u"Combo_DigitalAxis_3"_s, u"THR"_s);
    EXPECT_EQ(label(u"LabelKey_7"_s), u"Throttle Back: Pulsed character"_s);
    EXPECT_EQ(label(u"LabelKey_9"_s), u"Throttle Forwards: Pulsed character"_s);
    choose(u"Combo_DigitalAxis_5"_s, u"RNG"_s);
    EXPECT_EQ(label(u"LabelKey_11"_s), u" Range knob: CCW to CW character "_s);
    EXPECT_EQ(label(u"LabelKey_12"_s), u" Range knob: CW to CCW character "_s);
}

TEST_F(DigitalPage, ComesToTheFrontAtType1WithItsAxis)
{
    turnTo(u"SSTab3"_s, 3);
    composer()->showPage(InsertOptions::Templates);
    composer()->showPage(InsertOptions::DigitalAxis);
    EXPECT_EQ(control<QTabWidget>(u"SSTab3"_s).currentIndex(), 0);
    EXPECT_EQ(QApplication::focusWidget(), &control<QComboBox>(u"Combo_DigitalAxis_0"_s));
}

TEST_F(DigitalPage, ATabOfTypes1To4BringsTheFocusToItsAxisAndMakesItsButtonTheDefault)
{
    for (int tab = 3; tab >= 0; --tab) {
        turnTo(u"SSTab3"_s, tab);
        EXPECT_EQ(QApplication::focusWidget(),
                  &control<QComboBox>(u"Combo_DigitalAxis_%1"_s.arg(tab)));
        for (int button = 0; button < 6; ++button) {
            EXPECT_EQ(control<QPushButton>(u"CMD_DigitalAxis_%1"_s.arg(button)).isDefault(),
                      button == tab);
        }
    }
}

TEST_F(DigitalPage, EnterPressesTheDefaultButton)
{
    addsLineEnd() = false;
    type(u"TXT_DigitalAxis_0"_s, u"6"_s);
    type(u"RTB_digitalAxis_0"_s, u"r"_s);
    type(u"RTB_digitalAxis_1"_s, u"l"_s);
    QTest::keyClick(&box(u"RTB_digitalAxis_1"_s), Qt::Key_Return);
    EXPECT_EQ(joystick().text(), u"JOYX 1 6 r l  "_s);
}

TEST_F(DigitalPage, EmptyFieldsAreRefused)
{
    const QString missing = u"Missing some text buddy"_s;
    for (int type = 0; type < 4; ++type) {
        expectRefused(missing, u"CMD_DigitalAxis_%1"_s.arg(type));
    }
    EXPECT_EQ(
        dialogs.boxes().back().text,
        u"You have left out one of the required parameters I need to create the statement."_s);
}

TEST_F(DigitalPage, AnOddNumberWithACentreIsRefused)
{
    type(u"TXT_DigitalAxis_0"_s, u"5"_s);
    type(u"RTB_digitalAxis_0"_s, u"r"_s);
    type(u"RTB_digitalAxis_1"_s, u"l"_s);
    type(u"RTB_digitalAxis_2"_s, u"c"_s);
    expectRefused(u"Bands must be even"_s, u"CMD_DigitalAxis_0"_s);
    EXPECT_EQ(dialogs.boxes().back().text,
              u"The number of character/macros (ie. Number of bands) must be even when providing a "
              u"centre character buddy"_s);
}

// --- The bands

TEST_F(DigitalPage, OneToFiftyBandsCanBeApplied)
{
    for (const QString &wrong : { u"0"_s, u"51"_s, u"-3"_s, u"none"_s, QString() }) {
        dialogs.answer(u"Zeph"_s, BoxButton::Ok);
        applyType5(wrong);
        EXPECT_EQ(dialogs.boxes().back().text, u"The number of bands is invalid"_s);
        EXPECT_FALSE(isEnabled(u"CMD_DigitalAxis_4"_s));
        EXPECT_TRUE(isEnabled(u"Command15_0"_s));
    }
    applyType5(u"50"_s);
    EXPECT_EQ(control<QComboBox>(u"ComboBandSelect"_s).count(), 50);
    EXPECT_TRUE(isEnabled(u"CMD_DigitalAxis_4"_s));
}

TEST_F(DigitalPage, NothingButTheNumberCanBeGivenUntilItIsApplied)
{
    const QStringList applied{ u"ComboBandSelect"_s,    u"OPT_Type5_0"_s,
                               u"OPT_Type5_1"_s,        u"TXT_DigitalAxis_4"_s,
                               u"TXT_DigitalAxis_5"_s,  u"SliderType5"_s,
                               u"RTB_digitalAxis_10"_s, u"CheckForceMacros_2"_s,
                               u"CMD_DigitalAxis_4"_s,  u"Command15_1"_s };
    turnTo(u"SSTab3"_s, 4);
    const auto expect = [&](bool isApplied) {
        for (const QString &name : applied) {
            EXPECT_EQ(isEnabled(name), isApplied) << name.toStdString();
        }
        EXPECT_EQ(isEnabled(u"Command15_0"_s), !isApplied);
        EXPECT_EQ(box(u"TXT_DigitalAxis_3"_s).isReadOnly(), isApplied);
        EXPECT_EQ(bar().isVisible(), isApplied);
    };
    expect(false);
    applyType5(u"3"_s);
    expect(true);
    EXPECT_EQ(chosen(), u"Band 1"_s);
    EXPECT_EQ(borders(), u"0 33"_s);
    EXPECT_TRUE(control<QRadioButton>(u"OPT_Type5_0"_s).isChecked());
    type(u"RTB_digitalAxis_10"_s, u"a"_s);
    click(u"CheckForceMacros_2"_s);
    click(u"Command15_1"_s);
    expect(false);
    EXPECT_EQ(borders(), u" "_s);
    EXPECT_EQ(text(u"TXT_DigitalAxis_3"_s) + text(u"RTB_digitalAxis_10"_s), QString());
    EXPECT_FALSE(control<QCheckBox>(u"CheckForceMacros_2"_s).isChecked());
    EXPECT_EQ(control<QComboBox>(u"ComboBandSelect"_s).count(), 0);
    EXPECT_EQ(QApplication::focusWidget(), &box(u"TXT_DigitalAxis_3"_s));
}

TEST_F(DigitalPage, TheBandsOutliveAnInsertionAndHidingTheWindow)
{
    applyType5(u"2"_s);
    type(u"RTB_digitalAxis_10"_s, u"a"_s);
    click(u"CMD_DigitalAxis_4"_s);
    click(u"Command6"_s);
    open();
    EXPECT_EQ(statement(), u"JOYX 5 2 (0 50 100) a ^ "_s);
}

TEST_F(DigitalPage, ChoosingABandShowsItsBordersAndItsKeyWithTheFocus)
{
    applyType5(u"7"_s);
    type(u"RTB_digitalAxis_10"_s, u"first"_s);
    choose(u"ComboBandSelect"_s, u"Band 3"_s);
    EXPECT_EQ(borders(), u"29 43"_s);
    EXPECT_EQ(text(u"RTB_digitalAxis_10"_s), QString());
    EXPECT_EQ(slider().value(), 29);
    choose(u"ComboBandSelect"_s, u"Band 1"_s);
    EXPECT_EQ(text(u"RTB_digitalAxis_10"_s), u"first"_s);
    EXPECT_EQ(box(u"RTB_digitalAxis_10"_s).cursorPosition(), 5);
    EXPECT_EQ(QApplication::focusWidget(), &box(u"RTB_digitalAxis_10"_s));
}

TEST_F(DigitalPage, TheArrowKeysInTheKeyBoxGoToTheNextBand)
{
    applyType5(u"3"_s);
    QTest::keyClick(&box(u"RTB_digitalAxis_10"_s), Qt::Key_Down);
    EXPECT_EQ(chosen(), u"Band 2"_s);
    QTest::keyClick(&box(u"RTB_digitalAxis_10"_s), Qt::Key_Down);
    QTest::keyClick(&box(u"RTB_digitalAxis_10"_s), Qt::Key_Down);
    EXPECT_EQ(chosen(), u"Band 3"_s);
    QTest::keyClick(&box(u"RTB_digitalAxis_10"_s), Qt::Key_Up);
    EXPECT_EQ(chosen(), u"Band 2"_s);
}

TEST_F(DigitalPage, TheSliderMovesTheChosenBorderUpToItsNeighbours)
{
    applyType5(u"4"_s);
    choose(u"ComboBandSelect"_s, u"Band 2"_s);
    slider().setValue(40);
    EXPECT_EQ(borders(), u"40 50"_s);
    slider().setValue(90);
    EXPECT_EQ(borders(), u"49 50"_s);
    EXPECT_EQ(slider().value(), 49);
    click(u"OPT_Type5_1"_s);
    EXPECT_EQ(slider().value(), 50);
    EXPECT_EQ(QApplication::focusWidget(), &slider());
    slider().setValue(10);
    EXPECT_EQ(slider().value(), 50);
    slider().setValue(99);
    EXPECT_EQ(borders(), u"49 74"_s);
    EXPECT_EQ(statement(), u"JOYX 5 4 (0 49 74 75 100) ^ ^ ^ ^ "_s);
}

TEST_F(DigitalPage, TheEndsOfASingleBandMoveToo)
{
    applyType5(u"1"_s);
    slider().setValue(20);
    click(u"OPT_Type5_1"_s);
    slider().setValue(70);
    EXPECT_EQ(statement(), u"JOYX 5 1 (20 70) ^ "_s);
    slider().setValue(0);
    EXPECT_EQ(borders(), u"20 21"_s);
}

TEST_F(DigitalPage, ABorderThatIsTypedMovesWhenItsBoxIsLeft)
{
    applyType5(u"2"_s);
    auto &high = box(u"TXT_DigitalAxis_5"_s);
    high.setFocus();
    EXPECT_TRUE(control<QRadioButton>(u"OPT_Type5_1"_s).isChecked());
    EXPECT_EQ(QApplication::focusWidget(), &high);
    type(u"TXT_DigitalAxis_5"_s, u"30"_s);
    QTest::keyClick(&high, Qt::Key_Return);
    EXPECT_EQ(statement(), u"JOYX 5 2 (0 30 100) ^ ^ "_s);
    EXPECT_EQ(slider().value(), 30);
    EXPECT_EQ(joystick().text(), QString());
    type(u"TXT_DigitalAxis_5"_s, u"300"_s);
    box(u"TXT_DigitalAxis_4"_s).setFocus();
    EXPECT_EQ(borders(), u"0 99"_s);
    EXPECT_TRUE(control<QRadioButton>(u"OPT_Type5_0"_s).isChecked());
}

TEST_F(DigitalPage, AClickOnTheBarChoosesTheBandAndHoveringTellsItsKey)
{
    applyType5(u"4"_s);
    type(u"RTB_digitalAxis_10"_s, u"Gear"_s);
    QTest::mouseClick(&bar(), Qt::LeftButton, {}, at(60));
    EXPECT_EQ(chosen(), u"Band 3"_s);
    EXPECT_EQ(QApplication::focusWidget(), &box(u"RTB_digitalAxis_10"_s));
    QTest::mouseMove(&bar(), at(10));
    EXPECT_EQ(bar().toolTip(), u"Gear"_s);
    QTest::mouseMove(&bar(), at(60));
    EXPECT_EQ(bar().toolTip(), QString());
}

TEST_F(DigitalPage, ABorderCanBeDraggedOnTheBar)
{
    applyType5(u"4"_s);
    QTest::mousePress(&bar(), Qt::LeftButton, {}, at(75));
    EXPECT_EQ(chosen(), u"Band 4"_s);
    QTest::mouseMove(&bar(), at(60));
    EXPECT_EQ(statement(), u"JOYX 5 4 (0 25 50 60 100) ^ ^ ^ ^ "_s);
    QTest::mouseMove(&bar(), at(20));
    EXPECT_EQ(borders(), u"51 100"_s);
    QTest::mouseRelease(&bar(), Qt::LeftButton, {}, at(20));
    QTest::mouseMove(&bar(), at(90));
    EXPECT_EQ(borders(), u"51 100"_s);
    QTest::mousePress(&bar(), Qt::LeftButton, {}, at(100));
    QTest::mouseMove(&bar(), at(90));
    QTest::mouseRelease(&bar(), Qt::LeftButton, {}, at(90));
    EXPECT_EQ(borders(), u"51 90"_s);
}

TEST_F(DigitalPage, TheBarIsMovedByKeys)
{
    applyType5(u"4"_s);
    bar().setFocus(Qt::TabFocusReason);
    QTest::keyClick(&bar(), Qt::Key_Right);
    EXPECT_EQ(borders(), u"1 25"_s);
    QTest::keyClick(&bar(), Qt::Key_End);
    QTest::keyClick(&bar(), Qt::Key_Left);
    EXPECT_EQ(borders(), u"1 24"_s);
    QTest::keyClick(&bar(), Qt::Key_Down);
    EXPECT_EQ(chosen(), u"Band 2"_s);
    QTest::keyClick(&bar(), Qt::Key_Home);
    QTest::keyClick(&bar(), Qt::Key_Right);
    EXPECT_EQ(borders(), u"25 50"_s);
    QTest::keyClick(&bar(), Qt::Key_Up);
    QTest::keyClick(&bar(), Qt::Key_Up);
    EXPECT_EQ(chosen(), u"Band 1"_s);
    EXPECT_EQ(QApplication::focusWidget(), &bar());
    EXPECT_EQ(bar().accessibleDescription(),
              u"Band 1 of 4, from 1 to 25 percent of the axis; the arrow keys move its low end"_s);
}

TEST_F(DigitalPage, OnlyAnOddNumberOfBandsHasACentreInType6)
{
    applyType6(u"4"_s);
    EXPECT_FALSE(isEnabled(u"RTB_digitalAxis_13"_s));
    type(u"RTB_digitalAxis_11"_s, u"u"_s);
    type(u"RTB_digitalAxis_12"_s, u"d"_s);
    EXPECT_EQ(statement(), u"JOYX 6 4 (0 25 50 75 100) u d "_s);
    click(u"Command15_3"_s);
    EXPECT_EQ(text(u"RTB_digitalAxis_11"_s), QString());
    applyType6(u"5"_s);
    EXPECT_TRUE(isEnabled(u"RTB_digitalAxis_13"_s));
    type(u"RTB_digitalAxis_13"_s, u"c"_s);
    EXPECT_EQ(statement(), u"JOYX 6 5 (0 20 40 60 80 100) ^ ^ c "_s);
    control<QSlider>(u"SliderType6"_s).setValue(7);
    EXPECT_EQ(text(u"TXT_DigitalAxis_7"_s) + u' ' + text(u"TXT_DigitalAxis_9"_s), u"7 20"_s);
    choose(u"ComboType6Band"_s, u"Band 5"_s);
    EXPECT_EQ(text(u"TXT_DigitalAxis_7"_s) + u' ' + text(u"TXT_DigitalAxis_9"_s), u"80 100"_s);
}

// --- The key boxes

TEST_F(DigitalPage, AMouseButtonWithShiftWritesAMovement)
{
    auto &key = box(u"RTB_digitalAxis_0"_s);
    key.setText(u"a "_s);
    QTest::mouseClick(&key, Qt::LeftButton, Qt::ShiftModifier);
    EXPECT_EQ(key.text(), u"a MSX(value)"_s);
    EXPECT_EQ(key.selectedText(), u"value"_s);
    QTest::keyClicks(&key, u"20"_s);
    QTest::mouseClick(&key, Qt::RightButton, Qt::ShiftModifier);
    EXPECT_EQ(key.text(), u"a MSX(20)MSY(value)"_s);
    EXPECT_EQ(key.selectedText(), u"value"_s);
}

TEST_F(DigitalPage, AKeyBoxIsHighlightedAndWhollySelectedWhileItHasTheFocus)
{
    auto &key = box(u"RTB_digitalAxis_0"_s);
    const QColor usual = key.palette().base().color();
    key.setText(u"Gear Flaps"_s);
    QTest::mouseClick(&key, Qt::LeftButton);
    EXPECT_EQ(key.selectedText(), u"Gear Flaps"_s);
    EXPECT_NE(key.palette().base().color(), usual);
    QTest::mouseClick(&key, Qt::LeftButton);
    EXPECT_EQ(key.selectedText(), QString());
    box(u"RTB_digitalAxis_1"_s).setFocus();
    EXPECT_EQ(key.palette().base().color(), usual);
}

TEST_F(DigitalPage, AMacroThatIsDroppedGoesToTheEnd)
{
    auto &key = box(u"RTB_digitalAxis_0"_s);
    key.setText(u"a"_s);
    key.setCursorPosition(0);
    QMimeData macro;
    macro.setText(u" Gear "_s);
    QDropEvent drop(QPointF(2, 2), Qt::CopyAction, &macro, Qt::LeftButton, {});
    QApplication::sendEvent(&key, &drop);
    EXPECT_TRUE(drop.isAccepted());
    EXPECT_EQ(key.text(), u"a Gear "_s);
}

// --- Reading

TEST_F(DigitalPage, AStatementOfTheFileFillsThePageAndTurnsToItsTab)
{
    composer()->showPage(InsertOptions::Templates);
    setJoystick(u"BTN S1 a\nTHR 5 3 (0 20 80 95) Slow ^ Fast - FORCE_MACROS\n"_s, 12);
    click(u"CMD_ReadStatement"_s);
    EXPECT_EQ(control<QTabWidget>(u"SSTab1"_s).currentIndex(), int(InsertOptions::DigitalAxis));
    EXPECT_EQ(control<QTabWidget>(u"SSTab3"_s).currentIndex(), 4);
    EXPECT_EQ(text(u"TXT_DigitalAxis_3"_s), u"3"_s);
    EXPECT_EQ(text(u"RTB_digitalAxis_10"_s), u"Slow"_s);
    EXPECT_TRUE(control<QCheckBox>(u"CheckForceMacros_2"_s).isChecked());
    choose(u"ComboBandSelect"_s, u"Band 2"_s);
    EXPECT_EQ(borders(), u"20 80"_s);
    type(u"RTB_digitalAxis_10"_s, u"Cruise"_s);
    click(u"CMD_ReplaceStatement"_s);
    EXPECT_EQ(joystick().text(),
              u"BTN S1 a\nTHR 5 3 (0 20 80 95) Slow Cruise Fast  - FORCE_MACROS\n"_s);
    joystick().undo();
    EXPECT_EQ(joystick().text(), u"BTN S1 a\nTHR 5 3 (0 20 80 95) Slow ^ Fast - FORCE_MACROS\n"_s);
}

TEST_F(DigitalPage, WhatItDoesNotMakeIsNotReadAndChangesNothing)
{
    applyType5(u"2"_s);
    const QString before = statement();
    EXPECT_FALSE(page().read(u"USE MTYPE A1"_s));
    EXPECT_FALSE(page().read(u"THR 5 3 (0 20 80) a b c"_s));
    EXPECT_EQ(statement(), before);
}
