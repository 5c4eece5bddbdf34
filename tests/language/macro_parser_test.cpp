// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "language/macro_graph.h"
#include "language/model.h"

#include <gmock/gmock.h>

using namespace zeph;
using namespace zeph::language;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

MacroFile parsedMacros(const QString &text)
{
    return parsePair({}, text).macro;
}

std::vector<std::string> names(const MacroFile &file)
{
    std::vector<std::string> result;
    for (const Macro &macro : file.macros)
        result.push_back(macro.name.toStdString());
    return result;
}

std::vector<std::string> titles(const MacroFile &file)
{
    std::vector<std::string> result;
    for (const MacroHeading &heading : file.headings)
        result.push_back(heading.title.toStdString());
    return result;
}

} // namespace

TEST(MacroParser, ARuleATitleAndARuleAreAHeading)
{
    const MacroFile file = parsedMacros(u"Rem ------\nRem   Radar modes\nrem ---\nA1 = b\n"_s);
    EXPECT_THAT(titles(file), ElementsAre("Radar modes"));
    EXPECT_EQ(file.headings[0].place.line, 2);
    EXPECT_EQ(file.headings[0].firstMacro, 0);
    EXPECT_THAT(names(file), ElementsAre("A1"));
}

TEST(MacroParser, RemAloneOnALineGivesNothing)
{
    const MacroFile file = parsedMacros(u"rem\nREM\nRem \nRem x = y\n"_s);
    EXPECT_THAT(names(file), IsEmpty());
    EXPECT_THAT(titles(file), IsEmpty());
}

TEST(MacroParser, AHeadingLineIsNoMacroEvenWithAnEqualsSign)
{
    const MacroFile file = parsedMacros(u"Rem --\nFire = a\nRem --=\nRem --\nx\n"_s);
    EXPECT_THAT(titles(file), ElementsAre("e = a"));
    EXPECT_THAT(names(file), IsEmpty());
}

TEST(MacroParser, EmptyAndBareLinesDoNotBreakAHeading)
{
    const MacroFile file = parsedMacros(u"Rem ----\n\nrem\nRem Guns\n~\nRem ----\n"_s);
    EXPECT_THAT(titles(file), ElementsAre("Guns"));
}

TEST(MacroParser, AHeadingThatTheFileCutsOffIsNone)
{
    EXPECT_THAT(titles(parsedMacros(u"Rem ----\nRem Guns"_s)), IsEmpty());
}

TEST(MacroParser, BlanksAndATildeBeforeAMacroDropIt)
{
    EXPECT_THAT(names(parsedMacros(u"   ~Fire = a\n~Flare = b\nChaff = c"_s)),
                ElementsAre("Chaff"));
}

TEST(MacroParser, ATildeInsideAMacrosKeysHasNoMeaning)
{
    const MacroFile file = parsedMacros(u"Fire = a ~ b"_s);
    EXPECT_THAT(names(file), ElementsAre("Fire"));
    EXPECT_EQ(file.items.size(), 3);
}

TEST(MacroParser, TheTextBeforeTheFirstEqualsSignNamesTheMacro)
{
    const MacroFile file = parsedMacros(u"Plus = = a"_s);
    EXPECT_THAT(names(file), ElementsAre("Plus"));
    ASSERT_EQ(file.items.size(), 2);
    EXPECT_EQ(file.at(file.items[0]), u"=");
    EXPECT_EQ(file.items[0].kind, ItemKind::Key);
}

TEST(MacroParser, ALineBeginningWithTwoSlashesKeepsThemInTheName)
{
    EXPECT_THAT(names(parsedMacros(u"//\n//Fire = a"_s)), ElementsAre("//Fire"));
}

TEST(MacroParser, TabsGoFromANameAndInnerBlanksStay)
{
    EXPECT_THAT(names(parsedMacros(u"\tFire\t missile \t= a\nnothing here\n"_s)),
                ElementsAre("Fire missile"));
}

TEST(MacroParser, ACommentEndsTheKeys)
{
    const MacroFile file = parsedMacros(u"Fire = a b  Rem pull"_s);
    EXPECT_EQ(file.at(file.macros[0].place), u"Fire = a b");
    EXPECT_EQ(file.items.size(), 2);
}

TEST(MacroParser, ALoneBracketIsTheKeyOfThatName)
{
    const MacroFile file = parsedMacros(u"Less = <\nOpen = (  Rem x\n"_s);
    EXPECT_TRUE(file.strayBrackets.isEmpty());
    ASSERT_EQ(file.items.size(), 2);
    EXPECT_EQ(file.items[1].kind, ItemKind::Key);
}

TEST(MacroReferences, AreFoundInAnyCaseInBothFiles)
{
    const FilePair pair =
        parsePair(u"BTN S1 FIRE"_s, u"Fire = a\nBoth = fire DLY(60) FLARE\nFlare = b"_s);
    EXPECT_EQ(pair.joystick.items[0].reference, 0);
    std::vector<int> used;
    for (const Item &item : pair.macro.items) {
        if (item.kind == ItemKind::MacroUse)
            used.push_back(item.reference);
    }
    EXPECT_THAT(used, ElementsAre(0, 2));
}

TEST(MacroReferences, OfTwoMacrosOfOneNameTheFirstIsMeant)
{
    const FilePair pair = parsePair(u"BTN S1 Fire"_s, u"Fire = a\nFIRE = b"_s);
    EXPECT_EQ(pair.macro.macros.size(), 2);
    EXPECT_EQ(pair.joystick.items[0].reference, 0);
}

TEST(MacroOrder, PutsEachMacroAfterThoseThatItUses)
{
    const MacroFile file = parsedMacros(u"All = Left2 Right2\nLeft2 = q\nRight2 = Left2 w"_s);
    const MacroOrder order = orderMacros(file);
    EXPECT_THAT(order.order, ElementsAre(1, 2, 0));
    EXPECT_TRUE(order.cycles.isEmpty());
}

TEST(CompiledSize, CountsAMacroWhereverItIsUsed)
{
    const QString macros = u"One = a\nTwo = One One"_s;
    const qint64 once = compiledSize(parsePair(u"BTN S1 One"_s, macros));
    const qint64 twice = compiledSize(parsePair(u"BTN S1 Two"_s, macros));
    const qint64 unused = compiledSize(parsePair(u"BTN S1 One"_s, u"One = a"_s));
    EXPECT_GT(once, 0);
    EXPECT_GT(twice, once);
    EXPECT_EQ(unused, once);
    EXPECT_EQ(compiledSize(parsePair({}, macros)), 0);
}

TEST(CompiledSize, StaysBoundedWhenMacrosMultiply)
{
    QString macros = u"M0 = a a\n"_s;
    for (int index = 1; index < 200; ++index)
        macros += u"M%1 = M%2 M%2\n"_s.arg(index).arg(index - 1);
    const qint64 size = compiledSize(parsePair(u"BTN S1 M199"_s, macros));
    EXPECT_GE(size, 1'000'000'000);
    EXPECT_LE(size, 2'000'000'000);
    EXPECT_EQ(memoryPercent(size), 100);
    EXPECT_EQ(memoryPercent(0), 0);
    EXPECT_EQ(memoryPercent(1), 1);
}

TEST(CompiledSize, ReachesAHundredPercentWhereTheMemoryIsFullAndNoSooner)
{
    EXPECT_EQ(memoryPercent(65535), 99);
    EXPECT_EQ(memoryPercent(65536), 100);
    EXPECT_EQ(memoryPercent(656), 2);
}
