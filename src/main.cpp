// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/editor.h"
#include "editor/files/loss_guards.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/downloader.h"
#include "platform/input/system_joystick.h"
#include "platform/input/system_keyboard.h"
#include "platform/printers.h"
#include "platform/process_launcher.h"
#include "platform/qt_dialogs.h"
#include "platform/system_info.h"
#include "shell/application.h"

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
    Application application({
        .appFolder = chooseAppFolder(QCoreApplication::applicationDirPath(), perUser),
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
    });
    toolkit.guard.dialogs = &dialogs;
    if (!application.start()) {
        return 0;
    }
    toolkit.guard.lastResort = [&application] {
        application.editor().guards().autoSave.EmergencySaveFiles();
    };
    return QApplication::exec();
}
