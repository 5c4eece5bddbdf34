// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/modes/cougar_modes.h"

#include "platform/fakes/fake_joystick.h"
#include "tests/support/toolchain_bench.h"
#include "toolchain/toolchain_settings.h"

#include <QFile>
#include <QSignalSpy>

#include <stdexcept>

using namespace zeph;

namespace {

const QString timeOutTitle = u"Now this is taking rather a long time buddy, isn't it?!"_s;

class CougarModesTest : public test::ToolchainBench
{
protected:
    CougarModesTest() : modes(context, *handshake, joystick)
    {
        settings.of<ToolchainSettings>().StatusMonitoringInterval = 3;
        timer = modes.findChild<QTimer *>(u"TimerStickMode"_s);
        QObject::connect(&status, &StatusLine::textChanged, &status,
                         [this](const QString &text) { panel.append(text); });
    }

    void reported(int axes, int buttons) const
    {
        writeMode(u"Axes"_s, QString::number(axes));
        writeMode(u"Buttons"_s, QString::number(buttons));
    }
    /// The tool answers before the wait's second tick.
    void answerModeRequests()
    {
        afterModeTick = [this](int) {
            writeMode(u"Status"_s, u"OKAY"_s);
        };
    }
    QStringList requests() const
    {
        QStringList arguments;
        for (const Launch &launch : launcher.launches) {
            arguments.append(launch.arguments);
        }
        return arguments;
    }
    void removeTool() const { ASSERT_TRUE(QFile::remove(paths.config())); }
    void showPicture(int picture) { status.setModePicture(picture); }

    FakeJoystick joystick;
    CougarModes modes;
    QTimer *timer = nullptr;
    /// All that panel 1 read, in order.
    QStringList panel;
};

struct ButtonsCase {
    ButtonsRequest request;
    QStringView arguments;
    QStringView panel;
};

constexpr ButtonsCase buttonsCases[] = {
    { ButtonsRequest::Windows, u"/MODE /ZEPH /BW",
      u" Changing to Windows buttons mode - hold on ..." },
    { ButtonsRequest::Programmed, u"/MODE /ZEPH /BU",
      u" Changing to Programmed buttons mode - hold on ..." },
    { ButtonsRequest::ReportOnly, u"/MODE /ZEPH /NM", u" Initialising mode information ..." },
};

} // namespace

TEST_F(CougarModesTest, ButtonsRequestsGoOutWithoutAWait)
{
    for (const ButtonsCase &row : buttonsCases) {
        launcher.launches.clear();
        modes.changeButtonsMode(row.request);
        ASSERT_EQ(launcher.launches.size(), 1);
        const Launch &launch = launcher.launches[0];
        EXPECT_EQ(launch.program, paths.config());
        EXPECT_EQ(launch.arguments, row.arguments);
        EXPECT_EQ(launch.folder, paths.hotasFolder);
        EXPECT_EQ(launch.style, WindowStyle::NormalFocus);
        EXPECT_EQ(status.text(), row.panel);
        EXPECT_EQ(modeTicks, 0);
    }
}

TEST_F(CougarModesTest, TheMenusIndexIsTheRequest)
{
    EXPECT_EQ(int(ButtonsRequest::Windows), 0);
    EXPECT_EQ(int(ButtonsRequest::Programmed), 1);
    EXPECT_EQ(int(ButtonsRequest::ReportOnly), 2);
}

TEST_F(CougarModesTest, WithoutTheToolRequestsDoNothingSilently)
{
    removeTool();
    status.setText(u"before"_s);
    for (const ButtonsCase &row : buttonsCases) {
        modes.changeButtonsMode(row.request);
    }
    EXPECT_TRUE(modes.changeWholeMode(true));
    EXPECT_TRUE(modes.changeWholeMode(false));
    modes.mnuAxesModeArray_Click(0);
    EXPECT_TRUE(launcher.launches.isEmpty());
    EXPECT_EQ(status.text(), u"before");
}

TEST_F(CougarModesTest, AToolThatCannotBeStartedIsToldWithTheReason)
{
    launcher.onStart = [](const Launch &launch) -> Expected<void, QString> {
        return Unexpected<QString>(launch.program + u" is no program"_s);
    };
    dialogs.answer(u"Unable to run the Thrustmaster software"_s, BoxButton::Ok);
    modes.changeButtonsMode(ButtonsRequest::Windows);
    ASSERT_EQ(dialogs.boxes().size(), 1);
    EXPECT_EQ(dialogs.boxes()[0].text, paths.config() + u" is no program"_s);
    EXPECT_EQ(dialogs.boxes()[0].icon, BoxIcon::Exclamation);
}

