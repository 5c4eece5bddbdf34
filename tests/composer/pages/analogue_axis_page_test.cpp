// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/pages/analogueaxispage.h"
#include "platform/core/paths.h"
#include "platform/core/profile_file.h"
#include "tests/composer/pages/axis_pages.h"

#include <QAbstractButton>
#include <QRadioButton>

using namespace zeph;

namespace {

class AnaloguePage : public test::TestIn<test::AxisPages>
{
protected:
    /// Opens the page at a tab; settings are written before.
    void openTab(int tab)
    {
        openPage(InsertOptions::AnalogueAxis);
        turnTo(u"SSTab2"_s, tab);
    }
    ComposerPage &page() { return *composer()->page(InsertOptions::AnalogueAxis); }
    QString statement()
    {
        const auto made = page().current();
        return made && *made ? (*made)->text() : u"none"_s;
    }
    QString label(const QString &name) { return control<QLabel>(name).text(); }
    QStringList items(const QString &list)
    {
        QStringList texts;
        const auto &found = control<QComboBox>(list);
        for (int i = 0; i < found.count(); ++i) {
            texts.append(found.itemText(i));
        }
        return texts;
    }
    QAbstractButton &cell(int index)
    {
        return control<QAbstractButton>(u"LBL_UseAxes_%1"_s.arg(index));
    }
    /// The cells that are set, as "0+ 22-".
    QString grid()
    {
        QStringList set;
        for (int index = 0; index < 100; ++index) {
            if (const QString sign = cell(index).text(); !sign.isEmpty()) {
                set.append(QString::number(index) + sign);
            }
        }
        return set.join(u' ');
    }
    void clickCells(std::initializer_list<int> cells)
    {
        for (const int index : cells) {
            cell(index).click();
        }
    }
    void offerExtraAxes(int state)
    {
        folder.write(u"Zeph.ini"_s,
                     "[Unsupported]\r\nShowDX9to10=" + QByteArray::number(state) + "\r\n");
    }
    void expectRefused(const QString &title, int button)
    {
        dialogs.answer(title, BoxButton::Ok);
        click(u"CMD_AnaAxes_%1"_s.arg(button));
        EXPECT_EQ(joystick().text(), QString());
    }
    /// What the last box said.
    QString told() { return dialogs.boxes().back().text; }
};

} // namespace

TEST_F(AnaloguePage, HasTheAxesInTheirOrder)
{
    openTab(0);
    const QStringList all{ u"JOYX"_s,      u"JOYY"_s,     u"JOYSTICK"_s, u"THR"_s,       u"ANT"_s,
                           u"RNG"_s,       u"ROTARIES"_s, u"RDDR"_s,     u"LBRK"_s,      u"RBRK"_s,
                           u"TOEBRAKES"_s, u"MIX"_s,      u"MIY"_s,      u"MICROSTICK"_s };
    for (const int list : { 0, 1, 3, 4, 6, 7 }) {
        EXPECT_EQ(items(u"ComboAnalogueAxes_%1"_s.arg(list)), all);
    }
    EXPECT_EQ(items(u"ComboAnalogueAxes_2"_s),
              (QStringList{ u"THR"_s, u"ANT"_s, u"RNG"_s, u"ROTARIES"_s, u"RDDR"_s, u"LBRK"_s,
                            u"RBRK"_s, u"TOEBRAKES"_s }));
    EXPECT_EQ(items(u"ComboSlash_0"_s),
              (QStringList{ u"/U"_s, u"/M"_s, u"/D"_s, u"/I"_s, u"/O"_s }));
    EXPECT_EQ(items(u"ComboSlash_1"_s), (QStringList{ u"/P"_s, u"/R"_s, u"/T"_s, u"None"_s }));
}

TEST_F(AnaloguePage, TheKindOfCurveDecidesItsOptionsAndExample)
{
    openTab(0);
    const auto enabled = [this] {
        QString names;
        for (const QString &name : { u"FrameAnaCurveOptions"_s, u"ComboSlash_0"_s,
                                     u"CheckBeginWithCurve"_s, u"ComboSlash_1"_s }) {
            names += isEnabled(name) ? u'x' : u'.';
        }
        return names;
    };
    EXPECT_EQ(enabled(), u"....");
    EXPECT_EQ(label(u"LabelCurveExample"_s), u"USE CURVE (JOYSTICK, -2)"_s);
    click(u"OptionAnaCurve_1"_s);
    EXPECT_EQ(enabled(), u"xxx.");
    EXPECT_EQ(label(u"LabelCurveExample"_s), u"CURVE /I (THR, 4)\n             /O (THR, 0)"_s);
    click(u"OptionAnaCurve_2"_s);
    EXPECT_EQ(enabled(), u"x..x");
    EXPECT_EQ(label(u"LabelCurveExample"_s),
              u"BTN T6 /P CURVE (RNG, 2)\n               /R CURVE (RNG, 0)"_s);
}

