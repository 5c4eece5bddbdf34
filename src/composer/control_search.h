// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The controls of the pictures: what a click on one writes, and where the joystick file has it.

#include "text/text_lines.h"

#include <QStringList>

namespace zeph {

/// The controls that a click on a hot spot of that id offers, in the order of its menu: one of a
/// button, the five directions of a hat and then its four corners, the stages of the trigger. Empty
/// for an id that is no hot spot's.
QStringList offeredControls(QStringView id, bool triggerHasStages);
/// How many entries of a hat's controls are directions; the rest are corners.
inline constexpr int hatDirections = 5;

/// What a click inserts for a control: "BTN S1 ".
QString buttonStatement(const QString &control);

/// Where a joystick text has a control's statement, as buttonStatement() gives it or for an axis:
/// from its first character to after the blank or tab that follows the name, or to the line's end.
/// Case does not matter, and comments do not count. No value when the text has none.
std::optional<LineRange> findControl(QStringView joystickText, const QString &statement);

/// What a hot spot tells on hovering: the control's name and the lines of the statement that
/// findControl() finds, or that there is none.
QString toldOf(QStringView joystickText, const QString &control);

} // namespace zeph
