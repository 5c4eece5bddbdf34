// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What the macro wizard and Speedy write into a macro file, and what they say about a name.

#include "platform/core/base.h"

namespace zeph {

/// The line of a macro, with "_" for what its name may not hold. Nothing without a name.
QString previewOf(const QString &name, const QString &keys);
/// A heading: three lines with line ends, and a blank line after them.
QString headingLines(const QString &heading);
/// What is wrong with a new macro's name, in words, when the macro file has that text; empty when
/// nothing is.
QString warningAbout(const QString &name, const QString &macroFile);

} // namespace zeph
