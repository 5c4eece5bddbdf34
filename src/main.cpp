// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/editor.h"
#include "editor/files/loss_guards.h"
#include "platform/clock.h"
#include "platform/console.h"
#include "platform/core/per_user_folder.h"
#include "platform/dialogs.h"
#include "platform/downloader.h"
#include "platform/input/system_joystick.h"
#include "platform/input/system_keyboard.h"
#include "platform/package.h"
#include "platform/printers.h"
#include "platform/process_launcher.h"
#include "platform/qt_dialogs.h"
#include "platform/system_info.h"
#include "shell/application.h"
#include "shell/sheet_command.h"
#include "shell/start_up.h"

#include <QDir>
#include <QGuiApplication>
#include <QStandardPaths>

using namespace zeph;

namespace {

QString perUserFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
}

/// Writes a sheet into a file: no window, no lock, and no display is needed.
int writeSheet(int argc, char **argv)
{
    goWithoutDisplay();
    QGuiApplication toolkit(argc, argv);
    QCoreApplication::setApplicationName(u"Zeph"_s);
    const QString folder =
        sheetCommandFolder(QCoreApplication::applicationDirPath(), perUserFolder());
    return int(runSheetCommand(QCoreApplication::arguments().mid(1), folder, Clock().now()));
}

} // namespace

int main(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i) {
        arguments.append(QString::fromLocal8Bit(argv[i]));
    }
    if (const auto answer = commandLineAnswer(arguments)) {
        tellConsole(Stream::Output, *answer);
        return 0;
    }
    if (isSheetCommand(arguments)) {
        return writeSheet(argc, argv);
    }
    SafeApplication toolkit(argc, argv);
    Application::applyStyle(toolkit);

    QtDialogs dialogs;
    SystemLauncher launcher;
    Clock clock;
    HttpDownloader downloader;
    SystemKeyboard keyboard;
    SystemJoystick joystick;
    SystemPrinters printers;
    const PrimaryScreen screen;
    const SystemInfo system;

    const QString executableFolder = QCoreApplication::applicationDirPath();
    const ChosenFolder chosen =
        chooseFolder(executableFolder, perUserFolder(), readPackage(executableFolder).isShared);
    Application application({
        .appFolder = chosen.appFolder,
        .arguments = QCoreApplication::arguments().mid(1),
        .dialogs = dialogs,
        .launcher = launcher,
        .clock = clock,
        .downloader = downloader,
        .keyboard = keyboard,
        .joystick = joystick,
        .printers = printers,
        .screen = screen,
        .system = system,
        .canWrite = chosen.canWrite,
        .keptFiles = chosen.kept,
    });
    toolkit.guard.dialogs = &dialogs;
    if (!application.start()) {
        return 0;
    }
    // The command line has been read: what the user types from now on means the program's folder,
    // wherever the program was started.
    QDir::setCurrent(chosen.appFolder);
    toolkit.guard.lastResort = [&application] {
        application.editor().guards().autoSave.EmergencySaveFiles();
    };
    return QApplication::exec();
}
