// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What a run does as it comes up: what it answers and warns of, and which files it opens.

#include "platform/dialogs.h"

#include <QStringList>

namespace zeph {

class Editor;
class ProfileFile;
struct EditorSettings;
struct Paths;

/// The warning for a screen whose logical pixels per inch are not the 96 that windows are drawn
/// for; no value when they are.
std::optional<Box> smallFontsWarning(int logicalDpi);

/// The message when no numbered store is free any more.
Box tooManyWindowsBox();

/// The message when nothing can be written, in the program's folder or anywhere else.
Box nowhereToWriteBox(const QString &appFolder);

/// The status line that names the files which stayed as the user changed them.
QString keptFilesText(const QStringList &files);

/// Brings up to date what other programs read of where the user's files are. Writes nothing that is
/// not there yet.
void renewFilesFolder(const Paths &paths);

/// What a command line with --help or --version (without the program's name) asks for: lines, each
/// with its end, to show without a window; none for any other. Help wins over the version.
std::optional<QString> commandLineAnswer(const QStringList &arguments);

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
