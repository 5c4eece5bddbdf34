// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/edit/findandreplace.h"

#include "documents/undo_histories.h"
#include "platform/core/text_search.h"
#include "tests/support/editor_fixture.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTest>

using namespace zeph;
using zeph::test::EditorTest;

namespace {

constexpr auto notFound = u"Text not found";
constexpr auto foundAll = u"You found 'em all!";
constexpr auto replacedAll = u"Replaced 'em all for you. Now buy me a drink";

class FindAndReplaceTest : public EditorTest
{
protected:
    void SetUp() override
    {
        editor->resize(700, 500);
        editor->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(editor.get()));
        load(DocumentKind::Joystick, u"Fire one\nfire two\nFires three\n"_s);
        load(DocumentKind::Macro, u"Fire = SPC"_s);
    }
    void load(DocumentKind kind, const QString &text)
    {
        editor->documents().of(kind).setText(text);
        editor->undos().startOver(kind);
        editor->documents().of(kind).setState(Document::Saved);
    }
    FindAndReplace *window() { return editor->findChild<FindAndReplace *>(); }
    /// A dialog counts as active while its owner is; mnemonics go by the window that really is.
    bool becomesActive()
    {
        return QTest::qWaitFor([this] { return QApplication::activeWindow() == window(); });
    }
    template <class T> T *control(const QString &name)
    {
        T *found = window()->findChild<T *>(name);
        EXPECT_TRUE(found) << name.toStdString();
        return found;
    }
    QPushButton *button(const QString &name) { return control<QPushButton>(name); }
    void write(const QString &box, const QString &text)
    {
        control<QComboBox>(box)->setEditText(text);
    }
    QStringList listOf(const QString &box)
    {
        QStringList list;
        const auto *combo = control<QComboBox>(box);
        for (int i = 0; i < combo->count(); ++i) {
            list.append(combo->itemText(i));
        }
        return list;
    }
    void open(const QString &entry) { editor->action(entry)->trigger(); }
    void expectBox(QStringView title) { dialogs.answer(title.toString(), BoxButton::Ok); }
    QString lastBox() { return dialogs.boxes().last().text; }
    TextControl &joystick() { return editor->view().control(DocumentKind::Joystick); }
    TextControl &macro() { return editor->view().control(DocumentKind::Macro); }
    std::pair<int, int> selection(TextControl &text)
    {
        return { text.shown().selStart(), text.shown().selLength() };
    }
    int steps(DocumentKind kind) { return editor->undos().of(kind).slots() - 1; }
};

using Selection = std::pair<int, int>;

} // namespace

TEST_F(FindAndReplaceTest, EachEntryShowsItsTabForTheSelectedDocument)
{
    open(u"mnuEditFind"_s);
    auto *tabs = control<QTabWidget>(u"SSTab1"_s);
    ASSERT_EQ(tabs->count(), 3);
    EXPECT_EQ(tabs->tabText(0), u"Find");
    EXPECT_EQ(tabs->tabText(1), u"Replace");
    EXPECT_EQ(tabs->tabText(2), u"Go to line");
    EXPECT_EQ(tabs->currentIndex(), 0);
    EXPECT_TRUE(control<QRadioButton>(u"OptionJoystickF"_s)->isChecked());
    editor->documents().select(DocumentKind::Macro);
    open(u"mnuEditReplace"_s);
    EXPECT_EQ(tabs->currentIndex(), 1);
    EXPECT_TRUE(control<QRadioButton>(u"OptionMacroR"_s)->isChecked());
    open(u"mnuEditGoto"_s);
    EXPECT_EQ(tabs->currentIndex(), 2);
    EXPECT_FALSE(window()->isModal());
    EXPECT_TRUE(window()->isVisible());
}

