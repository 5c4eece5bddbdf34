// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/main_scene.h"

#include "documents/editor_view.h"
#include "documents/text_control.h"
#include "editor/editor.h"
#include "editor/macros/framemacros.h"
#include "editor/macros/macro_features.h"
#include "editor/macros/macro_list.h"
#include "menus/menu_actions.h"
#include "platform/core/profile_file.h"
#include "shell/main_status_bar.h"
#include "shell/mum.h"
#include "tests/support/shell_world.h"
#include "toolchain/cougar_tools.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QSet>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

using namespace zeph;

namespace {

/// A whole program beside a configuration tool that the test plays.
class Modes : public test::RunningWorld
{
protected:
    Modes() { folder.write(u"HOTASConfig.exe"_s, "tool"); }

    void start(const QByteArray &store = {})
    {
        RunningWorld::start(store);
        bar = &app->mum().bar();
        timer = app->tools().modes().findChild<QTimer *>(u"TimerStickMode"_s);
    }

    void report(const QString &key, const QString &value) const
    {
        EXPECT_TRUE(ProfileFile(paths.hotasIni()).write({ u"TMMODE"_s, key, value }));
    }
    QLabel *panel(int number) const
    {
        return bar->findChild<QLabel *>(u"Panel_"_s + QString::number(number));
    }
    void click(Qt::MouseButton button) const
    {
        QTest::mouseClick(bar, button, {}, QPoint(panel(2)->x() + 2, bar->height() / 2));
    }
    void hover() const
    {
        QTest::mouseMove(bar, QPoint(10, bar->height() / 2));
        QTest::mouseMove(bar, QPoint(panel(2)->x() + 2, bar->height() / 2));
    }
    void nextTick() const
    {
        QSignalSpy ticks(timer, &QTimer::timeout);
        const int interval = timer->interval();
        timer->setInterval(1);
        EXPECT_TRUE(ticks.wait());
        timer->setInterval(interval);
    }
    QStringList requests() const
    {
        QStringList sent;
        for (const Launch &launch : launcher.launches) {
            sent.append(launch.arguments);
        }
        return sent;
    }
    void press(QStringView entry) const
    {
        ASSERT_TRUE(app->editor().actions().action(entry)->isEnabled());
        app->editor().actions().action(entry)->trigger();
    }

    MainStatusBar *bar = nullptr;
    QTimer *timer = nullptr;
};

} // namespace

TEST_F(Modes, ARunStartsWithTheSelectorOffAndNoQuestions)
{
    start();
    EXPECT_EQ(app->status().modePicture(), 1);
    EXPECT_EQ(bar->modeTooltip(), u"Cougar mode selector is off");
    EXPECT_FALSE(timer->isActive());
    EXPECT_TRUE(launcher.launches.isEmpty());
    EXPECT_TRUE(joystick.asked.isEmpty());
}

TEST_F(Modes, SynchroniseModeOnStartupAsksBeforeTheEditorIsThere)
{
    bool mumShown = false;
    bool editorThere = true;
    QString panelAtStart;
    launcher.onStart = [&](const Launch &) {
        mumShown = app->mum().isVisible();
        editorThere = app->mum().centralWidget() != nullptr;
        panelAtStart = app->status().text();
        return Expected<void, QString>();
    };
    start("[Unsupported]\r\nSynchroniseModeOnStartup=1\r\n");
    EXPECT_EQ(requests(), QStringList(u"/MODE /ZEPH /NM"_s));
    EXPECT_TRUE(mumShown);
    EXPECT_FALSE(editorThere);
    EXPECT_EQ(panelAtStart, u" Initialising mode information ...");
    EXPECT_TRUE(app->status().text().startsWith(u"Ready! Welcome to Zeph"));
    EXPECT_FALSE(timer->isActive());
}

TEST_F(Modes, StatusDetectOnStartupSwitchesTheSelectorOn)
{
    report(u"Buttons"_s, u"1"_s);
    start("[Miscellaneous]\r\nStatusDetectOnStartup=1\r\nStatusMonitoringInterval=7\r\n");
    EXPECT_EQ(app->status().modePicture(), 3);
    EXPECT_EQ(bar->modeTooltip(), u"Cougar mode selector is on");
    EXPECT_TRUE(timer->isActive());
    EXPECT_EQ(timer->interval(), 7000);
    EXPECT_TRUE(launcher.launches.isEmpty());
}

