// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "tests/composer/mouse/mouse_fixture.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QTextBrowser>

using namespace zeph;

namespace mouseprogram_tests {

namespace {

using enum MouseWizardPage;

const QString refusedTitle = u"No statement to insert"_s;

class MouseWizard : public test::MouseTest
{
protected:
    /// Which of Insert, Next, Back and Cancel can be used: a letter each, or a dash.
    QString buttons()
    {
        QString told;
        for (int i = 0; i < 4; ++i) {
            const bool isOn = part<QAbstractButton>(u"Command1_%1"_s.arg(i)).isEnabled();
            told += isOn ? u"INBC"[i] : u'-';
        }
        return told;
    }
    QString value(RotateValue which)
    {
        return part<QLineEdit>(u"Text_finalValues_%1"_s.arg(int(which))).text();
    }
    /// Makes the gestures of a rotation and stops on its last page.
    void rotate()
    {
        goTo(MouseMovement::Rotation, RotateFrom);
        drag(at(400, 200), at(450, 200));
        next();
        turnTo(at(400, 300));
        next();
        next();
    }
    void cancelled(const QPointer<MouseProgram> &window)
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_EQ(window, nullptr);
        EXPECT_EQ(viewer().gesture(), Gesture::None);
        EXPECT_EQ(viewer().measures(), Measures());
    }
};

} // namespace

TEST_F(MouseWizard, OpensTheImageViewerBesideItAndStartsAtItsFirstPage)
{
    openWizard();
    EXPECT_TRUE(wizard().isVisible());
    EXPECT_TRUE(windows.isOpen<ViewImage>());
    EXPECT_FALSE(wizard().isModal());
    EXPECT_EQ(wizard().page(), Introduction);
    EXPECT_EQ(viewer().pictureSize(), QSize(1000, 500));
    EXPECT_EQ(wizard().windowTitle(), u"Advanced mouse programming wizard");
}

TEST_F(MouseWizard, UsesTheImageViewerThatIsOpen)
{
    editor->action(u"mnuAppsImageViewer")->trigger();
    const ViewImage *before = &viewer();
    openWizard();
    EXPECT_EQ(&viewer(), before);
    goTo(MouseMovement::Absolute, MouseWizardPage::Absolute);
    EXPECT_EQ(viewer().gesture(), Gesture::Point);
}

TEST_F(MouseWizard, BringsAMinimisedImageViewerBack)
{
    editor->action(u"mnuAppsImageViewer")->trigger();
    viewer().showMinimized();
    openWizard();
    EXPECT_FALSE(viewer().isMinimized());
    EXPECT_TRUE(viewer().isVisible());
}

TEST_F(MouseWizard, WithoutAPictureTheViewerIsEmptyAndNoBoxComes)
{
    settings.of<SharedSettings>().ImageFilePath = folder.file(u"gone.bmp"_s);
    openWizard();
    EXPECT_TRUE(viewer().pictureSize().isEmpty());
    EXPECT_EQ(part<QComboBox>(u"ComboScreenRes"_s).currentText(), u"640,480");
    goTo(MouseMovement::Absolute, MouseWizardPage::Absolute);
    dialogs.answer(refusedTitle, BoxButton::Ok);
    insert();
    EXPECT_EQ(joystick().text(), QString());
}

