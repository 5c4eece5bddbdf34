// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Used by both stand-in tools: the orders that tests give them, and the outcome that they report.

#include "platform/core/base.h"

#include <QStringList>

QT_FORWARD_DECLARE_CLASS(QProcessEnvironment)

namespace zeph::standin {

/// An error that a test orders instead of the real verdict.
struct OrderedError {
    int code = 0;
    /// 1-based, 0 for none.
    int line = 0;
};

/// Orders of tests, given by environment variables.
struct Options {
    /// ZEPH_STANDIN_DELAY_MS: milliseconds to wait before the verdict.
    int delayMs = 0;
    /// ZEPH_STANDIN_SILENT=1: write no verdict.
    bool silent = false;
    /// ZEPH_STANDIN_FAIL=code:line.
    std::optional<OrderedError> fail;
    /// ZEPH_STANDIN_AXES and ZEPH_STANDIN_BUTTONS: the modes to answer.
    std::optional<int> axes;
    std::optional<int> buttons;
};

Options optionsFrom(const QProcessEnvironment &environment);

/// The result of a run.
struct Outcome {
    /// The process's exit code, 0 or 1.
    int exitCode = 0;
    /// Lines for standard output that tell what was done.
    QStringList lines;
};

/// The first line that each run prints.
QString introduction(QStringView tool);

void waitFor(const Options &options);

/// Runs a tool with the process's arguments, the folder of its executable and the orders from the
/// environment, prints the outcome and returns the exit code.
using Tool = Outcome (*)(const QStringList &arguments, const QString &hotasFolder,
                         const Options &options);
int runTool(int argc, char *argv[], Tool tool);

/// The section of HOTAS.ini that replaces the memory of a real Cougar.
constexpr QStringView memorySection = u"StandIn";
constexpr QStringView modeSection = u"TMMODE";

} // namespace zeph::standin
