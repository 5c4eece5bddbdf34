// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "editor/editor.h"
#include "menus/menu_actions.h"
#include "platform/downloader.h"
#include "platform/fakes/fake_joystick.h"
#include "platform/fakes/fake_printers.h"
#include "platform/fakes/fake_screen.h"
#include "platform/system_info.h"
#include "shell/application.h"
#include "tests/support/fixture.h"

#include <QAction>
#include <QMenu>

#include <memory>

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

/// The world with everything that a start of the whole program needs.
class ShellWorld : public WorldTest
{
public:
    ShellWorld();
    ~ShellWorld() override;

    /// The program, not yet started.
    std::unique_ptr<Application> application();
    /// The menu entry of that object name, on any menu of the Editor; null when there is none.
    static QAction *entryOf(Editor &editor, const QString &name);

    FakeDownloader downloader;
    FakeJoystick joystick;
    FakePrinters printers;
    FakeScreen screen;
    FakeSystem system;
    QStringList arguments;
    int welcomeIntervalMs = 1;
    bool canWrite = true;
    QStringList keptFiles;
};

/// The world with the whole program running in it, which ends before the world does.
class RunningWorld : public ShellWorld
{
public:
    /// Starts it past its first run, with more in the settings file.
    void start(const QByteArray &store = {});
    void TearDown() override;

    std::unique_ptr<Application> app;
};

} // namespace zeph::test
