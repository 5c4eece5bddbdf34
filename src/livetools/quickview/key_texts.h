// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What the labels of Quick View read.

#include "livetools/quickview/assignments.h"
#include "text/macro_keys.h"

namespace zeph {

struct LabelOptions {
    bool Underscores = true; ///< "_" is shown as a blank
    bool RotaryStrip = true; ///< the numbers before the macros of RNG and ANT are left out

    friend bool operator==(const LabelOptions &, const LabelOptions &) = default;
};

/// The text of a row's label for a cell's text. With macros it shows their keys, in which a "_" is
/// a key and stays.
QString labelText(int row, const QString &cell, const LabelOptions &options,
                  const MacroKeys *keys = nullptr);

/// What the label's tool tip says: the statement as written and, on a second line where it differs,
/// with its macros' keys.
QString labelTip(const QString &cell, const MacroKeys &keys);

/// How many characters of a rotary's statement stand before its macros.
qsizetype rotaryNumbersLength(QStringView text);

} // namespace zeph
