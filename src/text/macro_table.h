// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The macros of the saved macro file and the headings that group them.

#include "platform/core/base.h"

#include <QStringList>

namespace zeph {

struct MacroTable {
    /// Every usable line of the macro file in order, without blanks at its start.
    QStringList MacroLines;
    /// "All" and then the file's headings; empty when no file was read.
    QStringList MacroHeadings;
    /// The names under each heading, in file order; a name that occurs twice is there twice. The
    /// first list holds all names.
    QList<QStringList> names;
};

/// The usable lines of a macro file's text.
QStringList usableMacroLines(QStringView text);
/// Finds headings and macros in usable lines.
MacroTable extractMacros(const QStringList &lines);
/// The name in a macro's line: the text before the first "=" without tabs and without blanks around
/// it.
QString macroName(QStringView line);
/// The first line of the file with "name =" at its start; no value when there is none, as for a
/// macro written "name=".
std::optional<QString> macroKeys(const MacroTable &table, const QString &name);
/// The table's numbers of macros and headings in words, for the tooltip of the status panel.
QString macroCounts(const MacroTable &table);
/// A typed or pasted name with "_" for each character that a macro's name may not hold. Line ends
/// around it, which come along when a whole line is copied, are left out.
QString withoutRefused(QString typed);

/// Why a macro cannot get a new name.
enum class NameFault {
    None,
    Same, ///< it has this name already, in this case
    Exists, ///< another macro has it, in any case
    LanguageWord, ///< it means something else in the files
    SwitchedOff, ///< it begins with "~", which switches a line off
    NotInCodePage ///< it has a character that the files cannot hold
};

/// Why a macro can't have that name; empty without a fault and for Same.
QString inWords(NameFault fault, const QString &name);

/// The first fault that keeps a macro from getting a new name; taken are the names of all macros.
NameFault faultOfNewName(const QString &oldName, const QString &newName, const QStringList &taken);

} // namespace zeph
