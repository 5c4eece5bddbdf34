// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The names of keys: the key table, names with their modifiers, and the lines of the event list.

#include "platform/context.h"
#include "platform/core/base.h"

#include <QList>
#include <optional>

namespace zeph {

/// One entry of the key table.
struct KeyName {
    qint16 code = 0; ///< the virtual key, as signed 16 bits
    QString name;

    friend bool operator==(const KeyName &, const KeyName &) = default;
};

using KeyTable = QList<KeyName>;

/// Makes the table from the lines "<code>,<name>" of KeyCodes.txt. Its first entry has a code that
/// no key has. A line without a comma, or whose code does not fit 16 bits, is skipped.
KeyTable keyTableFrom(QStringView file);
/// The name of a code, from the last entry that has it; empty when there is none.
QString nameOf(const KeyTable &table, int keycode);

/// What WhichKey() found.
struct KeyText {
    QString text; ///< empty when the typed character is shown instead, or nothing
    bool suppressesPress = false; ///< the character that comes with the key is not shown

    friend bool operator==(const KeyText &, const KeyText &) = default;
};
/// Names a key under a shift state (bits of ShiftBit). Ctrl and Alt themselves have no name.
KeyText WhichKey(const KeyTable &table, int keycode, int shift);

enum class KeyDirection { Down, Up };
/// The event list's line for a key: "Down: " or "Up: " and its name, or its code when the table has
/// none. Without a line end.
QString eventLine(const KeyTable &table, KeyDirection direction, int keycode);

/// Reads KeyCodes.txt in the program's folder. A missing file is first restored from its copy in
/// the Info folder, which is told. No value, also told, when that fails or the file cannot be read.
std::optional<KeyTable> readKeyCodes(const Context &context);

} // namespace zeph
