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

TEST(CoverageCount, CountsCellsNotControls)
{
    // Six cells of S1 in two pairs and two single ones, one of S2.
    const auto rows =
        coverage(AssignToArray(digestOf(u"BTN S1 /U a\n/M b\n/D /I a /O c\nBTN S2 /U /I a\n"_s)));
    EXPECT_EQ(countOf(rows), (CoverageCount{ 324, 7, 2 }));
    EXPECT_EQ(countOf({}), CoverageCount());
}

TEST(CoverageCount, IsToldInASentence)
{
    EXPECT_EQ(inWords({ 324, 0, 0 }), u"None of 324 positions is used."_s);
    EXPECT_EQ(inWords({ 324, 1, 0 }), u"1 of 324 positions is used; 323 are empty."_s);
    EXPECT_EQ(inWords({ 324, 174, 12 }),
              u"174 of 324 positions are used, 12 of them the same as in another mode; 150 are "
              "empty."_s);
    EXPECT_EQ(inWords({ 324, 323, 0 }), u"323 of 324 positions are used; 1 is empty."_s);
    EXPECT_EQ(inWords({ 324, 324, 0 }), u"324 of 324 positions are used."_s);
}

TEST(CoverageFilter, AUsedCellMayBeTheSameAsInAnotherMode)
{
    const auto shown = [](CoverageFilter filter) {
        std::string uses;
        for (const CellUse use : { CellUse::Empty, CellUse::Used, CellUse::SameAsOtherMode }) {
            uses += isShown(use, filter) ? 'x' : '.';
        }
        return uses;
    };
    EXPECT_EQ(shown(CoverageFilter::All), "xxx");
    EXPECT_EQ(shown(CoverageFilter::Empty), "x..");
    EXPECT_EQ(shown(CoverageFilter::Used), ".xx");
    EXPECT_EQ(shown(CoverageFilter::Same), "..x");
}

TEST(Columns, AreToldByTheirModifiersAndInWords)
{
    EXPECT_EQ(columnName(1), u"/U /I"_s);
    EXPECT_EQ(columnInWords(1), u"Dogfight switch up, S3 held"_s);
    EXPECT_EQ(columnName(4), u"/M /O"_s);
    EXPECT_EQ(columnInWords(4), u"Dogfight switch in the middle, S3 let go"_s);
    EXPECT_EQ(columnInWords(5), u"Dogfight switch down, S3 held"_s);
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
