// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "text/macro_keys.h"

#include "language/scan.h"

namespace zeph {

std::vector<LineRange> bodyWords(QStringView text)
{
    std::vector<LineRange> found;
    qsizetype lineStart = 0;
    while (lineStart <= text.size()) {
        qsizetype lineEnd = text.indexOf(u'\n', lineStart);
        lineEnd = lineEnd < 0 ? text.size() : lineEnd;
        const QStringView line = text.sliced(lineStart, lineEnd - lineStart);
        const qsizetype comment = language::commentStart(line);
        const qsizetype codeEnd = comment < 0 ? line.size() : comment;
        qsizetype at = 0;
        while (at < codeEnd) {
            if (!language::isBodyCharacter(line[at])) {
                ++at;
                continue;
            }
            const qsizetype start = at;
            while (at < codeEnd && language::isBodyCharacter(line[at])) {
                ++at;
            }
            found.push_back({ lineStart + start, at - start });
        }
        lineStart = lineEnd + 1;
    }
    return found;
}

MacroKeys::MacroKeys(const MacroTable &table)
{
    for (const QString &line : table.MacroLines) {
        const QString name = macroName(line);
        const qsizetype equals = line.indexOf(u'=');
        if (name.isEmpty() || equals < 0 || m_keys.contains(name.toLower())) {
            continue;
        }
        QStringView keys = QStringView(line).sliced(equals + 1);
        if (const qsizetype comment = language::commentStart(keys); comment >= 0) {
            keys = keys.first(comment);
        }
        if (const QString trimmed = keys.trimmed().toString(); !trimmed.isEmpty()) {
            m_keys.insert(name.toLower(), trimmed);
        }
    }
}

QString MacroKeys::expanded(const QString &keys, QStringList &within) const
{
    // A macro of macros of macros can become as long as it likes; a box cannot.
    constexpr qsizetype longest = 500;
    QString result;
    qsizetype copied = 0;
    for (const auto &[from, length] : bodyWords(keys)) {
        const QString name = keys.mid(from, length).toLower();
        const auto found = m_keys.constFind(name);
        if (found == m_keys.cend() || within.contains(name) || result.size() > longest) {
            continue;
        }
        within.append(name);
        result += keys.mid(copied, from - copied) + expanded(*found, within);
        within.removeLast();
        copied = from + length;
    }
    return result + keys.mid(copied);
}

std::vector<MacroWord> MacroKeys::in(QStringView text) const
{
    std::vector<MacroWord> found;
    for (const LineRange &place : bodyWords(text)) {
        const QString name = text.sliced(place.start, place.length).toString().toLower();
        if (const auto own = m_keys.constFind(name); own != m_keys.cend()) {
            QStringList within{ name };
            found.push_back({ place, expanded(*own, within) });
        }
    }
    return found;
}

QString MacroKeys::shownIn(QStringView text) const
{
    QString result;
    qsizetype copied = 0;
    for (const MacroWord &word : in(text)) {
        result += text.sliced(copied, word.place.start - copied);
        result += word.keys;
        copied = word.place.start + word.place.length;
    }
    result += text.sliced(copied);
    return result;
}

} // namespace zeph
