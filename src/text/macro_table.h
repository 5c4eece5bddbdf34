// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What Zeph knows of the saved macro file: its macros and the headings that group them.

#include "platform/core/base.h"

#include <QStringList>

namespace zeph {

struct MacroTable {
    /// Every usable line of the macro file in order, trimmed on the left.
    QStringList MacroLines;
    /// The first is always "All"; empty in a cleared table.
    QStringList MacroHeadings;
    /// Names by heading, in file order, duplicates kept: the first list holds all macros.
    QList<QStringList> names;
};

/// The usable lines of a macro file's text.
QStringList usableMacroLines(QStringView text);
/// Headings and macros of the lines.
MacroTable extractMacros(const QStringList &lines);
/// A macro line's name: before the first "=", tabs deleted, blanks trimmed.
QString macroName(QStringView line);
/// The line that shows a macro's keys, as it stands in the file; no value when none is written
/// "name =".
std::optional<QString> macroKeys(const MacroTable &table, const QString &name);
/// What the table holds, for the tooltip of the status panel.
QString macroCounts(const MacroTable &table);
/// A name as a pilot types it, with "_" in place of each character that no macro's name may hold.
QString withoutRefused(QString typed);

} // namespace zeph
