// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "settings/setting_row.h"

namespace zeph {

/// How the documents look and are undone.
struct DocumentSettings {
    /// The defaults.
    DocumentSettings();

    static std::span<const SettingRow<DocumentSettings>> rows();

    bool HighlightLineOnUndo;
    int UndoMax;
    bool UndoClearOnSave;
    bool LineNumbers;
    bool CurrentLineMark;
    bool ForeignLanguageKBInputFix;
    bool ColourWithTyping;
};

} // namespace zeph
