// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "preferences/preferences.h"

#include "documents/document_settings.h"
#include "documents/editor_view.h"
#include "documents/text_control.h"
#include "documents/undo_histories.h"
#include "editor/files/file_opening.h"
#include "editor/files/loss_guards.h"
#include "platform/core/paths.h"
#include "platform/richtext/rich_text_document.h"
#include "preferences/setting_fields.h"
#include "shell/mum.h"
#include "tests/support/shell_world.h"
#include "toolchain/cougar_tools.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSet>
#include <QSpinBox>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QToolTip>

using namespace zeph;

namespace {

struct PreferencesTest : test::RunningWorld {
    /// Opens the window through a menu entry, does something in it and leaves it.
    void visit(const std::function<void(QDialog &)> &act,
               const QString &entry = u"mnuAppsPreferences"_s)
    {
        bool opened = false;
        QTimer::singleShot(0, &app->mum(), [&] {
            auto *window = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            ASSERT_TRUE(window);
            opened = window->objectName() == u"Preferences";
            act(*window);
            if (window->isVisible()) {
                window->findChild<QPushButton *>(u"cmdOK"_s)->click();
            }
        });
        entryOf(app->editor(), entry)->trigger();
        EXPECT_TRUE(opened);
    }
    static QCheckBox &tick(QDialog &window, const QString &name)
    {
        return *window.findChild<QCheckBox *>(name);
    }
    static QLineEdit &line(QDialog &window, const QString &name)
    {
        return *window.findChild<QLineEdit *>(name);
    }
    /// Visits and types into one field.
    void set(const QString &name, const QString &text)
    {
        visit([&](QDialog &window) { line(window, name).setText(text); });
    }
    QString stored(QStringView section, QStringView key) const
    {
        return ProfileFile(paths.iniPath).text(section, key, u"(absent)"_s);
    }
    QString inHotas(QStringView section, QStringView key) const
    {
        return ProfileFile(folder.file(u"HOTAS.ini"_s)).text(section, key, u"(absent)"_s);
    }
    QToolButton &toolButton(const QString &name)
    {
        return *app->mum().findChild<QToolButton *>(name);
    }
};

} // namespace

TEST_F(PreferencesTest, UndoMax5IsStoredAs10And40000As30000)
{
    start();
    set(u"UndoMax"_s, u"5"_s);
    EXPECT_EQ(stored(u"Miscellaneous", u"UndoMax"), u"10");
    set(u"UndoMax"_s, u"40000"_s);
    EXPECT_EQ(stored(u"Miscellaneous", u"UndoMax"), u"30000");
}

TEST_F(PreferencesTest, AnIntervalOf61IsStoredAs3And60IsKept)
{
    start();
    set(u"StatusMonitoringInterval"_s, u"60"_s);
    EXPECT_EQ(stored(u"Miscellaneous", u"StatusMonitoringInterval"), u"60");
    set(u"StatusMonitoringInterval"_s, u"61"_s);
    EXPECT_EQ(stored(u"Miscellaneous", u"StatusMonitoringInterval"), u"3");
}

TEST_F(PreferencesTest, AnIntervalOf60OverflowsTheTimerOfARunningDetectorAndIsSavedAllTheSame)
{
    folder.write(u"HOTASConfig.exe"_s, "tool");
    start("[Miscellaneous]\r\nStatusDetectOnStartup=1\r\n");
    ASSERT_TRUE(app->tools().modes().detectorRuns());
    dialogs.answer(u"Zeph"_s, BoxButton::Ok);
    set(u"StatusMonitoringInterval"_s, u"60"_s);
    ASSERT_EQ(dialogs.boxes().size(), 1);
    EXPECT_TRUE(dialogs.boxes()[0].text.contains(u"Overflow"_s));
    EXPECT_EQ(stored(u"Miscellaneous", u"StatusMonitoringInterval"), u"60");
}

