// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/application.h"

#include "documents/text_control.h"
#include "editor/editor.h"
#include "editor/editor_settings.h"
#include "editor/macros/macro_features.h"
#include "menus/menu_actions.h"
#include "platform/tool_windows.h"
#include "settings/colour_settings.h"
#include "settings/shared_settings.h"
#include "shell/frmtip.h"
#include "shell/help_menu.h"
#include "shell/helpwindow.h"
#include "shell/informationwindow.h"
#include "shell/main_status_bar.h"
#include "shell/mum.h"
#include "shell/settings/shell_settings.h"
#include "shell/welcome.h"
#include "tests/support/shell_world.h"
#include "toolchain/toolchain_settings.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFocusEvent>
#include <QLineEdit>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <functional>

using namespace zeph;

namespace {

/// Plays the pilot in the first run: answers each page as it comes up.
class Pilot : public QObject
{
public:
    QString callsign = u"Maverick"_s;
    int experience = 0;
    int welcomes = 0;
    /// Done on the page of names before they are typed.
    std::function<void(QLineEdit &)> beforeNames;

    Pilot()
    {
        m_timer.setInterval(2);
        connect(&m_timer, &QTimer::timeout, this, &Pilot::answer);
        m_timer.start();
    }

private:
    void answer()
    {
        auto *welcome = qobject_cast<Welcome *>(QApplication::activeModalWidget());
        if (!welcome) {
            return;
        }
        const auto *pages = welcome->findChild<QStackedWidget *>(u"pages"_s);
        if (pages->currentWidget()->objectName() == u"pageName") {
            auto *firstName = welcome->findChild<QLineEdit *>(u"txtFirstName"_s);
            if (beforeNames) {
                beforeNames(*firstName);
            }
            firstName->setText(u"Pete"_s);
            welcome->findChild<QLineEdit *>(u"txtCallsign"_s)->setText(callsign);
            welcome->findChild<QAbstractButton *>(u"cmdNames"_s)->click();
        } else if (pages->currentWidget()->objectName() == u"pageExperience") {
            ++welcomes;
            welcome
                ->findChild<QAbstractButton *>(u"Option_Experience_"_s
                                               + QString::number(experience))
                ->click();
            welcome->findChild<QAbstractButton *>(u"cmdExperience"_s)->click();
        } else if (pages->currentWidget()->objectName() == u"pageHotas") {
            welcome->findChild<QAbstractButton *>(u"cmdHotas"_s)->click();
        } else if (pages->currentWidget()->objectName() == u"pageLook") {
            welcome->findChild<QAbstractButton *>(u"cmdFinish"_s)->click();
        }
    }

    QTimer m_timer;
};

struct Start : test::ShellWorld {
    std::unique_ptr<Application> app;

    bool start()
    {
        app.reset();
        app = application();
        return app->start();
    }
    void startAgain() { ASSERT_TRUE(start()); }

    template <class T> bool isOpen() { return app->mum().toolWindows().isOpen<T>(); }
    QString stored(const QString &section, const QString &key) const
    {
        return ProfileFile(paths.iniPath).text(section, key, u"(absent)"_s);
    }
    QString title() const { return app->mum().windowTitle(); }
};

const QByteArray favourite = "[Favourites]\r\nFavArrayNum=1\r\nFavLoadOnStart=1\r\n"
                             "FavNameToLoad=Viper\r\nFavName1=Viper\r\nFavMFPath1=None\r\n";

} // namespace

TEST_F(Start, MakesItsFolders)
{
    writeStore();
    ASSERT_TRUE(start());
    for (const auto *name : { u"Rtf", u"Files", u"Layouts", u"Temp", u"Backup" }) {
        EXPECT_TRUE(QDir(folder.file(QString::fromUtf16(name))).exists());
    }
    EXPECT_EQ(app->paths().compiler(), folder.file(u"HOTASCompiler.exe"_s));
}

