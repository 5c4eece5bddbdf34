// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "text/insert_blocks.h"

#include "editor/edit/insert_forms.h"
#include "settings/shared_settings.h"
#include "tests/support/temp_folder.h"
#include "text/macro_table.h"

#include <QLocale>

#include <gtest/gtest.h>

using namespace zeph;

namespace {

QString textOf(const QStringList &lines)
{
    return lines.join(u'\n') + u'\n';
}

QStringList headingsOf(const QString &macroFile)
{
    return extractMacros(usableMacroLines(macroFile)).MacroHeadings;
}

TitleFields fields()
{
    return { .fileName = u"My F-16.tmm"_s,
             .game = u"any simulation"_s,
             .person = u"Ann \"Ace\" Other"_s,
             .lastModified = u"05 March 2024, 9:07 am"_s,
             .controllers = u"Thrustmaster Cougar"_s,
             .comments = u"One line\nand another"_s };
}

const QDateTime morning(QDate(2024, 3, 5), QTime(9, 7));
const QDateTime night(QDate(2024, 12, 31), QTime(0, 30));

QString stamped(QString text, const QDateTime &when)
{
    const auto stamp = modifiedStamp(text, when);
    return stamp ? text.replace(stamp->start, stamp->length, stamp->text) : text;
}

} // namespace

TEST(HeadingBlock, IsARuleAsLongAsTheHeadingAndTheHeadingTenBlanksIn)
{
    EXPECT_EQ(headingBlock(u"Radar"_s),
              (QStringList{ u"Rem -----"_s, u"Rem           Radar"_s, u"Rem -----"_s }));
}

TEST(HeadingBlock, IsAHeadingOfTheMacroListFromTwoCharactersOn)
{
    const auto seen = [](const QString &heading) {
        return headingsOf(u"Before = a\n"_s + textOf(headingBlock(heading)) + u"Behind = b\n"_s);
    };
    EXPECT_EQ(seen(u"Radar"_s), (QStringList{ u"All"_s, u"Radar"_s }));
    EXPECT_EQ(seen(u"IR"_s), (QStringList{ u"All"_s, u"Ir"_s }));
    EXPECT_EQ(seen(u"x"_s), (QStringList{ u"All"_s }));
}

TEST(HeadingBlock, EachHeadingOfTheSuppliedListIsSeen)
{
    const QStringList list =
        linesOfListFile(QStringLiteral(ZEPH_SOURCE_DIR "/data/DefaultMacroHeadings.txt"));
    ASSERT_GT(list.size(), 20);
    QString file;
    for (const QString &heading : list) {
        file += textOf(headingBlock(heading));
    }
    const QStringList seen = headingsOf(file + u"Last = a\n"_s);
    ASSERT_EQ(seen.size(), list.size() + 1);
    for (qsizetype i = 0; i < list.size(); ++i) {
        EXPECT_EQ(seen[i + 1].compare(list[i], Qt::CaseInsensitive), 0) << list[i].toStdString();
    }
}

TEST(MacroNames, TheSuppliedListHoldsNamesThatAMacroMayHave)
{
    const QStringList names =
        linesOfListFile(QStringLiteral(ZEPH_SOURCE_DIR "/data/DefaultMacros.txt"));
    ASSERT_GT(names.size(), 100);
    for (const QString &name : names) {
        EXPECT_EQ(withoutRefused(name), name);
    }
}

TEST(ListFile, HasTrimmedLinesOfAnyLineEndAndIsEmptyWhenMissing)
{
    const test::TempFolder folder;
    const QString path = folder.write(u"List.txt"_s, "Guns\r\n\r\n  Radar \nR\xE9sum\xE9\r\n \r\n");
    EXPECT_EQ(linesOfListFile(path), (QStringList{ u"Guns"_s, u"Radar"_s, u"R\u00E9sum\u00E9"_s }));
    EXPECT_EQ(linesOfListFile(folder.file(u"list.TXT"_s)).size(), 3);
    EXPECT_TRUE(linesOfListFile(folder.file(u"None.txt"_s)).isEmpty());
}

TEST(RemStatement, IsRemAndTheTextWithOneBlankInFront)
{
    EXPECT_EQ(remStatement(u"guns"_s), u"Rem  guns");
}

TEST(TitleBlock, HasItsLinesInOrderBetweenTwoRules)
{
    const QString rule = u"Rem ##############################################"_s;
    EXPECT_EQ(titleBlock(fields()),
              (QStringList{
                  rule,
                  u"Rem "_s,
                  u"Rem    My F-16.tmm                             Rem"_s,
                  u"Rem        for any simulation                  Rem"_s,
                  u"Rem "_s,
                  u"Rem    by Ann \"Ace\" Other                      Rem"_s,
                  u"Rem    Last modified: 05 March 2024, 9:07 am   Rem"_s,
                  u"Rem    Controllers: Thrustmaster Cougar        Rem"_s,
                  u"Rem "_s,
                  u"Rem    One line                                Rem"_s,
                  u"Rem    and another                             Rem"_s,
                  rule,
              }));
}

