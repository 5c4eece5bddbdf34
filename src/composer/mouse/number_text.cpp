// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/mouse/number_text.h"

#include <cmath>

namespace zeph {

QString numberText(double value)
{
    const double tenths = std::round(value * 10);
    // Without a sign, which a small negative number would bring along.
    if (tenths == 0)
        return u"0"_s;
    QString text = QString::number(tenths / 10, 'f', 1);
    if (text.endsWith(u".0"))
        text.chop(2);
    return text;
}

} // namespace zeph
