// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/edit/insert_forms.h"

#include "editor/editor_settings.h"
#include "editor/files/file_opening.h"
#include "editor/files/file_saving.h"
#include "editor/macros/macro_features.h"
#include "platform/core/profile_file.h"
#include "settings/shared_settings.h"
#include "tests/support/painting_fixture.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>

using namespace zeph;

namespace {

/// Fills forms as a pilot does: by their controls' names.
class InsertFormsTest : public test::PaintingTest
{
protected:
    InsertFormsTest() { editor->show(); }

    QDialog *form(const QString &name)
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        auto *found = editor->findChild<QDialog *>(name);
        EXPECT_TRUE(found && found->isVisible()) << name.toStdString();
        return found;
    }
    QDialog *open(QStringView entry, const QString &name)
    {
        EXPECT_TRUE(editor->actions().action(entry)->isEnabled());
        editor->actions().action(entry)->trigger();
        return form(name);
    }
    static void fill(QWidget *form, const QString &field, const QString &text)
    {
        form->findChild<QLineEdit *>(field)->setText(text);
    }
    static void press(QWidget *form, const QString &name)
    {
        form->findChild<QAbstractButton *>(name)->click();
    }
    void insertHeading(const QString &text)
    {
        QDialog *heading = open(u"mnuInsertHeading", u"Heading"_s);
        heading->findChild<QComboBox *>(u"Combo1"_s)->setEditText(text);
        press(heading, u"cmdOK"_s);
    }
    QString stored(const QString &section, const QString &key)
    {
        return ProfileFile(paths.iniPath).text(section, key, u"none"_s, profileTextBuffer);
    }
    /// The colours that can be seen: of all but blanks and line ends, and but digits, which a full
    /// pass leaves plain in a delay.
    QString coloursOfWords(DocumentKind kind)
    {
        const QString text = control(kind)->shown().text();
        const QString all = colours(kind);
        QString seen;
        for (qsizetype i = 0; i < text.size(); ++i) {
            seen += text[i].isSpace() || text[i].isDigit() ? QString() : QString(all[i]);
        }
        return seen;
    }
    void caretAt(DocumentKind kind, int position) { control(kind)->shown().select(position, 0); }
};

} // namespace

TEST_F(InsertFormsTest, AHeadingStandsOnLinesOfItsOwnInTheCommentsColour)
{
    set(M, u"Gun = a"_s);
    editor->documents().select(M);
    caretAt(M, 3);
    insertHeading(u"IR"_s);
    EXPECT_EQ(editor->macroText(), u"Gun\nRem --\nRem           IR\nRem --\n = a");
    EXPECT_EQ(colours(M), u"....cccccc.cccccccccccccccc.cccccc.....");
    EXPECT_EQ(editor->undos().of(M).slots(), 2);
    editor->undos().mnuEditUndo_Click();
    EXPECT_EQ(editor->macroText(), u"Gun = a");
}

TEST_F(InsertFormsTest, AnInsertedHeadingIsInTheMacroListOnceTheFileIsSaved)
{
    const QString path = file(u"a.tmm"_s, "Gun = a\r\n");
    editor->opening().OpenFavouriteFile(path);
    editor->documents().select(M);
    caretAt(M, 8);
    insertHeading(u"radar AND displays"_s);
    type(M, u"Lock = b\n"_s);
    editor->saving().mnuFileSave_Click();
    editor->macros().list().mnuEditUpdateMacros_Click();
    const MacroTable &table = editor->macros().list().table();
    EXPECT_EQ(table.MacroHeadings, (QStringList{ u"All"_s, u"Radar and displays"_s }));
    EXPECT_EQ(table.names[1], QStringList{ u"Lock"_s });
}

TEST_F(InsertFormsTest, TheHeadingsListIsReadFromTheFileBesideTheProgram)
{
    folder.write(u"DefaultMacroHeadings.txt"_s, "Guns\r\nRadar\r\n");
    QDialog *heading = open(u"mnuInsertHeading", u"Heading"_s);
    auto *box = heading->findChild<QComboBox *>(u"Combo1"_s);
    ASSERT_EQ(box->count(), 2);
    EXPECT_EQ(box->currentText(), u"");
    EXPECT_FALSE(heading->findChild<QAbstractButton *>(u"cmdOK"_s)->isEnabled());
    box->setCurrentIndex(1);
    press(heading, u"cmdOK"_s);
    EXPECT_EQ(editor->joystickText(), u"Rem -----\nRem           Radar\nRem -----\n");
}

