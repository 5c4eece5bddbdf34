// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The settings that Preferences edits, each with its tab and field. The window and the tests are
// driven by this table.

#include "settings/settings.h"

namespace zeph {

/// The tabs, from left to right.
enum class PreferencesTab {
    FileLocations,
    ColoursFonts,
    Apps,
    Favourites,
    Games,
    OpenSaveUndo,
    Misc,
    DefaultOptions,
    Zeph
};

enum class FieldKind {
    Tick, ///< 0 or 1
    Number, ///< a line of text, read with takenNumber()
    Text, ///< a line of text
    Choice, ///< an entry of a list, stored by its place
    Entry, ///< an entry of a list, stored by its text
    Amount, ///< a spin box, which keeps to the range
    Colour, ///< a line of the list of colours, changed in the colour dialog
    MakeDefault ///< a button that takes the selected favourite's name
};

struct PreferencesKey {
    PreferencesTab tab;
    QStringView section;
    QStringView key;
    FieldKind kind;
    QStringView control; ///< object name of the field
    int first = 0; ///< what a choice's first entry is stored as; a colour's line in its list
    /// The setting; no value for keys of the user's lists.
    std::optional<SettingRef> setting = {};
};

/// Keys of the section Defaults belong to HOTAS.ini, all others to the settings store.
std::span<const PreferencesKey> preferencesKeys();

} // namespace zeph
