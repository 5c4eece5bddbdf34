// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What the mouse wizard makes of the gestures on the picture and of its own fields.

#include "composer/mouse/coordinates.h"
#include "composer/mouse/mouse_programs.h"
#include "composer/mouse/wizard_pages.h"

namespace zeph {

struct MouseWizardFields {
    Measures measures = {};
    /// Of the picture, in pixels; empty without one.
    QSize picture = {};
    MouseMovement movement = MouseMovement::Absolute;
    /// One of mouseOrigins, for a place and for a rotation.
    QString origin = mouseOrigins[0].toString();
    /// CheckMouseXY, for a place and for a way.
    MouseUnit placeUnit = MouseUnit::Pixels;
    /// CHK_MRpercent, for a rotation.
    MouseUnit rotateUnit = MouseUnit::Pixels;
    QString macro = {};
    bool isClockwise = true;
    QString steps = {};
};

/// LBL_MouseXY: the clicked place or the way of the line, as "x,y"; empty while there is none.
QString measuredText(const MouseWizardFields &fields);

/// What is known of the rotation by now; texts of what was not measured are empty. A final angle
/// of 0 is 360, so that a full turn ends where it began.
RotateTexts rotateValuesSoFar(const MouseWizardFields &fields);
/// The same, refused when a gesture is missing.
Expected<RotateTexts, Refusal> rotateValues(const MouseWizardFields &fields);

/// MOUSEXY or MOUSEMOVE, refused when nothing was measured.
Generated placeStatement(const MouseWizardFields &fields);
/// MOUSEROTATE of the values that the pilot may have edited; refused when one of them is empty.
Generated rotateStatement(RotateTexts values);

/// LBL_MouseStatement: the statement as far as it is known, a question mark for what is to come.
QString growingStatement(const MouseWizardFields &fields);
QString growingRotation(RotateTexts values);

} // namespace zeph
