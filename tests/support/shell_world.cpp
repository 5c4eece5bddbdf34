// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "tests/support/shell_world.h"

namespace zeph::test {

ShellWorld::ShellWorld()
{
    installIcons();
    folder.write(u"Info/ZephInfo.ini"_s, "[Online Help]\nNumberOfTopics=0\n");
}

ShellWorld::~ShellWorld() = default;

std::unique_ptr<Application> ShellWorld::application()
{
    return std::make_unique<Application>(ApplicationOptions{
        .appFolder = folder.path(),
        .arguments = arguments,
        .dialogs = dialogs,
        .launcher = launcher,
        .clock = clock,
        .downloader = downloader,
        .keyboard = keyboard,
        .joystick = joystick,
        .printers = printers,
        .screen = screen,
        .system = system,
        .welcomeIntervalMs = welcomeIntervalMs,
        .canWrite = canWrite,
        .keptFiles = keptFiles,
    });
}

QAction *ShellWorld::entryOf(Editor &editor, const QString &name)
{
    for (const QMenu *menu : editor.actions().menuBar()) {
        if (auto *found = menu->findChild<QAction *>(name)) {
            return found;
        }
    }
    return nullptr;
}

void RunningWorld::start(const QByteArray &store)
{
    writeStore(store);
    app = application();
    ASSERT_TRUE(app->start());
}

void RunningWorld::TearDown()
{
    app.reset();
}

} // namespace zeph::test
