// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/composer_settings.h"
#include "composer/macro_mirror.h"
#include "documents/documents.h"
#include "editor/macros/macro_features.h"
#include "platform/core/profile_file.h"
#include "platform/richtext/rich_text_box.h"
#include "tests/support/composer_world.h"
#include "tests/support/fixture.h"
#include "tests/support/soon.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QTest>

using namespace zeph;

namespace {

const QByteArray macros = "Early = e\r\n"
                          "Rem ----\r\nRem weapons\r\nRem ----\r\n"
                          "Fire = SPC\r\nGun=x\r\n"
                          "Rem ----\r\nRem RADAR\r\nRem ----\r\n"
                          "Boresight = o\r\n";

class FirstPage : public test::TestIn<test::ComposerWorld>
{
protected:
    void SetUp() override
    {
        showEditor();
        open();
    }
    ComposerSettings &options() { return settings.of<ComposerSettings>(); }
    const ColourSettings &colours() { return settings.of<ColourSettings>(); }
    ColorRef colourAt(Document &document, int position)
    {
        return document.richText(position, 1).formatAt(0).colour.value_or(0x123456);
    }
    /// Shows that the last insertion is one step, which brings a text back.
    void expectOneStepFrom(Document &document, const QString &before)
    {
        document.undo();
        EXPECT_EQ(document.text(), before);
    }
    void chooseEntry(const QString &menu, const QString &entry)
    {
        auto &shown = control<QMenu>(menu);
        EXPECT_TRUE(shown.isVisible());
        shown.findChild<QAction *>(entry)->trigger();
        shown.close();
    }
    void protectMacros(const QString &text)
    {
        setMacro(text);
        editor->documents().setProtected(true);
    }
    MacroMirror &mirror() { return control<MacroMirror>(u"FrameMacros"_s); }
    QStringList listed()
    {
        QStringList names;
        const MacroMirrorList *list = mirror().list();
        for (int i = 0; i < list->count(); ++i) {
            names.append((list->item(i)->checkState() == Qt::Checked ? u"+"_s : QString())
                         + list->item(i)->text());
        }
        return names;
    }
    QPoint placeOf(const QString &name)
    {
        MacroMirrorList *list = mirror().list();
        return list->visualItemRect(list->findItems(name, Qt::MatchExactly).value(0)).center();
    }
    void doubleClick(const QString &name)
    {
        QTest::mouseDClick(mirror().list()->viewport(), Qt::LeftButton, {}, placeOf(name));
    }
};

} // namespace

TEST_F(FirstPage, AClickOnAButtonWritesItsStatementAtOnceIntoAnEmptyFile)
{
    click(u"BTN_4"_s);
    EXPECT_EQ(joystick().text(), u"BTN T1 "_s);
    EXPECT_EQ(joystick().selStart(), 7);
    for (int i = 0; i < 7; ++i) {
        EXPECT_EQ(colourAt(joystick(), i), colours().BTNColour) << i;
    }
    expectOneStepFrom(joystick(), QString());
}

TEST_F(FirstPage, AButtonOfTheStickIsNamedByItsPlace)
{
    click(u"BTN_2"_s);
    EXPECT_EQ(joystick().text(), u"BTN S3 "_s);
}

TEST_F(FirstPage, ASecondClickGoesToTheStatementAndInsertsNothing)
{
    click(u"BTN_4"_s);
    type(DocumentKind::Joystick, u"a\nUSE RATE (50)"_s);
    const QString before = joystick().text();
    click(u"BTN_4"_s);
    EXPECT_EQ(joystick().text(), before);
    EXPECT_EQ(joystick().selStart(), 7);
    EXPECT_EQ(joystick().selLength(), 0);
}

TEST_F(FirstPage, WithAlwaysInsertASecondClickWritesASecondStatement)
{
    click(u"CheckAlwaysInsert"_s);
    click(u"BTN_4"_s);
    click(u"BTN_4"_s);
    EXPECT_EQ(joystick().text(), u"BTN T1 \nBTN T1 "_s);
}

TEST_F(FirstPage, AStatementThatIsNotFoundLeavesTheCaretForTheInsertion)
{
    setJoystick(u"BTN S1 a\nBTN S2 b\n"_s, 9);
    click(u"BTN_4"_s);
    EXPECT_EQ(joystick().text(), u"BTN S1 a\nBTN T1  BTN S2 b\n"_s);
}

TEST_F(FirstPage, InALinesMiddleAControlStartsALine)
{
    setJoystick(u"BTN S1 a b"_s, 8);
    click(u"BTN_4"_s);
    EXPECT_EQ(joystick().text(), u"BTN S1 a\nBTN T1  b"_s);
    EXPECT_EQ(joystick().selStart(), 16);
    expectOneStepFrom(joystick(), u"BTN S1 a b"_s);
}

