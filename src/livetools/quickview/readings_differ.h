// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The table is made by plain rules over lines. In two places these read a statement otherwise than
// the language does: when the statement's first line does not begin with /U, and when one line has
// several modes. The table stays as pilots know it, and the window marks these cells.

#include "language/model.h"
#include "livetools/quickview/assignments.h"

namespace zeph {

struct ReadingDifference {
    CellPlace cell;
    /// What the control does there by the language, in one line; empty when it does nothing.
    QString languageReads;

    friend bool operator==(const ReadingDifference &, const ReadingDifference &) = default;
};

/// The cells that differ for one of these two reasons, row by row. Table, digest and model must be
/// of one text.
std::vector<ReadingDifference> readingsDiffer(const Assignments &table, const Digest &digest,
                                              const language::JoystickFile &model);

/// What the mark's tool tip says.
QString differenceTip(const ReadingDifference &difference);

} // namespace zeph
