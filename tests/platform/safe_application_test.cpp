// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/dialogs.h"

#include "platform/fakes/scripted_dialogs.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace zeph;

TEST(FallGuard, AHandlersAnswerPassesThrough)
{
    FallGuard guard;
    EXPECT_FALSE(guard.run([] { return false; }));
    EXPECT_TRUE(guard.run([] { return true; }));
}

TEST(FallGuard, WhatEscapesIsToldAndBringsTheLastResort)
{
    ScriptedDialogs dialogs;
    FallGuard guard;
    int calls = 0;
    guard.dialogs = &dialogs;
    guard.lastResort = [&calls] {
        ++calls;
    };
    dialogs.answer(u"Zeph"_s, BoxButton::Ok);
    EXPECT_TRUE(guard.run([]() -> bool { throw std::runtime_error("no fuel"); }));
    EXPECT_EQ(calls, 1);
    EXPECT_TRUE(dialogs.boxes().constFirst().text.endsWith(u"no fuel"));
    EXPECT_TRUE(dialogs.unexpected().isEmpty());
}

TEST(FallGuard, AFallInTheLastResortIsNoFurtherFall)
{
    FallGuard guard;
    int calls = 0;
    guard.lastResort = [&] {
        ++calls;
        guard.run([]() -> bool { throw 1; });
        throw std::runtime_error("no luck either");
    };
    EXPECT_TRUE(guard.run([]() -> bool { throw 2; }));
    EXPECT_EQ(calls, 1);
    EXPECT_TRUE(guard.run([]() -> bool { throw 3; }));
    EXPECT_EQ(calls, 2);
}
