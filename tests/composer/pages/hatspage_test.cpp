// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "tests/composer/pages/page_fixture.h"

#include <QTabWidget>

using namespace zeph;

namespace {

class HatsPageTest : public test::PageTest
{
protected:
    void SetUp() override { openPage(InsertOptions::Hats); }
    void chooseHat(const QString &hat, const QString &role)
    {
        choose(u"ComboHatAs"_s, hat);
        choose(u"ComboHatUSE"_s, role);
    }
    /// The boxes that are enabled, by their captions in the page's order.
    QStringList enabledOptions()
    {
        QStringList words;
        for (const int i : { 0, 3, 1, 9, 2 }) {
            const auto &box = control<QCheckBox>(u"CheckHatUse_%1"_s.arg(i));
            if (box.isEnabled()) {
                words.append(box.text());
            }
        }
        return words;
    }
};

const QString wrongRate =
    u"When assigning a hat to control the mouse, the rate value must be from 1 to 127. The value "
    "you've entered is invalid, and the statement will not compile or download, and that would "
    "just be a crying shame basically, after all the hard work you've put into this file."_s;

} // namespace

TEST_F(HatsPageTest, TheListsHaveTheirEntriesInOrder)
{
    EXPECT_EQ(entries(u"ComboHatAs"_s),
              (QStringList{ u"HAT1"_s, u"HAT2"_s, u"HAT3"_s, u"HAT4"_s, u"RADIOSWITCH"_s }));
    EXPECT_EQ(entries(u"ComboHatUSE"_s),
              (QStringList{ u"MOUSE"_s, u"POV"_s, u"ARROWKEYS"_s, u"KEYPAD"_s }));
    EXPECT_EQ(entries(u"ComboHatForcedCorners"_s),
              (QStringList{ u"HAT1"_s, u"HAT2"_s, u"HAT3"_s, u"HAT4"_s }));
}

TEST_F(HatsPageTest, TheFocusIsOnTheFirstControl)
{
    EXPECT_EQ(composer()->focusWidget()->objectName(), u"ComboHatAs"_s);
}

TEST_F(HatsPageTest, ARoleIsAWholeStatement)
{
    chooseHat(u"HAT1"_s, u"POV"_s);
    expectWholeStatement(u"CMDHatViewInsert_0"_s, u"USE HAT1 AS POV"_s);
}

TEST_F(HatsPageTest, ForcedCornersIsAWholeStatement)
{
    control<QTabWidget>(u"SSTabHats"_s).setCurrentIndex(1);
    choose(u"ComboHatForcedCorners"_s, u"HAT3"_s);
    expectWholeStatement(u"CMDHatViewInsert_1"_s, u"USE HAT3 FORCED_CORNERS"_s);
}

TEST_F(HatsPageTest, ThreeTicksAreThreeOptionsWithCommas)
{
    chooseHat(u"HAT2"_s, u"KEYPAD"_s);
    for (const int i : { 0, 3, 9 }) {
        tick(u"CheckHatUse_%1"_s.arg(i));
    }
    click(u"CMDHatViewInsert_0"_s);
    EXPECT_EQ(joystick().text(), u"USE HAT2 AS KEYPAD - REVERSE_UD, REVERSE_LR, NOHOLD"_s);
}

TEST_F(HatsPageTest, TheStatementHasTheColoursOfTyping)
{
    chooseHat(u"HAT1"_s, u"MOUSE"_s);
    write(u"TXT_hatrate"_s, u"20"_s);
    tick(u"CheckHatUse_0"_s);
    click(u"CMDHatViewInsert_0"_s);
    ASSERT_EQ(joystick().text(), u"USE HAT1 AS MOUSE (20) - REVERSE_UD"_s);
    EXPECT_EQ(coloursOf(joystick()), u"mmm......mm.mmmmm.r..r...mmmmmmmmmm"_s);
    control<QTabWidget>(u"SSTabHats"_s).setCurrentIndex(1);
    setJoystick(QString());
    click(u"CMDHatViewInsert_1"_s);
    ASSERT_EQ(joystick().text(), u"USE HAT1 FORCED_CORNERS"_s);
    EXPECT_EQ(coloursOf(joystick()), u"mmm......mmmmmmmmmmmmmm"_s);
}

TEST_F(HatsPageTest, AProtectedMacroFileDoesNotStopTheHats)
{
    setMacro(u"Fire = SPC"_s);
    editor->documents().setProtected(true);
    chooseHat(u"HAT1"_s, u"POV"_s);
    click(u"CMDHatViewInsert_0"_s);
    EXPECT_EQ(joystick().text(), u"USE HAT1 AS POV"_s);
    setMacro(u"Fire = SPC"_s);
    control<QTabWidget>(u"SSTabHats"_s).setCurrentIndex(1);
    setJoystick(QString());
    click(u"CMDHatViewInsert_1"_s);
    EXPECT_EQ(joystick().text(), u"USE HAT1 FORCED_CORNERS"_s);
    EXPECT_EQ(macro().text(), u"Fire = SPC"_s);
}

TEST_F(HatsPageTest, RatesFrom1To127AndNoRateAreTaken)
{
    chooseHat(u"HAT1"_s, u"MOUSE"_s);
    for (const QString &rate : { u"1"_s, u"127"_s, QString() }) {
        setJoystick(QString());
        write(u"TXT_hatrate"_s, rate);
        click(u"CMDHatViewInsert_0"_s);
        EXPECT_EQ(joystick().text(), u"USE HAT1 AS MOUSE (%1)"_s.arg(rate));
    }
}

