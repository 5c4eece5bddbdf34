// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/help_set.h"

#include <gtest/gtest.h>

using namespace zeph;

namespace {

const HelpSet &sample()
{
    static const HelpSet set(
        u"; a comment\n10\tcontents.html\tContents\r\n100\tshow.html\tShow me\n"
        u"x\tbad.html\tNo number\n5\tshort.html\n",
        u"USE MDEF\tuse.html#mdef\nbtn\tbuttons.html\r\n\nno tab here\n");
    return set;
}

} // namespace

TEST(HelpSet, FindsATopicByItsNumber)
{
    const auto topic = sample().topic(100);
    ASSERT_TRUE(topic);
    EXPECT_EQ(topic->file, u"show.html");
    EXPECT_EQ(topic->title, u"Show me");
    EXPECT_FALSE(sample().topic(101));
}

TEST(HelpSet, PassesOverLinesThatAreNoTopic)
{
    ASSERT_EQ(sample().topics().size(), 2);
    EXPECT_EQ(sample().topics()[0].title, u"Contents");
}

TEST(HelpSet, FindsAKeywordInAnyCaseAndBlanksAround)
{
    EXPECT_EQ(sample().target(u"BTN"), u"buttons.html");
    EXPECT_EQ(sample().target(u" use mdef "), u"use.html#mdef");
    EXPECT_FALSE(sample().target(u"use"));
    EXPECT_FALSE(sample().target(u""));
}

TEST(HelpSet, FiltersTheIndexInAlphabeticalOrder)
{
    EXPECT_EQ(sample().wordsWith(u""), QStringList({ u"btn"_s, u"USE MDEF"_s }));
    EXPECT_EQ(sample().wordsWith(u"mdef"), QStringList({ u"USE MDEF"_s }));
    EXPECT_TRUE(sample().wordsWith(u"nothing").isEmpty());
}
