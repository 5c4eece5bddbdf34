// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// A fresh tools' folder with all that the windows share, and a tool that can be played.

#include "platform/clock.h"
#include "platform/context.h"
#include "platform/fakes/fake_keyboard.h"
#include "platform/fakes/fake_launcher.h"
#include "platform/fakes/scripted_dialogs.h"
#include "platform/status_line.h"
#include "settings/settings.h"
#include "settings/shared_settings.h"
#include "tests/support/temp_folder.h"
#include "toolchain/handshake.h"
#include "toolchain/hotas_ini.h"
#include "toolchain/toolchain_settings.h"

#include <gtest/gtest.h>

#include <QTimer>
#include <QWidget>

namespace zeph::test {

/// A fixture for everything that runs tools.
class ToolchainBench : public testing::Test
{
protected:
    ToolchainBench()
    {
        paths.appFolder = folder.path();
        paths.hotasFolder = folder.path() + u'/';
        folder.write(u"HOTASCompiler.exe"_s, "tool");
        folder.write(u"HOTASConfig.exe"_s, "tool");
        settings.of<SharedSettings>().PilotCallsign = u"Maverick"_s;
        settings.of<ToolchainSettings>().RegainControlAfter = 45000;
        settings.of<ToolchainSettings>().CheckForCompletionTime = 1000;
        newHandshake();
    }
    ~ToolchainBench() override { EXPECT_EQ(dialogs.unexpected(), QStringList()); }

    void newHandshake()
    {
        handshake = std::make_unique<ToolchainHandshake>(context, &mainWindow);
        downloadTimer = handshake->findChild<QTimer *>(u"DownloadTimer"_s);
        modeTimer = handshake->findChild<QTimer *>(u"StatusModeTimer"_s);
        QObject::connect(downloadTimer, &QTimer::timeout, downloadTimer, [this] {
            ++ticks;
            if (afterTick) {
                afterTick(ticks);
            }
        });
        QObject::connect(modeTimer, &QTimer::timeout, modeTimer, [this] {
            ++modeTicks;
            if (afterModeTick) {
                afterModeTick(modeTicks);
            }
        });
        launcher.onStart = [this](const Launch &) {
            hasten();
            return Expected<void, QString>();
        };
    }

    /// Lets the waits that are about to begin tick at once instead of once a second. What they
    /// count stays as the settings say.
    void hasten()
    {
        QTimer::singleShot(0, handshake.get(), [this] {
            downloadTimer->setInterval(1);
            modeTimer->setInterval(1);
        });
    }

    void writeCompiler(const QString &key, const QString &value) const
    {
        EXPECT_TRUE(ini().write({ u"Compiler"_s, key, value }));
    }
    void writeMode(const QString &key, const QString &value) const
    {
        EXPECT_TRUE(ini().write({ u"TMMODE"_s, key, value }));
    }
    QString compilerKey(const QString &key) const
    {
        return ini().text(u"Compiler", key, u"none"_s);
    }
    ProfileFile ini() const { return ProfileFile(paths.hotasIni()); }

    Launch anyLaunch() const
    {
        return { paths.compiler(), u"/ZEPH"_s, paths.hotasFolder, WindowStyle::NormalFocus };
    }

    TempFolder folder;
    Paths paths;
    Settings settings;
    StatusLine status;
    ScriptedDialogs dialogs;
    FakeLauncher launcher;
    Clock clock;
    FakeKeyboard keyboard;
    Context context{ paths, settings, status, dialogs, launcher, clock, keyboard };
    QWidget mainWindow;
    std::unique_ptr<ToolchainHandshake> handshake;
    QTimer *downloadTimer = nullptr;
    QTimer *modeTimer = nullptr;
    int ticks = 0;
    int modeTicks = 0;
    /// Called after each tick with the number of ticks so far: where a tool writes its status.
    std::function<void(int)> afterTick;
    std::function<void(int)> afterModeTick;
};

} // namespace zeph::test
