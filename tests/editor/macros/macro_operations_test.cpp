// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/macros/macro_operations.h"

#include "editor/editor_settings.h"
#include "editor/files/file_opening.h"
#include "editor/macros/framemacros.h"
#include "editor/macros/macro_features.h"
#include "editor/macros/macrorenameform.h"
#include "menus/menu_actions.h"
#include "settings/shared_settings.h"
#include "tests/support/editor_fixture.h"

#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

using namespace zeph;
using zeph::test::EditorTest;

namespace {

const QString renamedTitle = u"Replaced 'em all for you. Now buy me a drink"_s;
const QString finished = u"Finished analysing the macros assigned in your joystick file."_s;

class MacroOperationsTest : public EditorTest
{
protected:
    void SetUp() override
    {
        editor->resize(900, 600);
        editor->applySettings();
        editor->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(editor.get()));
    }
    void open(const QByteArray &joystickBytes, const QByteArray &macroBytes)
    {
        editor->opening().OpenFavouriteFile(file(u"m.tmm"_s, macroBytes));
        editor->opening().OpenFavouriteFile(file(u"j.tmj"_s, joystickBytes));
    }
    TextControl *joystick() { return &editor->view().control(DocumentKind::Joystick); }
    TextControl *macro() { return &editor->view().control(DocumentKind::Macro); }
    MacroList &list() { return editor->macros().list(); }
    MacroOperations &operations() { return editor->macros().operations(); }
    QListView *listView() { return editor->findChild<QListView *>(u"List1"_s); }
    QStringList ticked()
    {
        QStringList all;
        for (const QString &name : list().model().allNames()) {
            if (list().model().isTicked(name)) {
                all.append(name);
            }
        }
        return all;
    }
    void identify() { editor->action(u"mnuMacrosIdentify")->trigger(); }
    void find() { editor->action(u"mnuFindInJoyFile")->trigger(); }
    QPoint placeInList(int row)
    {
        return listView()->visualRect(listView()->model()->index(row, 0)).center();
    }
    /// A point on a character of the joystick text.
    QPoint placeOf(int position)
    {
        joystick()->shown().select(position, 0);
        const QRect left = joystick()->cursorRect();
        joystick()->shown().select(position + 1, 0);
        const QRect right = joystick()->cursorRect();
        return { (left.x() + right.x()) / 2, left.center().y() };
    }
    void moveMouseTo(const QPoint &at)
    {
        QWidget *viewport = joystick()->viewport();
        QMouseEvent move(QEvent::MouseMove, at, viewport->mapToGlobal(QPointF(at)), Qt::NoButton,
                         Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(viewport, &move);
    }
    /// Plays the pilot in the rename window once it is open.
    void answerRename(const std::function<void(MacroRenameForm &)> &play)
    {
        QTimer::singleShot(0, editor.get(), [play] {
            auto *form = qobject_cast<MacroRenameForm *>(QApplication::activeModalWidget());
            ASSERT_TRUE(form);
            play(*form);
            if (form->isVisible()) {
                form->reject();
            }
        });
    }
};

} // namespace

TEST_F(MacroOperationsTest, EveryUsedMacroIsTicked)
{
    open("BTN S1 Fire\r\nBTN S2 (gun)\r\n", "Fire = a\r\nGun = b\r\nFir = c\r\nIdle = d\r\n");
    QSignalSpy told(&status, &StatusLine::textChanged);
    identify();
    EXPECT_EQ(ticked(), (QStringList{ u"Fire"_s, u"Gun"_s }));
    ASSERT_EQ(told.size(), 2);
    EXPECT_EQ(told[0][0].toString(),
              u"Analysing the macros you've already assigned in the j.tmj. Please wait ...");
    EXPECT_EQ(told[1][0].toString(), finished);
}

TEST_F(MacroOperationsTest, AMacroUsedOnlyInCommentsHasNoTick)
{
    open("Rem Fire here\r\nBTN S1 a Rem Fire\r\n", "Fire = a\r\n");
    identify();
    EXPECT_TRUE(ticked().isEmpty());
}

