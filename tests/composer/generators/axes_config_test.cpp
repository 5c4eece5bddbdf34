// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/generators/axes_config.h"

#include "compilation.h"

using namespace zeph;

// The names in it are too general to be shared with other tests.
namespace axes_config_test {

namespace {

// Rows by name.
enum Row { JoyX, JoyY, Thr, Rddr, Rng, Ant, Lbrk, Rbrk, Mix, Miy };

AxesConfig clicked(std::initializer_list<std::pair<Row, int>> clicks, AxesConfig grid = {})
{
    for (const auto &[row, column] : clicks)
        grid.click(row, column);
    return grid;
}

AxesConfig withExtra()
{
    AxesConfig grid;
    grid.setExtraAxes(true);
    return grid;
}

// The set cells in the order of the columns: "1+JOYX 2-JOYY".
QString told(const AxesConfig &grid)
{
    QStringList cells;
    for (int column = 0; column < AxesConfig::axes; ++column) {
        for (int row = 0; row < AxesConfig::axes; ++row) {
            if (!grid.caption(row, column).isEmpty())
                cells.append(QString::number(column + 1) + grid.caption(row, column)
                             + cougarAxes[size_t(row)].toString());
        }
    }
    return cells.join(u' ');
}

QString textOf(const AxesConfig &grid)
{
    const Generated generated = generateAxesConfig(grid);
    EXPECT_TRUE(generated);
    return generated ? generated->text() : QString();
}

AxesConfig common(size_t option)
{
    AxesConfig grid;
    grid.apply(commonConfigurations[option]);
    return grid;
}

} // namespace

TEST(AxesConfig, ThreeClicksLeaveACellUnset)
{
    AxesConfig grid;
    grid.click(Thr, 4);
    EXPECT_EQ(told(grid), u"5+THR"_s);
    grid.click(Thr, 4);
    EXPECT_EQ(told(grid), u"5-THR"_s);
    grid.click(Thr, 4);
    EXPECT_EQ(told(grid), QString());
    EXPECT_EQ(grid, AxesConfig());
}

TEST(AxesConfig, ARowHasOneCell)
{
    EXPECT_EQ(told(clicked({ { JoyX, 0 }, { JoyX, 3 } })), u"4+JOYX"_s);
}

TEST(AxesConfig, ADisplacedAxisMovesToTheFirstFreeColumnAndKeepsItsSign)
{
    // Columns 0 to 3 are full; the axis of column 0 is reversed.
    const AxesConfig grid =
        clicked({ { JoyX, 0 }, { JoyX, 0 }, { JoyY, 1 }, { Thr, 2 }, { Rddr, 3 }, { Rng, 0 } });
    EXPECT_EQ(told(grid), u"1+RNG 2+JOYY 3+THR 4+RDDR 5-JOYX"_s);
}

TEST(AxesConfig, TheColumnThatTheClickedRowLeavesIsFreeForTheDisplacedAxis)
{
    EXPECT_EQ(told(clicked({ { JoyX, 0 }, { JoyY, 1 }, { JoyX, 1 } })), u"1+JOYY 2+JOYX"_s);
}

TEST(AxesConfig, WithEightColumnsFullADisplacedAxisIsLost)
{
    const AxesConfig grid = clicked({ { Mix, 0 } }, common(4));
    EXPECT_EQ(told(grid), u"1+MIX 2+JOYY 3+THR 4+RDDR 5+RNG 6+ANT 7+LBRK 8+RBRK"_s);
}

TEST(AxesConfig, WithTheExtraAxesItMovesToTheNinth)
{
    AxesConfig grid = common(4);
    grid.setExtraAxes(true);
    grid.click(Mix, 0);
    EXPECT_EQ(told(grid), u"1+MIX 2+JOYY 3+THR 4+RDDR 5+RNG 6+ANT 7+LBRK 8+RBRK 9+JOYX"_s);
    grid.click(Miy, 1);
    EXPECT_EQ(told(grid), u"1+MIX 2+MIY 3+THR 4+RDDR 5+RNG 6+ANT 7+LBRK 8+RBRK 9+JOYX 10+JOYY"_s);
}

TEST(AxesConfig, TheLastTwoColumnsReactOnlyWithTheExtraAxes)
{
    EXPECT_EQ(told(clicked({ { Mix, 8 }, { Miy, 9 } })), QString());
    EXPECT_EQ(told(clicked({ { Mix, 8 }, { Miy, 9 } }, withExtra())), u"9+MIX 10+MIY"_s);
    EXPECT_TRUE(AxesConfig().isEnabled(7));
    EXPECT_FALSE(AxesConfig().isEnabled(8));
    EXPECT_TRUE(withExtra().isEnabled(9));
}

TEST(AxesConfig, WithoutTheExtraAxesTheirCellsAreCleared)
{
    AxesConfig grid = clicked({ { JoyX, 0 }, { Mix, 8 }, { Miy, 9 } }, withExtra());
    grid.setExtraAxes(false);
    EXPECT_EQ(told(grid), u"1+JOYX"_s);
    EXPECT_FALSE(grid.extraAxes());
}

TEST(AxesConfig, NoRunOfClicksGivesARowOrColumnTwoCells)
{
    AxesConfig grid = withExtra();
    for (int step = 0; step < 5000; ++step) {
        grid.click(step * 7 % 10, step * step * 3 % 10);
        for (int index = 0; index < AxesConfig::axes; ++index) {
            int inRow = 0;
            int inColumn = 0;
            for (int other = 0; other < AxesConfig::axes; ++other) {
                inRow += grid.cell(index, other) == AxesConfig::Cell::Unset ? 0 : 1;
                inColumn += grid.cell(other, index) == AxesConfig::Cell::Unset ? 0 : 1;
            }
            ASSERT_LE(inRow, 1) << step;
            ASSERT_LE(inColumn, 1) << step;
        }
    }
}

TEST(AxesConfig, CommonConfigurationsAreWritten)
{
    EXPECT_EQ(textOf(common(0)), u"USE AXES_CONFIG (1, JOYX), (2, JOYY), (3, THR)"_s);
    EXPECT_EQ(textOf(common(1)), u"USE AXES_CONFIG (1, JOYX), (2, JOYY), (3, -THR)"_s);
    EXPECT_EQ(textOf(common(2)), u"USE AXES_CONFIG (1, JOYX), (2, JOYY), (3, THR), (4, RDDR)"_s);
    EXPECT_EQ(textOf(common(3)), u"USE AXES_CONFIG (1, JOYX), (2, JOYY), (3, THR), (4, RNG)"_s);
    EXPECT_EQ(textOf(common(4)),
              u"USE AXES_CONFIG (1, JOYX), (2, JOYY), (3, THR), (4, RDDR), (5, RNG), (6, ANT), "
              u"(7, LBRK), (8, RBRK)"_s);
}

TEST(AxesConfig, WithTheRngKnobForTheRuddersAxis4IsDrivenByRng)
{
    EXPECT_TRUE(textOf(common(3)).endsWith(u"(4, RNG)"));
}

TEST(AxesConfig, ACommonConfigurationReplacesWhatWasSet)
{
    AxesConfig grid = clicked({ { Miy, 7 }, { Mix, 9 } }, withExtra());
    grid.apply(commonConfigurations[0]);
    EXPECT_EQ(told(grid), u"1+JOYX 2+JOYY 3+THR"_s);
    EXPECT_TRUE(grid.extraAxes());
}

TEST(AxesConfig, AxesOneAndTwoAreNeeded)
{
    for (const AxesConfig &grid :
         { AxesConfig(), clicked({ { JoyX, 0 } }), clicked({ { JoyY, 1 }, { Thr, 2 } }) }) {
        const Generated generated = generateAxesConfig(grid);
        ASSERT_FALSE(generated);
        EXPECT_EQ(generated.error().title, u"Axes 1 and 2 are missing"_s);
        EXPECT_EQ(generated.error().text,
                  u"You must assign Cougar axes to DirectX axes 1 and 2, as this is a requirement "
                  "of DirectX that to see a joystick, it must see axes 1 and 2."_s);
    }
}

TEST(AxesConfig, ItemsAreInTheOrderOfTheDirectXAxesAndStartALine)
{
    AxesConfig grid =
        clicked({ { Miy, 9 }, { Thr, 5 }, { Thr, 5 }, { Ant, 1 }, { Lbrk, 0 } }, withExtra());
    EXPECT_EQ(textOf(grid), u"USE AXES_CONFIG (1, LBRK), (2, ANT), (6, -THR), (10, MIY)"_s);
    EXPECT_TRUE(generateAxesConfig(grid)->startsLine);
}

TEST(AxesConfig, EveryAssignmentOfFourAxesIsAcceptedAndComesBack)
{
    test::Compilation compilation;
    // Axes 1 and 2 are driven by any two axes, two more by the rows after them.
    for (int first = 0; first < AxesConfig::axes; ++first) {
        for (int second = 0; second < AxesConfig::axes; ++second) {
            for (int column = 2; column < AxesConfig::axes && second != first; ++column) {
                for (unsigned signs = 0; signs < 8; ++signs) {
                    using enum AxesConfig::Cell;
                    AxesConfig grid;
                    grid.setExtraAxes(column >= AxesConfig::firstExtra);
                    grid.assign(first, 0, (signs & 1) != 0 ? Minus : Plus);
                    grid.assign(second, 1, (signs & 2) != 0 ? Minus : Plus);
                    for (int row = 0, left = 1; row < AxesConfig::axes && left > 0; ++row)
                        left -= grid.assign(row, column, (signs & 4) != 0 ? Minus : Plus) ? 1 : 0;
                    const QString text = textOf(grid);
                    compilation.add(text);
                    const std::optional<AxesConfig> back = readAxesConfig(text);
                    ASSERT_TRUE(back) << text.toStdString();
                    ASSERT_EQ(*back, grid) << text.toStdString();
                }
            }
        }
    }
    EXPECT_GT(compilation.count(), 5000);
    EXPECT_EQ(compilation.verdict(), "");
}

TEST(AxesConfig, AStatementOfAFileFillsTheGrid)
{
    const auto grid =
        readAxesConfig(u"use axes_config (1, joyx), Rem the stick\n  (2,JOYY),(10, - MIX)");
    ASSERT_TRUE(grid);
    EXPECT_EQ(told(*grid), u"1+JOYX 2+JOYY 10-MIX"_s);
    EXPECT_TRUE(grid->extraAxes());
    EXPECT_FALSE(readAxesConfig(u"USE AXES_CONFIG (1, JOYX), (2, JOYY), (8, MIX)")->extraAxes());
}

TEST(AxesConfig, WhatTheGridCannotHoldIsNotRead)
{
    for (const QStringView text :
         { u"USE AXES_CONFIG (1, JOYX), (1, JOYY)", u"USE AXES_CONFIG (1, JOYX), (2, JOYX)",
           u"USE AXES_CONFIG (11, JOYX)", u"USE AXES_CONFIG (0, JOYX)",
           u"USE AXES_CONFIG (1, JOYSTICK)", u"USE AXES_CONFIG (1)", u"USE AXES_CONFIG JOYX",
           u"USE REVERSE (JOYX)", u"BTN S1 a", u"", u"USE AXES_CONFIG (1, JOYX" })
        EXPECT_FALSE(readAxesConfig(text)) << text.toUtf8().toStdString();
}

} // namespace axes_config_test
