// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// A statement of the file, parted by the language's model: what the readers that fill a page's
// fields walk over.

#include "language/reporter.h"

#include <memory>

namespace zeph {

/// One statement and its parts, which are the items of its body outside all brackets. Comments are
/// left out and its lines joined. Part indices are 0-based.
class PartedStatement
{
public:
    /// No value unless the text is one statement, or a part of one without its keyword, with all
    /// brackets closed.
    static std::optional<PartedStatement> of(QStringView statement);

    language::StatementKind kind() const { return statement().kind; }
    /// The word at the statement's start; empty for a part of a statement.
    QStringView keyword() const { return m_pair->joystick.at(statement().keyword); }
    /// The words that tell which USE statement it is, as useForms() spells them; empty for others.
    QStringView useHead() const;

    /// The words before the first part: "USE", "HAT1" and "AS", "BTN" and "T1", or none.
    QStringList head() const;
    /// Whether head and parts are exactly these words, with one blank between them, in any case.
    bool isWords(QStringView words) const;

    int size() const { return int(m_parts.size()); }
    const language::Item &operator[](int part) const { return items()[m_parts[part]]; }
    QStringView text(int part) const { return text(part, part + 1); }
    /// The text from the one part up to, not including, the other.
    QStringView text(int from, int to) const;
    /// Whether the part is this word, in any case.
    bool isWord(int part, QStringView word) const;
    /// The part without its brackets; empty for brackets without a word before them.
    QStringView word(int part) const;
    /// What the part's brackets hold, as written; no value without brackets.
    std::optional<QStringView> inside(int part) const;
    /// The arguments of a part that is brackets without a word; no value for anything else.
    std::optional<language::Arguments> groupArguments(int part) const;
    /// The arguments of a part that is this word with its brackets; no value for anything else.
    std::optional<language::Arguments> callArguments(int part, QStringView word) const;
    /// The index in language::slashModifiers of a part that is one, or -1.
    int slash(int part) const;

private:
    explicit PartedStatement(const QString &text);
    const language::JoystickStatement &statement() const
    {
        return m_pair->joystick.statements.first();
    }
    const QList<language::Item> &items() const { return m_pair->joystick.items; }

    /// Shared, so that what refers into the text outlives a move.
    std::shared_ptr<const language::FilePair> m_pair;
    QList<int> m_parts;
};

/// The row of a list that equals the text in any case; -1 if there is none.
int indexIn(language::Words list, QStringView text);
/// The same as the list spells it; no value if there is none.
std::optional<QString> spelledAs(language::Words list, QStringView text);

/// The halves of an axis or CURVE statement, whose modifiers choose between several definitions:
/// "THR /I 3 a ^ b" and "/O 3 b ^ a". One half without a choice. Places count from the text's
/// start.
QList<language::Place> statementHalves(QStringView statement);

/// The word with brackets around a 0-based position of the text, the innermost one; for CURVE with
/// the /P, /R or /T directly before it. Both its ends count as inside. No value without one.
std::optional<language::Place> callAt(QStringView statement, qsizetype position);

} // namespace zeph