TEST_F(PreferencesTest, TheSystemsCloseBoxSavesAsOkDoes)
{
    start();
    visit([](QDialog &window) {
        tick(window, u"UndoClearOnSave"_s).setChecked(true);
        window.close();
    });
    EXPECT_EQ(stored(u"Miscellaneous", u"UndoClearOnSave"), u"1");
}

TEST_F(PreferencesTest, EscapeSavesAsOkDoes)
{
    start();
    visit([](QDialog &window) {
        tick(window, u"UndoClearOnSave"_s).setChecked(true);
        QTest::keyClick(&window, Qt::Key_Escape);
    });
    EXPECT_EQ(stored(u"Miscellaneous", u"UndoClearOnSave"), u"1");
}

TEST_F(PreferencesTest, AnEmptyGamesCaptionComesBackAsGames)
{
    start("GamesCaption=Fl&y\r\n");
    visit([](QDialog &window) {
        window.findChild<QComboBox *>(u"GamesCaption"_s)->setEditText(QString());
    });
    EXPECT_EQ(stored(u"FileLocations", u"GamesCaption"), u"&Games");
    EXPECT_EQ(app->editor().actions().menu(u"mnuGames")->title(), u"&Games");
}

TEST_F(PreferencesTest, ItIsModalWithItsTabsInOrderAndOneButton)
{
    start();
    visit([](QDialog &window) {
        EXPECT_EQ(window.windowTitle(), u"Preferences");
        EXPECT_EQ(window.windowModality(), Qt::ApplicationModal);
        const auto *tabs = window.findChild<QTabWidget *>(u"SSTab1"_s);
        const QStringList told = {
            u"&File locations"_s, u"&Colours/Fonts"_s,   u"&Apps"_s,
            u"Fa&vourites"_s,     u"&Games"_s,           u"&Open/Save/Undo"_s,
            u"&Misc."_s,          u"&Default options"_s, u"&Zeph"_s
        };
        QStringList shown;
        for (int i = 0; i < tabs->count(); ++i) {
            shown.append(tabs->tabText(i));
        }
        EXPECT_EQ(shown, told);
        EXPECT_EQ(tabs->currentIndex(), 0);
        EXPECT_LE(window.width(), 760);
        EXPECT_LE(window.height(), 560);
    });
}

TEST_F(PreferencesTest, EveryFieldHasTheNameAndATooltipThatTheTableOfKeysPromises)
{
    start();
    visit([](QDialog &window) {
        for (const PreferencesKey &key : preferencesKeys()) {
            const auto *field = window.findChild<QWidget *>(key.control.toString());
            ASSERT_TRUE(field) << key.control.toString().toStdString();
            EXPECT_FALSE(field->toolTip().isEmpty()) << key.control.toString().toStdString();
        }
    });
}

TEST_F(PreferencesTest, EveryFieldHasALabelWithAMnemonicAndATooltip)
{
    start();
    visit([](QDialog &window) {
        QSet<const QWidget *> labelled;
        for (const QLabel *label : window.findChildren<QLabel *>()) {
            if (label->buddy() && !QKeySequence::mnemonic(label->text()).isEmpty()) {
                labelled.insert(label->buddy());
            }
        }
        const auto *samples = window.findChild<QWidget *>(u"SSTab2"_s);
        int fields = 0;
        for (const QWidget *each : window.findChildren<QWidget *>()) {
            const auto *tick = qobject_cast<const QCheckBox *>(each);
            const bool isPart = qobject_cast<const QComboBox *>(each->parent())
                || qobject_cast<const QAbstractSpinBox *>(each->parent());
            const bool isField = tick || qobject_cast<const QLineEdit *>(each)
                || qobject_cast<const QComboBox *>(each)
                || qobject_cast<const QAbstractSpinBox *>(each)
                || qobject_cast<const QListWidget *>(each);
            if (!isField || isPart || samples->isAncestorOf(each)) {
                continue;
            }
            ++fields;
            // Every letter of its page is taken: these are reached by the Tab key.
            const bool isSeldom = each->parentWidget()->objectName() == u"groupSeldom";
            EXPECT_TRUE(isSeldom
                        || (tick ? !QKeySequence::mnemonic(tick->text()).isEmpty()
                                 : labelled.contains(each)))
                << each->objectName().toStdString();
            EXPECT_FALSE(each->toolTip().isEmpty()) << each->objectName().toStdString();
        }
        EXPECT_GE(fields, 70);
    });
}

