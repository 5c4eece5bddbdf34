// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/listen.h"

#include "livetools/board_keys.h"

#include <algorithm>
#include <array>
#include <span>

namespace zeph {

namespace {

struct NameRow {
    int number;
    QStringView name;
};

// The number pad with Num Lock off.
constexpr std::array padKeys = {
    NameRow{ Qt::Key_Insert, u"KP0" },   NameRow{ Qt::Key_End, u"KP1" },
    NameRow{ Qt::Key_Down, u"KP2" },     NameRow{ Qt::Key_PageDown, u"KP3" },
    NameRow{ Qt::Key_Left, u"KP4" },     NameRow{ Qt::Key_Clear, u"KP5" },
    NameRow{ Qt::Key_Right, u"KP6" },    NameRow{ Qt::Key_Home, u"KP7" },
    NameRow{ Qt::Key_Up, u"KP8" },       NameRow{ Qt::Key_PageUp, u"KP9" },
    NameRow{ Qt::Key_Delete, u"KP." },   NameRow{ Qt::Key_Enter, u"KPENT" },
    NameRow{ Qt::Key_Return, u"KPENT" },
};

// The symbols by which X servers tell the right modifiers from the left ones.
constexpr std::array rightModifiers = {
    NameRow{ 0xFFE2, u"RSHF" }, // Shift_R
    NameRow{ 0xFFE4, u"RCTL" }, // Control_R
    NameRow{ 0xFFEA, u"RALT" }, // Alt_R
    NameRow{ 0xFFE8, u"RALT" }, // Meta_R: Alt while Shift is held
    NameRow{ 0xFE03, u"RALT" }, // ISO_Level3_Shift: AltGr
};

// Virtual keys that are neither letters nor digits.
constexpr std::array virtualKeys = {
    NameRow{ 3, u"BRK" },     NameRow{ 8, u"BSP" },       NameRow{ 9, u"TAB" },
    NameRow{ 13, u"ENT" },    NameRow{ 16, u"LSHF" },     NameRow{ 17, u"LCTL" },
    NameRow{ 18, u"LALT" },   NameRow{ 19, u"BRK" },      NameRow{ 20, u"CAPS" },
    NameRow{ 27, u"ESC" },    NameRow{ 32, u"SPC" },      NameRow{ 33, u"PGUP" },
    NameRow{ 34, u"PGDN" },   NameRow{ 35, u"END" },      NameRow{ 36, u"HOME" },
    NameRow{ 37, u"LARROW" }, NameRow{ 38, u"UARROW" },   NameRow{ 39, u"RARROW" },
    NameRow{ 40, u"DARROW" }, NameRow{ 44, u"PRNTSCRN" }, NameRow{ 45, u"INS" },
    NameRow{ 46, u"DEL" },    NameRow{ 96, u"KP0" },      NameRow{ 97, u"KP1" },
    NameRow{ 98, u"KP2" },    NameRow{ 99, u"KP3" },      NameRow{ 100, u"KP4" },
    NameRow{ 101, u"KP5" },   NameRow{ 102, u"KP6" },     NameRow{ 103, u"KP7" },
    NameRow{ 104, u"KP8" },   NameRow{ 105, u"KP9" },     NameRow{ 106, u"KP*" },
    NameRow{ 107, u"KP+" },   NameRow{ 109, u"KP-" },     NameRow{ 110, u"KP." },
    NameRow{ 111, u"KP/" },   NameRow{ 112, u"F1" },      NameRow{ 113, u"F2" },
    NameRow{ 114, u"F3" },    NameRow{ 115, u"F4" },      NameRow{ 116, u"F5" },
    NameRow{ 117, u"F6" },    NameRow{ 118, u"F7" },      NameRow{ 119, u"F8" },
    NameRow{ 120, u"F9" },    NameRow{ 121, u"F10" },     NameRow{ 122, u"F11" },
    NameRow{ 123, u"F12" },   NameRow{ 144, u"NUML" },    NameRow{ 145, u"SCRLCK" },
    NameRow{ 186, u";" },     NameRow{ 187, u"=" },       NameRow{ 188, u"," },
    NameRow{ 189, u"-" },     NameRow{ 190, u"." },       NameRow{ 191, u"/" },
    NameRow{ 192, u"`" },     NameRow{ 219, u"[" },       NameRow{ 220, u"\\" },
    NameRow{ 221, u"]" },     NameRow{ 222, u"'" },
};

QString nameIn(std::span<const NameRow> rows, int number)
{
    const auto row = std::ranges::find(rows, number, &NameRow::number);
    return row == rows.end() ? QString() : row->name.toString();
}

QString nameOfVirtualKey(int code)
{
    const bool isLetterOrDigit = (code >= 'A' && code <= 'Z') || (code >= '0' && code <= '9');
    return isLetterOrDigit ? QString(QChar(char16_t(code))) : nameIn(virtualKeys, code);
}

/// The key's place as Linux counts; 0 when it is not known.
quint32 placeOf(const KeyStroke &stroke)
{
#ifdef Q_OS_WIN
    return placeOfWindowsScanCode(stroke.scanCode);
#else
    // X servers and Wayland count so many on.
    constexpr quint32 further = 8;
    return stroke.scanCode > further ? stroke.scanCode - further : 0;
#endif
}

/// The key by its name, for systems that tell no places.
QString nameOfStroke(const KeyStroke &stroke)
{
    QString name;
    if (stroke.modifiers & Qt::KeypadModifier) {
        name = nameIn(padKeys, stroke.key);
    }
    if (name.isEmpty()) {
        name = nameIn(rightModifiers, int(stroke.nativeCode));
    }
    if (name.isEmpty() && stroke.key == Qt::Key_AltGr) {
        name = u"RALT"_s;
    }
    return name.isEmpty() ? nameOfVirtualKey(virtualKeyOf(stroke)) : name;
}

} // namespace

std::optional<int> listenedKey(const KeyStroke &stroke)
{
    const BoardKey *key = boardKeyAt(placeOf(stroke));
    if (!key) {
        const QString name = nameOfStroke(stroke);
        key = name.isEmpty() ? nullptr : boardKeyNamed(name);
    }
    return key ? std::optional(key->index) : std::nullopt;
}

quint32 placeOfWindowsScanCode(quint32 scanCode)
{
    struct Row {
        quint32 scanCode;
        QStringView name;
    };
    // Both systems count the keys that old keyboards had alike; these are the others.
    constexpr std::array rows = {
        Row{ 0x045, u"BRK" },      Row{ 0x145, u"NUML" },   Row{ 0x11C, u"KPENT" },
        Row{ 0x11D, u"RCTL" },     Row{ 0x135, u"KP/" },    Row{ 0x136, u"RSHF" },
        Row{ 0x137, u"PRNTSCRN" }, Row{ 0x138, u"RALT" },   Row{ 0x146, u"BRK" },
        Row{ 0x147, u"HOME" },     Row{ 0x148, u"UARROW" }, Row{ 0x149, u"PGUP" },
        Row{ 0x14B, u"LARROW" },   Row{ 0x14D, u"RARROW" }, Row{ 0x14F, u"END" },
        Row{ 0x150, u"DARROW" },   Row{ 0x151, u"PGDN" },   Row{ 0x152, u"INS" },
        Row{ 0x153, u"DEL" },
    };
    const auto row = std::ranges::find(rows, scanCode, &Row::scanCode);
    if (row != rows.end()) {
        return boardKeyNamed(row->name)->place;
    }
    constexpr quint32 extended = 0x100;
    return scanCode < extended ? scanCode : 0;
}

} // namespace zeph