TEST_F(MacroOperationsTest, AMacroWithinALongerWordHasNoTick)
{
    open("BTN S1 Fire_Gun\r\n", "Fire = a\r\n");
    identify();
    EXPECT_TRUE(ticked().isEmpty());
}

TEST_F(MacroOperationsTest, AMacroNamedLikeAKeywordIsTickedByTheKeyword)
{
    open("BTN S1 USB (D01)\r\n", "USB = a\r\n");
    identify();
    EXPECT_EQ(ticked(), QStringList{ u"USB"_s });
}

TEST_F(MacroOperationsTest, IdentifyingTakesOldTicksAway)
{
    open("BTN S1 Fire\r\n", "Fire = a\r\nGun = b\r\n");
    identify();
    ASSERT_EQ(ticked(), QStringList{ u"Fire"_s });
    joystick()->shown().setText(u"BTN S1 Gun"_s);
    identify();
    EXPECT_EQ(ticked(), QStringList{ u"Gun"_s });
}

TEST_F(MacroOperationsTest, IdentifyingDoesNothingWhileATextIsEmpty)
{
    open("", "Fire = a\r\n");
    status.setText(u"as before"_s);
    identify();
    EXPECT_EQ(status.text(), u"as before");
    open("BTN S1 Fire\r\n", "");
    status.setText(u"as before"_s);
    identify();
    EXPECT_EQ(status.text(), u"as before");
}

TEST_F(MacroOperationsTest, ModeOneShowsAllAndModeTwoKeepsTheHeading)
{
    open("BTN S1 Fire\r\n", "rem --\r\nRem one\r\nrem --\r\nFire = a\r\n");
    auto *headings = editor->findChild<QComboBox *>(u"Combo1"_s);
    list().Combo1_Click(u"One"_s);
    operations().IdentifyMacrosUsed(MacroOperations::KeepHeading);
    EXPECT_EQ(headings->currentText(), u"One");
    operations().IdentifyMacrosUsed(MacroOperations::ShowAll);
    EXPECT_EQ(headings->currentText(), u"All");
    EXPECT_EQ(ticked(), QStringList{ u"Fire"_s });
}

TEST_F(MacroOperationsTest, AnOpenedPairIsIdentified)
{
    file(u"p.tmm"_s, "Fire = a\r\nGun = b\r\n");
    editor->opening().mnuFileOpen_Click(file(u"p.tmj"_s, "USE MDEF p\r\nBTN S1 Gun\r\n"));
    EXPECT_EQ(ticked(), QStringList{ u"Gun"_s });
    EXPECT_EQ(status.text(), finished);
}

TEST_F(MacroOperationsTest, FindGoesFromUseToUseAndStartsAgain)
{
    open("Rem Fire no\r\nBTN S1 Fire\r\nBTN S2 Fire)\r\n", "Fire = a\r\n");
    editor->documents().select(DocumentKind::Macro);
    list().SelectedMacro = u"fire"_s;
    for (const int place : { 19, 31, 19 }) {
        find();
        EXPECT_EQ(joystick()->shown().selStart(), place);
        EXPECT_EQ(joystick()->shown().selLength(), 4);
    }
    EXPECT_EQ(editor->selected().kind(), DocumentKind::Joystick);
}

TEST_F(MacroOperationsTest, FindScrollsToTheUse)
{
    open(QByteArray("BTN S1 a\r\n").repeated(500) + "BTN S2 Fire\r\n", "Fire = a\r\n");
    list().SelectedMacro = u"Fire"_s;
    find();
    EXPECT_TRUE(joystick()->viewport()->rect().contains(joystick()->cursorRect()));
    EXPECT_EQ(joystick()->shown().caretLine(), 501);
}

TEST_F(MacroOperationsTest, FindWithoutAUseChangesNoSelection)
{
    open("BTN S1 Gun\r\nRem Fire\r\n", "Fire = a\r\n");
    joystick()->shown().select(3, 2);
    editor->documents().select(DocumentKind::Macro);
    list().SelectedMacro = u"Fire"_s;
    find();
    EXPECT_EQ(joystick()->shown().selStart(), 3);
    EXPECT_EQ(joystick()->shown().selLength(), 2);
    EXPECT_EQ(editor->selected().kind(), DocumentKind::Macro);
}

