// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Colours as the files keep them and as the toolkit takes them.

#include "platform/core/units.h"

#include <QColor>

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

} // namespace zeph