TEST_F(Start, WelcomesAndHasTwoFreshDocuments)
{
    writeStore("[Miscellaneous]\r\nPilotCallsign=Goose\r\n");
    ASSERT_TRUE(start());
    EXPECT_EQ(status.text(), QString()) << "the status line is the application's own";
    EXPECT_EQ(app->status().text(), u"Ready! Welcome to Zeph, Goose!");
    EXPECT_EQ(app->editor().joystick().name(), u"Untitled.tmj");
    EXPECT_EQ(app->editor().macro().name(), u"Untitled.tmm");
    EXPECT_EQ(app->editor().selected().kind(), DocumentKind::Joystick);
    EXPECT_EQ(app->status().lineText(), u"Line no: 1");
    EXPECT_EQ(app->status().modePicture(), 1);
}

TEST_F(Start, FillsInTheDefaultPathsAndSavesThemAtOnce)
{
    writeStore();
    ASSERT_TRUE(start());
    EXPECT_EQ(stored(u"FileLocations"_s, u"BackUpFolder"_s), nativeSeparators(u"Backup/"_s));
    EXPECT_EQ(app->settings().of<EditorSettings>().BackUpFolder, folder.file(u"Backup/"_s));
    EXPECT_EQ(stored(u"Apps"_s, u"ImageFilePath"_s), u"Zeph.bmp");
    EXPECT_EQ(stored(u"Apps"_s, u"TextFilePath"_s), u"ReadMe.txt");
}

TEST_F(Start, AnAbsentStoreIsAFirstRunAndHoldsEveryKeyAfterIt)
{
    Pilot pilot;
    pilot.experience = 3;
    ASSERT_TRUE(start());
    EXPECT_EQ(pilot.welcomes, 1);
    int colours = 0;
    for (const SettingsGroup *group : app->settings().groups()) {
        for (const SettingKey *setting : group->keys()) {
            const bool colour = setting->step == SettingsStep::Colours;
            colours += colour ? 1 : 0;
            if (setting->store == SettingsStore::Zeph && (setting->isSaved() || colour)) {
                const QString key = setting->key.toString();
                EXPECT_NE(stored(setting->section.toString(), key), u"(absent)")
                    << key.toStdString();
            }
        }
    }
    EXPECT_EQ(colours, 16);
    EXPECT_EQ(stored(u"Colours"_s, u"BackgroundColour"_s), u"14285565");
    EXPECT_EQ(stored(u"Colours"_s, u"MacroListBackground"_s), u"11779289");
    EXPECT_EQ(stored(u"Handles"_s, u"Default"_s), u"F-16 Block 50.tmh");
    EXPECT_EQ(stored(u"Handles"_s, u"Handle1"_s), u"F-16 Block 50.tmh");
    EXPECT_EQ(stored(u"Handles"_s, u"NumHandles"_s), u"1");
    EXPECT_EQ(stored(u"Miscellaneous"_s, u"UndoMax"_s), u"20");
    EXPECT_EQ(stored(u"FileLocations"_s, u"ShowTips"_s), u"(absent)")
        << "the global save does not add it";
}

TEST_F(Start, TheTextColoursOutliveTheSaveAtTheStart)
{
    writeStore("[Colours]\r\nJoystickTextDefaultColour=255\r\nMacroTextDefaultColour=32768\r\n");
    ASSERT_TRUE(start());
    EXPECT_EQ(stored(u"Colours"_s, u"JoystickTextDefaultColour"_s), u"255");
    EXPECT_EQ(stored(u"Colours"_s, u"MacroTextDefaultColour"_s), u"32768");
    EXPECT_EQ(app->settings().of<ColourSettings>().JoystickTextDefaultColour, colorRef(255, 0, 0));
}

TEST_F(Start, TheColourDialogsCustomColoursAreThoseOfTheStore)
{
    writeStore("[Colours]\r\nCustomColour2=255\r\n");
    ASSERT_TRUE(start());
    CustomColours colours = dialogs.customColours.read();
    EXPECT_EQ(colours[1], colorRef(255, 0, 0));
    colours[15] = colorRef(0, 0, 1);
    dialogs.customColours.keep(colours);
    EXPECT_EQ(stored(u"Colours"_s, u"CustomColour16"_s), u"65536");
    app.reset();
    EXPECT_FALSE(dialogs.customColours.read) << "the store goes with its application";
}

