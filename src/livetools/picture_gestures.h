// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

#include <QPointF>

#include <optional>

namespace zeph {

/// What a drag on the picture of the Image Viewer means while the mouse wizard asks for one.
enum class Gesture {
    None, ///< the left button moves the picture
    Point, ///< a click chooses a place
    Line, ///< a drag from where the mouse is to where it goes
    Radius, ///< a drag from a rotary switch's centre to the place to rotate from
    Target, ///< the pointer with Shift held: the place to rotate to; the right button clears it
};

/// What the gestures measured, in pixels of the picture from its upper left corner, y downwards,
/// whatever the zoom and the screen's scale. A value that was not measured yet is empty.
struct Measures {
    std::optional<QPointF> from; ///< the clicked place, a line's start, or the centre of a switch
    std::optional<QPointF> to; ///< a line's end, or the place to rotate from
    std::optional<QPointF> target; ///< the place to rotate to, on the circle through `to`

    friend bool operator==(const Measures &, const Measures &) = default;
};

} // namespace zeph
