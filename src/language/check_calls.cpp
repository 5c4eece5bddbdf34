// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "language/reporter.h"
#include "language/scan.h"
#include "language/words.h"

namespace zeph::language {

namespace {

// Whether the text is one word, so that it certainly is meant as a name: "JOY-X".
bool isName(QStringView text)
{
    return !text.isEmpty() && text[0].isLetter() && wordEnd(text, 0) == text.size();
}

void checkAxis(Reporter &reporter, const Argument &axis)
{
    const Word &row = rowOf(axis.text);
    if (isName(axis.text) && !row.is(AxisRole) && !row.is(AxisGroupRole))
        reporter.report(UnknownAxis, axis.place, u"There is no axis %1"_s.arg(axis.text));
}

// A fixed trim has its sign before the number, one that is added has it after.
std::optional<int> trimValue(QStringView text)
{
    if (text.size() > 1 && (text.endsWith(u'+') || text.endsWith(u'-')))
        text.chop(1);
    return wholeNumber(text);
}

void checkTrim(Reporter &reporter, const Arguments &arguments)
{
    checkAxis(reporter, arguments[0]);
    if (arguments.size() != 2)
        return;
    const std::optional<int> value = trimValue(arguments[1].text);
    if (value && qAbs(*value) > lastTrim)
        reporter.report(ValueOutOfRange, arguments[1].place,
                        u"The trim %1 lies outside -%2 to %2"_s.arg(arguments[1].text,
                                                                    QString::number(lastTrim)));
}

void checkOneAxis(Reporter &reporter, const Arguments &arguments)
{
    if (arguments.size() == 1)
        checkAxis(reporter, arguments[0]);
}

void checkLock(Reporter &reporter, const Arguments &arguments)
{
    checkAxis(reporter, arguments[0]);
}

void checkSwap(Reporter &reporter, const Arguments &arguments)
{
    if (arguments.size() != 2)
        return;
    checkAxis(reporter, arguments[0]);
    checkAxis(reporter, arguments[1]);
    const Word &first = rowOf(arguments[0].text);
    const Word &second = rowOf(arguments[1].text);
    const bool unequal = (first.is(AxisRole) && second.is(AxisGroupRole))
        || (first.is(AxisGroupRole) && second.is(AxisRole));
    if (unequal)
        reporter.report(UnequalSwap, arguments[0].place,
                        u"%1 and %2 cannot be swapped: one is a pair of axes"_s.arg(
                            arguments[0].text, arguments[1].text));
}

void checkThrottleRange(Reporter &reporter, const Arguments &arguments)
{
    if (arguments.size() != 2)
        return;
    const std::optional<double> from = decimalNumber(arguments[0].text);
    const std::optional<double> to = decimalNumber(arguments[1].text);
    if (from && to && *to <= *from)
        reporter.report(ThrottleRangeOrder, arguments[0].place,
                        u"The second value of THR_RANGE must be greater than the first"_s);
}

void checkControl(Reporter &reporter, const Arguments &arguments)
{
    const Argument &name = arguments[0];
    if (arguments.size() == 1 && isName(name.text) && !rowOf(name.text).is(ControlRole))
        reporter.report(UnknownControl, name.place, u"There is no control %1"_s.arg(name.text));
}

using CallCheck = void (*)(Reporter &, const Arguments &);

struct CallRule {
    CallShape shape;
    CallCheck check;
};

constexpr CallRule rules[] = {
    { CallShape::AxisAndCurve, checkCurve }, { CallShape::AxisAndTrim, checkTrim },
    { CallShape::Axis, checkOneAxis },       { CallShape::AxisAndLock, checkLock },
    { CallShape::TwoAxes, checkSwap },       { CallShape::TwoPercents, checkThrottleRange },
    { CallShape::Control, checkControl },
};

} // namespace

void Reporter::report(Code code, const Place &place, const QString &message)
{
    const Code told = m_file == File::Macro ? InMacroFile : code;
    m_findings.append({ told, message, m_file, place });
}

Arguments argumentsOf(const Source &source, const Item &item)
{
    const QStringView text(source.text);
    Arguments arguments;
    Place place{ item.place.position, 0, item.place.line };
    bool begun = false;
    const auto end = [&] {
        arguments.append({ text.sliced(place.position, place.length), place });
    };
    const int first = int(&item - source.items.constData()) + 1;
    for (int index = first; index < item.endItem; index = source.items[index].endItem) {
        const Item &part = source.items[index];
        if (part.kind == ItemKind::Comma) {
            end();
            place = { part.place.end(), 0, part.place.line };
            begun = false;
            continue;
        }
        if (!begun)
            place = part.place;
        begun = true;
        place.length = part.place.end() - place.position;
    }
    end();
    return arguments;
}

bool hasStrayClosing(const Source &source, qsizetype from, qsizetype to)
{
    // A closing bracket is told as soon as it is read, and one a body is kept: they are in order.
    const auto first = std::lower_bound(
        source.strayBrackets.begin(), source.strayBrackets.end(), from,
        [](const StrayBracket &bracket, qsizetype at) { return bracket.place.position < at; });
    return first != source.strayBrackets.end() && !first->opening && first->place.position < to;
}

bool isFlag(QStringView word)
{
    const std::optional<int> number = flagNumber(word);
    return number && *number >= 1 && *number <= lastFlag;
}

void checkCurve(Reporter &reporter, const Arguments &arguments)
{
    checkAxis(reporter, arguments[0]);
    if (arguments.size() != 2)
        return;
    const std::optional<int> value = wholeNumber(arguments[1].text);
    if (value && qAbs(*value) > lastCurve)
        reporter.report(ValueOutOfRange, arguments[1].place,
                        u"The curve %1 lies outside -%2 to %2"_s.arg(arguments[1].text,
                                                                     QString::number(lastCurve)));
}

// The stick and the microstick stay on, and only axes and the mouse can be switched off.
void checkDisables(Reporter &reporter)
{
    const Source &source = reporter.source();
    for (int index = 0; index + 1 < source.items.size(); ++index) {
        const Item &item = source.items[index];
        const Item &next = source.items[index + 1];
        const bool isName = next.kind == ItemKind::Word || next.kind == ItemKind::Flag;
        if (item.kind != ItemKind::Word || !isName || !sameWord(source.at(item), u"DISABLE"_w))
            continue;
        // The next item may belong to another statement.
        const qsizetype from = item.place.end();
        if (trimmedEnd(QStringView(source.text).sliced(from, next.place.position - from)) != 0)
            continue;
        const QStringView name = source.at(next);
        const Word &row = rowOf(name);
        const bool isPart = row.is(AxisRole) || row.is(AxisGroupRole) || row.is(ControlRole)
            || row.is(HatRole) || isFlag(name);
        if (isPart && !row.is(DisableableRole))
            reporter.report(NotDisableable, next.place, u"%1 cannot be disabled"_s.arg(name));
    }
}

void checkCalls(Reporter &reporter)
{
    for (const Item &item : reporter.source().items) {
        if (item.kind != ItemKind::Call || !item.closed)
            continue;
        const CallShape shape = words[size_t(item.reference)].arguments;
        for (const CallRule &rule : rules) {
            if (rule.shape == shape)
                rule.check(reporter, argumentsOf(reporter.source(), item));
        }
    }
}

} // namespace zeph::language
