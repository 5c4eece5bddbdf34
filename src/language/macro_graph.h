// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "language/model.h"

namespace zeph::language {

/// The use of a macro in the body of one that it calls itself, directly or through others.
struct MacroCycle {
    /// Index of the macro whose body holds the use, and index of the use's item.
    int macro = 0;
    int item = 0;
};

struct MacroOrder {
    /// Indices of all macros, each after those that it uses.
    QList<int> order;
    QList<MacroCycle> cycles;
};

/// Orders the macros by use. A word that is both a macro and a key counts as the key: a macro named
/// like the key that it presses does not call itself.
MacroOrder orderMacros(const MacroFile &macro);

/// Estimates the bytes that the pair takes in the Cougar's memory, where each use of a macro holds
/// the whole macro. At most one thousand million.
qint64 compiledSize(const FilePair &pair);

/// That size as a percentage of the memory, rounded up: 0 for nothing, 100 only when the memory is
/// full.
int memoryPercent(qint64 bytes);

} // namespace zeph::language
