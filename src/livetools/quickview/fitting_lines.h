// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

#include <QStringList>

class QFont;

namespace zeph {

/// A text in lines of a width in pixels, at most so many, broken at blanks where there are any.
/// What does not fit is left out, and the last line then ends in "…".
QStringList fittingLines(const QString &text, const QFont &font, qreal width, int mostLines);

} // namespace zeph
