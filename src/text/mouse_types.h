// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What the mouse types of USE MTYPE make of the throttle's buttons T1 and T6.

#include "text/text_lines.h"

namespace zeph {

enum class MouseButton : quint8 { None, Left, Right };

/// The Composer tells a type by the throttle button of each mouse button; the layout sheets and
/// Quick View tell it by what T1 and T6 do. For A4 the two differ, and pilots know both as they
/// are.
struct MouseType {
    QStringView name;
    /// The throttle button that is the mouse's left and right one; empty without one.
    QStringView left;
    QStringView right;
    MouseButton t1 = MouseButton::None;
    MouseButton t6 = MouseButton::None;
};

inline constexpr MouseType mouseTypes[] = {
    { u"A1", u"T1"_w, u"T6"_w, MouseButton::Left, MouseButton::Right },
    { u"A2", u"T6"_w, u"T1"_w, MouseButton::Right, MouseButton::Left },
    { u"A3", u"T1"_w, {}, MouseButton::Left, MouseButton::None },
    { u"A4", u"T6"_w, {}, MouseButton::Right, MouseButton::None },
    { u"A5", {}, {}, MouseButton::None, MouseButton::None },
};

} // namespace zeph
