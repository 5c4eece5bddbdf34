// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#else
#include <ctime>
#endif

namespace zeph::test {

/// The seconds for which processors have worked for this program. Windows' clock() tells the time
/// that has passed instead, whoever had the processor.
inline double cpuSeconds()
{
#ifdef Q_OS_WIN
    constexpr double ticksPerSecond = 1e7;
    const auto seconds = [](const FILETIME &time) {
        return double(quint64(time.dwHighDateTime) << 32 | time.dwLowDateTime) / ticksPerSecond;
    };
    FILETIME begun, ended, kernel, user;
    GetProcessTimes(GetCurrentProcess(), &begun, &ended, &kernel, &user);
    return seconds(kernel) + seconds(user);
#else
    return double(std::clock()) / CLOCKS_PER_SEC;
#endif
}

} // namespace zeph::test