TEST_F(FindAndReplaceTest, TheSelectionIsWhatIsSought)
{
    joystick().shown().select(5, 3);
    open(u"mnuEditFind"_s);
    EXPECT_EQ(control<QComboBox>(u"ComboTextFind"_s)->currentText(), u"one");
    joystick().shown().select(0, 0);
    open(u"mnuEditFind"_s);
    EXPECT_EQ(control<QComboBox>(u"ComboTextFind"_s)->currentText(), u"one");
}

TEST_F(FindAndReplaceTest, EachEntryPresetsThePagesForTheSelectedDocument)
{
    editor->documents().select(DocumentKind::Macro);
    macro().shown().select(0, 4);
    for (const QString &entry : { u"mnuEditFind"_s, u"mnuEditReplace"_s, u"mnuEditGoto"_s }) {
        open(entry);
        EXPECT_TRUE(control<QRadioButton>(u"OptionMacroF"_s)->isChecked()) << entry.toStdString();
        EXPECT_TRUE(control<QRadioButton>(u"OptionMacroR"_s)->isChecked()) << entry.toStdString();
        for (const QString &box : { u"ComboTextFind"_s, u"ComboTextReplaceFind"_s }) {
            EXPECT_EQ(control<QComboBox>(box)->currentText(), u"Fire") << entry.toStdString();
            write(box, u"other"_s);
        }
        control<QRadioButton>(u"OptionJoystickF"_s)->click();
        control<QRadioButton>(u"OptionJoystickR"_s)->click();
    }
}

TEST_F(FindAndReplaceTest, FindFirstThenNextThenAllFound)
{
    open(u"mnuEditFind"_s);
    write(u"ComboTextFind"_s, u"fire"_s);
    QPushButton *find = button(u"Command1"_s);
    EXPECT_EQ(find->text(), u"Find first");
    find->click();
    EXPECT_EQ(find->text(), u"Find next");
    EXPECT_EQ(selection(joystick()), Selection(0, 4));
    find->click();
    EXPECT_EQ(selection(joystick()), Selection(9, 4));
    EXPECT_EQ(status.lineText(), u"Line no: 2");
    find->click();
    EXPECT_EQ(selection(joystick()), Selection(18, 4));
    expectBox(foundAll);
    find->click();
    EXPECT_EQ(lastBox(), u"No further instances of \"fire\" found in Untitled.tmj");
    EXPECT_EQ(find->text(), u"Find first");
    EXPECT_EQ(selection(joystick()), Selection(18, 4));
}

TEST_F(FindAndReplaceTest, AHitOutOfSightComesToTheMiddleOneInSightStaysWhereItIs)
{
    load(DocumentKind::Joystick,
         QString(u'\n').repeated(200) + u"gun\ngun"_s + QString(u'\n').repeated(200));
    open(u"mnuEditFind"_s);
    write(u"ComboTextFind"_s, u"gun"_s);
    button(u"Command1"_s)->click();
    const int height = joystick().viewport()->height();
    const int first = joystick().cursorRect().center().y();
    EXPECT_GT(first, height / 4);
    EXPECT_LT(first, height * 3 / 4);
    button(u"Command1"_s)->click();
    EXPECT_EQ(joystick().cursorRect().center().y(), first + joystick().cursorRect().height());
}

TEST_F(FindAndReplaceTest, AnotherPressAfterTheLastHitBeginsAnew)
{
    open(u"mnuEditFind"_s);
    write(u"ComboTextFind"_s, u"two"_s);
    button(u"Command1"_s)->click();
    expectBox(foundAll);
    button(u"Command1"_s)->click();
    button(u"Command1"_s)->click();
    EXPECT_EQ(selection(joystick()), Selection(14, 3));
}

TEST_F(FindAndReplaceTest, NoHitAtAllIsToldWithTheName)
{
    open(u"mnuEditFind"_s);
    write(u"ComboTextFind"_s, u"nowhere"_s);
    expectBox(notFound);
    button(u"Command1"_s)->click();
    EXPECT_EQ(lastBox(), u"\"nowhere\" not found in Untitled.tmj");
    EXPECT_EQ(button(u"Command1"_s)->text(), u"Find first");
}