TEST(TitleBlock, HasNoLineForAGameThatIsNotSaidAndNoneForNoComments)
{
    TitleFields some = fields();
    some.game.clear();
    some.comments = u"\n  \n"_s;
    const QStringList block = titleBlock(some);
    EXPECT_EQ(block.size(), 8);
    EXPECT_FALSE(block.join(u'\n').contains(u" for "));
}

TEST(TitleBlock, ALongLineMovesTheClosingColumnOfAllLines)
{
    TitleFields some = fields();
    some.comments = u"short\n"_s + QString(90, u'x') + u"\n\tx\n"_s;
    QSet<qsizetype> columns;
    for (const QString &line : titleBlock(some)) {
        if (line.size() > 4 && !line.contains(u'#')) {
            EXPECT_TRUE(line.endsWith(u" Rem")) << line.toStdString();
            columns.insert(line.size() - 3);
        }
    }
    EXPECT_EQ(columns, QSet<qsizetype>{ 7 + 90 + 1 });
}

TEST(TitleBlock, SaysUserUnknownForNobody)
{
    TitleFields some = fields();
    some.person = personsNameOr(u"  "_s);
    EXPECT_TRUE(titleBlock(some)[5].startsWith(u"Rem    by User unknown "));
    EXPECT_EQ(personsNameOr(u" Ann "_s), u"Ann");
}

TEST(TitleBlock, GetsItsDateWhenTheFileIsSaved)
{
    QString text = textOf(titleBlock(fields())) + u"Gun = a\n"_s;
    const auto stamp = modifiedStamp(text, QDateTime(QDate(2025, 12, 24), QTime(18, 30)));
    ASSERT_TRUE(stamp);
    text.replace(stamp->start, stamp->length, stamp->text);
    EXPECT_EQ(text.split(u'\n')[6], u"Rem    Last modified: 24 December 2025, 6:30 pm");
}

TEST(TitleBlock, MakesNeitherAMacroNorAHeading)
{
    TitleFields some = fields();
    some.comments = u"--\nKeys = all mine\n--\n-- --\nRem --\nx\nRem --"_s;
    const MacroTable table =
        extractMacros(usableMacroLines(textOf(titleBlock(some)) + u"Gun = a\n"_s));
    EXPECT_EQ(table.MacroHeadings, QStringList{ u"All"_s });
    EXPECT_EQ(table.names.first(), QStringList{ u"Gun"_s });
}

TEST(InsertText, IsTheTenModifiersDelayAndRepeatInTheMenusOrder)
{
    QStringList texts;
    for (const language::Word &word : language::insertWords) {
        texts.append(insertText(word, 75));
        EXPECT_EQ(word.is(language::SlashRole), texts.last().startsWith(u'/'));
    }
    EXPECT_EQ(texts.join(u' '), u"/U /M /D /I /O /P /R /T /A /H DLY(75) RPT(2)");
}

TEST(DateStamp, IsEnglishWithoutLeadingZeroInTheHourWhateverTheLocale)
{
    QLocale::setDefault(QLocale(QLocale::German));
    EXPECT_EQ(stampText(morning), u"05 March 2024, 9:07 am");
    EXPECT_EQ(stampText(night), u"31 December 2024, 12:30 am");
    EXPECT_EQ(stampText(QDateTime(QDate(2024, 1, 1), QTime(15, 0))), u"01 January 2024, 3:00 pm");
    QLocale::setDefault(QLocale::c());
}

TEST(DateStamp, ReplacesWhatStandsAfterTheBlankToTheLinesEnd)
{
    EXPECT_EQ(stamped(u"Rem LAST Modified: yesterday\nBTN S1 a"_s, morning),
              u"Rem LAST Modified: 05 March 2024, 9:07 am\nBTN S1 a");
}

TEST(DateStamp, OnlyTheFirstLineIsTouched)
{
    EXPECT_EQ(stamped(u"last modified: a\nlast modified: b"_s, morning),
              u"last modified: 05 March 2024, 9:07 am\nlast modified: b");
}

TEST(DateStamp, ATextWithoutTheWordsStaysAsItIs)
{
    EXPECT_FALSE(modifiedStamp(u"BTN S1 a", morning));
}

TEST(DateStamp, AnEmptyStampGetsItsBlank)
{
    EXPECT_EQ(stamped(u"Last modified:\nx"_s, morning),
              u"Last modified: 05 March 2024, 9:07 am\nx");
}

TEST(DateStamp, PositionsMoveWithTheTextAfterTheStamp)
{
    const Stamp stamp{ 10, 2, u"abcde"_s };
    EXPECT_EQ(movedByStamp(stamp, 3), 3);
    EXPECT_EQ(movedByStamp(stamp, 10), 10);
    EXPECT_EQ(movedByStamp(stamp, 11), 11);
    EXPECT_EQ(movedByStamp(stamp, 12), 15);
    EXPECT_EQ(movedByStamp(stamp, 20), 23);
    EXPECT_EQ(movedByStamp(Stamp{ 10, 8, u"abc"_s }, 16), 13);
    EXPECT_EQ(movedByStamp(Stamp{ 10, 0, u"abc"_s }, 10), 10);
}