TEST_F(InsertFormsTest, WithoutTheListAHeadingCanStillBeTyped)
{
    QDialog *heading = open(u"mnuInsertHeading", u"Heading"_s);
    EXPECT_EQ(heading->findChild<QComboBox *>(u"Combo1"_s)->count(), 0);
    heading->reject();
    EXPECT_EQ(editor->joystickText(), u"");
    EXPECT_EQ(editor->joystick().state(), Document::Empty);
}

TEST_F(InsertFormsTest, AHeadingOfBlanksIsNone)
{
    QDialog *heading = open(u"mnuInsertHeading", u"Heading"_s);
    heading->findChild<QComboBox *>(u"Combo1"_s)->setEditText(u"   "_s);
    heading->accept();
    EXPECT_EQ(editor->joystickText(), u"");
}

TEST_F(InsertFormsTest, AProtectedMacroFileRefusesEachFormBeforeItOpens)
{
    set(M, u"a = b"_s);
    editor->documents().select(M);
    protectMacro();
    for (const QStringView entry :
         { u"mnuInsertHeading", u"mnuInsertTitle", u"mnuInsertRemStatement", u"mnuSlashArray_0" }) {
        dialogs.answer(u"File protected"_s, BoxButton::Ok);
        editor->actions().action(entry)->trigger();
    }
    EXPECT_TRUE(editor->findChildren<QDialog *>().isEmpty());
    EXPECT_EQ(dialogs.boxes().size(), 4);
    EXPECT_EQ(editor->macroText(), u"a = b");
    EXPECT_EQ(editor->macro().state(), Document::Saved);
}

TEST_F(InsertFormsTest, ACommentStandsAtTheCaretAndALineEndAfterItWhenWanted)
{
    set(J, u"BTN S1 Gun \nBTN S2"_s);
    caretAt(J, 11);
    QDialog *rem = open(u"mnuInsertRemStatement", u"SingleTextForm"_s);
    EXPECT_TRUE(rem->findChild<QAbstractButton *>(u"CheckAddCR"_s)->isChecked());
    fill(rem, u"RichTextBox1"_s, u"fires"_s);
    press(rem, u"cmdOK"_s);
    EXPECT_EQ(editor->joystickText(), u"BTN S1 Gun Rem  fires\n\nBTN S2");
    EXPECT_EQ(colours(J), u"...........cccccccccc........");
    EXPECT_EQ(joystick()->shown().selStart(), 22);
}

TEST_F(InsertFormsTest, TheTickOfTheLineEndIsKept)
{
    QDialog *rem = open(u"mnuInsertRemStatement", u"SingleTextForm"_s);
    press(rem, u"CheckAddCR"_s);
    fill(rem, u"RichTextBox1"_s, u"x"_s);
    press(rem, u"cmdOK"_s);
    EXPECT_EQ(editor->joystickText(), u"Rem  x");
    EXPECT_EQ(settings.of<EditorSettings>().AddCRtoREM, 0);
    EXPECT_EQ(stored(u"Miscellaneous"_s, u"AddCRtoREM"_s), u"0");
    rem = open(u"mnuInsertRemStatement", u"SingleTextForm"_s);
    EXPECT_FALSE(rem->findChild<QAbstractButton *>(u"CheckAddCR"_s)->isChecked());
    press(rem, u"CheckAddCR"_s);
    press(rem, u"cmdCancel"_s);
    EXPECT_EQ(settings.of<EditorSettings>().AddCRtoREM, 0);
}

TEST_F(InsertFormsTest, ACommentDoesNotStickToTheWordBeforeIt)
{
    set(J, u"BTN S1 Gun"_s);
    caretAt(J, 10);
    QDialog *rem = open(u"mnuInsertRemStatement", u"SingleTextForm"_s);
    fill(rem, u"RichTextBox1"_s, u"x"_s);
    press(rem, u"cmdOK"_s);
    EXPECT_EQ(editor->joystickText(), u"BTN S1 Gun Rem  x\n");
}