TEST_F(FindAndReplaceTest, NothingToSearchForIsTold)
{
    open(u"mnuEditFind"_s);
    expectBox(u"Please enter text to search");
    button(u"Command1"_s)->click();
    EXPECT_EQ(lastBox(), u"You haven't specified the text to search for");
}

TEST_F(FindAndReplaceTest, AnEmptyDocumentIsTold)
{
    load(DocumentKind::Joystick, QString());
    load(DocumentKind::Macro, QString());
    open(u"mnuEditFind"_s);
    write(u"ComboTextFind"_s, u"a"_s);
    expectBox(u"No text in joystick file");
    button(u"Command1"_s)->click();
    EXPECT_EQ(lastBox(), u"Untitled.tmj has no text to highlight.");
    control<QRadioButton>(u"OptionMacroF"_s)->click();
    expectBox(u"No text in macro file");
    button(u"Command1"_s)->click();
    EXPECT_EQ(lastBox(), u"Untitled.tmm has no text to highlight.");
    EXPECT_EQ(listOf(u"ComboTextFind"_s), QStringList{ u"a"_s });
}

TEST_F(FindAndReplaceTest, TheTicksMakeTheOptions)
{
    open(u"mnuEditFind"_s);
    write(u"ComboTextFind"_s, u"fire"_s);
    control<QCheckBox>(u"MatchCaseF"_s)->click();
    control<QCheckBox>(u"WholeWordF"_s)->click();
    button(u"Command1"_s)->click();
    EXPECT_EQ(window()->SearchOptions, SearchWholeWord + SearchMatchCase);
    EXPECT_EQ(window()->LastFindText, u"fire");
    EXPECT_EQ(selection(joystick()), Selection(9, 4));
    expectBox(foundAll);
    button(u"Command1"_s)->click();
}

TEST_F(FindAndReplaceTest, WhateverIsChangedTheSearchBeginsAnew)
{
    open(u"mnuEditReplace"_s);
    write(u"ComboTextReplaceFind"_s, u"fire"_s);
    const std::function<void()> changes[] = {
        [this] { write(u"ComboTextReplaceFind"_s, u"Fire"_s); },
        [this] { control<QCheckBox>(u"MatchCaseR"_s)->click(); },
        [this] { control<QCheckBox>(u"WholeWordR"_s)->click(); },
        [this] { control<QRadioButton>(u"OptionMacroR"_s)->click(); },
    };
    for (const auto &change : changes) {
        button(u"Command3"_s)->click();
        EXPECT_EQ(button(u"Command3"_s)->text(), u"Find next");
        EXPECT_TRUE(button(u"Command5"_s)->isEnabled());
        EXPECT_TRUE(button(u"Command6"_s)->isEnabled());
        change();
        EXPECT_EQ(button(u"Command3"_s)->text(), u"Find first");
        EXPECT_FALSE(button(u"Command5"_s)->isEnabled());
        EXPECT_FALSE(button(u"Command6"_s)->isEnabled());
    }
}

TEST_F(FindAndReplaceTest, TheOtherDocumentIsSearchedAndShown)
{
    open(u"mnuEditFind"_s);
    control<QRadioButton>(u"OptionMacroF"_s)->click();
    write(u"ComboTextFind"_s, u"spc"_s);
    button(u"Command1"_s)->click();
    EXPECT_EQ(editor->selected().kind(), DocumentKind::Macro);
    EXPECT_EQ(selection(macro()), Selection(7, 3));
}

