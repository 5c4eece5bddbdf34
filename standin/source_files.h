// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Finds and reads the joystick file and its macro file by the compiler's rules.

#include "language/model.h"
#include "platform/core/file_io.h"

namespace zeph::standin {

/// Reads a file; every kind of line end becomes "\n". The byte order mark of UTF-8 is left out, and
/// the file taken as what it says; UTF-16 cannot be read.
Expected<QString, FileError> readSource(const QString &path);

/// The path of the macro file in the joystick file's folder. The name may be in another case and
/// without its extension. Without such a file the folder of that name and extension; empty when
/// there is neither.
QString findMacroFile(const QString &joystickPath, const QString &name);

/// The two files that are compiled together.
struct Sources {
    language::FilePair pair;
    /// Empty without a macro file.
    QString macroPath;
    /// The reference to a macro file that does not exist.
    std::optional<language::MacroReference> missing;
    /// Why the macro file, which is there, cannot be read.
    std::optional<FileError> unreadable;
    /// Where the joystick file names the macro file; line 0 when it does not.
    language::Place macroNamePlace{ 0, 0, 0 };
};

/// Reads the joystick file and its macro file. If no USE MDEF statement names a macro file,
/// sameName decides whether the one with the joystick file's name is used. Fails when the joystick
/// file cannot be read.
Expected<Sources, FileError> readSources(const QString &joystickPath, bool sameName);

} // namespace zeph::standin
