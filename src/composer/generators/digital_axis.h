// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "composer/generators/bands.h"
#include "language/words.h"

namespace zeph {

/// The lists of the page.
inline constexpr std::array digitalAxes = [] {
    using language::operator""_w;
    return std::array{ u"JOYX"_w, u"JOYY"_w, u"THR"_w,  u"ANT"_w, u"RNG"_w,
                       u"RDDR"_w, u"LBRK"_w, u"RBRK"_w, u"MIX"_w, u"MIY"_w };
}();
/// The first one is no modifier.
inline constexpr std::array digitalSlashes = [] {
    using language::operator""_w;
    return std::array{ QStringView(u"none"), u"/U"_w, u"/M"_w, u"/D"_w, u"/I"_w, u"/O"_w };
}();

/// The fields of a type's tab.
struct DigitalAxisFields {
    /// 1 to 6.
    int type = 1;
    QString axis = {};
    /// The second half of a statement with modifiers has no axis.
    bool withoutAxis = false;
    /// Index in digitalSlashes.
    int slash = 0;
    /// Not for types 3 and 4, which take none.
    bool forceMacros = false;
    /// Types 1 and 2: how many; type 4: the pulse rate.
    QString count = {};
    /// The tab's boxes in their order; type 2 has one, types 1, 3 and 4 have three. Of type 1 the
    /// last one is the centre, which may be empty.
    std::array<QString, 3> keys = {};
    /// Types 5 and 6.
    Bands bands{ 5 };

    bool operator==(const DigitalAxisFields &) const = default;
};

/// The statement "AXIS /SLASH type ..." or a half of it. Bands without a count are refused as
/// missing text.
Generated generateDigitalAxis(const DigitalAxisFields &fields);

/// The fields of a statement, or of one of its halves (statementHalves). Each box gets one key,
/// macro, call or group in brackets, the last one the rest; "^" leaves the box of a band empty. No
/// value for what the page cannot write: two halves, two modifiers, borders that are no whole
/// percents.
std::optional<DigitalAxisFields> readDigitalAxis(QStringView statement);

/// The caption of the check box for a statement without an axis.
QString withoutAxisCaption(const QString &axis);

/// The labels of a tab's key boxes. Of types 3 and 4 the second one is that of the last box.
struct DirectionLabels {
    QString first = {};
    /// Empty for type 2, which has one box.
    QString second = {};
};
/// Empty labels for type 5 and for an unknown axis.
DirectionLabels directionLabels(int type, QStringView axis);

/// The text of a key box after a mouse button was pressed in it with Shift.
struct MouseShortcut {
    QString text = {};
    /// 0-based; the word to type the number over.
    qsizetype selectionStart = 0;
    qsizetype selectionLength = 0;
};
/// Appends MSX for the left button, MSY for the right one.
MouseShortcut withMouseShortcut(const QString &text, bool isRightButton);

} // namespace zeph
