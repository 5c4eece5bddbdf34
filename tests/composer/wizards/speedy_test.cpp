// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/wizards/speedy.h"

#include "composer/tumbo/rawform.h"
#include "editor/edit/insert_windows.h"
#include "editor/macros/macro_features.h"
#include "tests/composer/wizards/wizard_fixture.h"

#include <QSignalSpy>
#include <QTest>

using namespace zeph;

namespace {

class SpeedyTest : public test::WizardTest<Speedy>
{
protected:
    SpeedyTest() : WizardTest(u"mnuSpeedy"_s) { openWindow(); }

    QLineEdit &keys() { return control<QLineEdit>(u"TxtMacro"_s); }
    void write(const QString &name, const QString &keysText)
    {
        nameField().setText(name);
        keys().setText(keysText);
    }
};

} // namespace

TEST_F(SpeedyTest, HasItsCaptions)
{
    EXPECT_EQ(window().windowTitle(), u"Speedy - for fast macro files"_s);
    const QStringList captions = {
        u"Insert a title please"_s,
        u"New macro file please"_s,
        u"Double click to insert macro heading"_s,
        u"Insert heading"_s,
        u"Insert into macro file"_s,
        u"Clear text"_s,
        u"Show me Tumbo again - I need his advice !"_s,
        u"Save macro file"_s,
        u"Transfer these macros I created into the Editor's macro list"_s
    };
    for (int i = 0; i < captions.size(); ++i) {
        EXPECT_EQ(captionOf(u"Command1_%1"_s.arg(i)).toStdString(), captions[i].toStdString());
    }
}

TEST_F(SpeedyTest, TypingANameShowsItsMacroAtOnceAndTheCaretStays)
{
    QTest::keyClicks(&nameField(), u"Fire missile"_s);
    EXPECT_EQ(nameField().text(), u"Fire_missile"_s);
    EXPECT_EQ(preview(), u"Fire_missile = "_s);
    nameField().setCursorPosition(4);
    QTest::keyClicks(&nameField(), u"("_s);
    EXPECT_EQ(nameField().text(), u"Fire__missile"_s);
    EXPECT_EQ(nameField().cursorPosition(), 5);
    QTest::keyClicks(&keys(), u"SHF f"_s);
    EXPECT_EQ(preview(), u"Fire__missile = SHF f"_s);
    nameField().clear();
    EXPECT_EQ(preview(), QString());
}

TEST_F(SpeedyTest, InsertWritesTheLineInItsColoursAndStartsTheNextMacro)
{
    setMacro(u"Gear = g"_s);
    settings.of<ColourSettings>().RAWColour = 0x00BB00;
    write(u"Chaff"_s, u"c DLY(60) f"_s);
    click(u"Command1_4"_s);
    EXPECT_EQ(macro().text(), u"Gear = g\nChaff = c DLY(60) f\n"_s);
    EXPECT_EQ(macro().selStart(), macro().length());
    EXPECT_EQ(macro().richText().formatAt(19).colour, 0x00BB00U);
    EXPECT_EQ(nameField().text() + keys().text() + preview(), QString());
    EXPECT_TRUE(nameField().hasFocus());
    macro().undo();
    EXPECT_EQ(macro().text(), u"Gear = g"_s);
}

TEST_F(SpeedyTest, InsertSelectsTheMacroFileAndLeavesTheJoystickFileAlone)
{
    setJoystick(u"BTN S1 a"_s);
    write(u"Gear"_s, u"g"_s);
    click(u"Command1_4"_s);
    EXPECT_EQ(editor->selected().kind(), DocumentKind::Macro);
    EXPECT_EQ(macro().text(), u"Gear = g\n"_s);
    EXPECT_EQ(joystick().text(), u"BTN S1 a"_s);
}

TEST_F(SpeedyTest, WithoutTheLineEndOfStatementsTheNextMacroStartsALineAllTheSame)
{
    settings.of<ComposerSettings>().CompTabsAddCr = false;
    write(u"Gear"_s, u"g"_s);
    click(u"Command1_4"_s);
    EXPECT_EQ(macro().text(), u"Gear = g"_s);
    write(u"Flaps"_s, u"f"_s);
    click(u"Command1_4"_s);
    EXPECT_EQ(macro().text(), u"Gear = g\nFlaps = f"_s);
}

