// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/generators/digital_axis.h"

#include "platform/core/units.h"

namespace zeph {

namespace {

using Fields = DigitalAxisFields;
using Composed = Expected<QString, Refusal>;

QString headOf(const Fields &fields)
{
    const QString axis = fields.withoutAxis ? QString() : fields.axis;
    return fields.slash == 0 ? axis : axis + u' ' + digitalSlashes[size_t(fields.slash)].toString();
}

Refusal bandsMustBeEven()
{
    return { u"Bands must be even"_s,
             u"The number of character/macros (ie. Number of bands) must be even when providing a "
             u"centre character buddy"_s };
}

bool isEven(QStringView count)
{
    const double half = leadingNumber(count) / 2;
    return half == roundHalfEven(half);
}

Composed steps(const Fields &fields)
{
    const auto &[up, down, centre] = fields.keys;
    if (lacksText({ fields.count, up, down }))
        return Unexpected(missingText());
    if (!centre.isEmpty() && !isEven(fields.count))
        return Unexpected(bandsMustBeEven());
    return u" 1 %1 %2 %3 %4 "_s.arg(fields.count, up, down, centre);
}

Composed sequence(const Fields &fields)
{
    if (lacksText({ fields.count, fields.keys[0] }))
        return Unexpected(missingText());
    return u" 2 %1 %2"_s.arg(fields.count, fields.keys[0]);
}

Composed held(const Fields &fields)
{
    const auto &[left, centre, right] = fields.keys;
    if (lacksText({ left, centre, right }))
        return Unexpected(missingText());
    return u" 3 %1 %2 %3 "_s.arg(left, centre, right);
}

Composed pulsed(const Fields &fields)
{
    const auto &[left, centre, right] = fields.keys;
    if (lacksText({ fields.count, left, centre, right }))
        return Unexpected(missingText());
    return u" 4 %1 %2 %3 %4 "_s.arg(fields.count, left, centre, right);
}

QString bordersOf(const Bands &bands)
{
    QStringList borders;
    for (int border = 0; border <= bands.count(); ++border)
        borders.append(QString::number(bands.shownBorder(border)));
    return borders.join(u' ');
}

QString keyOrNull(const QString &key)
{
    return key.isEmpty() ? u"^ "_s : key + u' ';
}

Composed banded(const Fields &fields)
{
    const Bands &bands = fields.bands;
    if (!bands.isApplied() || bands.type() != fields.type)
        return Unexpected(missingText());
    const bool isStepped = fields.type == 6;
    QString keys;
    for (int index = 0; index < bands.macros(); ++index) {
        const QString &key = bands.macro(index);
        const bool mayLack = isStepped && index == Bands::centre;
        if (!mayLack || !key.isEmpty())
            keys += keyOrNull(key);
    }
    return u" %1 %2 (%3) %4"_s.arg(QString::number(fields.type), QString::number(bands.count()),
                                   bordersOf(bands), keys);
}

using Compose = Composed (*)(const Fields &);

struct Type {
    Compose compose;
    bool takesForceMacros;
};

constexpr Type types[language::lastAxisType] = {
    { steps, true },   { sequence, true }, { held, false },
    { pulsed, false }, { banded, true },   { banded, true },
};

} // namespace

Generated generateDigitalAxis(const DigitalAxisFields &fields)
{
    if (!fields.withoutAxis && fields.axis.isEmpty())
        return Unexpected(missingText());
    const Type &type = types[fields.type - 1];
    const Composed composed = type.compose(fields);
    if (!composed)
        return Unexpected(composed.error());
    const bool isForced = fields.forceMacros && type.takesForceMacros;
    return plainStatement(headOf(fields) + *composed + (isForced ? u" - FORCE_MACROS"_s : u""_s),
                          !fields.withoutAxis && fields.slash == 0);
}

QString withoutAxisCaption(const QString &axis)
{
    return u"Don't insert with "_s + axis;
}

MouseShortcut withMouseShortcut(const QString &text, bool isRightButton)
{
    constexpr qsizetype lengthOfValue = 5;
    const QString result = text + (isRightButton ? u"MSY(value)"_s : u"MSX(value)"_s);
    return { result, result.size() - lengthOfValue - 1, lengthOfValue };
}

} // namespace zeph
