// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "tests/composer/pages/first_page.h"

using namespace zeph;
using test::FirstPage;

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

TEST_F(FirstPage, EveryHotSpotAndEntryWritesItsControl)
{
    const auto expectWritten = [this](const QString &control) {
        EXPECT_EQ(joystick().text(), u"BTN "_s + control + u' ');
        setJoystick(QString());
    };
    const QStringList buttons{ u"S1"_s, u"S2"_s, u"S3"_s, u"S4"_s, u"T1"_s, u"T2"_s, u"T3"_s,
                               u"T4"_s, u"T5"_s, u"T6"_s, u"T7"_s, u"T8"_s, u"T9"_s, u"T10"_s };
    for (int i = 0; i < buttons.size(); ++i) {
        click(u"BTN_%1"_s.arg(i));
        expectWritten(buttons[i]);
    }
    const QStringList directions{ u"U"_s, u"D"_s, u"L"_s, u"R"_s, u"M"_s };
    const QStringList corners{ u"UL"_s, u"DL"_s, u"UR"_s, u"DR"_s };
    for (int hat = 0; hat < 4; ++hat) {
        for (int i = 0; i < directions.size(); ++i) {
            click(u"HAT_%1"_s.arg(hat));
            chooseEntry(u"mnuHatPos"_s, u"MnuHatPostion_%1"_s.arg(i));
            expectWritten(u"H%1"_s.arg(hat + 1) + directions[i]);
        }
        for (int i = 0; i < corners.size(); ++i) {
            click(u"HAT_%1"_s.arg(hat));
            chooseEntry(u"mnuHatPos"_s, u"MnuHatCornerPostion_%1"_s.arg(i));
            expectWritten(u"H%1"_s.arg(hat + 1) + corners[i]);
        }
    }
    for (int i = 0; i < 2; ++i) {
        click(u"TRIG"_s);
        chooseEntry(u"mnuTrigger"_s, u"mnuTriggerStage_%1"_s.arg(i));
        expectWritten(u"TG%1"_s.arg(i + 1));
    }
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

TEST_F(FirstPage, EachSlashButtonWritesItsModifier)
{
    const QStringList words{ u"/U "_s, u"/M "_s, u"/D "_s, u"/I "_s, u"/O "_s,
                             u"/P "_s, u"/R "_s, u"/H "_s, u"/A "_s, u"/T "_s };
    for (int i = 0; i < words.size(); ++i) {
        setJoystick(QString());
        click(u"SlashButton_%1"_s.arg(i));
        EXPECT_EQ(joystick().text(), words[i]);
    }
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
