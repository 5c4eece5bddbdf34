// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/compile/download_menu.h"

#include "documents/editor_view.h"
#include "documents/text_control.h"
#include "editor/editor.h"
#include "editor/editor_settings.h"
#include "editor/files/file_opening.h"
#include "editor/macros/macro_features.h"
#include "editor/right_menu.h"
#include "menus/menu_actions.h"
#include "platform/core/profile_file.h"
#include "settings/shared_settings.h"
#include "shell/help_menu.h"
#include "shell/main_scene.h"
#include "shell/mum.h"
#include "tests/support/shell_world.h"
#include "toolchain/cougar_tools.h"
#include "toolchain/default_options.h"
#include "toolchain/tool_presence.h"
#include "toolchain/toolchain_settings.h"

#include <QAction>
#include <QComboBox>
#include <QFile>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>
#include <QToolButton>

using namespace zeph;

namespace {

const QString success = u"File successfully compiled!"_s;

/// A main window with a saved joystick file, and a compiler that answers at once.
struct DownloadMenuTest : test::ShellWorld {
    std::unique_ptr<Mum> mum;
    Editor *editor = nullptr;
    CougarTools *tools = nullptr;

    void SetUp() override
    {
        settings.of<ToolchainSettings>().CheckForCompletionTime = 1;
        settings.of<ToolchainSettings>().RunKeyTest = true;
        settings.of<DefaultOptions>().DownloadMode = true;
        folder.write(u"HOTASCompiler.exe"_s, "tool");
        folder.write(u"HOTASConfig.exe"_s, "tool");
        launcher.onStart = [this](const Launch &) {
            lockedAtStart = control()->isReadOnly();
            EXPECT_TRUE(hotasIni().write({ u"Compiler"_s, u"Status"_s, verdict }));
            return Expected<void, QString>();
        };
    }
    void show()
    {
        mum = std::make_unique<Mum>(context());
        editor = new Editor(context(), mum.get());
        mum->attachEditor(editor);
        auto *help = new HelpMenu(context(), downloader, mum->toolWindows(), *editor);
        tools = new CougarTools(context(), joystick, *mum);
        new MainScene(context(), { *mum, *editor, *help, *tools });
        mum->show();
        control()->shown().setText(u"BTN S1 a"_s);
        editor->joystick().rename(folder.write(u"Files/a.tmj"_s, "BTN S1 a"));
        editor->joystick().setState(Document::Saved);
    }
    TextControl *control() const { return &editor->view().control(DocumentKind::Joystick); }
    QAction *entry(int index) const
    {
        return editor->action(u"DownloadArray1_"_s + QString::number(index));
    }
    ProfileFile hotasIni() const { return ProfileFile(paths.hotasIni()); }
    ProfileFile store() const { return ProfileFile(paths.iniPath); }
    /// What a download would tell of these entries: which one opened.
    QString testerOpened()
    {
        QString opened;
        QObject holder;
        for (const QString &name : { u"mnuAppsKeyTester"_s, u"mnuAppsDX8_0"_s }) {
            QAction *tester = editor->action(name);
            tester->setEnabled(true);
            tester->disconnect();
            QObject::connect(tester, &QAction::triggered, &holder, [&opened, name, this] {
                opened += name;
                EXPECT_FALSE(control()->isReadOnly());
            });
        }
        dialogs.answer(success, BoxButton::Ok);
        entry(0)->trigger();
        return opened;
    }

    QString verdict = u"OKAY"_s;
    bool lockedAtStart = false;
};

} // namespace

TEST_F(DownloadMenuTest, TheEntriesShowWhatTheSettingsSay)
{
    settings.of<ToolchainSettings>().NumlockDownloadMode = true;
    show();
    EXPECT_TRUE(entry(1)->isChecked());
    EXPECT_TRUE(entry(2)->isChecked());
    EXPECT_TRUE(entry(2)->isEnabled());
    EXPECT_TRUE(entry(3)->isChecked());
    EXPECT_FALSE(entry(4)->isChecked());
    EXPECT_EQ(entry(0)->shortcut(), QKeySequence(Qt::Key_F12));
}

