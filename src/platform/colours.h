// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Colours as the files keep them and as the toolkit takes them.

#include "platform/core/units.h"

#include <QColor>

#include <cmath>

namespace zeph {

inline QColor toColor(ColorRef colour)
{
    return QColor(redOf(colour), greenOf(colour), blueOf(colour));
}

/// Drops the alpha channel.
inline ColorRef fromColor(const QColor &colour)
{
    return colorRef(quint32(colour.red()), quint32(colour.green()), quint32(colour.blue()));
}

/// A colour between two others; the share, 0 to 1, is the second one's.
inline QColor mixed(const QColor &one, const QColor &other, double share)
{
    const auto mix = [share](int from, int to) {
        return int(std::lround(from + (to - from) * share));
    };
    return { mix(one.red(), other.red()), mix(one.green(), other.green()),
             mix(one.blue(), other.blue()) };
}

} // namespace zeph
