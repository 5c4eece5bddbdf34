// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Which controls send a key or a macro, and in which combinations.

#include "livetools/quickview/assignments.h"
#include "text/macro_keys.h"

#include <QHash>
#include <QSet>

namespace zeph {

/// A key with the modifier keys before it, or a macro's name. Everything is in lower case. A sign
/// that is typed with Shift is its key: "!" is "SHF 1".
struct SentKey {
    QStringList modifiers; ///< in alphabetical order
    QString key; ///< empty for modifiers without a key, as in KD(SHF)
};

/// What a body sends, in its order: no slash modifiers, no words with brackets, and of these
/// brackets' contents only those of KD, KU and USB. Macros' names stay names.
std::vector<SentKey> sentKeys(QStringView body);

/// Answers what sends a key or macro, for many questions. Table and keys must outlive it.
class Senders
{
public:
    Senders(const Assignments &table, const MacroKeys &keys);

    /// The cells that send it, directly or through macros, row by row. Sought is a macro's name or
    /// a key with its modifiers, "SHF a", in any case; SHF also finds LSHF and RSHF, and alone
    /// whatever key is sent with it. Of several keys a cell must send each. What a USE line gives
    /// is found by its whole text.
    std::vector<CellPlace> of(const QString &sought) const;

private:
    struct Sent {
        CellPlace place;
        std::vector<SentKey> keys;
    };

    QSet<QString> macrosThatSend(const SentKey &sought) const;
    bool isMacro(const QString &name) const { return m_macros.contains(name); }
    bool isSought(const SentKey &sought, const SentKey &sent) const;

    const Assignments &m_table;
    std::vector<Sent> m_cells;
    QHash<QString, std::vector<SentKey>> m_macros; ///< what each macro's own keys are
    QHash<QString, QStringList> m_users; ///< the macros that use a macro
};

} // namespace zeph
