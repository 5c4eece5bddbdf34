// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/pages/statementline.h"
#include "editor/editor_settings.h"
#include "platform/core/file_io.h"
#include "tests/composer/pages/page_fixture.h"

#include <QMimeData>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTest>

using namespace zeph;

namespace {

class LogicalPageTest : public test::PageTest
{
protected:
    void SetUp() override { openPage(InsertOptions::Logical); }
    StatementLine &box(int index) { return control<StatementLine>(u"RichTexFlag_%1"_s.arg(index)); }
    QRadioButton &option(int index) { return control<QRadioButton>(u"OptionFlag_%1"_s.arg(index)); }
    QString line(int index) { return box(index).toPlainText(); }
    void writeLine(int index, const QString &text) { box(index).setPlainText(text); }
    void clickAll(const QStringList &buttons)
    {
        for (const QString &button : buttons) {
            click(button);
        }
    }
    int filledLines()
    {
        int filled = 0;
        for (int i = 0; i < 96; ++i) {
            filled += line(i).isEmpty() ? 0 : 1;
        }
        return filled;
    }
};

} // namespace

TEST_F(LogicalPageTest, TheListsHaveTheirEntries)
{
    QStringList flags;
    for (int i = 1; i <= 48; ++i) {
        flags.append(u"X%1"_s.arg(i));
    }
    EXPECT_EQ(entries(u"FlagList_0"_s), flags);
    EXPECT_EQ(entries(u"FlagList_4"_s), flags);
    EXPECT_EQ(entries(u"FlagList_1"_s), (QStringList{ u"H1"_s, u"H2"_s, u"H3"_s, u"H4"_s }));
    EXPECT_EQ(
        entries(u"FlagList_2"_s),
        (QStringList{ u"S1"_s, u"S2"_s, u"S3"_s, u"S4"_s, u"T1"_s, u"T2"_s, u"T3"_s, u"T4"_s,
                      u"T5"_s, u"T6"_s, u"T7"_s, u"T8"_s, u"T9"_s, u"T10"_s, u"TG1"_s, u"TG2"_s }));
    EXPECT_EQ(entries(u"FlagList_3"_s), (QStringList{ u"PULSE"_s, u"DELAY"_s }));
    EXPECT_EQ(entries(u"FlagList_5"_s),
              (QStringList{ u"U"_s, u"D"_s, u"L"_s, u"R"_s, u"M"_s, u"UL"_s, u"DL"_s, u"UR"_s,
                            u"DR"_s }));
}

TEST_F(LogicalPageTest, NinetySixLinesStandOnEightTabs)
{
    auto &tabs = control<QTabWidget>(u"SSTabFlags"_s);
    EXPECT_EQ(tabs.count(), 8);
    EXPECT_EQ(tabs.tabText(0), u"Logical statements: 1"_s);
    for (int i = 0; i < 96; ++i) {
        EXPECT_TRUE(tabs.widget(i / 12)->isAncestorOf(&box(i))) << i;
        EXPECT_TRUE(tabs.widget(i / 12)->isAncestorOf(&option(i))) << i;
    }
    EXPECT_FALSE(composer()->findChild<StatementLine *>(u"RichTexFlag_96"_s));
}

TEST_F(LogicalPageTest, TheFocusIsOnTheSelectedLine)
{
    EXPECT_EQ(composer()->focusWidget(), &box(0));
    option(30).click();
    openPage(InsertOptions::Hats);
    openPage(InsertOptions::Logical);
    EXPECT_EQ(composer()->focusWidget(), &box(30));
}

TEST_F(LogicalPageTest, WordsAreAppendedOneBlankApart)
{
    click(u"CMDCompare_0"_s);
    EXPECT_EQ(line(0), u"AND"_s);
    click(u"CMDCompare_2"_s);
    EXPECT_EQ(line(0), u"AND NOT"_s);
    writeLine(0, u"DEF "_s);
    click(u"CMDCompare_3"_s);
    EXPECT_EQ(line(0), u"DEF ("_s);
    EXPECT_EQ(box(0).selStart(), 5);
}

