// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "livetools/picture_gestures.h"

namespace zeph {

/// Turns what the mouse does on a picture into measures, by the gesture that is asked for. All
/// places are pixels of the picture.
class GestureTracker
{
public:
    /// What an event led to.
    struct Outcome {
        bool isChanged = false; ///< the measures are others now
        bool isFinished = false; ///< a gesture has come to its end
    };

    Gesture gesture() const { return m_gesture; }
    /// Ends what is being drawn; the measures stay.
    void setGesture(Gesture gesture);
    /// The last gesture that was asked for, which says what the measures mean.
    Gesture meaning() const { return m_meaning; }

    const Measures &measures() const { return m_measures; }
    Outcome setMeasures(const Measures &measures);

    /// Whether the gesture is one that the left button draws.
    bool isDrawn() const;
    /// Whether something is being drawn, by a button or by Shift.
    bool isDrawing() const { return m_isDrawing; }

    /// The left button goes down.
    Outcome press(const QPointF &at);
    Outcome move(const QPointF &at, bool shift);
    /// The left button is let go. A line that ends where it began is none.
    Outcome release(const QPointF &at);
    Outcome shiftReleased();
    /// The right button goes down.
    Outcome pressRight();

private:
    Gesture m_gesture = Gesture::None;
    Gesture m_meaning = Gesture::None;
    Measures m_measures;
    bool m_isDrawing = false;
};

} // namespace zeph