TEST_F(FirstPage, AHatOpensItsMenuWithItsOwnDirections)
{
    click(u"HAT_1"_s);
    EXPECT_EQ(control<QAction>(u"MnuHatPostion_4"_s).text(), u"H2M"_s);
    EXPECT_EQ(control<QAction>(u"MnuHatCornerPostion_0"_s).text(), u"H2UL"_s);
    chooseEntry(u"mnuHatPos"_s, u"MnuHatPostion_1"_s);
    EXPECT_EQ(joystick().text(), u"BTN H2D "_s);
    click(u"HAT_3"_s);
    chooseEntry(u"mnuHatPos"_s, u"MnuHatCornerPostion_3"_s);
    EXPECT_EQ(joystick().text(), u"BTN H2D \nBTN H4DR "_s);
}

TEST_F(FirstPage, TheTriggersStagesAreAMenu)
{
    click(u"TRIG"_s);
    chooseEntry(u"mnuTrigger"_s, u"mnuTriggerStage_1"_s);
    EXPECT_EQ(joystick().text(), u"BTN TG2 "_s);
}

TEST_F(FirstPage, ATriggerWithoutStagesWritesTheFirstAtOnce)
{
    control<QComboBox>(u"ComboJoystickHandle"_s).setCurrentText(u"Straight grip"_s);
    click(u"TRIG"_s);
    EXPECT_FALSE(control<QMenu>(u"mnuTrigger"_s).isVisible());
    EXPECT_EQ(joystick().text(), u"BTN TG1 "_s);
}

TEST_F(FirstPage, AHotSpotSelectsTheJoystickFileAlthoughAProtectedMacroFileIsSelected)
{
    protectMacros(u"Fire = SPC"_s);
    click(u"BTN_0"_s);
    EXPECT_EQ(editor->selected().kind(), DocumentKind::Joystick);
    EXPECT_EQ(joystick().text(), u"BTN S1 "_s);
}

TEST_F(FirstPage, AHotSpotTellsItsNameAndWhatTheFileHasOnIt)
{
    setJoystick(u"BTN T1 /U a\n  /M b\nBTN H1L c"_s);
    control<QAbstractButton>(u"BTN_4"_s).setFocus();
    QWidget &spot = control<QWidget>(u"BTN_4"_s);
    QEnterEvent entered(QPointF(1, 1), QPointF(1, 1), spot.mapToGlobal(QPointF(1, 1)));
    QApplication::sendEvent(&spot, &entered);
    EXPECT_EQ(control<QLabel>(u"LabelControl"_s).text(), u"T1:\nBTN T1 /U a\n  /M b"_s);
    QEvent left(QEvent::Leave);
    QApplication::sendEvent(&spot, &left);
    QWidget &hat = control<QWidget>(u"HAT_0"_s);
    QApplication::sendEvent(&hat, &entered);
    EXPECT_EQ(control<QLabel>(u"LabelControl"_s).text(), u"H1L:\nBTN H1L c"_s);
}

