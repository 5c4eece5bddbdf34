// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What is told about a verdict of the compiler, and where.

#include "toolchain/hotas_ini.h"
#include "toolchain/tool_messages.h"

namespace zeph {

class Documents;

/// A file that was open when the compiler was started.
struct SentFile {
    QString path;
    QString name; ///< as its tab showed it
};

/// The pair that was open when the compiler was started: its verdict is about these files, whatever
/// is open by then.
struct SentFiles {
    SentFile joystick;
    SentFile macro;
};

/// The open pair.
SentFiles sentFiles(Documents &documents);

/// An error that the compiler reported, and what is needed to say where it is.
struct CompilerError {
    QString text; ///< begins with the code
    int line = 0; ///< 1-based; 0 = none
    SentFiles files;

    /// The file in which the error is, by its code.
    const SentFile &file() const;
};

/// The error of a verdict about these files.
CompilerError errorOf(const CompilerVerdict &verdict, const SentFiles &files);

/// What to do to tell a verdict; the members are in the order of doing.
struct VerdictTelling {
    QString panel; ///< panel 1; empty leaves it as it is
    std::optional<Box> box;
    bool showHelp = false; ///< in CompilerHelp
    int highlightLine = 0; ///< 1-based; 0 = none

    /// The verdict was an error, or none came.
    bool failed = false;
};

/// Decides how a verdict is told. The path is that of the compiled file; with statusBarOnly panel 1
/// alone tells what the compiler said.
VerdictTelling tellVerdict(const CompilerVerdict &verdict, CompilerTask task, const QString &path,
                           bool statusBarOnly);

/// The same for the download before a game. Only an error stops the game, so a missing verdict
/// counts as a good one.
VerdictTelling tellGameVerdict(const CompilerVerdict &verdict, bool statusBarOnly);

} // namespace zeph
