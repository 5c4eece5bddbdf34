// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/generators/analogue_axis.h"
#include "composer/generators/parted_statement.h"

namespace zeph {

using namespace language;

namespace {

// The body of a button or axis is read call by call, without the button's or axis's name.
bool isReadAsWhole(const PartedStatement &parts)
{
    using enum StatementKind;
    constexpr std::array kinds{ Unknown, Use, Curve, Disable, ThrottleRange };
    return std::ranges::find(kinds, parts.kind()) != kinds.end();
}

std::optional<PartedStatement> partsOf(QStringView statement)
{
    auto parts = PartedStatement::of(statement);
    return parts && isReadAsWhole(*parts) ? parts : std::nullopt;
}

// The arguments of this word if the statement is the word with brackets and nothing else, or USE
// and that.
std::optional<Arguments> onlyCall(const PartedStatement &parts, QStringView word, int arguments)
{
    const std::optional<Arguments> found =
        parts.size() == 1 ? parts.callArguments(0, word) : std::nullopt;
    return found && found->size() == arguments ? found : std::nullopt;
}

bool isUse(const PartedStatement &parts)
{
    return parts.kind() == StatementKind::Use;
}

QString withoutPercent(QStringView value)
{
    return (value.endsWith(u'%') ? value.chopped(1) : value).toString();
}

// Reads the axis and the curve.
bool readCurveArguments(const std::optional<Arguments> &arguments, CurveFields &fields)
{
    if (!arguments || arguments->size() != 2)
        return false;
    const std::optional<QString> axis = spelledAs(analogueAxes, (*arguments)[0].text);
    fields.axis = axis.value_or(QString());
    fields.value = (*arguments)[1].text.toString();
    return axis.has_value();
}

// "CURVE /I (THR, 4)" and its second half "/O (THR, 0)".
bool readCurveStatement(const PartedStatement &parts, CurveFields &fields)
{
    fields.beginsWithCurve = parts.isWord(0, u"CURVE"_w);
    const int slash = fields.beginsWithCurve ? 1 : 0;
    if (parts.slash(slash) < 0 || parts.size() != slash + 2)
        return false;
    fields.slash = indexIn(curveSlashes, parts.text(slash));
    return fields.slash >= 0 && readCurveArguments(parts.groupArguments(slash + 1), fields);
}

// "CURVE (RNG, 2)" with or without /P, /R or /T.
bool readCurveOfButton(const PartedStatement &parts, CurveFields &fields)
{
    const bool hasEvent = parts.slash(0) >= 0;
    fields.event = hasEvent ? indexIn(curveEvents, parts.text(0)) : int(curveEvents.size()) - 1;
    return fields.event >= 0 && parts.size() == (hasEvent ? 2 : 1)
        && readCurveArguments(parts.callArguments(hasEvent ? 1 : 0, u"CURVE"_w), fields);
}

void readTrimValue(QStringView value, TrimFields &fields)
{
    using enum TrimFields::Type;
    if (value == u"0") {
        fields.type = Remove;
        fields.value = u"0"_s;
    } else if (value.compare(u"TO_CURRENT"_w, Qt::CaseInsensitive) == 0) {
        fields.type = ToCurrent;
        fields.value = trimValueBox(ToCurrent, {}).text;
    } else if (value.endsWith(u'+') || value.endsWith(u'-')) {
        fields.type = Add;
        fields.isNegative = value.endsWith(u'-');
        fields.value = value.chopped(1).toString();
    } else {
        fields.type = Fixed;
        fields.isNegative = value.startsWith(u'-');
        const bool hasSign = fields.isNegative || value.startsWith(u'+');
        fields.value = value.sliced(hasSign ? 1 : 0).toString();
    }
}

} // namespace

std::optional<CurveFields> readCurve(QStringView statement)
{
    const auto parts = partsOf(statement);
    if (!parts)
        return {};
    CurveFields fields;
    if (isUse(*parts)) {
        fields.form = CurveFields::Form::Configuration;
        const bool isRead = readCurveArguments(onlyCall(*parts, u"CURVE"_w, 2), fields);
        return isRead ? std::optional(fields) : std::nullopt;
    }
    fields.form = CurveFields::Form::Curve;
    if (readCurveStatement(*parts, fields))
        return fields;
    fields = { .form = CurveFields::Form::Button };
    return readCurveOfButton(*parts, fields) ? std::optional(fields) : std::nullopt;
}

std::optional<TrimFields> readTrim(QStringView statement)
{
    const auto parts = partsOf(statement);
    if (!parts || isUse(*parts))
        return {};
    TrimFields fields;
    auto arguments = onlyCall(*parts, u"HOLDTRIM"_w, 1);
    if (arguments) {
        fields.type = TrimFields::Type::Hold;
        fields.value = trimValueBox(TrimFields::Type::Hold, {}).text;
    } else {
        arguments = onlyCall(*parts, u"TRIM"_w, 2);
        if (!arguments)
            return {};
        readTrimValue((*arguments)[1].text, fields);
    }
    const std::optional<QString> axis = spelledAs(analogueAxes, (*arguments)[0].text);
    fields.axis = axis.value_or(QString());
    return axis ? std::optional(fields) : std::nullopt;
}

std::optional<QString> readDisable(QStringView statement)
{
    const auto parts = partsOf(statement);
    if (!parts || parts->kind() != StatementKind::Disable || parts->size() != 2)
        return {};
    return spelledAs(disableableAxes, parts->text(1));
}

std::optional<LockFields> readLock(QStringView statement)
{
    const auto parts = partsOf(statement);
    if (!parts || isUse(*parts))
        return {};
    LockFields fields;
    auto arguments = onlyCall(*parts, u"UNLOCK"_w, 1);
    fields.unlocks = arguments.has_value();
    if (!arguments)
        arguments = onlyCall(*parts, u"LOCK"_w, 2);
    const auto axis = arguments ? spelledAs(analogueAxes, (*arguments)[0].text) : std::nullopt;
    if (!axis)
        return {};
    fields.axis = *axis;
    if (fields.unlocks)
        return fields;
    const QStringView value = (*arguments)[1].text;
    fields.toLastValue = value.compare(u"LASTVALUE"_w, Qt::CaseInsensitive) == 0;
    fields.value = fields.toLastValue ? QString() : withoutPercent(value);
    return fields;
}

std::optional<SwapFields> readSwap(QStringView statement)
{
    const auto parts = partsOf(statement);
    const auto arguments = parts ? onlyCall(*parts, u"SWAP"_w, 2) : std::nullopt;
    if (!arguments)
        return {};
    const auto first = spelledAs(analogueAxes, (*arguments)[0].text);
    const auto second = first ? spelledAs(swapPartners(*first), (*arguments)[1].text) : first;
    if (!second)
        return {};
    return SwapFields{ isUse(*parts), *first, *second };
}

std::optional<ReverseFields> readReverse(QStringView statement)
{
    using enum ReverseFields::Form;
    const auto parts = partsOf(statement);
    if (!parts)
        return {};
    ReverseFields fields{ isUse(*parts) ? Configuration : Reverse, {} };
    auto arguments = onlyCall(*parts, u"REVERSE"_w, 1);
    if (!arguments && fields.form == Reverse) {
        fields.form = Forward;
        arguments = onlyCall(*parts, u"FORWARD"_w, 1);
    }
    const auto axis = arguments ? spelledAs(analogueAxes, (*arguments)[0].text) : std::nullopt;
    fields.axis = axis.value_or(QString());
    return axis ? std::optional(fields) : std::nullopt;
}

std::optional<ThrottleRangeFields> readThrottleRange(QStringView statement)
{
    const auto parts = partsOf(statement);
    const auto arguments = parts ? onlyCall(*parts, u"THR_RANGE"_w, 2) : std::nullopt;
    if (!arguments)
        return {};
    return ThrottleRangeFields{ isUse(*parts), withoutPercent((*arguments)[0].text),
                                withoutPercent((*arguments)[1].text) };
}

} // namespace zeph
