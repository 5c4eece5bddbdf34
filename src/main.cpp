// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/editor.h"
#include "editor/files/loss_guards.h"
#include "platform/clock.h"
#include "platform/core/per_user_folder.h"
#include "platform/dialogs.h"
#include "platform/downloader.h"
#include "platform/input/system_joystick.h"
#include "platform/input/system_keyboard.h"
#include "platform/printers.h"
#include "platform/process_launcher.h"
#include "platform/qt_dialogs.h"
#include "platform/system_info.h"
#include "shell/application.h"

#include <QDir>
#include <QStandardPaths>

using namespace zeph;

int main(int argc, char **argv)
{
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

    const QString perUser = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
    const ChosenFolder chosen = chooseFolder(QCoreApplication::applicationDirPath(), perUser);
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