TEST_F(PreferencesTest, NoFieldTakesTheMnemonicOfATab)
{
    start();
    visit([](QDialog &window) {
        const auto *tabs = window.findChild<QTabWidget *>(u"SSTab1"_s);
        QSet<QKeySequence> ofTabs;
        for (int i = 0; i < tabs->count(); ++i) {
            ofTabs.insert(QKeySequence::mnemonic(tabs->tabText(i)));
        }
        EXPECT_EQ(ofTabs.size(), tabs->count());
        for (const QWidget *each : window.findChildren<QWidget *>()) {
            const auto *label = qobject_cast<const QLabel *>(each);
            const auto *button = qobject_cast<const QAbstractButton *>(each);
            const QString text = label && label->buddy() ? label->text()
                : button                                 ? button->text()
                                                         : QString();
            const QKeySequence key = QKeySequence::mnemonic(text);
            EXPECT_TRUE(key.isEmpty() || !ofTabs.contains(key)) << text.toStdString();
        }
    });
}

TEST_F(PreferencesTest, ClosingWritesTheLaunchersCommandTheFilesFolderAndTheDefaults)
{
    start();
    visit([](QDialog &) {});
    EXPECT_TRUE(stored(u"Launcher", u"FilesDirectory")
                    .endsWith(u"\\explorer.exe "_s + app->paths().filesFolder()));
    EXPECT_EQ(inHotas(u"Files", u"Files"), app->paths().filesFolder());
    EXPECT_EQ(inHotas(u"Defaults", u"POVhat"), u"1");
    EXPECT_EQ(inHotas(u"Defaults", u"MDEFrequired"), u"1");
    EXPECT_EQ(stored(u"Colours", u"TextFontName"), u"Arial");
}

TEST_F(PreferencesTest, ItOpensAtTheGamesFromTheGamesMenu)
{
    start();
    visit(
        [](QDialog &window) {
            const auto *tabs = window.findChild<QTabWidget *>(u"SSTab1"_s);
            EXPECT_EQ(tabs->tabText(tabs->currentIndex()), u"&Games");
        },
        u"mnuGamesEdit"_s);
}

TEST_F(PreferencesTest, F9IsTheKeyOfTheEntryThatOpensIt)
{
    start();
    EXPECT_EQ(app->editor().action(u"mnuAppsPreferences")->shortcut(), QKeySequence(Qt::Key_F9));
    visit([](QDialog &) {});
}

TEST_F(PreferencesTest, ToolbarButton34OpensIt)
{
    start();
    bool seen = false;
    QTimer::singleShot(0, &app->mum(), [&seen] {
        QWidget *window = QApplication::activeModalWidget();
        seen = window && window->objectName() == u"Preferences";
        window->close();
    });
    toolButton(u"Toolbar1_34"_s).click();
    EXPECT_TRUE(seen);
}

