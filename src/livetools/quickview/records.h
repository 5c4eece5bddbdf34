// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The digest of a joystick file, cut into its records.

#include "livetools/quickview/control_rows.h"
#include "text/digest.h"

#include <span>

namespace zeph {

struct DigestLine {
    QStringView text; ///< with the blank at its end
    int source = 0; ///< the 1-based line of the joystick file; 0 for what the digest adds
};

/// The lines of a digest without its last one, "END ". A line of the file that reads the same ends
/// nothing: END is also a key. The digest must outlive the lines.
std::vector<DigestLine> linesOf(const Digest &digest);

/// A control's record: the line with its name and the lines that continue it.
struct ControlRecord {
    int row = 0;
    std::span<const DigestLine> lines;

    /// The first line after the control's name and its blank.
    QStringView firstText() const;
    int firstSource() const { return lines.front().source; }
    int lastSource() const { return lines.back().source; }
};

/// The records of the controls that the table has, in file order; two of one control are both
/// there. The lines must outlive them.
std::vector<ControlRecord> controlRecords(std::span<const DigestLine> lines);

} // namespace zeph
