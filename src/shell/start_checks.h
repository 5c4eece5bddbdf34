// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/dialogs.h"

namespace zeph {

/// The warning for a screen whose logical pixels per inch are not the 96 that windows are drawn
/// for; no value when they are.
std::optional<Box> smallFontsWarning(int logicalDpi);

/// What is told when no numbered store is free any more.
Box tooManyWindowsBox();

} // namespace zeph
