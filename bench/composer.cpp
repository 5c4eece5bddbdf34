// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// The Composer: opened the first time and again, and a copy of a long macro list.

#include "composer/macro_mirror.h"
#include "tests/support/composer_world.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QComboBox>

using namespace zeph;

namespace {

constexpr int macroCount = 2000;
constexpr int headingCount = 20;

QByteArray macroFile()
{
    QByteArray bytes;
    for (int i = 0; i < macroCount; ++i) {
        if (i % (macroCount / headingCount) == 0) {
            bytes += "Rem -----\r\nRem Heading " + QByteArray::number(i) + "\r\nRem -----\r\n";
        }
        bytes += "Radar_Mode_" + QByteArray::number(i) + " = KD(SHF) a\r\n";
    }
    return bytes;
}

/// The Composer's world with a long pair of files.
struct World : test::ComposerWorld {
    World()
    {
        showEditor();
        openMacros(macroFile());
        QString text;
        for (int line = 0; line < 10000; ++line) {
            text += u"BTN H1U /U Radar_Mode_%1 Rem line\n"_s.arg(line % macroCount);
        }
        setJoystick(text, 0);
        QApplication::processEvents();
    }
};

void OpenFirst(benchmark::State &state)
{
    World world;
    for (auto _ : state) {
        world.open();
        state.PauseTiming();
        world.windows.unloadAll();
        state.ResumeTiming();
    }
}

void OpenAgain(benchmark::State &state)
{
    World world;
    world.open();
    for (auto _ : state) {
        state.PauseTiming();
        world.composer()->hide();
        QApplication::processEvents();
        state.ResumeTiming();
        world.open();
    }
}

void CopyMacroList(benchmark::State &state)
{
    World world;
    world.open();
    auto &mirror = world.control<MacroMirror>(u"FrameMacros"_s);
    for (auto _ : state) {
        mirror.CopyMacroList(world.tools->macroGroups());
        QApplication::processEvents();
    }
    state.counters["lists"] = mirror.headings().count();
}

/// What a change of the Editor's ticks costs while the window is open.
void FollowTicks(benchmark::State &state)
{
    World world;
    InsertOptions &window = world.open();
    for (auto _ : state) {
        window.ticksChanged();
    }
}

BENCHMARK(OpenFirst)->Unit(benchmark::kMillisecond);
BENCHMARK(OpenAgain)->Unit(benchmark::kMillisecond);
BENCHMARK(CopyMacroList)->Unit(benchmark::kMillisecond);
BENCHMARK(FollowTicks)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
