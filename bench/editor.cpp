// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// Opening and saving a file of 10,000 and 50,000 lines through the real Editor window, shown on the
// offscreen platform; "shown" includes the painting of what is seen.

#include "bench/editor_world.h"
#include "bench/typing.h"
#include "editor/editor_settings.h"
#include "editor/files/file_saving.h"
#include "platform/core/rtf.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QTest>

using namespace zeph;

namespace {

using bench::World;

/// Colours the open document in about as many runs as a coloured file has.
void colour(Editor &editor)
{
    const qsizetype size = editor.joystickText().size();
    RichTextChanges changes(editor.joystick().richText());
    for (qsizetype at = 0; at + 5 < size; at += 22) {
        changes.change(at, 5, [](CharFormat &format) { format.colour = 0x0000FF; });
    }
    editor.joystick().setRichText(changes.take());
}

void OpenWithoutColouredCopy(benchmark::State &state)
{
    World world(int(state.range(0)));
    for (auto _ : state) {
        state.PauseTiming();
        QFile::remove(world.paths.rtfFolder() + u"long.tmj"_s);
        state.ResumeTiming();
        world.editor->opening().OpenFavouriteFile(world.path);
        world.editor->repaint();
        QCoreApplication::processEvents();
    }
}

void OpenWithColouredCopy(benchmark::State &state)
{
    World world(int(state.range(0)));
    world.editor->opening().OpenFavouriteFile(world.path);
    colour(*world.editor);
    world.settings.of<EditorSettings>().UpdateModified = false;
    world.editor->saving().mnuFileSave_Click();
    state.counters["runs"] = double(world.editor->joystick().richText().characters.size());
    for (auto _ : state) {
        world.editor->opening().OpenFavouriteFile(world.path);
        world.editor->repaint();
        QCoreApplication::processEvents();
    }
}

void Save(benchmark::State &state)
{
    World world(int(state.range(0)));
    world.editor->opening().OpenFavouriteFile(world.path);
    colour(*world.editor);
    for (auto _ : state) {
        world.editor->saving().mnuFileSave_Click();
    }
}

void Keystroke(benchmark::State &state)
{
    World world(int(state.range(0)));
    world.editor->opening().OpenFavouriteFile(world.path);
    colour(*world.editor);
    TextControl *control = &world.editor->view().control(DocumentKind::Joystick);
    control->shown().select(300000, 0);
    int number = 0;
    for (auto _ : state) {
        QTest::keyClick(control, typedKey(number++));
    }
}

BENCHMARK(OpenWithoutColouredCopy)->Arg(10000)->Arg(50000)->Unit(benchmark::kMillisecond);
BENCHMARK(OpenWithColouredCopy)->Arg(10000)->Arg(50000)->Unit(benchmark::kMillisecond);
BENCHMARK(Save)->Arg(10000)->Arg(50000)->Unit(benchmark::kMillisecond);
BENCHMARK(Keystroke)->Arg(10000)->Arg(50000)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
