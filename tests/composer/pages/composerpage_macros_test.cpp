// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "tests/composer/pages/first_page.h"

using namespace zeph;
using test::FirstPage;

namespace {

const QByteArray macros = "Early = e\r\n"
                          "Rem ----\r\nRem weapons\r\nRem ----\r\n"
                          "Fire = SPC\r\nGun=x\r\n"
                          "Rem ----\r\nRem RADAR\r\nRem ----\r\n"
                          "Boresight = o\r\n";

} // namespace

TEST_F(FirstPage, TheMacroListMirrorsTheEditors)
{
    openMacros(macros);
    QCoreApplication::processEvents();
    EXPECT_EQ(listed(), (QStringList{ u"Early"_s, u"Fire"_s, u"Gun"_s, u"Boresight"_s }));
    QComboBox &headings = mirror().headings();
    EXPECT_EQ(headings.count(), 3);
    EXPECT_EQ(headings.currentText(), u"All"_s);
    headings.setCurrentText(u"Weapons"_s);
    EXPECT_EQ(mirror().list()->objectName(), u"List1_1"_s);
    EXPECT_EQ(listed(), (QStringList{ u"Fire"_s, u"Gun"_s }));
}

TEST_F(FirstPage, TicksAreTheEditorsUnderEveryHeading)
{
    openMacros(macros);
    QCoreApplication::processEvents();
    setJoystick(u"BTN S1 Fire Rem Gun\n"_s);
    editor->action(u"mnuMacrosIdentify")->trigger();
    EXPECT_EQ(listed(), (QStringList{ u"Early"_s, u"+Fire"_s, u"Gun"_s, u"Boresight"_s }));
    mirror().headings().setCurrentText(u"Weapons"_s);
    EXPECT_EQ(listed(), (QStringList{ u"+Fire"_s, u"Gun"_s }));
}

TEST_F(FirstPage, AFreshMacroFileEmptiesTheList)
{
    openMacros(macros);
    QCoreApplication::processEvents();
    editor->action(u"mnuFileNewMacro")->trigger();
    QCoreApplication::processEvents();
    EXPECT_EQ(mirror().headings().count(), 0);
    EXPECT_EQ(listed(), QStringList());
}

TEST_F(FirstPage, AnEmptyListTellsWhereMacrosComeFrom)
{
    const auto painted = [this] {
        return mirror().list()->viewport()->grab().toImage();
    };
    const QImage empty = painted();
    QImage blank(empty.size(), empty.format());
    blank.setDevicePixelRatio(empty.devicePixelRatio());
    blank.fill(mirror().list()->palette().base().color());
    EXPECT_NE(empty, blank);
    openMacros(macros);
    QCoreApplication::processEvents();
    // Below the entries there is nothing.
    const QRect foot(0, painted().height() - 40, painted().width(), 40);
    EXPECT_EQ(painted().copy(foot), blank.copy(foot));
}

TEST_F(FirstPage, ADoubleClickAtTheTextsStartInsertsNoBlankBefore)
{
    openMacros(macros);
    QCoreApplication::processEvents();
    options().COMPaddCR = false;
    setJoystick(QString());
    doubleClick(u"Fire"_s);
    EXPECT_EQ(joystick().text(), u"Fire "_s);
    EXPECT_EQ(joystick().selStart(), 5);
    EXPECT_EQ(colourAt(joystick(), 0), colours().JoystickTextDefaultColour);
    EXPECT_EQ(listed(), (QStringList{ u"Early"_s, u"+Fire"_s, u"Gun"_s, u"Boresight"_s }));
    expectOneStepFrom(joystick(), QString());
}

TEST_F(FirstPage, ADoubleClickAfterABlankInsertsNoSecondOne)
{
    openMacros(macros);
    QCoreApplication::processEvents();
    options().COMPaddCR = false;
    setJoystick(u"BTN S1 "_s);
    doubleClick(u"Fire"_s);
    EXPECT_EQ(joystick().text(), u"BTN S1 Fire "_s);
    setJoystick(u"BTN S1 a"_s);
    doubleClick(u"Fire"_s);
    EXPECT_EQ(joystick().text(), u"BTN S1 a Fire "_s);
}

TEST_F(FirstPage, ADoubleClickInALinesMiddleKeepsTheNameApart)
{
    openMacros(macros);
    QCoreApplication::processEvents();
    options().COMPaddCR = false;
    setJoystick(u"BTN S1 abc"_s, 8);
    doubleClick(u"Fire"_s);
    EXPECT_EQ(joystick().text(), u"BTN S1 a Fire bc"_s);
    EXPECT_EQ(joystick().selStart(), 14);
    expectOneStepFrom(joystick(), u"BTN S1 abc"_s);
}

