// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/editor.h"
#include "editor/files/loss_guards.h"
#include "platform/clock.h"
#include "platform/downloader.h"
#include "platform/input/system_joystick.h"
#include "platform/input/system_keyboard.h"
#include "platform/printers.h"
#include "platform/process_launcher.h"
#include "platform/qt_dialogs.h"
#include "platform/safe_application.h"
#include "platform/screen.h"
#include "platform/system_info.h"
#include "shell/application.h"
#include "shell/tour.h"

#include <QStandardPaths>

using namespace zeph;

int main(int argc, char **argv)
{
    SafeApplication toolkit(argc, argv);
    Application::applyStyle(toolkit);

    const QString tourFolder = qEnvironmentVariable("ZEPH_TOUR");
    QtDialogs shown;
    RecordingDialogs recorded;
    SystemLauncher launcher;
    Clock clock;
    HttpDownloader downloader;
    SystemKeyboard keyboard;
    SystemJoystick joystick;
    SystemPrinters printers;
    const PrimaryScreen screen;
    const SystemInfo system;
    std::unique_ptr<Tour> tour;
    if (!tourFolder.isEmpty()) {
        tour = std::make_unique<Tour>(tourFolder, recorded);
    }

    const QString perUser = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
    Application application({
        .appFolder = chooseAppFolder(QCoreApplication::applicationDirPath(), perUser),
        .arguments = QCoreApplication::arguments().mid(1),
        .dialogs = tour ? static_cast<Dialogs &>(recorded) : shown,
        .launcher = launcher,
        .clock = clock,
        .downloader = downloader,
        .keyboard = keyboard,
        .joystick = joystick,
        .printers = printers,
        .screen = screen,
        .system = system,
    });
    toolkit.guard.dialogs = tour ? static_cast<Dialogs *>(&recorded) : &shown;
    if (!application.start()) {
        return 0;
    }
    toolkit.guard.lastResort = [&application] {
        application.editor().guards().autoSave.EmergencySaveFiles();
    };
    if (tour) {
        tour->start(application);
    }
    return QApplication::exec();
}
