// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// Quick View on joystick files of 10,000 and 50,000 lines: digest and table, and what a look at the
// joystick costs, alone and in the open window. A state without a change must be next to nothing
// and repaint nothing.

#include "livetools/quickview/quickview.h"
#include "documents/documents.h"
#include "livetools/quickview/coverage.h"
#include "livetools/quickview/live_state.h"
#include "livetools/quickview/readings_differ.h"
#include "livetools/quickview/senders.h"
#include "platform/fakes/fake_joystick.h"
#include "tests/support/world.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QEvent>
#include <QTimer>

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

/// Counts what is painted in all windows.
class PaintCount : public QObject
{
public:
    PaintCount() { QCoreApplication::instance()->installEventFilter(this); }
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

    qint64 count = 0;
};

constexpr quint32 dogfightUp = 1U << 24;
constexpr quint32 dogfightDown = 1U << 25;

/// The open window on a file of 10,000 lines, at rest. Its own timer does not tick.
struct LiveWindow : test::World {
    LiveWindow()
    {
        folder.write(u"HOTAS.ini"_s, "[TMMODE]\r\nStatus=OKAY\r\nButtons=0\r\n");
        documents.joystick().setText(longFile(10'000));
        view.Form_Load();
        view.findChild<QTimer *>(u"JoyTimer"_s)->stop();
        view.show();
        settle();
    }
    static void settle()
    {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
    /// A look at the joystick, with what it paints.
    void tick(quint32 buttons)
    {
        stick.reading.buttons = buttons;
        view.JoyTimer_Timer();
        QCoreApplication::processEvents();
    }

    Documents documents{ context() };
    MacroTable macros;
    FakeJoystick stick;
    QuickView view{ context(), { documents, macros, stick } };
};

void TickWithoutChange(benchmark::State &state)
{
    LiveWindow window;
    window.tick(dogfightUp | 1U);
    LiveWindow::settle();
    const PaintCount painted;
    for (auto _ : state) {
        window.view.JoyTimer_Timer();
        window.stick.asked.clear();
    }
    LiveWindow::settle();
    state.counters["painted"] = double(painted.count);
    if (painted.count > 0) {
        state.SkipWithError("a tick without a change repaints something");
    }
}

void TickThatPresses(benchmark::State &state)
{
    LiveWindow window;
    const PaintCount painted;
    quint32 buttons = 0;
    for (auto _ : state) {
        buttons ^= 1U;
        window.tick(buttons);
    }
    state.counters["painted"] =
        benchmark::Counter(double(painted.count), benchmark::Counter::kAvgIterations);
}

/// Every text changes, and all of them are painted.
void TickThatChangesTheColumn(benchmark::State &state)
{
    LiveWindow window;
    const PaintCount painted;
    quint32 buttons = dogfightUp;
    for (auto _ : state) {
        buttons ^= dogfightUp | dogfightDown;
        window.tick(buttons);
    }
    state.counters["painted"] =
        benchmark::Counter(double(painted.count), benchmark::Counter::kAvgIterations);
}

} // namespace

BENCHMARK(DigestAndTable)->Arg(10'000)->Arg(50'000)->Unit(benchmark::kMillisecond);
BENCHMARK(Differences)->Arg(10'000)->Unit(benchmark::kMillisecond);
BENCHMARK(StateWithoutChange)->Unit(benchmark::kMicrosecond);
BENCHMARK(WhoSends)->Unit(benchmark::kMillisecond);

BENCHMARK(TickWithoutChange)->Unit(benchmark::kMicrosecond);
BENCHMARK(TickThatPresses)->Unit(benchmark::kMillisecond);
BENCHMARK(TickThatChangesTheColumn)->Unit(benchmark::kMillisecond);

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
