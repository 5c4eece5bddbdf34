// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "text/macro_table.h"

#include "tests/text/macro_texts.h"

#include <gtest/gtest.h>

using namespace zeph;

namespace {

MacroTable tableOf(QStringView text)
{
    return extractMacros(usableMacroLines(text));
}

// The rules once more, step by step as a pilot would follow them on paper, slow and plain.

QString trimmedLeft(QString line)
{
    while (line.startsWith(u' ')) {
        line = line.mid(1);
    }
    return line;
}

QString trimmedBoth(QString line)
{
    line = trimmedLeft(line);
    while (line.endsWith(u' ')) {
        line.chop(1);
    }
    return line;
}

QStringList slowLines(const QString &text)
{
    QStringList MacroLines;
    for (const QString &each : text.split(u'\n')) {
        const QString line = trimmedLeft(each);
        if (line.toLower() == u"rem") {
            continue;
        }
        if (line == u"~" || line == u"//") {
            continue;
        }
        if (line.left(1) == u"~" && line.indexOf(u'=') >= 0) {
            continue;
        }
        if (line.isEmpty()) {
            continue;
        }
        MacroLines.append(line);
    }
    return MacroLines;
}

MacroTable slowTable(const QStringList &lines)
{
    MacroTable table;
    table.MacroLines = lines;
    table.MacroHeadings = QStringList{ u"All"_s };
    table.names = { QStringList() };
    const qsizetype last = lines.size();
    const auto line = [&lines](qsizetype number) {
        return lines[number - 1];
    };
    for (qsizetype i = 1; i <= last; ++i) {
        bool skip = false;
        if (line(i).toLower().left(4) == u"rem ") {
            skip = true;
            if (i + 2 <= last && line(i).toLower().left(6) == u"rem --"
                && line(i + 2).toLower().left(6) == u"rem --") {
                const QString heading = trimmedBoth(line(i + 1).mid(3));
                table.MacroHeadings.append(heading.left(1).toUpper() + heading.mid(1).toLower());
                table.names.append(QStringList());
                i += 2;
            }
        }
        if (line(i).indexOf(u'=') < 0) {
            skip = true;
        }
        if (!skip) {
            QString name = line(i).left(line(i).indexOf(u'='));
            name.replace(u"\t"_s, u""_s);
            name = trimmedBoth(name);
            table.names[0].append(name);
            if (table.MacroHeadings.size() > 1) {
                table.names.last().append(name);
            }
        }
    }
    return table;
}

} // namespace

TEST(MacroLines, ALoneRemASwitchedOffMacroAndEmptyLinesAreDropped)
{
    EXPECT_EQ(usableMacroLines(u"rem\nREM\n  Rem\n~\n//\n~Fire = SPC\n\n   \nFire = SPC"),
              QStringList{ u"Fire = SPC"_s });
}

TEST(MacroLines, BlanksBeforeATildeAreTrimmedFirst)
{
    EXPECT_EQ(usableMacroLines(u"   ~\n   ~ Gear = g\n  Flaps = f"), QStringList{ u"Flaps = f"_s });
}

TEST(MacroLines, CommentsAndLinesWithoutAnEqualsSignStay)
{
    EXPECT_EQ(usableMacroLines(u"Rem a comment\n~ no macro\n// note"),
              (QStringList{ u"Rem a comment"_s, u"~ no macro"_s, u"// note"_s }));
}

TEST(MacroExtraction, ATildeWithinTheKeysHasNoMeaning)
{
    EXPECT_EQ(tableOf(u"Tilde = ~ a").names.first(), QStringList{ u"Tilde"_s });
}

TEST(MacroExtraction, TheFirstOfTwoEqualsSignsEndsTheName)
{
    EXPECT_EQ(tableOf(u"Equals = a =").names.first(), QStringList{ u"Equals"_s });
}

TEST(MacroExtraction, OnlyTheExactDoubleSlashIsDropped)
{
    EXPECT_EQ(tableOf(u"//Fire = SPC").names.first(), QStringList{ u"//Fire"_s });
}

