// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/generators/hat_statements.h"

#include "composer/generators/parted_statement.h"

namespace zeph {

namespace {

Refusal wrongRate()
{
    return { u"Oh no! You've made a boo boo."_s,
             u"When assigning a hat to control the mouse, the rate value must be from 1 to 127. "
             "The value you've entered is invalid, and the statement will not compile or download, "
             "and that would just be a crying shame basically, after all the hard work you've put "
             "into this file."_s };
}

bool isRate(QStringView text)
{
    const int rate = wholeOf(text);
    return rate >= 1 && rate <= language::lastMouseRate;
}

} // namespace

bool takesRate(QStringView role)
{
    return role == u"MOUSE"_w;
}

UseOptions hatOptions(QStringView hat, QStringView role)
{
    UseOptions options = UseOption::ReverseUd | UseOption::ReverseLr;
    if (role == u"ARROWKEYS"_w)
        options |= UseOption::NoHold;
    if (role == u"KEYPAD"_w) {
        options |= UseOption::NoHold | UseOption::Kp5;
        options.setFlag(UseOption::ForcedCorners, hat != u"RADIOSWITCH"_w);
    }
    return options;
}

Generated hatStatement(const HatFields &fields)
{
    if (lacksText({ fields.hat, fields.role }))
        return Unexpected<Refusal>(missingText());
    const bool hasRate = takesRate(fields.role);
    if (hasRate && !fields.rate.isEmpty() && !isRate(fields.rate))
        return Unexpected<Refusal>(wrongRate());
    const QString rate = hasRate ? u" ("_s + fields.rate + u')' : QString();
    const UseOptions options = fields.options & hatOptions(fields.hat, fields.role);
    return plainStatement(
        u"USE "_s + fields.hat + u" AS "_s + fields.role + rate + optionTail(options), true);
}

std::optional<HatFields> readHatStatement(QStringView statement)
{
    const std::optional<RoleStatement> read = readRole(statement);
    if (!read)
        return {};
    const HatFields fields{ spelledAs(hatNames, read->name).value_or(QString()),
                            spelledAs(hatRoles, read->role).value_or(QString()),
                            read->inside.value_or(QString()), read->options };
    const bool isKnown = !lacksText({ fields.hat, fields.role });
    const bool hasOptions = !(fields.options & ~hatOptions(fields.hat, fields.role));
    const bool mayHaveBrackets = !read->inside || takesRate(fields.role);
    if (!isKnown || !hasOptions || !mayHaveBrackets)
        return {};
    return fields;
}

Generated forcedCorners(const QString &hat)
{
    if (hat.isEmpty())
        return Unexpected<Refusal>(missingText());
    return plainStatement(u"USE "_s + hat + u" FORCED_CORNERS"_s, true);
}

std::optional<QString> readForcedCorners(QStringView statement)
{
    const auto parts = PartedStatement::of(statement);
    for (const QStringView hat : hatsWithCorners) {
        if (parts && parts->isWords(u"USE %1 FORCED_CORNERS"_s.arg(hat)))
            return hat.toString();
    }
    return {};
}

} // namespace zeph