TEST_F(LogicalPageTest, EachCompareButtonHasItsWord)
{
    const QStringList words{
        u"AND"_s, u"OR"_s, u"NOT"_s, u"("_s, u")"_s, u"BTN"_s, u"DEF"_s, u"*"_s
    };
    for (int i = 0; i < words.size(); ++i) {
        writeLine(0, QString());
        click(u"CMDCompare_%1"_s.arg(i));
        EXPECT_EQ(line(0), words[i]);
        EXPECT_EQ(control<QAbstractButton>(u"CMDCompare_%1"_s.arg(i)).text(), words[i]);
    }
}

TEST_F(LogicalPageTest, EachSlashButtonHasItsModifier)
{
    const QStringList words{ u"/U"_s, u"/M"_s, u"/D"_s, u"/I"_s, u"/O"_s,
                             u"/P"_s, u"/R"_s, u"/H"_s, u"/A"_s, u"/T"_s };
    for (int i = 0; i < words.size(); ++i) {
        writeLine(0, u"BTN X1"_s);
        click(u"CMDFlagSlash_%1"_s.arg(i));
        EXPECT_EQ(line(0), u"BTN X1 "_s + words[i]);
        EXPECT_EQ(control<QAbstractButton>(u"CMDFlagSlash_%1"_s.arg(i)).text(), words[i]);
    }
}

TEST_F(LogicalPageTest, EachInsertButtonHasItsTerm)
{
    choose(u"FlagList_0"_s, u"X17"_s);
    choose(u"FlagList_1"_s, u"H3"_s);
    choose(u"FlagList_5"_s, u"DL"_s);
    choose(u"FlagList_2"_s, u"TG2"_s);
    choose(u"FlagList_3"_s, u"DELAY"_s);
    choose(u"FlagList_4"_s, u"X48"_s);
    for (int i = 0; i < 6; ++i) {
        write(u"TxtFlag_%1"_s.arg(i), QString::number(10 + i));
    }
    const QStringList terms{ u"X17"_s,       u"H3DL"_s,          u"TG2"_s,     u"PULSE(10 11)"_s,
                             u"DELAY(12)"_s, u"DELAY(X48 13)"_s, u"DLY(14)"_s, u"RPT(15)"_s };
    for (int i = 0; i < terms.size(); ++i) {
        writeLine(0, QString());
        click(u"CMDFlagInsert_%1"_s.arg(i));
        EXPECT_EQ(line(0), terms[i]);
    }
}

TEST_F(LogicalPageTest, TheDelayIsTheOneThatIsOfferedElsewhere)
{
    EXPECT_EQ(textOf(u"TxtFlag_4"_s), u"60"_s);
    settings.of<EditorSettings>().DefaultDLYvalue = 75;
    composer()->settingsChanged();
    EXPECT_EQ(textOf(u"TxtFlag_4"_s), u"75"_s);
}

TEST_F(LogicalPageTest, TheSelectedOptionsLineReceivesTheWords)
{
    option(5).click();
    clickAll({ u"CMDCompare_6"_s, u"CMDFlagInsert_0"_s, u"CMDFlagInsert_2"_s });
    EXPECT_EQ(line(5), u"DEF X1 S1"_s);
    EXPECT_EQ(filledLines(), 1);
}

TEST_F(LogicalPageTest, ALineThatGetsTheFocusSelectsItsOption)
{
    box(7).setFocus();
    EXPECT_TRUE(option(7).isChecked());
    EXPECT_FALSE(option(0).isChecked());
    click(u"CMDCompare_1"_s);
    EXPECT_EQ(line(7), u"OR"_s);
}

TEST_F(LogicalPageTest, EnterAndArrowsGoFromLineToLineAndFromTabToTab)
{
    box(10).setFocus();
    QTest::keyClick(&box(10), Qt::Key_Down);
    EXPECT_EQ(composer()->focusWidget(), &box(11));
    EXPECT_TRUE(option(11).isChecked());
    QTest::keyClick(&box(11), Qt::Key_Return);
    EXPECT_EQ(composer()->focusWidget(), &box(12));
    EXPECT_EQ(control<QTabWidget>(u"SSTabFlags"_s).currentIndex(), 1);
    QTest::keyClick(&box(12), Qt::Key_Up);
    EXPECT_EQ(composer()->focusWidget(), &box(11));
    EXPECT_EQ(control<QTabWidget>(u"SSTabFlags"_s).currentIndex(), 0);
}