TEST_F(CougarModesTest, AWholeModeRequestThatCannotBeStartedGivesControlBack)
{
    launcher.onStart = [](const Launch &) -> Expected<void, QString> {
        return Unexpected<QString>(u"no"_s);
    };
    dialogs.answer(u"Unable to run the Thrustmaster software"_s, BoxButton::Ok);
    EXPECT_TRUE(modes.changeWholeMode(true));
    EXPECT_EQ(status.text(), u" Control returned to you");
}

TEST_F(CougarModesTest, AButtonsRequestShowsTheReportOnlyWithTheSelectorOn)
{
    reported(0, 1);
    modes.changeButtonsMode(ButtonsRequest::Programmed);
    EXPECT_EQ(status.modePicture(), 1);
    modes.EnableStatusTimer();
    reported(0, 0);
    modes.changeButtonsMode(ButtonsRequest::Windows);
    EXPECT_EQ(status.modePicture(), 2);
}

TEST_F(CougarModesTest, TheWholeModeIsWaitedFor)
{
    struct Case {
        bool programmed;
        QString arguments;
        QString panel;
    };
    for (const Case &row :
         { Case{ true, u"/MODE /ZEPH /AU /BU"_s,
                 u" Switching Cougar to Programmed mode ... please wait .."_s },
           Case{ false, u"/MODE /ZEPH /AW /BW"_s,
                 u" Switching Cougar to pure Windows mode ... please wait .."_s } }) {
        launcher.launches.clear();
        panel.clear();
        modeTicks = 0;
        writeMode(u"Status"_s, u"left over"_s);
        answerModeRequests();
        EXPECT_TRUE(modes.changeWholeMode(row.programmed));
        EXPECT_EQ(requests(), QStringList(row.arguments));
        EXPECT_EQ(panel, (QStringList{ row.panel, u" Ready"_s }));
        EXPECT_EQ(modeTicks, 2) << "an old status is no answer";
    }
}

TEST_F(CougarModesTest, TheAxesAloneAreWaitedFor)
{
    answerModeRequests();
    modes.mnuAxesModeArray_Click(0);
    modes.mnuAxesModeArray_Click(1);
    EXPECT_EQ(requests(), (QStringList{ u"/MODE /ZEPH /AW"_s, u"/MODE /ZEPH /AU"_s }));
    const QString asked = u" Changing axis mode - hold on this may take some time ..."_s;
    EXPECT_EQ(panel, (QStringList{ asked, u" Ready"_s, asked, u" Ready"_s }));
}

TEST_F(CougarModesTest, AWaitedRequestShowsTheReportAtItsEndWithTheSelectorOn)
{
    modes.EnableStatusTimer();
    EXPECT_EQ(status.modePicture(), 2);
    afterModeTick = [this](int) {
        reported(1, 1);
        writeMode(u"Status"_s, u"OKAY"_s);
    };
    EXPECT_TRUE(modes.changeWholeMode(true));
    EXPECT_EQ(status.modePicture(), 3);
}

TEST_F(CougarModesTest, ASilentToolIsGivenUpWithAMessage)
{
    settings.of<ToolchainSettings>().RegainControlAfter = 2000;
    dialogs.answer(timeOutTitle, BoxButton::Ok);
    EXPECT_TRUE(modes.changeWholeMode(false));
    EXPECT_EQ(modeTicks, 3);
    EXPECT_EQ(status.text(), u" Control returned to you");
    ASSERT_EQ(dialogs.boxes().size(), 1);
    EXPECT_EQ(dialogs.boxes()[0].icon, BoxIcon::Exclamation);
}

TEST_F(CougarModesTest, TheEndOfTheProgramDuringAWaitIsTheCallersToKnow)
{
    afterModeTick = [this](int) {
        QTimer::singleShot(0, &mainWindow, [this] { handshake.reset(); });
    };
    EXPECT_FALSE(modes.changeWholeMode(true));
    EXPECT_EQ(panel.size(), 1);
}

TEST_F(CougarModesTest, TheDetectorTicksDuringAModeWait)
{
    modes.EnableStatusTimer();
    timer->setInterval(1);
    afterModeTick = [this](int count) {
        if (count == 1) {
            reported(1, 1);
        }
        if (status.modePicture() == 3) {
            writeMode(u"Status"_s, u"OKAY"_s);
        }
    };
    EXPECT_TRUE(modes.changeWholeMode(true));
    EXPECT_EQ(status.text(), u" Ready");
}

TEST_F(CougarModesTest, Interval33OverflowsAndLeavesTheDetectorOff)
{
    modes.EnableStatusTimer();
    ASSERT_TRUE(modes.detectorRuns());
    settings.of<ToolchainSettings>().StatusMonitoringInterval = 33;
    reported(0, 1);
    try {
        modes.EnableStatusTimer();
        ADD_FAILURE() << "no overflow";
    } catch (const std::overflow_error &error) {
        EXPECT_STREQ(error.what(), "Overflow");
    }
    EXPECT_FALSE(modes.detectorRuns());
    EXPECT_EQ(status.modePicture(), 2) << "nothing happens after the refused interval";
}