TEST_F(PreferencesTest, AChosenHotasFoldersOptionsAreShownAndStayInItsFile)
{
    folder.write(u"HOTAS.ini"_s, "[Defaults]\r\nPOVhat=1\r\nRCSType=0\r\n");
    const QByteArray theirs = "[Defaults]\r\nPOVhat=3\r\nMicrostickMouse=0\r\nPOVUD=1\r\n"
                              "MicrostickUD=1\r\nTG1enabled=0\r\nS2enabled=0\r\n"
                              "MDEFrequired=0\r\nDownloadMode=0\r\nRCSType=1\r\n";
    folder.write(u"Thrustmaster/HOTAS.ini"_s, theirs);
    start();
    dialogs.answerFolder(folder.file(u"Thrustmaster"_s));
    visit([](QDialog &window) {
        window.findChild<QPushButton *>(u"cmdBrowseHotas"_s)->click();
        EXPECT_EQ(window.findChild<QComboBox *>(u"Combo_defaultPOV"_s)->currentText(), u"Hat 3");
    });
    EXPECT_TRUE(folder.read(u"Thrustmaster/HOTAS.ini"_s).startsWith(theirs));
    EXPECT_EQ(inHotas(u"Defaults", u"POVhat"), u"1");
    EXPECT_EQ(stored(u"FileLocations", u"HotasFolder"), nativeSeparators(u"Thrustmaster/"_s))
        << "what lies in the program's folder moves with it";
}

TEST_F(PreferencesTest, TheProgramsOwnFolderIsRememberedAsTheDefault)
{
    folder.write(u"Thrustmaster/HOTAS.ini"_s, "");
    start("HotasFolder=Thrustmaster\r\n");
    EXPECT_EQ(app->paths().hotasFolder, folder.file(u"Thrustmaster/"_s));
    dialogs.answerFolder(folder.path());
    visit([](QDialog &window) { window.findChild<QPushButton *>(u"cmdBrowseHotas"_s)->click(); });
    EXPECT_EQ(app->paths().hotasFolder, withClosingSeparator(folder.path()));
    EXPECT_EQ(stored(u"FileLocations", u"HotasFolder"), QString());
}

TEST_F(PreferencesTest, ALetterThatTheStoreCannotHoldIsToldWhileItIsTyped)
{
    start();
    visit([](QDialog &window) {
        const auto *note = window.findChild<QLabel *>(u"LabelUnwritable"_s);
        EXPECT_FALSE(note->isVisible());
        line(window, u"BackUpFolder"_s).setText(u"/home/\u65e5"_s);
        EXPECT_TRUE(note->isVisible());
        EXPECT_TRUE(note->text().contains(u"\"\u65e5\""_s)) << note->text().toStdString();
        line(window, u"BackUpFolder"_s).clear();
        EXPECT_FALSE(note->isVisible());
    });
}

TEST_F(PreferencesTest, ATickOfTheSeldomNeededOnesIsKeptAndHoldsAtOnce)
{
    start();
    app->editor().documents().select(DocumentKind::Macro);
    EXPECT_FALSE(app->editor().action(u"mnuAppsCompile")->isEnabled());
    visit([](QDialog &window) { tick(window, u"AlwaysShowCompileDownload"_s).setChecked(true); });
    EXPECT_EQ(stored(u"FileLocations", u"AlwaysShowCompileDownload"), u"1");
    EXPECT_TRUE(app->editor().action(u"mnuAppsCompile")->isEnabled());
}

TEST_F(PreferencesTest, TheHotasFolderIsUsedAtOnceWithAClosingSeparator)
{
    start();
    const QString chosen = folder.file(u"Thrustmaster"_s);
    dialogs.answerFolder(chosen);
    visit([](QDialog &window) {
        window.findChild<QPushButton *>(u"cmdBrowseHotas"_s)->click();
        EXPECT_TRUE(
            line(window, u"HotasFolder"_s).text().endsWith(nativeSeparators(u"/Thrustmaster/"_s)));
    });
    EXPECT_EQ(app->paths().hotasFolder, withClosingSeparator(chosen));
    EXPECT_EQ(app->paths().compiler(), folder.file(u"Thrustmaster/HOTASCompiler.exe"_s));
}

TEST_F(PreferencesTest, ABackupFolderIsMadeAndGetsItsClosingSeparator)
{
    start();
    set(u"BackUpFolder"_s, folder.file(u"My backups"_s));
    EXPECT_EQ(stored(u"FileLocations", u"BackUpFolder"), nativeSeparators(u"My backups/"_s));
    EXPECT_TRUE(folderExists(folder.file(u"My backups"_s)));
}

