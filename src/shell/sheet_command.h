// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The command line that writes a layout sheet into a file instead of starting the program:
//
//     zeph --sheet joystick|throttle --out FILE.(pdf|svg|png|html) [--scale 1|2|4] FILE.tmj

#include "layouts/sheet.h"

#include <QDateTime>
#include <QStringList>

namespace zeph {

struct SheetCommand {
    SheetKind sheet = SheetKind::Joystick;
    QString out;
    int scale = 1; ///< of a PNG
    QString file; ///< the joystick file

    friend bool operator==(const SheetCommand &, const SheetCommand &) = default;
};

/// How the program ends after such a command.
enum class SheetExit { Done = 0, Failed = 1, WrongArguments = 2 };

/// How such a command is written.
QString sheetUsage();

/// Whether a command line (without the program's name) has an option of this command.
bool isSheetCommand(const QStringList &arguments);

/// Reads such a command line, in any order. The error says what is wrong with it.
Expected<SheetCommand, QString> sheetCommandOf(const QStringList &arguments);

/// Writes the sheet with the settings of the program's folder, which stays as it is. The error is
/// the reason, with the file's name.
Expected<void, QString> writeSheet(const SheetCommand &command, const QString &appFolder,
                                   const QDateTime &now);

/// Does all of it; reasons and usage go to standard error.
SheetExit runSheetCommand(const QStringList &arguments, const QString &appFolder,
                          const QDateTime &now);

/// The folder of the program's settings and pictures, looked for without writing anything.
QString sheetCommandFolder(const QString &executableFolder, const QString &perUser);

} // namespace zeph
