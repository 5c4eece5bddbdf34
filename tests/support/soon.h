// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include <gtest/gtest.h>

#include <QTest>

/// EXPECT_EQ for what comes true while the event loop runs, within five seconds. (QTRY_COMPARE
/// tells its failures to Qt Test, which does not run these tests: they would pass.)
#define EXPECT_SOON_EQ(actual, expected)                                                           \
    do {                                                                                           \
        static_cast<void>(QTest::qWaitFor([&] { return (actual) == (expected); }));                \
        EXPECT_EQ(actual, expected);                                                               \
    } while (false)