TEST_F(PreferencesTest, ABackupFolderThatCannotBeMadeIsToldAndTheDefaultTakesItsPlace)
{
    start();
    folder.write(u"blocker"_s, "a file");
    dialogs.answer(u"Backup folder location error"_s, BoxButton::Ok);
    set(u"BackUpFolder"_s, folder.file(u"blocker/inside"_s));
    EXPECT_EQ(boxTitles(), QStringList{ u"Backup folder location error"_s });
    EXPECT_EQ(folder.file(stored(u"FileLocations", u"BackUpFolder")),
              app->paths().defaultBackupFolder());
}

TEST_F(PreferencesTest, AnEmptyAutosaveTimeTurnsTheTickOffAtOnce)
{
    start("[Miscellaneous]\r\nAutoSaveEnabled=1\r\nAutoSaveTime=7\r\n");
    visit([](QDialog &window) {
        window.findChild<QTabWidget *>(u"SSTab1"_s)
            ->setCurrentWidget(window.findChild<QWidget *>(u"OpenPage"_s));
        QLineEdit &time = line(window, u"AutoSaveTime"_s);
        time.clear();
        Q_EMIT time.editingFinished();
        EXPECT_EQ(time.text(), u"10");
        EXPECT_FALSE(tick(window, u"AutoSaveEnabled"_s).isChecked());
    });
    EXPECT_EQ(stored(u"Miscellaneous", u"AutoSaveTime"), u"10");
    EXPECT_EQ(stored(u"Miscellaneous", u"AutoSaveEnabled"), u"0");
    EXPECT_FALSE(app->editor().guards().autoSave.runs());
}

TEST_F(PreferencesTest, TheAutoloadTicksCaptionFollowsTheTickForTheLastFilesAtOnce)
{
    start();
    visit([](QDialog &window) {
        const QCheckBox &autoload = tick(window, u"FavLoadOnStart"_s);
        const auto caption = [&autoload] {
            return autoload.text().remove(u'&');
        };
        EXPECT_EQ(caption(), u"Autoload information is ignored");
        tick(window, u"RestoreStatus"_s).setChecked(false);
        EXPECT_EQ(caption(), u"AutoLoad when application starts");
        tick(window, u"RestoreStatus"_s).setChecked(true);
        EXPECT_EQ(caption(), u"Autoload information is ignored");
    });
}

TEST_F(PreferencesTest, TheAutosaveStartsWithItsTick)
{
    start();
    ASSERT_FALSE(app->editor().guards().autoSave.runs());
    visit([](QDialog &window) { tick(window, u"AutoSaveEnabled"_s).setChecked(true); });
    EXPECT_TRUE(app->editor().guards().autoSave.runs());
}

TEST_F(PreferencesTest, TheDownloadMenusTickFollowsTheDefaultOptions)
{
    start();
    ASSERT_TRUE(app->editor().action(u"DownloadArray1_1")->isChecked());
    visit([](QDialog &window) { tick(window, u"CHK_Default_7"_s).setChecked(false); });
    EXPECT_FALSE(app->editor().action(u"DownloadArray1_1")->isChecked());
    EXPECT_EQ(inHotas(u"Defaults", u"DownloadMode"), u"0");
}

TEST_F(PreferencesTest, TooltipsGoFromTheToolbarsAndFromEverythingElse)
{
    start();
    visit([](QDialog &window) { tick(window, u"OKtoShowToolTips"_s).setChecked(false); });
    EXPECT_TRUE(toolButton(u"Toolbar1_34"_s).toolTip().isEmpty());
    QWidget other(&app->mum());
    other.setToolTip(u"never seen"_s);
    QHelpEvent tip(QEvent::ToolTip, {}, {});
    QApplication::sendEvent(&other, &tip);
    EXPECT_FALSE(QToolTip::isVisible());
    visit([](QDialog &window) { tick(window, u"OKtoShowToolTips"_s).setChecked(true); });
    EXPECT_FALSE(toolButton(u"Toolbar1_34"_s).toolTip().isEmpty());
}

