// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/pages/usepage.h"
#include "composer/tumbo/rawform.h"
#include "composer/wizards/wizardjoystickfile.h"
#include "composer/wizards/wizardmacrofile.h"
#include "tests/composer/wizards/wizard_fixture.h"

#include <QDir>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTest>
#include <QTextBrowser>

using namespace zeph;

namespace {

class MacroWizard : public test::WizardTest<WizardMacroFile>
{
protected:
    MacroWizard() : WizardTest(u"mnuMacroWizard"_s) { openWindow(); }
};

class JoystickWizard : public test::WizardTest<WizardJoystickFile>
{
protected:
    JoystickWizard() : WizardTest(u"mnuJoystickWizard"_s) { openWindow(); }
};

class SlashLesson : public test::WizardTest<WizardSlashModifiers>
{
protected:
    SlashLesson() : WizardTest(u"mnuShowMeSlashModifiers"_s) { openWindow(); }
};

} // namespace

TEST_F(MacroWizard, TurnsItsFourteenPagesForthAndBack)
{
    EXPECT_EQ(window().windowTitle(), u"The Macro file wizard"_s);
    EXPECT_FALSE(control<QPushButton>(u"CommandAll_0"_s).isEnabled());
    for (int page = 0; page < 13; ++page) {
        EXPECT_TRUE(control<QFrame>(u"MacroWizFrame_%1"_s.arg(page)).isVisible()) << page;
        EXPECT_EQ(captionOf(u"CommandAll_1"_s), u"Next >"_s) << page;
        EXPECT_EQ(captionOf(u"CommandAll_2"_s), page < 12 ? u"Cancel"_s : u"Finish"_s) << page;
        click(u"CommandAll_1"_s);
    }
    EXPECT_TRUE(control<QFrame>(u"MacroWizFrame_13"_s).isVisible());
    EXPECT_EQ(captionOf(u"CommandAll_1"_s), u"Close"_s);
    EXPECT_EQ(captionOf(u"CommandAll_2"_s), u"Finish"_s);
    for (int page = 12; page >= 0; --page) {
        click(u"CommandAll_0"_s);
        EXPECT_EQ(window().page(), page);
    }
}

TEST_F(MacroWizard, NextClosesOnTheLastPageAndItBeginsAnew)
{
    window().showPage(13);
    click(u"CommandAll_1"_s);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(windows.get<WizardMacroFile>(), nullptr);
    EXPECT_EQ(openWindow().page(), 0);
}

TEST_F(MacroWizard, CancelOnAnyPageLeavesTheFilesAsTheyAre)
{
    setJoystick(u"BTN S1 a"_s);
    setMacro(u"Gear = g"_s);
    for (int page = 0; page < 14; ++page) {
        openWindow().showPage(page);
        click(u"CommandAll_2"_s);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_EQ(windows.get<WizardMacroFile>(), nullptr) << page;
    }
    EXPECT_EQ(macro().text(), u"Gear = g"_s);
    EXPECT_EQ(joystick().text(), u"BTN S1 a"_s);
    EXPECT_FALSE(macro().isModified());
}