TEST_F(FindAndReplaceTest, EarlierTextsAreKeptOnceTheNewestOnTop)
{
    open(u"mnuEditFind"_s);
    for (const QString &word : { u"one"_s, u"two"_s, u"one"_s, u"three"_s }) {
        write(u"ComboTextFind"_s, word);
        button(u"Command1"_s)->click();
        EXPECT_EQ(control<QComboBox>(u"ComboTextFind"_s)->currentText(), word);
    }
    EXPECT_EQ(listOf(u"ComboTextFind"_s), (QStringList{ u"three"_s, u"two"_s, u"one"_s }));
    EXPECT_TRUE(listOf(u"ComboTextReplaceFind"_s).isEmpty());
}

TEST_F(FindAndReplaceTest, ReplaceReplacesTheHitAndFindsTheNext)
{
    open(u"mnuEditReplace"_s);
    write(u"ComboTextReplaceFind"_s, u"fire"_s);
    write(u"ComboTextReplaceWith"_s, u"Drop"_s);
    EXPECT_FALSE(button(u"Command5"_s)->isEnabled());
    button(u"Command3"_s)->click();
    button(u"Command5"_s)->click();
    EXPECT_EQ(editor->joystickText(), u"Drop one\nfire two\nFires three\n");
    EXPECT_EQ(selection(joystick()), Selection(9, 4));
    EXPECT_EQ(steps(DocumentKind::Joystick), 1);
    EXPECT_EQ(editor->joystick().state(), Document::Modified);
    EXPECT_EQ(listOf(u"ComboTextReplaceWith"_s), QStringList{ u"Drop"_s });
    open(u"mnuEditUndo"_s);
    EXPECT_EQ(editor->joystickText(), u"Fire one\nfire two\nFires three\n");
}

TEST_F(FindAndReplaceTest, AnEmptyReplacementDeletes)
{
    open(u"mnuEditReplace"_s);
    write(u"ComboTextReplaceFind"_s, u"fire "_s);
    button(u"Command3"_s)->click();
    button(u"Command5"_s)->click();
    EXPECT_EQ(editor->joystickText(), u"one\nfire two\nFires three\n");
    EXPECT_TRUE(listOf(u"ComboTextReplaceWith"_s).isEmpty());
}

TEST_F(FindAndReplaceTest, TheReplacementHasTheHitsColour)
{
    joystick().shown().changeLooks(9, 4, [](CharFormat &format) { format.colour = 255; });
    open(u"mnuEditReplace"_s);
    write(u"ComboTextReplaceFind"_s, u"fire"_s);
    write(u"ComboTextReplaceWith"_s, u"Launch"_s);
    button(u"Command3"_s)->click();
    expectBox(replacedAll);
    button(u"Command6"_s)->click();
    EXPECT_EQ(editor->joystickText(), u"Launch one\nLaunch two\nLaunchs three\n");
    EXPECT_EQ(joystick().shown().richText().formatAt(11).colour, 255U);
    EXPECT_EQ(joystick().shown().richText().formatAt(16).colour, 255U);
    EXPECT_NE(joystick().shown().richText().formatAt(5).colour, 255U);
    EXPECT_NE(joystick().shown().richText().formatAt(17).colour, 255U);
}

TEST_F(FindAndReplaceTest, ReplaceAllIsOneStepAndReported)
{
    open(u"mnuEditReplace"_s);
    write(u"ComboTextReplaceFind"_s, u"fire"_s);
    write(u"ComboTextReplaceWith"_s, u"Drop"_s);
    button(u"Command3"_s)->click();
    expectBox(replacedAll);
    button(u"Command6"_s)->click();
    EXPECT_EQ(editor->joystickText(), u"Drop one\nDrop two\nDrops three\n");
    EXPECT_EQ(lastBox(), u"3 replacements were made in Untitled.tmj");
    EXPECT_EQ(button(u"Command3"_s)->text(), u"Find first");
    EXPECT_EQ(selection(joystick()), Selection(22, 0));
    EXPECT_EQ(steps(DocumentKind::Joystick), 1);
    EXPECT_EQ(editor->joystick().state(), Document::Modified);
    open(u"mnuEditUndo"_s);
    EXPECT_EQ(editor->joystickText(), u"Fire one\nfire two\nFires three\n");
}

