// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/quickview/senders.h"

#include <gmock/gmock.h>

using namespace zeph;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const QString senderFile = u"BTN S1 /U Fire\n/M SHF a\n/D KD(a) DLY(60) KU(a)\n"
                           "BTN S2 /U /I a\n"
                           "BTN T7 /P Salvo /R LSHF A\n"
                           "RNG 5 2 (0 50 100) b Loop\n"
                           "USE HAT1 AS POV\n"_s;

const QString senderMacros = u"Fire = SPC\n"
                             "Salvo = RPT(3) Fire DLY(100) Chaff\n"
                             "Chaff = CTL ALT c\n"
                             "Loop = Again x\n"
                             "Again = Loop y\n"_s;

/// The cells as "row.column".
std::vector<std::string> sendersOf(QStringView sought)
{
    const Assignments table = AssignToArray(digestOf(senderFile));
    const MacroKeys keys(extractMacros(usableMacroLines(senderMacros)));
    std::vector<std::string> cells;
    for (const CellPlace &place : Senders(table, keys).of(sought.toString())) {
        cells.push_back(std::to_string(place.row) + '.' + std::to_string(place.column));
    }
    return cells;
}

std::vector<std::string> wholeRow(const std::string &row)
{
    std::vector<std::string> cells;
    for (const char *column : { ".1", ".2", ".3", ".4", ".5", ".6" }) {
        cells.push_back(row + column);
    }
    return cells;
}

/// As "modifiers+key", words apart.
std::vector<QString> sent(QStringView body)
{
    std::vector<QString> all;
    for (const SentKey &each : sentKeys(body)) {
        all.push_back(each.modifiers.join(u' ') + u'+' + each.key);
    }
    return all;
}

} // namespace

TEST(SentKeys, ModifiersBelongToTheKeyAfterThem)
{
    EXPECT_THAT(sent(u"a SHF CTL b c"), ElementsAre(u"+a"_s, u"ctl shf+b"_s, u"+c"_s));
    EXPECT_THAT(sent(u"KD(SHF) KU (SHF)"), ElementsAre(u"shf+"_s, u"shf+"_s));
}

TEST(SentKeys, BracketsOfOtherWordsHoldNoKeys)
{
    EXPECT_THAT(sent(u"RPT(3) a DLY (60) {KD(b) <c>} (7)"), ElementsAre(u"+a"_s, u"+b"_s, u"+c"_s));
}

TEST(SentKeys, ASignWithShiftIsShiftAndItsKey)
{
    EXPECT_THAT(sent(u"! CTL ? SHF ! 1"),
                ElementsAre(u"shf+1"_s, u"ctl shf+/"_s, u"shf+1"_s, u"+1"_s));
}

TEST(SentKeys, SlashModifiersAreNoKeys)
{
    EXPECT_THAT(sent(u"/P a /R / /H /Up"), ElementsAre(u"+a"_s, u"+/"_s, u"+/up"_s));
    EXPECT_THAT(sent(u"/U/I a"), ElementsAre(u"+a"_s));
}

TEST(Senders, AMacroIsFoundDirectlyAndInMacros)
{
    EXPECT_EQ(sendersOf(u"chaff"), wholeRow("7"));
    EXPECT_THAT(sendersOf(u"Fire"),
                ElementsAre("7.1", "7.2", "7.3", "7.4", "7.5", "7.6", "15.1", "15.2"));
}

TEST(Senders, AKeyIsFoundThroughItsMacros)
{
    EXPECT_EQ(sendersOf(u"SPC"), sendersOf(u"Fire"));
    EXPECT_EQ(sendersOf(u"alt ctl c"), wholeRow("7"));
}

TEST(Senders, AKeyAloneIsNotTheKeyWithModifiers)
{
    EXPECT_THAT(sendersOf(u"a"), ElementsAre("15.5", "15.6", "16.1"));
    EXPECT_THAT(sendersOf(u"c"), IsEmpty());
}

TEST(Senders, AModifierStandsForBothSidesOfTheKeyboard)
{
    EXPECT_THAT(sendersOf(u"SHF a"),
                ElementsAre("7.1", "7.2", "7.3", "7.4", "7.5", "7.6", "15.3", "15.4"));
    EXPECT_EQ(sendersOf(u"LSHF a"), wholeRow("7"));
    EXPECT_THAT(sendersOf(u"RSHF a"), IsEmpty());
}

TEST(Senders, AModifierAloneIsFoundWithWhateverKey)
{
    EXPECT_THAT(sendersOf(u"SHF"),
                ElementsAre("7.1", "7.2", "7.3", "7.4", "7.5", "7.6", "15.3", "15.4"));
    EXPECT_EQ(sendersOf(u"ALT"), wholeRow("7"));
    EXPECT_EQ(sendersOf(u"ALT CTL"), wholeRow("7"));
    EXPECT_THAT(sendersOf(u"RSHF"), IsEmpty());
}

TEST(Senders, ARotarysNumbersAreNoKeys)
{
    EXPECT_EQ(sendersOf(u"b"), wholeRow("57"));
    EXPECT_THAT(sendersOf(u"5"), IsEmpty());
    EXPECT_THAT(sendersOf(u"60"), IsEmpty());
}

TEST(Senders, MacrosThatCallEachOtherEnd)
{
    EXPECT_EQ(sendersOf(u"x"), wholeRow("57"));
    EXPECT_EQ(sendersOf(u"y"), wholeRow("57"));
    EXPECT_EQ(sendersOf(u"Again"), wholeRow("57"));
}

TEST(Senders, OfSeveralKeysEachMustBeSent)
{
    EXPECT_EQ(sendersOf(u"Fire LSHF a"), wholeRow("7"));
    EXPECT_THAT(sendersOf(u"Fire b"), IsEmpty());
}

TEST(Senders, WhatAUseLineGivesIsFoundInWhole)
{
    EXPECT_EQ(sendersOf(u"pov").size(), 4U * 6U);
    EXPECT_EQ(sendersOf(u"pov").front(), "21.1");
    EXPECT_THAT(sendersOf(u"po"), IsEmpty());
}

TEST(Senders, NothingIsSentByNothing)
{
    EXPECT_THAT(sendersOf(u""), IsEmpty());
    EXPECT_THAT(sendersOf(u"  "), IsEmpty());
    EXPECT_THAT(sendersOf(u"DLY(60)"), IsEmpty());
    EXPECT_THAT(sendersOf(u"unknown"), IsEmpty());
}
