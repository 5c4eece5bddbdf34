// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The USE directives that Zeph itself reads from a joystick file.

#include "platform/core/base.h"

namespace zeph {

/// Values as they stand in the file, trimmed; empty when the file has no such line.
struct UseStatements {
    QString ZephGraphic;
    QString ZephReadme;
    QString ProfileName; ///< ends in ".tmc"

    friend bool operator==(const UseStatements &, const UseStatements &) = default;
};

/// Reads all lines; the last line of a kind wins.
UseStatements readUseStatements(QStringView joystickText);

} // namespace zeph