TEST_F(CougarModesTest, Interval32Works)
{
    settings.of<ToolchainSettings>().StatusMonitoringInterval = 32;
    modes.EnableStatusTimer();
    EXPECT_TRUE(modes.detectorRuns());
    EXPECT_EQ(timer->interval(), 32000);
}

TEST_F(CougarModesTest, ARunningDetectorTakesANewIntervalUpAtItsNextEnabling)
{
    modes.EnableStatusTimer();
    settings.of<ToolchainSettings>().StatusMonitoringInterval = 5;
    modes.ShowCougarMode();
    EXPECT_EQ(timer->interval(), 3000);
    modes.EnableStatusTimer();
    EXPECT_EQ(timer->interval(), 5000);
}

TEST_F(CougarModesTest, EachTickShowsWhatWasReportedLast)
{
    reported(0, 0);
    modes.EnableStatusTimer();
    EXPECT_EQ(status.modePicture(), 2);
    timer->setInterval(1);
    reported(0, 1);
    EXPECT_TRUE(QTest::qWaitFor([this] { return status.modePicture() == 3; }));
    reported(0, -1);
    EXPECT_TRUE(QTest::qWaitFor([this] { return status.modePicture() == 4; }));
}

TEST_F(CougarModesTest, ThePictureFollowsTheButtonsOnly)
{
    for (const int axes : { -1, 0, 1, 9 }) {
        reported(axes, 1);
        modes.ShowCougarMode();
        EXPECT_EQ(status.modePicture(), 3) << axes;
    }
}

TEST_F(CougarModesTest, TheFirstLeftClickShowsTheModeWithoutChangingIt)
{
    reported(0, 1);
    modes.panelClicked(Qt::LeftButton);
    EXPECT_TRUE(launcher.launches.isEmpty());
    EXPECT_EQ(status.modePicture(), 3);
    EXPECT_TRUE(modes.detectorRuns());
    EXPECT_EQ(modes.tooltip(), u"Cougar mode selector is on");
}

TEST_F(CougarModesTest, TheFirstLeftClickAfterAnErrorAsksForWindowsMode)
{
    reported(0, -1);
    modes.panelClicked(Qt::LeftButton);
    EXPECT_EQ(requests(), QStringList(u"/MODE /ZEPH /BW"_s));
    EXPECT_EQ(status.modePicture(), 4);
    EXPECT_TRUE(modes.detectorRuns());
}

TEST_F(CougarModesTest, LeftClicksByPicture)
{
    struct Case {
        int picture;
        QString arguments;
    };
    for (const Case &row : { Case{ 2, u"/MODE /ZEPH /BU"_s }, Case{ 3, u"/MODE /ZEPH /BW"_s },
                             Case{ 4, u"/MODE /ZEPH /BW"_s } }) {
        launcher.launches.clear();
        showPicture(row.picture);
        modes.panelClicked(Qt::LeftButton);
        EXPECT_EQ(requests(), QStringList(row.arguments));
        EXPECT_TRUE(modes.detectorRuns());
    }
}

TEST_F(CougarModesTest, WithPureWindowsAClickChangesTheAxesToo)
{
    settings.of<ToolchainSettings>().PureWindows = true;
    answerModeRequests();
    showPicture(2);
    modes.panelClicked(Qt::LeftButton);
    showPicture(3);
    modes.panelClicked(Qt::LeftButton);
    showPicture(4);
    modes.panelClicked(Qt::LeftButton);
    EXPECT_EQ(requests(),
              (QStringList{ u"/MODE /ZEPH /AU /BU"_s, u"/MODE /ZEPH /AW /BW"_s,
                            u"/MODE /ZEPH /AW /BW"_s }));
    EXPECT_TRUE(modes.detectorRuns());
}

TEST_F(CougarModesTest, AClickThatTheProgramsEndOvertakesEnablesNothing)
{
    settings.of<ToolchainSettings>().PureWindows = true;
    showPicture(2);
    afterModeTick = [this](int) {
        QTimer::singleShot(0, &mainWindow, [this] { handshake.reset(); });
    };
    modes.panelClicked(Qt::LeftButton);
    EXPECT_FALSE(modes.detectorRuns());
}

TEST_F(CougarModesTest, TheRightClickSwitchesTheSelectorOff)
{
    reported(0, 1);
    modes.EnableStatusTimer();
    modes.panelClicked(Qt::RightButton);
    EXPECT_FALSE(modes.detectorRuns());
    EXPECT_EQ(status.modePicture(), 1);
    EXPECT_EQ(modes.tooltip(), u"Cougar mode selector is off");
    EXPECT_TRUE(launcher.launches.isEmpty());
}

