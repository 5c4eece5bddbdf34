// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "language/checker.h"
#include "language/macro_graph.h"

#include <benchmark/benchmark.h>

using namespace zeph;
using namespace zeph::language;

namespace {

// Statements and macros as pilots write them, until there are that many lines of each file.
QString joystickText(int lines)
{
    const QStringList block{
        u"Rem --------------------"_s,
        u"Rem           Section"_s,
        u"Rem --------------------"_s,
        u"BTN H2U /U /I Macro_%1 DLY(60) SHF a   Rem what it does"_s,
        u"           /O Macro_2 KD(LSHF b) KU(LSHF b)"_s,
        u"        /M Macro_%1"_s,
        u"        /D /P Macro_3 /R Macro_4"_s,
        u"THR 5 3 (0 33 67 100) Macro_%1 ^ Macro_6"_s,
        u"USE CURVE (JOYSTICK, 4)"_s,
        u"DEF X12 (X13 AND NOT S3) OR T4"_s,
    };
    QString text;
    for (int line = 0; line < lines; ++line)
        text += QString(block[line % block.size()]).replace(u"%1"_s, QString::number(line % 2000))
            + u'\n';
    return text;
}

QString macroText(int lines)
{
    QString text;
    for (int line = 0; line < lines; ++line)
        text += u"Macro_%1 = SHF a DLY(60) KD(b) KU(b)  Rem keys\n"_s.arg(line);
    return text;
}

void parseAndCheck(benchmark::State &state)
{
    const QString joystick = joystickText(int(state.range(0)));
    const QString macro = macroText(2000);
    for (auto _ : state) {
        const FilePair pair = parsePair(joystick, macro);
        const QList<Finding> findings = check(pair);
        if (!findings.isEmpty())
            state.SkipWithError("the text has findings");
        benchmark::DoNotOptimize(compiledSize(pair));
    }
}

void parseOnly(benchmark::State &state)
{
    const QString joystick = joystickText(int(state.range(0)));
    const QString macro = macroText(2000);
    for (auto _ : state) {
        const FilePair pair = parsePair(joystick, macro);
        benchmark::DoNotOptimize(pair.joystick.items.size());
    }
}

} // namespace

BENCHMARK(parseAndCheck)->Arg(10'000)->Arg(50'000)->Unit(benchmark::kMillisecond);
BENCHMARK(parseOnly)->Arg(10'000)->Arg(50'000)->Unit(benchmark::kMillisecond);
BENCHMARK_MAIN();
