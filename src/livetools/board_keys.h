// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The keys that the language knows, as they are on Tumbo's board: a full keyboard, the mouse
// buttons and the positions of the POV.

#include "platform/core/base.h"

#include <QRect>
#include <QSize>

#include <span>

namespace zeph {

/// A key of the board.
struct BoardKey {
    int index; ///< 0 to 101 without 54, and 200 to 210
    QStringView name; ///< what the language calls it
    QStringView code; ///< two hexadecimal digits of the USB keyboard table; empty without a code
    QStringView shifted; ///< the symbol with Shift; empty for most keys
    QStringView label; ///< what the board writes on it where that is not the name
    QStringView spoken; ///< what a person calls it where that is not the name
    /// The place on the keyboard, as Linux counts ("evdev"); 0 for what is not on a keyboard.
    quint16 place;
    /// The cell on the board, in quarters of a usual key's width.
    struct {
        int x, y, width, height;
    } cell;

    QRect cellRect() const { return { cell.x, cell.y, cell.width, cell.height }; }
    /// What the board writes on it.
    QString caption(bool withShift) const;
    QString spokenName() const { return (spoken.isEmpty() ? name : spoken).toString(); }
};

/// All keys, by index.
std::span<const BoardKey> boardKeys();
/// The size of the board, in quarters of a usual key's width.
inline constexpr QSize boardCells(104, 25);

/// The key of that index; null when there is none.
const BoardKey *boardKey(int index);
/// The key with that name or shifted symbol, in any case; also for SHF, CTL and ALT, which are the
/// left keys. Null when there is none.
const BoardKey *boardKeyNamed(QStringView name);
/// The key with that code, in any case; null when there is none.
const BoardKey *boardKeyCoded(QStringView code);
/// The key at that place of the keyboard; null when there is none.
const BoardKey *boardKeyAt(quint32 place);

/// Shift, Ctrl and Alt, each held or not.
struct KeyToggles {
    bool shift = false;
    bool ctrl = false;
    bool alt = false;
};

/// A modifier as the language writes it without a side, which means the left key.
struct BoardModifier {
    bool KeyToggles::*toggle;
    QStringView word; ///< SHF, CTL or ALT
    QStringView key; ///< the left key's name
};
/// In the order in which they are written and pressed.
std::span<const BoardModifier> boardModifiers();
/// The modifiers that are held as the language writes them, each with a blank after it: "CTL SHF ".
QString GetModifier(const KeyToggles &toggles);

/// The key next to one in a direction (Qt::Key_Left, Key_Right, Key_Up, Key_Down), by their cells;
/// the key itself at the board's edge.
int neighbourOf(int index, Qt::Key direction);

} // namespace zeph
