// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/quickview/senders.h"

#include "language/scan.h"
#include "livetools/board_keys.h"
#include "livetools/quickview/key_texts.h"

namespace zeph {

namespace {

/// Reads a body word by word; what stands between two words tells of the brackets around them.
class SentKeyReader
{
public:
    explicit SentKeyReader(QStringView body) : m_body(body) { }

    std::vector<SentKey> read()
    {
        qsizetype end = 0;
        for (const LineRange &place : bodyWords(m_body)) {
            readBetween(m_body.sliced(end, place.start - end));
            end = place.start + place.length;
            readWord(m_body.sliced(place.start, place.length), end);
        }
        finishKey({});
        return std::move(m_sent);
    }

private:
    void readBetween(QStringView between)
    {
        for (const QChar each : between) {
            if (each == u'(') {
                m_brackets.push_back(m_isKeyCall);
            } else if (each == u')' && !m_brackets.empty()) {
                m_brackets.pop_back();
            }
            if (!language::isBlank(each)) {
                finishKey({});
                m_isKeyCall = false;
            }
        }
    }

    void readWord(QStringView word, qsizetype end)
    {
        while (!word.isEmpty() && language::slashAt(word, 0) >= 0) {
            finishKey({});
            word = word.sliced(2);
        }
        const language::Word &row = language::rowOf(word);
        m_isKeyCall = row.arguments == language::CallShape::Keys;
        const qsizetype next = language::skipBlanks(m_body, end);
        const bool isCall = row.arguments != language::CallShape::None && next < m_body.size()
            && m_body[next] == u'(';
        const bool isArgument = std::ranges::find(m_brackets, false) != m_brackets.end();
        if (word.isEmpty() || isCall || isArgument) {
            return;
        }
        if (row.is(language::ModifierKeyRole)) {
            m_modifiers.append(word.toString().toLower());
        } else {
            finishKey(word.toString().toLower());
        }
    }

    void finishKey(QString key)
    {
        if (const BoardKey *typed = key.size() == 1 ? boardKeyNamed(key) : nullptr;
            typed && typed->shifted == key) {
            key = typed->name.toString();
            m_modifiers.append(u"SHF"_w.toString().toLower());
            m_modifiers.removeDuplicates();
        }
        if (!key.isEmpty() || !m_modifiers.isEmpty()) {
            m_modifiers.sort();
            m_sent.push_back({ m_modifiers, key });
            m_modifiers.clear();
        }
    }

    QStringView m_body;
    std::vector<SentKey> m_sent;
    QStringList m_modifiers;
    std::vector<bool> m_brackets; ///< for each open round bracket whether it holds keys
    bool m_isKeyCall = false;
};

bool isSameModifier(const QString &sought, const QString &sent)
{
    return sent == sought || (sent.size() == sought.size() + 1 && sent.endsWith(sought));
}

/// Whether the sought modifiers are among those that are sent.
bool areAmong(const QStringList &sought, QStringList sent)
{
    for (const QString &each : sought) {
        const auto found = std::ranges::find_if(
            sent, [&each](const QString &modifier) { return isSameModifier(each, modifier); });
        if (found == sent.end()) {
            return false;
        }
        sent.erase(found);
    }
    return true;
}

} // namespace

std::vector<SentKey> sentKeys(QStringView body)
{
    return SentKeyReader(body).read();
}

Senders::Senders(const Assignments &table, const MacroKeys &keys) : m_table(table)
{
    for (int row = 1; row <= rowCount; ++row) {
        for (int column = 1; column <= columnCount; ++column) {
            const Cell &cell = table.at(row, column);
            if (cell.text.isEmpty()) {
                continue;
            }
            QStringView body = cell.text;
            if (isRotaryRow(row)) {
                body = body.sliced(rotaryNumbersLength(body));
            }
            m_cells.push_back(
                { { row, column }, cell.byUse ? std::vector<SentKey>() : sentKeys(body) });
        }
    }
    for (auto macro = keys.own().cbegin(); macro != keys.own().cend(); ++macro) {
        const std::vector<SentKey> sent = sentKeys(macro.value());
        for (const SentKey &each : sent) {
            m_users[each.key].append(macro.key());
        }
        m_macros.insert(macro.key(), sent);
    }
}

bool Senders::isSought(const SentKey &sought, const SentKey &sent) const
{
    if (sought.key.isEmpty()) {
        return areAmong(sought.modifiers, sent.modifiers);
    }
    if (sought.key != sent.key) {
        return false;
    }
    const bool isAnyUse = sought.modifiers.isEmpty() && isMacro(sought.key);
    return isAnyUse
        || (sought.modifiers.size() == sent.modifiers.size()
            && areAmong(sought.modifiers, sent.modifiers));
}

QSet<QString> Senders::macrosThatSend(const SentKey &sought) const
{
    QStringList open;
    for (auto macro = m_macros.cbegin(); macro != m_macros.cend(); ++macro) {
        const bool sends = std::ranges::any_of(
            macro.value(), [&](const SentKey &each) { return isSought(sought, each); });
        if (sends) {
            open.append(macro.key());
        }
    }
    QSet<QString> found;
    while (!open.isEmpty()) {
        const QString macro = open.takeLast();
        if (!found.contains(macro)) {
            found.insert(macro);
            open.append(m_users.value(macro));
        }
    }
    return found;
}

std::vector<CellPlace> Senders::of(const QString &sought) const
{
    const std::vector<SentKey> keys = sentKeys(sought);
    if (keys.empty()) {
        return {};
    }
    std::vector<QSet<QString>> macros;
    for (const SentKey &key : keys) {
        macros.push_back(macrosThatSend(key));
    }
    const auto sendsAll = [&](const Sent &cell) {
        for (size_t at = 0; at < keys.size(); ++at) {
            const bool sends = std::ranges::any_of(cell.keys, [&](const SentKey &each) {
                return isSought(keys[at], each) || macros[at].contains(each.key);
            });
            if (!sends) {
                return false;
            }
        }
        return true;
    };
    std::vector<CellPlace> found;
    for (const Sent &cell : m_cells) {
        const Cell &told = m_table.at(cell.place.row, cell.place.column);
        const bool isFound = told.byUse
            ? told.text.compare(sought.trimmed(), Qt::CaseInsensitive) == 0
            : sendsAll(cell);
        if (isFound) {
            found.push_back(cell.place);
        }
    }
    return found;
}

} // namespace zeph
