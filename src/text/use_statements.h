// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The USE statements that Zeph itself reads from a joystick file. Which macro file belongs to it is
// decided by the last USE MDEF.

#include "platform/core/base.h"

namespace zeph {

/// Values of the file without blanks around them; empty when the file has no such line.
struct UseStatements {
    QString ZephGraphic;
    QString ZephReadme;
    QString ProfileName; ///< ends in ".tmc"

    friend bool operator==(const UseStatements &, const UseStatements &) = default;
};

/// Reads all lines; the last line of a kind wins.
UseStatements readUseStatements(QStringView joystickText);

/// The macro file that the last "USE MDEF" of a text names, in any case, even in a comment.
struct MdefReference {
    QString wholeLine; ///< the rest of the line after the words and one character
    QString cut; ///< the same without comment and without blanks at its end
};

std::optional<MdefReference> lastMdefReference(QStringView joystickText);

/// The macro file's name for a reference in a joystick file of that name. If cut has the extension
/// it is the name; otherwise wholeLine with the extension added, comment included: files depend on
/// that.
QString macroNameFor(const MdefReference &reference, QStringView joystickName);

/// What a "USE ZEPH RUN_APP" line says after these words.
struct RunAppTail {
    QStringView command; ///< the path with its arguments
    std::optional<int> style; ///< how its window opens, 0 to 4; no value for any other way
};

/// Reads the rest of such a line, which has neither comment nor blanks at its end.
RunAppTail runAppTail(QStringView rest);

} // namespace zeph