TEST_F(DownloadMenuTest, TheFirstEntryNamesTheJoystickFileOfTheCougarsOwnKind)
{
    show();
    editor->opening().OpenFavouriteFile(folder.write(u"Files/FALCON.TMJ"_s, "BTN"));
    editor->documents().select(DocumentKind::Macro);
    EXPECT_EQ(entry(0)->text(), u"&Download FALCON.tmj");
    editor->opening().OpenFavouriteFile(folder.write(u"Files/old.f22"_s, "BTN"));
    EXPECT_EQ(entry(0)->text(), u"&Download joystick file");
}

TEST_F(DownloadMenuTest, WithoutProgrammedModeTheKeyTesterCannotBeChosen)
{
    settings.of<DefaultOptions>().DownloadMode = false;
    show();
    EXPECT_FALSE(entry(1)->isChecked());
    EXPECT_FALSE(entry(2)->isEnabled());
    EXPECT_EQ(testerOpened(), u"") << "its setting alone opens nothing";
}

TEST_F(DownloadMenuTest, UntickingEntry1ClearsAndDisablesEntry2AndNoKeyTesterOpens)
{
    show();
    entry(1)->trigger();
    EXPECT_FALSE(entry(2)->isChecked());
    EXPECT_FALSE(entry(2)->isEnabled());
    EXPECT_EQ(settings.of<ToolchainSettings>().RunKeyTest, 0);
    EXPECT_EQ(hotasIni().text(u"Defaults", u"DownloadMode", u"none"_s), u"0");
    EXPECT_EQ(testerOpened(), u"");
    EXPECT_TRUE(launcher.launches[0].arguments.startsWith(u"/ZEPH /CD "));
}

TEST_F(DownloadMenuTest, TickingEntry1AgainEnablesEntry2WithoutItsTick)
{
    show();
    entry(1)->trigger();
    entry(1)->trigger();
    EXPECT_TRUE(entry(2)->isEnabled());
    EXPECT_FALSE(entry(2)->isChecked());
    EXPECT_EQ(hotasIni().text(u"Defaults", u"DownloadMode", u"none"_s), u"1");
}

TEST_F(DownloadMenuTest, Entry2IsSavedAtExitOnly)
{
    show();
    entry(2)->trigger();
    EXPECT_EQ(settings.of<ToolchainSettings>().RunKeyTest, 0);
    EXPECT_EQ(store().text(u"Miscellaneous", u"RunKeyTest", u"none"_s), u"none");
}

TEST_F(DownloadMenuTest, Entries3And4AreSavedAtOnce)
{
    show();
    entry(3)->trigger();
    entry(4)->trigger();
    EXPECT_EQ(store().text(u"Launcher", u"NumlockDownloadMode", u"none"_s), u"1");
    EXPECT_EQ(store().text(u"Miscellaneous", u"RunAppsWithDownload", u"none"_s), u"1");
    EXPECT_EQ(hotasIni().text(u"Defaults", u"DownloadMode", u"none"_s), u"1");
}

TEST_F(DownloadMenuTest, TheTextIsLockedDuringTheWaitAndEditableAfterIt)
{
    settings.of<ToolchainSettings>().RunKeyTest = false;
    show();
    dialogs.answer(success, BoxButton::Ok);
    entry(0)->trigger();
    EXPECT_TRUE(lockedAtStart);
    EXPECT_FALSE(control()->isReadOnly());
    QTest::keyClicks(control(), u"x"_s);
    EXPECT_TRUE(control()->shown().text().contains(u'x'));
}

TEST_F(DownloadMenuTest, ALockedTextRefusesWhatMenusAndToolsWouldChange)
{
    settings.of<ToolchainSettings>().RunKeyTest = false;
    show();
    launcher.onStart = [this](const Launch &) {
        QTimer::singleShot(0, control(), [this] {
            control()->selectAll();
            editor->actions().action(u"mnuEditCut")->trigger();
            editor->actions().action(u"mnuEditPaste")->trigger();
            editor->actions().action(u"mnuBlockREM")->trigger();
            EXPECT_EQ(control()->shown().text(), u"BTN S1 a");
            EXPECT_TRUE(hotasIni().write({ u"Compiler"_s, u"Status"_s, verdict }));
        });
        return Expected<void, QString>();
    };
    dialogs.answer(success, BoxButton::Ok);
    entry(0)->trigger();
    EXPECT_EQ(control()->shown().text(), u"BTN S1 a");
}

