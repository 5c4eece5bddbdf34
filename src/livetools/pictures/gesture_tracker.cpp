// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/pictures/gesture_tracker.h"

#include "livetools/picture_geometry.h"

#include <utility>

namespace zeph {

void GestureTracker::setGesture(Gesture gesture)
{
    m_isDrawing = false;
    m_gesture = gesture;
    if (gesture != Gesture::None) {
        m_meaning = gesture;
    }
}

GestureTracker::Outcome GestureTracker::setMeasures(const Measures &measures)
{
    const bool isChanged = m_measures != measures;
    m_measures = measures;
    return { .isChanged = isChanged };
}

bool GestureTracker::isDrawn() const
{
    return m_gesture == Gesture::Point || m_gesture == Gesture::Line
        || m_gesture == Gesture::Radius;
}

GestureTracker::Outcome GestureTracker::press(const QPointF &at)
{
    if (!isDrawn()) {
        return {};
    }
    m_isDrawing = true;
    return setMeasures({ at, {}, {} });
}

GestureTracker::Outcome GestureTracker::move(const QPointF &at, bool shift)
{
    Measures now = m_measures;
    if (m_gesture == Gesture::Target) {
        if (!shift) {
            return shiftReleased();
        }
        const double radius = radiusOf(now);
        if (radius == 0) {
            return {};
        }
        m_isDrawing = true;
        now.target = pointOnCircle(*now.from, radius, at);
        return setMeasures(now);
    }
    if (!m_isDrawing) {
        return {};
    }
    (m_gesture == Gesture::Point ? now.from : now.to) = at;
    return setMeasures(now);
}

GestureTracker::Outcome GestureTracker::release(const QPointF &at)
{
    if (!m_isDrawing || !isDrawn()) {
        return {};
    }
    const Measures before = m_measures;
    move(at, false);
    m_isDrawing = false;
    if (m_measures.to == m_measures.from) {
        m_measures.to.reset();
    }
    return { .isChanged = m_measures != before, .isFinished = true };
}

GestureTracker::Outcome GestureTracker::shiftReleased()
{
    return { .isFinished = m_gesture == Gesture::Target && std::exchange(m_isDrawing, false) };
}

GestureTracker::Outcome GestureTracker::pressRight()
{
    if (m_gesture != Gesture::Target) {
        return {};
    }
    m_isDrawing = false;
    Measures now = m_measures;
    now.target.reset();
    return setMeasures(now);
}

} // namespace zeph
