// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/tools_menu.h"

#include "editor/editor.h"
#include "menus/menu_actions.h"
#include "platform/core/profile_file.h"
#include "platform/core/stand_in.h"
#include "shell/mum.h"
#include "tests/support/shell_world.h"
#include "toolchain/modes/profilechooser.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>

using namespace zeph;

namespace {

/// The running application with the tools beside it and two profiles.
class ToolsMenuTest : public test::RunningWorld
{
protected:
    void begin(const QByteArray &store = {})
    {
        folder.write(u"HOTASConfig.exe"_s, "tool");
        folder.write(u"Profiles/Default.tmc"_s, "x");
        folder.write(u"Profiles/Alpine.tmc"_s, "x");
        start(store + "[Unsupported]\r\nCheckForCompletionTime=1\r\n");
    }

    QAction &action(QStringView name) const { return *app->editor().action(name); }
    void trigger(QStringView name) const
    {
        ASSERT_TRUE(action(name).isEnabled()) << name.toString().toStdString();
        action(name).trigger();
    }
    QString stored(const QString &key) const
    {
        return ProfileFile(paths.iniPath).text(u"Apps", key, u"(absent)"_s);
    }
    QStringList started() const
    {
        QStringList lines;
        for (const Launch &launch : launcher.launches) {
            lines.append(nameOf(launch.program) + u' ' + launch.arguments);
        }
        return lines;
    }
    /// Plays the pilot in the modal window that the next entry opens.
    template <class Form> void answer(const std::function<void(Form &)> &play)
    {
        QTimer::singleShot(0, &app->mum(), [play] {
            auto *form = qobject_cast<Form *>(QApplication::activeModalWidget());
            ASSERT_TRUE(form);
            play(*form);
            if (form->isVisible()) {
                form->reject();
            }
        });
    }
    static void choose(QWidget &form, int row, int calibration, const QString &button)
    {
        form.findChild<QListWidget *>(u"List_Profiles"_s)->setCurrentRow(row);
        form.findChild<QRadioButton *>(u"Option_Calibrate_"_s + QString::number(calibration))
            ->setChecked(true);
        form.findChild<QPushButton *>(button)->click();
    }
};

} // namespace

TEST_F(ToolsMenuTest, AnEntryCanBeUsedWithItsProgramOrWhenItTellsThatThisIsMissing)
{
    begin();
    for (const QString &name :
         { u"MnuDiagArray_0"_s, u"MnuDiagArray_5"_s, u"mnuMemoryClear_0"_s, u"mnuMemoryClear_4"_s,
           u"mnuFlashUpgrade"_s, u"mnuHandleInstall"_s, u"mnuFlashArray_0"_s, u"mnuFlashArray_1"_s,
           u"mnuResetOptions"_s, u"mnuDownloadProfile"_s, u"mnuAppsCompile"_s }) {
        EXPECT_TRUE(action(name).isEnabled()) << name.toStdString();
    }
    EXPECT_EQ(action(u"MnuDiagArray_5").statusTip(),
              u"CougarBState.exe is missing: it isn't in "_s + paths.hotasFolder);
}

TEST_F(ToolsMenuTest, OtherEntriesWithoutTheirProgramAreOffAndComeBackWhenItAppears)
{
    begin();
    for (const QString &name : { u"mnuAppsMultiEditor"_s, u"mnuAppsLauncher"_s,
                                 u"mnuAppsAnalyser"_s, u"mnuAppsDX8_0"_s, u"DownloadArray1_0"_s }) {
        EXPECT_FALSE(action(name).isEnabled()) << name.toStdString();
    }
    EXPECT_EQ(action(u"mnuAppsAnalyser").toolTip(),
              u"Analyser.exe is missing: it isn't in "_s + withClosingSeparator(paths.appFolder));
    folder.write(u"Analyser.exe"_s, "tool");
    EXPECT_TRUE(QTest::qWaitFor([this] { return action(u"mnuAppsAnalyser").isEnabled(); }));
    folder.write(u"HOTASCompiler.exe"_s, "tool");
    EXPECT_TRUE(QTest::qWaitFor([this] { return action(u"DownloadArray1_0").isEnabled(); }));
    EXPECT_EQ(action(u"DownloadArray1_0").statusTip(),
              u"Compiles the joystick file and sends it to the Cougar");
}