TEST_F(PreferencesTest, TheMenusToolbarsAndTooltipsOfAllOpenWindowsFollow)
{
    start();
    app->editor().actions().action(u"mnuSlashWindow")->trigger();
    app->editor().actions().action(u"mnuAppsTemplateEditor")->trigger();
    const auto *delay = app->mum().findChild<QAbstractButton *>(u"Command1_10"_s);
    auto *templates = app->mum().findChild<QWidget *>(u"TemplateForm"_s);
    ASSERT_TRUE(delay && delay->isVisible());
    ASSERT_TRUE(templates && templates->isVisible());
    ASSERT_EQ(delay->text(), u"DLY(60)");
    visit([](QDialog &window) {
        line(window, u"DefaultDLYvalue"_s).setText(u"75"_s);
        window.findChild<QComboBox *>(u"GamesCaption"_s)->setEditText(u"Fl&y"_s);
        tick(window, u"OKtoShowToolTips"_s).setChecked(false);
    });
    EXPECT_EQ(delay->text(), u"DLY(75)");
    EXPECT_EQ(app->editor().actions().menu(u"mnuGames")->title(), u"Fl&y");
    EXPECT_TRUE(toolButton(u"Toolbar1_34"_s).toolTip().isEmpty());
    int buttons = 0;
    for (auto *button : templates->findChildren<QToolButton *>()) {
        if (!button->toolTip().isEmpty()) {
            ++buttons;
            QHelpEvent tip(QEvent::ToolTip, {}, {});
            QApplication::sendEvent(button, &tip);
            EXPECT_FALSE(QToolTip::isVisible()) << button->toolTip().toStdString();
        }
    }
    EXPECT_GT(buttons, 0);
}

TEST_F(PreferencesTest, TheToolbarsOpenButtonFollowsItsTick)
{
    start();
    const QString both = toolButton(u"Toolbar1_2"_s).toolTip();
    visit([](QDialog &window) { tick(window, u"OpenBothOnToolbar"_s).setChecked(false); });
    EXPECT_NE(toolButton(u"Toolbar1_2"_s).toolTip(), both);
}

TEST_F(PreferencesTest, ANewHardwareOptionNeverTouchesUnsavedText)
{
    start();
    app->editor().view().control(DocumentKind::Joystick).insertPlainText(u"BTN S1 precious\n"_s);
    ASSERT_TRUE(app->editor().joystick().isModified());
    visit([](QDialog &window) {
        window.findChild<QComboBox *>(u"JoyIDnumber"_s)->setCurrentIndex(3);
        tick(window, u"CHK_Default_0"_s).setChecked(true);
    });
    EXPECT_EQ(app->editor().joystickText(), u"BTN S1 precious\n");
    EXPECT_TRUE(app->editor().joystick().isModified());
    EXPECT_EQ(stored(u"Joystick Analyser", u"JoyIDnumber"), u"3");
    EXPECT_EQ(inHotas(u"Defaults", u"POVUD"), u"1");
}

TEST_F(PreferencesTest, ANewHardwareOptionLeavesNamedFilesAlone)
{
    const QString file = folder.write(u"a.tmj"_s, "BTN S2 a\r\n");
    start();
    app->editor().opening().OpenFavouriteFile(file);
    visit([](QDialog &window) { tick(window, u"CHK_Default_5"_s).setChecked(true); });
    EXPECT_EQ(app->editor().joystick().path(), file);
    EXPECT_EQ(app->editor().joystickText(), u"BTN S2 a\n");
}