TEST_F(HatsPageTest, OtherRatesAreRefusedAndTheFieldsStay)
{
    chooseHat(u"HAT4"_s, u"MOUSE"_s);
    tick(u"CheckHatUse_3"_s);
    for (const QString &rate : { u"0"_s, u"128"_s, u"fast"_s }) {
        write(u"TXT_hatrate"_s, rate);
        expectRefusal(u"CMDHatViewInsert_0"_s, u"Oh no! You've made a boo boo."_s, wrongRate);
        EXPECT_EQ(textOf(u"TXT_hatrate"_s), rate);
        EXPECT_EQ(composer()->focusWidget()->objectName(), u"TXT_hatrate"_s);
    }
    EXPECT_TRUE(isTicked(u"CheckHatUse_3"_s));
    EXPECT_EQ(control<QComboBox>(u"ComboHatAs"_s).currentText(), u"HAT4"_s);
}

TEST_F(HatsPageTest, ARoleEnablesWhatItTakes)
{
    const QStringList always{ u"REVERSE_UD"_s, u"REVERSE_LR"_s };
    chooseHat(u"HAT1"_s, u"MOUSE"_s);
    EXPECT_EQ(enabledOptions(), always);
    EXPECT_TRUE(isEnabled(u"TXT_hatrate"_s));
    EXPECT_TRUE(isEnabled(u"LabelHatRate"_s));
    chooseHat(u"HAT1"_s, u"POV"_s);
    EXPECT_EQ(enabledOptions(), always);
    EXPECT_FALSE(isEnabled(u"TXT_hatrate"_s));
    EXPECT_FALSE(isEnabled(u"LabelHatRate"_s));
    chooseHat(u"HAT1"_s, u"ARROWKEYS"_s);
    EXPECT_EQ(enabledOptions(), always + QStringList{ u"NOHOLD"_s });
    EXPECT_FALSE(isEnabled(u"TXT_hatrate"_s));
    chooseHat(u"HAT1"_s, u"KEYPAD"_s);
    EXPECT_EQ(enabledOptions(),
              always + QStringList({ u"FORCED_CORNERS"_s, u"NOHOLD"_s, u"KP5"_s }));
    chooseHat(u"RADIOSWITCH"_s, u"KEYPAD"_s);
    EXPECT_EQ(enabledOptions(), always + QStringList({ u"NOHOLD"_s, u"KP5"_s }));
}

TEST_F(HatsPageTest, AnOptionThatIsDisabledLosesItsTick)
{
    chooseHat(u"HAT1"_s, u"KEYPAD"_s);
    for (const int i : { 1, 9, 2 }) {
        tick(u"CheckHatUse_%1"_s.arg(i));
    }
    choose(u"ComboHatAs"_s, u"RADIOSWITCH"_s);
    EXPECT_FALSE(isTicked(u"CheckHatUse_1"_s));
    EXPECT_TRUE(isTicked(u"CheckHatUse_2"_s));
    choose(u"ComboHatUSE"_s, u"ARROWKEYS"_s);
    EXPECT_FALSE(isTicked(u"CheckHatUse_2"_s));
    EXPECT_TRUE(isTicked(u"CheckHatUse_9"_s));
    choose(u"ComboHatUSE"_s, u"POV"_s);
    choose(u"ComboHatUSE"_s, u"KEYPAD"_s);
    EXPECT_FALSE(isTicked(u"CheckHatUse_9"_s));
}

TEST_F(HatsPageTest, AStatementOfTheFileFillsTheFieldsAndCanBeReplaced)
{
    openPage(InsertOptions::Logical);
    readFromFile(u"use hat2 as mouse (20) - REVERSE_LR"_s);
    EXPECT_TRUE(control<QWidget>(u"ComboHatAs"_s).isVisible());
    EXPECT_EQ(control<QComboBox>(u"ComboHatAs"_s).currentText(), u"HAT2"_s);
    EXPECT_EQ(control<QComboBox>(u"ComboHatUSE"_s).currentText(), u"MOUSE"_s);
    EXPECT_EQ(textOf(u"TXT_hatrate"_s), u"20"_s);
    EXPECT_TRUE(isTicked(u"CheckHatUse_3"_s));
    write(u"TXT_hatrate"_s, u"30"_s);
    expectReplaced(u"use hat2 as mouse (20) - REVERSE_LR"_s,
                   u"USE HAT2 AS MOUSE (30) - REVERSE_LR"_s);
}

TEST_F(HatsPageTest, ForcedCornersOfTheFileTurnToTheirTab)
{
    readFromFile(u"USE HAT4 FORCED_CORNERS"_s);
    EXPECT_EQ(control<QTabWidget>(u"SSTabHats"_s).currentIndex(), 1);
    EXPECT_EQ(control<QComboBox>(u"ComboHatForcedCorners"_s).currentText(), u"HAT4"_s);
    choose(u"ComboHatForcedCorners"_s, u"HAT1"_s);
    expectReplaced(u"USE HAT4 FORCED_CORNERS"_s, u"USE HAT1 FORCED_CORNERS"_s);
}

TEST_F(HatsPageTest, TheTickForTheLineEndIsTheSameOnAllPages)
{
    openPage(InsertOptions::Mouse);
    EXPECT_FALSE(isTicked(u"CheckMultiAddCR_0"_s));
    click(u"CheckMultiAddCR_3"_s);
    EXPECT_TRUE(isTicked(u"CheckMultiAddCR_0"_s));
    EXPECT_TRUE(settings.of<ComposerSettings>().CompTabsAddCr);
}
