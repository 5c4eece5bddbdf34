// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// What rewrites a whole file: the aligners alone over 10,000 and 50,000 lines, and through the real
// Editor window alignment, block comments and Replace All of as many hits.

#include "text/alignment.h"
#include "documents/undo_histories.h"
#include "editor/edit/findandreplace.h"
#include "tests/support/editor_world.h"
#include "text/digest.h"

#include <benchmark/benchmark.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QPushButton>

using namespace zeph;

namespace {

/// Statements of three lines, in disorder, with as many hits of "Radar" as lines.
QString longFile(int lines)
{
    QString text;
    for (int line = 0; line < lines; ++line) {
        const QString number = QString::number(line);
        switch (line % 3) {
        case 0:
            text += u"BTN H1U   /U /I Radar_Mode DLY(60) /O Missile_Mode Rem line "_s + number;
            break;
        case 1:
            text += u"/M\t/I Radar_Gain"_s + number;
            break;
        default:
            text += u"  /O Radar_Off /P a  /R b"_s;
        }
        text += u'\n';
    }
    return text;
}

void Align(benchmark::State &state)
{
    const QString text = longFile(int(state.range(0)));
    for (auto _ : state) {
        benchmark::DoNotOptimize(AlignSlashes(text, { true, 5 }));
    }
    state.SetComplexityN(state.range(0));
}

void AlignForSheets(benchmark::State &state)
{
    const QString text = longFile(int(state.range(0)));
    for (auto _ : state) {
        benchmark::DoNotOptimize(AlignForLayouts(text));
    }
}

void Analyse(benchmark::State &state)
{
    const QString text = longFile(int(state.range(0)));
    for (auto _ : state) {
        benchmark::DoNotOptimize(LeftAlignAnalyse(text));
    }
}

struct World : test::EditorWorld {
    explicit World(int lines) : text(longFile(lines))
    {
        settings.of<ColourSettings>().BTNColour = 0xFF0000;
        settings.of<ColourSettings>().SlashColour = 0x0000FF;
        settings.of<ColourSettings>().RAWColour = 0x00FF00;
        settings.of<ColourSettings>().RemStatements = 0x808080;
        makeEditor();
        showEditor();
    }

    /// The file as it is opened, in its colours.
    void reset()
    {
        {
            editor->joystick().setText(text);
        }
        editor->action(u"mnuViewColourJoystick")->trigger();
        editor->undos().startOver(DocumentKind::Joystick);
        QCoreApplication::processEvents();
    }
    void trigger(QStringView entry) { editor->action(entry)->trigger(); }

    QString text;
};

/// The undo of an entry run on the file as it was opened.
void undoEntry(benchmark::State &state, World &world, QStringView entry)
{
    for (auto _ : state) {
        state.PauseTiming();
        world.reset();
        world.editor->view().control(DocumentKind::Joystick).selectAll();
        world.trigger(entry);
        state.ResumeTiming();
        world.editor->undos().mnuEditUndo_Click();
        world.editor->repaint();
    }
}

/// Runs an entry on the file as it was opened, each time anew.
void runEntry(benchmark::State &state, World &world, QStringView entry)
{
    for (auto _ : state) {
        state.PauseTiming();
        world.reset();
        world.editor->view().control(DocumentKind::Joystick).selectAll();
        state.ResumeTiming();
        world.trigger(entry);
    }
}

void AlignInTheEditor(benchmark::State &state)
{
    World world(int(state.range(0)));
    runEntry(state, world, u"mnuAlignSlash");
}

void CommentOut(benchmark::State &state)
{
    World world(int(state.range(0)));
    runEntry(state, world, u"mnuBlockREM");
}

void CommentIn(benchmark::State &state)
{
    World world(int(state.range(0)));
    QStringList lines = world.text.split(u'\n');
    for (QString &line : lines) {
        line.prepend(u"Rem "_s);
    }
    world.text = lines.join(u'\n');
    runEntry(state, world, u"mnuBlockRemoveREM");
}

void UndoOfAlignment(benchmark::State &state)
{
    World world(int(state.range(0)));
    undoEntry(state, world, u"mnuAlignSlash");
}

void UndoOfCommentOut(benchmark::State &state)
{
    World world(int(state.range(0)));
    undoEntry(state, world, u"mnuBlockREM");
}

/// Replace All of as many hits as there are lines, or its undo.
void replaceAll(benchmark::State &state, bool undo)
{
    World world(int(state.range(0)));
    world.trigger(u"mnuEditReplace");
    auto *window = world.editor->findChild<FindAndReplace *>();
    const auto button = [window](const QString &name) {
        return window->findChild<QPushButton *>(name);
    };
    window->findChild<QComboBox *>(u"ComboTextReplaceFind"_s)->setEditText(u"Radar"_s);
    window->findChild<QComboBox *>(u"ComboTextReplaceWith"_s)->setEditText(u"Launcher"_s);
    for (auto _ : state) {
        state.PauseTiming();
        world.reset();
        button(u"Command3"_s)->click();
        if (undo) {
            button(u"Command6"_s)->click();
            state.ResumeTiming();
            world.editor->undos().mnuEditUndo_Click();
            world.editor->repaint();
        } else {
            state.ResumeTiming();
            button(u"Command6"_s)->click();
        }
    }
    const QString counted = undo ? u"Radar"_s : u"Launcher"_s;
    state.counters["hits"] = double(world.editor->joystickText().count(counted));
}

void ReplaceAll(benchmark::State &state)
{
    replaceAll(state, false);
}

void UndoOfReplaceAll(benchmark::State &state)
{
    replaceAll(state, true);
}

BENCHMARK(Align)->Arg(10000)->Arg(50000)->Unit(benchmark::kMillisecond)->Complexity();
BENCHMARK(AlignForSheets)->Arg(10000)->Arg(50000)->Unit(benchmark::kMillisecond);
BENCHMARK(Analyse)->Arg(10000)->Arg(50000)->Unit(benchmark::kMillisecond);
BENCHMARK(AlignInTheEditor)->Arg(10000)->Arg(50000)->Unit(benchmark::kMillisecond);
BENCHMARK(CommentOut)->Arg(10000)->Arg(50000)->Unit(benchmark::kMillisecond);
BENCHMARK(CommentIn)->Arg(10000)->Arg(50000)->Unit(benchmark::kMillisecond);
BENCHMARK(ReplaceAll)->Arg(10000)->Arg(50000)->Unit(benchmark::kMillisecond);
BENCHMARK(UndoOfAlignment)->Arg(10000)->Arg(50000)->Unit(benchmark::kMillisecond);
BENCHMARK(UndoOfCommentOut)->Arg(10000)->Arg(50000)->Unit(benchmark::kMillisecond);
BENCHMARK(UndoOfReplaceAll)->Arg(10000)->Arg(50000)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
