// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "text/painter.h"

namespace zeph {

/// The passes for the boxes of the layout sheets. They know no configuration words, which a sheet
/// does not show.
std::span<const PaintPass> layoutPasses();

} // namespace zeph