TEST_F(SpeedyTest, EnterInsertsFromBothFields)
{
    write(u"Gear"_s, u"g"_s);
    QTest::keyClick(&keys(), Qt::Key_Return);
    write(u"Flaps"_s, u"f"_s);
    QTest::keyClick(&nameField(), Qt::Key_Return);
    EXPECT_EQ(macro().text(), u"Gear = g\nFlaps = f\n"_s);
    EXPECT_EQ(control<QComboBox>(u"ComboMacros"_s).findText(u"Flaps"_s), -1)
        << "a name that was inserted is no entry of the list";
}

TEST_F(SpeedyTest, WithoutANameNothingIsInserted)
{
    write(QString(), u"g"_s);
    EXPECT_FALSE(control<QPushButton>(u"Command1_4"_s).isEnabled());
    QTest::keyClick(&keys(), Qt::Key_Return);
    EXPECT_EQ(macro().text(), QString());
    EXPECT_EQ(keys().text(), u"g"_s);
}

TEST_F(SpeedyTest, AProtectedMacroFileRefusesAndTheFieldsStay)
{
    setMacro(u"Gear = g"_s);
    setJoystick(u"BTN S1 a"_s);
    editor->documents().setProtected(true);
    write(u"Flaps"_s, u"f"_s);
    dialogs.answer(u"File protected"_s, BoxButton::Ok);
    click(u"Command1_4"_s);
    EXPECT_EQ(macro().text(), u"Gear = g"_s);
    EXPECT_EQ(joystick().text(), u"BTN S1 a"_s);
    EXPECT_EQ(preview(), u"Flaps = f"_s);
}

TEST_F(SpeedyTest, AProtectedMacroFileRefusesAHeading)
{
    editor->documents().setProtected(true);
    click(u"Command1_2"_s);
    dialogs.answer(u"File protected"_s, BoxButton::Ok);
    QTest::keyClick(&control<QListWidget>(u"List1"_s), Qt::Key_Return);
    EXPECT_EQ(macro().text(), QString());
}

TEST_F(SpeedyTest, ClearTextEmptiesTheFields)
{
    write(u"Gear"_s, u"g"_s);
    click(u"Command1_5"_s);
    EXPECT_EQ(nameField().text() + keys().text() + preview(), QString());
    EXPECT_TRUE(nameField().hasFocus());
    EXPECT_EQ(macro().text(), QString());
}

