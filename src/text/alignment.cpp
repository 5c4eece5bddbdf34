// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "text/alignment.h"

#include "text/text_lines.h"

#include <algorithm>
#include <array>

namespace zeph {

using language::SlashLevel;
using language::slashModifiers;
using language::Word;
using language::wordsOf;

namespace {

constexpr qsizetype mostPadding = 69;

bool beginsAnyCase(QStringView line, QStringView start)
{
    return line.startsWith(start, Qt::CaseInsensitive);
}

bool isHead(QStringView line)
{
    return beginsAnyCase(line, u"BTN"_w) || beginsAnyCase(line, u"CURVE"_w)
        || std::ranges::any_of(wordsOf<language::AxisRole>(),
                               [line](QStringView axis) { return beginsAnyCase(line, axis); });
}

bool isComment(QStringView line)
{
    return beginsAnyCase(line, u"Rem"_w);
}

bool isKept(QStringView line)
{
    return line.isEmpty() || line.front() == u'~' || isComment(line);
}

/// 1-based columns of a statement's modifiers, by level; 0 without one.
using Columns = std::array<qsizetype, size_t(SlashLevel::Repeat)>;

/// 1-based column at which a line holds a modifier; 0 when it does not.
qsizetype columnOf(QStringView line, const Word &modifier)
{
    return line.indexOf(modifier.text) + 1;
}

/// 1-based column of the level's modifier that the line holds, 0 without one. If it holds several,
/// the first in the order of the words counts.
qsizetype columnOf(QStringView line, SlashLevel level)
{
    for (const Word &modifier : slashModifiers) {
        if (const qsizetype column = modifier.level == level ? columnOf(line, modifier) : 0) {
            return column;
        }
    }
    return 0;
}

Columns columnsOf(QStringView line)
{
    Columns columns{};
    for (size_t level = 0; level < columns.size(); ++level) {
        columns[level] = columnOf(line, SlashLevel(level));
    }
    return columns;
}

/// The modifier that a line begins with, or null.
const Word *modifierAtStart(QStringView line)
{
    const auto found = std::ranges::find_if(
        slashModifiers, [line](const Word &modifier) { return line.startsWith(modifier.text); });
    return found == slashModifiers.end() ? nullptr : &*found;
}

/// The other modifier of the same level: /O for /I. /T is the only one of its level and gives
/// itself.
const Word &counterpartOf(const Word &modifier)
{
    const auto found = std::ranges::find_if(slashModifiers, [&modifier](const Word &other) {
        return other.level == modifier.level && &other != &modifier;
    });
    return found == slashModifiers.end() ? modifier : *found;
}

/// Whether a line that begins with the modifier is aligned under a modifier of the same level above
/// it. Dogfight modifiers are aligned under the statement's own; repeat modifiers are not aligned.
bool alignsUnderItsKind(const Word *modifier)
{
    return modifier && modifier->level != SlashLevel::Dogfight
        && modifier->level != SlashLevel::Repeat;
}

/// 1-based column for a continuation line of the document; 0 leaves it at the left. The reference
/// is the last line before it with a slash.
qsizetype editorColumn(QStringView line, QStringView reference, const Columns &columns)
{
    const Word *modifier = modifierAtStart(line);
    if (!modifier || modifier->level == SlashLevel::Repeat) {
        return 0;
    }
    const qsizetype own = columns[size_t(modifier->level)];
    if (!alignsUnderItsKind(modifier)) {
        return own;
    }
    for (const Word *above : { modifier, &counterpartOf(*modifier) }) {
        if (const qsizetype column = columnOf(reference, *above)) {
            return column;
        }
    }
    return own;
}

/// The same for the sheets, which look into the reference for the counterpart alone.
qsizetype layoutColumn(QStringView line, QStringView reference, const Columns &columns)
{
    const Word *modifier = modifierAtStart(line);
    if (!alignsUnderItsKind(modifier)) {
        const bool hasDogfight = columnOf(line, SlashLevel::Dogfight) > 0;
        return hasDogfight ? columns[size_t(SlashLevel::Dogfight)] : 0;
    }
    const qsizetype column = columnOf(reference, counterpartOf(*modifier));
    return column > 0 ? column : columns[size_t(modifier->level)];
}

/// The columns after a head line; a level without a modifier in it keeps its column from before.
Columns keptColumns(const Columns &before, QStringView line)
{
    Columns now = columnsOf(line);
    for (size_t level = 0; level < now.size(); ++level) {
        if (now[level] == 0) {
            now[level] = before[level];
        }
    }
    return now;
}

void pad(QString &line, qsizetype column)
{
    if (column > 1) {
        line.insert(0, QString(std::min(column - 1, mostPadding), u' '));
    }
}

/// In what the two aligners differ.
struct Rules {
    Columns (*columnsAt)(const Columns &before, QStringView head);
    qsizetype (*columnOf)(QStringView line, QStringView reference, const Columns &columns);
    QString indent; ///< put before every line of three characters or more that is no comment
};

QString aligned(QStringView text, const Rules &rules)
{
    QString result;
    result.reserve(text.size() + text.size() / 2);
    Columns columns{};
    QString reference;
    forEachLine(text, [&](QStringView input) {
        if (isKept(input)) {
            result += input;
            result += u'\n';
            return;
        }
        QString line = normalisedLine(input);
        if (isHead(line)) {
            columns = rules.columnsAt(columns, line);
        } else {
            pad(line, rules.columnOf(line, reference, columns));
        }
        if (line.contains(u'/')) {
            reference = line;
        }
        if (line.size() >= 3 && !isComment(line)) {
            result += rules.indent;
        }
        result += line;
        result += u'\n';
    });
    return result;
}

} // namespace

QString AlignSlashes(QStringView text, const IndentOptions &options)
{
    const QString indent(options.indent ? std::clamp(options.spaces, 0, mostIndentSpaces) : 0,
                         u' ');
    return aligned(text,
                   { [](const Columns &, QStringView head) { return columnsOf(head); },
                     editorColumn, indent });
}

qsizetype placeAfterAligning(QStringView before, QStringView aligned, qsizetype position)
{
    const auto isBlank = [](QChar each) {
        return each == u' ' || each == u'\t';
    };
    const QStringView until = before.left(position);
    const QStringView head = until.sliced(until.lastIndexOf(u'\n') + 1);
    qsizetype at = 0;
    for (qsizetype lines = until.count(u'\n'); lines > 0; --lines) {
        at = aligned.indexOf(u'\n', at) + 1;
    }
    const auto skipBlanks = [&] {
        while (at < aligned.size() && isBlank(aligned[at])) {
            ++at;
        }
    };
    for (const QChar each : head) {
        if (!isBlank(each)) {
            skipBlanks();
            ++at;
        }
    }
    if (!head.isEmpty() && isBlank(head.back())) {
        skipBlanks();
    }
    return at;
}

QString AlignForLayouts(QStringView text)
{
    return aligned(text, { keptColumns, layoutColumn, QString() });
}

} // namespace zeph
