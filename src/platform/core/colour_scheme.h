// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/units.h"

namespace zeph {

/// The colours of the painter's classes of words. The settings have one for each kind of document.
struct ColourScheme {
    ColorRef plain = 0;
    ColorRef btn = 0;
    ColorRef slash = 0;
    ColorRef raw = 0;
    ColorRef miscellaneous = 0;
    ColorRef rem = 0;
};

} // namespace zeph