TEST(MacroExtraction, ATitleBetweenTwoRuledLinesIsAHeading)
{
    const MacroTable table = tableOf(u"rem ---\nRem  WEAPONS of war \nREM --\nFire = SPC\n");
    EXPECT_EQ(table.MacroHeadings, (QStringList{ u"All"_s, u"Weapons of war"_s }));
    EXPECT_EQ(table.names, (QList<QStringList>{ { u"Fire"_s }, { u"Fire"_s } }));
}

TEST(MacroExtraction, ALineOfRemAloneGivesNothing)
{
    EXPECT_EQ(tableOf(u"rem\nRem\n").MacroHeadings, QStringList{ u"All"_s });
    EXPECT_TRUE(tableOf(u"rem\nRem\n").names.first().isEmpty());
}

TEST(MacroExtraction, BlankAndDroppedLinesDoNotPartAHeading)
{
    EXPECT_EQ(tableOf(u"rem --\n\nrem\n~\nrem Radar\n\nrem --").MacroHeadings,
              (QStringList{ u"All"_s, u"Radar"_s }));
}

TEST(MacroExtraction, AHeadingAsTheLastTwoLinesIsNone)
{
    EXPECT_EQ(tableOf(u"Fire = SPC\nrem --\nrem Weapons").MacroHeadings, QStringList{ u"All"_s });
    EXPECT_EQ(tableOf(u"Fire = SPC\nrem --\nrem Weapons\nrem --").MacroHeadings.size(), 2);
}

TEST(MacroExtraction, TwoHeadingsInARowLeaveTheFirstEmpty)
{
    const MacroTable table =
        tableOf(u"rem --\nrem One\nrem --\nrem --\nrem Two\nrem --\nFire = SPC");
    EXPECT_EQ(table.MacroHeadings, (QStringList{ u"All"_s, u"One"_s, u"Two"_s }));
    EXPECT_EQ(table.names, (QList<QStringList>{ { u"Fire"_s }, {}, { u"Fire"_s } }));
}

TEST(MacroExtraction, AClosingRuleIsDoneAndOpensNoOtherHeading)
{
    EXPECT_EQ(tableOf(u"rem --\nrem One\nrem --\nrem Two\nrem --").MacroHeadings,
              (QStringList{ u"All"_s, u"One"_s }));
}

TEST(MacroExtraction, DashesAroundATextOnOneLineAreAComment)
{
    EXPECT_EQ(tableOf(u"rem -- Weapons --\nFire = SPC").MacroHeadings, QStringList{ u"All"_s });
}

TEST(MacroExtraction, AHeadingOrACommentWithAnEqualsSignIsNoMacro)
{
    const MacroTable table = tableOf(u"rem -- = --\nrem a = b\nrem --\nrem c = d\nFire = SPC");
    EXPECT_EQ(table.MacroHeadings.last(), u"A = b");
    EXPECT_EQ(table.names.first(), QStringList{ u"Fire"_s });
}

TEST(MacroExtraction, AMacroBeforeTheFirstHeadingStandsUnderAllAlone)
{
    const MacroTable table = tableOf(u"Early = e\nrem --\nrem H\nrem --\nLate = l");
    EXPECT_EQ(table.names, (QList<QStringList>{ { u"Early"_s, u"Late"_s }, { u"Late"_s } }));
}

TEST(MacroExtraction, DuplicatesAreListedAsOftenAsTheyOccur)
{
    EXPECT_EQ(tableOf(u"Fire = a\nFire = b\nfire = c").names.first(),
              (QStringList{ u"Fire"_s, u"Fire"_s, u"fire"_s }));
}

TEST(MacroName, TabsAreDeletedAndInnerBlanksKept)
{
    EXPECT_EQ(macroName(u"\t Fire \tGun\t= SPC"), u"Fire Gun");
    EXPECT_EQ(macroName(u"Fire\tGun = SPC"), u"FireGun");
}

TEST(MacroKeys, TheLineIsShownAsItStandsInTheFile)
{
    const MacroTable table = tableOf(u"  Gun_Fire = x\nFire\t\t =  SPC  \nFire = later");
    EXPECT_EQ(macroKeys(table, u"fire"_s), u"Fire\t\t =  SPC  ");
}

