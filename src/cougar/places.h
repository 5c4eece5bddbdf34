// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Where the controls are on the pictures that ship with the program, and what they are called. The
// drawings in artwork/ say all of it.

#include "platform/core/base.h"

#include <QByteArrayView>
#include <QList>
#include <QRect>

namespace zeph {

/// A picture that ships as NAME.svg and NAME.bmp. The digest is the SHA-256 of the bitmap file in
/// lower case hexadecimal.
struct Drawing {
    QStringView name;
    QSize size; ///< in pixels of the bitmap
    QByteArrayView digest;
};

/// Where a control, or a direction, stage or position of it, is on a drawing.
struct ControlPlace {
    QStringView id; ///< BTN_4, H1UL, RNG
    QStringView control; ///< what the language calls it: T1, H1UL, RNG
    QRect place; ///< in pixels of the drawing's bitmap
};

/// A place on a picture that can be clicked: BTN_0 to BTN_13, HAT_0 to HAT_3 or TRIG.
struct HotSpot {
    QString id;
    QRect place; ///< in pixels of the picture

    friend bool operator==(const HotSpot &, const HotSpot &) = default;
};

/// The drawing of that name, in any case, with or without an ending as in "Throttle.bmp".
std::optional<Drawing> drawingNamed(QStringView name);

/// All places on the drawing of exactly that name; none on another picture.
QList<ControlPlace> placesOn(QStringView drawing);

/// The hot spots of a drawing, for a picture of that size which shows the same.
QList<HotSpot> hotSpotsOn(const Drawing &drawing, const QSize &picture);

/// What the language calls the control: "T1" for BTN_4. Empty for an id that no drawing has.
QString controlOf(QStringView id);
/// The id of what the language calls so, in exactly that spelling. Empty when there is none.
QString idOf(QStringView control);

/// What a person calls the hot spot: "Button T1", "Hat H1", "Trigger". Empty for other ids.
QString spokenName(QStringView id);

} // namespace zeph
