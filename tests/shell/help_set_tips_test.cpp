// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/help_set.h"

#include <gtest/gtest.h>

using namespace zeph;

TEST(Tips, StandOneALineAndBlankLinesAreNone)
{
    EXPECT_EQ(parseTips(u"One\r\n\r\nTwo\r\n  \nThree"),
              QStringList({ u"One"_s, u"Two"_s, u"Three"_s }));
    EXPECT_TRUE(parseTips(u"").isEmpty());
    EXPECT_TRUE(parseTips(u"\n\n").isEmpty());
}

TEST(Tips, NextWrapsAtTheEnd)
{
    TipCycle tips({ u"One"_s, u"Two"_s, u"Three"_s }, 1);
    EXPECT_EQ(tips.current(), u"Two");
    tips.next();
    EXPECT_EQ(tips.current(), u"Three");
    tips.next();
    EXPECT_EQ(tips.current(), u"One");
}

TEST(Tips, AnEmptyListHasNoCurrentOneAndStaysEmpty)
{
    TipCycle tips({}, 0);
    tips.next();
    EXPECT_TRUE(tips.isEmpty());
    EXPECT_EQ(tips.current(), QString());
}
