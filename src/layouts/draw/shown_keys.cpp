// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/draw/shown_keys.h"

#include "language/scan.h"

namespace zeph {

namespace {

/// Calls a function with each word (start, length) of a text that may be a macro: what stands
/// between blanks and brackets, outside of comments.
template <class Call> void forEachMacroWord(QStringView text, Call call)
{
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
            call(lineStart + start, at - start);
        }
        lineStart = lineEnd + 1;
    }
}

} // namespace

ShownKeys::ShownKeys(const MacroTable &table)
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

QString ShownKeys::expanded(const QString &keys, QStringList &within) const
{
    // A macro of macros of macros can become as long as it likes; a box cannot.
    constexpr qsizetype longest = 500;
    QString result;
    qsizetype copied = 0;
    forEachMacroWord(keys, [&](qsizetype from, qsizetype length) {
        const QString name = keys.mid(from, length).toLower();
        const auto found = m_keys.constFind(name);
        if (found == m_keys.cend() || within.contains(name) || result.size() > longest) {
            return;
        }
        within.append(name);
        result += keys.mid(copied, from - copied) + expanded(*found, within);
        within.removeLast();
        copied = from + length;
    });
    return result + keys.mid(copied);
}

RichText ShownKeys::shown(const RichText &text, MacroNames way) const
{
    if (way == MacroNames::Names) {
        return text;
    }
    RichText result = RichText::plain({});
    qsizetype copied = 0;
    forEachMacroWord(text.text, [&](qsizetype from, qsizetype length) {
        const QString name = text.text.mid(from, length);
        const auto found = m_keys.constFind(name.toLower());
        if (found == m_keys.cend()) {
            return;
        }
        QStringList within{ name.toLower() };
        const QString keys = expanded(*found, within);
        const bool isBoth = way == MacroNames::NamesAndKeys;
        RichText shown = text.mid(from, length);
        shown.text = isBoth ? name + u" \u2039"_s + keys + u'\u203a' : keys;
        shown.characters = { { shown.text.size(), text.formatAt(from) } };
        result.append(text.mid(copied, from - copied));
        result.append(shown);
        copied = from + length;
    });
    if (copied == 0) {
        return text;
    }
    result.append(text.mid(copied, text.text.size() - copied));
    result.normalise();
    return result;
}

} // namespace zeph
