// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Which settings Preferences edits, and through which field of which tab, for the window and for
// the tests that walk through it.
//
// A field that edits a setting has the name of the setting's key, in the page's form. Where several
// sections have a key of that name, the field's dynamic property "section" says which is meant.
// Only fields of other names, and those of lists, are in a table.

#include "settings/settings.h"

#include <QList>

class QWidget;

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

/// The ticks, lines and lists of a page that have the name of a setting's key; a line that the user
/// cannot edit is none.
QList<PreferencesKey> fieldsOf(const QWidget &page, PreferencesTab tab);

/// The keys of all tabs. Keys of the section Defaults are in HOTAS.ini, all others in the settings
/// store.
const QList<PreferencesKey> &preferencesKeys();

} // namespace zeph
