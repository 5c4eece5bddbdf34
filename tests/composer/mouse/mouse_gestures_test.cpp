// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "tests/composer/mouse/mouse_fixture.h"

#include <QLocale>
#include <QProcess>

using namespace zeph;

namespace mouse_gestures_tests {

namespace {

using enum MouseMovement;

/// Gestures at a zoom in percent, where the locale has a decimal comma.
class MouseGestures : public test::MouseTest, public testing::WithParamInterface<int>
{
protected:
    void SetUp() override
    {
        QLocale::setDefault(QLocale(QLocale::German));
        ASSERT_EQ(QLocale().decimalPoint(), u",");
        openWizard();
        zoomTo(GetParam() / 100.0);
        setJoystick(u"USE SCREEN_RESOLUTION (1000,500) \n\nBTN S1 "_s);
    }
    void TearDown() override
    {
        QLocale::setDefault(m_before);
        // Whatever was inserted, the compiler takes it.
        EXPECT_EQ(findingsIn(joystick().text()), QStringList());
    }
    QString inserted()
    {
        insert();
        QString text = joystick().text();
        return text.remove(0, text.indexOf(u"MOUSE"));
    }

private:
    QLocale m_before;
};

} // namespace

TEST_P(MouseGestures, AClickGivesThePlace)
{
    goTo(Absolute, MouseWizardPage::Absolute);
    click(at(400, 200));
    EXPECT_EQ(label(u"LBL_MouseXY"_s), u"400,200");
    EXPECT_EQ(statement(), u"MOUSEXY (UL, 400, 200)");
    click(at(124, 62));
    EXPECT_EQ(inserted(), u"MOUSEXY (UL, 124, 62) ");
}

TEST_P(MouseGestures, AClickInPercent)
{
    goTo(Absolute, MouseWizardPage::Absolute);
    click(at(124, 62));
    press(u"CheckMouseXY"_s);
    part<QComboBox>(u"ComboCoordinate"_s).setCurrentText(u"CENTRE"_s);
    EXPECT_EQ(label(u"LBL_MouseXY"_s), u"-37.6%,-37.6%");
    EXPECT_EQ(inserted(), u"MOUSEXY (CENTRE, -37.6%, -37.6%) ");
}

TEST_P(MouseGestures, ALineGivesTheWay)
{
    goTo(Relative, MouseWizardPage::Relative);
    drag(at(400, 200), at(434, 186));
    EXPECT_EQ(label(u"LBL_MouseXY"_s), u"34,-14");
    EXPECT_EQ(inserted(), u"MOUSEMOVE (34, -14) ");
}

TEST_P(MouseGestures, ALineInPercent)
{
    goTo(Relative, MouseWizardPage::Relative);
    press(u"CheckMouseXY"_s);
    drag(at(400, 200), at(366, 214));
    EXPECT_EQ(label(u"LBL_MouseXY"_s), u"-3.4%,2.8%");
    EXPECT_EQ(inserted(), u"MOUSEMOVE (-3.4%, 2.8%) ");
}

TEST_P(MouseGestures, ADragAndShiftGiveTheRotation)
{
    goTo(Rotation, MouseWizardPage::RotateFrom);
    drag(at(400, 200), at(440, 170));
    EXPECT_EQ(label(u"LBL_MouseInfo_0"_s), u"400,200");
    EXPECT_EQ(label(u"LBL_MouseInfo_1"_s), u"50");
    EXPECT_EQ(label(u"LBL_MouseInfo_2"_s), u"36.9");
    EXPECT_EQ(label(u"LBL_MouseInfo_3"_s), u"");
    next();
    turnTo(at(400, 100));
    EXPECT_EQ(label(u"LBL_MouseInfo_3"_s), u"90");
    next();
    next();
    EXPECT_EQ(inserted(), u"MOUSEROTATE (UL, 400, 200, 50, 36.9, [MOUSE_LB], CW, 90, 2)");
}

TEST_P(MouseGestures, ARotationInPercentTheOtherWayRound)
{
    goTo(Rotation, MouseWizardPage::RotateFrom);
    part<QComboBox>(u"ComboCoordinate"_s).setCurrentText(u"DR"_s);
    drag(at(404, 202), at(404, 252));
    next();
    turnTo(at(304, 202));
    next();
    press(u"OPT_CounterClockwise"_s);
    press(u"CHK_MRpercent"_s);
    part<QComboBox>(u"ComboMacro"_s).setCurrentText(u"MOUSE_RB"_s);
    part<QComboBox>(u"ComboSteps"_s).setCurrentText(u"4"_s);
    next();
    EXPECT_EQ(inserted(), u"MOUSEROTATE (DR, 59.6%, 59.6%, 5%, 270, [MOUSE_RB], CCW, 180, 4)");
}

TEST_P(MouseGestures, AFullTurnEndsAt360)
{
    goTo(Rotation, MouseWizardPage::RotateFrom);
    drag(at(400, 200), at(450, 200));
    next();
    turnTo(at(500, 200));
    next();
    next();
    EXPECT_EQ(inserted(), u"MOUSEROTATE (UL, 400, 200, 50, 0, [MOUSE_LB], CW, 360, 2)");
}

INSTANTIATE_TEST_SUITE_P(Zoom, MouseGestures, testing::Values(50, 100, 300),
                         [](const auto &instance) { return std::to_string(instance.param); });

TEST(MouseGesturesAtScale2, GiveTheSame)
{
    // The scale is fixed when a program starts.
    QProcess run;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"QT_SCALE_FACTOR"_s, u"2"_s);
    run.setProcessEnvironment(environment);
    run.start(QCoreApplication::applicationFilePath(),
              { u"--gtest_filter=Zoom/MouseGestures.*"_s });
    constexpr int longestMs = 60'000;
    ASSERT_TRUE(run.waitForFinished(longestMs));
    const QByteArray told = run.readAllStandardOutput();
    EXPECT_EQ(run.exitCode(), 0) << told.toStdString();
    EXPECT_TRUE(told.contains("[  PASSED  ] 21 tests")) << told.toStdString();
}

} // namespace mouse_gestures_tests
