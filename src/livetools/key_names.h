// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What keys are called: the key table, the names with their modifiers, and the lines that tell of
// a key going down or up.

#include "platform/core/base.h"

#include <QList>

namespace zeph {

/// One entry of the key table.
struct KeyName {
    qint16 code = 0; ///< the virtual key; 16 bits signed, as the file is read
    QString name;

    friend bool operator==(const KeyName &, const KeyName &) = default;
};

using KeyTable = QList<KeyName>;

/// The table that the lines "<code>,<name>" of KeyCodes.txt make, behind an entry 0 that no key
/// has. A line without a comma, or whose code does not fit 16 bits, is skipped.
KeyTable keyTableFrom(QStringView file);
/// The name of a code: the last entry with it gives the name; empty when there is none.
QString nameOf(const KeyTable &table, int keycode);

/// What WhichKey() found.
struct KeyText {
    QString text; ///< empty when the key is shown by the character that it types, or not at all
    bool suppressesPress = false; ///< the character that comes with the key is not shown

    friend bool operator==(const KeyText &, const KeyText &) = default;
};
/// Names a key under a shift state (bits of ShiftBit). Ctrl and Alt themselves have no name.
KeyText WhichKey(const KeyTable &table, int keycode, int shift);

enum class KeyDirection { Down, Up };
/// "Down: " or "Up: " and what the event list calls the key; a code that is not in the table stands
/// as its number. Without a line end.
QString eventLine(const KeyTable &table, KeyDirection direction, int keycode);

} // namespace zeph
