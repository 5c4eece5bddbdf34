// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/editor_texts.h"
#include "editor/actions.h"
#include "editor/editor_keys.h"
#include "editor/editor_settings.h"
#include "editor/files/file_opening.h"
#include "editor/files/file_saving.h"
#include "editor/right_menu.h"
#include "menus/menu_actions.h"
#include "settings/shared_settings.h"
#include "tests/support/editor_fixture.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>
#include <QMimeData>
#include <QSet>
#include <QSignalSpy>
#include <QTabBar>
#include <QTest>
#include <QTimer>

using namespace zeph;
using zeph::test::EditorTest;

namespace {

class EditorWindowTest : public EditorTest
{
protected:
    void SetUp() override
    {
        editor->resize(900, 600);
        editor->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(editor.get()));
    }
    TextControl *joystick() { return &editor->view().control(DocumentKind::Joystick); }
    TextControl *macro() { return &editor->view().control(DocumentKind::Macro); }
    QTabBar *tabs() { return editor->findChild<QTabBar *>(u"TabStrip1"_s); }
    /// Notes which entries run, in place of what they do.
    void noteEntries()
    {
        for (const ActionRow &row : actionTable()) {
            if (row.kind != ActionKind::Separator && row.kind != ActionKind::Submenu) {
                QAction *entry = editor->action(QStringView(row.name));
                QObject::disconnect(entry, &QAction::triggered, nullptr, nullptr);
                QObject::connect(entry, &QAction::triggered, editor.get(),
                                 [this, entry] { ran.append(entry->objectName()); });
                entry->setEnabled(true);
            }
        }
    }
    QStringList ran;
    QStringList namesOf(const QMenu &menu)
    {
        QStringList names;
        for (const QAction *action : menu.actions()) {
            if (!action->isSeparator()) {
                names.append(action->objectName());
            }
        }
        return names;
    }
};

} // namespace

TEST_F(EditorWindowTest, BothDocumentsAreFreshAtStart)
{
    EXPECT_EQ(tabs()->tabText(0), u"Untitled.tmj");
    EXPECT_EQ(tabs()->tabText(1), u"Untitled.tmm");
    EXPECT_EQ(editor->joystick().state(), Document::Empty);
    EXPECT_EQ(editor->macro().state(), Document::Empty);
}

TEST_F(EditorWindowTest, TypingModifiesAndColouringDoesNot)
{
    {
        joystick()->shown().setText(u"set by a program"_s);
    }
    EXPECT_EQ(editor->joystick().state(), Document::Empty);
    QTest::keyClicks(joystick(), u"a"_s);
    EXPECT_EQ(editor->joystick().state(), Document::Modified);
    EXPECT_EQ(status.savedTooltip(), u"Untitled.tmj has been modified and isn't saved");
}

TEST_F(EditorWindowTest, TheLinePanelFollowsTheCaret)
{
    type(DocumentKind::Joystick, u"one\ntwo\nthree"_s);
    EXPECT_EQ(status.lineText(), u"Line no: 3");
    QTest::keyClick(joystick(), Qt::Key_Up);
    EXPECT_EQ(status.lineText(), u"Line no: 2");
}

TEST_F(EditorWindowTest, ATabKeepsItsSelectionWhileTheOtherIsShown)
{
    type(DocumentKind::Joystick, u"one two"_s);
    joystick()->shown().select(4, 3);
    tabs()->setCurrentIndex(1);
    EXPECT_TRUE(macro()->isVisible());
    EXPECT_FALSE(joystick()->isVisible());
    tabs()->setCurrentIndex(0);
    EXPECT_EQ(joystick()->shown().selStart(), 4);
    EXPECT_EQ(joystick()->shown().selLength(), 3);
}

TEST_F(EditorWindowTest, ATabClickSaysWhatIsEdited)
{
    tabs()->setCurrentIndex(1);
    EXPECT_EQ(status.text(), u"Editing Untitled.tmm");
    status.setText(u"Compiled successfully. (Memory used: 3%)"_s);
    tabs()->setCurrentIndex(0);
    EXPECT_EQ(status.text(), u"Compiled successfully. (Memory used: 3%)");
}

