// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// A joystick file's statements as the layout sheets read them. Line ends are '\n'.

#include "text/text_lines.h"

#include <array>

namespace zeph {

/// A joystick file, aligned and filtered for the sheets.
struct AnalysedFile {
    QString aligned; ///< the whole file (Temp/F2align2.txt)
    QString lines; ///< the lines that are kept, each with its line end (Temp/tmpJoy2.txt)
    /// The stretches of lines, each from the start of one statement to the start of the next.
    std::vector<LineRange> statements;
    /// What follows "USE HATn AS", with its blank; empty for a hat without such a line.
    std::array<QString, 4> hats;
    QString radio; ///< the same after "USE RADIOSWITCH AS"
    int mouseType = 0; ///< the number after "USE MTYPE A"; 0 without one
};

/// Aligns and filters a joystick file. No value for an empty text, which no sheet analyses.
std::optional<AnalysedFile> AnalyseAndExtract(QStringView joystickText);

/// Adds the first statement that starts with the characters of the search, on a line of its own,
/// to a box's text; nothing when there is none. In the statement, prefix and a blank replace the
/// search, unless the prefix is empty. The search starts with a statement's keyword.
void FillTextBox(QString &box, const AnalysedFile &file, QStringView search, QStringView prefix);

} // namespace zeph
