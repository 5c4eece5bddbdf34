// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What a run does as it comes up: what it warns of, and which files it opens.

#include "platform/dialogs.h"

#include <QStringList>

namespace zeph {

class Editor;
class ProfileFile;
struct EditorSettings;

/// The warning for a screen whose logical pixels per inch are not the 96 that windows are drawn
/// for; no value when they are.
std::optional<Box> smallFontsWarning(int logicalDpi);

/// The message when no numbered store is free any more.
Box tooManyWindowsBox();

/// The file that the command line names, with its full path; empty when it names none that exists.
/// All words together are also tried as one name, since a shell splits a name at blanks.
QString TestCommandLine(const QStringList &arguments);

/// The message when the command line names no file that exists.
Box missingFileBox(const QStringList &arguments);

/// Opens the command line's file, as the joystick file unless its ending says otherwise; else the
/// files of the last run; else the favourite that is to be opened at start.
void openStartFiles(Editor &editor, const QString &commandLineFile, const EditorSettings &settings,
                    const ProfileFile &store, Dialogs &dialogs);

} // namespace zeph