TEST_F(InsertFormsTest, TheTitlesFieldsArePreset)
{
    settings.of<SharedSettings>().ValidUser = u"Ann \"Ace\" Other"_s;
    editor->opening().OpenFavouriteFile(file(u"F-16.tmj"_s, "BTN S1 a\r\n"));
    QDialog *title = open(u"mnuInsertTitle", u"Title"_s);
    const QStringList expected{ u"F-16.tmj"_s, u""_s, u"Ann \"Ace\" Other"_s,
                                u"05 March 2024, 9:07 am"_s, u"Thrustmaster Cougar"_s };
    for (int i = 1; i <= 5; ++i) {
        EXPECT_EQ(title->findChild<QLineEdit *>(u"Text"_s + QString::number(i))->text(),
                  expected[i - 1]);
    }
    EXPECT_EQ(title->findChild<QPlainTextEdit *>(u"RichTextBox1"_s)->toPlainText(), u"");
}

TEST_F(InsertFormsTest, ATitleIsWrittenAsCommentsAndTheNameKept)
{
    QDialog *title = open(u"mnuInsertTitle", u"Title"_s);
    fill(title, u"Text2"_s, u"any game"_s);
    fill(title, u"Text3"_s, u"Ann"_s);
    title->findChild<QPlainTextEdit *>(u"RichTextBox1"_s)->setPlainText(u"Two\nlines"_s);
    press(title, u"cmdOK"_s);
    const QStringList lines = editor->joystickText().split(u'\n');
    ASSERT_EQ(lines.size(), 13);
    EXPECT_EQ(lines[3], u"Rem        for any game                        Rem");
    EXPECT_EQ(lines[5], u"Rem    by Ann                                  Rem");
    EXPECT_EQ(lines[10], u"Rem    lines                                   Rem");
    EXPECT_EQ(lines[12], u"");
    EXPECT_FALSE(colours(J).contains(u's') || colours(J).contains(u'?'));
    EXPECT_EQ(colours(J).count(u'.'), 12);
    EXPECT_EQ(settings.of<SharedSettings>().ValidUser, u"Ann");
    EXPECT_EQ(stored(u"Miscellaneous"_s, u"ValidUser"_s), u"Ann");
    EXPECT_EQ(editor->undos().of(J).slots(), 2);
}

TEST_F(InsertFormsTest, NobodysNameIsUserUnknown)
{
    settings.of<SharedSettings>().ValidUser.clear();
    EXPECT_EQ(editor->insertForms().GetPersonsName(), u"User unknown");
    QDialog *title = open(u"mnuInsertTitle", u"Title"_s);
    fill(title, u"Text3"_s, u" "_s);
    press(title, u"cmdOK"_s);
    EXPECT_EQ(settings.of<SharedSettings>().ValidUser, u"User unknown");
}

TEST_F(InsertFormsTest, ATitlesDateIsBroughtUpToDateByASave)
{
    const QString path = file(u"a.tmj"_s, "BTN S1 a\r\n");
    editor->opening().OpenFavouriteFile(path);
    caretAt(J, 0);
    QDialog *title = open(u"mnuInsertTitle", u"Title"_s);
    fill(title, u"Text4"_s, u"1 January 1999"_s);
    press(title, u"cmdOK"_s);
    editor->saving().mnuFileSave_Click();
    EXPECT_TRUE(
        editor->joystickText().contains(u"\nRem    Last modified: 05 March 2024, 9:07 am\n"))
        << editor->joystickText().toStdString();
    EXPECT_TRUE(editor->joystickText().endsWith(u"###\nBTN S1 a\n"));
}

TEST_F(InsertFormsTest, ASlashModifierIsInsertedInItsColourApartFromWhatFollows)
{
    set(J, u"BTN S1 Gun"_s);
    caretAt(J, 7);
    editor->actions().action(u"mnuSlashArray_3")->trigger();
    EXPECT_EQ(editor->joystickText(), u"BTN S1 /I Gun");
    EXPECT_EQ(colours(J), u".......sss...");
    EXPECT_EQ(editor->undos().of(J).slots(), 2);
}

