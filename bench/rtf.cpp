// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// Rich text of a 10,000-line file, as RTF and in the toolkit's document.

#include "platform/core/rtf.h"
#include "platform/richtext/rich_text_document.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QPlainTextDocumentLayout>

using namespace zeph;

namespace {

CharFormat look(int number)
{
    CharFormat format;
    format.family = u"Courier New"_s;
    format.pointSize = 10;
    format.bold = number % 5 == 0;
    format.colour = colorRef(quint32(number) * 40 % 256, 0, quint32(number) * 90 % 256);
    return format;
}

/// 10,000 lines, 660 KB, six runs a line.
RichText coloured(int variant = 0)
{
    constexpr int lines = 10000;
    constexpr qsizetype lengths[] = { 4, 8, 14, 15, 10, 15 };
    RichText text;
    for (int line = 0; line < lines; ++line) {
        text.text += u"BTN  S%1 /I /P ACTION_ONE /H ACTION_TWO /R DLY(%2) Rem what this does x"_s
                         .arg(line % 10)
                         .arg(line, 5)
                         .leftJustified(65, u' ', true);
        text.text += u'\n';
        for (int run = 0; run < 6; ++run) {
            text.characters.push_back({ lengths[run], look((run + line + variant) % 12) });
        }
    }
    text.normalise();
    return text;
}

std::unique_ptr<QTextDocument> makeDocument(bool plainLayout)
{
    auto document = std::make_unique<QTextDocument>();
    if (plainLayout) {
        document->setDocumentLayout(new QPlainTextDocumentLayout(document.get()));
    }
    document->setUndoRedoEnabled(false);
    return document;
}

void countBytes(benchmark::State &state, qsizetype bytes)
{
    state.SetBytesProcessed(int64_t(state.iterations()) * bytes);
}

void writeText(benchmark::State &state)
{
    const RichText text = coloured();
    qsizetype size = 0;
    for ([[maybe_unused]] const auto step : state) {
        const QByteArray rtf = writeRtf(text);
        size = rtf.size();
        benchmark::DoNotOptimize(rtf.data());
    }
    countBytes(state, size);
}
BENCHMARK(writeText)->Unit(benchmark::kMillisecond);

void readText(benchmark::State &state)
{
    const QByteArray rtf = writeRtf(coloured());
    for ([[maybe_unused]] const auto step : state) {
        const auto text = readRtf(rtf);
        benchmark::DoNotOptimize(&text);
    }
    countBytes(state, rtf.size());
}
BENCHMARK(readText)->Unit(benchmark::kMillisecond);

void setText(benchmark::State &state)
{
    const RichText text = coloured();
    const auto document = makeDocument(state.range(0) != 0);
    for ([[maybe_unused]] const auto step : state) {
        setRichText(*document, text);
    }
}
BENCHMARK(setText)->ArgName("plainLayout")->Arg(1)->Arg(0)->Unit(benchmark::kMillisecond);

void applyFirstRuns(benchmark::State &state)
{
    const RichText text = coloured();
    const auto document = makeDocument(state.range(0) != 0);
    for ([[maybe_unused]] const auto step : state) {
        state.PauseTiming();
        setRichText(*document, RichText::plain(text.text));
        state.ResumeTiming();
        applyCharacterRuns(*document, text.characters);
    }
}
BENCHMARK(applyFirstRuns)->ArgName("plainLayout")->Arg(1)->Arg(0)->Unit(benchmark::kMillisecond);

void applyOtherRuns(benchmark::State &state)
{
    const RichText texts[] = { coloured(0), coloured(1) };
    const auto document = makeDocument(true);
    setRichText(*document, texts[0]);
    size_t next = 1;
    for ([[maybe_unused]] const auto step : state) {
        applyCharacterRuns(*document, texts[next].characters);
        next = 1 - next;
    }
}
BENCHMARK(applyOtherRuns)->Unit(benchmark::kMillisecond);

void applySameRuns(benchmark::State &state)
{
    const RichText text = coloured();
    const auto document = makeDocument(true);
    setRichText(*document, text);
    for ([[maybe_unused]] const auto step : state) {
        applyCharacterRuns(*document, text.characters);
    }
}
BENCHMARK(applySameRuns)->Unit(benchmark::kMillisecond);

void readDocument(benchmark::State &state)
{
    const auto document = makeDocument(true);
    setRichText(*document, coloured());
    for ([[maybe_unused]] const auto step : state) {
        const RichText text = richTextOf(*document);
        benchmark::DoNotOptimize(&text);
    }
}
BENCHMARK(readDocument)->Unit(benchmark::kMillisecond);

void readPlainText(benchmark::State &state)
{
    const auto document = makeDocument(true);
    setRichText(*document, coloured());
    for ([[maybe_unused]] const auto step : state) {
        const QString text = plainTextOf(*document);
        benchmark::DoNotOptimize(&text);
    }
}
BENCHMARK(readPlainText)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
