// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/generators/use_parts.h"

#include "language/model.h"

namespace zeph {

namespace {

using language::Item;
using language::ItemKind;
using language::JoystickFile;
using language::JoystickStatement;
using language::Place;

struct OptionWord {
    UseOption option;
    QStringView word;
};

constexpr OptionWord optionWords[] = {
    { UseOption::ReverseUd, u"REVERSE_UD"_w },   { UseOption::ReverseLr, u"REVERSE_LR"_w },
    { UseOption::ReverseDir, u"REVERSE_DIR"_w }, { UseOption::ForcedCorners, u"FORCED_CORNERS"_w },
    { UseOption::NoHold, u"NOHOLD"_w },          { UseOption::Kp5, u"KP5"_w },
    { UseOption::NoButton, u"NO_BUTTON"_w },
};

// The words at a place that end before the body begins: CURVE and the like are part of it.
void addHead(StatementParts &parts, const JoystickFile &file, const Place &place, qsizetype body)
{
    if (place.position >= body)
        return;
    for (const QStringView word : file.at(place).split(u' ', Qt::SkipEmptyParts)) {
        // Not moved: GCC would take the empty value inside for an uninitialised one.
        const StatementPart part{ word.toString() };
        parts.append(part);
    }
}

// The part of an item; no value when its closing bracket is missing.
std::optional<StatementPart> partOf(const JoystickFile &file, const Item &item)
{
    const QStringView text = file.at(item);
    if (item.kind != ItemKind::Call && item.kind != ItemKind::Group)
        return StatementPart{ text.toString() };
    if (!item.closed)
        return {};
    const qsizetype bracket = item.kind == ItemKind::Call ? text.indexOf(u'(') : 0;
    const QStringView inside = text.sliced(bracket + 1).chopped(1);
    return StatementPart{ text.first(bracket).trimmed().toString(), inside.toString() };
}

} // namespace

QStringView wordOf(UseOption option)
{
    const auto row = std::ranges::find(optionWords, option, &OptionWord::option);
    return row->word;
}

QString optionTail(UseOptions options)
{
    QString tail;
    for (const OptionWord &row : optionWords) {
        if (options.testFlag(row.option))
            tail.append(tail.isEmpty() ? u" - " : u", ").append(row.word);
    }
    return tail;
}

StatementParts statementParts(QStringView text)
{
    const language::FilePair pair = language::parsePair(text.toString(), {});
    const JoystickFile &file = pair.joystick;
    if (file.statements.size() != 1 || !file.strayBrackets.isEmpty())
        return {};
    const JoystickStatement &statement = file.statements.first();
    const language::Range items = statement.body.items;
    const qsizetype body =
        items.isEmpty() ? file.text.size() : file.items[items.first].place.position;
    StatementParts parts;
    for (const Place &head : { statement.keyword, statement.subject, statement.tail })
        addHead(parts, file, head, body);
    for (int at = items.first; at < items.end; at = file.items[at].endItem) {
        const std::optional<StatementPart> part = partOf(file, file.items[at]);
        if (!part)
            return {};
        parts.append(*part);
    }
    return parts;
}

bool areWords(const StatementParts &parts, QStringView words)
{
    const QList<QStringView> list = words.split(u' ', Qt::SkipEmptyParts);
    return std::ranges::equal(parts, list, [](const StatementPart &part, QStringView word) {
        return !part.inside && part.word.compare(word, Qt::CaseInsensitive) == 0;
    });
}

std::optional<UseOptions> readOptionTail(const StatementParts &parts, qsizetype from)
{
    UseOptions options;
    if (from == parts.size())
        return options;
    if (from > parts.size() || !parts[from].word.startsWith(u'-'))
        return {};
    for (qsizetype at = from; at < parts.size(); ++at) {
        const QStringView whole = parts[at].word;
        const bool isFirst = at == from;
        const QStringView word = isFirst ? whole.sliced(1) : whole;
        const auto row = std::ranges::find_if(optionWords, [word](const OptionWord &option) {
            return option.word.compare(word, Qt::CaseInsensitive) == 0;
        });
        if (row != std::end(optionWords) && !parts[at].inside)
            options |= row->option;
        else if (!(isFirst && word.isEmpty()) && word != u",")
            return {};
    }
    return options;
}

std::optional<RoleStatement> readRole(QStringView statement)
{
    const StatementParts parts = statementParts(statement);
    constexpr qsizetype beforeOptions = 4;
    if (parts.size() < beforeOptions || !areWords(parts.first(1), u"USE"_w)
        || !areWords(parts.sliced(2, 1), u"AS"_w) || parts[1].inside)
        return {};
    const std::optional<UseOptions> options = readOptionTail(parts, beforeOptions);
    if (!options)
        return {};
    return RoleStatement{ parts[1].word, parts[3].word, parts[3].inside, *options };
}

} // namespace zeph
