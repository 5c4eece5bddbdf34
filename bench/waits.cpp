// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// How alive the interface is while a tool is waited for: a tool that never answers is given up
// after five seconds, and a timer of 16 ms, as long as a picture of a film, tells how late it comes
// at worst. The aim is 50 ms at most.

#include "bench/editor_world.h"
#include "toolchain/handshake.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QTimer>

#include <algorithm>

using namespace zeph;

namespace {

constexpr int intervalMs = 16;

/// Notes how late a timer's ticks come.
struct Lateness {
    explicit Lateness(double &worst)
    {
        timer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&timer, &QTimer::timeout, &timer, [this, &worst] {
            const double ms = double(since.nsecsElapsed()) / 1e6;
            worst = std::max(worst, ms - intervalMs);
            since.start();
        });
        since.start();
        timer.start(intervalMs);
    }

    QElapsedTimer since;
    QTimer timer;
};

using Exchange = ExchangeEnd (ToolchainHandshake::*)(const Launch &);

void wait(benchmark::State &state, Exchange exchange)
{
    bench::World world(10);
    world.settings.CheckForCompletionTime = u"1000"_s;
    world.settings.RegainControlAfter = u"4999"_s;
    const Context context{ world.paths,    world.settings, world.status,  world.dialogs,
                           world.launcher, world.clock,    world.keyboard };
    double worst = 0;
    for (auto _ : state) {
        ToolchainHandshake handshake(context, world.editor.get());
        const Lateness lateness(worst);
        if ((handshake.*exchange)({ world.paths.compiler(), {}, {}, WindowStyle::NormalFocus })
            != ExchangeEnd::GivenUp) {
            state.SkipWithError("the wait did not last");
        }
    }
    state.counters["late_ms"] = worst;
}

BENCHMARK_CAPTURE(wait, Compiler, &ToolchainHandshake::runCompiler)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->Iterations(1);
BENCHMARK_CAPTURE(wait, ModeRequest, &ToolchainHandshake::runModeRequest)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->Iterations(1);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
