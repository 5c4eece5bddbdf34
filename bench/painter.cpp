// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// Colouring a joystick file of 10,000 and 50,000 lines: the runs computed, the whole pass in the
// real Editor window with its painting, and a keystroke with and without colouring as one types.

#include "text/painter.h"
#include "bench/editor_world.h"
#include "documents/document_settings.h"
#include "documents/highlighting.h"
#include "settings/colour_settings.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QTest>

using namespace zeph;
using bench::World;

namespace {

constexpr int few = 10000;
constexpr int many = 50000;

void Computed(benchmark::State &state)
{
    const QString text =
        QString::fromLatin1(bench::longFile(int(state.range(0)))).replace(u"\r\n"_s, u"\n"_s);
    ColourSettings settings;
    setFirstRunColours(settings);
    const ColourScheme scheme = settings.joystickScheme();
    size_t runs = 0;
    for (auto _ : state) {
        runs = paint(text, joystickPasses(), scheme).size();
        benchmark::DoNotOptimize(runs);
    }
    state.counters["runs"] = double(runs);
    state.counters["characters"] = double(text.size());
}

/// Each pass finds the document without colours.
void Applied(benchmark::State &state)
{
    World world(int(state.range(0)));
    world.editor->opening().OpenFavouriteFile(world.path);
    for (auto _ : state) {
        state.PauseTiming();
        world.editor->highlighting().mnuRemoveColourJoystick_Click();
        QCoreApplication::processEvents();
        state.ResumeTiming();
        world.editor->highlighting().ApplyColourHighlighting();
        world.editor->repaint();
        QCoreApplication::processEvents();
    }
}

/// What the user meets who colours again after a few changes.
void AppliedAgain(benchmark::State &state)
{
    World world(int(state.range(0)));
    world.editor->opening().OpenFavouriteFile(world.path);
    for (auto _ : state) {
        world.editor->highlighting().ApplyColourHighlighting();
        world.editor->repaint();
        QCoreApplication::processEvents();
    }
}

void Keystroke(benchmark::State &state)
{
    World world(int(state.range(0)));
    world.settings.of<DocumentSettings>().ColourWithTyping = int(state.range(1));
    world.editor->opening().OpenFavouriteFile(world.path);
    TextControl *control = &world.editor->view().control(DocumentKind::Joystick);
    control->shown().select(control->shown().length() / 2, 0);
    int keys = 0;
    for (auto _ : state) {
        // Words of eight letters, each with its blank, on lines of eight words.
        ++keys;
        QTest::keyClick(control,
                        keys % 72 == 0      ? Qt::Key_Return
                            : keys % 9 == 0 ? Qt::Key_Space
                                            : Qt::Key_A);
    }
}

BENCHMARK(Computed)->Arg(few)->Arg(many)->Unit(benchmark::kMillisecond);
BENCHMARK(Applied)->Arg(few)->Arg(many)->Unit(benchmark::kMillisecond);
BENCHMARK(AppliedAgain)->Arg(few)->Arg(many)->Unit(benchmark::kMillisecond);
BENCHMARK(Keystroke)->ArgsProduct({ { few, many }, { 0, 1 } })->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
