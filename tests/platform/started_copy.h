// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Tests that need another process start this test program a second time, with one test alone: its
// name begins with DISABLED_, so that it runs nowhere else.

#include "platform/core/base.h"

#include <QCoreApplication>
#include <QStringList>

namespace zeph::test {

/// A copy has started within this time, on a busy machine and under Wine too.
inline constexpr int copyStartsWithinMs = 60000;

inline QString copyProgram()
{
    return QCoreApplication::applicationFilePath();
}

/// The arguments of a copy that runs that test; more may follow.
inline QStringList copyArguments(const QString &name)
{
    return { u"--gtest_also_run_disabled_tests"_s, u"--gtest_filter="_s + name };
}

} // namespace zeph::test