TEST_F(FindAndReplaceTest, ReplaceAllWithAReplacementThatHoldsTheWordEnds)
{
    open(u"mnuEditReplace"_s);
    write(u"ComboTextReplaceFind"_s, u"e"_s);
    write(u"ComboTextReplaceWith"_s, u"ee"_s);
    button(u"Command3"_s)->click();
    expectBox(replacedAll);
    button(u"Command6"_s)->click();
    EXPECT_EQ(editor->joystickText(), u"Firee onee\nfiree two\nFirees threeee\n");
    EXPECT_EQ(lastBox(), u"6 replacements were made in Untitled.tmj");
}

TEST_F(FindAndReplaceTest, ReplaceAllOfWhatIsNotThereReportsNone)
{
    open(u"mnuEditReplace"_s);
    write(u"ComboTextReplaceFind"_s, u"one"_s);
    write(u"ComboTextReplaceWith"_s, u"two"_s);
    button(u"Command3"_s)->click();
    for (const QString &count : { u"1"_s, u"0"_s }) {
        expectBox(replacedAll);
        button(u"Command6"_s)->click();
        EXPECT_EQ(lastBox(), count + u" replacements were made in Untitled.tmj"_s);
    }
    EXPECT_EQ(steps(DocumentKind::Joystick), 1);
}

TEST_F(FindAndReplaceTest, NothingReplacedIsNoModification)
{
    open(u"mnuEditReplace"_s);
    write(u"ComboTextReplaceFind"_s, u"one"_s);
    button(u"Command3"_s)->click();
    load(DocumentKind::Joystick, u"other"_s);
    expectBox(replacedAll);
    button(u"Command6"_s)->click();
    EXPECT_EQ(lastBox(), u"0 replacements were made in Untitled.tmj");
    EXPECT_EQ(editor->joystick().state(), Document::Saved);
}

TEST_F(FindAndReplaceTest, ReplaceWithoutASelectionOnlySearchesOn)
{
    open(u"mnuEditReplace"_s);
    write(u"ComboTextReplaceFind"_s, u"fire"_s);
    write(u"ComboTextReplaceWith"_s, u"Drop"_s);
    button(u"Command3"_s)->click();
    joystick().shown().select(6, 0);
    button(u"Command5"_s)->click();
    EXPECT_EQ(editor->joystickText(), u"Fire one\nfire two\nFires three\n");
    EXPECT_EQ(selection(joystick()), Selection(9, 4));
}

TEST_F(FindAndReplaceTest, AProtectedMacroFileIsSearchedAndNotReplaced)
{
    editor->action(u"mnuPreferencesProtectMacroFile")->trigger();
    editor->documents().select(DocumentKind::Macro);
    open(u"mnuEditReplace"_s);
    write(u"ComboTextReplaceFind"_s, u"fire"_s);
    button(u"Command3"_s)->click();
    EXPECT_EQ(selection(macro()), Selection(0, 4));
    for (const QString &name : { u"Command5"_s, u"Command6"_s }) {
        expectBox(u"File protected");
        button(name)->click();
    }
    EXPECT_EQ(editor->macroText(), u"Fire = SPC");
}

TEST_F(FindAndReplaceTest, TheJoystickFileCanBeReplacedInWhileTheProtectedOneIsSelected)
{
    editor->action(u"mnuPreferencesProtectMacroFile")->trigger();
    editor->documents().select(DocumentKind::Macro);
    open(u"mnuEditReplace"_s);
    control<QRadioButton>(u"OptionJoystickR"_s)->click();
    write(u"ComboTextReplaceFind"_s, u"one"_s);
    button(u"Command3"_s)->click();
    expectBox(replacedAll);
    button(u"Command6"_s)->click();
    EXPECT_EQ(editor->joystickText(), u"Fire \nfire two\nFires three\n");
}

