// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/quickview/coverage.h"

#include <gmock/gmock.h>

using namespace zeph;

namespace {

/// A control's cells: "." empty, "x" used, the other column's number where it is the same there.
std::string usesOf(QStringView file, QStringView control)
{
    std::string uses;
    for (const CoverageRow &row : coverage(AssignToArray(digestOf(file)))) {
        if (row.row != rowOfControl(control)) {
            continue;
        }
        for (const CoverageCell &cell : row.cells) {
            uses += cell.use == CellUse::Empty ? "."
                : cell.use == CellUse::Used    ? "x"
                                               : std::to_string(cell.sameColumn);
        }
    }
    return uses;
}

} // namespace

TEST(Coverage, HasARowForEachControl)
{
    const std::vector<CoverageRow> rows = coverage({});
    EXPECT_EQ(rows.size(), 54U);
    for (const CoverageRow &row : rows) {
        EXPECT_FALSE(controlName(row.row).isEmpty());
        EXPECT_THAT(row.cells, testing::Each(CoverageCell{}));
    }
}

TEST(Coverage, TellsUsedFromEmpty)
{
    EXPECT_EQ(usesOf(u"BTN S1 /U /I a /O b\n/M c\n", u"S1"), "xxxx..");
    EXPECT_EQ(usesOf(u"BTN S1 a\n", u"S2"), "......");
}

TEST(Coverage, TellsWhatAnotherModeDoesToo)
{
    EXPECT_EQ(usesOf(u"BTN S1 a\n", u"S1"), "341212");
    EXPECT_EQ(usesOf(u"BTN S1 /U a\n/M b\n/D a\n", u"S1"), "56xx12");
}

TEST(Coverage, TheSameTextByS3IsNoRepetition)
{
    EXPECT_EQ(usesOf(u"BTN S1 /U a\n/M /I b /O a\n", u"S1"), "x4x2..");
    EXPECT_EQ(usesOf(u"BTN S1 /U /I a /O b\n/M /I b /O a\n", u"S1"), "xxxx..");
}

TEST(Coverage, WhatAUseLineGivesIsUsedInAllModes)
{
    EXPECT_EQ(usesOf(u"USE HAT4 AS POV\n", u"H4L"), "341212");
    EXPECT_EQ(usesOf(u"USE HAT4 AS POV\n", u"H4UL"), "......");
}