TEST_F(Start, AValueThatIsNoNumberIsToldOnceThoughItIsReadAtSeveralSteps)
{
    writeStore("[Miscellaneous]\r\nMumTopAtStartup=high\r\n[Unsupported]\r\n"
               "TurnOffFontCheck=70000\r\nRegainControlAfter=never\r\n"
               "[Colours]\r\nMacroTextDefaultColour=red\r\n");
    for (int i = 0; i < 3; ++i) {
        dialogs.answer(u"Zeph"_s, BoxButton::Ok);
    }
    ASSERT_TRUE(start());
    QString told;
    for (const Box &box : dialogs.boxes()) {
        told += box.text;
    }
    for (const QString &value : { u"=high"_s, u"=70000"_s, u"=never"_s, u"=red"_s }) {
        EXPECT_EQ(told.count(value), 1) << value.toStdString();
    }
    EXPECT_EQ(app->settings().of<ShellSettings>().MumTopAtStartup, 0);
    EXPECT_EQ(app->settings().of<ToolchainSettings>().RegainControlAfter, 45000);
}

TEST_F(Start, TheWelcomeKeepsItsKeyboardLayout)
{
    folder.write(u"Zeph.ini"_s, "[Unsupported]\r\nForeignLanguageKBInputFix=1\r\n");
    keyboard.layout = u"0000040C"_s;
    Pilot pilot;
    pilot.experience = 3;
    pilot.beforeNames = [this](QLineEdit &box) {
        keyboard.layout = u"00000409"_s;
        QFocusEvent event(QEvent::FocusIn);
        QApplication::sendEvent(&box, &event);
    };
    ASSERT_TRUE(start());
    EXPECT_EQ(keyboard.loaded.value(0), u"0000040C");
}

TEST_F(Start, ToolWindowsKeepTheirKeyboardLayout)
{
    folder.write(u"Help/contents.html"_s, "<p>Help</p>");
    writeStore("[Unsupported]\r\nForeignLanguageKBInputFix=1\r\n");
    ASSERT_TRUE(start());
    keyboard.layout = u"0000040C"_s;
    app->help().mnuHelpContents_Click();
    keyboard.layout = u"00000409"_s;
    keyboard.loaded.clear();
    QFocusEvent event(QEvent::FocusIn);
    QApplication::sendEvent(
        app->mum().toolWindows().get<HelpWindow>()->findChild<QLineEdit *>(u"txtFind"_s), &event);
    EXPECT_EQ(keyboard.loaded, QStringList{ u"0000040C"_s });
}

TEST_F(Start, TheStatusBarsEndCompilesWhateverTabIsSelected)
{
    writeStore();
    arguments = { folder.write(u"Alone.tmm"_s, "Fire = a\r\n") };
    ASSERT_TRUE(start());
    ASSERT_FALSE(app->editor().action(u"mnuAppsCompile")->isEnabled());
    dialogs.answer(u"Nothing to compile ..."_s, BoxButton::Ok);
    QTest::mousePress(&app->mum().bar(), Qt::RightButton, {}, QPoint(5, 10));
    EXPECT_EQ(boxTitles(), QStringList{ u"Nothing to compile ..."_s });
}

TEST_F(Start, TheFirstRunTakesWhatThePilotSays)
{
    Pilot pilot;
    pilot.experience = 3;
    ASSERT_TRUE(start());
    EXPECT_EQ(stored(u"FileLocations"_s, u"FirstTimeUsed"_s), u"5");
    EXPECT_EQ(stored(u"Miscellaneous"_s, u"PilotCallsign"_s), u"Maverick");
    EXPECT_EQ(stored(u"Miscellaneous"_s, u"ValidUser"_s), u"Pete \"Maverick\"");
    EXPECT_EQ(ProfileFile(app->paths().hotasIni()).text(u"Files", u"Files"),
              app->paths().filesFolder());
}

