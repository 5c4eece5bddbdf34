// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "tests/support/toolchain_bench.h"

namespace zeph::test {

namespace {

/// Counts a timer's ticks and passes each number on to who wants it.
void countTicks(const QTimer *timer, int &ticks, const std::function<void(int)> &afterTick)
{
    QObject::connect(timer, &QTimer::timeout, timer, [&ticks, &afterTick] {
        ++ticks;
        if (afterTick) {
            afterTick(ticks);
        }
    });
}

} // namespace

ToolchainBench::ToolchainBench()
{
    folder.write(u"HOTASCompiler.exe"_s, "tool");
    folder.write(u"HOTASConfig.exe"_s, "tool");
    settings.of<SharedSettings>().PilotCallsign = u"Maverick"_s;
    settings.of<ToolchainSettings>().RegainControlAfter = 45000;
    settings.of<ToolchainSettings>().CheckForCompletionTime = 1000;
    newHandshake();
}

ToolchainBench::~ToolchainBench() = default;

void ToolchainBench::newHandshake()
{
    handshake = std::make_unique<ToolchainHandshake>(context, &mainWindow);
    downloadTimer = handshake->findChild<QTimer *>(u"DownloadTimer"_s);
    modeTimer = handshake->findChild<QTimer *>(u"StatusModeTimer"_s);
    countTicks(downloadTimer, ticks, afterTick);
    countTicks(modeTimer, modeTicks, afterModeTick);
    launcher.onStart = [this](const Launch &) {
        hasten();
        return Expected<void, QString>();
    };
}

void ToolchainBench::hasten()
{
    QTimer::singleShot(0, handshake.get(), [this] {
        downloadTimer->setInterval(1);
        modeTimer->setInterval(1);
    });
}

void ToolchainBench::writeCompiler(const QString &key, const QString &value) const
{
    EXPECT_TRUE(ini().write({ u"Compiler"_s, key, value }));
}

void ToolchainBench::writeMode(const QString &key, const QString &value) const
{
    EXPECT_TRUE(ini().write({ u"TMMODE"_s, key, value }));
}

QString ToolchainBench::compilerKey(const QString &key) const
{
    return ini().text(u"Compiler", key, u"none"_s);
}

Launch ToolchainBench::anyLaunch() const
{
    return { paths.compiler(), u"/ZEPH"_s, paths.hotasFolder, WindowStyle::NormalFocus };
}

} // namespace zeph::test
