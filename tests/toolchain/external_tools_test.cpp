// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/external_tools.h"

#include "platform/core/stand_in.h"
#include "platform/fakes/fake_joystick.h"
#include "tests/support/toolchain_bench.h"
#include "toolchain/modes/cougar_modes.h"

#include <QFile>

using namespace zeph;

namespace {

class ExternalToolsTest : public test::ToolchainBench
{
protected:
    /// What was started: program, arguments, folder.
    QStringList started() const
    {
        QStringList lines;
        for (const Launch &launch : launcher.launches) {
            EXPECT_EQ(launch.style, WindowStyle::NormalFocus);
            lines.append(launch.program + u'|' + launch.arguments + u'|' + launch.folder);
        }
        return lines;
    }
    QString inHotas(const QString &program, const QString &arguments = {}) const
    {
        return paths.hotasFolder + program + u'|' + arguments + u'|' + paths.hotasFolder;
    }
    void failToStart()
    {
        launcher.onStart = [](const Launch &launch) -> Expected<void, QString> {
            return Unexpected<QString>(launch.program + u": no luck"_s);
        };
    }

    FakeJoystick joystick;
    CougarModes modes{ context, *handshake, joystick };
    ExternalTools tools{ context, modes };
};

struct DiagCase {
    int index;
    QString program;
    QString arguments;
};

} // namespace

TEST_F(ExternalToolsTest, EachEntryStartsItsProgramInTheToolsFolder)
{
    const DiagCase rows[] = {
        { 0, u"HOTASConfig.exe"_s, {} },           { 1, u"HOTASConfig.exe"_s, u"/CALIBRATE"_s },
        { 2, u"HOTASConfig.exe"_s, u"/CURVES"_s }, { 3, u"HOTASView.exe"_s, {} },
        { 4, u"MultiDevices.exe"_s, {} },          { 5, u"CougarBState.exe"_s, {} },
    };
    for (const DiagCase &row : rows) {
        folder.write(row.program, "tool");
        launcher.launches.clear();
        tools.MnuDiagArray_Click(row.index);
        EXPECT_EQ(started(), QStringList{ inHotas(row.program, row.arguments) }) << row.index;
    }
}

TEST_F(ExternalToolsTest, AMissingViewerIsToldWithItsOwnName)
{
    struct Row {
        int index;
        QString program;
        QString note;
    };
    const QString rest =
        u". It should be in the main HOTAS folder along with the compiler, firmware and CCP. If "
        "it's not there, then you probably don't have the latest TM software installed, as this "
        "application was not present in earlier versions. Goto the TM site or Klaifi and download "
        "the latest Cougar software, and install that."_s;
    for (const Row &row : { Row{ 3, u"HOTASView.exe"_s, {} }, Row{ 4, u"MultiDevices.exe"_s, {} },
                            Row{ 5, u"CougarBState.exe"_s, u", the Logical Flag viewer"_s } }) {
        dialogs.answer(u"I can't find "_s + row.program + u" buddy"_s, BoxButton::Ok);
        tools.MnuDiagArray_Click(row.index);
        EXPECT_EQ(dialogs.boxes().last().text,
                  u"I was unable to find "_s + row.program + row.note + rest);
    }
    EXPECT_TRUE(launcher.launches.isEmpty());
}

TEST_F(ExternalToolsTest, AMissingControlPanelIsToldAndNothingElseHappens)
{
    QFile::remove(paths.config());
    for (int index = 0; index < 3; ++index) {
        dialogs.answer(u"Where is the Cougar Control Panel?"_s, BoxButton::Ok);
        tools.MnuDiagArray_Click(index);
    }
    for (int index = 0; index < 5; ++index) {
        dialogs.answer(u"Where is the Cougar Control Panel?"_s, BoxButton::Ok);
        tools.mnuMemoryClear_Click(index);
    }
    EXPECT_TRUE(launcher.launches.isEmpty());
    EXPECT_EQ(status.text(), QString());
}

TEST_F(ExternalToolsTest, BuffersAndMemoryAreAskedForAndNotWaitedFor)
{
    struct Row {
        int index;
        QString arguments;
        QString panel;
    };
    for (const Row &row :
         { Row{ 0, u"/MODE /ZEPH /EB"_s, u" Emptying the buffers .. please wait ..."_s },
           Row{ 1, u"/MODE /ZEPH /CM"_s, u" Clearing the memory .. please wait ..."_s } }) {
        QString panelAtStart;
        launcher.launches.clear();
        launcher.onStart = [&](const Launch &) {
            panelAtStart = status.text();
            return Expected<void, QString>();
        };
        tools.mnuMemoryClear_Click(row.index);
        EXPECT_EQ(started(), QStringList{ inHotas(u"HOTASConfig.exe"_s, row.arguments) });
        EXPECT_EQ(panelAtStart, row.panel);
        EXPECT_EQ(status.text(), u" Ready"_s);
    }
    EXPECT_EQ(modeTicks, 0);
}