TEST_F(MouseWizard, EachPageHasItsButtonsItsGestureAndItsText)
{
    struct Row {
        MouseWizardPage page;
        QStringView buttons;
        Gesture gesture;
    };
    const QList<Row> rows[] = {
        { { Introduction, u"-N-C", Gesture::None },
          { Resolution, u"INBC", Gesture::None },
          { Choice, u"-NBC", Gesture::None },
          { MouseWizardPage::Absolute, u"I-BC", Gesture::Point } },
        { { Introduction, u"-N-C", Gesture::None },
          { Resolution, u"INBC", Gesture::None },
          { Choice, u"-NBC", Gesture::None },
          { MouseWizardPage::Relative, u"I-BC", Gesture::Line } },
        { { Introduction, u"-N-C", Gesture::None },
          { Resolution, u"INBC", Gesture::None },
          { Choice, u"-NBC", Gesture::None },
          { RotateFrom, u"-NBC", Gesture::Radius },
          { RotateTo, u"-NBC", Gesture::Target },
          { RotateHow, u"-NBC", Gesture::None },
          { RotateValues, u"I-BC", Gesture::None } },
    };
    openWizard();
    const auto expectPage = [this](const Row &row) {
        EXPECT_EQ(wizard().page(), row.page);
        EXPECT_EQ(buttons(), row.buttons) << int(row.page);
        EXPECT_EQ(viewer().gesture(), row.gesture) << int(row.page);
        const QString text =
            part<QTextBrowser>(u"TextLesson_%1"_s.arg(int(row.page))).toPlainText();
        EXPECT_GT(text.size(), 200) << int(row.page);
        EXPECT_FALSE(text.contains(u"can't find")) << text.toStdString();
    };
    for (int movement = 0; movement < mouseMovementCount; ++movement) {
        press(u"OptionMouseMove_%1"_s.arg(movement));
        viewer().setMeasures({ QPointF(10, 10), QPointF(20, 10), QPointF(10, 20) });
        for (const Row &row : rows[movement]) {
            expectPage(row);
            next();
        }
        for (qsizetype i = rows[movement].size() - 1; i >= 0; --i) {
            expectPage(rows[movement][i]);
            back();
        }
    }
}

TEST_F(MouseWizard, CancelOnEachPageClosesItAndClearsTheMeasures)
{
    const std::pair<MouseMovement, MouseWizardPage> places[] = {
        { MouseMovement::Absolute, Introduction },
        { MouseMovement::Absolute, Resolution },
        { MouseMovement::Absolute, Choice },
        { MouseMovement::Absolute, MouseWizardPage::Absolute },
        { MouseMovement::Relative, MouseWizardPage::Relative },
        { MouseMovement::Rotation, RotateFrom },
        { MouseMovement::Rotation, RotateTo },
        { MouseMovement::Rotation, RotateHow },
        { MouseMovement::Rotation, RotateValues },
    };
    for (const auto &[movement, page] : places) {
        const QPointer<MouseProgram> window = &openWizard();
        EXPECT_EQ(window->page(), Introduction);
        press(u"OptionMouseMove_%1"_s.arg(int(movement)));
        viewer().setMeasures({ QPointF(10, 10), QPointF(20, 10), QPointF(10, 20) });
        while (window->page() != page) {
            next();
        }
        press(u"Command1_3"_s);
        cancelled(window);
    }
    EXPECT_EQ(joystick().text(), QString());
}

TEST_F(MouseWizard, EscapeAndTheCloseButtonCancelToo)
{
    QPointer<MouseProgram> window = &openWizard();
    goTo(MouseMovement::Absolute, MouseWizardPage::Absolute);
    click(at(5, 5));
    QTest::keyClick(window, Qt::Key_Escape);
    cancelled(window);
    window = &openWizard();
    goTo(MouseMovement::Absolute, MouseWizardPage::Absolute);
    click(at(5, 5));
    window->close();
    cancelled(window);
}

TEST_F(MouseWizard, ThePicturesSizeIsTheSelectedScreenResolution)
{
    openWizard();
    const auto &list = part<QComboBox>(u"ComboScreenRes"_s);
    EXPECT_EQ(list.currentText(), u"1000,500");
    QStringList entries;
    for (int i = 0; i < list.count(); ++i) {
        entries.append(list.itemText(i));
    }
    EXPECT_EQ(entries,
              QStringList({ u"640,480"_s, u"800,600"_s, u"1024,768"_s, u"1152,864"_s, u"1280,960"_s,
                            u"1280,1024"_s, u"1600,1200"_s, u"1000,500"_s }));

    usePicture(u"other.bmp"_s, { 800, 600 });
    viewer().showImageFile();
    EXPECT_EQ(list.currentText(), u"800,600");
    EXPECT_EQ(list.count(), 7);
    // Percentages are of the new picture.
    goTo(MouseMovement::Absolute, MouseWizardPage::Absolute);
    click(at(400, 300));
    press(u"CheckMouseXY"_s);
    EXPECT_EQ(statement(), u"MOUSEXY (UL, 50%, 50%)");
}

