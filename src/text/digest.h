// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// A joystick file's statements as a plain list, which Quick View reads. Line ends are '\n'.

#include "platform/core/base.h"

#include <vector>

namespace zeph {

struct Digest {
    /// Records, each begun by a line "*** ", and a line "END " after the last one. Every line ends
    /// in a blank.
    QString text;
    /// For each line of the text the 1-based line of the joystick file that it was made of; 0 for
    /// "*** " and "END ".
    std::vector<int> sources;
};

Digest digestOf(QStringView joystickText);

/// The digest's text alone.
QString LeftAlignAnalyse(QStringView joystickText);

} // namespace zeph
