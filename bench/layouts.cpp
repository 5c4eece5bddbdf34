// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// The layout sheets' pure half: both sheets analysed from a joystick file of 10,000 and 50,000
// lines, their boxes and a box of 10,000 lines coloured in both ways, 100,000 characters as
// mark-up. And what is seen of them: windows opened, sheets arranged, drawn while a box is dragged,
// and written.

#include "layouts/analysis/box_colours.h"
#include "layouts/analysis/box_texts.h"
#include "layouts/draw/sheet_exports.h"
#include "layouts/markup/markup.h"
#include "tests/layouts/draw/sheets_of_files.h"
#include "tests/layouts/window/sheet_window_fixture.h"
#include "text/painter.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QPainter>

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

/// The sample file's sheet and that of a file of 300 lines, both of the usual size.
QString fileOf(const benchmark::State &state)
{
    return state.range(0) > 0 ? test::longFileText(int(state.range(0))) : test::sampleText();
}

void FirstSheet(benchmark::State &state)
{
    const test::SheetsOfFiles files;
    const QString text = fileOf(state);
    const ControlsImage image = files.image(SheetKind::Throttle);
    const std::vector<RichText> texts = files.texts(SheetKind::Throttle, text);
    for (auto _ : state) {
        const Sheet sheet =
            firstSheet(SheetKind::Throttle, test::usualSheet, texts, image, test::sheetFont());
        benchmark::DoNotOptimize(sheet.boxes.data());
    }
}

void DrawnWhileABoxMoves(benchmark::State &state)
{
    const test::SheetsOfFiles files;
    auto [sheet, look] = files.first(SheetKind::Joystick, fileOf(state));
    const int scale = int(state.range(1));
    QImage image(test::usualSheet * scale, QImage::Format_ARGB32_Premultiplied);
    SheetRenderer renderer;
    for (auto _ : state) {
        sheet.boxes[1].Left += 1;
        QPainter painter(&image);
        painter.scale(scale, scale);
        SheetRenderer::drawPaper(painter, sheet);
        renderer.draw(painter, sheet, look);
    }
}

void DrawnWhileABoxIsSized(benchmark::State &state)
{
    const test::SheetsOfFiles files;
    auto [sheet, look] = files.first(SheetKind::Joystick, fileOf(state));
    QImage image(test::usualSheet, QImage::Format_ARGB32_Premultiplied);
    SheetRenderer renderer;
    float step = 1;
    for (auto _ : state) {
        sheet.boxes[1].Width += step;
        step = -step;
        QPainter painter(&image);
        SheetRenderer::drawPaper(painter, sheet);
        renderer.draw(painter, sheet, look);
    }
}

void Exported(benchmark::State &state, QStringView ending)
{
    const test::SheetsOfFiles files;
    const auto [sheet, look] = files.first(SheetKind::Joystick, fileOf(state));
    for (auto _ : state) {
        const auto bytes = exportSheet(ending, sheet, look, u"sheet"_s);
        benchmark::DoNotOptimize(bytes->data());
    }
}

/// The window's world, with a joystick file of so many lines.
class SheetWorld : public test::SheetWindowTest
{
public:
    explicit SheetWorld(int lines) { setText(longFile(lines)); }
    void openSheet() { openShown({ 1100, 900 }); }
    void closeSheet() { window.reset(); }

private:
    void TestBody() override { }
};

/// Analysed, coloured, arranged and painted.
void SheetOpened(benchmark::State &state)
{
    SheetWorld world(int(state.range(0)));
    for (auto _ : state) {
        world.openSheet();
        state.PauseTiming();
        world.closeSheet();
        state.ResumeTiming();
    }
}

BENCHMARK(SheetOpened)->Arg(100)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(FirstSheet)->Arg(0)->Arg(300)->Unit(benchmark::kMillisecond);
BENCHMARK(DrawnWhileABoxMoves)
    ->Args({ 0, 1 })
    ->Args({ 0, 2 })
    ->Args({ 300, 1 })
    ->Unit(benchmark::kMillisecond);
BENCHMARK(DrawnWhileABoxIsSized)->Arg(0)->Arg(300)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Exported, Pdf, u"pdf")->Arg(0)->Arg(300)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Exported, Svg, u"svg")->Arg(0)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Exported, Png, u"png")->Arg(0)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Exported, Html, u"html")->Arg(0)->Unit(benchmark::kMillisecond);
BENCHMARK(Analysed)->Arg(10000)->Arg(50000)->Unit(benchmark::kMillisecond);
BENCHMARK(AnalysedInVain)->Arg(10000)->Arg(50000)->Unit(benchmark::kMillisecond);
BENCHMARK(ColouredSheet)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(ColouredBox)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(ColouredBoxByModes)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(Markup)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