TEST_F(AnaloguePage, ACurveStatementBeginsALineOrGoesOn)
{
    openTab(0);
    click(u"OptionAnaCurve_1"_s);
    choose(u"ComboAnalogueAxes_0"_s, u"THR"_s);
    choose(u"ComboSlash_0"_s, u"/I"_s);
    type(u"TextAnalogueAxes_0"_s, u"4"_s);
    EXPECT_EQ(statement(), u"CURVE /I (THR, 4)"_s);
    click(u"CheckBeginWithCurve"_s);
    choose(u"ComboSlash_0"_s, u"/O"_s);
    type(u"TextAnalogueAxes_0"_s, u"0"_s);
    EXPECT_EQ(statement(), u"/O (THR, 0)"_s);
}

TEST_F(AnaloguePage, ACurveBeyond32IsRefusedAndAnEmptyValueIsNought)
{
    openTab(0);
    addsLineEnd() = false;
    for (const QString &wrong : { u"33"_s, u"-33"_s }) {
        type(u"TextAnalogueAxes_0"_s, wrong);
        expectRefused(u"Ooops!"_s, 0);
        EXPECT_EQ(
            told(),
            u"The curve value you have entered is invalid. It must lie between -32 and 32."_s);
    }
    type(u"TextAnalogueAxes_0"_s, QString());
    click(u"CMD_AnaAxes_0"_s);
    EXPECT_EQ(text(u"TextAnalogueAxes_0"_s), u"0"_s);
    EXPECT_EQ(joystick().text(), u"USE CURVE (JOYX, 0)"_s);
}

TEST_F(AnaloguePage, TheTrimOptionDecidesValueSignAndExample)
{
    openTab(1);
    auto &value = box(u"TextAnalogueAxes_1"_s);
    auto &sign = control<QPushButton>(u"LBL_TrimSign_0"_s);
    const auto layOut = [this] {
        QApplication::processEvents();
    };
    value.setText(u"5"_s);
    layOut();
    EXPECT_GT(sign.x(), value.x());
    EXPECT_TRUE(label(u"LabelTrimExample"_s).contains(u"TRIM (JOYY, 2-)"_s));
    click(u"OptionTrimType_1"_s);
    layOut();
    EXPECT_LT(sign.x(), value.x());
    EXPECT_TRUE(value.isEnabled());
    EXPECT_TRUE(label(u"LabelTrimExample"_s).contains(u"TRIM (RDDR, -2)"_s));
    click(u"OptionTrimType_2"_s);
    EXPECT_EQ(value.text(), u"n/a"_s);
    EXPECT_FALSE(value.isEnabled() || sign.isVisible());
    EXPECT_EQ(statement(), u"TRIM (JOYX, TO_CURRENT)"_s);
    click(u"OptionTrimType_1"_s);
    EXPECT_EQ(value.text(), u"0"_s);
    click(u"OptionTrimType_3"_s);
    EXPECT_FALSE(value.isEnabled());
    EXPECT_EQ(statement(), u"TRIM (JOYX, 0)"_s);
    click(u"OptionTrimType_4"_s);
    EXPECT_EQ(value.text(), u"n/a"_s);
    EXPECT_EQ(statement(), u"HOLDTRIM (JOYX) "_s);
}

TEST_F(AnaloguePage, TheTrimSignIsReversedByAClick)
{
    openTab(1);
    click(u"OptionTrimType_1"_s);
    type(u"TextAnalogueAxes_1"_s, u"7"_s);
    EXPECT_EQ(statement(), u"TRIM (JOYX, 7)"_s);
    click(u"LBL_TrimSign_0"_s);
    EXPECT_EQ(statement(), u"TRIM (JOYX, -7)"_s);
    click(u"LBL_TrimSign_0"_s);
    EXPECT_EQ(statement(), u"TRIM (JOYX, 7)"_s);
}

