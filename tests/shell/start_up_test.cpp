// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/start_up.h"

#include <gtest/gtest.h>

using namespace zeph;

TEST(CommandLineAnswer, HelpNamesEveryOptionAtTheStartOfALine)
{
    const QString help = commandLineAnswer({ u"--help"_s }).value_or(QString());
    EXPECT_TRUE(help.startsWith(u"Usage: zeph [FILE]\n"));
    for (const auto *option : { u"--sheet", u"--out", u"--scale", u"--help", u"--version" }) {
        EXPECT_TRUE(help.contains(u"\n  "_s + QString::fromUtf16(option) + u' '))
            << QString::fromUtf16(option).toStdString();
    }
    for (const QString &line : help.split(u'\n')) {
        EXPECT_LE(line.size(), 100) << line.toStdString();
    }
}

TEST(CommandLineAnswer, TheVersionIsOneLine)
{
    EXPECT_EQ(commandLineAnswer({ u"--version"_s }), u"Zeph 4.4.02\n"_s);
}

TEST(CommandLineAnswer, HelpWinsAndIsGivenAnywhere)
{
    const auto help = commandLineAnswer({ u"--help"_s });
    EXPECT_EQ(commandLineAnswer({ u"--version"_s, u"--help"_s }), help);
    EXPECT_EQ(commandLineAnswer({ u"--sheet"_s, u"joystick"_s, u"--help"_s }), help);
}

TEST(CommandLineAnswer, AnythingElseIsNoQuestion)
{
    EXPECT_EQ(commandLineAnswer({}), std::nullopt);
    EXPECT_EQ(commandLineAnswer({ u"help.tmj"_s }), std::nullopt);
    EXPECT_EQ(commandLineAnswer({ u"--sheet"_s, u"joystick"_s }), std::nullopt);
    EXPECT_EQ(commandLineAnswer({ u"a --help.tmj"_s }), std::nullopt);
}
