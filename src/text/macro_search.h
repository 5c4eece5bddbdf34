// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Where a text names macros. Positions are 0-based; names are compared in any case and hold no line
// end. Each rule is the tool's own: files rely on the differences.

#include "platform/core/base.h"

#include <QStringList>

namespace zeph {

/// Positions at which a joystick text uses a macro, comments left out. A search goes on behind the
/// hit before it.
QList<qsizetype> macroUses(QStringView joystickText, const QString &name);

/// Whether the text uses each of the names, in their order: what macroUses() says of each, found in
/// one walk over the text.
QList<bool> usedMacros(QStringView joystickText, const QStringList &names);

/// Positions at which a rename replaces a macro's name. Narrower behind the name than a use, and
/// comments are not left out.
QList<qsizetype> renameHits(QStringView text, const QString &name);

/// The word that the character at a position belongs to; empty when it belongs to none.
QString wordOver(QStringView text, qsizetype position);

} // namespace zeph
