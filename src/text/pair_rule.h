// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Which macro file belongs to a joystick file: the rule of the last USE MDEF statement.

#include "platform/core/base.h"

namespace zeph {

/// What stands behind the last "USE MDEF" of a text, in any case, comments included.
struct MdefReference {
    QString wholeLine; ///< from the second character behind the words to the line's end
    QString cut; ///< the same up to "rem ", without blanks at its end
};

std::optional<MdefReference> lastMdefReference(QStringView joystickText);

/// The macro file's name for a reference in a joystick file of that name. A cut reference that has
/// the macro extension stands as it is; otherwise the whole line, comment and all, gets the
/// extension behind it: files rely on that.
QString macroNameFor(const MdefReference &reference, QStringView joystickName);

} // namespace zeph
