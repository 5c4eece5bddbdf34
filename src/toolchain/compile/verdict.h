// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// How a verdict of the compiler is told.

#include "toolchain/hotas_ini.h"
#include "toolchain/tool_messages.h"

namespace zeph {

/// What has to be done to tell a verdict, in this order.
struct VerdictTelling {
    QString panel; ///< panel 1; empty leaves it as it is
    std::optional<Box> box;
    bool showHelp = false; ///< the window that explains the error
    int highlightLine = 0; ///< 1-based; 0 = none

    /// No verdict came, or it was an error.
    bool failed = false;
};

/// Decides how a verdict is told. The path is that of the file that was compiled; with
/// statusBarOnly panel 1 alone tells what the compiler said.
VerdictTelling tellVerdict(const CompilerVerdict &verdict, CompilerTask task, const QString &path,
                           bool statusBarOnly);

/// As tellVerdict(), for the download before a game, which only an error stops: no verdict counts
/// as a good one.
VerdictTelling tellGameVerdict(const CompilerVerdict &verdict, bool statusBarOnly);

/// Whether the code in an error text says that the error lies in the macro file.
bool isMacroFileError(QStringView errorText);

} // namespace zeph
