// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The keys that the macros of a text stand for.

#include "text/macro_table.h"
#include "text/text_lines.h"

#include <QHash>

namespace zeph {

/// A word of a text that is a macro. Start and length are 0-based characters.
struct MacroWord {
    LineRange place;
    /// What the macro sends, with the macros in it as keys too.
    QString keys;
};

/// The words of a text that can be a key or a macro: what stands between blanks and brackets,
/// outside of comments.
std::vector<LineRange> bodyWords(QStringView text);

/// The keys of a file's macros, for many texts. Macros within a macro's keys are keys too; one that
/// leads back to itself stays a name there. Names count in any case.
class MacroKeys
{
public:
    MacroKeys() = default;
    explicit MacroKeys(const MacroTable &table);

    /// The macros of a text, in its order.
    std::vector<MacroWord> in(QStringView text) const;
    /// The text with the keys in the place of the macros' names.
    QString shownIn(QStringView text) const;
    /// For each macro, by its name in lower case, its keys as the file has them, without comment.
    const QHash<QString, QString> &own() const { return m_keys; }

private:
    QString expanded(const QString &keys, QStringList &within) const;

    QHash<QString, QString> m_keys;
};

} // namespace zeph