TEST_F(MacroWizard, EscapeClosesIt)
{
    window().showPage(4);
    QTest::keyClick(&window(), Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(windows.get<WizardMacroFile>(), nullptr);
}

TEST_F(MacroWizard, EnterTurnsThePages)
{
    QTest::keyClick(&window(), Qt::Key_Return);
    QTest::keyClick(window().focusWidget(), Qt::Key_Return);
    EXPECT_EQ(window().page(), 2);
}

TEST_F(MacroWizard, ItsButtonsRunTheEditorsCommandsOnTheMacroFile)
{
    editor->opening().OpenFavouriteFile(file(u"m.tmm"_s, "Gear = g\r\n"));
    editor->documents().select(DocumentKind::Joystick);
    const std::initializer_list<QStringView> entries = { u"mnuFileNewMacro", u"mnuFileSave",
                                                         u"mnuEditUpdateMacros" };
    EXPECT_EQ(entriesRunBy(entries, [&] { click(u"BTNinFrame_1"_s); }),
              QStringList{ u"mnuFileSave"_s });
    EXPECT_EQ(editor->selected().kind(), DocumentKind::Macro);
    EXPECT_EQ(entriesRunBy(entries, [&] { click(u"BTNinFrame_5"_s); }),
              QStringList{ u"mnuEditUpdateMacros"_s });
    EXPECT_EQ(entriesRunBy(entries, [&] { click(u"BTNinFrame_0"_s); }),
              QStringList{ u"mnuFileNewMacro"_s });
    EXPECT_EQ(captionOf(u"BTNinFrame_0"_s), u"New macro file please"_s);
    EXPECT_EQ(captionOf(u"BTNinFrame_2"_s), u"Insert a title please"_s);
}

TEST_F(MacroWizard, MakesMacrosAndHeadingsOnItsPages)
{
    window().showPage(6);
    auto &list = control<QListWidget>(u"List1"_s);
    EXPECT_TRUE(list.hasFocus());
    list.setCurrentRow(0);
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_EQ(window().page(), 6) << "Enter is for the list";
    window().showPage(8);
    EXPECT_TRUE(control<QComboBox>(u"ComboMacros"_s).hasFocus());
    QTest::keyClicks(&nameField(), u"Fire missile"_s);
    EXPECT_EQ(preview(), u"Fire_missile = "_s);
    control<QLineEdit>(u"Text1"_s).setText(u"SPC"_s);
    QTest::keyClick(&control<QLineEdit>(u"Text1"_s), Qt::Key_Return);
    EXPECT_EQ(window().page(), 8);
    EXPECT_TRUE(macro().text().startsWith(u"Rem ------"_s));
    EXPECT_TRUE(macro().text().endsWith(u"-\n\nFire_missile = SPC\n"_s));
}

TEST_F(MacroWizard, WithoutTheListsItWorksAndTheListsAreEmpty)
{
    window().close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QFile::remove(folder.file(u"DefaultMacros.txt"_s));
    QFile::remove(folder.file(u"DefaultMacroHeadings.txt"_s));
    openWindow().showPage(6);
    auto &list = control<QListWidget>(u"List1"_s);
    EXPECT_EQ(list.count(), 0);
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_EQ(macro().text(), QString());
    window().showPage(8);
    EXPECT_EQ(control<QComboBox>(u"ComboMacros"_s).count(), 0);
    nameField().setText(u"Gear"_s);
    control<QLineEdit>(u"Text1"_s).setText(u"g"_s);
    click(u"Command1_4"_s);
    EXPECT_EQ(macro().text(), u"Gear = g\n"_s);
}

TEST_F(MacroWizard, TumboGivesTheKeys)
{
    window().showPage(3);
    click(u"CommandTumbo"_s);
    auto *total = windows.get<RAWform>()->findChild<QLineEdit *>(u"TotalCombinedText"_s);
    total->setText(u"CTL e"_s);
    EXPECT_EQ(control<QLineEdit>(u"Text1"_s).text(), u"CTL e"_s);
}

TEST_F(MacroWizard, TellsHowItsFileIs)
{
    auto &told = control<QLabel>(u"LabelFile"_s);
    EXPECT_TRUE(told.text().endsWith(u", still empty"_s)) << told.text().toStdString();
    type(DocumentKind::Macro, u"Gear = g"_s);
    EXPECT_TRUE(told.text().endsWith(u", not saved yet"_s)) << told.text().toStdString();
    macro().undo();
    editor->opening().OpenFavouriteFile(file(u"m.tmm"_s, "Gear = g\r\n"));
    EXPECT_EQ(told.text(), u"Your macro file in the Editor: m.tmm, saved"_s);
}

TEST_F(MacroWizard, ATextThatIsMissingIsToldOnItsPage)
{
    ASSERT_TRUE(QDir(folder.path()).rename(u"Wizards"_s, u"Elsewhere"_s));
    window().showPage(1);
    const auto *text = &control<QTextBrowser>(u"TextLesson_1"_s);
    EXPECT_TRUE(text->toPlainText().startsWith(u"I can't find the text of this page."_s));
    EXPECT_TRUE(text->toPlainText().endsWith(folder.file(u"Wizards/macro-file-1.html"_s)));
}

TEST_F(JoystickWizard, EndsOnItsTenthPage)
{
    EXPECT_EQ(window().windowTitle(), u"The Joystick file wizard"_s);
    window().showPage(8);
    EXPECT_EQ(captionOf(u"CommandAll_2"_s), u"Finish"_s);
    click(u"CommandAll_1"_s);
    EXPECT_EQ(captionOf(u"CommandAll_1"_s), u"Close"_s);
    click(u"CommandAll_1"_s);
    EXPECT_FALSE(window().isVisible());
}

TEST_F(JoystickWizard, CancelOnAnyPageLeavesTheFilesAsTheyAre)
{
    setJoystick(u"BTN S1 a"_s);
    setMacro(u"Gear = g"_s);
    for (int page = 0; page < 10; ++page) {
        openWindow().showPage(page);
        click(u"CommandAll_2"_s);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_EQ(windows.get<WizardJoystickFile>(), nullptr) << page;
    }
    EXPECT_EQ(macro().text(), u"Gear = g"_s);
    EXPECT_EQ(joystick().text(), u"BTN S1 a"_s);
}

TEST_F(JoystickWizard, ItsButtonsRunTheEditorsCommands)
{
    const std::initializer_list<QStringView> entries = { u"mnuFileNewJoystick", u"mnuFileSave",
                                                         u"mnuAppsComposer" };
    EXPECT_EQ(entriesRunBy(entries, [&] { click(u"BTNinFrame_1"_s); }),
              QStringList{ u"mnuFileNewJoystick"_s });
    editor->opening().OpenFavouriteFile(file(u"j.tmj"_s, "BTN S1 a\r\n"));
    editor->documents().select(DocumentKind::Macro);
    EXPECT_EQ(entriesRunBy(entries, [&] { click(u"BTNinFrame_2"_s); }),
              QStringList{ u"mnuFileSave"_s });
    EXPECT_EQ(editor->selected().kind(), DocumentKind::Joystick);
}

TEST_F(JoystickWizard, OpensTheComposerOnThePageOfTheButton)
{
    const auto pageAfter = [this](const QString &button) {
        click(button);
        return composer()->findChild<QTabWidget *>(u"SSTab1"_s)->currentIndex();
    };
    EXPECT_EQ(pageAfter(u"BTNinFrame_7"_s), InsertOptions::DigitalAxis);
    EXPECT_EQ(pageAfter(u"BTNinFrame_6"_s), InsertOptions::Composer);
    static_cast<UsePage *>(composer()->page(InsertOptions::Use))->bringToFront(UseInsert::Startup);
    EXPECT_EQ(pageAfter(u"BTNinFrame_3"_s), InsertOptions::Use);
    EXPECT_EQ(composer()->findChild<QTabWidget *>(u"SSTab5"_s)->currentIndex(), 0);
}

TEST_F(JoystickWizard, MayBeGoneWhenItsCommandReturns)
{
    const auto gone = QObject::connect(editor->action(u"mnuAppsComposer"), &QAction::triggered,
                                       [this] { delete windows.get<WizardJoystickFile>(); });
    click(u"BTNinFrame_7"_s);
    QObject::disconnect(gone);
    EXPECT_EQ(windows.get<WizardJoystickFile>(), nullptr);
    EXPECT_EQ(composer()->findChild<QTabWidget *>(u"SSTab1"_s)->currentIndex(), 0)
        << "nobody is there to turn the page";
}

TEST_F(JoystickWizard, ItsUseMdefNamesTheMacroFile)
{
    editor->opening().OpenFavouriteFile(file(u"Falcon.tmm"_s, "Gear = g\r\n"));
    click(u"BTNinFrame_1"_s);
    click(u"BTNinFrame_3"_s);
    composer()->findChild<QPushButton *>(u"CMD_UseInsert_0"_s)->click();
    EXPECT_TRUE(joystick().text().startsWith(u"USE MDEF Falcon.tmm"_s))
        << joystick().text().toStdString();
}

TEST_F(SlashLesson, HasNextAndCloseAndChangesNothing)
{
    setJoystick(u"BTN S1 a"_s);
    for (int page = 0; page < 5; ++page) {
        EXPECT_EQ(captionOf(u"CommandAll_1"_s), u"Next >"_s);
        EXPECT_EQ(captionOf(u"CommandAll_2"_s), u"Close"_s);
        click(u"CommandAll_1"_s);
    }
    EXPECT_FALSE(control<QPushButton>(u"CommandAll_1"_s).isEnabled());
    click(u"CommandAll_2"_s);
    EXPECT_FALSE(window().isVisible());
    EXPECT_EQ(joystick().text(), u"BTN S1 a"_s);
    EXPECT_FALSE(joystick().isModified());
}

TEST_F(SlashLesson, EachOfTheFourIsOnTheMenuAndByItsName)
{
    for (const auto *entry : { u"mnuShowMeMouseMicrostick", u"mnuShowMeDLYandRATE",
                               u"mnuShowMeConfigurationStatements" }) {
        editor->action(entry)->trigger();
    }
    QStringList names;
    for (const QWidget *each : QApplication::topLevelWidgets()) {
        if (each->isVisible()) {
            names.append(each->objectName());
        }
    }
    for (const QString &name : { u"WizardSlashModifiers"_s, u"WizardMouseMicrostick"_s,
                                 u"WizardDLYandRATE"_s, u"WizardConfigurationStatements"_s }) {
        EXPECT_TRUE(names.contains(name)) << name.toStdString();
    }
}

TEST_F(SlashLesson, TheComposerOffersTheLessonsOfItsPage)
{
    open();
    const auto offered = [this] {
        QStringList names;
        for (const QAction *each :
             composer()->findChild<QPushButton *>(u"CommandShowMeHow"_s)->menu()->actions()) {
            names.append(each->objectName());
        }
        return names;
    };
    EXPECT_EQ(offered(), (QStringList{ u"mnuShowMeSlashModifiers"_s, u"mnuShowMeDLYandRATE"_s }));
    composer()->showPage(InsertOptions::Mouse);
    EXPECT_EQ(offered(), QStringList{ u"mnuShowMeMouseMicrostick"_s });
    composer()->showPage(InsertOptions::Templates);
    EXPECT_FALSE(composer()->findChild<QPushButton *>(u"CommandShowMeHow"_s)->isEnabled());
}

TEST_F(SlashLesson, F1AsksForTheHelp)
{
    QSignalSpy help(wizards, &WizardTools::helpWanted);
    QTest::keyClick(&window(), Qt::Key_F1);
    EXPECT_EQ(help.count(), 1);
}