TEST_F(AnaloguePage, ATrimBeyondItsRangeIsRefused)
{
    openTab(1);
    type(u"TextAnalogueAxes_1"_s, u"128"_s);
    expectRefused(u"Incorrect trim value buddy"_s, 1);
    EXPECT_TRUE(told().contains(u"too large"_s));
    type(u"TextAnalogueAxes_1"_s, u"-5"_s);
    expectRefused(u"Incorrect trim value buddy"_s, 1);
    EXPECT_TRUE(told().contains(u"too small"_s));
    addsLineEnd() = false;
    type(u"TextAnalogueAxes_1"_s, QString());
    click(u"CMD_AnaAxes_1"_s);
    EXPECT_EQ(text(u"TextAnalogueAxes_1"_s), u"0"_s);
    EXPECT_EQ(joystick().text(), u"TRIM (JOYX, 0)"_s);
}

TEST_F(AnaloguePage, LockTakesAValueOrTheLastOneAndUnlockTakesNone)
{
    openTab(2);
    type(u"TextAnalogueAxes_2"_s, u"50"_s);
    EXPECT_EQ(statement(), u"LOCK (JOYX, 50%)"_s);
    click(u"Chk_LASTVALUE"_s);
    EXPECT_EQ(text(u"TextAnalogueAxes_2"_s), QString());
    EXPECT_FALSE(isEnabled(u"TextAnalogueAxes_2"_s));
    EXPECT_EQ(statement(), u"LOCK (JOYX, LASTVALUE)"_s);
    click(u"OptionAnaLOCK_1"_s);
    EXPECT_FALSE(isEnabled(u"TextAnalogueAxes_2"_s) || isEnabled(u"Chk_LASTVALUE"_s));
    EXPECT_EQ(statement(), u"UNLOCK (JOYX)"_s);
    click(u"OptionAnaLOCK_0"_s);
    EXPECT_TRUE(isEnabled(u"Chk_LASTVALUE"_s));
    click(u"Chk_LASTVALUE"_s);
    EXPECT_TRUE(isEnabled(u"TextAnalogueAxes_2"_s));
    addsLineEnd() = false;
    click(u"CMD_AnaAxes_3"_s);
    EXPECT_EQ(text(u"TextAnalogueAxes_2"_s), u"0"_s);
    EXPECT_EQ(joystick().text(), u"LOCK (JOYX, 0%)"_s);
}

TEST_F(AnaloguePage, OfTwoButtonsTheOneWhoseFieldsWereChangedLastIsShown)
{
    openTab(2);
    EXPECT_EQ(statement(), u"DISABLE THR"_s);
    choose(u"ComboAnalogueAxes_3"_s, u"RNG"_s);
    EXPECT_EQ(statement(), u"LOCK (RNG, 0%)"_s);
    choose(u"ComboAnalogueAxes_2"_s, u"ANT"_s);
    EXPECT_EQ(statement(), u"DISABLE ANT"_s);
    turnTo(u"SSTab2"_s, 4);
    EXPECT_EQ(statement(), u"USE REVERSE (JOYX)"_s);
    click(u"OptionAnaREVERSE_1"_s);
    EXPECT_EQ(statement(), u"FORWARD (JOYX)"_s);
}

TEST_F(AnaloguePage, APairIsSwappedWithAPairOnly)
{
    openTab(3);
    const QStringList single{ u"JOYX"_s, u"JOYY"_s, u"THR"_s,  u"ANT"_s, u"RNG"_s,
                              u"RDDR"_s, u"LBRK"_s, u"RBRK"_s, u"MIX"_s, u"MIY"_s };
    const QStringList pairs{ u"JOYSTICK"_s, u"ROTARIES"_s, u"TOEBRAKES"_s, u"MICROSTICK"_s };
    EXPECT_EQ(items(u"ComboAnalogueAxes_5"_s), single);
    for (const QString &pair : pairs) {
        choose(u"ComboAnalogueAxes_4"_s, pair);
        EXPECT_EQ(items(u"ComboAnalogueAxes_5"_s), pairs);
    }
    choose(u"ComboAnalogueAxes_4"_s, u"ANT"_s);
    EXPECT_EQ(items(u"ComboAnalogueAxes_5"_s), single);
    choose(u"ComboAnalogueAxes_5"_s, u"MIX"_s);
    choose(u"ComboAnalogueAxes_4"_s, u"RNG"_s);
    EXPECT_EQ(statement(), u"SWAP (RNG, MIX)"_s);
}

// --- AXES_CONFIG