TEST_F(MacroOperationsTest, AShiftClickFindsAndAnotherMacroStartsAtTheTop)
{
    open("BTN S1 Fire Gun\r\nBTN S2 Fire Gun\r\n", "Fire = a\r\nGun = b\r\n");
    const auto shiftClick = [this](int row) {
        QTest::mouseClick(listView()->viewport(), Qt::LeftButton, Qt::ShiftModifier,
                          placeInList(row));
        return joystick()->shown().selStart();
    };
    EXPECT_EQ(shiftClick(0), 7);
    EXPECT_EQ(shiftClick(0), 23);
    EXPECT_EQ(shiftClick(1), 12);
    EXPECT_EQ(shiftClick(0), 7);
}

TEST_F(MacroOperationsTest, AKeyLetGoWithShiftHeldFinds)
{
    open("BTN S1 Fire Gun\r\n", "Fire = a\r\nGun = b\r\n");
    QTest::mouseClick(listView()->viewport(), Qt::LeftButton, {}, placeInList(0));
    QTest::keyClick(listView(), Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(list().SelectedMacro, u"Gun");
    EXPECT_EQ(joystick()->shown().selStart(), 12);
    // The way into the list by Shift+Tab ends with a key let go in it.
    joystick()->shown().select(0, 0);
    QTest::keyRelease(listView(), Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(joystick()->shown().selStart(), 0);
}

TEST_F(MacroOperationsTest, ARenameReplacesInBothTextsAndCountsEach)
{
    open("BTN S1 fire \r\nBTN S2 (FIRE)\r\nRem Fire\r\n", "Fire = SPC\r\nBoth = Fire\tFire\r\n");
    dialogs.answer(renamedTitle, BoxButton::Ok);
    operations().ChangeMacroName(u"Fire"_s, u"Shoot"_s);
    EXPECT_EQ(editor->joystickText(), u"BTN S1 Shoot \nBTN S2 (FIRE)\nRem Shoot\n");
    EXPECT_EQ(editor->macroText(), u"Shoot = SPC\nBoth = Shoot\tShoot\n");
    EXPECT_EQ(dialogs.boxes().last().text,
              u"2 replacements were made in j.tmj, and 3 replacements were made in m.tmm");
    EXPECT_TRUE(editor->joystick().isModified());
    EXPECT_TRUE(editor->macro().isModified());
    EXPECT_EQ(joystick()->shown().selStart(), editor->joystickText().size() - 1);
}

TEST_F(MacroOperationsTest, ARenamedWordKeepsItsColour)
{
    open("BTN S1 Fire x\r\n", "Fire = SPC\r\n");
    joystick()->shown().changeLooks(7, 4, [](CharFormat &look) { look.colour = 0x00FF00; });
    dialogs.answer(renamedTitle, BoxButton::Ok);
    operations().ChangeMacroName(u"Fire"_s, u"Go"_s);
    ASSERT_EQ(editor->joystickText(), u"BTN S1 Go x\n");
    EXPECT_EQ(joystick()->shown().richText().formatAt(7).colour, 0x00FF00U);
    EXPECT_EQ(joystick()->shown().richText().formatAt(8).colour, 0x00FF00U);
    EXPECT_NE(joystick()->shown().richText().formatAt(10).colour, 0x00FF00U);
}

TEST_F(MacroOperationsTest, ARenameIsOneUndoStepOfEachText)
{
    open("BTN S1 Fire\r\nBTN S2 Fire\r\n", "Fire = SPC\r\n");
    type(DocumentKind::Joystick, u"x"_s);
    dialogs.answer(renamedTitle, BoxButton::Ok);
    operations().ChangeMacroName(u"Fire"_s, u"Go"_s);
    ASSERT_EQ(editor->joystickText(), u"xBTN S1 Go\nBTN S2 Go\n");
    editor->action(u"mnuEditUndo")->trigger();
    EXPECT_EQ(editor->joystickText(), u"xBTN S1 Fire\nBTN S2 Fire\n");
    EXPECT_EQ(editor->macroText(), u"Go = SPC\n");
}

TEST_F(MacroOperationsTest, ARenameTakenBackLeavesTheColoursThatWereThere)
{
    open("BTN S1 Fire\r\n", "Fire = SPC\r\n");
    {
        // As the colours of typing come: without a step of their own.
        joystick()->shown().changeLooks(0, 3, [](CharFormat &format) { format.colour = 0x00FF00; });
    }
    dialogs.answer(renamedTitle, BoxButton::Ok);
    operations().ChangeMacroName(u"Fire"_s, u"Go"_s);
    editor->action(u"mnuEditUndo")->trigger();
    EXPECT_EQ(editor->joystickText(), u"BTN S1 Fire\n");
    EXPECT_EQ(joystick()->shown().richText().formatAt(1).colour, 0x00FF00U);
}

TEST_F(MacroOperationsTest, ADocumentWithoutTheNameIsToldByItsOwnName)
{
    open("BTN S1 a\r\n", "Fire = SPC\r\n");
    dialogs.answer(u"Text not found"_s, BoxButton::Ok);
    dialogs.answer(renamedTitle, BoxButton::Ok);
    operations().ChangeMacroName(u"Fire"_s, u"Go"_s);
    EXPECT_EQ(dialogs.boxes().first().text, u"Fire not found in j.tmj");
    EXPECT_EQ(status.text(), u"Fire not found in j.tmj");
    EXPECT_EQ(dialogs.boxes().last().text,
              u"0 replacements were made in j.tmj, and 1 replacements were made in m.tmm");
    EXPECT_FALSE(editor->joystick().isModified());
}

TEST_F(MacroOperationsTest, AnEmptyDocumentIsSkippedByARename)
{
    open("", "Fire = SPC\r\n");
    dialogs.answer(renamedTitle, BoxButton::Ok);
    operations().ChangeMacroName(u"Fire"_s, u"Go"_s);
    EXPECT_EQ(dialogs.boxes().size(), 1);
}

TEST_F(MacroOperationsTest, AProtectedMacroFileRefusesTheWholeRename)
{
    open("BTN S1 Fire\r\n", "Fire = SPC\r\n");
    editor->action(u"mnuPreferencesProtectMacroFile")->trigger();
    dialogs.answer(u"File protected"_s, BoxButton::Ok);
    operations().ChangeMacroName(u"Fire"_s, u"Go"_s);
    EXPECT_EQ(editor->joystickText(), u"BTN S1 Fire\n");
    EXPECT_EQ(editor->macroText(), u"Fire = SPC\n");
}

TEST_F(MacroOperationsTest, TheRenameWindowListsAllMacrosWithTheSelectedOneChosen)
{
    open("BTN S1 Fire\r\n", "Fire = a\r\nrem --\r\nRem h\r\nrem --\r\nGun = b\r\n");
    list().Combo1_Click(u"H"_s);
    answerRename([](MacroRenameForm &form) {
        auto *macros = form.findChild<QListWidget *>(u"List1"_s);
        EXPECT_EQ(macros->count(), 2);
        EXPECT_EQ(macros->currentItem()->text(), u"Gun");
        EXPECT_EQ(form.oldName(), u"Gun");
        EXPECT_EQ(form.newName(), u"Gun");
        EXPECT_EQ(form.findChild<QLineEdit *>(u"Text1"_s)->selectedText(), u"Gun");
    });
    editor->action(u"mnuRenameMacro")->trigger();
    EXPECT_EQ(editor->macroText().left(8), u"Fire = a");
}

TEST_F(MacroOperationsTest, ATypedBlankBecomesAnUnderscoreAtOnce)
{
    MacroRenameForm form(dialogs, { { u"Fire"_s }, u"Fire"_s });
    auto *edit = form.findChild<QLineEdit *>(u"Text1"_s);
    QTest::keyClicks(edit, u"Go now"_s);
    EXPECT_EQ(edit->text(), u"Go_now");
    edit->setCursorPosition(2);
    QTest::keyClicks(edit, u" (x"_s);
    EXPECT_EQ(edit->text(), u"Go__x_now");
    EXPECT_EQ(edit->cursorPosition(), 5);
    EXPECT_EQ(form.newName(), u"Go__x_now");
}

TEST_F(MacroOperationsTest, TheVerySameNameIsRefusedAndTheWindowStays)
{
    MacroRenameForm form(dialogs, { { u"Fire"_s, u"Gun"_s }, u"Fire"_s });
    form.show();
    dialogs.answer(u"What?!"_s, BoxButton::Ok);
    QTest::mouseClick(form.findChild<QPushButton *>(u"cmdOK"_s), Qt::LeftButton);
    EXPECT_EQ(dialogs.boxes().last().text, u"The macronames are the same buddy!");
    EXPECT_TRUE(form.isVisible());
    QTest::keyClicks(form.findChild<QLineEdit *>(u"Text1"_s), u"FIRE"_s);
    QTest::mouseClick(form.findChild<QPushButton *>(u"cmdOK"_s), Qt::LeftButton);
    EXPECT_EQ(form.result(), QDialog::Accepted);
    EXPECT_EQ(form.newName(), u"FIRE");
}

TEST_F(MacroOperationsTest, ANameThatNoMacroMayGetIsRefusedWithTheReason)
{
    MacroRenameForm form(
        dialogs,
        { .macros = { u"Fire"_s, u"Gun"_s }, .chosen = u"Fire"_s, .alsoTaken = { u"Unsaved"_s } });
    form.show();
    auto *edit = form.findChild<QLineEdit *>(u"Text1"_s);
    const std::pair<QString, QString> names[] = {
        { u"gun"_s, u"There's already a macro called gun."_s },
        { u"unsaved"_s, u"There's already a macro called unsaved."_s },
        { u"Rem"_s, u"Rem means something of its own"_s },
        { u"usb"_s, u"usb means something of its own"_s },
        { u"~x"_s, u"A line that begins with ~ is switched off"_s },
        { u"aΩ"_s, u"can't hold the character Ω."_s },
    };
    for (const auto &[name, reason] : names) {
        edit->setText(name);
        dialogs.answer(u"I can't use that name buddy"_s, BoxButton::Ok);
        QTest::mouseClick(form.findChild<QPushButton *>(u"cmdOK"_s), Qt::LeftButton);
        EXPECT_TRUE(dialogs.boxes().last().text.contains(reason))
            << dialogs.boxes().last().text.toStdString();
        EXPECT_TRUE(form.isVisible());
        EXPECT_EQ(edit->selectedText(), name);
    }
}

TEST_F(MacroOperationsTest, WithoutAMacroChosenTheButtonIsOffHoweverTheFocusMoves)
{
    MacroRenameForm form(dialogs, { { u"Fire"_s, u"Gun"_s } });
    form.show();
    form.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    auto *macros = form.findChild<QListWidget *>(u"List1"_s);
    auto *edit = form.findChild<QLineEdit *>(u"Text1"_s);
    macros->setFocus();
    edit->setFocus();
    QTest::keyClicks(edit, u"Go"_s);
    EXPECT_FALSE(form.findChild<QPushButton *>(u"cmdOK"_s)->isEnabled());
    EXPECT_EQ(form.oldName(), QString());
    // What was typed first stays when a macro is chosen afterwards.
    macros->setCurrentRow(1);
    EXPECT_EQ(form.oldName(), u"Gun");
    EXPECT_EQ(form.newName(), u"Go");
    EXPECT_TRUE(form.findChild<QPushButton *>(u"cmdOK"_s)->isEnabled());
}

TEST_F(MacroOperationsTest, AnotherMacroChosenFillsInItsOwnName)
{
    MacroRenameForm form(dialogs, { { u"Fire"_s, u"Gun"_s }, u"Fire"_s });
    auto *macros = form.findChild<QListWidget *>(u"List1"_s);
    macros->setCurrentRow(1);
    EXPECT_EQ(form.newName(), u"Gun");
    form.findChild<QLineEdit *>(u"Text1"_s)->clear();
    EXPECT_FALSE(form.findChild<QPushButton *>(u"cmdOK"_s)->isEnabled());
}

TEST_F(MacroOperationsTest, APastedLineEndIsNotTaken)
{
    MacroRenameForm form(dialogs, { { u"Fire"_s }, u"Fire"_s });
    auto *edit = form.findChild<QLineEdit *>(u"Text1"_s);
    QGuiApplication::clipboard()->setText(u"Go\r\n"_s);
    edit->selectAll();
    edit->paste();
    EXPECT_EQ(form.newName(), u"Go");
    QGuiApplication::clipboard()->setText(u"a\nb"_s);
    edit->selectAll();
    edit->paste();
    EXPECT_EQ(form.newName(), u"a_b");
}

TEST_F(MacroOperationsTest, TheRenameWindowBeginsWithTheMacroAtTheCaretWhenTheListHasNone)
{
    open("BTN S1 gun\r\nBTN S2 x\r\n", "Fire = a\r\nGun = b\r\n");
    editor->documents().select(DocumentKind::Joystick);
    const auto begunWith = [this] {
        QString chosen;
        answerRename([&chosen](MacroRenameForm &form) { chosen = form.oldName(); });
        editor->action(u"mnuRenameMacro")->trigger();
        return chosen;
    };
    joystick()->shown().select(8, 0);
    EXPECT_EQ(begunWith(), u"Gun");
    // The mouse crossed a word that is no macro on its way to the menu.
    moveMouseTo(placeOf(1));
    EXPECT_EQ(list().SelectedMacro, u"BTN");
    joystick()->shown().select(0, 0);
    EXPECT_EQ(begunWith(), QString());
    editor->documents().select(DocumentKind::Macro);
    EXPECT_EQ(begunWith(), u"Fire");
    QTest::mouseClick(listView()->viewport(), Qt::LeftButton, {}, placeInList(1));
    EXPECT_EQ(begunWith(), u"Gun");
}

TEST_F(MacroOperationsTest, AfterARenameTheListShowsTheNewNameAtOnce)
{
    open("BTN S1 Fire\r\nBTN S2 Gun\r\n",
         "Fire = a\r\nrem --\r\nRem guns\r\nrem --\r\nGun = Fire\r\nFire=x\r\n");
    identify();
    list().Combo1_Click(u"Guns"_s);
    ASSERT_EQ(list().chosenMacro(), u"Gun");
    QSignalSpy told(&list(), &MacroList::tableChanged);
    dialogs.answer(renamedTitle, BoxButton::Ok);
    operations().ChangeMacroName(u"Fire"_s, u"Go"_s);
    // In "Fire=x" no blank follows, so a rename leaves it as it is in the text too.
    EXPECT_EQ(list().model().allNames(), (QStringList{ u"Go"_s, u"Gun"_s, u"Fire"_s }));
    EXPECT_EQ(ticked(), (QStringList{ u"Go"_s, u"Gun"_s }));
    EXPECT_EQ(list().shownHeading(), 1);
    EXPECT_EQ(list().chosenMacro(), u"Gun");
    EXPECT_EQ(told.size(), 1);
    dialogs.answer(renamedTitle, BoxButton::Ok);
    operations().ChangeMacroName(u"Gun"_s, u"GUN"_s);
    EXPECT_EQ(list().chosenMacro(), u"GUN");
    EXPECT_EQ(list().SelectedMacro, u"GUN");
    EXPECT_EQ(editor->joystickText(), u"BTN S1 Go\nBTN S2 GUN\n");
    list().ShowMacroKeys();
    EXPECT_EQ(status.text(), u"GUN = Go");
}

TEST_F(MacroOperationsTest, ARenameWithAutomaticSavingSavesUpdatesAndTicks)
{
    open("BTN S1 Fire\r\n", "Fire = SPC\r\nIdle = i\r\n");
    settings.of<EditorSettings>().MacroSaveUpdateMacros = false;
    settings.of<EditorSettings>().MacroSaveIdentifyJF = false;
    editor->applySettings();
    list().Combo1_Click(u"All"_s);
    answerRename([](MacroRenameForm &form) {
        QTest::keyClicks(form.findChild<QLineEdit *>(u"Text1"_s), u"Go"_s);
        form.findChild<QCheckBox *>(u"CheckAutoSave"_s)->setChecked(true);
        QTest::mouseClick(form.findChild<QPushButton *>(u"cmdOK"_s), Qt::LeftButton);
    });
    dialogs.answer(renamedTitle, BoxButton::Ok);
    editor->action(u"mnuRenameMacro")->trigger();
    EXPECT_EQ(folder.read(u"Files/j.tmj"_s), "BTN S1 Go\r\n");
    EXPECT_EQ(folder.read(u"Files/m.tmm"_s), "Go = SPC\r\nIdle = i\r\n");
    EXPECT_EQ(list().model().allNames(), (QStringList{ u"Go"_s, u"Idle"_s }));
    EXPECT_EQ(ticked(), QStringList{ u"Go"_s });
    EXPECT_EQ(status.text(), finished);
}

TEST_F(MacroOperationsTest, ARenameWithoutItSavesNothing)
{
    open("BTN S1 Fire\r\n", "Fire = SPC\r\n");
    list().Combo1_Click(u"All"_s);
    answerRename([](MacroRenameForm &form) {
        QTest::keyClicks(form.findChild<QLineEdit *>(u"Text1"_s), u"Go"_s);
        QTest::keyClick(form.findChild<QLineEdit *>(u"Text1"_s), Qt::Key_Return);
    });
    dialogs.answer(renamedTitle, BoxButton::Ok);
    editor->action(u"mnuRenameMacro")->trigger();
    EXPECT_EQ(editor->joystickText(), u"BTN S1 Go\n");
    EXPECT_EQ(folder.read(u"Files/j.tmj"_s), "BTN S1 Fire\r\n");
    EXPECT_EQ(list().model().allNames(), QStringList{ u"Go"_s });
}

TEST_F(MacroOperationsTest, TheMouseOverAMacroShowsItsKeys)
{
    open("BTN S1 Fire, Gun_2\r\nx\r\n", "Fire = SPC\r\nGun_2 = g\r\n");
    ASSERT_TRUE(editor->action(u"mnuMacroMouseActive")->isChecked());
    for (const int position : { 7, 8, 10 }) {
        status.setText({});
        moveMouseTo(placeOf(0));
        moveMouseTo(placeOf(position));
        EXPECT_EQ(status.text(), u"Fire = SPC") << position;
    }
    moveMouseTo(placeOf(17));
    EXPECT_EQ(status.text(), u"Gun_2 = g");
    EXPECT_EQ(list().SelectedMacro, u"Gun_2");
}

TEST_F(MacroOperationsTest, NoWordLiesAfterALinesEndOrBelowTheText)
{
    open("Fire\r\nGun", "Fire = SPC\r\nGun = g\r\n");
    const QPoint onFire = placeOf(3);
    EXPECT_EQ(operations().RichWordOver(onFire), u"Fire");
    EXPECT_EQ(operations().RichWordOver(onFire + QPoint(100, 0)), QString());
    EXPECT_EQ(operations().RichWordOver(onFire + QPoint(0, 200)), QString());
}

TEST_F(MacroOperationsTest, TheMouseShowsNothingWhenItIsNotWanted)
{
    open("BTN S1 Fire\r\n", "Fire = SPC\r\n");
    editor->action(u"mnuMacroMouseActive")->trigger();
    EXPECT_EQ(settings.of<SharedSettings>().MacroWithMouse, 0);
    const QString before = status.text();
    moveMouseTo(placeOf(8));
    EXPECT_EQ(status.text(), before);
}

TEST_F(MacroOperationsTest, TheMouseLeavesACompilersResultAlone)
{
    open("BTN S1 Fire\r\n", "Fire = SPC\r\n");
    status.setText(u"Compiled successfully. (Memory used: 3%)"_s);
    moveMouseTo(placeOf(8));
    EXPECT_EQ(status.text(), u"Compiled successfully. (Memory used: 3%)");
}
