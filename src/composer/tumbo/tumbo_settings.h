// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "settings/setting_row.h"

namespace zeph {

/// Tumbo, the virtual keyboard.
struct TumboSettings {
    /// The defaults.
    TumboSettings();

    static std::span<const SettingRow<TumboSettings>> rows();

    /// A line end follows what is inserted into a document.
    bool AddTumboCR;
    /// Codes go with the brackets of KD, KU or USB around them.
    bool AddRawBrackets;
    /// A shifted symbol is written as SHF and the key, not as the symbol.
    bool UseShfKey;
    /// The panel with the pictures of the controls is shown.
    bool TumboControlBox;
    /// The boxes with the key's codes are shown.
    bool ViewUSBcodes;
    /// The label for beginners is hidden.
    bool HideBasicHelp;
    /// A click on a control never looks for its statement first.
    bool AlwaysInsert;
    double TumboTop; ///< twips
    double TumboLeft; ///< twips
};

} // namespace zeph
