// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

namespace zeph {

/// A number as the files write coordinates, lengths and angles: at most one decimal, rounded with
/// halves away from zero, after a point whatever the locale. Whole numbers have no point, and there
/// is a digit before one: "0.5", "90", "-12.3".
QString numberText(double value);

} // namespace zeph
