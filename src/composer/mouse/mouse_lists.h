// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QComboBox>

namespace zeph {

/// Fills ComboScreenRes with the usual resolutions and, where there is a picture, with its size,
/// which is selected. Without one, what was selected or typed stays.
void fillResolutions(QComboBox &list, const QSize &picture);

/// Fills ComboSteps and selects a number.
void fillSteps(QComboBox &list, int selected);

} // namespace zeph
