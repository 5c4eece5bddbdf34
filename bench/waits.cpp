// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// How late a 16 ms timer comes while a silent tool is waited for until it is given up after 5 s,
// with the file polled once a second, the status window up from the second second on, a
// 10,000-line file in the Editor, and the mode detector ticking. No more than 50 ms is allowed.

#include "bench/editor_world.h"
#include "platform/fakes/fake_joystick.h"
#include "toolchain/handshake.h"
#include "toolchain/hotas_ini.h"
#include "toolchain/modes/cougar_modes.h"
#include "toolchain/toolchain_settings.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QTimer>

#include <algorithm>

using namespace zeph;

namespace {

constexpr int beatMs = 16;
constexpr double mostLateMs = 50;
constexpr double nsPerMs = 1e6;

/// A beat that writes down how late it comes.
class Beat
{
public:
    Beat()
    {
        m_timer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { beaten(); });
        m_timer.start(beatMs);
        m_since.start();
    }

    void report(benchmark::State &state) const
    {
        state.counters["beats"] = m_beats;
        state.counters["mean_late_ms"] = m_beats > 0 ? m_sum / m_beats : 0;
        state.counters["worst_late_ms"] = m_worst;
        if (m_worst > mostLateMs) {
            state.SkipWithError("a beat came more than 50 ms late");
        }
    }

private:
    void beaten()
    {
        const double late = std::max(0.0, double(m_since.nsecsElapsed()) / nsPerMs - beatMs);
        m_since.start();
        ++m_beats;
        m_sum += late;
        m_worst = std::max(m_worst, late);
    }

    QTimer m_timer;
    QElapsedTimer m_since;
    int m_beats = 0;
    double m_sum = 0;
    double m_worst = 0;
};

void waitForSilence(benchmark::State &state, bool compiler)
{
    bench::World world;
    world.settings.of<ToolchainSettings>().CheckForCompletionTime = 1000;
    world.settings.of<ToolchainSettings>().RegainControlAfter = 4000;
    world.settings.of<ToolchainSettings>().StatusMonitoringInterval = 1;
    world.settings.of<ToolchainSettings>().JoyTestConnect = true;
    const Context context = world.context();
    world.editor->opening().OpenFavouriteFile(world.path);
    ToolchainHandshake handshake(context, world.editor.get());
    FakeJoystick joystick;
    CougarModes modes(context, handshake, joystick);
    modes.EnableStatusTimer();
    for (auto _ : state) {
        const Beat beat;
        const ExchangeEnd end = compiler
            ? handshake.runCompiler(
                compilerLaunch(world.paths, CompilerCommand::Compile, world.path))
            : handshake.runModeRequest(configLaunch(world.paths, ConfigCommand::ReportMode));
        if (end != ExchangeEnd::GivenUp) {
            state.SkipWithError("the wait did not run to its end");
            break;
        }
        beat.report(state);
    }
}

void CompilerWait(benchmark::State &state)
{
    waitForSilence(state, true);
}
BENCHMARK(CompilerWait)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(1);

void ModeWait(benchmark::State &state)
{
    waitForSilence(state, false);
}
BENCHMARK(ModeWait)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(1);

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