TEST_F(FindAndReplaceTest, GotoPutsTheCaretAtTheLinesFirstCharacter)
{
    joystick().shown().select(0, 20);
    open(u"mnuEditGoto"_s);
    control<QLineEdit>(u"LineToFind"_s)->setText(u"2"_s);
    button(u"Command7"_s)->click();
    EXPECT_EQ(selection(joystick()), Selection(9, 0));
    EXPECT_EQ(status.lineText(), u"Line no: 2");
    // A key typed next is put before the line, not in its place.
    QTest::keyClicks(&joystick(), u"x"_s);
    EXPECT_EQ(editor->joystickText(), u"Fire one\nxfire two\nFires three\n");
}

TEST_F(FindAndReplaceTest, GotoGoesToALineOfTheSelectedDocument)
{
    load(DocumentKind::Macro, u"Fire = SPC\nGun = g"_s);
    editor->documents().select(DocumentKind::Macro);
    open(u"mnuEditGoto"_s);
    control<QLineEdit>(u"LineToFind"_s)->setText(u"2"_s);
    button(u"Command7"_s)->click();
    EXPECT_EQ(selection(macro()), Selection(11, 0));
    EXPECT_EQ(editor->selected().kind(), DocumentKind::Macro);
}

TEST_F(FindAndReplaceTest, WhatIsNoLineOfTheFileIsToldInTheWindowItself)
{
    open(u"mnuEditGoto"_s);
    joystick().shown().select(3, 0);
    for (const QString &line :
         { u"99"_s, u"5"_s, u"0"_s, u"-2"_s, u"x"_s, u"2x"_s, u"1e0"_s, u""_s, u"999999999"_s }) {
        control<QLineEdit>(u"LineToFind"_s)->setText(line);
        EXPECT_TRUE(control<QLabel>(u"LabelLines"_s)->text().isEmpty());
        button(u"Command7"_s)->click();
        EXPECT_EQ(control<QLabel>(u"LabelLines"_s)->text(), u"Untitled.tmj has lines 1 to 4.")
            << line.toStdString();
        EXPECT_EQ(window()->focusWidget(), control<QLineEdit>(u"LineToFind"_s));
    }
    EXPECT_TRUE(dialogs.boxes().isEmpty());
    EXPECT_EQ(selection(joystick()), Selection(3, 0));
    load(DocumentKind::Joystick, u"one"_s);
    button(u"Command7"_s)->click();
    EXPECT_EQ(control<QLabel>(u"LabelLines"_s)->text(), u"Untitled.tmj has line 1 only.");
}