TEST_F(Start, TheFirstRunMakesFavouritesOfTheFlightSimulatorsThatItFinds)
{
    folder.write(u"Files/FB.tmj"_s, "BTN S2 a\r\n");
    folder.write(u"Files/TM Eaw.tmj"_s, "BTN S2 a\r\n");
    Pilot pilot;
    pilot.experience = 3;
    ASSERT_TRUE(start());
    EXPECT_EQ(stored(u"Favourites"_s, u"FavArrayNum"_s), u"2");
    EXPECT_EQ(stored(u"Favourites"_s, u"FavName1"_s), u"European Air War");
    EXPECT_EQ(stored(u"Favourites"_s, u"FavMFPath1"_s), nativeSeparators(u"Files/TM Eaw.tmm"_s));
    EXPECT_EQ(stored(u"Favourites"_s, u"FavName2"_s), u"Forgotten Battles");
    EXPECT_EQ(stored(u"Favourites"_s, u"FavLoadOnStart"_s), u"0");
    EXPECT_EQ(stored(u"Apps"_s, u"CustomAppUse4"_s), u"0");
    const auto *first = entryOf(app->editor(), u"mnuFavArray_1"_s);
    ASSERT_TRUE(first);
    EXPECT_EQ(first->text(), u"European Air War");
}

TEST_F(Start, OnTheFirstRunTheTipDoesNotAppearAndOnTheNextItDoes)
{
    folder.write(u"Tips.txt"_s, "One\n");
    Pilot pilot;
    pilot.experience = 3;
    ASSERT_TRUE(start());
    EXPECT_FALSE(isOpen<frmTip>());
    startAgain();
    EXPECT_TRUE(isOpen<frmTip>());
    EXPECT_EQ(pilot.welcomes, 1);
}

TEST_F(Start, TheFirstTwoAnswersShowAnInformationText)
{
    folder.write(u"Info/Information 20.rtf"_s, "{\\rtf1 Twenty}");
    folder.write(u"Info/Information 21.rtf"_s, "{\\rtf1 Twenty one}");
    Pilot pilot;
    const auto shown = [&] {
        return app->mum()
            .toolWindows()
            .get<InformationWindow>()
            ->findChild<QTextEdit *>(u"txtInformation"_s)
            ->toPlainText();
    };
    ASSERT_TRUE(start());
    EXPECT_EQ(shown(), u"Twenty");
    QFile::remove(paths.iniPath);
    pilot.experience = 1;
    startAgain();
    EXPECT_EQ(shown(), u"Twenty one");
}

TEST_F(Start, TheVeteransAnswerShowsHelpTopic100)
{
    folder.write(u"Help/topics.txt"_s, "100\tveteran.html\tVeterans\n");
    folder.write(u"Help/veteran.html"_s, "<p>Hello again</p>");
    Pilot pilot;
    pilot.experience = 2;
    ASSERT_TRUE(start());
    EXPECT_TRUE(isOpen<HelpWindow>());
}

TEST_F(Start, TheFirstRunGreetsByTheCallsignThatItAskedFor)
{
    Pilot pilot;
    pilot.experience = 3;
    ASSERT_TRUE(start());
    EXPECT_EQ(app->status().text(), u"Ready! Welcome to Zeph, Maverick!");
}

TEST_F(Start, AFileOfAnyEndingOnTheCommandLineIsTheJoystickFile)
{
    for (const QByteArray &single : { QByteArray("0"), QByteArray("1") }) {
        writeStore("[Miscellaneous]\r\nOpenSingleFileOnly=" + single + "\r\n");
        arguments = { folder.write(u"notes.txt"_s, "Rem mine\r\n") };
        ASSERT_TRUE(start());
        EXPECT_EQ(app->editor().joystick().path(), arguments.first());
        EXPECT_EQ(app->editor().joystickText(), u"Rem mine\n");
        app.reset();
    }
}