TEST_F(ToolsMenuTest, TheStatusBarSaysSteadilyThatTheStandInsAreInUse)
{
    begin();
    auto *panel = app->mum().findChild<QLabel *>(u"Panel_6"_s);
    EXPECT_EQ(panel->text(), u"");
    folder.write(u"HOTASCompiler.exe"_s, standInMark);
    EXPECT_TRUE(QTest::qWaitFor([panel] { return panel->text() == u"Stand-in tools"; }));
    app->status().setText(u"something else"_s);
    EXPECT_EQ(panel->text(), u"Stand-in tools");
    folder.write(u"HOTASCompiler.exe"_s,
                 "a real tool, which is longer than the mark of a stand-in");
    EXPECT_TRUE(QTest::qWaitFor([panel] { return panel->text().isEmpty(); }));
}

TEST_F(ToolsMenuTest, EntriesStartWhatStandsAtTheirIndex)
{
    folder.write(u"CougarBState.exe"_s, "tool");
    folder.write(u"Analyser.exe"_s, "tool");
    begin();
    trigger(u"MnuDiagArray_1");
    trigger(u"MnuDiagArray_5");
    trigger(u"mnuMemoryClear_1");
    trigger(u"mnuFlashArray_1");
    trigger(u"mnuAppsAnalyser");
    EXPECT_EQ(started(),
              (QStringList{ u"HOTASConfig.exe /CALIBRATE"_s, u"CougarBState.exe "_s,
                            u"HOTASConfig.exe /MODE /ZEPH /CM"_s,
                            u"rundll32.exe shell32.dll,Control_RunDLL joy.cpl,,1"_s,
                            u"Analyser.exe "_s }));
}

TEST_F(ToolsMenuTest, TheTickIsKeptAndDecidesWhetherTheProfileCanBeApplied)
{
    begin();
    EXPECT_FALSE(action(u"mnuResetAxes").isChecked());
    EXPECT_FALSE(action(u"mnuApplyDefaultTMC").isEnabled());
    trigger(u"mnuResetAxes");
    EXPECT_TRUE(action(u"mnuResetAxes").isChecked());
    EXPECT_TRUE(action(u"mnuApplyDefaultTMC").isEnabled());
    EXPECT_EQ(stored(u"UseResetProfile"_s), u"1"_s);
    EXPECT_EQ(stored(u"ResetProfile"_s), u"Default"_s);
    trigger(u"mnuResetAxes");
    EXPECT_FALSE(action(u"mnuApplyDefaultTMC").isEnabled());
    EXPECT_EQ(stored(u"UseResetProfile"_s), u"0"_s);
}

TEST_F(ToolsMenuTest, TheStoredTickIsShownFromTheStart)
{
    begin("[Apps]\r\nUseResetProfile=1\r\nResetProfile=Alpine\r\nResetCalibrate=1\r\n");
    EXPECT_TRUE(action(u"mnuResetAxes").isChecked());
    trigger(u"mnuApplyDefaultTMC");
    EXPECT_EQ(started(), QStringList{ u"HOTASConfig.exe /MODE /ZEPH /P\"Alpine.tmc\" /DM"_s });
    EXPECT_EQ(app->status().text(), u" Ready"_s);
}

TEST_F(ToolsMenuTest, ResetOptionsAreKeptAndSwitchTheResetOn)
{
    begin();
    answer<FormResetOptions>([](FormResetOptions &form) { choose(form, 0, 1, u"CMD_OK"_s); });
    trigger(u"mnuResetOptions");
    EXPECT_TRUE(action(u"mnuResetAxes").isChecked());
    EXPECT_EQ(stored(u"ResetProfile"_s), u"Alpine"_s);
    EXPECT_EQ(stored(u"ResetCalibrate"_s), u"1"_s);
    EXPECT_EQ(stored(u"UseResetProfile"_s), u"1"_s);
}

TEST_F(ToolsMenuTest, ADownloadedProfileIsAppliedAndTheStoredOneStays)
{
    begin();
    answer<SelectProfileForm>(
        [](SelectProfileForm &form) { choose(form, 0, 1, u"CMD_Download"_s); });
    trigger(u"mnuDownloadProfile");
    EXPECT_EQ(started(), QStringList{ u"HOTASConfig.exe /MODE /ZEPH /P\"Alpine.tmc\" /DM"_s });
    EXPECT_EQ(stored(u"ResetProfile"_s), u"(absent)"_s);
}

TEST_F(ToolsMenuTest, ACancelledDownloadStartsNothing)
{
    begin();
    answer<SelectProfileForm>([](SelectProfileForm &form) { form.reject(); });
    trigger(u"mnuDownloadProfile");
    EXPECT_TRUE(launcher.launches.isEmpty());
}