TEST_F(AnaloguePage, ACellGoesFromUnsetToPlusToMinusToUnset)
{
    openTab(5);
    clickCells({ 34 });
    EXPECT_EQ(grid(), u"34+"_s);
    EXPECT_EQ(cell(34).accessibleName(), u"RDDR drives DirectX axis 5: forward"_s);
    clickCells({ 34 });
    EXPECT_EQ(grid(), u"34-"_s);
    clickCells({ 34 });
    EXPECT_EQ(grid(), QString());
}

TEST_F(AnaloguePage, ADisplacedAxisGoesToTheFirstFreeColumnWithItsSign)
{
    openTab(5);
    clickCells({ 0, 0, 11, 22, 33 });
    EXPECT_EQ(grid(), u"0- 11+ 22+ 33+"_s);
    clickCells({ 40 });
    EXPECT_EQ(grid(), u"4- 11+ 22+ 33+ 40+"_s);
}

TEST_F(AnaloguePage, WithEightColumnsFullADisplacedAxisIsLost)
{
    openTab(5);
    click(u"OptionAnaHotas_4"_s);
    click(u"Command3"_s);
    EXPECT_EQ(grid(), u"0+ 11+ 22+ 33+ 44+ 55+ 66+ 77+"_s);
    clickCells({ 80 });
    EXPECT_EQ(grid(), u"11+ 22+ 33+ 44+ 55+ 66+ 77+ 80+"_s);
    EXPECT_FALSE(cell(88).isEnabled());
}

TEST_F(AnaloguePage, TheCommonConfigurationsSetTheWholeGrid)
{
    openTab(5);
    const QStringList grids{ u"0+ 11+ 22+"_s, u"0+ 11+ 22-"_s, u"0+ 11+ 22+ 33+"_s,
                             u"0+ 11+ 22+ 43+"_s };
    clickCells({ 95 });
    for (int option = 0; option < grids.size(); ++option) {
        click(u"OptionAnaHotas_%1"_s.arg(option));
        click(u"Command3"_s);
        EXPECT_EQ(grid(), grids[option]);
    }
    EXPECT_EQ(statement(), u"USE AXES_CONFIG (1, JOYX), (2, JOYY), (3, THR), (4, RNG)"_s);
}

TEST_F(AnaloguePage, TheArrowKeysGoFromCellToCell)
{
    openTab(5);
    cell(0).setFocus();
    const auto press = [](std::initializer_list<Qt::Key> keys) {
        for (const Qt::Key key : keys) {
            QTest::keyClick(QApplication::focusWidget(), key);
        }
    };
    press({ Qt::Key_Left, Qt::Key_Up, Qt::Key_Down, Qt::Key_Down, Qt::Key_Right });
    EXPECT_EQ(QApplication::focusWidget(), &cell(21));
    press({ Qt::Key_Space });
    EXPECT_EQ(grid(), u"21+"_s);
    // A single cell is a stop of Tab.
    EXPECT_EQ(cell(21).focusPolicy(), Qt::StrongFocus);
    EXPECT_EQ(cell(0).focusPolicy(), Qt::ClickFocus);
    cell(27).setFocus(Qt::MouseFocusReason);
    cell(27).click();
    press({ Qt::Key_Right });
    EXPECT_EQ(QApplication::focusWidget(), &cell(27));
}

TEST_F(AnaloguePage, Axes1And2AreNeeded)
{
    openTab(5);
    clickCells({ 0 });
    expectRefused(u"Axes 1 and 2 are missing"_s, 7);
    EXPECT_EQ(told(),
              u"You must assign Cougar axes to DirectX axes 1 and 2, as this is a requirement of "
              u"DirectX that to see a joystick, it must see axes 1 and 2."_s);
}

TEST_F(AnaloguePage, Axes9And10AreNotOfferedUsually)
{
    openTab(5);
    EXPECT_FALSE(control<QCheckBox>(u"CheckDX9to10"_s).isVisible());
    EXPECT_FALSE(isEnabled(u"LBL_DirectXAxis_8"_s));
    EXPECT_TRUE(isEnabled(u"LBL_DirectXAxis_7"_s));
}

TEST_F(AnaloguePage, Axes9And10AreUsedWhileTheTickIsSetWhichIsKept)
{
    offerExtraAxes(1);
    openTab(5);
    auto &tick = control<QCheckBox>(u"CheckDX9to10"_s);
    EXPECT_TRUE(tick.isVisible());
    EXPECT_FALSE(tick.isChecked() || cell(8).isEnabled());
    tick.click();
    EXPECT_EQ(ProfileFile(paths.iniPath).text(u"Unsupported", u"ShowDX9to10"), u"2"_s);
    EXPECT_TRUE(cell(8).isEnabled() && isEnabled(u"LBL_DirectXAxis_9"_s));
    clickCells({ 0, 11, 29 });
    EXPECT_EQ(statement(), u"USE AXES_CONFIG (1, JOYX), (2, JOYY), (10, THR)"_s);
    tick.click();
    EXPECT_EQ(ProfileFile(paths.iniPath).text(u"Unsupported", u"ShowDX9to10"), u"1"_s);
    EXPECT_EQ(grid(), u"0+ 11+"_s);
}

