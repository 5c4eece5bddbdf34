// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/document_settings.h"

#include <array>

namespace zeph {

namespace {

using S = DocumentSettings;

constexpr QStringView misc = u"Miscellaneous";

constexpr std::array rows = {
    row(misc, u"HighlightLineOnUndo", &S::HighlightLineOnUndo, false, SavedAs{ 24 }),
    row(misc, u"UndoMax", &S::UndoMax, 20, { 10, 30000 }, SavedAs{ 25 }),
    row(misc, u"UndoClearOnSave", &S::UndoClearOnSave, false, SavedAs{ 26 }),
    row(misc, u"LineNumbers", &S::LineNumbers, true, SavedAs{ 45 }),
    row(misc, u"CurrentLineMark", &S::CurrentLineMark, true, SavedAs{ 46 }),
    row(u"Unsupported", u"ForeignLanguageKBInputFix", &S::ForeignLanguageKBInputFix, false),
    row(u"Unsupported", u"ColourWithTyping", &S::ColourWithTyping, false),
};

} // namespace

DocumentSettings::DocumentSettings()
{
    setDefaults(*this);
}

std::span<const SettingRow<DocumentSettings>> DocumentSettings::rows()
{
    return zeph::rows;
}

} // namespace zeph