TEST_F(Start, ACommandLineThatNamesNoExistingFileIsToldAndDropped)
{
    writeStore();
    arguments = { folder.file(u"gone.tmj"_s) };
    dialogs.answer(u"I can't find that file buddy"_s, BoxButton::Ok);
    ASSERT_TRUE(start());
    EXPECT_EQ(app->editor().joystick().name(), u"Untitled.tmj");
    EXPECT_EQ(app->status().text(), u"Ready! Welcome to Zeph, buddy!");
}

TEST_F(Start, ARestoredPairIsGreetedToo)
{
    const QString joystickFile = folder.write(u"Files/a.tmj"_s, "BTN S1 a");
    const QString macroFile = folder.write(u"Files/a.tmm"_s, "m = a");
    writeStore("[Miscellaneous]\r\nRestoreStatus=1\r\nRestoreJoyFile=" + joystickFile.toUtf8()
               + "\r\nRestoreMacroFile=" + macroFile.toUtf8() + "\r\n");
    ASSERT_TRUE(start());
    EXPECT_EQ(app->editor().macroText(), u"m = a");
    EXPECT_TRUE(app->status().text().startsWith(u"Ready! Welcome to Zeph, "_s))
        << app->status().text().toStdString();
}

TEST_F(Start, ADroppedCommandLineLeavesTheRestoredFilesAsIfNoneWereGiven)
{
    const QString last = folder.write(u"last.tmj"_s, "BTN S2 a\r\n");
    writeStore("[Miscellaneous]\r\nRestoreJoyFile=" + last.toLocal8Bit() + "\r\n");
    arguments = { folder.file(u"gone.tmj"_s) };
    dialogs.answer(u"I can't find that file buddy"_s, BoxButton::Ok);
    ASSERT_TRUE(start());
    EXPECT_EQ(app->editor().joystick().path(), last);
}

TEST_F(Start, ACommandLineOpensItsFileAndItsPartner)
{
    writeStore();
    const QString joystickFile = folder.write(u"my files/Viper.tmj"_s, "BTN S2 Fire\r\n");
    const QString macro = folder.write(u"my files/Viper.tmm"_s, "Fire = a\r\n");
    arguments = { joystickFile };
    ASSERT_TRUE(start());
    EXPECT_EQ(app->editor().joystick().path(), joystickFile);
    EXPECT_EQ(app->editor().macro().path(), macro);
    EXPECT_EQ(app->editor().selected().kind(), DocumentKind::Joystick);
}

TEST_F(Start, ACommandLineThatAShellHasPartedIsOneName)
{
    writeStore();
    const QString joystickFile = folder.write(u"my files/Viper.tmj"_s, "BTN S2 a\r\n");
    arguments = joystickFile.split(u' ');
    ASSERT_EQ(arguments.size(), 2);
    ASSERT_TRUE(start());
    EXPECT_EQ(app->editor().joystick().path(), joystickFile);
}

TEST_F(Start, AMacroFileOnTheCommandLineStaysInFront)
{
    writeStore();
    arguments = { folder.write(u"Alone.tmm"_s, "Fire = a\r\n") };
    ASSERT_TRUE(start());
    EXPECT_EQ(app->editor().macro().name(), u"Alone.tmm");
    EXPECT_EQ(app->editor().selected().kind(), DocumentKind::Macro);
}

TEST_F(Start, MacrosOfARestoredPairAreIdentifiedOnce)
{
    const QString joystickFile = folder.write(u"p.tmj"_s, "BTN S1 Gun\r\n");
    const QString macro = folder.write(u"p.tmm"_s, "Gun = b\r\nIdle = i\r\n");
    writeStore("[Miscellaneous]\r\nRestoreStatus=1\r\nRestoreJoyFile=" + joystickFile.toLocal8Bit()
               + "\r\nRestoreMacroFile=" + macro.toLocal8Bit() + "\r\n");
    app = application();
    const QSignalSpy told(&app->status(), &StatusLine::textChanged);
    ASSERT_TRUE(app->start());
    EXPECT_EQ(std::count_if(told.begin(), told.end(),
                            [](const auto &each) {
                                return each[0].toString()
                                    == u"Finished analysing the macros assigned in your joystick "
                                       "file.";
                            }),
              1);
    const MacroListModel &list = app->editor().macros().list().model();
    EXPECT_TRUE(list.isTicked(u"Gun"_s));
    EXPECT_FALSE(list.isTicked(u"Idle"_s));
}

