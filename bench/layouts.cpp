// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// The layout sheets' pure half: both sheets analysed from a joystick file of 10,000 and 50,000
// lines, their boxes and a box of 10,000 lines coloured in both ways, 100,000 characters as
// mark-up.

#include "layouts/analysis/box_colours.h"
#include "layouts/analysis/box_texts.h"
#include "layouts/markup/markup.h"
#include "text/painter.h"

#include <benchmark/benchmark.h>

using namespace zeph;

namespace {

constexpr ColourScheme scheme = {
    .plain = 0, .btn = 2, .slash = 3, .raw = 4, .miscellaneous = 5, .rem = 6
};

/// Statements of four lines each, of other controls again and again, so that what the sheets look
/// for last is found late or never.
QString longFile(int lines)
{
    QString text;
    for (int line = 0; line < lines; ++line) {
        switch (line % 4) {
        case 0:
            text += u"BTN H%1U /U /I Radar_Mode DLY(60) /O Missile_Mode Rem first"_s.arg(
                line / 4 % 4 + 1);
            break;
        case 1:
            text += u"/M\t/I Radar_Gain"_s + QString::number(line);
            break;
        case 2:
            text += u"  /D /P KD(a) /R KU(a)"_s;
            break;
        default:
            text += u"Rem what it does"_s;
        }
        text += u'\n';
    }
    return text + u"RBRK 1 3 (0 50 100) Gear Rem last\n"_s;
}

/// One statement, as long as the file.
RichText longBox(int lines)
{
    QString text = u"Hat 1\nU:    "_s;
    for (int line = 0; line < lines; ++line) {
        text += u"/U /I Radar_Mode DLY(60) /M Missile_Mode /D {USB (D04)} Rem line\n"_s;
    }
    return RichText::plain(text);
}

BoxLook look()
{
    return { scheme, { .family = u"Arial"_s, .pointSize = 8, .colour = {} } };
}

void analyse(benchmark::State &state, const QString &text)
{
    qsizetype characters = 0;
    for (auto _ : state) {
        const auto file = AnalyseAndExtract(text);
        for (const SheetKind kind : { SheetKind::Joystick, SheetKind::Throttle }) {
            for (const QString &box : AnalyseJoystickFile(kind, *file, {})) {
                characters = box.size();
                benchmark::DoNotOptimize(characters);
            }
        }
    }
    state.counters["characters"] = double(text.size());
}

void Analysed(benchmark::State &state)
{
    analyse(state, longFile(int(state.range(0))));
}

void AnalysedInVain(benchmark::State &state)
{
    analyse(state, u"BTN X1 /U a /M b\n"_s.repeated(state.range(0)));
}

void ColouredSheet(benchmark::State &state)
{
    const auto file = AnalyseAndExtract(longFile(int(state.range(0))));
    const QStringList texts = AnalyseJoystickFile(SheetKind::Joystick, *file, {});
    const TextStyles styles = defaultTextStyles();
    for (auto _ : state) {
        for (const QString &text : texts) {
            RichText box = ApplyColours(SheetKind::Joystick, RichText::plain(text), look());
            box = ApplyUMDcolours(std::move(box), styles, scheme.rem);
            benchmark::DoNotOptimize(box.characters.data());
        }
    }
}

void ColouredBox(benchmark::State &state)
{
    const RichText plain = longBox(int(state.range(0)));
    for (auto _ : state) {
        const RichText box = ApplyColours(SheetKind::Joystick, plain, look());
        benchmark::DoNotOptimize(box.characters.data());
    }
    state.counters["characters"] = double(plain.text.size());
}

void ColouredBoxByModes(benchmark::State &state)
{
    const RichText normal = ApplyColours(SheetKind::Joystick, longBox(int(state.range(0))), look());
    const TextStyles styles = defaultTextStyles();
    for (auto _ : state) {
        const RichText box = ApplyUMDcolours(normal, styles, scheme.rem);
        benchmark::DoNotOptimize(box.characters.data());
    }
}

void Markup(benchmark::State &state)
{
    RichText text = RichText::plain(longFile(int(state.range(0)) / 20).left(state.range(0)));
    text.characters = characterRuns(paint(text.text, joystickPasses(), scheme), {});
    qsizetype size = 0;
    for (auto _ : state) {
        size = markup(text, { .type = CodeType::HTML, .escape = true }).size();
        benchmark::DoNotOptimize(size);
    }
    state.counters["characters"] = double(text.text.size());
    state.counters["runs"] = double(text.characters.size());
}

BENCHMARK(Analysed)->Arg(10000)->Arg(50000)->Unit(benchmark::kMillisecond);
BENCHMARK(AnalysedInVain)->Arg(10000)->Arg(50000)->Unit(benchmark::kMillisecond);
BENCHMARK(ColouredSheet)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(ColouredBox)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(ColouredBoxByModes)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(Markup)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