TEST_F(Modes, AnOverflowingIntervalAtTheStartIsToldAndTheRunGoesOn)
{
    dialogs.answer(u"Zeph"_s, BoxButton::Ok);
    start("[Miscellaneous]\r\nStatusDetectOnStartup=1\r\nStatusMonitoringInterval=33\r\n");
    ASSERT_EQ(dialogs.boxes().size(), 1);
    EXPECT_TRUE(dialogs.boxes()[0].text.endsWith(u"Overflow"));
    EXPECT_EQ(app->status().modePicture(), 1);
    EXPECT_FALSE(timer->isActive());
}

TEST_F(Modes, AClickWithAnOverflowingIntervalIsTold)
{
    start("[Miscellaneous]\r\nStatusMonitoringInterval=33\r\n");
    dialogs.answer(u"Zeph"_s, BoxButton::Ok);
    click(Qt::LeftButton);
    EXPECT_TRUE(dialogs.boxes()[0].text.endsWith(u"Overflow"));
}

TEST_F(Modes, ClicksOnTheModePictureSwitchOnOverAndOff)
{
    start();
    report(u"Buttons"_s, u"0"_s);
    click(Qt::LeftButton);
    EXPECT_TRUE(launcher.launches.isEmpty());
    EXPECT_EQ(app->status().modePicture(), 2);
    EXPECT_EQ(bar->modeTooltip(), u"Cougar mode selector is on");

    launcher.onStart = [this](const Launch &launch) {
        report(u"Buttons"_s, launch.arguments.endsWith(u"/BU") ? u"1"_s : u"0"_s);
        return Expected<void, QString>();
    };
    click(Qt::LeftButton);
    EXPECT_EQ(app->status().modePicture(), 3);
    click(Qt::LeftButton);
    EXPECT_EQ(app->status().modePicture(), 2);
    report(u"Buttons"_s, u"-1"_s);
    nextTick();
    EXPECT_EQ(app->status().modePicture(), 4);
    click(Qt::LeftButton);
    EXPECT_EQ(app->status().modePicture(), 2);
    EXPECT_EQ(requests(),
              (QStringList{ u"/MODE /ZEPH /BU"_s, u"/MODE /ZEPH /BW"_s, u"/MODE /ZEPH /BW"_s }));

    click(Qt::RightButton);
    EXPECT_EQ(app->status().modePicture(), 1);
    EXPECT_EQ(bar->modeTooltip(), u"Cougar mode selector is off");
    EXPECT_FALSE(timer->isActive());
}

TEST_F(Modes, EachModeHasAPictureOfItsOwn)
{
    start();
    QSet<QByteArray> pictures;
    for (const int picture : { 1, 2, 3, 4 }) {
        app->status().setModePicture(picture);
        const QImage image = panel(2)->pixmap().toImage();
        pictures.insert(
            QByteArray(reinterpret_cast<const char *>(image.constBits()), image.sizeInBytes()));
    }
    EXPECT_EQ(pictures.size(), 4);
}

TEST_F(Modes, TheMouseOverThePictureTellsTheLastReport)
{
    start();
    report(u"Axes"_s, u"1"_s);
    report(u"Buttons"_s, u"0"_s);
    hover();
    EXPECT_EQ(app->status().text(),
              u" Cougar mode selector is off. Left click to activate and change buttons mode");
    click(Qt::LeftButton);
    hover();
    const QString words = u"Last mode change reported: User defined axes, Windows buttons."_s;
    EXPECT_EQ(app->status().text(), words);
    EXPECT_EQ(bar->modeTooltip(), words);
    nextTick();
    EXPECT_EQ(bar->modeTooltip(), u"Cougar mode selector is on");
}

TEST_F(Modes, WithJoyTestConnectAPulledOutStickIsUnknownUntilItIsPutBack)
{
    report(u"Buttons"_s, u"1"_s);
    start("[Miscellaneous]\r\nStatusDetectOnStartup=1\r\n[Joystick Analyser]\r\nJoyIDnumber=1\r\n"
          "[Unsupported]\r\nJoyTestConnect=1\r\n");
    EXPECT_EQ(app->status().modePicture(), 3);
    EXPECT_EQ(joystick.asked, QList<int>{ 1 });
    joystick.reading.result = Joystick::unplugged;
    nextTick();
    EXPECT_EQ(app->status().modePicture(), 4);
    hover();
    EXPECT_EQ(app->status().text(), u"No joystick detected on ID2");
    joystick.reading.result = Joystick::answered;
    nextTick();
    EXPECT_EQ(app->status().modePicture(), 3);
}

TEST_F(Modes, WithoutJoyTestConnectNobodyAsksTheJoystick)
{
    report(u"Buttons"_s, u"1"_s);
    joystick.reading.result = Joystick::unplugged;
    start("[Miscellaneous]\r\nStatusDetectOnStartup=1\r\n");
    nextTick();
    EXPECT_EQ(app->status().modePicture(), 3);
    EXPECT_TRUE(joystick.asked.isEmpty());
}

