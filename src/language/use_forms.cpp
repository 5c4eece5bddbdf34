// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "language/use_forms.h"

#include "language/scan.h"

namespace zeph::language {

namespace {

constexpr UseForm useTable[] = {
    { u"MDEF"_w, UseShape::Tail },
    { u"MTYPE"_w, UseShape::Word },
    { u"HAT1 AS"_w, UseShape::Role },
    { u"HAT2 AS"_w, UseShape::Role },
    { u"HAT3 AS"_w, UseShape::Role },
    { u"HAT4 AS"_w, UseShape::Role },
    { u"RADIOSWITCH AS"_w, UseShape::Role },
    { u"KEYBOARD"_w, UseShape::Word },
    { u"NULLCHR"_w, UseShape::Tail },
    { u"RATE"_w, UseShape::Brackets },
    { u"SWAP"_w, UseShape::Brackets },
    { u"REVERSE"_w, UseShape::Brackets },
    { u"CURVE"_w, UseShape::Brackets },
    { u"THR_RANGE"_w, UseShape::Brackets },
    { u"HAT1_SENSITIVITY"_w, UseShape::Brackets },
    { u"HAT2_SENSITIVITY"_w, UseShape::Brackets },
    { u"HAT3_SENSITIVITY"_w, UseShape::Brackets },
    { u"HAT4_SENSITIVITY"_w, UseShape::Brackets },
    { u"T1_SENSITIVITY"_w, UseShape::Brackets },
    { u"HWSTARTUP"_w, UseShape::Brackets },
    { u"SCREEN_RESOLUTION"_w, UseShape::Brackets },
    { u"AXES_CONFIG"_w, UseShape::AxisList },
    { u"S3_LOCK"_w, UseShape::None },
    { u"ZERO_MOUSE"_w, UseShape::None },
    { u"CHORDED_FDFU"_w, UseShape::None },
    { u"ALL_DIRECTX_BUTTONS"_w, UseShape::None },
    { u"PROFILE"_w, UseShape::Tail },
    { u"ZEPH GRAPHIC"_w, UseShape::Tail },
    { u"ZEPH README"_w, UseShape::Tail },
    { u"ZEPH RUN_APP"_w, UseShape::Tail },
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

int useFormOf(QStringView afterUse)
{
    for (int index = 0; index < int(std::size(useTable)); ++index) {
        if (startsWithHead(afterUse, useTable[index].head))
            return index;
    }
    return -1;
}

} // namespace zeph::language
