// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What both stand-in tools share: the orders that tests give them, and what they report.

#include "platform/core/base.h"

#include <QStringList>

QT_FORWARD_DECLARE_CLASS(QProcessEnvironment)

namespace zeph::standin {

/// A verdict that is ordered instead of found out.
struct OrderedError {
    int code = 0;
    /// 1-based, 0 for none.
    int line = 0;
};

/// Orders from the environment, all absent in real use.
struct Options {
    /// ZEPH_STANDIN_DELAY_MS: how long to wait before the verdict.
    int delayMs = 0;
    /// ZEPH_STANDIN_SILENT=1: there is never a verdict.
    bool silent = false;
    /// ZEPH_STANDIN_FAIL=code:line.
    std::optional<OrderedError> fail;
    /// ZEPH_STANDIN_AXES and ZEPH_STANDIN_BUTTONS: the modes to answer.
    std::optional<int> axes;
    std::optional<int> buttons;
};

Options optionsFrom(const QProcessEnvironment &environment);

/// What a run ends with.
struct Outcome {
    /// 0 or 1, for the process.
    int exitCode = 0;
    /// What was done, for standard output.
    QStringList lines;
};

/// The line with which each run introduces itself.
QString introduction(QStringView tool);

void waitFor(const Options &options);

/// Runs a tool as a process: its arguments, its own folder and the environment go in, what it did
/// is printed. Gives the exit code.
using Tool = Outcome (*)(const QStringList &arguments, const QString &hotasFolder,
                         const Options &options);
int runTool(int argc, char *argv[], Tool tool);

/// Section of HOTAS.ini in which the stand-ins keep what a real Cougar would remember.
constexpr QStringView memorySection = u"StandIn";
constexpr QStringView modeSection = u"TMMODE";

} // namespace zeph::standin