TEST_F(CougarModesTest, TheRightClickDoesNothingWithoutADetectorAndOtherButtonsNever)
{
    showPicture(3);
    modes.panelClicked(Qt::RightButton);
    modes.panelClicked(Qt::MiddleButton);
    EXPECT_EQ(status.modePicture(), 3);
    EXPECT_TRUE(launcher.launches.isEmpty());
}

TEST_F(CougarModesTest, WithoutJoyTestConnectAnUnpluggedCougarKeepsTheLastPicture)
{
    reported(0, 1);
    modes.ShowCougarMode();
    joystick.reading.result = Joystick::unplugged;
    modes.ShowCougarMode();
    EXPECT_EQ(status.modePicture(), 3);
    modes.UpdateStatusTooltip();
    EXPECT_EQ(status.text(), u"Last mode change reported: Windows axes, Programmed buttons.");
    EXPECT_TRUE(joystick.asked.isEmpty());
}

TEST_F(CougarModesTest, WithJoyTestConnectAnUnpluggedCougarIsUnknownUntilItIsBack)
{
    settings.of<ToolchainSettings>().JoyTestConnect = true;
    settings.of<ToolchainSettings>().JoyIDnumber = 2;
    reported(1, 1);
    modes.ShowCougarMode();
    EXPECT_EQ(status.modePicture(), 3);
    joystick.reading.result = Joystick::unplugged;
    modes.ShowCougarMode();
    EXPECT_EQ(status.modePicture(), 4);
    modes.UpdateStatusTooltip();
    EXPECT_EQ(status.text(), u"No joystick detected on ID3");
    joystick.reading.result = Joystick::badId;
    modes.ShowCougarMode();
    EXPECT_EQ(status.modePicture(), 4);
    joystick.reading.result = Joystick::answered;
    modes.ShowCougarMode();
    EXPECT_EQ(status.modePicture(), 3);
    modes.UpdateStatusTooltip();
    EXPECT_EQ(status.text(), u"Last mode change reported: User defined axes, Programmed buttons.");
    EXPECT_EQ(joystick.asked, QList<int>(6, 2));
}

TEST_F(CougarModesTest, OnlyTheResultZeroMeansConnected)
{
    for (const quint32 result : { 165U, 2U, 166U, 1U }) {
        joystick.reading.result = result;
        EXPECT_FALSE(modes.IsJoyConnected()) << result;
    }
    joystick.reading.result = 0;
    EXPECT_TRUE(modes.IsJoyConnected());
}

TEST_F(CougarModesTest, TheTooltipTellsTheReportUntilTheNextTick)
{
    reported(1, 0);
    modes.EnableStatusTimer();
    EXPECT_EQ(modes.tooltip(), u"Cougar mode selector is on");
    QSignalSpy changed(&modes, &CougarModes::tooltipChanged);
    const QString report = u"Last mode change reported: User defined axes, Windows buttons."_s;
    modes.UpdateStatusTooltip();
    modes.UpdateStatusTooltip();
    EXPECT_EQ(status.text(), report);
    EXPECT_EQ(modes.tooltip(), report);
    modes.ShowCougarMode();
    ASSERT_EQ(changed.count(), 2) << "set only when it differs";
    EXPECT_EQ(changed[0][0], report);
    EXPECT_EQ(changed[1][0], u"Cougar mode selector is on"_s);
}

TEST_F(CougarModesTest, TheEmergencyRequestTellsItselfAndItsEnd)
{
    modes.emergencyOff();
    EXPECT_EQ(requests(), QStringList(u"/MODE /ZEPH /BW"_s));
    EXPECT_EQ(panel,
              (QStringList{
                  u" An emergency request to turn the Cougar programmed mode off has been sent."_s,
                  u" Changing to Windows buttons mode - hold on ..."_s,
                  u" Control has been returned to Zeph"_s }));
}

TEST_F(CougarModesTest, TheStartAsksAndDetectsWhatTheSettingsWant)
{
    modes.startOfRun();
    EXPECT_TRUE(launcher.launches.isEmpty());
    EXPECT_FALSE(modes.detectorRuns());
    EXPECT_EQ(status.modePicture(), 1);

    settings.of<ToolchainSettings>().SynchroniseModeOnStartup = true;
    modes.startOfRun();
    EXPECT_EQ(requests(), QStringList(u"/MODE /ZEPH /NM"_s));
    EXPECT_FALSE(modes.detectorRuns());

    settings.of<ToolchainSettings>().SynchroniseModeOnStartup = false;
    settings.of<ToolchainSettings>().StatusDetectOnStartup = true;
    reported(0, 1);
    modes.startOfRun();
    EXPECT_EQ(launcher.launches.size(), 1);
    EXPECT_TRUE(modes.detectorRuns());
    EXPECT_EQ(status.modePicture(), 3);
}
