// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// A box's text with the keys that its macros stand for.

#include "layouts/files/layouts_settings.h"
#include "platform/core/rich_text.h"
#include "text/macro_keys.h"

namespace zeph {

/// The keys of a file's macros, for many boxes.
class ShownKeys
{
public:
    explicit ShownKeys(const MacroTable &table) : m_keys(table) { }

    /// The text with its macros shown in that way; both together are the name and then, between ‹
    /// and ›, its keys. Replaced characters look like the name that they replace. Comments
    /// stay, and so do words that are no macro.
    RichText shown(const RichText &text, MacroNames way) const;

private:
    MacroKeys m_keys;
};

} // namespace zeph
