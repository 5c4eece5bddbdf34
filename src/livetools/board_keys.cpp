// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/board_keys.h"

#include "language/words.h"

#include <algorithm>
#include <array>
#include <limits>

namespace zeph {

namespace {

using language::operator""_w;

// clang-format off
constexpr std::array keys = {
    // The quarters of a cell are from the left, from the top, its width and its height.
    BoardKey{ 0, u"0", u"27", u")", {}, {}, 11, { 40, 5, 4, 4 } },
    BoardKey{ 1, u"1", u"1E", u"!", {}, {}, 2, { 4, 5, 4, 4 } },
    BoardKey{ 2, u"2", u"1F", u"@", {}, {}, 3, { 8, 5, 4, 4 } },
    BoardKey{ 3, u"3", u"20", u"#", {}, {}, 4, { 12, 5, 4, 4 } },
    BoardKey{ 4, u"4", u"21", u"$", {}, {}, 5, { 16, 5, 4, 4 } },
    BoardKey{ 5, u"5", u"22", u"%", {}, {}, 6, { 20, 5, 4, 4 } },
    BoardKey{ 6, u"6", u"23", u"^", {}, {}, 7, { 24, 5, 4, 4 } },
    BoardKey{ 7, u"7", u"24", u"&", {}, {}, 8, { 28, 5, 4, 4 } },
    BoardKey{ 8, u"8", u"25", u"*", {}, {}, 9, { 32, 5, 4, 4 } },
    BoardKey{ 9, u"9", u"26", u"(", {}, {}, 10, { 36, 5, 4, 4 } },
    BoardKey{ 10, u"KP0", u"62", {}, u"0", u"Number pad 0", 82, { 74, 21, 8, 4 } },
    BoardKey{ 11, u"KP1", u"59", {}, u"1", u"Number pad 1", 79, { 74, 17, 4, 4 } },
    BoardKey{ 12, u"KP2", u"5A", {}, u"2", u"Number pad 2", 80, { 78, 17, 4, 4 } },
    BoardKey{ 13, u"KP3", u"5B", {}, u"3", u"Number pad 3", 81, { 82, 17, 4, 4 } },
    BoardKey{ 14, u"KP4", u"5C", {}, u"4", u"Number pad 4", 75, { 74, 13, 4, 4 } },
    BoardKey{ 15, u"KP5", u"5D", {}, u"5", u"Number pad 5", 76, { 78, 13, 4, 4 } },
    BoardKey{ 16, u"KP6", u"5E", {}, u"6", u"Number pad 6", 77, { 82, 13, 4, 4 } },
    BoardKey{ 17, u"KP7", u"5F", {}, u"7", u"Number pad 7", 71, { 74, 9, 4, 4 } },
    BoardKey{ 18, u"KP8", u"60", {}, u"8", u"Number pad 8", 72, { 78, 9, 4, 4 } },
    BoardKey{ 19, u"KP9", u"61", {}, u"9", u"Number pad 9", 73, { 82, 9, 4, 4 } },
    BoardKey{ 20, u"a", u"04", {}, {}, {}, 30, { 7, 13, 4, 4 } },
    BoardKey{ 21, u"b", u"05", {}, {}, {}, 48, { 25, 17, 4, 4 } },
    BoardKey{ 22, u"c", u"06", {}, {}, {}, 46, { 17, 17, 4, 4 } },
    BoardKey{ 23, u"d", u"07", {}, {}, {}, 32, { 15, 13, 4, 4 } },
    BoardKey{ 24, u"e", u"08", {}, {}, {}, 18, { 14, 9, 4, 4 } },
    BoardKey{ 25, u"f", u"09", {}, {}, {}, 33, { 19, 13, 4, 4 } },
    BoardKey{ 26, u"g", u"0A", {}, {}, {}, 34, { 23, 13, 4, 4 } },
    BoardKey{ 27, u"h", u"0B", {}, {}, {}, 35, { 27, 13, 4, 4 } },
    BoardKey{ 28, u"i", u"0C", {}, {}, {}, 23, { 34, 9, 4, 4 } },
    BoardKey{ 29, u"j", u"0D", {}, {}, {}, 36, { 31, 13, 4, 4 } },
    BoardKey{ 30, u"k", u"0E", {}, {}, {}, 37, { 35, 13, 4, 4 } },
    BoardKey{ 31, u"l", u"0F", {}, {}, {}, 38, { 39, 13, 4, 4 } },
    BoardKey{ 32, u"m", u"10", {}, {}, {}, 50, { 33, 17, 4, 4 } },
    BoardKey{ 33, u"n", u"11", {}, {}, {}, 49, { 29, 17, 4, 4 } },
    BoardKey{ 34, u"o", u"12", {}, {}, {}, 24, { 38, 9, 4, 4 } },
    BoardKey{ 35, u"p", u"13", {}, {}, {}, 25, { 42, 9, 4, 4 } },
    BoardKey{ 36, u"q", u"14", {}, {}, {}, 16, { 6, 9, 4, 4 } },
    BoardKey{ 37, u"r", u"15", {}, {}, {}, 19, { 18, 9, 4, 4 } },
    BoardKey{ 38, u"s", u"16", {}, {}, {}, 31, { 11, 13, 4, 4 } },
    BoardKey{ 39, u"t", u"17", {}, {}, {}, 20, { 22, 9, 4, 4 } },
    BoardKey{ 40, u"u", u"18", {}, {}, {}, 22, { 30, 9, 4, 4 } },
    BoardKey{ 41, u"v", u"19", {}, {}, {}, 47, { 21, 17, 4, 4 } },
    BoardKey{ 42, u"w", u"1A", {}, {}, {}, 17, { 10, 9, 4, 4 } },
    BoardKey{ 43, u"x", u"1B", {}, {}, {}, 45, { 13, 17, 4, 4 } },
    BoardKey{ 44, u"y", u"1C", {}, {}, {}, 21, { 26, 9, 4, 4 } },
    BoardKey{ 45, u"z", u"1D", {}, {}, {}, 44, { 9, 17, 4, 4 } },
    BoardKey{ 46, u"`", u"35", u"~", {}, u"Grave accent", 41, { 0, 5, 4, 4 } },
    BoardKey{ 47, u"-", u"2D", u"_", {}, u"Minus", 12, { 44, 5, 4, 4 } },
    BoardKey{ 48, u"=", u"2E", u"+", {}, u"Equals", 13, { 48, 5, 4, 4 } },
    BoardKey{ 49, u"\\", u"31", u"|", {}, u"Backslash", 43, { 54, 9, 6, 4 } },
    BoardKey{ 50, u"[", u"2F", u"{", {}, u"Left square bracket", 26, { 46, 9, 4, 4 } },
    BoardKey{ 51, u"]", u"30", u"}", {}, u"Right square bracket", 27, { 50, 9, 4, 4 } },
    BoardKey{ 52, u";", u"33", u":", {}, u"Semicolon", 39, { 43, 13, 4, 4 } },
    BoardKey{ 53, u"'", u"34", u"\"", {}, u"Apostrophe", 40, { 47, 13, 4, 4 } },
    BoardKey{ 55, u",", u"36", u"<", {}, u"Comma", 51, { 37, 17, 4, 4 } },
    BoardKey{ 56, u".", u"37", u">", {}, u"Full stop", 52, { 41, 17, 4, 4 } },
    BoardKey{ 57, u"/", u"38", u"?", {}, u"Slash", 53, { 45, 17, 4, 4 } },
    BoardKey{ 58, u"LSHF", u"E1", {}, u"Shift", u"Left Shift", 42, { 0, 17, 9, 4 } },
    BoardKey{ 59, u"RSHF", u"E5", {}, u"Shift", u"Right Shift", 54, { 49, 17, 11, 4 } },
    BoardKey{ 60, u"LCTL", u"E0", {}, u"Ctrl", u"Left Ctrl", 29, { 0, 21, 6, 4 } },
    BoardKey{ 61, u"RCTL", u"E4", {}, u"Ctrl", u"Right Ctrl", 97, { 54, 21, 6, 4 } },
    BoardKey{ 62, u"LALT", u"E2", {}, u"Alt", u"Left Alt", 56, { 10, 21, 6, 4 } },
    BoardKey{ 63, u"RALT", u"E6", {}, u"Alt", u"Right Alt", 100, { 44, 21, 6, 4 } },
    BoardKey{ 64, u"ENT", u"28", {}, u"Enter", u"Enter", 28, { 51, 13, 9, 4 } },
    BoardKey{ 65, u"KPENT", u"58", {}, u"Ent", u"Number pad Enter", 96, { 86, 17, 4, 8 } },
    BoardKey{ 66, u"KP.", u"63", {}, u".", u"Number pad point", 83, { 82, 21, 4, 4 } },
    BoardKey{ 67, u"KP+", u"57", {}, u"+", u"Number pad plus", 78, { 86, 9, 4, 8 } },
    BoardKey{ 68, u"KP-", u"56", {}, u"-", u"Number pad minus", 74, { 86, 5, 4, 4 } },
    BoardKey{ 69, u"KP*", u"55", {}, u"*", u"Number pad star", 55, { 82, 5, 4, 4 } },
    BoardKey{ 70, u"KP/", u"54", {}, u"/", u"Number pad slash", 98, { 78, 5, 4, 4 } },
    BoardKey{ 71, u"F1", u"3A", {}, {}, {}, 59, { 8, 0, 4, 4 } },
    BoardKey{ 72, u"F2", u"3B", {}, {}, {}, 60, { 12, 0, 4, 4 } },
    BoardKey{ 73, u"F3", u"3C", {}, {}, {}, 61, { 16, 0, 4, 4 } },
    BoardKey{ 74, u"F4", u"3D", {}, {}, {}, 62, { 20, 0, 4, 4 } },
    BoardKey{ 75, u"F5", u"3E", {}, {}, {}, 63, { 26, 0, 4, 4 } },
    BoardKey{ 76, u"F6", u"3F", {}, {}, {}, 64, { 30, 0, 4, 4 } },
    BoardKey{ 77, u"F7", u"40", {}, {}, {}, 65, { 34, 0, 4, 4 } },
    BoardKey{ 78, u"F8", u"41", {}, {}, {}, 66, { 38, 0, 4, 4 } },
    BoardKey{ 79, u"F9", u"42", {}, {}, {}, 67, { 44, 0, 4, 4 } },
    BoardKey{ 80, u"F10", u"43", {}, {}, {}, 68, { 48, 0, 4, 4 } },
    BoardKey{ 81, u"F11", u"44", {}, {}, {}, 87, { 52, 0, 4, 4 } },
    BoardKey{ 82, u"F12", u"45", {}, {}, {}, 88, { 56, 0, 4, 4 } },
    BoardKey{ 83, u"ESC", u"29", {}, u"Esc", u"Escape", 1, { 0, 0, 4, 4 } },
    BoardKey{ 84, u"INS", u"49", {}, u"Ins", u"Insert", 110, { 61, 5, 4, 4 } },
    BoardKey{ 85, u"HOME", u"4A", {}, u"Home", u"Home", 102, { 65, 5, 4, 4 } },
    BoardKey{ 86, u"PGUP", u"4B", {}, u"PgUp", u"Page Up", 104, { 69, 5, 4, 4 } },
    BoardKey{ 87, u"DEL", u"4C", {}, u"Del", u"Delete", 111, { 61, 9, 4, 4 } },
    BoardKey{ 88, u"END", u"4D", {}, u"End", u"End", 107, { 65, 9, 4, 4 } },
    BoardKey{ 89, u"PGDN", u"4E", {}, u"PgDn", u"Page Down", 109, { 69, 9, 4, 4 } },
    BoardKey{ 90, u"TAB", u"2B", {}, u"Tab", u"Tab", 15, { 0, 9, 6, 4 } },
    BoardKey{ 91, u"CAPS", u"39", {}, u"Caps", u"Caps Lock", 58, { 0, 13, 7, 4 } },
    BoardKey{ 92, u"SPC", u"2C", {}, u"Space", u"Space", 57, { 16, 21, 28, 4 } },
    BoardKey{ 93, u"NUML", u"53", {}, u"Num", u"Num Lock", 69, { 74, 5, 4, 4 } },
    BoardKey{ 94, u"UARROW", u"52", {}, u"\u2191", u"Up arrow", 103, { 65, 17, 4, 4 } },
    BoardKey{ 95, u"DARROW", u"51", {}, u"\u2193", u"Down arrow", 108, { 65, 21, 4, 4 } },
    BoardKey{ 96, u"LARROW", u"50", {}, u"\u2190", u"Left arrow", 105, { 61, 21, 4, 4 } },
    BoardKey{ 97, u"RARROW", u"4F", {}, u"\u2192", u"Right arrow", 106, { 69, 21, 4, 4 } },
    BoardKey{ 98, u"SCRLCK", u"47", {}, u"ScLk", u"Scroll Lock", 70, { 65, 0, 4, 4 } },
    BoardKey{ 99, u"BRK", u"48", {}, u"Brk", u"Pause and Break", 119, { 69, 0, 4, 4 } },
    BoardKey{ 100, u"PRNTSCRN", u"46", {}, u"PrSc", u"Print Screen", 99, { 61, 0, 4, 4 } },
    BoardKey{ 101, u"BSP", u"2A", {}, u"Back", u"Backspace", 14, { 52, 5, 8, 4 } },
    BoardKey{ 200, u"MOUSE_LB", {}, {}, u"L", u"Left mouse button", 0, { 92, 0, 4, 6 } },
    BoardKey{ 201, u"MOUSE_MB", {}, {}, u"M", u"Middle mouse button", 0, { 96, 0, 4, 6 } },
    BoardKey{ 202, u"MOUSE_RB", {}, {}, u"R", u"Right mouse button", 0, { 100, 0, 4, 6 } },
    BoardKey{ 203, u"POVU", {}, {}, u"\u2191", u"POV up", 0, { 96, 13, 4, 4 } },
    BoardKey{ 204, u"POVUR", {}, {}, u"\u2197", u"POV up and right", 0, { 100, 13, 4, 4 } },
    BoardKey{ 205, u"POVR", {}, {}, u"\u2192", u"POV right", 0, { 100, 17, 4, 4 } },
    BoardKey{ 206, u"POVDR", {}, {}, u"\u2198", u"POV down and right", 0, { 100, 21, 4, 4 } },
    BoardKey{ 207, u"POVD", {}, {}, u"\u2193", u"POV down", 0, { 96, 21, 4, 4 } },
    BoardKey{ 208, u"POVDL", {}, {}, u"\u2199", u"POV down and left", 0, { 92, 21, 4, 4 } },
    BoardKey{ 209, u"POVL", {}, {}, u"\u2190", u"POV left", 0, { 92, 17, 4, 4 } },
    BoardKey{ 210, u"POVUL", {}, {}, u"\u2196", u"POV up and left", 0, { 92, 13, 4, 4 } },
};
// clang-format on

constexpr std::array modifiers = {
    BoardModifier{ &KeyToggles::ctrl, u"CTL"_w, u"LCTL"_w },
    BoardModifier{ &KeyToggles::alt, u"ALT"_w, u"LALT"_w },
    BoardModifier{ &KeyToggles::shift, u"SHF"_w, u"LSHF"_w },
};

bool isSame(QStringView one, QStringView other)
{
    return one.compare(other, Qt::CaseInsensitive) == 0;
}

template <class Fits> const BoardKey *keyThat(Fits fits)
{
    const auto found = std::ranges::find_if(keys, fits);
    return found == keys.end() ? nullptr : &*found;
}

/// Half a quarter is the unit here, so that the centre of a cell is a whole number.
QPoint centreOf(const BoardKey &key)
{
    return { 2 * key.cell.x + key.cell.width, 2 * key.cell.y + key.cell.height };
}

} // namespace

QString BoardKey::caption(bool withShift) const
{
    if (withShift && !shifted.isEmpty()) {
        return shifted.toString();
    }
    return (label.isEmpty() ? name : label).toString();
}

std::span<const BoardKey> boardKeys()
{
    return keys;
}

const BoardKey *boardKey(int index)
{
    return keyThat([index](const BoardKey &key) { return key.index == index; });
}

const BoardKey *boardKeyNamed(QStringView name)
{
    for (const BoardModifier &each : modifiers) {
        if (isSame(each.word, name)) {
            name = each.key;
        }
    }
    return keyThat([name](const BoardKey &key) {
        return isSame(key.name, name) || (!key.shifted.isEmpty() && key.shifted == name);
    });
}

const BoardKey *boardKeyCoded(QStringView code)
{
    return keyThat(
        [code](const BoardKey &key) { return !key.code.isEmpty() && isSame(key.code, code); });
}

const BoardKey *boardKeyAt(quint32 place)
{
    return keyThat([place](const BoardKey &key) { return key.place != 0 && key.place == place; });
}

std::span<const BoardModifier> boardModifiers()
{
    return modifiers;
}

QString GetModifier(const KeyToggles &toggles)
{
    QString text;
    for (const BoardModifier &each : modifiers) {
        if (toggles.*each.toggle) {
            text += each.word.toString() + u' ';
        }
    }
    return text;
}

int neighbourOf(int index, Qt::Key direction)
{
    const BoardKey *from = boardKey(index);
    const bool isSideways = direction == Qt::Key_Left || direction == Qt::Key_Right;
    const int sign = direction == Qt::Key_Left || direction == Qt::Key_Up ? -1 : 1;
    int best = index;
    int least = std::numeric_limits<int>::max();
    for (const BoardKey &key : keys) {
        const QPoint way = centreOf(key) - centreOf(*from);
        const int along = sign * (isSideways ? way.x() : way.y());
        const int aside = std::abs(isSideways ? way.y() : way.x());
        // A key in the same row, or else nearly above or below, comes before one that is nearer.
        const int far = along + 4 * aside;
        if (along > 0 && along >= aside && far < least) {
            least = far;
            best = key.index;
        }
    }
    return best;
}

} // namespace zeph
