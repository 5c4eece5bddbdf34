// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QComboBox>
#include <QLabel>

namespace zeph {

/// Fills ComboScreenRes with the usual resolutions and, where there is a picture, with its size,
/// which is selected. Without one, what was selected or typed stays.
void fillResolutions(QComboBox &list, const QSize &picture);

/// Fills ComboSteps and selects a number.
void fillSteps(QComboBox &list, int selected);

/// Keeps two lines for a statement: a layout that asks for one may get too little room for a long
/// statement.
void giveRoomForStatement(QLabel &label);

/// Names the box of an editable list, for tests and for screen readers.
void nameBox(const QComboBox &list, const QString &accessibleName);

/// The topic of the help on mouse programming.
constexpr int mouseHelpTopic = 2060;

} // namespace zeph