TEST_F(MouseWizard, ARefreshSelectsThePicturesSizeAgain)
{
    openWizard();
    part<QComboBox>(u"ComboScreenRes"_s).setCurrentText(u"800,600"_s);
    viewer().mnuImageLoad_Click();
    EXPECT_EQ(part<QComboBox>(u"ComboScreenRes"_s).currentText(), u"1000,500");
}

TEST_F(MouseWizard, TheScreenResolutionBringsTwoLineEndsAndNoThird)
{
    settings.of<ComposerSettings>().CompTabsAddCr = true;
    openWizard();
    next();
    setJoystick(u"BTN S1 a"_s);
    insert();
    EXPECT_EQ(joystick().text(), u"BTN S1 a\nUSE SCREEN_RESOLUTION (1000,500) \n\n");
    joystick().undo();
    EXPECT_EQ(joystick().text(), u"BTN S1 a");
}

TEST_F(MouseWizard, AStatementGoesToTheCaretOfTheJoystickFileInOneStep)
{
    openWizard();
    goTo(MouseMovement::Absolute, MouseWizardPage::Absolute);
    click(at(400, 200));
    setJoystick(u"BTN S1 \nBTN S2 b"_s, 7);
    setMacro(u"Fire = a"_s);
    insert();
    EXPECT_EQ(joystick().text(), u"BTN S1 MOUSEXY (UL, 400, 200) \nBTN S2 b");
    EXPECT_EQ(macro().text(), u"Fire = a");
    EXPECT_EQ(editor->selected().kind(), DocumentKind::Joystick);
    joystick().undo();
    EXPECT_EQ(joystick().text(), u"BTN S1 \nBTN S2 b");
}

TEST_F(MouseWizard, TheLineEndOfTheTickFollowsAStatement)
{
    settings.of<ComposerSettings>().CompTabsAddCr = true;
    openWizard();
    goTo(MouseMovement::Absolute, MouseWizardPage::Absolute);
    click(at(400, 200));
    setJoystick(u"BTN S1"_s);
    insert();
    EXPECT_EQ(joystick().text(), u"BTN S1 MOUSEXY (UL, 400, 200) \n");
}

TEST_F(MouseWizard, AProtectedMacroFileRefusesWhileItsTabIsSelected)
{
    openWizard();
    goTo(MouseMovement::Absolute, MouseWizardPage::Absolute);
    click(at(400, 200));
    setJoystick(u"BTN S1 "_s);
    setMacro(u"Fire = a"_s);
    editor->documents().setProtected(true);
    dialogs.answer(u"File protected"_s, BoxButton::Ok);
    insert();
    EXPECT_EQ(joystick().text(), u"BTN S1 ");
    EXPECT_EQ(macro().text(), u"Fire = a");
    editor->documents().select(DocumentKind::Joystick);
    insert();
    EXPECT_EQ(joystick().text(), u"BTN S1 MOUSEXY (UL, 400, 200) ");
    EXPECT_EQ(macro().text(), u"Fire = a");
}

TEST_F(MouseWizard, WithoutAGestureNothingIsInserted)
{
    openWizard();
    for (const auto &[movement, page] :
         { std::pair(MouseMovement::Absolute, MouseWizardPage::Absolute),
           std::pair(MouseMovement::Relative, MouseWizardPage::Relative) }) {
        goTo(movement, page);
        dialogs.answer(refusedTitle, BoxButton::Ok);
        insert();
        EXPECT_EQ(dialogs.boxes().last().text,
                  u"You haven't setup the mouse movements correctly in the Image Viewer buddy. Go "
                  "back and follow the instructions.");
        back();
    }
    EXPECT_EQ(joystick().text(), QString());
}