TEST_F(Modes, TheMenusButtonsEntriesSendTheirRequests)
{
    start();
    press(u"mnuButtonsModeArray_0");
    EXPECT_EQ(app->status().text(), u" Changing to Windows buttons mode - hold on ...");
    press(u"mnuButtonsModeArray_1");
    EXPECT_EQ(app->status().text(), u" Changing to Programmed buttons mode - hold on ...");
    EXPECT_EQ(requests(), (QStringList{ u"/MODE /ZEPH /BW"_s, u"/MODE /ZEPH /BU"_s }));
}

TEST_F(Modes, TheWindowsModeEntryShowsTheEmergencyKeyAsAReminderOnly)
{
    start();
    const QAction *entry = app->editor().action(u"mnuButtonsModeArray_0");
    EXPECT_EQ(QString(entry->text()).remove(u'&'), u"Windows (DirectX) mode\tShift+Break");
    EXPECT_TRUE(entry->shortcut().isEmpty()) << "the key tells more than the entry does";
}

TEST_F(Modes, NoMnemonicStandsTwiceInTheCougarMenus)
{
    start();
    for (const QStringView name : { u"mnuCougar", u"mnuButtonsMode", u"mnuAxesMode" }) {
        QSet<QString> seen;
        for (const QAction *entry : app->editor().actions().menu(name)->actions()) {
            const QString key = QKeySequence::mnemonic(entry->text()).toString();
            EXPECT_FALSE(!key.isEmpty() && seen.contains(key)) << entry->text().toStdString();
            seen.insert(key);
        }
    }
}

TEST_F(Modes, ShiftBreakAnywhereInTheEditorSendsOneEmergencyRequest)
{
    start();
    Editor &editor = app->editor();
    for (QWidget *focused :
         { static_cast<QWidget *>(&editor.view().control(DocumentKind::Joystick)),
           static_cast<QWidget *>(&editor.view().control(DocumentKind::Macro)),
           static_cast<QWidget *>(&editor.macros().list().frame()->list()) }) {
        launcher.launches.clear();
        QStringList told;
        const auto heard = QObject::connect(&app->status(), &StatusLine::textChanged, &editor,
                                            [&](const QString &text) { told.append(text); });
        QTest::keyClick(focused, Qt::Key_Pause, Qt::ShiftModifier);
        QObject::disconnect(heard);
        EXPECT_EQ(requests(), QStringList(u"/MODE /ZEPH /BW"_s));
        EXPECT_EQ(told.first(),
                  u" An emergency request to turn the Cougar programmed mode off has been sent.");
        EXPECT_EQ(told.last(), u" Control has been returned to Zeph");
    }
}

TEST_F(Modes, BreakWithoutShiftAndAKeyHeldDownSendNothing)
{
    start();
    QWidget *text = &app->editor().view().control(DocumentKind::Joystick);
    QTest::keyClick(text, Qt::Key_Pause);
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Pause, Qt::ShiftModifier, {}, true);
    QApplication::sendEvent(text, &held);
    EXPECT_TRUE(launcher.launches.isEmpty());
}

TEST_F(Modes, MenusTypingAndTimersWorkDuringAModeWait)
{
    start("[Unsupported]\r\nCheckForCompletionTime=5\r\n");
    Editor &editor = app->editor();
    editor.documents().select(DocumentKind::Macro);
    const bool tiledBefore = editor.view().isTiled();
    int beats = 0;
    QTimer beat;
    QObject::connect(&beat, &QTimer::timeout, &beat, [&beats] { ++beats; });
    launcher.onStart = [&](const Launch &) {
        beat.start(1);
        QTimer::singleShot(0, &editor, [&] {
            QTest::keyClicks(&editor.view().control(DocumentKind::Macro), u"Fire = a"_s);
            press(u"mnuViewTileVertically");
        });
        return Expected<void, QString>();
    };
    QObject::connect(&beat, &QTimer::timeout, &editor, [&] {
        if (beats >= 5 && editor.view().isTiled() != tiledBefore) {
            beat.stop();
            report(u"Status"_s, u"OKAY"_s);
        }
    });
    press(u"mnuAxesModeArray_1");
    EXPECT_EQ(app->status().text(), u" Ready");
    EXPECT_EQ(requests(), QStringList(u"/MODE /ZEPH /AU"_s));
    EXPECT_EQ(editor.macroText(), u"Fire = a");
    EXPECT_NE(editor.view().isTiled(), tiledBefore);
    EXPECT_GE(beats, 5);
}
