// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// Quick View's pure half on joystick files of 10,000 and 50,000 lines: digest and table, and what a
// look at the joystick costs. A state without a change must be next to nothing.

#include "livetools/quickview/coverage.h"
#include "livetools/quickview/live_state.h"
#include "livetools/quickview/readings_differ.h"
#include "livetools/quickview/senders.h"

#include <benchmark/benchmark.h>

using namespace zeph;

namespace {

constexpr int macroCount = 2000;

/// Statements of four lines, of all controls again and again.
QString longFile(int lines)
{
    QString text;
    for (int line = 0; line < lines; ++line) {
        const int row = line / 4 % rowCount + 1;
        switch (line % 4) {
        case 0:
            text += u"BTN "_s + (controlName(row).isEmpty() ? u"S1"_s : controlName(row).toString())
                + u" /U /I Radar_Mode DLY(60) /O Missile_Mode Rem first"_s;
            break;
        case 1:
            text += u"/M\t/I Radar_Gain"_s + QString::number(line % macroCount);
            break;
        case 2:
            text += u"  /O KD(a) /P b /R KU(a)"_s;
            break;
        default:
            text += u"/D /I Radar_Off /O Radar_On"_s;
        }
        text += u'\n';
    }
    return text;
}

void DigestAndTable(benchmark::State &state)
{
    const QString text = longFile(int(state.range(0)));
    for (auto _ : state) {
        benchmark::DoNotOptimize(AssignToArray(digestOf(text)));
    }
    state.counters["characters"] = double(text.size());
}

void Differences(benchmark::State &state)
{
    const QString text = longFile(int(state.range(0)));
    const Digest digest = digestOf(text);
    const Assignments table = AssignToArray(digest);
    const language::FilePair pair = language::parsePair(text, {});
    for (auto _ : state) {
        benchmark::DoNotOptimize(readingsDiffer(table, digest, pair.joystick));
    }
}

void StateWithoutChange(benchmark::State &state)
{
    const JoystickReading reading{ Joystick::answered, 0x01042041, 9000 };
    const LiveState before = liveState(reading);
    for (auto _ : state) {
        JoystickReading now = reading;
        benchmark::DoNotOptimize(now);
        benchmark::DoNotOptimize(changeOf(before, liveState(now)));
    }
}

void WhoSends(benchmark::State &state)
{
    QString macros;
    for (int macro = 0; macro < macroCount; ++macro) {
        macros += u"Radar_Gain%1 = SHF r Radar_Gain%2\n"_s.arg(macro).arg(macro + 1);
    }
    const MacroKeys keys(extractMacros(usableMacroLines(macros)));
    const Assignments table = AssignToArray(digestOf(longFile(10'000)));
    const Senders senders(table, keys);
    size_t found = 0;
    for (auto _ : state) {
        found = senders.of(u"SHF r"_s).size();
    }
    state.counters["cells"] = double(found);
}

} // namespace

BENCHMARK(DigestAndTable)->Arg(10'000)->Arg(50'000)->Unit(benchmark::kMillisecond);
BENCHMARK(Differences)->Arg(10'000)->Unit(benchmark::kMillisecond);
BENCHMARK(StateWithoutChange)->Unit(benchmark::kMicrosecond);
BENCHMARK(WhoSends)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