TEST_F(LogicalPageTest, TheFirstLineHasNoneBeforeItAndTheLastNoneAfter)
{
    box(0).setFocus();
    QTest::keyClick(&box(0), Qt::Key_Up);
    EXPECT_EQ(composer()->focusWidget(), &box(0));
    option(95).click();
    box(95).setFocus();
    QTest::keyClick(&box(95), Qt::Key_Down);
    EXPECT_EQ(composer()->focusWidget(), &box(95));
}

TEST_F(LogicalPageTest, AnotherTabSelectsALineThatIsSeen)
{
    control<QTabWidget>(u"SSTabFlags"_s).setCurrentIndex(2);
    EXPECT_TRUE(option(24).isChecked());
    click(u"CMDCompare_5"_s);
    EXPECT_EQ(line(24), u"BTN"_s);
}

TEST_F(LogicalPageTest, TypingIsPaintedAndHasStepsToUndo)
{
    box(0).setFocus();
    QTest::keyClicks(&box(0), u"BTN X1 /P a"_s);
    QTest::keyClick(&box(0), Qt::Key_Return);
    EXPECT_EQ(line(0), u"BTN X1 /P a"_s);
    const auto formats = box(0).document()->firstBlock().layout()->formats();
    ASSERT_FALSE(formats.isEmpty());
    EXPECT_EQ(formats[0].start, 0);
    EXPECT_EQ(formats[0].length, 6);
    EXPECT_EQ(formats[0].format.foreground().color(), QColor(0, 0, 0xB0));
    box(0).undo();
    EXPECT_EQ(line(0), QString());
}

TEST_F(LogicalPageTest, LineEndsThatArePastedBecomeBlanks)
{
    class Line : public StatementLine
    {
    public:
        using StatementLine::insertFromMimeData;
    } pasted;
    QMimeData several;
    several.setText(u"DEF X1\r\nS1\nAND S2"_s);
    pasted.insertFromMimeData(&several);
    EXPECT_EQ(pasted.toPlainText(), u"DEF X1 S1 AND S2"_s);
}

TEST_F(LogicalPageTest, InsertAllWritesTheLinesInTheirOrderAndALineEndMore)
{
    writeLine(0, u"DEF X1 S1 AND T6"_s);
    writeLine(40, u"BTN X1 /P a"_s);
    const QString both = u"DEF X1 S1 AND T6\nBTN X1 /P a\n\n"_s;
    for (const bool lineEnds : { false, true }) {
        makeLineEnds(lineEnds);
        setJoystick(QString());
        click(u"Command13_0"_s);
        EXPECT_EQ(joystick().text(), both);
        EXPECT_EQ(joystick().selStart(), both.size());
        expectOneStepFrom(joystick(), QString());
    }
    setJoystick(u"BTN S1 a b"_s, 8);
    setMacro(u"Fire = SPC"_s);
    click(u"Command13_0"_s);
    EXPECT_EQ(editor->selected().kind(), DocumentKind::Joystick);
    EXPECT_EQ(joystick().text(), u"BTN S1 a\n%1 b"_s.arg(both));
    EXPECT_EQ(joystick().selStart(), 9 + both.size());
    expectOneStepFrom(joystick(), u"BTN S1 a b"_s);
    EXPECT_EQ(macro().text(), u"Fire = SPC"_s);
}

TEST_F(LogicalPageTest, InsertSelectedWritesThatLineAlone)
{
    writeLine(0, u"DEF X1 S1"_s);
    writeLine(1, u"BTN X1 a"_s);
    option(1).click();
    click(u"Command13_1"_s);
    EXPECT_EQ(joystick().text(), u"BTN X1 a\n\n"_s);
    EXPECT_EQ(coloursOf(joystick()).left(6), u"bbbbbb"_s);
    expectOneStepFrom(joystick(), QString());
    option(2).click();
    click(u"Command13_1"_s);
    EXPECT_EQ(joystick().text(), QString());
}