TEST_F(SpeedyTest, ItsButtonsRunTheEditorsCommandsOnTheMacroFile)
{
    const std::initializer_list<QStringView> entries = { u"mnuInsertTitle", u"mnuFileNewMacro",
                                                         u"mnuInsertHeading", u"mnuFileSave",
                                                         u"mnuEditUpdateMacros" };
    const auto clicked = [&](int index) {
        editor->documents().select(DocumentKind::Joystick);
        const QStringList run = entriesRunBy(entries, [&] { click(u"Command1_%1"_s.arg(index)); });
        EXPECT_EQ(editor->selected().kind(), DocumentKind::Macro) << index;
        for (QWidget *form : QApplication::topLevelWidgets()) {
            if (qobject_cast<Title *>(form) || qobject_cast<Heading *>(form)) {
                form->close();
            }
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return run;
    };
    const QString path = file(u"m.tmm"_s, "Gear = g\r\n");
    editor->opening().OpenFavouriteFile(path);
    EXPECT_EQ(clicked(0), QStringList{ u"mnuInsertTitle"_s });
    EXPECT_EQ(clicked(3), QStringList{ u"mnuInsertHeading"_s });
    EXPECT_EQ(clicked(7), QStringList{ u"mnuFileSave"_s });
    EXPECT_EQ(clicked(8), QStringList{ u"mnuEditUpdateMacros"_s });
    EXPECT_EQ(clicked(1), QStringList{ u"mnuFileNewMacro"_s });
    EXPECT_EQ(macro().text(), QString());
}

TEST_F(SpeedyTest, AHeadingByDoubleClickIsInTheMacroListAfterTheTransfer)
{
    const QString path = file(u"m.tmm"_s, "Gear = g");
    editor->opening().OpenFavouriteFile(path);
    macro().select(macro().length(), 0);
    auto &list = control<QListWidget>(u"List1"_s);
    ASSERT_EQ(list.item(2)->text(), u"Guns and gunsight"_s);
    list.setCurrentRow(2);
    Q_EMIT list.itemDoubleClicked(list.item(2));
    const QString rule = u"Rem "_s + QString(37, u'-');
    EXPECT_EQ(macro().text(),
              u"Gear = g\n"_s + rule + u"\nRem           Guns and gunsight\n"_s + rule + u"\n\n"_s);
    write(u"Fire"_s, u"SPC"_s);
    click(u"Command1_4"_s);
    click(u"Command1_7"_s);
    click(u"Command1_8"_s);
    const MacroTable &table = editor->macros().list().table();
    EXPECT_EQ(table.MacroHeadings, (QStringList{ u"All"_s, u"Guns and gunsight"_s }));
    EXPECT_EQ(table.names.value(1), QStringList{ u"Fire"_s });
    const auto *headings = editor->findChild<QComboBox *>(u"Combo1"_s);
    EXPECT_EQ(headings->findText(u"Guns and gunsight"_s), 1);
}

TEST_F(SpeedyTest, AHeadingIsOneStepToUndoInTheColourOfRemarks)
{
    settings.of<ColourSettings>().RemStatements = 0x00AA00;
    setMacro(u"Gear = g"_s);
    click(u"Command1_2"_s);
    EXPECT_TRUE(control<QListWidget>(u"List1"_s).hasFocus());
    QTest::keyClick(&control<QListWidget>(u"List1"_s), Qt::Key_Return);
    EXPECT_TRUE(macro().text().contains(u"\nRem           Air to air weapons\n"_s));
    EXPECT_EQ(macro().richText().formatAt(20).colour, 0x00AA00U);
    macro().undo();
    EXPECT_EQ(macro().text(), u"Gear = g"_s);
}

TEST_F(SpeedyTest, TumboGivesTheKeys)
{
    nameField().setText(u"Fire"_s);
    click(u"Command1_6"_s);
    auto *tumbo = windows.get<RAWform>();
    ASSERT_TRUE(tumbo && tumbo->isVisible());
    tumbo->findChild<QLineEdit *>(u"TotalCombinedText"_s)->setText(u"SHF f"_s);
    EXPECT_EQ(preview(), u"Fire = SHF f"_s);
    window().close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    tumbo->findChild<QLineEdit *>(u"TotalCombinedText"_s)->setText(u"g"_s);
    EXPECT_EQ(windows.get<Speedy>(), nullptr);
}

TEST_F(SpeedyTest, WithoutTheListsItWorksAndTheListsAreEmpty)
{
    window().close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QFile::remove(folder.file(u"DefaultMacros.txt"_s));
    QFile::remove(folder.file(u"DefaultMacroHeadings.txt"_s));
    openWindow();
    EXPECT_EQ(control<QComboBox>(u"ComboMacros"_s).count(), 0);
    EXPECT_EQ(control<QListWidget>(u"List1"_s).count(), 0);
    click(u"Command1_2"_s);
    QTest::keyClick(&control<QListWidget>(u"List1"_s), Qt::Key_Return);
    write(u"Gear"_s, u"g"_s);
    click(u"Command1_4"_s);
    EXPECT_EQ(macro().text(), u"Gear = g\n"_s);
}

TEST_F(SpeedyTest, ANameThatTheFileHasIsToldAndSoIsItsEnd)
{
    auto &warning = control<QLabel>(u"LabelWarning"_s);
    nameField().setText(u"gear"_s);
    EXPECT_EQ(warning.text(), QString());
    type(DocumentKind::Macro, u"Gear = g"_s);
    EXPECT_TRUE(QTest::qWaitFor([&warning] { return !warning.text().isEmpty(); }));
    EXPECT_EQ(warning.text(), u"There's already a macro called gear."_s);
    macro().undo();
    EXPECT_TRUE(QTest::qWaitFor([&warning] { return warning.text().isEmpty(); }));
}

TEST_F(SpeedyTest, F1AsksForItsHelp)
{
    QSignalSpy help(wizards, &WizardTools::helpWanted);
    QTest::keyClick(&window(), Qt::Key_F1);
    ASSERT_EQ(help.count(), 1);
    EXPECT_EQ(help.first().first().toInt(), 2055);
}
