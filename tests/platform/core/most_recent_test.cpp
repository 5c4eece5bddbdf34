// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/most_recent.h"

#include <gtest/gtest.h>

#include <string>

using namespace zeph;

namespace {

struct Step {
    const char *name;
    QList<std::string> before;
    std::string item;
    QList<std::string> after;
};

std::ostream &operator<<(std::ostream &out, const Step &step)
{
    return out << step.name;
}

/// Lists of at most three; items are the same by their first letter.
const Step steps[] = {
    { "intoAnEmptyList", {}, "a1", { "a1" } },
    { "aNewOneGoesToTheFront", { "a1" }, "b1", { "b1", "a1" } },
    { "oneThatIsThereMovesUpAndIsReplaced", { "a1", "b1", "c1" }, "c2", { "c2", "a1", "b1" } },
    { "oneInTheMiddleLeavesTheOneAfterItInPlace",
      { "a1", "b1", "c1" },
      "b2",
      { "b2", "a1", "c1" } },
    { "theFirstOneIsOnlyReplaced", { "a1", "b1" }, "a2", { "a2", "b1" } },
    { "oneTooManyPushesTheLastOut", { "a1", "b1", "c1" }, "d1", { "d1", "a1", "b1" } },
};

struct PutFirst : testing::TestWithParam<Step> {
};

} // namespace

TEST_P(PutFirst, GivesTheList)
{
    QList<std::string> list = GetParam().before;
    putFirst(list, GetParam().item, 3,
             [](const std::string &a, const std::string &b) { return a[0] == b[0]; });
    EXPECT_EQ(list, GetParam().after);
}

INSTANTIATE_TEST_SUITE_P(MostRecent, PutFirst, testing::ValuesIn(steps),
                         [](const auto &instance) { return std::string(instance.param.name); });