TEST_F(DownloadMenuTest, ALockedTextIsNeitherReplacedNorRenamedNorAlignedFromEitherTab)
{
    settings.of<ToolchainSettings>().RunKeyTest = false;
    show();
    const QString text = u"BTN S1 a /I b\nBTN S10 a /I b"_s;
    control()->shown().setText(text);
    editor->joystick().setState(Document::Saved);
    editor->macro().setText(u"a = x"_s);
    const QString path = editor->joystick().path();
    const auto refused = [this] {
        const bool said = status.text()
            == u" a.tmj is on its way to the Cougar: I keep it as it is until it's there"_s;
        status.setText({});
        return said;
    };
    launcher.onStart = [&, this](const Launch &) {
        QTimer::singleShot(0, control(), [&, this] {
            for (const QStringView entry :
                 { u"mnuFileNewJoystick", u"mnuFileNewBoth", u"mnuFileClose", u"mnuFileOpen",
                   u"mnuFileJoystickLoad", u"mnuAlignSlash" }) {
                editor->action(entry)->trigger();
                EXPECT_TRUE(refused()) << entry.toString().toStdString();
            }
            editor->opening().OpenPreviouslySavedFiles(path);
            EXPECT_TRUE(refused());
            editor->macros().operations().ChangeMacroName(u"a"_s, u"b"_s);
            EXPECT_TRUE(refused());
            editor->documents().select(DocumentKind::Macro);
            editor->action(u"mnuAlignSlash")->trigger();
            EXPECT_TRUE(refused());
            editor->action(u"mnuEditReplace")->trigger();
            mum->findChild<QRadioButton *>(u"OptionJoystickR"_s)->setChecked(true);
            mum->findChild<QComboBox *>(u"ComboTextReplaceFind"_s)->setEditText(u"BTN"_s);
            for (const QString &button : { u"Command3"_s, u"Command6"_s }) {
                mum->findChild<QPushButton *>(button)->click();
            }
            EXPECT_TRUE(refused());
            EXPECT_EQ(editor->macroText(), u"a = x");
            EXPECT_TRUE(hotasIni().write({ u"Compiler"_s, u"Status"_s, verdict }));
        });
        return Expected<void, QString>();
    };
    dialogs.answer(success, BoxButton::Ok);
    entry(0)->trigger();
    EXPECT_EQ(editor->joystickText(), text);
    EXPECT_EQ(editor->joystick().path(), path);
}

TEST_F(DownloadMenuTest, TheLineOfAnErrorIsNotSelectedInAnotherFileThatIsOpenByThen)
{
    settings.of<ToolchainSettings>().HOTASStatusBarErrors = true;
    show();
    editor->macro().setText(u"first\nsecond"_s);
    editor->macro().rename(folder.write(u"Files/sent.tmm"_s, "x"));
    editor->macro().setState(Document::Saved);
    const QString error = u"ERROR 1013: bad macro"_s;
    launcher.onStart = [&, this](const Launch &) {
        QTimer::singleShot(0, control(), [&, this] {
            editor->macro().rename(folder.write(u"Files/other.tmm"_s, "x"));
            EXPECT_TRUE(hotasIni().write({ { u"Compiler"_s, u"ErrorCode"_s, error },
                                           { u"Compiler"_s, u"LineNumber"_s, u"2"_s },
                                           { u"Compiler"_s, u"Status"_s, u"ERROR"_s } }));
        });
        return Expected<void, QString>();
    };
    entry(0)->trigger();
    EXPECT_EQ(editor->macro().selLength(), 0);
    EXPECT_EQ(status.text(),
              u"Compiler error at line 2: ERROR 1013: bad macro (in sent.tmm, which isn't open any "
              u"more)");
}

TEST_F(DownloadMenuTest, ACompileMinimisesFindAndTheSlashPaletteToo)
{
    show();
    editor->action(u"mnuEditFind")->trigger();
    editor->action(u"mnuSlashWindow")->trigger();
    dialogs.answer(success, BoxButton::Ok);
    editor->action(u"mnuAppsCompile")->trigger();
    for (const QString &name : { u"FindAndReplace"_s, u"SlashWindow"_s }) {
        const auto *window = mum->findChild<QWidget *>(name);
        ASSERT_TRUE(window) << name.toStdString();
        EXPECT_TRUE(window->isMinimized()) << name.toStdString();
    }
}

