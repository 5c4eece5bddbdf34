// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Which pages the mouse wizard has, in which order they come, and what is on each.

#include "composer/wizards/lesson.h"
#include "livetools/picture_gestures.h"

#include <QFlags>

namespace zeph {

/// OptionMouseMove, by index.
enum class MouseMovement : quint8 { Absolute, Relative, Rotation };
constexpr int mouseMovementCount = int(MouseMovement::Rotation) + 1;

enum class MouseWizardPage : quint8 {
    Introduction,
    Resolution,
    Choice,
    Absolute,
    Relative,
    RotateFrom,
    RotateTo,
    RotateHow,
    RotateValues,
};
constexpr int mouseWizardPageCount = int(MouseWizardPage::RotateValues) + 1;

/// A group of fields of the window. A page shows some of them below its lesson.
enum class MousePane : quint8 {
    Resolution = 1,
    Choice = 2,
    Coordinate = 4,
    Place = 8,
    Readings = 16, ///< what was measured of a rotation
    How = 32,
    Values = 64,
    Statement = 128,
};
Q_DECLARE_FLAGS(MousePanes, MousePane)
Q_DECLARE_OPERATORS_FOR_FLAGS(MousePanes)

struct MouseWizardRow {
    LessonPage lesson;
    MousePanes panes;
    /// What a drag on the picture means meanwhile.
    Gesture gesture;
    /// Whether the Insert button can be used.
    bool inserts;
};
const MouseWizardRow &rowOf(MouseWizardPage page);

/// The page that follows when this movement is chosen; no value after the last.
std::optional<MouseWizardPage> pageAfter(MouseWizardPage page, MouseMovement movement);
/// The page to which Back leads; no value before the first.
std::optional<MouseWizardPage> pageBefore(MouseWizardPage page, MouseMovement movement);

} // namespace zeph
