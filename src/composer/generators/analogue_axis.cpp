// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/generators/analogue_axis.h"

namespace zeph {

using namespace language;

namespace {

constexpr std::array singleAxes{ u"JOYX"_w, u"JOYY"_w, u"THR"_w,  u"ANT"_w, u"RNG"_w,
                                 u"RDDR"_w, u"LBRK"_w, u"RBRK"_w, u"MIX"_w, u"MIY"_w };
constexpr std::array axisPairs{ u"JOYSTICK"_w, u"ROTARIES"_w, u"TOEBRAKES"_w, u"MICROSTICK"_w };

Refusal wrongTrim(QStringView size)
{
    return { u"Incorrect trim value buddy"_s,
             u"The trim value you've entered is too %1 - it must lie within the range -127 to 127. "
             u"Note that if you added a '+' or '-' sign to the value, you don't need to."_s.arg(
                 size) };
}

} // namespace

Words swapPartners(QStringView axis)
{
    return rowOf(axis).is(AxisGroupRole) ? Words(axisPairs) : Words(singleAxes);
}

QString filledValue(const QString &value)
{
    return value.isEmpty() ? u"0"_s : value;
}

Generated generateCurve(const CurveFields &fields)
{
    if (lacksText({ fields.axis }))
        return Unexpected(missingText());
    const QString value = filledValue(fields.value);
    if (qAbs(qint64(wholeOf(value))) > lastCurve)
        return Unexpected(Refusal{
            u"Ooops!"_s,
            u"The curve value you have entered is invalid. It must lie between -32 and 32."_s });
    const QString arguments = u"(%1, %2)"_s.arg(fields.axis, value);
    switch (fields.form) {
    case CurveFields::Form::Configuration:
        return plainStatement(u"USE CURVE "_s + arguments, true);
    case CurveFields::Form::Curve: {
        const QString slash = curveSlashes[size_t(fields.slash)].toString();
        const QString start = fields.beginsWithCurve ? u"CURVE "_s : QString();
        return plainStatement(start + slash + u' ' + arguments, fields.beginsWithCurve);
    }
    case CurveFields::Form::Button:
        break;
    }
    const bool hasEvent = fields.event != int(curveEvents.size()) - 1;
    const QString event =
        hasEvent ? curveEvents[size_t(fields.event)].toString() + u' ' : QString();
    return plainStatement(event + u"CURVE "_s + arguments, false);
}

QString curveExample(CurveFields::Form form)
{
    switch (form) {
    case CurveFields::Form::Configuration:
        return u"USE CURVE (JOYSTICK, -2)"_s;
    case CurveFields::Form::Curve:
        return u"CURVE /I (THR, 4)\n             /O (THR, 0)"_s;
    case CurveFields::Form::Button:
        break;
    }
    return u"BTN T6 /P CURVE (RNG, 2)\n               /R CURVE (RNG, 0)"_s;
}

// The order decides: the value "0" writes "0" whatever the type.
Generated generateTrim(const TrimFields &fields)
{
    using enum TrimFields::Type;
    if (lacksText({ fields.axis }))
        return Unexpected(missingText());
    const QString value = filledValue(fields.value);
    const int number = wholeOf(value);
    const bool hasValue = fields.type == Add || fields.type == Fixed;
    if (hasValue && number > lastTrim)
        return Unexpected(wrongTrim(u"large"));
    if (hasValue && number < 0)
        return Unexpected(wrongTrim(u"small"));
    if (fields.type == Hold)
        return plainStatement(u"HOLDTRIM (%1) "_s.arg(fields.axis), false);
    const QString start = u"TRIM ("_s + fields.axis + u", "_s;
    const QString minus = fields.isNegative ? u"-"_s : QString();
    if (fields.type == Remove || value == u"0")
        return plainStatement(start + u"0)"_s, false);
    if (fields.type == Add)
        return plainStatement(start + value + (fields.isNegative ? u"-)"_s : u"+)"_s), false);
    if (fields.type == ToCurrent)
        return plainStatement(start + u"TO_CURRENT)"_s, false);
    return plainStatement(start + minus + value + u')', false);
}

TrimValueBox trimValueBox(TrimFields::Type type, const QString &text)
{
    using enum TrimFields::Type;
    const QString notAsked = u"n/a"_s;
    const QString value = text == notAsked ? u"0"_s : text;
    switch (type) {
    case Add:
        return { value, true, TrimValueBox::Sign::After };
    case Fixed:
        return { value, true, TrimValueBox::Sign::Before };
    case Remove:
        return { u"0"_s, false, TrimValueBox::Sign::None };
    case ToCurrent:
    case Hold:
        break;
    }
    return { notAsked, false, TrimValueBox::Sign::None };
}

Generated generateDisable(const QString &axis)
{
    if (lacksText({ axis }))
        return Unexpected(missingText());
    return plainStatement(u"DISABLE "_s + axis, true);
}

Generated generateLock(const LockFields &fields)
{
    if (lacksText({ fields.axis }))
        return Unexpected(missingText());
    if (fields.unlocks)
        return plainStatement(u"UNLOCK (%1)"_s.arg(fields.axis), false);
    const QString value = fields.toLastValue ? u"LASTVALUE"_s : filledValue(fields.value) + u'%';
    return plainStatement(u"LOCK (%1, %2)"_s.arg(fields.axis, value), false);
}

LockBoxes lockBoxes(const LockFields &fields)
{
    const bool empties = fields.toLastValue && !fields.unlocks;
    return { !fields.unlocks, !fields.unlocks && !fields.toLastValue,
             empties ? QString() : fields.value };
}

Generated generateSwap(const SwapFields &fields)
{
    if (lacksText({ fields.first, fields.second }))
        return Unexpected(missingText());
    const QString swap = u"SWAP (%1, %2)"_s.arg(fields.first, fields.second);
    return plainStatement(fields.isConfiguration ? u"USE "_s + swap : swap, fields.isConfiguration);
}

Generated generateReverse(const ReverseFields &fields)
{
    using enum ReverseFields::Form;
    if (lacksText({ fields.axis }))
        return Unexpected(missingText());
    const QString head = fields.form == Configuration ? u"USE REVERSE ("_s
        : fields.form == Reverse                      ? u"REVERSE ("_s
                                                      : u"FORWARD ("_s;
    return plainStatement(head + fields.axis + u')', fields.form == Configuration);
}

QString throttleRangeText(const ThrottleRangeFields &fields)
{
    const QString head = fields.isConfiguration ? u"USE THR_RANGE ("_s : u"THR_RANGE ("_s;
    return head + filledValue(fields.from) + u"%, "_s + filledValue(fields.to) + u"%)"_s;
}

Generated generateThrottleRange(const ThrottleRangeFields &fields)
{
    if (wholeOf(fields.to) <= wholeOf(fields.from))
        return Unexpected(Refusal{
            u"This statement will fail to compile buddy"_s,
            u"The statement is invalid. The text areas either do not both contain numbers or the "
            u"first value is actually greater or equal to the second value. See the help file for "
            u"further information."_s });
    return plainStatement(throttleRangeText(fields), fields.isConfiguration);
}

Refusal noThrottleRangeWizard()
{
    return { u"I can't find ThrottleRange.exe buddy"_s,
             u"I was unable to find ThrottleRange.exe. It should be in the main HOTAS folder along "
             u"with the compiler, firmware and CCP. If it's not there, then you probably don't "
             u"have the latest TM software installed, as this application was not present in "
             u"earlier versions. Goto the TM site or Klaifi and download the latest Cougar "
             u"software, and install that."_s };
}

Refusal noThrottleRangeValues()
{
    return { u"I can't find the wizard's generated data"_s,
             u"Have you used the THR_RANGE wizard to get the values required for this statement? "
             u"If so, then I'm confused as I couldn't find the values it has generated. Make sure "
             u"that you have performed a manual calibration with the CCP at some point, and also "
             u"that you have run the wizard. If you don't have the wizard, then you need to "
             u"download the latest Cougar software from Thrustmaster or Klaifi.\n\nExiting this "
             u"routine now."_s };
}

} // namespace zeph
