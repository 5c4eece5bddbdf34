// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "language/forms.h"

#include "language/scan.h"

namespace zeph::language {

namespace {

constexpr UseForm useTable[] = {
    { u"MDEF", UseShape::Tail },
    { u"MTYPE", UseShape::Word },
    { u"HAT1 AS", UseShape::Role },
    { u"HAT2 AS", UseShape::Role },
    { u"HAT3 AS", UseShape::Role },
    { u"HAT4 AS", UseShape::Role },
    { u"RADIOSWITCH AS", UseShape::Role },
    { u"KEYBOARD", UseShape::Word },
    { u"NULLCHR", UseShape::Tail },
    { u"RATE", UseShape::Brackets },
    { u"SWAP", UseShape::Brackets },
    { u"REVERSE", UseShape::Brackets },
    { u"CURVE", UseShape::Brackets },
    { u"THR_RANGE", UseShape::Brackets },
    { u"HAT1_SENSITIVITY", UseShape::Brackets },
    { u"HAT2_SENSITIVITY", UseShape::Brackets },
    { u"HAT3_SENSITIVITY", UseShape::Brackets },
    { u"HAT4_SENSITIVITY", UseShape::Brackets },
    { u"T1_SENSITIVITY", UseShape::Brackets },
    { u"HWSTARTUP", UseShape::Brackets },
    { u"SCREEN_RESOLUTION", UseShape::Brackets },
    { u"AXES_CONFIG", UseShape::AxisList },
    { u"S3_LOCK", UseShape::None },
    { u"ZERO_MOUSE", UseShape::None },
    { u"CHORDED_FDFU", UseShape::None },
    { u"ALL_DIRECTX_BUTTONS", UseShape::None },
    { u"PROFILE", UseShape::Tail },
    { u"ZEPH GRAPHIC", UseShape::Tail },
    { u"ZEPH README", UseShape::Tail },
    { u"ZEPH RUN_APP", UseShape::Tail },
};

constexpr CallForm callTable[] = {
    { u"USB", CallShape::Any },
    { u"DLY", CallShape::Any },
    { u"RPT", CallShape::Any },
    { u"KD", CallShape::Keys },
    { u"KU", CallShape::Keys },
    { u"MSX", CallShape::Any },
    { u"MSY", CallShape::Any },
    { u"MSZ", CallShape::Any },
    { u"DELAY", CallShape::Any },
    { u"PULSE", CallShape::Any },
    { u"RATE", CallShape::Any },
    { u"CURVE", CallShape::AxisAndCurve },
    { u"TRIM", CallShape::AxisAndTrim },
    { u"HOLDTRIM", CallShape::Axis },
    { u"LOCK", CallShape::AxisAndLock },
    { u"UNLOCK", CallShape::Axis },
    { u"SWAP", CallShape::TwoAxes },
    { u"REVERSE", CallShape::Axis },
    { u"FORWARD", CallShape::Axis },
    { u"THR_RANGE", CallShape::TwoPercents },
    { u"SHIFTBTN", CallShape::Control },
    { u"MOUSEXY", CallShape::Screen },
    { u"MOUSEMOVE", CallShape::Screen },
    { u"MOUSEROTATE", CallShape::Screen },
    { u"SCREEN_RESOLUTION", CallShape::Any },
    { u"HWSTARTUP", CallShape::Any },
    { u"HAT1_SENSITIVITY", CallShape::Any },
    { u"HAT2_SENSITIVITY", CallShape::Any },
    { u"HAT3_SENSITIVITY", CallShape::Any },
    { u"HAT4_SENSITIVITY", CallShape::Any },
    { u"T1_SENSITIVITY", CallShape::Any },
    { u"MOUSE", CallShape::Any },
    { u"MOUSEX", CallShape::Any },
    { u"MOUSEY", CallShape::Any },
    { u"MOUSEZ", CallShape::Any },
};

bool startsWithHead(QStringView text, QStringView head)
{
    qsizetype at = 0;
    qsizetype from = 0;
    while (from < head.size()) {
        const qsizetype blank = head.indexOf(u' ', from);
        const qsizetype to = blank < 0 ? head.size() : blank;
        at = skipBlanks(text, at);
        const qsizetype end = nameEnd(text, at);
        if (text.sliced(at, end - at).compare(head.sliced(from, to - from), Qt::CaseInsensitive))
            return false;
        at = end;
        from = to + 1;
    }
    return true;
}

} // namespace

std::span<const UseForm> useForms()
{
    return useTable;
}

int useFormOf(QStringView behindUse)
{
    for (int index = 0; index < int(std::size(useTable)); ++index) {
        if (startsWithHead(behindUse, useTable[index].head))
            return index;
    }
    return -1;
}

std::span<const CallForm> callForms()
{
    return callTable;
}

} // namespace zeph::language