TEST_F(LogicalPageTest, InsertAllDoesNothingWithEmptyLines)
{
    setJoystick(u"BTN S1 a"_s);
    click(u"Command13_0"_s);
    EXPECT_EQ(joystick().text(), u"BTN S1 a"_s);
}

TEST_F(LogicalPageTest, AProtectedMacroFileStopsBothInsertions)
{
    writeLine(0, u"DEF X1 S1"_s);
    expectRefusedWhileProtected(u"Command13_0"_s);
    expectRefusedWhileProtected(u"Command13_1"_s);
}

TEST_F(LogicalPageTest, ReadBackFetchesTheLogicalLinesOfTheFile)
{
    writeLine(50, u"old"_s);
    option(50).click();
    setJoystick(u"BTN S1 a\nDEF X1 S1 AND T6\n  BTN X9 no\nBTN X1 /P a Rem x\nbtn X2 no\nDEF X2"_s);
    click(u"Command13_2"_s);
    EXPECT_EQ(line(0), u"DEF X1 S1 AND T6"_s);
    EXPECT_EQ(line(1), u"BTN X1 /P a Rem x"_s);
    EXPECT_EQ(line(2), u"DEF X2"_s);
    EXPECT_EQ(filledLines(), 3);
    EXPECT_TRUE(option(0).isChecked());
    EXPECT_EQ(control<QTabWidget>(u"SSTabFlags"_s).currentIndex(), 0);
    EXPECT_EQ(*readWholeFile(folder.file(u"Temp/logic.txt"_s)),
              "BTN S1 a\r\nDEF X1 S1 AND T6\r\n  BTN X9 no\r\nBTN X1 /P a Rem x\r\nbtn X2 no\r\n"
              "DEF X2");
    EXPECT_FALSE(joystick().isModified());
}

TEST_F(LogicalPageTest, ReadBackStopsAtTheLastLine)
{
    QString text;
    for (int i = 1; i <= 97; ++i) {
        text += u"BTN X1 m%1\n"_s.arg(i);
    }
    setJoystick(text);
    click(u"Command13_2"_s);
    EXPECT_EQ(line(95), u"BTN X1 m96"_s);
    EXPECT_EQ(filledLines(), 96);
}

TEST_F(LogicalPageTest, ReadBackWithoutLogicalLinesEmptiesTheWorkbenchAndTellsIt)
{
    writeLine(3, u"old"_s);
    setJoystick(u"BTN S1 a"_s);
    dialogs.answer(u"What logical statements?"_s, BoxButton::Ok);
    click(u"Command13_2"_s);
    EXPECT_EQ(dialogs.boxes().last().text,
              u"I couldn't find any logical statements in your joystick file"_s);
    EXPECT_EQ(filledLines(), 0);
}

TEST_F(LogicalPageTest, ReadBackOfAnEmptyFileDoesNothing)
{
    writeLine(3, u"old"_s);
    click(u"Command13_2"_s);
    EXPECT_EQ(line(3), u"old"_s);
    EXPECT_FALSE(fileExists(folder.file(u"Temp/logic.txt"_s)));
}

TEST_F(LogicalPageTest, AStatementOfTheFileTakesAFreeLineAndCanBeReplaced)
{
    writeLine(0, u"mine"_s);
    openPage(InsertOptions::Hats);
    readFromFile(u"DEF X3 S1\n  AND T1"_s);
    EXPECT_TRUE(box(1).isVisible());
    EXPECT_EQ(line(0), u"mine"_s);
    EXPECT_EQ(line(1), u"DEF X3 S1 AND T1"_s);
    EXPECT_TRUE(option(1).isChecked());
    clickAll({ u"CMDCompare_2"_s, u"CMDFlagInsert_0"_s });
    expectReplaced(u"DEF X3 S1\n  AND T1"_s, u"DEF X3 S1 AND T1 NOT X1"_s);
}

TEST_F(LogicalPageTest, TheHelpOnLogicIsWanted)
{
    QSignalSpy wanted(composer(), &InsertOptions::keywordWanted);
    click(u"CMDFlagInsert_9"_s);
    ASSERT_EQ(wanted.count(), 1);
    EXPECT_EQ(wanted[0][0].toString(), u"logic"_s);
}
