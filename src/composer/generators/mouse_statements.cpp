// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/generators/mouse_statements.h"

#include "composer/generators/parted_statement.h"
#include "language/scan.h"
#include "text/mouse_types.h"

namespace zeph {

namespace {

using enum MouseCommand;

Refusal tooFast(int scale, int increment, qint64 product)
{
    return { u"Invalid values"_s,
             u"The Scale value value multiplied by the Increment value must be less than %1. In "
             "your case you have: %2 x %3 = %4"_s.arg(language::lastMouseRate + 1)
                 .arg(scale)
                 .arg(increment)
                 .arg(product) };
}

std::optional<Refusal> refusalOf(const AxisAsMouseFields &fields)
{
    if (fields.increment.isEmpty())
        return Refusal{ u"Missing Increment Value"_s,
                        u"You have left out the Increment value which I need to create the "
                        "statement."_s };
    if (fields.hasStart && fields.start.isEmpty())
        return Refusal{ missingText().title, u"You haven't provided the Starting value."_s };
    const int increment = wholeOf(fields.increment);
    const qint64 product = qint64(fields.scale) * increment;
    if (product > language::lastMouseRate)
        return tooFast(fields.scale, increment, product);
    if (lacksText({ fields.axis, fields.mouseAxis }))
        return missingText();
    return {};
}

struct MouseCommandRow {
    QStringView caption;
    /// Empty when the fields decide.
    QStringView text;
};

constexpr MouseCommandRow mouseCommands[mouseCommandCount] = {
    { u"MOUSE_LB"_w, u"MOUSE_LB"_w },
    { u"MOUSE_MB"_w, u"MOUSE_MB"_w },
    { u"MOUSE_RB"_w, u"MOUSE_RB"_w },
    { u"DISABLE MOUSE"_w, u"DISABLE MOUSE"_w },
    { u"Insert", {} },
    { u"MSX"_w, {} },
    { u"MSY"_w, {} },
    { u"Insert", u"USE ZERO_MOUSE"_w },
};

QString buttonStatement(int option)
{
    // The second branch lines up below the first.
    return option == 0 ? u"BTN T1 /H MOUSE_LB "_s
                       : u"BTN T1 /I /H MOUSE_RB \n            /O /H MOUSE_LB "_s;
}

Generated mouseMove(QStringView word, const QString &value)
{
    if (value.isEmpty())
        return Unexpected<Refusal>(Refusal{
            u"You're missing the value"_s, u"You need to enter a value - the textbox is empty"_s });
    return plainStatement(word.toString() + u'(' + value + u") "_s, false);
}

} // namespace

Generated mouseTypeStatement(const MouseTypeFields &fields)
{
    if (fields.type.isEmpty())
        return Unexpected<Refusal>(missingText());
    return plainStatement(
        u"USE MTYPE "_s + fields.type + optionTail(fields.options & mouseTypeOptions), true);
}

std::optional<MouseTypeFields> readMouseType(QStringView statement)
{
    const auto parts = PartedStatement::of(statement);
    if (!parts || parts->useHead() != u"MTYPE"_w)
        return {};
    const std::optional<UseOptions> options = readOptionTail(*parts, 1);
    if (!options || (*options & ~mouseTypeOptions))
        return {};
    for (const MouseType &type : mouseTypes) {
        if (parts->isWord(0, type.name))
            return MouseTypeFields{ type.name.toString(), *options };
    }
    return {};
}

std::pair<QString, QString> buttonsOfMouseType(QStringView type)
{
    const auto row = std::ranges::find(mouseTypes, type, &MouseType::name);
    const auto told = [](QStringView button) {
        return button.isEmpty() ? u"n/a"_s : button.toString();
    };
    if (row == std::end(mouseTypes))
        return { told({}), told({}) };
    return { told(row->left), told(row->right) };
}

language::Words mouseAxesFor(QStringView axis)
{
    if (language::rowOf(axis).is(language::AxisGroupRole))
        return wholeMouse;
    return singleMouseAxes;
}

UseOptions axisAsMouseOptions(QStringView axis, QStringView mouseAxis)
{
    if (mouseAxis != u"MOUSE"_w)
        return UseOption::ReverseDir;
    const UseOptions both = UseOption::ReverseUd | UseOption::ReverseLr;
    return axis == u"MICROSTICK"_w ? both | UseOption::NoButton : both;
}

AxisAsMouseFields settled(AxisAsMouseFields fields)
{
    const language::Words offered = mouseAxesFor(fields.axis);
    if (indexIn(offered, fields.mouseAxis) < 0)
        fields.mouseAxis = offered.front().toString();
    fields.options &= axisAsMouseOptions(fields.axis, fields.mouseAxis);
    return fields;
}

Generated axisAsMouse(const AxisAsMouseFields &fields)
{
    if (std::optional<Refusal> refusal = refusalOf(fields))
        return Unexpected<Refusal>(*refusal);
    const QString start = fields.hasStart ? u", "_s + fields.start : QString();
    const UseOptions options = fields.options & axisAsMouseOptions(fields.axis, fields.mouseAxis);
    return plainStatement(u"USE "_s + fields.axis + u" AS "_s + fields.mouseAxis + u" ("_s
                              + QString::number(fields.scale) + u", "_s + fields.increment + start
                              + u')' + optionTail(options),
                          true);
}

std::optional<AxisAsMouseFields> readAxisAsMouse(QStringView statement)
{
    const std::optional<RoleStatement> read = readRole(statement);
    if (!read || !read->inside)
        return {};
    const QList<QStringView> arguments = QStringView(*read->inside).split(u',');
    if (arguments.size() < 2 || arguments.size() > 3)
        return {};
    // The blank after a comma is the generator's own; others were typed.
    const auto typed = [](QStringView argument) {
        return argument.sliced(argument.startsWith(u' ') ? 1 : 0).toString();
    };
    const std::optional<int> scale = language::wholeNumber(arguments[0].trimmed());
    AxisAsMouseFields fields;
    fields.axis = spelledAs(mouseDrivers, read->name).value_or(QString());
    fields.mouseAxis = spelledAs(mouseAxesFor(fields.axis), read->role).value_or(QString());
    fields.scale = scale.value_or(0);
    fields.increment = typed(arguments[1]);
    fields.hasStart = arguments.size() > 2;
    fields.start = fields.hasStart ? typed(arguments[2]) : QString();
    fields.options = read->options;
    const bool isScale = fields.scale >= firstScale && fields.scale <= lastScale;
    const bool hasOptions = !(fields.options & ~axisAsMouseOptions(fields.axis, fields.mouseAxis));
    if (!isScale || !hasOptions || lacksText({ fields.axis, fields.mouseAxis, fields.increment })
        || (fields.hasStart && fields.start.isEmpty()))
        return {};
    return fields;
}

QStringView captionOf(MouseCommand command)
{
    return mouseCommands[size_t(command)].caption;
}

Generated mouseCommand(MouseCommand command, const MouseCommandFields &fields)
{
    if (command == MoveX || command == MoveY)
        return mouseMove(captionOf(command), fields.value);
    const bool isWhole = command == ButtonStatement || command == ZeroMouse;
    const QString text = command == ButtonStatement
        ? buttonStatement(fields.statement)
        : mouseCommands[size_t(command)].text.toString() + u' ';
    return plainStatement(text, isWhole);
}

std::optional<ReadMouseCommand> readMouseCommand(QStringView text)
{
    const auto parts = PartedStatement::of(text);
    if (!parts)
        return {};
    const bool isOnePart = parts->size() == 1 && parts->head().isEmpty();
    const auto inside = isOnePart ? parts->inside(0) : std::nullopt;
    if (inside && !inside->isEmpty()) {
        for (const MouseCommand move : { MoveX, MoveY }) {
            if (language::sameWord(captionOf(move), parts->word(0)))
                return ReadMouseCommand{ move, { 0, inside->toString() } };
        }
        return {};
    }
    for (const int statement : { 0, 1 }) {
        if (parts->isWords(buttonStatement(statement).simplified()))
            return ReadMouseCommand{ ButtonStatement, { statement } };
    }
    for (int command = 0; command < mouseCommandCount; ++command) {
        const QStringView words = mouseCommands[size_t(command)].text;
        if (!words.isEmpty() && parts->isWords(words))
            return ReadMouseCommand{ MouseCommand(command), {} };
    }
    return {};
}

} // namespace zeph