TEST_F(Start, TheAutoloadFavouriteAppliesWithBothRestoreKeysEmpty)
{
    const QString viper = folder.write(u"Viper.tmj"_s, "BTN S2 a\r\n");
    writeStore("[Miscellaneous]\r\nRestoreStatus=1\r\n" + favourite
               + "FavJFPath1=" + viper.toLocal8Bit() + "\r\n");
    ASSERT_TRUE(start());
    EXPECT_EQ(app->editor().joystick().path(), viper);
}

TEST_F(Start, TheAutoloadFavouriteDoesNotApplyWithARestoredFile)
{
    const QString viper = folder.write(u"Viper.tmj"_s, "BTN S2 a\r\n");
    const QString last = folder.write(u"last.tmm"_s, "Fire = a\r\n");
    writeStore("[Miscellaneous]\r\nRestoreStatus=1\r\nRestoreMacroFile=" + last.toLocal8Bit()
               + "\r\n" + favourite + "FavJFPath1=" + viper.toLocal8Bit() + "\r\n");
    ASSERT_TRUE(start());
    EXPECT_EQ(app->editor().macro().path(), last);
    EXPECT_EQ(app->editor().joystick().name(), u"Untitled.tmj");
}

TEST_F(Start, RestoreStatusOffLeavesTheLastFilesClosedAndTheAutoloadFavouriteApplies)
{
    const QString viper = folder.write(u"Viper.tmj"_s, "BTN S2 a\r\n");
    const QString last = folder.write(u"last.tmm"_s, "Fire = a\r\n");
    writeStore("[Miscellaneous]\r\nRestoreStatus=0\r\nRestoreMacroFile=" + last.toLocal8Bit()
               + "\r\n" + favourite + "FavJFPath1=" + viper.toLocal8Bit() + "\r\n");
    ASSERT_TRUE(start());
    EXPECT_EQ(app->editor().joystick().path(), viper);
    EXPECT_EQ(app->editor().macro().name(), u"Untitled.tmm");
}

TEST_F(Start, AFurtherInstanceThatClosesWhileMinimisedLeavesItsCopy)
{
    writeStore();
    const InstanceLock first(folder.path());
    ASSERT_TRUE(start());
    app->mum().showMinimized();
    app->mum().close();
    EXPECT_TRUE(folder.exists(u"Zeph.2"_s));
}

TEST_F(Start, WhatAFurtherInstanceSavesStaysOutOfTheStore)
{
    writeStore("[Miscellaneous]\r\nMumWindowstate=0\r\n");
    const QByteArray before = folder.read(u"Zeph.ini"_s);
    const InstanceLock first(folder.path());
    ASSERT_TRUE(start());
    app->mum().move(30, 40);
    app->mum().close();
    EXPECT_EQ(folder.read(u"Zeph.ini"_s), before);
}

TEST_F(Start, AFurtherInstanceShowsSoAndWorksOnItsOwnStore)
{
    writeStore();
    const InstanceLock first(folder.path());
    ASSERT_TRUE(first.isFirst());
    ASSERT_TRUE(start());
    EXPECT_EQ(title(), u"Untitled.tmj[*] - Zeph - secondary window");
    EXPECT_TRUE(folder.exists(u"Zeph.2"_s));
    app->mum().close();
    EXPECT_FALSE(folder.exists(u"Zeph.2"_s));
}

