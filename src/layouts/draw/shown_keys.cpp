// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/draw/shown_keys.h"

namespace zeph {

RichText ShownKeys::shown(const RichText &text, MacroNames way) const
{
    if (way == MacroNames::Names) {
        return text;
    }
    RichText result = RichText::plain({});
    qsizetype copied = 0;
    for (const auto &[place, keys] : m_keys.in(text.text)) {
        const auto [from, length] = place;
        const QString name = text.text.mid(from, length);
        const bool isBoth = way == MacroNames::NamesAndKeys;
        RichText shown = text.mid(from, length);
        shown.text = isBoth ? name + u" \u2039"_s + keys + u'\u203a' : keys;
        shown.characters = { { shown.text.size(), text.formatAt(from) } };
        result.append(text.mid(copied, from - copied));
        result.append(shown);
        copied = from + length;
    }
    if (copied == 0) {
        return text;
    }
    result.append(text.mid(copied, text.text.size() - copied));
    result.normalise();
    return result;
}

} // namespace zeph