TEST_F(ExternalToolsTest, AResetAsksFirstAndNoIsTheDefault)
{
    dialogs.answer(u"Ok to proceed with RESET?"_s, BoxButton::No);
    tools.mnuMemoryClear_Click(2);
    EXPECT_TRUE(launcher.launches.isEmpty());
    const Box box = dialogs.boxes().first();
    EXPECT_EQ(box.icon, BoxIcon::Question);
    EXPECT_EQ(box.buttons, (QList<BoxButton>{ BoxButton::Yes, BoxButton::No }));
    EXPECT_EQ(box.defaultButton, BoxButton::No);
    EXPECT_TRUE(box.text.startsWith(
        u"You are about to perform a RESET of the Cougar. This is effectively the same as "
        "disconnecting your Cougar from your machine, and then plugging it back in."_s));
    EXPECT_TRUE(box.text.contains(u"trigger"_s));
    EXPECT_TRUE(box.text.contains(u"15 seconds"_s));
    EXPECT_TRUE(box.text.endsWith(u"Would you like me to go ahead and reset the Cougar?"_s));

    QString panelAtStart;
    launcher.onStart = [&](const Launch &) {
        panelAtStart = status.text();
        return Expected<void, QString>();
    };
    dialogs.answer(u"Ok to proceed with RESET?"_s, BoxButton::Yes);
    tools.mnuMemoryClear_Click(2);
    EXPECT_EQ(started(), QStringList{ inHotas(u"HOTASConfig.exe"_s, u"/MODE /ZEPH /RS"_s) });
    EXPECT_EQ(panelAtStart, u" Resetting the Cougar .. please wait ..."_s);
    EXPECT_EQ(status.text(), u" Ready"_s);
}

TEST_F(ExternalToolsTest, CleanseIsAProgramOfItsOwn)
{
    dialogs.answer(u"I can't find HOTASCleanse.exe buddy"_s, BoxButton::Ok);
    tools.mnuMemoryClear_Click(3);
    EXPECT_TRUE(launcher.launches.isEmpty());
    EXPECT_EQ(status.text(), QString());
    folder.write(u"HOTASCleanse.exe"_s, "tool");
    tools.mnuMemoryClear_Click(3);
    EXPECT_EQ(started(), QStringList{ inHotas(u"HOTASCleanse.exe"_s) });
    EXPECT_EQ(status.text(), u" Hope that worked for you. Did wonders for me."_s);
}

TEST_F(ExternalToolsTest, ResynchronisingHasTheModeReported)
{
    tools.mnuMemoryClear_Click(4);
    EXPECT_EQ(started(), QStringList{ inHotas(u"HOTASConfig.exe"_s, u"/MODE /ZEPH /NM"_s) });
    EXPECT_EQ(status.text(), u" Ready"_s);
}

TEST_F(ExternalToolsTest, TheFirmwaresUpdateGoesOverToItsProgram)
{
    folder.write(u"HOTASUpdate.exe"_s, "tool");
    tools.mnuFlashUpgrade_Click();
    EXPECT_EQ(started(), QStringList{ inHotas(u"HOTASUpdate.exe"_s) });
    EXPECT_EQ(status.text(), u" Over to the TM applications for this"_s);
}

TEST_F(ExternalToolsTest, AMissingUpdateIsToldInItsReversedWords)
{
    dialogs.answer(u"There's a problem ... "_s, BoxButton::Ok);
    tools.mnuFlashUpgrade_Click();
    EXPECT_EQ(dialogs.boxes().first().text,
              u"I could locate "_s + paths.hotasFolder + u"HOTASUpdate.exe."_s);
    EXPECT_EQ(dialogs.boxes().first().icon, BoxIcon::Stop);
    EXPECT_TRUE(launcher.launches.isEmpty());
}

TEST_F(ExternalToolsTest, AHandlesInstallerIsAskedForAndStartsInTheRootOfItsDrive)
{
    const QString installer = folder.file(u"My handle.exe"_s);
    dialogs.answerFile(installer);
    tools.mnuHandleInstall_Click();
    EXPECT_EQ(dialogs.files().first().title, u"Select the joystick handle installer"_s);
    EXPECT_EQ(dialogs.files().first().filter, u"Joystick handle installer (*.exe)|*.exe"_s);
    EXPECT_EQ(started(), QStringList{ installer + u"||"_s + rootOf(installer) });

    dialogs.answerFile(std::nullopt);
    tools.mnuHandleInstall_Click();
    EXPECT_EQ(launcher.launches.size(), 1);
}

