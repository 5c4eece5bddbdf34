// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/editor_settings.h"
#include "editor/files/file_new.h"
#include "editor/files/file_opening.h"
#include "editor/files/file_saving.h"
#include "editor/macros/framemacros.h"
#include "editor/macros/macro_features.h"
#include "menus/menu_actions.h"
#include "platform/core/profile_file.h"
#include "settings/colour_settings.h"
#include "tests/support/editor_fixture.h"

#include <QAction>
#include <QComboBox>
#include <QDropEvent>
#include <QLabel>
#include <QListView>
#include <QMenu>
#include <QMimeData>
#include <QSignalSpy>
#include <QTabBar>
#include <QTest>
#include <QTimer>
#include <QWindow>

using namespace zeph;
using zeph::test::EditorTest;

namespace {

const QByteArray macros = "Early = e\r\n"
                          "Rem ----\r\nRem weapons\r\nRem ----\r\n"
                          "Fire = SPC\r\nGun=x\r\n"
                          "Rem ----\r\nRem empty one\r\nRem ----\r\n"
                          "Rem ----\r\nRem RADAR\r\nRem ----\r\n"
                          "Boresight = o\r\n";

class MacroListTest : public EditorTest
{
protected:
    void SetUp() override { start(); }

    void start()
    {
        editor->resize(900, 600);
        editor->applySettings();
        editor->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(editor.get()));
    }
    void openMacros(const QByteArray &bytes = macros)
    {
        editor->opening().OpenFavouriteFile(file(u"m.tmm"_s, bytes));
    }
    void openJoystick(const QByteArray &bytes)
    {
        editor->opening().OpenFavouriteFile(file(u"j.tmj"_s, bytes));
    }
    FrameMacros *frame() { return editor->findChild<FrameMacros *>(u"FrameMacros"_s); }
    QListView *list() { return editor->findChild<QListView *>(u"List1"_s); }
    QComboBox *headings() { return editor->findChild<QComboBox *>(u"Combo1"_s); }
    TextControl *joystick() { return &editor->view().control(DocumentKind::Joystick); }
    TextControl *macro() { return &editor->view().control(DocumentKind::Macro); }
    MacroList &macroList() { return editor->macros().list(); }