TEST_F(PreferencesTest, TheTextsFollowANewFontAndANewColourAndStayAsTheyWereOtherwise)
{
    start("[Colours]\r\nBTNColour=16711680\r\nSlashColour=255\r\n");
    TextControl &control = app->editor().view().control(DocumentKind::Joystick);
    control.insertPlainText(u"BTN S2 a"_s);
    control.shown().changeLooks(0, 3, [](CharFormat &format) {
        format.colour = 16711680;
        format.underline = true;
    });
    control.shown().changeLooks(7, 1, [](CharFormat &format) { format.colour = 4711; });
    dialogs.answerColour(0x123456);
    visit([](QDialog &window) {
        window.findChild<QPushButton *>(u"CMD_ChangeColour"_s)->click();
        tick(window, u"TextFontBold"_s).setChecked(true);
    });
    const RichText shown = control.shown().richText();
    EXPECT_EQ(shown.characters.front().format.colour, ColorRef(0x123456));
    EXPECT_TRUE(shown.characters.front().format.underline);
    EXPECT_TRUE(shown.characters.front().format.bold);
    EXPECT_EQ(shown.characters.back().format.colour, ColorRef(4711));
    EXPECT_EQ(stored(u"Colours", u"BTNColour"), QString::number(0x123456));
}

TEST_F(PreferencesTest, TheUndoMemoryIsEmptiedWithoutAQuestionAndTheTextStays)
{
    start();
    TextControl &control = app->editor().view().control(DocumentKind::Joystick);
    for (const QString &word : { u"one "_s, u"two "_s }) {
        control.insertPlainText(word);
    }
    ASSERT_TRUE(app->editor().undos().of(DocumentKind::Joystick).canUndo());
    visit([](QDialog &window) { window.findChild<QPushButton *>(u"cmdDeleteUndos"_s)->click(); });
    EXPECT_FALSE(app->editor().undos().of(DocumentKind::Joystick).canUndo());
    EXPECT_EQ(app->editor().joystickText(), u"one two ");
}

TEST_F(PreferencesTest, ALowerUndoLimitStopsTheGrowthFromTheNextStepAndTakesNothingAway)
{
    start("[Miscellaneous]\r\nUndoMax=200\r\n");
    UndoHistory &history = app->editor().undos().of(DocumentKind::Joystick);
    TextControl &control = app->editor().view().control(DocumentKind::Joystick);
    for (int i = 0; i < 50; ++i) {
        control.insertPlainText(u"x "_s);
    }
    const auto held = history.slots();
    ASSERT_GT(held, 40);
    set(u"UndoMax"_s, u"10"_s);
    control.insertPlainText(u"y "_s);
    EXPECT_EQ(history.slots(), held);
}

TEST_F(PreferencesTest, ZephsOwnOptionsShowAtOnceAndAreStored)
{
    start();
    visit([](QDialog &window) {
        tick(window, u"LineNumbers"_s).setChecked(false);
        tick(window, u"TileFiles"_s).setChecked(true);
        tick(window, u"MacroWithMouse"_s).setChecked(false);
        line(window, u"PilotCallsign"_s).setText(u"Viper"_s);
    });
    EXPECT_FALSE(app->editor().action(u"mnuViewLineNumbers")->isChecked());
    EXPECT_TRUE(app->editor().action(u"mnuViewTileVertically")->isChecked());
    EXPECT_FALSE(app->editor().action(u"mnuMacroMouseActive")->isChecked());
    EXPECT_EQ(stored(u"Miscellaneous", u"TileFiles"), u"1");
    EXPECT_EQ(stored(u"Miscellaneous", u"PilotCallsign"), u"Viper");
}

TEST_F(PreferencesTest, ADiskThatTakesNothingIsToldOnTheStatusBar)
{
    start();
    visit([&](QDialog &window) {
        tick(window, u"UndoClearOnSave"_s).setChecked(true);
        QFile::remove(paths.iniPath);
        QDir().mkpath(paths.iniPath + u"/in the way"_s);
    });
    EXPECT_TRUE(app->status().text().startsWith(u"The settings couldn't be written: "_s))
        << app->status().text().toStdString();
    EXPECT_EQ(app->settings().of<DocumentSettings>().UndoClearOnSave, 1);
    QDir(paths.iniPath).removeRecursively();
}
