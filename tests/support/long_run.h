// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

namespace zeph::test {

/// How often a slow test repeats itself: the second number with `./check --long`, which sets
/// ZEPH_LONG, the first one in a daily run.
inline int repeats(int daily, int longRun)
{
    return qEnvironmentVariableIsSet("ZEPH_LONG") ? longRun : daily;
}

} // namespace zeph::test
