// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "language/model.h"

namespace zeph::language {

/// A macro's use that leads back to the macro it stands in, on the way over others or at once.
struct MacroCycle {
    /// Index of the macro in which the use stands, and the use's item.
    int macro = 0;
    int item = 0;
};

struct MacroOrder {
    /// All macros, each behind those that it uses.
    QList<int> order;
    QList<MacroCycle> cycles;
};

/// Orders the macros by use. A word that is a macro and a key is taken for the key: a macro that
/// is named like the key it presses is no circle.
MacroOrder orderMacros(const MacroFile &macro);

/// How many bytes the pair takes in the Cougar's memory, roughly: macros are written out wherever
/// they are used. Never more than one thousand million.
qint64 compiledSize(const FilePair &pair);

/// That size as a percentage of the memory, 0 to 100.
int memoryPercent(qint64 bytes);

} // namespace zeph::language
