// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The nine styles that a pilot gives to parts of his files: six free ones and one for each position
// of the dogfight switch.

#include "platform/core/profile_file.h"
#include "platform/core/rich_text.h"

#include <array>

namespace zeph {

struct TextStyle {
    QString name; ///< also the menu's caption
    CharFormat format; ///< always with family, size and colour

    friend bool operator==(const TextStyle &, const TextStyle &) = default;
};

using TextStyles = std::array<TextStyle, 9>;

constexpr int smallestStyleSize = 4;
constexpr int largestStyleSize = 96;

TextStyles defaultTextStyles();
/// Reads the styles from the settings store (StyleName1, StyleFontName1 ... in section Colours). A
/// value that is missing or unusable gets its default; sizes become whole points within the limits.
TextStyles readTextStyles(const ProfileFile &store);
Expected<void, FileError> writeTextStyles(const ProfileFile &store, const TextStyles &styles);

/// The same keys in another section, for styles with defaults of their own.
TextStyles readTextStyles(const ProfileFile &store, const QString &section,
                          const TextStyles &defaults);
Expected<void, FileError> writeTextStyles(const ProfileFile &store, const QString &section,
                                          const TextStyles &styles);

} // namespace zeph