TEST_F(Start, TheFirstInstanceClearsWhatCrashedOnesLeft)
{
    writeStore();
    folder.write(u"Zeph.2"_s, "left behind");
    ASSERT_TRUE(start());
    EXPECT_EQ(title(), u"Untitled.tmj[*] - Zeph");
    EXPECT_FALSE(folder.exists(u"Zeph.2"_s));
}

TEST_F(Start, With997FurtherInstancesTheNextOneEnds)
{
    writeStore();
    const InstanceLock first(folder.path());
    const QByteArray mark = folder.read(u"Zeph.lock"_s);
    for (int n = 2; n <= 998; ++n) {
        folder.write(u"Zeph.%1.lock"_s.arg(n), mark);
    }
    dialogs.answer(u"Exiting now ..."_s, BoxButton::Ok);
    EXPECT_FALSE(start());
    ASSERT_EQ(dialogs.boxes().size(), 1);
    EXPECT_EQ(dialogs.boxes()[0].text,
              u"Sorry, you've got too many windows open. Far too many !!!");
}

TEST_F(Start, AStoreLockedLongAgoByAnotherMachineIsTakenOverAfterAQuestion)
{
    writeStore();
    QFile lock(folder.write(u"Zeph.lock"_s, "4711\nzeph\nhangar\nfeedc0de\n0815\n"));
    ASSERT_TRUE(lock.open(QFile::ReadWrite));
    ASSERT_TRUE(lock.setFileTime(QDateTime::currentDateTime().addDays(-1),
                                 QFileDevice::FileModificationTime));
    lock.close();
    dialogs.answer(u"Is somebody else at work?"_s, BoxButton::Yes);
    ASSERT_TRUE(start());
    EXPECT_EQ(title(), u"Untitled.tmj[*] - Zeph");
}

TEST_F(Start, WithoutAnyFolderToWriteOneBoxSaysJustThat)
{
    writeStore("[FileLocations]\r\nBackUpFolder=/proc/none/\r\n");
    canWrite = false;
    dialogs.answer(u"I can't write anything"_s, BoxButton::Ok);
    ASSERT_TRUE(start());
    EXPECT_EQ(boxTitles(), QStringList{ u"I can't write anything"_s });
}

TEST_F(Start, TheStatusLineNamesTheFilesThatAnUpgradeKept)
{
    writeStore();
    keptFiles = { u"Help/backups.html"_s, u"KeyCodes.txt"_s };
    ASSERT_TRUE(start());
    EXPECT_TRUE(app->status().text().endsWith(u"kept yours: Help/backups.html, KeyCodes.txt"_s))
        << app->status().text().toStdString();
}

TEST_F(Start, AMovedFolderFindsItsFilesAndTellsOtherProgramsWhereTheyAre)
{
    folder.write(u"Files/a.tmj"_s, "BTN S2 a\r\n");
    writeStore("[Miscellaneous]\r\nRestoreJoyFile=/gone/Zeph/Files/a.tmj\r\n");
    folder.write(u"HOTAS.ini"_s, "[Files]\r\nFiles=/gone/Zeph/Files/\r\n");
    ASSERT_TRUE(start());
    EXPECT_EQ(app->editor().joystick().path(), folder.file(u"Files/a.tmj"_s));
    EXPECT_EQ(ProfileFile(app->paths().hotasIni()).text(u"Files", u"Files"),
              app->paths().filesFolder());
    app->mum().close();
    EXPECT_EQ(stored(u"Miscellaneous"_s, u"RestoreJoyFile"_s), nativeSeparators(u"Files/a.tmj"_s));
}

TEST_F(Start, AFilesFolderThatNobodyAskedForIsNotWrittenForOtherPrograms)
{
    writeStore();
    ASSERT_TRUE(start());
    EXPECT_EQ(ProfileFile(app->paths().hotasIni()).text(u"Files", u"Files", u"(absent)"_s),
              u"(absent)");
}