TEST_F(FirstPage, ADoubleClickGoesIntoTheSelectedMacroFile)
{
    openMacros(macros);
    QCoreApplication::processEvents();
    options().COMPaddCR = false;
    setJoystick(u"BTN S1 "_s);
    const QString before = macro().text();
    editor->documents().select(DocumentKind::Macro);
    macro().select(macro().length(), 0);
    doubleClick(u"Fire"_s);
    // A line end is no blank.
    EXPECT_EQ(macro().text(), before + u" Fire "_s);
    EXPECT_EQ(joystick().text(), u"BTN S1 "_s);
    expectOneStepFrom(macro(), before);
}

TEST_F(FirstPage, ADoubleClickReplacesTheSelection)
{
    openMacros(macros);
    QCoreApplication::processEvents();
    options().COMPaddCR = false;
    setJoystick(u"BTN S1 abc"_s);
    joystick().select(8, 2);
    doubleClick(u"Gun"_s);
    EXPECT_EQ(joystick().text(), u"BTN S1 aGun "_s);
}

TEST_F(FirstPage, ALineEndFollowsADoubleClickIfItIsWantedInTheSameStep)
{
    openMacros(macros);
    QCoreApplication::processEvents();
    setJoystick(u"BTN S1 "_s);
    doubleClick(u"Fire"_s);
    EXPECT_EQ(joystick().text(), u"BTN S1 Fire \n"_s);
    EXPECT_EQ(joystick().selStart(), 13);
    expectOneStepFrom(joystick(), u"BTN S1 "_s);
}

TEST_F(FirstPage, DraggedTextHasABlankOnEachSideAndNoLineEnd)
{
    openMacros(macros);
    QCoreApplication::processEvents();
    MacroMirrorList *list = mirror().list();
    ASSERT_TRUE(options().COMPaddCR);
    const std::unique_ptr<QMimeData> dragged(
        list->model()->mimeData({ list->model()->index(1, 0) }));
    EXPECT_EQ(dragged->text(), u" Fire "_s);
    EXPECT_EQ(dragged->formats(), QStringList{ u"text/plain"_s });
    EXPECT_TRUE(list->model()->flags(list->model()->index(1, 0)).testFlag(Qt::ItemIsDragEnabled));
}

TEST_F(FirstPage, AProtectedMacroFileRefusesADoubleClick)
{
    openMacros(macros);
    QCoreApplication::processEvents();
    const QString before = macro().text();
    editor->documents().select(DocumentKind::Macro);
    editor->documents().setProtected(true);
    dialogs.answer(u"File protected"_s, BoxButton::Ok);
    doubleClick(u"Fire"_s);
    EXPECT_EQ(macro().text(), before);
}

TEST_F(FirstPage, AClickShowsTheMacrosKeysAndWithShiftItsUse)
{
    openMacros(macros);
    QCoreApplication::processEvents();
    setJoystick(u"BTN S1 a\nBTN S2 Fire\n"_s, 0);
    QTest::mouseClick(mirror().list()->viewport(), Qt::LeftButton, {}, placeOf(u"Fire"_s));
    EXPECT_EQ(status.text(), u"Fire = SPC"_s);
    EXPECT_EQ(joystick().selLength(), 0);
    QTest::mouseClick(mirror().list()->viewport(), Qt::LeftButton, Qt::ShiftModifier,
                      placeOf(u"Fire"_s));
    EXPECT_EQ(joystick().selStart(), 16);
    EXPECT_EQ(joystick().selLength(), 4);
}

TEST_F(FirstPage, TheListsMenuInsertsFindsAndEdits)
{
    openMacros(macros);
    QCoreApplication::processEvents();
    setJoystick(u"BTN S2 Gun "_s);
    MacroMirrorList *list = mirror().list();
    list->setCurrentRow(2);
    const auto openMenu = [list] {
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
        QApplication::sendEvent(list, &event);
    };
    openMenu();
    chooseEntry(u"mnuRHList"_s, u"mnuRHListInsert"_s);
    EXPECT_EQ(joystick().text(), u"BTN S2 Gun Gun \n"_s);
    openMenu();
    chooseEntry(u"mnuRHList"_s, u"mnuFindInJoyFile"_s);
    EXPECT_EQ(joystick().selStart(), 7);
    EXPECT_EQ(joystick().selLength(), 3);
    list->setCurrentRow(1);
    openMenu();
    chooseEntry(u"mnuRHList"_s, u"mnuRHListEdit"_s);
    EXPECT_EQ(editor->selected().kind(), DocumentKind::Macro);
    EXPECT_EQ(macro().text().mid(macro().selStart(), macro().selLength()), u"Fire = SPC"_s);
}

TEST_F(FirstPage, AMacroChosenInTheEditorIsShown)
{
    openMacros(macros);
    QCoreApplication::processEvents();
    Q_EMIT editor->macros().list().macroChosen(u"Gun"_s);
    EXPECT_EQ(mirror().list()->currentName(), u"Gun"_s);
}