    QStringList names()
    {
        QStringList all;
        for (int row = 0; row < list()->model()->rowCount(); ++row) {
            all.append(list()->model()->index(row, 0).data().toString());
        }
        return all;
    }
    QStringList ticked()
    {
        QStringList all;
        for (int row = 0; row < list()->model()->rowCount(); ++row) {
            const QModelIndex index = list()->model()->index(row, 0);
            if (index.data(Qt::CheckStateRole).toInt() == Qt::Checked) {
                all.append(index.data().toString());
            }
        }
        return all;
    }
    QStringList headingTexts()
    {
        QStringList all;
        for (int i = 0; i < headings()->count(); ++i) {
            all.append(headings()->itemText(i));
        }
        return all;
    }
    /// Chooses a heading as a pilot does, by its place.
    void chooseHeading(int place)
    {
        headings()->setFocus();
        QTest::keyClick(headings(), Qt::Key_Home);
        for (int i = 0; i < place; ++i) {
            headings()->setFocus();
            QTest::keyClick(headings(), Qt::Key_Down);
        }
    }
    QPoint placeOf(const QString &name)
    {
        const qsizetype row = names().indexOf(name);
        EXPECT_GE(row, 0) << name.toStdString();
        return list()->visualRect(list()->model()->index(int(row), 0)).center();
    }
    void click(const QString &name, Qt::KeyboardModifiers modifiers = {},
               Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(list()->viewport(), button, modifiers, placeOf(name));
    }
    void doubleClick(const QString &name)
    {
        const QPoint at = placeOf(name);
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(list()->viewport(), Qt::LeftButton, {}, at);
    }
    QPoint placeIn(TextControl *control, int position)
    {
        QTextCursor cursor(control->document());
        cursor.setPosition(position);
        return control->cursorRect(cursor).center();
    }
    /// Drags an entry with the mouse, and lets it go over the list again, which takes nothing.
    void takeWithTheMouse(const QString &name)
    {
        QWindow *window = editor->window()->windowHandle();
        const QPoint from = list()->viewport()->mapTo(editor->window(), placeOf(name));
        const QPoint away = QPoint(0, QApplication::startDragDistance() + 2);
        QTest::mousePress(window, Qt::LeftButton, {}, from);
        QTest::mouseMove(window, from + away);
        // The drag has a loop of its own, in which the hand goes on.
        QTimer::singleShot(0, window, [window, from] {
            QTest::mouseMove(window, from);
            QTest::mouseRelease(window, Qt::LeftButton, {}, from);
        });
        QTest::mouseMove(window, from + 2 * away);
    }
    /// Drops what a drag from the list carries at a position of a text.
    void drop(const QString &name, TextControl *control, int position)
    {
        const QModelIndex index = list()->model()->index(int(names().indexOf(name)), 0);
        const std::unique_ptr<QMimeData> data(list()->model()->mimeData({ index }));
        const QPoint at = placeIn(control, position);
        QDragEnterEvent enter(at, Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(control->viewport(), &enter);
        QDragMoveEvent move(at, Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(control->viewport(), &move);
        QDropEvent dropped(at, Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(control->viewport(), &dropped);
    }
    void protect() { editor->action(u"mnuPreferencesProtectMacroFile")->trigger(); }
    QAction *entry(const QMenu &menu, const QString &name)
    {
        return menu.findChild<QAction *>(name);
    }
};

} // namespace

TEST_F(MacroListTest, IsEmptyAtStartAndSaysSo)
{
    EXPECT_TRUE(names().isEmpty());
    EXPECT_EQ(headings()->count(), 0);
    EXPECT_TRUE(macroList().MacroListIsEmpty);
    EXPECT_EQ(status.textTooltip(), u"No macro file analysed");
    EXPECT_EQ(frame()->findChild<QLabel *>(u"lblMacros"_s)->text(), u"Macro List");
    EXPECT_EQ(list()->toolTip(),
              u"Double click macro to insert into Joystick file, or use drag and drop");
    EXPECT_EQ(headings()->toolTip(), u"Macro headings");
}

TEST_F(MacroListTest, StandsRightOfTheTextsAndTilingHalvesWhatItLeaves)
{
    EXPECT_GE(frame()->geometry().left(), editor->view().geometry().right());
    EXPECT_EQ(frame()->geometry().right(), editor->rect().right());
    editor->action(u"mnuViewTileVertically")->trigger();
    QTest::qWait(0);
    EXPECT_NEAR(joystick()->width(), macro()->width(), 1);
    EXPECT_LE(macro()->mapTo(editor.get(), macro()->rect().topRight()).x(),
              frame()->geometry().left());
}

TEST_F(MacroListTest, ALoadedFileShowsAllItsMacros)
{
    QSignalSpy told(&status, &StatusLine::textChanged);
    openMacros();
    EXPECT_EQ(names(), (QStringList{ u"Early"_s, u"Fire"_s, u"Gun"_s, u"Boresight"_s }));
    EXPECT_EQ(headingTexts(), (QStringList{ u"All"_s, u"Weapons"_s, u"Empty one"_s, u"Radar"_s }));
    EXPECT_EQ(headings()->currentText(), u"All");
    EXPECT_EQ(status.textTooltip(), u"Contains 4 macros and 3 macro headings");
    QStringList texts;
    for (const auto &each : told) {
        texts.append(each.first().toString());
    }
    EXPECT_EQ(texts.mid(texts.size() - 4),
              (QStringList{ u"Opening m.tmm file for analysis "_s,
                            u"Analysing m.tmm for macros and sub-headings. Please wait ..."_s,
                            u"Done"_s, u"Finished"_s }));
}

TEST_F(MacroListTest, AFileWithoutHeadingsHasOnlyAll)
{
    openMacros("a = b\r\n");
    EXPECT_EQ(headingTexts(), QStringList{ u"All"_s });
    EXPECT_EQ(status.textTooltip(), u"Contains 1 macros and ");
}

TEST_F(MacroListTest, AnEmptyFileGivesAllAndACountOfNone)
{
    openMacros("");
    EXPECT_EQ(headingTexts(), QStringList{ u"All"_s });
    EXPECT_EQ(status.textTooltip(), u"Contains 0 macros and ");
    EXPECT_TRUE(names().isEmpty());
}

TEST_F(MacroListTest, AFreshMacroFileEmptiesTheList)
{
    openMacros();
    editor->fresh().mnuFileNewMacro_Click();
    EXPECT_TRUE(names().isEmpty());
    EXPECT_EQ(headings()->count(), 0);
    EXPECT_TRUE(macroList().MacroListIsEmpty);
    EXPECT_EQ(status.textTooltip(), u"No macro file analysed");
}

TEST_F(MacroListTest, NoMacroIsChosenInAFreshMacroFile)
{
    openMacros();
    macroList().SelectedMacro = u"Fire"_s;
    editor->fresh().mnuFileNewMacro_Click();
    EXPECT_EQ(macroList().SelectedMacro, QString());
}

TEST_F(MacroListTest, AMacrosKeysStayOnThePanelWhenTheTabIsChanged)
{
    openMacros();
    macroList().SelectedMacro = u"Fire"_s;
    macroList().ShowMacroKeys();
    editor->documents().select(DocumentKind::Joystick);
    EXPECT_EQ(status.text(), u"Fire = SPC");
}

TEST_F(MacroListTest, AHeadingShowsItsMacrosAndTheKeysOfTheFirst)
{
    openMacros();
    chooseHeading(1);
    EXPECT_EQ(headings()->currentText(), u"Weapons");
    EXPECT_EQ(names(), (QStringList{ u"Fire"_s, u"Gun"_s }));
    EXPECT_EQ(list()->currentIndex().data().toString(), u"Fire");
    EXPECT_EQ(macroList().SelectedMacro, u"Fire");
    EXPECT_EQ(status.text(), u"Fire = SPC");
    EXPECT_TRUE(list()->hasFocus());
}

TEST_F(MacroListTest, AHeadingWithoutMacrosShowsNothing)
{
    openMacros();
    chooseHeading(2);
    EXPECT_EQ(headings()->currentText(), u"Empty one");
    EXPECT_TRUE(names().isEmpty());
    EXPECT_EQ(status.text(), u"Select a macro heading to view the macros under it");
}

TEST_F(MacroListTest, OfTwoHeadingsOfOneNameTheFirstIsShown)
{
    openMacros("rem --\r\nRem one\r\nrem --\r\na = 1\r\nrem --\r\nRem ONE\r\nrem --\r\nb = 2\r\n");
    ASSERT_EQ(headingTexts(), (QStringList{ u"All"_s, u"One"_s, u"One"_s }));
    macroList().Combo1_Click(u"oNE"_s);
    EXPECT_EQ(names(), QStringList{ u"a"_s });
    EXPECT_EQ(headings()->currentIndex(), 1);
}

TEST_F(MacroListTest, APressShowsTheMacrosKeys)
{
    openMacros();
    click(u"Boresight"_s);
    EXPECT_EQ(macroList().SelectedMacro, u"Boresight");
    EXPECT_EQ(status.text(), u"Boresight = o");
}

TEST_F(MacroListTest, AMacroWrittenWithoutABlankLeavesThePanelAlone)
{
    openMacros();
    click(u"Fire"_s);
    click(u"Gun"_s);
    EXPECT_EQ(macroList().SelectedMacro, u"Gun");
    EXPECT_EQ(status.text(), u"Fire = SPC");
}

TEST_F(MacroListTest, KeysWalkTheListAsThePointerDoes)
{
    openMacros();
    click(u"Early"_s);
    QTest::keyClick(list(), Qt::Key_Down);
    EXPECT_EQ(macroList().SelectedMacro, u"Fire");
    EXPECT_EQ(status.text(), u"Fire = SPC");
}

TEST_F(MacroListTest, TheChosenMacroIsHighlightedInTheMacroTextWhereItIsSeen)
{
    openMacros();
    QAction *highlight = editor->action(u"MnuMacroSelectMacroShow");
    ASSERT_FALSE(highlight->isChecked());
    click(u"Fire"_s);
    EXPECT_EQ(editor->macro().selLength(), 0);
    highlight->trigger();
    EXPECT_EQ(settings.of<EditorSettings>().MacroHighlightedInMacroFile, 1);
    click(u"Fire"_s);
    EXPECT_EQ(macro()->textCursor().selectedText(), u"Fire = SPC");
    EXPECT_EQ(editor->macro().selStart(), editor->macroText().indexOf(u"Fire = SPC"));
    EXPECT_EQ(editor->macro().selLength(), 10);

    editor->documents().select(DocumentKind::Joystick);
    click(u"Early"_s);
    EXPECT_EQ(editor->macro().selLength(), 10);
    editor->action(u"mnuViewTileVertically")->trigger();
    click(u"Early"_s);
    EXPECT_EQ(macro()->textCursor().selectedText(), u"Early = e");
}

TEST_F(MacroListTest, ADoubleClickAtTheStartPutsABlankAfter)
{
    openMacros();
    openJoystick("");
    doubleClick(u"Fire"_s);
    EXPECT_EQ(editor->joystickText(), u"Fire ");
    EXPECT_EQ(joystick()->shown().selStart(), 5);
    EXPECT_TRUE(joystick()->hasFocus());
    EXPECT_TRUE(editor->joystick().isModified());
}

TEST_F(MacroListTest, ADoubleClickAfterABlankPutsABlankAfter)
{
    openMacros();
    openJoystick("BTN S1 /U");
    joystick()->shown().select(7, 0);
    doubleClick(u"Fire"_s);
    EXPECT_EQ(editor->joystickText(), u"BTN S1 Fire /U");
    EXPECT_EQ(joystick()->shown().selStart(), 12);
}

TEST_F(MacroListTest, ADoubleClickAfterAnythingElsePutsBlanksAround)
{
    openMacros();
    openJoystick("BTN S1\r\n");
    joystick()->shown().select(6, 0);
    doubleClick(u"Fire"_s);
    EXPECT_EQ(editor->joystickText(), u"BTN S1 Fire \n");
    joystick()->shown().select(13, 0);
    doubleClick(u"Gun"_s);
    EXPECT_EQ(editor->joystickText(), u"BTN S1 Fire \n Gun ");
}

TEST_F(MacroListTest, ADoubleClickReplacesTheSelection)
{
    openMacros();
    openJoystick("BTN S1 old.");
    joystick()->shown().select(7, 3);
    doubleClick(u"Fire"_s);
    EXPECT_EQ(editor->joystickText(), u"BTN S1 Fire .");
    EXPECT_EQ(joystick()->shown().selStart(), 12);
    EXPECT_EQ(joystick()->shown().selLength(), 0);
}

TEST_F(MacroListTest, AnInsertedNameHasThePlainColourOfItsDocument)
{
    settings.of<ColourSettings>().JoystickTextDefaultColour = 0x112233;
    editor->applySettings();
    openMacros();
    openJoystick("x");
    joystick()->shown().select(1, 0);
    CharFormat red;
    red.colour = 0x0000FF;
    joystick()->shown().setTypingLook(red);
    doubleClick(u"Fire"_s);
    EXPECT_EQ(joystick()->shown().richText().formatAt(3).colour, 0x112233U);
}

TEST_F(MacroListTest, AnInsertIsOneUndoStep)
{
    openMacros();
    openJoystick("BTN S1 ");
    joystick()->shown().select(7, 0);
    doubleClick(u"Fire"_s);
    doubleClick(u"Gun"_s);
    editor->action(u"mnuEditUndo")->trigger();
    EXPECT_EQ(editor->joystickText(), u"BTN S1 Fire ");
    editor->action(u"mnuEditUndo")->trigger();
    EXPECT_EQ(editor->joystickText(), u"BTN S1 ");
}

TEST_F(MacroListTest, ADoubleClickInsertsIntoTheMacroTextWhenThatIsSelected)
{
    openMacros("Fire = SPC\r\n");
    macro()->shown().select(11, 0);
    doubleClick(u"Fire"_s);
    EXPECT_EQ(editor->macroText(), u"Fire = SPC\n Fire ");
}

TEST_F(MacroListTest, ADoubleClickIsRefusedByAProtectedMacroFile)
{
    openMacros();
    const QString before = editor->macroText();
    protect();
    dialogs.answer(u"File protected"_s, BoxButton::Ok);
    doubleClick(u"Fire"_s);
    EXPECT_EQ(editor->macroText(), before);
}

TEST_F(MacroListTest, AProtectedMacroFileLeavesTheJoystickTextOpen)
{
    openMacros();
    openJoystick("");
    protect();
    doubleClick(u"Fire"_s);
    EXPECT_EQ(editor->joystickText(), u"Fire ");
}

TEST_F(MacroListTest, TheReturnKeyInsertsAsADoubleClickDoes)
{
    openMacros();
    openJoystick("");
    click(u"Gun"_s);
    QTest::keyClick(list(), Qt::Key_Return);
    EXPECT_EQ(editor->joystickText(), u"Gun ");
}

TEST_F(MacroListTest, ADragCarriesTheNameBetweenBlanks)
{
    openMacros();
    const QModelIndex index = list()->model()->index(1, 0);
    const std::unique_ptr<QMimeData> data(list()->model()->mimeData({ index }));
    EXPECT_EQ(data->formats(), QStringList{ u"text/plain"_s });
    EXPECT_EQ(data->text(), u" Fire ");
    EXPECT_TRUE(list()->dragEnabled());
}

TEST_F(MacroListTest, ADropGoesIntoTheJoystickText)
{
    openMacros();
    openJoystick("BTN S1\r\nBTN S2\r\n");
    drop(u"Fire"_s, joystick(), 6);
    EXPECT_EQ(editor->joystickText(), u"BTN S1 Fire \nBTN S2\n");
    EXPECT_TRUE(editor->joystick().isModified());
}

TEST_F(MacroListTest, TheMouseDragsAnEntryOutOfTheList)
{
    openMacros();
    const QSignalSpy started(&macroList(), &MacroList::dragStarted);
    takeWithTheMouse(u"Fire"_s);
    EXPECT_EQ(started.count(), 1);
    EXPECT_EQ(macroList().SelectedMacro, u"Fire");
}

TEST_F(MacroListTest, ADropAtTheStartPutsBlanksAround)
{
    openMacros();
    openJoystick("BTN S1\r\n");
    drop(u"Fire"_s, joystick(), 0);
    EXPECT_EQ(editor->joystickText(), u" Fire BTN S1\n");
}

TEST_F(MacroListTest, ADropAfterABlankPutsBlanksAroundToo)
{
    openMacros();
    openJoystick("BTN S1 /U\r\n");
    drop(u"Fire"_s, joystick(), 7);
    EXPECT_EQ(editor->joystickText(), u"BTN S1  Fire /U\n");
}

TEST_F(MacroListTest, ADropOverASelectionLeavesWhatWasSelected)
{
    openMacros();
    openJoystick("BTN S1 old\r\n");
    joystick()->shown().select(4, 6);
    drop(u"Fire"_s, joystick(), 6);
    EXPECT_EQ(editor->joystickText(), u"BTN S1 Fire  old\n");
}

TEST_F(MacroListTest, ADropOnTheMacroTabGoesIntoTheMacroText)
{
    openMacros("Fire = SPC\r\nBoth =\r\n");
    drop(u"Fire"_s, macro(), 17);
    EXPECT_EQ(editor->macroText(), u"Fire = SPC\nBoth = Fire \n");
}

TEST_F(MacroListTest, ALockedMacroTextTakesNoDrop)
{
    openMacros("Fire = SPC\r\n");
    protect();
    drop(u"Fire"_s, macro(), 0);
    EXPECT_EQ(editor->macroText(), u"Fire = SPC\n");
}

TEST_F(MacroListTest, TheTickFollowsWhatADragBrings)
{
    openMacros();
    openJoystick("BTN S1\r\n");
    takeWithTheMouse(u"Fire"_s);
    EXPECT_TRUE(ticked().isEmpty());
    drop(u"Fire"_s, joystick(), 6);
    EXPECT_EQ(ticked(), QStringList{ u"Fire"_s });
}

TEST_F(MacroListTest, AnInsertedMacroIsTicked)
{
    openMacros();
    openJoystick("");
    doubleClick(u"Fire"_s);
    EXPECT_EQ(ticked(), QStringList{ u"Fire"_s });
}

TEST_F(MacroListTest, AClickRefreshesThatMacrosTickAlone)
{
    openMacros("Fire = a\r\nGun = b\r\nfire = c\r\n");
    openJoystick("BTN S1 Fire Gun\r\n");
    click(u"Fire"_s);
    EXPECT_EQ(ticked(), (QStringList{ u"Fire"_s, u"fire"_s }));
    joystick()->shown().setText(u"BTN S1 x"_s);
    click(u"Fire"_s);
    EXPECT_TRUE(ticked().isEmpty());
}

TEST_F(MacroListTest, ATickIsTheSameUnderEveryHeading)
{
    openMacros();
    openJoystick("BTN S1 Fire\r\n");
    click(u"Fire"_s);
    chooseHeading(1);
    EXPECT_EQ(ticked(), QStringList{ u"Fire"_s });
}

TEST_F(MacroListTest, PilotsCannotSetTicks)
{
    openMacros();
    openJoystick("BTN S1 a\r\n");
    const QModelIndex index = list()->model()->index(1, 0);
    EXPECT_FALSE(index.flags().testFlag(Qt::ItemIsUserCheckable));
    click(u"Fire"_s);
    QTest::keyClick(list(), Qt::Key_Space);
    EXPECT_TRUE(ticked().isEmpty());
}

TEST_F(MacroListTest, AnotherJoystickFileClearsTheTicks)
{
    openMacros();
    openJoystick("BTN S1 Fire\r\n");
    click(u"Fire"_s);
    ASSERT_EQ(ticked(), QStringList{ u"Fire"_s });
    openJoystick("BTN S1 Fire\r\n");
    EXPECT_TRUE(ticked().isEmpty());
    click(u"Fire"_s);
    editor->fresh().mnuFileNewJoystick_Click();
    EXPECT_TRUE(ticked().isEmpty());
}

TEST_F(MacroListTest, TheRightButtonOffersThePopUp)
{
    openMacros();
    // The menu itself would wait for the pilot.
    QObject::disconnect(&macroList(), &MacroList::popUpWanted, nullptr, nullptr);
    QSignalSpy asked(&macroList(), &MacroList::popUpWanted);
    const QPoint at = placeOf(u"Gun"_s);
    QTest::mousePress(list()->viewport(), Qt::RightButton, {}, at);
    QContextMenuEvent menu(QContextMenuEvent::Mouse, at, list()->viewport()->mapToGlobal(at));
    QApplication::sendEvent(list()->viewport(), &menu);
    EXPECT_EQ(asked.size(), 1);
    EXPECT_EQ(macroList().SelectedMacro, u"Gun");
}

TEST_F(MacroListTest, ThePopUpHoldsWhatCanBeDoneWithAMacro)
{
    openMacros();
    const auto nothingChosen = editor->macros().menu().build();
    EXPECT_FALSE(entry(*nothingChosen, u"mnuRHListInsert"_s)->isEnabled());
    EXPECT_TRUE(entry(*nothingChosen, u"mnuRHListIdentify"_s)->isEnabled());
    click(u"Fire"_s);
    const auto menu = editor->macros().menu().build();
    EXPECT_EQ(menu->objectName(), u"mnuRHList");
    QStringList captions;
    for (const QAction *each : menu->actions()) {
        if (!each->isSeparator()) {
            captions.append(each->text());
            EXPECT_TRUE(each->isEnabled()) << each->text().toStdString();
        }
    }
    EXPECT_EQ(captions,
              (QStringList{ u"&Insert into Joystick file"_s, u"&Find in Joystick file"_s,
                            u"Identify &macros used"_s, u"&Quick tip - read me"_s,
                            u"&Rename in both files"_s, u"&Edit"_s }));
}

TEST_F(MacroListTest, ThePopUpsEntriesDoWhatTheySay)
{
    openMacros();
    openJoystick("BTN S1 Fire Gun\r\n");
    click(u"Fire"_s);
    const auto menu = editor->macros().menu().build();
    joystick()->shown().select(7, 0);
    entry(*menu, u"mnuRHListInsert"_s)->trigger();
    EXPECT_EQ(editor->joystickText(), u"BTN S1 Fire Fire Gun\n");
    joystick()->shown().select(0, 0);
    entry(*menu, u"mnuFindInJoyFile"_s)->trigger();
    EXPECT_EQ(joystick()->shown().selStart(), 7);
    EXPECT_EQ(joystick()->shown().selLength(), 4);
    entry(*menu, u"mnuRHListIdentify"_s)->trigger();
    EXPECT_EQ(ticked(), (QStringList{ u"Fire"_s, u"Gun"_s }));
    QSignalSpy help(editor.get(), &Editor::helpOn);
    entry(*menu, u"mnuRHListQuickTip"_s)->trigger();
    EXPECT_EQ(help.value(0).value(0).toString(), u"macro list");
    entry(*menu, u"mnuRHListEdit"_s)->trigger();
    EXPECT_EQ(editor->selected().kind(), DocumentKind::Macro);
    EXPECT_TRUE(macro()->hasFocus());
    EXPECT_EQ(macro()->textCursor().selectedText(), u"Fire = SPC");
    EXPECT_EQ(status.text(), u"Fire = SPC");
}

TEST_F(MacroListTest, TheLeftEdgeDragsTheWidthWhichIsStoredAtOnce)
{
    auto *edge = frame()->findChild<QWidget *>(u"MacroEdge"_s);
    EXPECT_EQ(edge->cursor().shape(), Qt::SizeHorCursor);
    EXPECT_EQ(list()->cursor().shape(), Qt::ArrowCursor);
    EXPECT_EQ(frame()->width(), 185);
    const auto dragBy = [&](int x) {
        QTest::mousePress(edge, Qt::LeftButton, {}, QPoint(2, 50));
        QMouseEvent move(QEvent::MouseMove, QPointF(2 + x, 50),
                         edge->mapToGlobal(QPointF(2 + x, 50)), Qt::NoButton, Qt::LeftButton,
                         Qt::NoModifier);
        QApplication::sendEvent(edge, &move);
        QCoreApplication::sendPostedEvents();
        const int widthBefore = frame()->width();
        QTest::mouseRelease(edge, Qt::LeftButton, {},
                            edge->mapFromGlobal(move.globalPosition().toPoint()));
        return widthBefore;
    };
    EXPECT_EQ(dragBy(-65), 250);
    EXPECT_EQ(settings.of<EditorSettings>().MacroFrameWidth, 250);
    const ProfileFile store(paths.iniPath);
    EXPECT_EQ(store.text(u"Miscellaneous", u"MacroFrameWidth"), u"250");
    EXPECT_EQ(dragBy(300), 185);
    EXPECT_EQ(store.text(u"Miscellaneous", u"MacroFrameWidth"), u"185");
}

TEST_F(MacroListTest, AWidthOfTheSettingsIsTakenOverAndNeverBelowTheNarrowest)
{
    settings.of<EditorSettings>().MacroFrameWidth = 300;
    editor->applySettings();
    QTest::qWait(0);
    EXPECT_EQ(frame()->width(), 300);
    settings.of<EditorSettings>().MacroFrameWidth = 20;
    editor->applySettings();
    QTest::qWait(0);
    EXPECT_EQ(frame()->width(), 185);
}

TEST_F(MacroListTest, ViewMacroListHidesAndShowsIt)
{
    QAction *view = editor->action(u"mnuViewMacros");
    EXPECT_TRUE(view->isChecked());
    const int before = joystick()->width();
    view->trigger();
    QTest::qWait(0);
    EXPECT_FALSE(frame()->isVisible());
    EXPECT_GE(joystick()->width(), before + 185);
    view->trigger();
    EXPECT_TRUE(frame()->isVisible());
}

TEST_F(MacroListTest, ALoadedMacroFileBringsAHiddenListBack)
{
    editor->action(u"mnuViewMacros")->trigger();
    ASSERT_FALSE(frame()->isVisible());
    openMacros();
    EXPECT_TRUE(frame()->isVisible());
    EXPECT_TRUE(editor->action(u"mnuViewMacros")->isChecked());
}

TEST_F(MacroListTest, ItsColoursComeFromTheSettings)
{
    settings.of<ColourSettings>().MacroListBackground = 0x0000FF;
    settings.of<ColourSettings>().MacroListText = 0x00FF00;
    settings.of<ColourSettings>().MacroHeadingsBackground = 0x800000;
    settings.of<ColourSettings>().MacroHeadingsText = 0xC0FFFF;
    editor->applySettings();
    EXPECT_EQ(list()->palette().color(QPalette::Base), QColor(255, 0, 0));
    EXPECT_EQ(list()->palette().color(QPalette::Text), QColor(0, 255, 0));
    EXPECT_EQ(headings()->palette().color(QPalette::Button), QColor(0, 0, 128));
    EXPECT_EQ(headings()->palette().color(QPalette::ButtonText), QColor(255, 255, 192));
}

TEST_F(MacroListTest, UpdatingReadsTheSavedFileAndNotTheText)
{
    openMacros();
    file(u"m.tmm"_s, "Other = o\r\n");
    editor->action(u"mnuEditUpdateMacros")->trigger();
    EXPECT_EQ(names(), QStringList{ u"Other"_s });
    EXPECT_EQ(status.text(), u"Done");
}

TEST_F(MacroListTest, UpdatingDoesNothingForATextWithoutAMacro)
{
    openJoystick("BTN S1 a\r\n");
    type(DocumentKind::Macro, u"no macro here"_s);
    editor->action(u"mnuEditUpdateMacros")->trigger();
    EXPECT_EQ(editor->selected().kind(), DocumentKind::Joystick);
    EXPECT_TRUE(macroList().MacroListIsEmpty);
}

TEST_F(MacroListTest, UpdatingAModifiedFileSavesItFirst)
{
    settings.of<EditorSettings>().MacroSaveIdentifyJF = false;
    editor->applySettings();
    openMacros("Fire = SPC\r\n");
    type(DocumentKind::Macro, u"New = n\n"_s);
    editor->documents().select(DocumentKind::Joystick);
    dialogs.answer(u" Save m.tmm now?"_s, BoxButton::Yes);
    editor->action(u"mnuEditUpdateMacros")->trigger();
    EXPECT_EQ(dialogs.boxes().last().text,
              u"m.tmm has changed and isn't saved. You must save it if you want to update your "
              "macros list. Shall I go ahead and save it?");
    EXPECT_EQ(dialogs.boxes().last().icon, BoxIcon::Question);
    EXPECT_EQ(names(), (QStringList{ u"New"_s, u"Fire"_s }));
    EXPECT_EQ(editor->selected().kind(), DocumentKind::Macro);
    EXPECT_FALSE(editor->macro().isModified());
}

TEST_F(MacroListTest, UpdatingWithoutSavingLeavesTheListAsItWas)
{
    openMacros("Fire = SPC\r\n");
    type(DocumentKind::Macro, u"New = n\n"_s);
    dialogs.answer(u" Save m.tmm now?"_s, BoxButton::No);
    dialogs.answer(u"File not saved"_s, BoxButton::Ok);
    editor->action(u"mnuEditUpdateMacros")->trigger();
    EXPECT_EQ(dialogs.boxes().last().text,
              u"m.tmm wasn't saved, so I won't continue to update your macros list.");
    EXPECT_EQ(names(), QStringList{ u"Fire"_s });
}

TEST_F(MacroListTest, UpdatingShowsAHiddenList)
{
    openMacros();
    editor->action(u"mnuViewMacros")->trigger();
    editor->action(u"mnuEditUpdateMacros")->trigger();
    EXPECT_TRUE(frame()->isVisible());
}

TEST_F(MacroListTest, ASaveOfTheMacroFileUpdatesTheListAndTicksWhereThatIsWanted)
{
    openJoystick("BTN S1 New\r\n");
    openMacros("Fire = SPC\r\n");
    ASSERT_TRUE(editor->action(u"mnuMacrosSaveOptions_0")->isChecked());
    ASSERT_TRUE(editor->action(u"mnuMacrosSaveOptions_1")->isChecked());
    type(DocumentKind::Macro, u"New = n\n"_s);
    editor->saving().mnuFileSave_Click();
    EXPECT_EQ(names(), (QStringList{ u"New"_s, u"Fire"_s }));
    EXPECT_EQ(ticked(), QStringList{ u"New"_s });
}

TEST_F(MacroListTest, ASaveLeavesTheListAloneWhereThatIsWanted)
{
    openJoystick("BTN S1 New\r\n");
    openMacros("Fire = SPC\r\n");
    editor->action(u"mnuMacrosSaveOptions_0")->trigger();
    editor->action(u"mnuMacrosSaveOptions_1")->trigger();
    EXPECT_EQ(settings.of<EditorSettings>().MacroSaveUpdateMacros, 0);
    EXPECT_EQ(settings.of<EditorSettings>().MacroSaveIdentifyJF, 0);
    type(DocumentKind::Macro, u"New = n\n"_s);
    editor->saving().mnuFileSave_Click();
    EXPECT_EQ(names(), QStringList{ u"Fire"_s });
    EXPECT_EQ(status.text(), editor->macro().path() + u" saved successfully."_s);
}

TEST_F(MacroListTest, ASaveOfTheJoystickFileLeavesTheListAlone)
{
    openMacros("Fire = SPC\r\n");
    openJoystick("BTN S1 Fire\r\n");
    editor->saving().mnuFileSave_Click();
    EXPECT_TRUE(ticked().isEmpty());
}
