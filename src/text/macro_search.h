// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Finds the names of macros in a text. Positions are 0-based; names are compared in any case and
// hold no line end. Each function has the rule of its tool; files depend on the differences.

#include "platform/core/base.h"

#include <QStringList>

namespace zeph {

/// Positions at which a joystick text uses a macro, without those in comments. Hits do not overlap.
QList<qsizetype> macroUses(QStringView joystickText, const QString &name);

/// For each name, whether macroUses() would find it; all are sought in one walk over the text.
QList<bool> usedMacros(QStringView joystickText, const QStringList &names);

/// Positions at which a rename replaces a macro's name. Fewer characters may follow the name than
/// in macroUses(), and names in comments count.
QList<qsizetype> renameHits(QStringView text, const QString &name);

/// The text with another name wherever a rename replaces it.
QString renamedIn(QString text, const QString &name, const QString &newName);

/// The longest of the names that the line has as a whole word around or beside the position; empty
/// when there is none.
QString nameAt(QStringView line, qsizetype position, const QStringList &names);

/// The word that contains the position; empty when there is no word at it.
QString wordOver(QStringView text, qsizetype position);

} // namespace zeph