TEST_F(EditorWindowTest, AnEqualsSignInAFilesNameDoesNotFreezeThePanel)
{
    editor->opening().OpenFavouriteFile(file(u"a=b.tmj"_s, "BTN S1 a"));
    editor->documents().select(DocumentKind::Macro);
    EXPECT_EQ(status.text(), u"Editing Untitled.tmm");
    editor->documents().select(DocumentKind::Joystick);
    EXPECT_EQ(status.text(), u"Editing a=b.tmj");
    editor->documents().select(DocumentKind::Macro);
    EXPECT_EQ(status.text(), u"Editing Untitled.tmm");
}

TEST(TabStatus, ACompilersResultStays)
{
    EXPECT_EQ(tabStatus(u"Editing a=b.tmm"_s, u"a.tmj"_s), u"Editing a.tmj");
    EXPECT_EQ(tabStatus(u"Compiler error: x"_s, u"a.tmj"_s), u"Compiler error: x");
    EXPECT_EQ(tabStatus(u"Done"_s, u"a.tmj"_s), u"Editing a.tmj");
    EXPECT_EQ(tabStatus(u"Editing b.tmm"_s, u"a.tmj"_s), u"Editing a.tmj");
}

TEST_F(EditorWindowTest, TilingShowsBothTextsSideBySideInEqualHalves)
{
    editor->action(u"mnuViewTileVertically")->trigger();
    QTest::qWait(0);
    EXPECT_TRUE(joystick()->isVisible());
    EXPECT_TRUE(macro()->isVisible());
    EXPECT_NEAR(joystick()->width(), macro()->width(), 1);
    EXPECT_LT(joystick()->x(), macro()->x());
    editor->action(u"mnuViewTileVertically")->trigger();
    EXPECT_FALSE(macro()->isVisible());
}

TEST_F(EditorWindowTest, AProtectedMacroFileRefusesTypingAndPasting)
{
    editor->action(u"mnuPreferencesProtectMacroFile")->trigger();
    tabs()->setCurrentIndex(1);
    EXPECT_EQ(status.text(), u"Untitled.tmm is protected and can't be edited.");
    QTest::keyClicks(macro(), u"abc"_s);
    EXPECT_EQ(editor->macroText(), QString());
    QGuiApplication::clipboard()->setText(u"pasted"_s);
    dialogs.answer(u"File protected"_s, BoxButton::Ok);
    editor->action(u"mnuEditPaste")->trigger();
    EXPECT_EQ(editor->macroText(), QString());
    EXPECT_EQ(dialogs.boxes().last().text,
              u"The macro file is protected, and therefore this option is disabled. To remove the "
              "protection from the macro file, deselect Protect Macro File in the Macros menu.");
    editor->action(u"mnuPreferencesProtectMacroFile")->trigger();
    QTest::keyClicks(macro(), u"abc"_s);
    EXPECT_EQ(editor->macroText(), u"abc");
}

TEST_F(EditorWindowTest, ShiftEnterMakesALineOfTheFile)
{
    QTest::keyClicks(joystick(), u"a"_s);
    QTest::keyClick(joystick(), Qt::Key_Return, Qt::ShiftModifier);
    QTest::keyClicks(joystick(), u"b"_s);
    EXPECT_EQ(editor->joystickText(), u"a\nb");
    EXPECT_EQ(status.lineText(), u"Line no: 2");
}

