// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The joystick file and its macro file, found and read as the compiler finds and reads them.

#include "language/model.h"
#include "platform/core/file_io.h"

namespace zeph::standin {

/// A file's characters with "\n" at every line's end, whichever ends the file has.
Expected<QString, FileError> readSource(const QString &path);

/// Where the macro file of that name lies, in the joystick file's own folder and in any case; the
/// extension may be left out. Empty when it is not there.
QString findMacroFile(const QString &joystickPath, const QString &name);

/// What is compiled together.
struct Sources {
    language::FilePair pair;
    /// Empty without a macro file.
    QString macroPath;
    /// The macro file that is named and not there.
    std::optional<language::MacroReference> missing;
};

/// Reads the joystick file and its macro file. Without a USE MDEF statement, or with one that names
/// nothing, the macro file of the same name is taken, if sameName says so. Fails when
/// the joystick file cannot be read.
Expected<Sources, FileError> readSources(const QString &joystickPath, bool sameName);

} // namespace zeph::standin