TEST_F(FirstPage, AStatementThatWasJustInsertedIsToldAtOnce)
{
    QEnterEvent entered(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
    QApplication::sendEvent(&control<QWidget>(u"BTN_1"_s), &entered);
    EXPECT_EQ(control<QLabel>(u"LabelControl"_s).text(), u"Button S2: nothing yet"_s);
    click(u"BTN_1"_s);
    EXPECT_EQ(control<QLabel>(u"LabelControl"_s).text(), u"S2:\nBTN S2 "_s);
}

TEST_F(FirstPage, TheControlThatIsPointedAtIsShownAsItWouldGoIn)
{
    setJoystick(u"BTN T1 a\n"_s);
    QEnterEvent entered(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
    QApplication::sendEvent(&control<QWidget>(u"BTN_0"_s), &entered);
    auto &preview = control<RichTextBox>(u"PreviewText"_s);
    EXPECT_SOON_EQ(preview.toPlainText(), u"BTN S1 "_s);
    EXPECT_EQ(control<QLabel>(u"LabelLanding"_s).text(), u"Goes into line 2 of Untitled.tmj"_s);
    QEvent left(QEvent::Leave);
    QApplication::sendEvent(&control<QWidget>(u"BTN_0"_s), &left);
    EXPECT_SOON_EQ(preview.toPlainText(), QString());
    // T1 has a statement, to which a click goes.
    QApplication::sendEvent(&control<QWidget>(u"BTN_4"_s), &entered);
    QTest::qWait(200);
    EXPECT_EQ(preview.toPlainText(), QString());
}

TEST_F(FirstPage, TheHandlesOfTheFolderAreListedAndTheChosenOneIsKept)
{
    auto &handles = control<QComboBox>(u"ComboJoystickHandle"_s);
    EXPECT_EQ(handles.count(), 2);
    EXPECT_EQ(handles.currentText(), u"F-16 Block 50"_s);
    handles.setCurrentText(u"Straight grip"_s);
    EXPECT_EQ(ProfileFile(paths.iniPath).text(u"Handles", u"Default"), u"Straight grip.tmh"_s);
    windows.unloadAll();
    open();
    EXPECT_EQ(control<QComboBox>(u"ComboJoystickHandle"_s).currentText(), u"Straight grip"_s);
}

TEST_F(FirstPage, AHotSpotThatIsNotExactlyTrueIsHidden)
{
    QByteArray spots;
    for (int i = 0; i < 9; ++i) {
        spots += "10," + QByteArray::number(20 + 30 * i) + ",20,20,"
            + (i == 1 ? QByteArray("true") : QByteArray("True")) + "\r\n";
    }
    folder.write(u"Mine.tmh"_s, "\"F-16 Block 50.bmp\"\r\n1\r\n" + spots);
    windows.unloadAll();
    open();
    control<QComboBox>(u"ComboJoystickHandle"_s).setCurrentText(u"Mine"_s);
    EXPECT_TRUE(control<QWidget>(u"BTN_0"_s).isVisible());
    EXPECT_FALSE(control<QWidget>(u"BTN_1"_s).isVisible());
}

TEST_F(FirstPage, AHandleThatCannotBeReadIsToldAndTheShippedOneServes)
{
    folder.write(u"Broken.tmh"_s, "no handle");
    windows.unloadAll();
    open();
    dialogs.answer(u"No such handle"_s, BoxButton::Ok);
    control<QComboBox>(u"ComboJoystickHandle"_s).setCurrentText(u"Broken"_s);
    click(u"BTN_0"_s);
    EXPECT_EQ(joystick().text(), u"BTN S1 "_s);
}

TEST_F(FirstPage, TheSlashButtonsAreTheTenModifiersInTheirOrder)
{
    QString all;
    for (int i = 0; i < 10; ++i) {
        all += control<QAbstractButton>(u"SlashButton_%1"_s.arg(i)).text() + u' ';
    }
    EXPECT_EQ(all, u"/U /M /D /I /O /P /R /H /A /T "_s);
}

TEST_F(FirstPage, ASlashGoesIntoTheSelectedFileWithinItsLine)
{
    setJoystick(u"BTN S1 "_s);
    click(u"SlashButton_1"_s);
    EXPECT_EQ(joystick().text(), u"BTN S1 /M "_s);
    EXPECT_EQ(colourAt(joystick(), 7), colours().SlashColour);
    EXPECT_EQ(joystick().selStart(), 10);
    expectOneStepFrom(joystick(), u"BTN S1 "_s);
    setMacro(u"Fire = a"_s);
    click(u"SlashButton_0"_s);
    EXPECT_EQ(macro().text(), u"Fire = a/U "_s);
}

TEST_F(FirstPage, ASlashInALinesMiddleKeepsABlankAfterIt)
{
    setJoystick(u"BTN S1 a"_s, 7);
    click(u"SlashButton_0"_s);
    EXPECT_EQ(joystick().text(), u"BTN S1 /U  a"_s);
}

TEST_F(FirstPage, AProtectedMacroFileRefusesEveryButtonOfThePage)
{
    protectMacros(u"Fire = SPC"_s);
    for (const QString &button : { u"SlashButton_0"_s, u"DlyRptButtons_0"_s, u"DlyRptButtons_1"_s,
                                   u"Command7_0"_s, u"Command7_1"_s, u"CommandREM"_s }) {
        dialogs.answer(u"File protected"_s, BoxButton::Ok);
        click(button);
        EXPECT_EQ(macro().text(), u"Fire = SPC"_s) << button.toStdString();
    }
    EXPECT_EQ(boxTitles().size(), 6);
}

TEST_F(FirstPage, DelayAndRepeatGoWithinTheLineOfTheSelectedFile)
{
    setJoystick(u"BTN S1 a"_s);
    click(u"DlyRptButtons_0"_s);
    EXPECT_EQ(joystick().text(), u"BTN S1 a DLY(60) "_s);
    EXPECT_EQ(joystick().selStart(), 17);
    expectOneStepFrom(joystick(), u"BTN S1 a"_s);
    setMacro(u"Fire = "_s);
    control<QLineEdit>(u"DLYText_1"_s).setText(u"3"_s);
    click(u"DlyRptButtons_1"_s);
    EXPECT_EQ(macro().text(), u"Fire = RPT(3) "_s);
}

TEST_F(FirstPage, TheRepeatStartsAsTwo)
{
    EXPECT_EQ(control<QLineEdit>(u"DLYText_1"_s).text(), u"2"_s);
}

TEST_F(FirstPage, ADelayIsKeptForTheEditorToo)
{
    auto &box = control<QLineEdit>(u"DLYText_0"_s);
    EXPECT_EQ(box.text(), u"60"_s);
    box.setFocus();
    box.setText(u"125"_s);
    control<QLineEdit>(u"DLYText_1"_s).setFocus();
    EXPECT_EQ(settings.of<EditorSettings>().DefaultDLYvalue, 125);
    EXPECT_EQ(ProfileFile(paths.iniPath).text(u"Composer", u"DefaultDLYvalue"), u"125"_s);
}

TEST_F(FirstPage, ADelayBelowOneIsRewrittenBeforeItIsUsed)
{
    for (const QString &typed : { u"0"_s, u""_s, u"-5"_s, u"x"_s }) {
        control<QLineEdit>(u"DLYText_0"_s).setText(typed);
        setJoystick(u"BTN S1 "_s);
        click(u"DlyRptButtons_0"_s);
        EXPECT_EQ(joystick().text(), u"BTN S1 DLY(60) "_s) << typed.toStdString();
    }
    control<QLineEdit>(u"DLYText_0"_s).setText(u"1"_s);
    setJoystick(u"BTN S1 "_s);
    click(u"DlyRptButtons_0"_s);
    EXPECT_EQ(joystick().text(), u"BTN S1 DLY(1) "_s);
}

TEST_F(FirstPage, SpacesAreFiveWhereTheBoxHasNoNumberOfAtLeastOne)
{
    for (const QString &typed : { u""_s, u"0"_s, u"-3"_s, u"many"_s }) {
        control<QLineEdit>(u"Text1_8"_s).setText(typed);
        setJoystick(u"ab"_s, 1);
        click(u"Command7_1"_s);
        EXPECT_EQ(joystick().text(), u"a     b"_s) << typed.toStdString();
        EXPECT_EQ(joystick().selStart(), 6);
        EXPECT_EQ(control<QLineEdit>(u"Text1_8"_s).text(), typed);
    }
    EXPECT_EQ(options().NumberOfBlanks, 5);
}

TEST_F(FirstPage, SpacesAreAsManyAsTheBoxSays)
{
    QTest::keyClick(&control<QLineEdit>(u"Text1_8"_s), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(&control<QLineEdit>(u"Text1_8"_s), u"2"_s);
    setJoystick(u"ab"_s, 1);
    click(u"Command7_1"_s);
    EXPECT_EQ(joystick().text(), u"a  b"_s);
    EXPECT_EQ(colourAt(joystick(), 1), colours().JoystickTextDefaultColour);
    EXPECT_EQ(options().NumberOfBlanks, 2);
    expectOneStepFrom(joystick(), u"ab"_s);
}

TEST_F(FirstPage, ACarriageReturnGoesIntoTheSelectedFile)
{
    setMacro(u"ab"_s, 1);
    click(u"Command7_0"_s);
    EXPECT_EQ(macro().text(), u"a\nb"_s);
    EXPECT_EQ(macro().selStart(), 2);
    expectOneStepFrom(macro(), u"ab"_s);
}

TEST_F(FirstPage, ARemarkGoesInInItsColourAndStaysInItsBox)
{
    setJoystick(u"BTN S1 a "_s);
    control<QLineEdit>(u"RemTextBox"_s).setText(u"gear up"_s);
    click(u"CommandREM"_s);
    EXPECT_EQ(joystick().text(), u"BTN S1 a Rem gear up "_s);
    EXPECT_EQ(colourAt(joystick(), 9), colours().RemStatements);
    EXPECT_EQ(colourAt(joystick(), 18), colours().RemStatements);
    EXPECT_EQ(control<QLineEdit>(u"RemTextBox"_s).text(), u"gear up"_s);
    expectOneStepFrom(joystick(), u"BTN S1 a "_s);
    click(u"Command10"_s);
    EXPECT_EQ(control<QLineEdit>(u"RemTextBox"_s).text(), QString());
}

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

TEST_F(FirstPage, FindIPShowsTheCaretsLineAndTumboFollowsItsEntry)
{
    setJoystick(u"BTN S1 a\nBTN S2 b"_s, 10);
    click(u"Command5_2"_s);
    QTest::qWait(150);
    EXPECT_EQ(joystick().text(), u"BTN S1 a\nBTN S2 b"_s);
    auto &tumbo = control<QAbstractButton>(u"Command5_0"_s);
    QAction *entry = editor->action(u"mnuAppsTumbo");
    entry->setEnabled(true);
    EXPECT_TRUE(tumbo.isEnabled());
    entry->setEnabled(false);
    EXPECT_FALSE(tumbo.isEnabled());
}