TEST_F(MouseWizard, WithoutTheDragsTheLastPageIsNotReached)
{
    openWizard();
    goTo(MouseMovement::Rotation, RotateHow);
    dialogs.answer(refusedTitle, BoxButton::Ok);
    next();
    EXPECT_EQ(wizard().page(), RotateHow);
    back();
    back();
    drag(at(400, 200), at(450, 200));
    next();
    next();
    dialogs.answer(refusedTitle, BoxButton::Ok);
    next();
    EXPECT_EQ(wizard().page(), RotateHow);
}

TEST_F(MouseWizard, TheRightButtonClearsTheTargetsValues)
{
    openWizard();
    goTo(MouseMovement::Rotation, RotateFrom);
    drag(at(400, 200), at(450, 200));
    next();
    turnTo(at(400, 300));
    EXPECT_EQ(label(u"LBL_MouseInfo_3"_s), u"270");
    QTest::mouseClick(&canvas(), Qt::RightButton, {}, at(10, 10));
    EXPECT_EQ(label(u"LBL_MouseInfo_3"_s), u"");
    EXPECT_EQ(label(u"LBL_MouseInfo_2"_s), u"0");
    EXPECT_EQ(statement(), u"MOUSEROTATE (UL, 400, 200, 50, 0, [MOUSE_LB], CW, ?, 2)");
}

TEST_F(MouseWizard, APressEmptiesWhatWasShown)
{
    openWizard();
    goTo(MouseMovement::Relative, MouseWizardPage::Relative);
    drag(at(400, 200), at(450, 200));
    EXPECT_EQ(label(u"LBL_MouseXY"_s), u"50,0");
    QTest::mousePress(&canvas(), Qt::LeftButton, {}, at(10, 10));
    EXPECT_EQ(label(u"LBL_MouseXY"_s), u"");
    EXPECT_EQ(statement(), u"MOUSEMOVE (?, ?)");
    QTest::mouseRelease(&canvas(), Qt::LeftButton, {}, at(20, 5));
    EXPECT_EQ(label(u"LBL_MouseXY"_s), u"10,-5");
}

TEST_F(MouseWizard, AnotherMovementBeginsWithNothingMeasured)
{
    openWizard();
    goTo(MouseMovement::Relative, MouseWizardPage::Relative);
    drag(at(400, 200), at(450, 200));
    back();
    press(u"OptionMouseMove_2"_s);
    next();
    EXPECT_EQ(statement(), u"MOUSEROTATE (UL, ?, ?, ?, ?, [MOUSE_LB], CW, ?, 2)");
}

TEST_F(MouseWizard, TheLastPageCanBeEditedAndRestored)
{
    openWizard();
    rotate();
    EXPECT_EQ(wizard().page(), RotateValues);
    const QString computed[] = { u"UL"_s,       u"400, 200"_s, u"50"_s,  u"0"_s,
                                 u"MOUSE_LB"_s, u"CW"_s,       u"270"_s, u"2"_s };
    for (int i = 0; i < rotateValueCount; ++i) {
        auto &box = part<QLineEdit>(u"Text_finalValues_%1"_s.arg(i));
        EXPECT_EQ(box.text(), computed[i]);
        EXPECT_EQ(box.isReadOnly(), i == RotateCentre || i == RotateRadius);
    }
    part<QLineEdit>(u"Text_finalValues_3"_s).setText(u"15"_s);
    part<QLineEdit>(u"Text_finalValues_4"_s).setText(u"Knob"_s);
    part<QLineEdit>(u"Text_finalValues_6"_s).setText(u"0"_s);
    EXPECT_EQ(statement(), u"MOUSEROTATE (UL, 400, 200, 50, 15, [Knob], CW, 360, 2)");
    setJoystick(u"BTN S1 "_s);
    insert();
    EXPECT_EQ(joystick().text(), u"BTN S1 MOUSEROTATE (UL, 400, 200, 50, 15, [Knob], CW, 360, 2)");
    press(u"CommandRestore"_s);
    for (int i = 0; i < rotateValueCount; ++i) {
        EXPECT_EQ(value(RotateValue(i)), computed[i]);
    }
}