TEST_F(AnaloguePage, Axes9And10AreInUseWhereTheyWereBefore)
{
    offerExtraAxes(2);
    openTab(5);
    EXPECT_TRUE(control<QCheckBox>(u"CheckDX9to10"_s).isChecked());
    clickCells({ 99 });
    EXPECT_EQ(grid(), u"99+"_s);
}

TEST_F(AnaloguePage, Axes9And10AreReadWhereTheyAreOffered)
{
    const QString nine = u"USE AXES_CONFIG (1, JOYX), (2, JOYY), (9, -THR)"_s;
    openTab(5);
    EXPECT_FALSE(page().read(nine));
    EXPECT_EQ(grid(), QString());
    settings.of<ComposerSettings>().ShowDX9to10 = 1;
    EXPECT_TRUE(page().read(nine));
    EXPECT_EQ(grid(), u"0+ 11+ 28-"_s);
    EXPECT_TRUE(control<QCheckBox>(u"CheckDX9to10"_s).isChecked());
    EXPECT_EQ(statement(), nine);
}

// --- THR_RANGE

TEST_F(AnaloguePage, TheRangeIsShownAsItIsTyped)
{
    openTab(6);
    type(u"TextAnalogueAxes_3"_s, u"5"_s);
    type(u"TextAnalogueAxes_4"_s, u"90"_s);
    EXPECT_EQ(label(u"LabelTHRrange"_s), u"THR_RANGE (5%, 90%)"_s);
    click(u"CheckTHRrange"_s);
    EXPECT_EQ(label(u"LabelTHRrange"_s), u"USE THR_RANGE (5%, 90%)"_s);
    type(u"TextAnalogueAxes_4"_s, u"5"_s);
    expectRefused(u"This statement will fail to compile buddy"_s, 8);
    EXPECT_TRUE(told().startsWith(u"The statement is invalid."_s));
}

TEST_F(AnaloguePage, TheThrottleWizardIsStartedInItsFolder)
{
    openTab(6);
    expectRefused(u"I can't find ThrottleRange.exe buddy"_s, 9);
    folder.write(u"throttlerange.EXE"_s, "MZ");
    paths.hotasFolder = withClosingSeparator(folder.path());
    click(u"CMD_AnaAxes_9"_s);
    ASSERT_EQ(launcher.launches.size(), 1);
    EXPECT_EQ(launcher.launches.first().program, folder.file(u"throttlerange.EXE"_s));
    EXPECT_EQ(launcher.launches.first().folder, paths.hotasFolder);
    EXPECT_EQ(launcher.launches.first().style, WindowStyle::NormalFocus);
    EXPECT_EQ(status.text(), u" Over to the TM applications for this ..."_s);
}

TEST_F(AnaloguePage, AWizardThatDoesNotStartIsTold)
{
    openTab(6);
    paths.hotasFolder = withClosingSeparator(folder.path());
    folder.write(u"ThrottleRange.exe"_s, "MZ");
    launcher.onStart = [](const Launch &) {
        return Expected<void, QString>(Unexpected(u"no such thing"_s));
    };
    expectRefused(u"Unable to run the Thrustmaster software"_s, 9);
    EXPECT_EQ(told(), u"no such thing"_s);
}

TEST_F(AnaloguePage, TheMeasuredValuesAreRetrieved)
{
    openTab(6);
    paths.hotasFolder = withClosingSeparator(folder.path());
    expectRefused(u"I can't find the wizard's generated data"_s, 10);
    folder.write(u"ThrottleRange.ini"_s, "[Throttle]\r\nAFBPercent=85\r\n");
    click(u"CMD_AnaAxes_10"_s);
    EXPECT_EQ(label(u"LabelTHRrange"_s), u"THR_RANGE (0%, 85%)"_s);
    folder.write(u"ThrottleRange.ini"_s, "[throttle]\r\nMILPercent=12\r\n");
    click(u"CMD_AnaAxes_10"_s);
    EXPECT_EQ(label(u"LabelTHRrange"_s), u"THR_RANGE (12%, 90%)"_s);
}