TEST_F(DownloadMenuTest, TicksThatCannotBeKeptAreToldAndHoldForTheRun)
{
    const QByteArray utf16("\xFF\xFE[\0D\0]\0", 8);
    folder.write(u"HOTAS.ini"_s, utf16);
    show();
    entry(1)->trigger();
    EXPECT_FALSE(settings.of<DefaultOptions>().DownloadMode);
    EXPECT_TRUE(status.text().contains(u"UTF-16")) << status.text().toStdString();
    EXPECT_EQ(folder.read(u"HOTAS.ini"_s), utf16);
}

TEST_F(DownloadMenuTest, TheKeyTesterOpensThroughItsEntry)
{
    show();
    EXPECT_EQ(testerOpened(), u"mnuAppsKeyTester");
    EXPECT_TRUE(launcher.launches[0].arguments.startsWith(u"/ZEPH /CE "));
}

TEST_F(DownloadMenuTest, TheDirectXTesterOpensForThoseWhoPreferIt)
{
    settings.of<SharedSettings>().DefaultToDX8KeyTester = true;
    show();
    EXPECT_EQ(testerOpened(), u"mnuAppsDX8_0");
}

TEST_F(DownloadMenuTest, AFailedDownloadOpensNoKeyTester)
{
    verdict = u"ERROR"_s;
    settings.of<ToolchainSettings>().HOTASStatusBarErrors = true;
    show();
    entry(0)->trigger();
    EXPECT_EQ(status.text(), u"Compiler error: ");
    EXPECT_FALSE(control()->isReadOnly());
}

TEST_F(DownloadMenuTest, TheDownloadBelongsToTheJoystickTab)
{
    show();
    auto *button = mum->findChild<QToolButton *>(u"Toolbar1_32"_s);
    ASSERT_TRUE(button);
    EXPECT_TRUE(entry(0)->isEnabled());
    editor->documents().select(DocumentKind::Macro);
    EXPECT_FALSE(entry(0)->isEnabled());
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    EXPECT_FALSE(button->isEnabled());
    settings.of<EditorSettings>().AlwaysShowCompileDownload = true;
    editor->applySettings();
    EXPECT_TRUE(entry(0)->isEnabled());
}

TEST_F(DownloadMenuTest, F11AndF12InTheMacroTabSayWhyNothingHappens)
{
    show();
    editor->documents().select(DocumentKind::Macro);
    TextControl *text = &editor->view().control(DocumentKind::Macro);
    QTest::keyClick(text, Qt::Key_F11);
    EXPECT_TRUE(status.text().startsWith(u" F11 is for the joystick file"))
        << status.text().toStdString();
    QTest::keyClick(text, Qt::Key_F12);
    EXPECT_TRUE(status.text().startsWith(u" F12 is for the joystick file"));
    QFile::remove(paths.compiler());
    tools->presence().refresh();
    editor->documents().select(DocumentKind::Joystick);
    QTest::keyClick(control(), Qt::Key_F12);
    EXPECT_TRUE(status.text().startsWith(u" HOTASCompiler.exe is missing"))
        << status.text().toStdString();
    EXPECT_TRUE(launcher.launches.isEmpty());
}

TEST_F(DownloadMenuTest, FromTheMacroTabItSelectsTheJoystickTabFirst)
{
    settings.of<EditorSettings>().AlwaysShowCompileDownload = true;
    settings.of<ToolchainSettings>().RunKeyTest = false;
    show();
    editor->documents().select(DocumentKind::Macro);
    dialogs.answer(success, BoxButton::Ok);
    entry(0)->trigger();
    EXPECT_EQ(editor->selected().kind(), DocumentKind::Joystick);
}

TEST_F(DownloadMenuTest, ToolbarAndRightHandMenuDownloadToo)
{
    settings.of<ToolchainSettings>().RunKeyTest = false;
    show();
    QCoreApplication::sendPostedEvents();
    dialogs.answer(success, BoxButton::Ok);
    mum->findChild<QToolButton *>(u"Toolbar1_32"_s)->click();
    EXPECT_EQ(launcher.launches.size(), 1);
    const auto menu = editor->rightMenu().build();
    auto *item = menu->findChild<QAction *>(u"mnuRHMDownload"_s);
    ASSERT_TRUE(item);
    EXPECT_TRUE(item->isEnabled());
    dialogs.answer(success, BoxButton::Ok);
    item->trigger();
    EXPECT_EQ(launcher.launches.size(), 2);
}
