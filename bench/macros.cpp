// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// Ticks for 2,000 macros over joystick files of 10,000 and 50,000 lines.

#include "text/macro_search.h"
#include "text/macro_table.h"

#include <benchmark/benchmark.h>

using namespace zeph;

namespace {

constexpr int macroCount = 2000;

/// Half of the names have the separators that pilots like, and one in ten is never used.
QString nameOf(int number)
{
    return (number % 2 ? u"Radar_Mode_"_s : u"Radar-Mode-"_s) + QString::number(number);
}

QStringList names()
{
    QStringList all;
    for (int i = 0; i < macroCount; ++i) {
        all.append(nameOf(i));
    }
    return all;
}

QString joystickText(int lines)
{
    QString text;
    for (int line = 0; line < lines; ++line) {
        const int number = line % macroCount;
        text += u"BTN H"_s + QString::number(line % 4 + 1) + u"U /U /I "_s
            + (number % 10 ? nameOf(number) : u"Rem "_s + nameOf(number))
            + u" DLY(60) /O Missile_Mode Rem line "_s + QString::number(line) + u'\n';
    }
    return text;
}

void Ticks(benchmark::State &state)
{
    const QString text = joystickText(int(state.range(0)));
    const QStringList all = names();
    qsizetype ticked = 0;
    for (auto _ : state) {
        ticked = usedMacros(text, all).count(true);
    }
    state.counters["characters"] = double(text.size());
    state.counters["ticked"] = double(ticked);
}

/// What a plain search for each name costs, for comparison.
void TicksOneByOne(benchmark::State &state)
{
    const QString text = joystickText(int(state.range(0)));
    const QStringList all = names();
    for (auto _ : state) {
        for (const QString &name : all) {
            benchmark::DoNotOptimize(macroUses(text, name));
        }
    }
}

void Extraction(benchmark::State &state)
{
    QString text;
    for (int i = 0; i < macroCount; ++i) {
        text += (i % 20 ? QString() : u"Rem ----\nRem Heading\nRem ----\n"_s) + nameOf(i)
            + u" = CTL a DLY(60) b\n"_s;
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(extractMacros(usableMacroLines(text)));
    }
}

BENCHMARK(Ticks)->Arg(10000)->Arg(50000)->Unit(benchmark::kMillisecond);
BENCHMARK(TicksOneByOne)->Arg(10000)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(Extraction)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