TEST_F(MouseWizard, AnEmptyValueOfTheLastPageIsRefused)
{
    openWizard();
    rotate();
    part<QLineEdit>(u"Text_finalValues_4"_s).clear();
    dialogs.answer(u"Missing some text buddy"_s, BoxButton::Ok);
    insert();
    EXPECT_EQ(joystick().text(), QString());
}

TEST_F(MouseWizard, WhatWasMeasuredOutlivesTheViewer)
{
    const auto closeViewer = [this] {
        viewer().close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        ASSERT_EQ(windows.get<ViewImage>(), nullptr);
    };
    const QString turned = u"MOUSEROTATE (UL, 400, 200, 50, 0, [MOUSE_LB], CW, 90, 2)"_s;
    openWizard();
    goTo(MouseMovement::Rotation, RotateFrom);
    drag(at(400, 200), at(450, 200));
    next();
    turnTo(at(400, 100));
    next();
    closeViewer();
    next();
    EXPECT_EQ(wizard().page(), RotateValues);
    press(u"CommandRestore"_s);
    EXPECT_EQ(statement(), turned);
    // The page with a gesture brings the viewer back, and its marks with it.
    back();
    back();
    ASSERT_NE(windows.get<ViewImage>(), nullptr);
    EXPECT_EQ(viewer().measures().from, QPointF(400, 200));
    EXPECT_EQ(statement(), turned);
    // On another picture they have no meaning.
    closeViewer();
    usePicture(u"other.bmp"_s, { 1000, 500 });
    editor->action(u"mnuAppsImageViewer")->trigger();
    EXPECT_EQ(viewer().measures(), Measures());
    EXPECT_EQ(statement(), u"MOUSEROTATE (UL, ?, ?, ?, ?, [MOUSE_LB], CW, ?, 2)");
}

TEST_F(MouseWizard, AViewerThatWasClosedComesBackForTheNextGesture)
{
    openWizard();
    goTo(MouseMovement::Absolute, MouseWizardPage::Absolute);
    click(at(400, 200));
    viewer().close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(windows.get<ViewImage>(), nullptr);
    EXPECT_EQ(statement(), u"MOUSEXY (UL, 400, 200)");
    back();
    EXPECT_EQ(windows.get<ViewImage>(), nullptr);
    next();
    EXPECT_EQ(viewer().gesture(), Gesture::Point);
    click(at(100, 50));
    EXPECT_EQ(statement(), u"MOUSEXY (UL, 100, 50)");
}

TEST_F(MouseWizard, F1LeadsToTheHelpOnMouseProgramming)
{
    QSignalSpy wanted(&openWizard(), &MouseProgram::helpWanted);
    QApplication::setActiveWindow(&wizard());
    QTest::keyClick(&wizard(), Qt::Key_F1);
    ASSERT_EQ(wanted.count(), 1);
    EXPECT_EQ(wanted[0][0].toInt(), 2060);
}

TEST_F(MouseWizard, TheComposersButtonOpensIt)
{
    open().showPage(InsertOptions::Mouse);
    QApplication::processEvents();
    ASSERT_TRUE(control<QAbstractButton>(u"CMD_MouseWizard"_s).isEnabled());
    ComposerWorld::click(u"CMD_MouseWizard"_s);
    EXPECT_TRUE(windows.isOpen<MouseProgram>());
}

TEST_F(MouseWizard, TheViewersMenuOpensBothWindows)
{
    editor->action(u"mnuAppsImageViewer")->trigger();
    viewer().mnuMouseWizard_Click();
    EXPECT_TRUE(windows.isOpen<MouseProgram>());
    for (int tab = 0; tab < 5; ++tab) {
        viewer().mnuMouseStatements_Click(tab);
        ASSERT_TRUE(windows.isOpen<MouseManual>());
        EXPECT_EQ(windows.get<MouseManual>()->findChild<QTabWidget *>(u"SSTab1"_s)->currentIndex(),
                  tab);
    }
}

} // namespace mouseprogram_tests
