// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "editor/editor.h"
#include "menus/menu_actions.h"
#include "platform/clock.h"
#include "platform/core/paths.h"
#include "platform/downloader.h"
#include "platform/fakes/fake_joystick.h"
#include "platform/fakes/fake_keyboard.h"
#include "platform/fakes/fake_launcher.h"
#include "platform/fakes/fake_printers.h"
#include "platform/fakes/fake_screen.h"
#include "platform/fakes/scripted_dialogs.h"
#include "platform/status_line.h"
#include "platform/system_info.h"
#include "settings/settings.h"
#include "shell/application.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QFile>
#include <QMenu>

namespace zeph::test {

/// A server that gives one prepared answer.
class FakeDownloader : public Downloader
{
public:
    Expected<QByteArray, QString> answer = Unexpected<QString>(u"no server"_s);
    QStringList asked;

    Expected<QByteArray, QString> fetch(const QString &address, int) override
    {
        asked.append(address);
        return answer;
    }
};

class FakeSystem : public SystemInfo
{
public:
    bool vista = false;
    bool isVista() const override { return vista; }
};

/// A folder of the program's own with everything that a start needs, and the world around it.
/// Fails the test when a box came up that nobody prepared, or did not come up.
class ShellWorld : public testing::Test
{
public:
    TempFolder folder;
    ScriptedDialogs dialogs;
    FakeLauncher launcher;
    Clock clock;
    FakeDownloader downloader;
    FakeKeyboard keyboard;
    FakeJoystick joystick;
    FakePrinters printers;
    FakeScreen screen;
    FakeSystem system;
    QStringList arguments;
    int welcomeIntervalMs = 1;

    Paths paths;
    Settings settings;
    StatusLine status;

    ShellWorld()
    {
        paths.appFolder = folder.path();
        paths.hotasFolder = folder.path() + u'/';
        paths.iniPath = folder.file(u"Zeph.ini"_s);
        QFile::link(QStringLiteral(ZEPH_SOURCE_DIR "/data/icons"), folder.file(u"icons"_s));
        folder.write(u"Info/ZephInfo.ini"_s, "[Online Help]\nNumberOfTopics=0\n");
    }

    void TearDown() override
    {
        EXPECT_TRUE(dialogs.unexpected().isEmpty())
            << dialogs.unexpected().join(u'\n').toStdString();
    }

    Context context() { return { paths, settings, status, dialogs, launcher, clock, keyboard }; }

    /// A store that has seen its first run and shows no tips.
    void writeStore(const QByteArray &more = {})
    {
        folder.write(u"Zeph.ini"_s, "[FileLocations]\r\nFirstTimeUsed=2\r\nShowTips=0\r\n" + more);
    }

    std::unique_ptr<Application> application()
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
        });
    }

    /// Copies what is installed beside the program into the folder.
    void installData(const QString &name)
    {
        const QString source = QStringLiteral(ZEPH_SOURCE_DIR "/data/") + name;
        QFile file(source);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << source.toStdString();
        folder.write(name, file.readAll());
    }

    /// The menu entry of that object name, on any menu of the Editor; null when there is none.
    static QAction *entryOf(Editor &editor, const QString &name)
    {
        for (const QMenu *menu : editor.actions().menuBar()) {
            if (auto *found = menu->findChild<QAction *>(name)) {
                return found;
            }
        }
        return nullptr;
    }

    QStringList boxTitles() const
    {
        QStringList titles;
        for (const Box &box : dialogs.boxes()) {
            titles.append(box.title);
        }
        return titles;
    }
};

} // namespace zeph::test