TEST_F(InsertFormsTest, EachEntryOfTheMenuInsertsItsWord)
{
    settings.of<EditorSettings>().DefaultDLYvalue = 80;
    QStringList inserted;
    for (int i = 0; i < 12; ++i) {
        set(J, u""_s);
        editor->actions().action(u"mnuSlashArray_"_s + QString::number(i))->trigger();
        inserted.append(editor->joystickText());
        EXPECT_EQ(colours(J).at(0), i < 10 ? u's' : u'r') << i;
    }
    EXPECT_EQ(inserted.join(u' '), u"/U /M /D /I /O /P /R /T /A /H DLY(80) RPT(2)");
}

TEST_F(InsertFormsTest, WhatTheMenuInsertsHasTheColoursOfAFullPass)
{
    for (int i = 0; i < 12; ++i) {
        set(J, u""_s);
        editor->actions().action(u"mnuSlashArray_"_s + QString::number(i))->trigger();
        const QString inserted = coloursOfWords(J);
        highlighting().ApplyColourHighlighting();
        EXPECT_EQ(coloursOfWords(J), inserted) << i;
    }
}

TEST_F(InsertFormsTest, TitlesHeadingsAndCommentsHaveTheColoursOfAFullPass)
{
    set(J, u""_s);
    press(open(u"mnuInsertTitle", u"Title"_s), u"cmdOK"_s);
    insertHeading(u"BTN AND DLY(60)"_s);
    QDialog *rem = open(u"mnuInsertRemStatement", u"SingleTextForm"_s);
    fill(rem, u"RichTextBox1"_s, u"USE MDEF /U"_s);
    press(rem, u"cmdOK"_s);
    const QString inserted = coloursOfWords(J);
    EXPECT_GT(inserted.count(u'c'), 100);
    highlighting().ApplyColourHighlighting();
    EXPECT_EQ(coloursOfWords(J), inserted);
}

TEST_F(InsertFormsTest, TheSlashWindowInsertsAtTheCaretAndStaysOpen)
{
    QDialog *palette = open(u"mnuSlashWindow", u"SlashWindow"_s);
    EXPECT_EQ(palette->windowTitle(), u"Slash Modifiers");
    EXPECT_FALSE(palette->isModal());
    press(palette, u"Command1_0"_s);
    press(palette, u"Command1_10"_s);
    EXPECT_EQ(editor->joystickText(), u"/UDLY(60)");
    EXPECT_EQ(colours(J), u"ssrrrrrrr");
    EXPECT_TRUE(palette->isVisible());
    EXPECT_EQ(open(u"mnuSlashWindow", u"SlashWindow"_s), palette);
    QTest::keyClick(palette, Qt::Key_Escape);
    EXPECT_FALSE(palette->isVisible());
}

TEST_F(InsertFormsTest, TheSlashWindowShowsTheDelayOfTheSetting)
{
    QDialog *palette = open(u"mnuSlashWindow", u"SlashWindow"_s);
    palette->reject();
    settings.of<EditorSettings>().DefaultDLYvalue = 120;
    palette = open(u"mnuSlashWindow", u"SlashWindow"_s);
    EXPECT_EQ(palette->findChild<QAbstractButton *>(u"Command1_10"_s)->text(), u"DLY(120)");
    press(palette, u"Command1_10"_s);
    EXPECT_EQ(editor->joystickText(), u"DLY(120)");
}

TEST_F(InsertFormsTest, TheSlashWindowThatIsOpenFollowsTheDelay)
{
    const QDialog *palette = open(u"mnuSlashWindow", u"SlashWindow"_s);
    settings.of<EditorSettings>().DefaultDLYvalue = 75;
    editor->applySettings();
    EXPECT_EQ(palette->findChild<QAbstractButton *>(u"Command1_10"_s)->text(), u"DLY(75)");
}

TEST_F(InsertFormsTest, TheQuickTipOpensTheHelp)
{
    QSignalSpy help(editor.get(), &Editor::helpOn);
    editor->actions().action(u"mnuInsertQuickTip")->trigger();
    ASSERT_EQ(help.size(), 1);
    EXPECT_EQ(help.first().first().toString(), u"insert forms");
}
