// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/generators/use_parts.h"

#include "language/scan.h"

namespace zeph {

namespace {

using language::sameWord;

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

std::optional<UseOptions> readOptionTail(const PartedStatement &parts, int from)
{
    UseOptions options;
    if (from == parts.size())
        return options;
    if (from > parts.size() || !parts.text(from).startsWith(u'-'))
        return {};
    for (int at = from; at < parts.size(); ++at) {
        const bool isFirst = at == from;
        const QStringView word = parts.text(at).sliced(isFirst ? 1 : 0);
        const auto row = std::ranges::find_if(
            optionWords, [word](const OptionWord &option) { return sameWord(option.word, word); });
        if (row != std::end(optionWords))
            options |= row->option;
        else if (!(isFirst && word.isEmpty()) && word != u",")
            return {};
    }
    return options;
}

std::optional<RoleStatement> readRole(QStringView statement)
{
    const auto parts = PartedStatement::of(statement);
    if (!parts)
        return {};
    // Of an axis, name and AS are in the body.
    QStringList words = parts->head();
    int role = 0;
    while (words.size() < 3 && role < parts->size())
        words.append(parts->text(role++).toString());
    if (words.size() != 3 || role == parts->size() || !sameWord(words[0], u"USE"_w)
        || !sameWord(words[2], u"AS"_w))
        return {};
    const std::optional<UseOptions> options = readOptionTail(*parts, role + 1);
    if (!options)
        return {};
    const auto inside = parts->inside(role);
    return RoleStatement{ words[1], parts->word(role).toString(),
                          inside ? std::optional(inside->toString()) : std::nullopt, *options };
}

} // namespace zeph