TEST_F(EditorWindowTest, CtrlSSavesAndIsSwallowed)
{
    editor->opening().mnuFileJoystickLoad_Click(file(u"a.tmj"_s, "BTN"));
    QTest::keyClicks(joystick(), u"x"_s);
    QTest::keyClick(joystick(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(folder.read(u"Files/a.tmj"_s), "xBTN");
}

TEST_F(EditorWindowTest, CtrlNInTheMacroTextMakesAFreshJoystickFile)
{
    editor->opening().mnuFileJoystickLoad_Click(file(u"a.tmj"_s, "BTN"));
    tabs()->setCurrentIndex(1);
    QTest::keyClick(macro(), Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(editor->joystickText(), QString());
    EXPECT_EQ(status.text(), u"New joystick file created");
}

TEST_F(EditorWindowTest, CtrlWithAnotherModifierIsNoCommand)
{
    editor->opening().mnuFileJoystickLoad_Click(file(u"a.tmj"_s, "BTN"));
    QTest::keyClicks(joystick(), u"x"_s);
    QTest::keyClick(joystick(), Qt::Key_S, Qt::ControlModifier | Qt::AltModifier);
    EXPECT_EQ(folder.read(u"Files/a.tmj"_s), "BTN");
}

TEST_F(EditorWindowTest, TheControlKeepsNoUndoOfItsOwn)
{
    QTest::keyClicks(joystick(), u"abc"_s);
    joystick()->undo();
    EXPECT_EQ(editor->joystickText(), u"abc");
}

struct KeyRow {
    int key;
    QStringView joystick;
    QStringView macro;
};

// The keys as pilots know them; an empty name is a key that does nothing there.
constexpr KeyRow keyRows[] = {
    { Qt::Key_Z, u"mnuEditUndo", u"mnuEditUndo" },
    { Qt::Key_X, u"mnuEditCut", u"mnuEditCut" },
    { Qt::Key_C, u"mnuEditCopy", u"mnuEditCopy" },
    { Qt::Key_V, u"mnuEditPaste", u"mnuEditPaste" },
    { Qt::Key_A, u"mnuEditSelectAll", u"mnuEditSelectAll" },
    { Qt::Key_F, u"mnuEditFind", u"mnuEditFind" },
    { Qt::Key_G, u"mnuEditGoto", u"" },
    { Qt::Key_R, u"mnuEditReplace", u"mnuEditReplace" },
    { Qt::Key_N, u"mnuFileNewJoystick", u"mnuFileNewJoystick" },
    { Qt::Key_O, u"mnuFileJoystickLoad", u"mnuFileJoystickLoad" },
    { Qt::Key_S, u"mnuFileSave", u"mnuFileSave" },
    { Qt::Key_P, u"mnuFilePrintJoystick", u"mnuFilePrintJoystick" },
    { Qt::Key_Y, u"mnuEditRedo", u"mnuEditRedo" },
    { Qt::Key_H, u"mnuViewReformat", u"mnuViewReformat" },
    { Qt::Key_B, u"mnuFormatArray1_0", u"mnuViewApplyColourBothFiles" },
    { Qt::Key_I, u"mnuFormatArray1_1", u"" },
    { Qt::Key_U, u"mnuFormatArray1_2", u"mnuEditUpdateMacros" },
    { Qt::Key_K, u"mnuAppsKeyTester", u"mnuAppsKeyTester" },
    { Qt::Key_L, u"mnuViewHighlightLine", u"mnuViewHighlightLine" },
    { Qt::Key_T, u"mnuViewApplyColourBothFiles", u"mnuViewApplyColourBothFiles" },
    { Qt::Key_F8, u"mnuFileSaveBoth", u"mnuFileSaveBoth" },
    { Qt::Key_M, u"mnuAlignSlash", u"mnuAlignSlash" },
    { Qt::Key_Q, u"", u"" },
};

TEST_F(EditorWindowTest, EachControlKeyHasItsEntryInEachText)
{
    for (const KeyRow &row : keyRows) {
        EXPECT_EQ(EditorKeys::entryFor(row.key, false), row.joystick);
        EXPECT_EQ(EditorKeys::entryFor(row.key, true), row.macro);
        EXPECT_TRUE(row.joystick.isEmpty() || editor->actions().has(row.joystick));
    }
}

TEST_F(EditorWindowTest, EachControlKeyPressedRunsItsEntryOnceAndTypesNothing)
{
    noteEntries();
    for (const bool inMacroText : { false, true }) {
        tabs()->setCurrentIndex(inMacroText ? 1 : 0);
        for (const KeyRow &row : keyRows) {
            const QString expected = (inMacroText ? row.macro : row.joystick).toString();
            noteEntries();
            ran.clear();
            QTest::keyClick(&editor->view().control(editor->selected().kind()), Qt::Key(row.key),
                            Qt::ControlModifier);
            EXPECT_EQ(ran, expected.isEmpty() ? QStringList() : QStringList{ expected })
                << row.key << (inMacroText ? " in the macro text" : " in the joystick text");
        }
    }
    EXPECT_EQ(editor->joystickText() + editor->macroText(), QString());
}

TEST_F(EditorWindowTest, ACommandsKeyWithAnotherModifierRunsNothing)
{
    noteEntries();
    for (const KeyRow &row : keyRows) {
        for (const auto more : { Qt::ShiftModifier, Qt::AltModifier, Qt::MetaModifier }) {
            QKeyEvent press(QEvent::KeyPress, row.key, Qt::ControlModifier | more);
            QCoreApplication::sendEvent(joystick(), &press);
        }
    }
    EXPECT_EQ(ran, QStringList());
}

TEST_F(EditorWindowTest, AKeyHeldDownRepeatsUndoRedoAndPasteAndNothingElse)
{
    noteEntries();
    for (const int key : { Qt::Key_Z, Qt::Key_Y, Qt::Key_V, Qt::Key_S, Qt::Key_T, Qt::Key_N,
                           Qt::Key_F, Qt::Key_X }) {
        QKeyEvent held(QEvent::KeyPress, key, Qt::ControlModifier, {}, true);
        QCoreApplication::sendEvent(joystick(), &held);
    }
    EXPECT_EQ(ran, (QStringList{ u"mnuEditUndo"_s, u"mnuEditRedo"_s, u"mnuEditPaste"_s }));
}

TEST_F(EditorWindowTest, TheKeysOfCompileAndDownloadDoNotRepeat)
{
    for (const QStringView entry : { u"mnuAppsCompile", u"DownloadArray1_0", u"mnuAppsPreferences",
                                     u"mnuFileOpen", u"mnuMacrosIdentify" }) {
        EXPECT_FALSE(editor->action(entry)->autoRepeat()) << entry.toString().toStdString();
    }
}

TEST_F(EditorWindowTest, CtrlKOpensTheKeyTesterThatTheUserPrefers)
{
    QSignalSpy tester(editor->action(u"mnuAppsKeyTester"), &QAction::triggered);
    QSignalSpy directX(editor->action(u"mnuAppsDX8_0"), &QAction::triggered);
    editor->action(u"mnuAppsKeyTester")->setEnabled(true);
    editor->action(u"mnuAppsDX8_0")->setEnabled(true);
    QTest::keyClick(joystick(), Qt::Key_K, Qt::ControlModifier);
    EXPECT_EQ(tester.count(), 1);
    settings.of<SharedSettings>().DefaultToDX8KeyTester = true;
    QTest::keyClick(joystick(), Qt::Key_K, Qt::ControlModifier);
    EXPECT_EQ(tester.count(), 1);
    EXPECT_EQ(directX.count(), 1);
}

TEST_F(EditorWindowTest, ACommandThatCannotBeUsedLeavesNothingForTheToolkit)
{
    editor->action(u"mnuAppsKeyTester")->setEnabled(false);
    QKeyEvent press(QEvent::KeyPress, Qt::Key_K, Qt::ControlModifier);
    QCoreApplication::sendEvent(joystick(), &press);
    EXPECT_TRUE(press.isAccepted());
    QKeyEvent other(QEvent::KeyPress, Qt::Key_Q, Qt::ControlModifier);
    QCoreApplication::sendEvent(joystick(), &other);
    EXPECT_FALSE(other.isAccepted());
}

TEST_F(EditorWindowTest, EscapePopsUpTheInsertMenuWithoutItsTip)
{
    QMenu *menu = editor->actions().menu(u"mnuInsert");
    bool dividerSeen = true;
    bool tipSeen = true;
    QTimer::singleShot(50, menu, [&] {
        ASSERT_TRUE(menu->isVisible());
        dividerSeen = editor->action(u"mnuInsertDivider8")->isVisible();
        tipSeen = editor->action(u"mnuInsertQuickTip")->isVisible();
        menu->close();
    });
    QTest::keyClick(joystick(), Qt::Key_Escape);
    EXPECT_FALSE(dividerSeen);
    EXPECT_FALSE(tipSeen);
    EXPECT_TRUE(editor->action(u"mnuInsertQuickTip")->isVisible());
}

TEST_F(EditorWindowTest, F1OpensTheContentsOrHelpOnTheSelection)
{
    QSignalSpy contents(editor->action(u"mnuHelpContents"), &QAction::triggered);
    QSignalSpy word(editor.get(), &Editor::helpOn);
    type(DocumentKind::Joystick, u"CURVE "_s);
    QTest::keyClick(joystick(), Qt::Key_F1);
    EXPECT_EQ(contents.count(), 1);
    joystick()->selectAll();
    QTest::keyClick(joystick(), Qt::Key_F1);
    ASSERT_EQ(word.count(), 1);
    EXPECT_EQ(word.first().first().toString(), u"CURVE");
}

TEST_F(EditorWindowTest, TheRightMenuOfTheJoystickTextLacksTheMacroEntries)
{
    const auto menu = editor->rightMenu().build();
    const QStringList names = namesOf(*menu);
    EXPECT_EQ(menu->objectName(), u"mnuRHMouse");
    EXPECT_TRUE(names.contains(u"mnuRHMGoto"_s));
    EXPECT_TRUE(names.contains(u"mnuRHMIdentify"_s));
    EXPECT_TRUE(names.contains(u"mnuRHMDownload"_s));
    EXPECT_FALSE(names.contains(u"mnuRHMProtect"_s));
    EXPECT_FALSE(names.contains(u"mnuRHMUpdateMacros"_s));
}

TEST_F(EditorWindowTest, TheRightMenuOfTheMacroTextLacksTheJoystickEntries)
{
    tabs()->setCurrentIndex(1);
    const QStringList names = namesOf(*editor->rightMenu().build());
    EXPECT_TRUE(names.contains(u"mnuRHMProtect"_s));
    EXPECT_TRUE(names.contains(u"mnuRHMUpdateMacros"_s));
    EXPECT_FALSE(names.contains(u"mnuRHMGoto"_s));
    EXPECT_FALSE(names.contains(u"mnuRHMDownload"_s));
}

TEST_F(EditorWindowTest, TheRightMenuOffersWhatCanBeDone)
{
    const auto offered = [this](const QString &name) {
        const auto menu = editor->rightMenu().build();
        const auto *entry = menu->findChild<QAction *>(name);
        EXPECT_TRUE(entry) << name.toStdString();
        return entry && entry->isEnabled();
    };
    const QStringList ofASelection = { u"mnuRHMCut"_s, u"mnuRHMCopy"_s, u"mnuRHMDelete"_s,
                                       u"mnuRHMColoursSelection"_s };
    QGuiApplication::clipboard()->clear();
    EXPECT_FALSE(offered(u"mnuRHMUndo"_s));
    QTest::keyClicks(joystick(), u"one"_s);
    for (const QString &name : ofASelection) {
        EXPECT_FALSE(offered(name)) << name.toStdString();
    }
    EXPECT_FALSE(offered(u"mnuRHMPaste"_s));
    EXPECT_TRUE(offered(u"mnuRHMUndo"_s));
    EXPECT_FALSE(offered(u"mnuRHMRedo"_s));
    joystick()->selectAll();
    QGuiApplication::clipboard()->setText(u"two"_s);
    for (const QString &name : ofASelection) {
        EXPECT_TRUE(offered(name)) << name.toStdString();
    }
    EXPECT_TRUE(offered(u"mnuRHMPaste"_s));
    editor->action(u"mnuEditUndo")->trigger();
    EXPECT_TRUE(offered(u"mnuRHMRedo"_s));
    EXPECT_EQ(editor->rightMenu().build()->findChild<QAction *>(u"mnuRHMRedo"_s)->text(),
              editor->action(u"mnuEditRedo")->text());
}

TEST_F(EditorWindowTest, AnEntryOfTheRightMenuRunsTheMenusEntry)
{
    noteEntries();
    for (const RightMenuRow &row : rightMenuTable()) {
        if (row.target[0] == 0) {
            continue;
        }
        tabs()->setCurrentIndex(row.shown == RightMenuRow::MacroOnly ? 1 : 0);
        noteEntries();
        ran.clear();
        const auto menu = editor->rightMenu().build();
        auto *entry = menu->findChild<QAction *>(QString::fromUtf16(row.name));
        ASSERT_TRUE(entry) << QString::fromUtf16(row.name).toStdString();
        entry->trigger();
        EXPECT_EQ(ran, QStringList{ QString::fromUtf16(row.target) });
    }
}

TEST_F(EditorWindowTest, CutAndCopyNeedASelectionAndPasteNeedsText)
{
    QGuiApplication::clipboard()->clear();
    type(DocumentKind::Joystick, u"one two"_s);
    EXPECT_FALSE(editor->action(u"mnuEditCut")->isEnabled());
    EXPECT_FALSE(editor->action(u"mnuEditPaste")->isEnabled());
    joystick()->shown().select(0, 4);
    EXPECT_TRUE(editor->action(u"mnuEditCut")->isEnabled());
    editor->action(u"mnuEditCut")->trigger();
    EXPECT_EQ(editor->joystickText(), u"two");
    EXPECT_TRUE(editor->action(u"mnuEditPaste")->isEnabled());
    editor->action(u"mnuEditPaste")->trigger();
    EXPECT_EQ(editor->joystickText(), u"one two");
}

TEST_F(EditorWindowTest, PastedLineEndsAndNulsBecomePlainText)
{
    auto *data = new QMimeData;
    data->setText(u"a\r\nb\rc"_s + QChar(0) + u"d"_s);
    QGuiApplication::clipboard()->setMimeData(data);
    editor->action(u"mnuEditPaste")->trigger();
    EXPECT_EQ(editor->joystickText(), u"a\nb\ncd");
}

TEST_F(EditorWindowTest, CompileIsOfferedOnTheJoystickTabOnlyUnlessAlwaysShown)
{
    EXPECT_TRUE(editor->action(u"mnuAppsCompile")->isEnabled());
    tabs()->setCurrentIndex(1);
    EXPECT_FALSE(editor->action(u"mnuAppsCompile")->isEnabled());
    settings.of<EditorSettings>().AlwaysShowCompileDownload = true;
    editor->applySettings();
    EXPECT_TRUE(editor->action(u"mnuAppsCompile")->isEnabled());
}

TEST_F(EditorWindowTest, AnErrorLineOfTheJoystickFileIsSelected)
{
    type(DocumentKind::Joystick, u"one\ntwo\nthree"_s);
    tabs()->setCurrentIndex(1);
    editor->HighlightErrorLine(2, u"ERROR 1004: no such button"_s);
    EXPECT_EQ(editor->selected().kind(), DocumentKind::Joystick);
    EXPECT_EQ(joystick()->textCursor().selectedText(), u"two");
    EXPECT_EQ(status.lineText(), u"Line no: 2");
}

TEST_F(EditorWindowTest, Code1013SelectsTheLineInTheMacroFile)
{
    type(DocumentKind::Macro, u"Gun = g\nFire = ("_s);
    editor->HighlightErrorLine(2, u"ERROR 1013: brackets"_s);
    EXPECT_EQ(editor->selected().kind(), DocumentKind::Macro);
    EXPECT_EQ(macro()->textCursor().selectedText(), u"Fire = (");
}

TEST_F(EditorWindowTest, ALineThatDoesNotExistIsTold)
{
    type(DocumentKind::Joystick, u"one"_s);
    dialogs.answer(u"Oops!"_s, BoxButton::Ok);
    editor->HighlightErrorLine(7, u"ERROR 1004: no such button"_s);
    EXPECT_EQ(dialogs.boxes().last().text, u"Line not found");
}

TEST_F(EditorWindowTest, TheExitAsksForTheMacroFileFirst)
{
    type(DocumentKind::Joystick, u"j"_s);
    type(DocumentKind::Macro, u"m"_s);
    dialogs.answer(u" Save Untitled.tmm now?"_s, BoxButton::No);
    dialogs.answer(u" Save Untitled.tmj now?"_s, BoxButton::Cancel);
    EXPECT_FALSE(editor->queryUnload());
    EXPECT_EQ(dialogs.boxes().last().text,
              u"Untitled.tmj has changed and isn't saved. Do you want to save it before exiting?");
}

TEST_F(EditorWindowTest, AnUnsavedYesAbortsTheExit)
{
    type(DocumentKind::Macro, u"m"_s);
    dialogs.answer(u" Save Untitled.tmm now?"_s, BoxButton::Yes);
    dialogs.answerFile({});
    dialogs.answer(u"Ooops!"_s, BoxButton::Ok);
    EXPECT_FALSE(editor->queryUnload());
    EXPECT_EQ(dialogs.boxes().last().text, u"Untitled.tmm wasn't saved. Exit program aborted.");
}

TEST_F(EditorWindowTest, EveryEntryHasANameAndNoMenuUsesAMnemonicTwice)
{
    QHash<QString, QSet<QChar>> used;
    QSet<QString> names;
    for (const ActionRow &row : actionTable()) {
        if (row.kind == ActionKind::Separator) {
            continue;
        }
        const QString name = QString::fromUtf16(row.name);
        EXPECT_FALSE(names.contains(name)) << name.toStdString();
        names.insert(name);
        const QString caption = QString::fromUtf16(row.caption);
        const qsizetype mark = caption.indexOf(u'&');
        if (mark >= 0) {
            const QChar key = caption[mark + 1].toLower();
            QSet<QChar> &menu = used[QString::fromUtf16(row.menu)];
            EXPECT_FALSE(menu.contains(key)) << name.toStdString();
            menu.insert(key);
        }
    }
}