TEST(MacroKeys, AMacroWithoutABlankBeforeItsEqualsSignIsNotFound)
{
    EXPECT_EQ(macroKeys(tableOf(u"Fire=SPC"), u"Fire"_s), std::nullopt);
}

TEST(MacroKeys, AnEmptyNameAndAnEmptyTableGiveNothing)
{
    EXPECT_EQ(macroKeys(tableOf(u" = a"), QString()), std::nullopt);
    EXPECT_EQ(macroKeys(MacroTable(), u"Fire"_s), std::nullopt);
}

TEST(MacroCounts, SayWhatTheTableHolds)
{
    EXPECT_EQ(macroCounts(MacroTable()), u"No macro file analysed");
    EXPECT_EQ(macroCounts(tableOf(u"")), u"Contains 0 macros and ");
    EXPECT_EQ(macroCounts(tableOf(u"a = b\nc = d")), u"Contains 2 macros and ");
    EXPECT_EQ(macroCounts(tableOf(u"a = b\nrem --\nrem h\nrem --\nc = d")),
              u"Contains 2 macros and 1 macro headings");
}

TEST(MacroName, WhatNoNameMayHoldBecomesAnUnderscore)
{
    EXPECT_EQ(withoutRefused(u"a b<c>d{e}f(g)h^i,j=k"_s), u"a_b_c_d_e_f_g_h_i_j_k");
    EXPECT_EQ(withoutRefused(u"Fire_Gun-1/2"_s), u"Fire_Gun-1/2");
}

TEST(MacroName, ALineEndThatWasPastedIsNoPartOfIt)
{
    EXPECT_EQ(withoutRefused(u"Fire\n"_s), u"Fire");
    EXPECT_EQ(withoutRefused(u"\r\nFire\r\n"_s), u"Fire");
    EXPECT_EQ(withoutRefused(u"Fire\u2029"_s), u"Fire");
    EXPECT_EQ(withoutRefused(u"Fire\nGun"_s), u"Fire_Gun");
    EXPECT_EQ(withoutRefused(u"a\tb\x01"_s), u"a_b_");
    EXPECT_EQ(withoutRefused(u"\n"_s), QString());
}

TEST(MacroName, ANewNameIsRefusedForWhatIsWrongWithIt)
{
    const QStringList taken = { u"Fire"_s, u"Gun"_s };
    const auto fault = [&taken](const QString &name) {
        return faultOfNewName(u"Fire"_s, name, taken);
    };
    EXPECT_EQ(fault(u"Fire"_s), NameFault::Same);
    EXPECT_EQ(fault(u"Shoot"_s), NameFault::None);
    EXPECT_EQ(fault(u"FIRE"_s), NameFault::None);
    EXPECT_EQ(fault(u"gun"_s), NameFault::Exists);
    for (const QString &word : { u"BTN"_s, u"usb"_s, u"Rem"_s, u"rem"_s, u"/U"_s, u"F7"_s, u"a"_s,
                                 u"7"_s, u"X12"_s, u"DX5"_s, u"SHF"_s }) {
        EXPECT_EQ(fault(word), NameFault::LanguageWord) << word.toStdString();
    }
    EXPECT_EQ(fault(u"Remark"_s), NameFault::None);
    EXPECT_EQ(fault(u"~Shoot"_s), NameFault::SwitchedOff);
    EXPECT_EQ(fault(u"Sho~ot"_s), NameFault::None);
    EXPECT_EQ(fault(u"Ω"_s), NameFault::NotInCodePage);
    EXPECT_EQ(fault(u"Größe"_s), NameFault::None);
}

TEST(MacroExtraction, EqualsTheRulesFollowedStepByStep)
{
    for (quint32 seed = 0; seed < 3000; ++seed) {
        const QString text = test::MacroTexts(seed).macroFile();
        const MacroTable table = tableOf(text);
        const MacroTable expected = slowTable(slowLines(text));
        ASSERT_EQ(table.MacroLines, expected.MacroLines) << text.toStdString();
        ASSERT_EQ(table.MacroHeadings, expected.MacroHeadings) << text.toStdString();
        ASSERT_EQ(table.names, expected.names) << text.toStdString();
    }
}
