// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// The undo history in coloured files of 10,000 and 50,000 lines, shown on the offscreen platform:
// what a keystroke costs, what a thousand steps take and hold.

#include "documents/document_settings.h"
#include "documents/undo_histories.h"
#include "menus/menu_actions.h"
#include "tests/support/editor_world.h"

#include "bench/typing.h"

#include <benchmark/benchmark.h>

#include <QAction>
#include <QApplication>
#include <QTest>

using namespace zeph;

namespace {

constexpr int stepCount = 1000;

/// The Editor with a file of some lines, in as many runs as a coloured file has: six a line.
struct World : test::EditorWorld {
    explicit World(int64_t lines)
    {
        settings.of<DocumentSettings>().UndoMax = stepCount;
        makeEditor();
        editor->applySettings();
        showEditor();
        QString text;
        for (int64_t line = 0; line < lines; ++line) {
            text += u"BTN H"_s + QString::number(line % 4 + 1)
                + u"U /U /I Radar_Mode DLY(60) /O Missile_Mode Rem line "_s + QString::number(line)
                + u'\n';
        }
        size = text.size();
        RichTextChanges changes(RichText::plain(text, control().shown().plain()));
        for (qsizetype at = 0; at + 5 < size; at += 22) {
            changes.change(at, 5, [](CharFormat &format) { format.colour = 0x0000FF; });
        }
        control().shown().setRichText(changes.take());
        editor->undos().startOver(DocumentKind::Joystick);
        QCoreApplication::processEvents();
    }
    TextControl &control() { return editor->view().control(DocumentKind::Joystick); }
    UndoHistory &history() { return editor->undos().of(DocumentKind::Joystick); }
    /// One step, far from the one before.
    void makeStep()
    {
        place = (place + 629'107) % (size - 10 * stepCount);
        control().shown().select(int(place), 0);
        QTest::keyClick(&control(), Qt::Key_Delete);
    }

    qsizetype size = 0;
    qsizetype place = 0;
};

/// Letters of one word, each of which brings slot 1 up to date.
void Keystroke(benchmark::State &state)
{
    World world(state.range(0));
    world.control().shown().select(int(world.size / 2), 0);
    int number = 0;
    for (auto _ : state) {
        QTest::keyClick(&world.control(), typedKey(number++));
    }
}

/// Keys that make a step each.
void KeystrokeWithStep(benchmark::State &state)
{
    World world(state.range(0));
    world.control().shown().select(int(world.size / 2), 0);
    for (auto _ : state) {
        QTest::keyClick(&world.control(), Qt::Key_Delete);
    }
}

void ThousandSteps(benchmark::State &state)
{
    for (auto _ : state) {
        state.PauseTiming();
        World world(state.range(0));
        const qsizetype before = world.history().bytesHeld();
        state.ResumeTiming();
        for (int step = 0; step < stepCount; ++step) {
            world.makeStep();
        }
        state.PauseTiming();
        const auto megabytes = [](qsizetype bytes) {
            return benchmark::Counter(double(bytes) / 1e6);
        };
        state.counters["slots"] = world.history().slots();
        state.counters["MB_text"] = megabytes(before);
        state.counters["MB_held"] = megabytes(world.history().bytesHeld());
        state.ResumeTiming();
    }
}

void ThousandUndos(benchmark::State &state)
{
    for (auto _ : state) {
        state.PauseTiming();
        World world(state.range(0));
        for (int step = 0; step < stepCount; ++step) {
            world.makeStep();
        }
        state.ResumeTiming();
        while (world.history().canUndo()) {
            world.editor->undos().mnuEditUndo_Click();
        }
    }
}

/// New looks over the whole file, put into the top slot as a colouring pass does.
void ColouredAll(benchmark::State &state)
{
    World world(state.range(0));
    ColorRef colour = 0;
    for (auto _ : state) {
        ColouredText &text = world.control().shown();
        const ColorRef next = ++colour % 2 == 0 ? 0x0000FF : 0x00FF00;
        text.changeLooks(0, text.length(), [next](CharFormat &look) { look.colour = next; });
        world.history().storeShown();
    }
}

BENCHMARK(Keystroke)->Arg(1000)->Arg(10000)->Arg(50000)->Unit(benchmark::kMicrosecond);
BENCHMARK(KeystrokeWithStep)->Arg(10000)->Arg(50000)->Unit(benchmark::kMicrosecond);
BENCHMARK(ThousandSteps)->Arg(10000)->Arg(50000)->Unit(benchmark::kMillisecond);
BENCHMARK(ThousandUndos)->Arg(10000)->Arg(50000)->Unit(benchmark::kMillisecond);
BENCHMARK(ColouredAll)->Arg(10000)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
