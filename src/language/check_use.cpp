// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "language/reporter.h"
#include "language/scan.h"
#include "language/use_forms.h"
#include "language/words.h"

namespace zeph::language {

namespace {

/// Walks over the items of a USE statement's body.
class UseBody
{
public:
    UseBody(const Source &source, const JoystickStatement &statement)
        : m_source(source), m_at(statement.body.items.first), m_end(statement.body.items.end)
    {
    }

    /// The next item outside all brackets, or null at the end.
    const Item *next()
    {
        if (m_at >= m_end)
            return nullptr;
        const Item &item = m_source.items[m_at];
        m_at = item.endItem;
        return &item;
    }

    /// The word of an item, without the brackets of a call; empty for null.
    QStringView word(const Item *item) const
    {
        if (!item)
            return {};
        const QStringView text = m_source.at(*item);
        return item->kind == ItemKind::Call ? text.first(nameEnd(text, 0)) : text;
    }

private:
    const Source &m_source;
    int m_at;
    int m_end;
};

bool isMouseType(QStringView word)
{
    const std::optional<int> number =
        sameWord(word.first(1), u"A") ? wholeNumber(word.sliced(1)) : std::nullopt;
    return number && *number >= 1 && *number <= lastMouseType;
}

void checkMouseType(Reporter &reporter, UseBody body)
{
    const Item *type = body.next();
    const QStringView word = body.word(type);
    // With other characters in it, an option may follow without a blank.
    const bool isName = !word.isEmpty() && nameEnd(word, 0) == word.size();
    if (isName && !isMouseType(word))
        reporter.report(UnknownMouseType, type->place, u"There is no mouse type %1"_s.arg(word));
}

void checkHatRole(Reporter &reporter, const JoystickStatement &statement, UseBody body)
{
    const Item *role = body.next();
    if (!role || !rowOf(body.word(role)).is(HatUseRole)) {
        reporter.report(UnknownHatRole, role ? role->place : statement.subject,
                        u"A hat can be POV, ARROWKEYS, KEYPAD or MOUSE"_s);
        return;
    }
    if (role->kind != ItemKind::Call || !role->closed)
        return;
    const Arguments arguments = argumentsOf(reporter.source(), *role);
    const std::optional<int> rate = wholeNumber(arguments[0].text);
    if (rate && (*rate < 1 || *rate > lastMouseRate))
        reporter.report(ValueOutOfRange, arguments[0].place,
                        u"The mouse rate %1 lies outside 1 to %2"_s.arg(*rate).arg(lastMouseRate));
}

void checkAxesConfiguration(Reporter &reporter, const JoystickStatement &statement, UseBody body)
{
    std::array<bool, lastDirectXAxis + 1> used{};
    bool understood = true;
    while (const Item *item = body.next()) {
        if (item->kind != ItemKind::Group)
            continue;
        if (!item->closed) {
            understood = false;
            continue;
        }
        const Arguments arguments = argumentsOf(reporter.source(), *item);
        const std::optional<int> number = wholeNumber(arguments[0].text);
        if (arguments.size() != 2 || !number) {
            understood = false;
            continue;
        }
        QStringView axis = arguments[1].text;
        if (axis.startsWith(u'-') || axis.startsWith(u'+'))
            axis = axis.sliced(1).trimmed();
        if (!rowOf(axis).is(AxisRole))
            reporter.report(UnknownAxis, arguments[1].place, u"There is no axis %1"_s.arg(axis));
        if (*number < 1 || *number > lastDirectXAxis) {
            reporter.report(AxesConfiguration, arguments[0].place,
                            u"There is no DirectX axis %1"_s.arg(*number));
        } else if (std::exchange(used[size_t(*number)], true)) {
            reporter.report(AxesConfiguration, arguments[0].place,
                            u"DirectX axis %1 is used twice"_s.arg(*number));
        }
    }
    // A bracket that was never opened is told instead.
    const qsizetype from = statement.place.position;
    if (hasStrayClosing(reporter.source(), from, statement.place.end()))
        return;
    if (understood && (!used[1] || !used[2]))
        reporter.report(AxesConfiguration, statement.subject,
                        u"DirectX axes 1 and 2 must have an axis"_s);
}

void checkMouseAxis(Reporter &reporter, const Word &axis, const Item &role, QStringView word)
{
    const bool wholeMouse = sameWord(word, u"MOUSE"_w);
    if ((axis.is(AxisGroupRole) && !wholeMouse) || (axis.is(AxisRole) && wholeMouse))
        reporter.report(AxisAsMouse, role.place, u"The axis cannot drive %1"_s.arg(word));
    if (role.kind != ItemKind::Call || !role.closed)
        return;
    const Arguments arguments = argumentsOf(reporter.source(), role);
    if (arguments.size() < 2)
        return;
    const std::optional<int> scale = wholeNumber(arguments[0].text);
    const std::optional<int> increment = wholeNumber(arguments[1].text);
    if (scale && increment && qint64(*scale) * *increment > lastMouseRate)
        reporter.report(ValueOutOfRange, role.place,
                        u"Scale times increment must be less than %1"_s.arg(lastMouseRate + 1));
}

void checkDirectXButton(Reporter &reporter, const Item &role, QStringView word)
{
    const std::optional<int> number = wholeNumber(word.sliced(2));
    if (number && (*number < 1 || *number > lastDirectXButton))
        reporter.report(DirectXButton, role.place, u"There is no DirectX button %1"_s.arg(*number));
}

// Whether the word is `before`, a number and `after`.
bool isNumbered(QStringView word, QStringView before, QStringView after)
{
    const qsizetype digits = word.size() - before.size() - after.size();
    return digits > 0 && word.startsWith(before, Qt::CaseInsensitive)
        && word.endsWith(after, Qt::CaseInsensitive)
        && wholeNumber(word.sliced(before.size(), digits));
}

// USE HAT1 FORCED_CORNERS and USE HAT1_SENSITIVITY (5), with a hat that does not exist.
void checkHatOption(Reporter &reporter, UseBody body)
{
    const Item *name = body.next();
    const QStringView word = body.word(name);
    const bool isSensitivity =
        isNumbered(word, u"HAT", sensitivityEnding) || isNumbered(word, u"T", sensitivityEnding);
    const bool hasCorners = sameWord(body.word(body.next()), u"FORCED_CORNERS"_w);
    if (hasCorners && sameWord(word, u"RADIOSWITCH"_w))
        reporter.report(UnknownHatRole, name->place, u"The radio switch has no corners"_s);
    else if (isSensitivity)
        reporter.report(UnknownControl, name->place,
                        u"%1 has no sensitivity"_s.arg(word.chopped(sensitivityEnding.size())));
    else if (hasCorners && !rowOf(word).is(HatRole))
        reporter.report(UnknownControl, name->place, u"%1 is no hat with corners"_s.arg(word));
}

// Checks "NAME AS ROLE" for controls, hats and axes. Other statements are not known well enough.
void checkAssignment(Reporter &reporter, UseBody body)
{
    const Item *name = body.next();
    const Item *as = body.next();
    const Item *role = body.next();
    if (!role || !sameWord(body.word(as), u"AS"_w))
        return;
    const QStringView nameWord = body.word(name);
    const Word &row = rowOf(nameWord);
    const QStringView word = body.word(role);
    const bool toButton = word.startsWith(u"DX", Qt::CaseInsensitive);
    const bool needsControl = toButton || sameWord(word, u"SHIFTBTN"_w);
    const bool isAxis = row.is(AxisRole) || row.is(AxisGroupRole);
    // A flag can be used like a button. Other words of the language may take roles unknown here.
    const bool isPossible =
        row.is(ControlRole) || flagNumber(nameWord) || (!needsControl && row.isKnown());
    const bool toMouse = sameWord(word, u"MOUSE"_w) || rowOf(word).is(MouseAxisRole);
    const bool meansAxis = toMouse && !nameWord.startsWith(u"HAT", Qt::CaseInsensitive);
    if (!isPossible && meansAxis)
        reporter.report(UnknownAxis, name->place, u"There is no axis %1"_s.arg(nameWord));
    else if (!isPossible)
        reporter.report(UnknownControl, name->place, u"There is no control %1"_s.arg(nameWord));
    if (toButton)
        checkDirectXButton(reporter, *role, word);
    else if (isAxis && toMouse)
        checkMouseAxis(reporter, row, *role, word);
}

} // namespace

void checkUse(Reporter &reporter, const JoystickStatement &statement)
{
    const UseBody body(reporter.source(), statement);
    if (statement.useForm < 0) {
        checkHatOption(reporter, body);
        return checkAssignment(reporter, body);
    }
    const UseForm &form = useForms()[size_t(statement.useForm)];
    if (form.head == u"MTYPE"_w)
        checkMouseType(reporter, body);
    else if (form.shape == UseShape::Role)
        checkHatRole(reporter, statement, body);
    else if (form.shape == UseShape::AxisList)
        checkAxesConfiguration(reporter, statement, body);
}

} // namespace zeph::language