TEST_F(FindAndReplaceTest, EnterInTheTextFindsTheNextHitInsteadOfReplacingThisOne)
{
    open(u"mnuEditFind"_s);
    write(u"ComboTextFind"_s, u"fire"_s);
    button(u"Command1"_s)->click();
    QTest::keyClick(&joystick(), Qt::Key_Return);
    EXPECT_EQ(selection(joystick()), Selection(9, 4));
    QTest::keyClick(&joystick(), Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(selection(joystick()), Selection(18, 4));
    QTest::keyClick(&joystick(), Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(selection(joystick()), Selection(9, 4));
    EXPECT_EQ(editor->joystickText(), u"Fire one\nfire two\nFires three\n");
    EXPECT_EQ(editor->joystick().state(), Document::Saved);
}

TEST_F(FindAndReplaceTest, EnterInTheTextIsALineEndAnywhereButOnTheLastHit)
{
    open(u"mnuEditFind"_s);
    write(u"ComboTextFind"_s, u"fire"_s);
    button(u"Command1"_s)->click();
    joystick().shown().select(5, 3);
    QTest::keyClick(&joystick(), Qt::Key_Return);
    EXPECT_EQ(editor->joystickText(), u"Fire \n\nfire two\nFires three\n");
    button(u"Command1"_s)->click();
    const int hit = joystick().shown().selStart();
    button(u"Command2"_s)->click();
    QTest::keyClick(&joystick(), Qt::Key_Return);
    EXPECT_EQ(editor->joystickText(), u"Fire \n\n\n two\nFires three\n") << hit;
}

TEST_F(FindAndReplaceTest, AHitWhoseTextHasBecomeAnotherIsNoHit)
{
    open(u"mnuEditFind"_s);
    write(u"ComboTextFind"_s, u"fire"_s);
    button(u"Command1"_s)->click();
    load(DocumentKind::Joystick, u"Gun  one\nfire two\n"_s);
    joystick().shown().select(0, 4);
    QTest::keyClick(&joystick(), Qt::Key_Return);
    EXPECT_EQ(editor->joystickText(), u"\n one\nfire two\n");
}

TEST_F(FindAndReplaceTest, PreviousGoesBackAndFromTheFirstHitToTheLast)
{
    open(u"mnuEditFind"_s);
    write(u"ComboTextFind"_s, u"fire"_s);
    joystick().shown().select(15, 0);
    const std::pair<Selection, QString> hits[] = {
        { { 9, 4 }, u"Hit 2 of 3"_s },
        { { 0, 4 }, u"Hit 1 of 3"_s },
        { { 18, 4 }, u"Hit 3 of 3"_s },
    };
    for (const auto &[place, count] : hits) {
        button(u"CommandPreviousF"_s)->click();
        EXPECT_EQ(selection(joystick()), place);
        EXPECT_EQ(control<QLabel>(u"LabelHitsF"_s)->text(), count);
    }
    EXPECT_EQ(button(u"Command1"_s)->text(), u"Find next");
    write(u"ComboTextFind"_s, u"nowhere"_s);
    expectBox(notFound);
    button(u"CommandPreviousF"_s)->click();
    EXPECT_EQ(lastBox(), u"\"nowhere\" not found in Untitled.tmj");
}

TEST_F(FindAndReplaceTest, AHitFoundBackwardsCanBeReplaced)
{
    open(u"mnuEditReplace"_s);
    write(u"ComboTextReplaceFind"_s, u"fire"_s);
    write(u"ComboTextReplaceWith"_s, u"Drop"_s);
    button(u"CommandPreviousR"_s)->click();
    EXPECT_EQ(selection(joystick()), Selection(18, 4));
    expectBox(foundAll);
    button(u"Command5"_s)->click();
    EXPECT_EQ(editor->joystickText(), u"Fire one\nfire two\nDrops three\n");
}

TEST_F(FindAndReplaceTest, TheNumberOfHitsStandsInTheWindowUntilItIsNoLongerTrue)
{
    open(u"mnuEditFind"_s);
    auto *hits = control<QLabel>(u"LabelHitsF"_s);
    write(u"ComboTextFind"_s, u"fire"_s);
    button(u"Command1"_s)->click();
    EXPECT_EQ(hits->text(), u"Hit 1 of 3");
    control<QCheckBox>(u"MatchCaseF"_s)->click();
    EXPECT_TRUE(hits->text().isEmpty());
    button(u"Command1"_s)->click();
    EXPECT_EQ(hits->text(), u"Hit 1 of 1");
    joystick().shown().select(0, 0);
    QTest::keyClicks(&joystick(), u"x"_s);
    EXPECT_TRUE(hits->text().isEmpty());
}

TEST_F(FindAndReplaceTest, AllHitsAreMarkedInTheSearchedTextWhileTheWindowIsOpen)
{
    joystick().shown().select(0, 0);
    const auto seen = [](TextControl &text) {
        return text.viewport()->grab().toImage();
    };
    const QImage plain = seen(joystick());
    open(u"mnuEditFind"_s);
    write(u"ComboTextFind"_s, u"fire"_s);
    const QImage marked = seen(joystick());
    // The right edge of "fire" in the second line, which is no selection.
    joystick().shown().select(13, 0);
    const QPoint edge = joystick().cursorRect().center();
    joystick().shown().select(0, 0);
    EXPECT_NE(marked, plain);
    EXPECT_NE(marked.copy(edge.x() - 2, edge.y() - 5, 5, 10),
              plain.copy(edge.x() - 2, edge.y() - 5, 5, 10));
    // "two" after it has no mark.
    EXPECT_EQ(marked.copy(edge.x() + 8, edge.y() - 5, 10, 10),
              plain.copy(edge.x() + 8, edge.y() - 5, 10, 10));
    control<QRadioButton>(u"OptionMacroF"_s)->click();
    EXPECT_EQ(seen(joystick()), plain);
    control<QRadioButton>(u"OptionJoystickF"_s)->click();
    EXPECT_EQ(seen(joystick()), marked);
    button(u"Command2"_s)->click();
    EXPECT_EQ(seen(joystick()), plain);
}

TEST_F(FindAndReplaceTest, HelpAsksForTheHelpOnFinding)
{
    open(u"mnuEditFind"_s);
    QSignalSpy help(editor.get(), &Editor::helpOn);
    button(u"Command10"_s)->click();
    ASSERT_EQ(help.count(), 1);
    EXPECT_EQ(help.first().first().toString(), u"find");
}

TEST_F(FindAndReplaceTest, EachCancelClosesTheWindow)
{
    for (const QString &name : { u"Command2"_s, u"Command4"_s, u"Command8"_s }) {
        open(u"mnuEditFind"_s);
        EXPECT_TRUE(window()->isVisible());
        button(name)->click();
        EXPECT_FALSE(window()->isVisible());
    }
}

TEST_F(FindAndReplaceTest, TheKeyboardAloneFindsAndReplaces)
{
    joystick().setFocus();
    QTest::keyClick(&joystick(), Qt::Key_F, Qt::ControlModifier);
    ASSERT_TRUE(window());
    ASSERT_TRUE(becomesActive());
    EXPECT_EQ(window()->focusWidget(), control<QComboBox>(u"ComboTextFind"_s));
    QTest::keyClicks(window()->focusWidget(), u"fire"_s);
    QTest::keyClick(window()->focusWidget(), Qt::Key_Return);
    EXPECT_EQ(selection(joystick()), Selection(0, 4));
    // The hit is still what is sought, so the next press goes on.
    QTest::keyClick(&joystick(), Qt::Key_F, Qt::ControlModifier);
    QTest::keyClick(window()->focusWidget(), Qt::Key_Return);
    EXPECT_EQ(selection(joystick()), Selection(9, 4));
    QTest::keyClick(&joystick(), Qt::Key_R, Qt::ControlModifier);
    EXPECT_EQ(window()->focusWidget(), control<QComboBox>(u"ComboTextReplaceFind"_s));
    QTest::keyClick(window()->focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(window()->focusWidget(), control<QComboBox>(u"ComboTextReplaceWith"_s));
    QTest::keyClicks(window()->focusWidget(), u"Drop"_s);
    QTest::keyClick(window()->focusWidget(), Qt::Key_Return);
    EXPECT_EQ(selection(joystick()), Selection(0, 4));
    window()->activateWindow();
    ASSERT_TRUE(becomesActive());
    QTest::keyClick(window()->focusWidget(), Qt::Key_R, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor(
        [this] { return editor->joystickText() == u"Drop one\nfire two\nFires three\n"; }));
    QTest::keyClick(window(), Qt::Key_Escape);
    EXPECT_FALSE(window()->isVisible());
    QTest::keyClick(&joystick(), Qt::Key_G, Qt::ControlModifier);
    QTest::keyClicks(window()->focusWidget(), u"3"_s);
    QTest::keyClick(window()->focusWidget(), Qt::Key_Return);
    EXPECT_EQ(status.lineText(), u"Line no: 3");
}
