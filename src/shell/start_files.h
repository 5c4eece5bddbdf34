// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Which files a run starts with.

#include "platform/core/base.h"

#include <QStringList>

namespace zeph {

class Dialogs;
class Editor;
class ProfileFile;
struct EditorSettings;

/// The file that the command line names, with its full path; empty when it names none that exists.
/// Words that a shell has parted are also tried as one name.
QString TestCommandLine(const QStringList &arguments);

/// Opens the command line's file; else the files of the last run; else the favourite that is to be
/// opened at start.
void openStartFiles(Editor &editor, const QString &commandLineFile, const EditorSettings &settings,
                    const ProfileFile &store, Dialogs &dialogs);

} // namespace zeph