TEST_F(Start, OtherThan96PixelsAnInchWarnsOfSmallFontsAndGoesOn)
{
    writeStore();
    screen.dpi = 120;
    dialogs.answer(u"WARNING: Small fonts not detected!"_s, BoxButton::Ok);
    ASSERT_TRUE(start());
    const QString text = dialogs.boxes()[0].text;
    EXPECT_TRUE(text.startsWith(
        u"WARNING: I've just had a quick check to see what your Display Font Size is set to, and "
        "I've noticed that your settings are not the default 'Small Fonts' size."_s));
    EXPECT_TRUE(text.endsWith(
        u"Please see the help file topic: 'Small Fonts, big problems' under the Miscellaneous "
        "heading for more information."_s));
}

TEST_F(Start, TurnOffFontCheckTurnsTheWarningOff)
{
    writeStore("[Unsupported]\r\nTurnOffFontCheck=1\r\n");
    screen.dpi = 120;
    EXPECT_TRUE(start());
}

TEST_F(Start, AMissingZephInfoIsToldAndManualsStayDisabled)
{
    writeStore();
    QFile::remove(folder.file(u"Info/ZephInfo.ini"_s));
    dialogs.answer(u"Missing file"_s, BoxButton::Ok);
    ASSERT_TRUE(start());
    EXPECT_EQ(dialogs.boxes()[0].text,
              u"Interesting. ZephInfo.ini is missing from Zeph's Info folder, so I'm not going to "
              "be able to enable the Help menu's Manuals menu item.");
    EXPECT_FALSE(app->editor().action(u"mnuHelpManuals")->isEnabled());
}

TEST_F(Start, BoxesComeInTheOrderOfTheStart)
{
    writeStore();
    folder.write(u"file"_s, "in the way");
    ASSERT_TRUE(
        ProfileFile(paths.iniPath)
            .write({ u"FileLocations"_s, u"BackUpFolder"_s, folder.file(u"file/below"_s) }));
    QFile::remove(folder.file(u"Info/ZephInfo.ini"_s));
    screen.dpi = 72;
    const QStringList order{ u"WARNING: Small fonts not detected!"_s,
                             u"Backup folder location error"_s, u"Missing file"_s };
    for (const QString &title : order) {
        dialogs.answer(title, BoxButton::Ok);
    }
    ASSERT_TRUE(start());
    EXPECT_EQ(boxTitles(), order);
}

TEST_F(Start, VistaHidesTheDirectXTesters)
{
    writeStore("[Miscellaneous]\r\nDefaultToDX8KeyTester=1\r\n");
    system.vista = true;
    ASSERT_TRUE(start());
    for (const QStringView name :
         { u"mnuAppsDX8Divider", u"mnuAppsDX8_0", u"mnuAppsDX8_1", u"mnuAppsDX8_2" }) {
        EXPECT_FALSE(app->editor().action(name)->isVisible());
    }
    EXPECT_EQ(app->settings().of<SharedSettings>().DefaultToDX8KeyTester, 0);
}

TEST_F(Start, OtherSystemsShowTheDirectXTesters)
{
    writeStore("[Miscellaneous]\r\nDefaultToDX8KeyTester=1\r\n");
    ASSERT_TRUE(start());
    EXPECT_TRUE(app->editor().action(u"mnuAppsDX8_0")->isVisible());
    EXPECT_EQ(app->settings().of<SharedSettings>().DefaultToDX8KeyTester, 1);
}

TEST_F(Start, AStoredPlaceIsTakenUpUnlessMaximised)
{
    writeStore("[Miscellaneous]\r\nMumWindowstate=0\r\nMumLeftAtStartup=150\r\n"
               "MumTopAtStartup=300\r\nMumWidthAtStartup=10500\r\nMumHeightAtStartup=7500\r\n");
    ASSERT_TRUE(start());
    EXPECT_FALSE(app->mum().isMaximized());
    EXPECT_EQ(app->mum().size(), QSize(700, 500));
    EXPECT_EQ(app->mum().pos(), QPoint(10, 20));
}

TEST_F(Start, MaximisedIsTheDefault)
{
    writeStore();
    ASSERT_TRUE(start());
    EXPECT_TRUE(app->mum().isMaximized());
}