TEST_F(ExternalToolsTest, GamingOptionsAreWindowsOwn)
{
    tools.mnuFlashArray_Click(0);
    tools.mnuFlashArray_Click(1);
    const QString command = u"rundll32.exe|shell32.dll,Control_RunDLL joy.cpl,,%1|"_s;
    EXPECT_EQ(
        started(),
        (QStringList{ command.arg(0) + paths.hotasFolder, command.arg(1) + paths.hotasFolder }));
}

TEST_F(ExternalToolsTest, AProgramThatDoesNotStartIsToldWithTheReason)
{
    failToStart();
    dialogs.answer(u"Unable to start the program"_s, BoxButton::Ok);
    tools.mnuFlashArray_Click(0);
    EXPECT_EQ(dialogs.boxes().first().text, u"rundll32.exe: no luck"_s);

    dialogs.answer(u"Unable to start the program"_s, BoxButton::Ok);
    folder.write(u"HOTASCleanse.exe"_s, "tool");
    tools.mnuMemoryClear_Click(3);
    EXPECT_EQ(status.text(), QString());
}

TEST_F(ExternalToolsTest, CompanionsStartBesideZeph)
{
    const QMap<QString, QString> expected{
        { u"mnuAppsMultiEditor"_s, u"ZephMFE.exe"_s }, { u"mnuAppsLauncher"_s, u"Launcher.exe"_s },
        { u"mnuAppsAnalyser"_s, u"Analyser.exe"_s },   { u"mnuAppsDX8_0"_s, u"ZephDX8Kb.exe"_s },
        { u"mnuAppsDX8_1"_s, u"ZephDX8Joy.exe"_s },    { u"mnuAppsDX8_2"_s, u"ZephDX8Mouse.exe"_s },
    };
    QMap<QString, QString> table;
    for (const Companion &companion : companionTable()) {
        table.insert(companion.action.toString(), companion.program.toString());
    }
    EXPECT_EQ(table, expected);

    paths.hotasFolder = folder.file(u"Tools/"_s);
    folder.write(u"Launcher.exe"_s, "program");
    tools.startCompanion(u"Launcher.exe");
    EXPECT_EQ(started(), QStringList{ paths.inApp(u"Launcher.exe") + u"||"_s + paths.appFolder });
}

TEST_F(ExternalToolsTest, AMissingCompanionIsToldWithItsPath)
{
    dialogs.answer(u"I can't find ZephMFE.exe buddy"_s, BoxButton::Ok);
    tools.startCompanion(u"ZephMFE.exe");
    EXPECT_TRUE(dialogs.boxes().first().text.contains(paths.inApp(u"ZephMFE.exe")));
    EXPECT_TRUE(launcher.launches.isEmpty());
}

TEST_F(ExternalToolsTest, AStandInAnswersForTheControlPanelOnTheStatusLine)
{
    folder.write(u"HOTASConfig.exe"_s, standInMark);
    for (const int index : { 0, 1, 2 }) {
        status.setText({});
        tools.MnuDiagArray_Click(index);
        EXPECT_TRUE(status.text().startsWith(u" That's the stand-in: ")) << index;
    }
    EXPECT_TRUE(launcher.launches.isEmpty());
}

TEST_F(ExternalToolsTest, AnEntryLacksAProgramThatIsMissingAndSaysWhereItBelongs)
{
    const EntryProgram view{ u"MnuDiagArray_3"_s, paths.hotasFolder + u"HOTASView.exe"_s, true };
    EXPECT_EQ(lackOf(view, launcher),
              u"HOTASView.exe is missing: it isn't in "_s + paths.hotasFolder);
    folder.write(u"hotasview.EXE"_s, "tool");
    EXPECT_EQ(lackOf(view, launcher), u"");
}

TEST_F(ExternalToolsTest, EntriesWithoutABoxOfTheirOwnCannotBeChosenWithoutTheirProgram)
{
    QStringList greyed;
    for (const EntryProgram &each : entryPrograms(paths)) {
        if (!each.tellsByItself) {
            greyed.append(each.entry);
        }
    }
    greyed.sort();
    EXPECT_EQ(
        greyed,
        (QStringList{ u"DownloadArray1_0"_s, u"mnuAppsAnalyser"_s, u"mnuAppsDX8_0"_s,
                      u"mnuAppsDX8_1"_s, u"mnuAppsDX8_2"_s, u"mnuAppsLauncher"_s,
                      u"mnuAppsMultiEditor"_s, u"mnuAxesModeArray_0"_s, u"mnuAxesModeArray_1"_s,
                      u"mnuButtonsModeArray_0"_s, u"mnuButtonsModeArray_1"_s, u"mnuFlashArray_0"_s,
                      u"mnuFlashArray_1"_s, u"mnuMemoryClear_0"_s, u"mnuMemoryClear_1"_s,
                      u"mnuMemoryClear_2"_s, u"mnuMemoryClear_4"_s }));
}
