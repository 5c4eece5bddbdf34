// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/quickview/statement_places.h"

#include <gmock/gmock.h>

using namespace zeph;

namespace {

const QString placesFile = u"Rem a title\n" // 1
                           "BTN S1 /U a\n" // 2
                           "Rem in between\n" // 3
                           "/M b\n" // 4
                           "\n" // 5
                           "USE HAT1 AS POV\n" // 6
                           "DEF X1 S1\n" // 7
                           "BTN X1 c\n" // 8
                           "THR 1\n" // 9
                           "BTN H1U d\n" // 10
                           "BTN S1 /U /O e\n"_s; // 11

constexpr int placesS1 = 15;
constexpr int placesH1u = 21;

struct Opened {
    Digest digest = digestOf(placesFile);
    Assignments table = AssignToArray(digest);
    std::vector<StatementPlace> places = statementPlaces(digest);
};

} // namespace

TEST(Digest, EveryLineTellsWhereItComesFrom)
{
    const Digest digest = digestOf(u"ab\nBTN S1 a\nUSE HAT1 AS POV\n\n/M b");
    EXPECT_EQ(digest.text, u"*** \nS1 a \n*** \nHat1: POV \n/M b \n*** \nEND \n");
    EXPECT_THAT(digest.sources, testing::ElementsAre(0, 2, 0, 3, 5, 0, 0));
    EXPECT_EQ(digestOf(placesFile).text, LeftAlignAnalyse(placesFile));
}

TEST(StatementPlaces, AreThoseOfTheControls)
{
    EXPECT_THAT(Opened().places,
                testing::ElementsAre(StatementPlace{ placesS1, 2, 4 },
                                     StatementPlace{ placesH1u, 10, 10 },
                                     StatementPlace{ placesS1, 11, 11 }));
}

TEST(StatementPlaces, ALineBelongsToTheControlAroundIt)
{
    const std::vector<int> rows{ 0, placesS1, placesS1, placesS1,  0,        0,
                                 0, 0,        0,        placesH1u, placesS1, 0 };
    const Opened opened;
    for (int line = 1; line <= int(rows.size()); ++line) {
        EXPECT_EQ(rowAtLine(opened.places, line), rows[size_t(line - 1)]) << line;
    }
}

TEST(StatementPlaces, AJumpGoesToTheStatementThatGaveTheText)
{
    const Opened opened;
    const auto lineOf = [&](int row, int column) {
        return lineToJumpTo(opened.table, opened.places, { row, column });
    };
    EXPECT_EQ(lineOf(placesS1, 1), 2);
    EXPECT_EQ(lineOf(placesS1, 2), 11);
    EXPECT_EQ(lineOf(placesS1, 3), 2);
    EXPECT_EQ(lineOf(placesS1, 6), 2) << "nothing there: the control's first statement";
    EXPECT_EQ(lineOf(placesH1u, 4), 6) << "the USE line";
    EXPECT_EQ(lineOf(16, 1), 0);
    EXPECT_EQ(lineOf(11, 1), 0);
}
