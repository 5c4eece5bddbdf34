// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "settings/shared_settings.h"
#include "tests/support/fixture.h"
#include "toolchain/handshake.h"
#include "toolchain/hotas_ini.h"
#include "toolchain/toolchain_settings.h"

#include <QTimer>
#include <QWidget>

#include <functional>
#include <memory>

namespace zeph::test {

/// A fixture for everything that runs tools: a world with the tools in its folder, each of which
/// can be played.
class ToolchainBench : public WorldTest
{
protected:
    ToolchainBench();
    ~ToolchainBench() override;

    void newHandshake();
    /// Lets the waits that are about to begin tick at once instead of once a second. What they
    /// count stays as the settings say.
    void hasten();

    void writeCompiler(const QString &key, const QString &value) const;
    void writeMode(const QString &key, const QString &value) const;
    /// What HOTAS.ini tells of the compiler under a key; "none" without one.
    QString compilerKey(const QString &key) const;
    ProfileFile ini() const { return ProfileFile(paths.hotasIni()); }
    Launch anyLaunch() const;

    const Context context = World::context();
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
