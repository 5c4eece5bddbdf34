// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "print/print_pages.h"

#include "platform/richtext/rich_text_document.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QHash>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QTextBlock>
#include <QTextLayout>
#include <QTextList>

#include <cmath>

namespace zeph {

namespace {

// What differs less from white than the first is printed black. Of a text for a dark screen, what
// differs less than the second is printed darker, with the third.
constexpr double leastContrast = 1.5;
constexpr double weakContrast = 3;
constexpr double goodContrast = 4.5;
constexpr double flare = 0.05;
// A bullet's measures, in parts of its line's ascent.
constexpr double bulletRadius = 0.16;
constexpr double bulletDistance = 0.8;

double linear(int part)
{
    const double value = part / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double luminance(ColorRef colour)
{
    return 0.2126 * linear(redOf(colour)) + 0.7152 * linear(greenOf(colour))
        + 0.0722 * linear(blueOf(colour));
}

double contrastWithWhite(ColorRef colour)
{
    return (1 + flare) / (luminance(colour) + flare);
}

RichText inked(RichText text, ColorRef plain)
{
    const bool isForDarkScreen = contrastWithWhite(plain) < weakContrast;
    // A text has few colours and many runs.
    QHash<ColorRef, ColorRef> inks;
    for (CharRun &run : text.characters) {
        if (run.format.colour) {
            const ColorRef colour = *run.format.colour;
            const auto known = inks.constFind(colour);
            run.format.colour = known != inks.cend()
                ? *known
                : *inks.insert(colour, inkOf(colour, isForDarkScreen));
        }
    }
    text.normalise();
    return text;
}

/// The pages that the user asked for, 0-based, among those that exist.
std::vector<int> wantedPages(const QPagedPaintDevice &device, int count)
{
    const QPageRanges ranges = device.pageRanges();
    std::vector<int> pages;
    for (int page = 0; page < count; ++page) {
        if (ranges.isEmpty() || ranges.contains(page + 1)) {
            pages.push_back(page);
        }
    }
    return pages;
}

} // namespace

std::vector<size_t> pageStarts(std::span<const LineExtent> lines, double pageHeight)
{
    std::vector<size_t> starts = { 0 };
    for (size_t i = 1; i < lines.size(); ++i) {
        if (lines[i].bottom - lines[starts.back()].top > pageHeight) {
            starts.push_back(i);
        }
    }
    return starts;
}

ColorRef inkOf(ColorRef colour, bool isForDarkScreen)
{
    const double contrast = contrastWithWhite(colour);
    if (contrast < leastContrast) {
        return 0;
    }
    ColorRef ink = colour;
    const bool isPale = isForDarkScreen && contrast < weakContrast;
    for (quint32 percent = 95; isPale && contrastWithWhite(ink) < goodContrast; percent -= 5) {
        const auto darker = [percent](int part) {
            return quint32(part) * percent / 100;
        };
        ink = colorRef(darker(redOf(colour)), darker(greenOf(colour)), darker(blueOf(colour)));
    }
    return ink;
}

RichText withPrintHeader(const RichText &text, const CharFormat &plain, const QString &path,
                         const QString &printedOn)
{
    CharFormat format = plain;
    format.colour = 0;
    RichText whole = RichText::plain(
        u"\n\n"_s + path + u"\nPrinted on: "_s + printedOn + u"\n\n"_s, format,
        text.paragraphs.empty() ? ParagraphFormat() : text.paragraphs.front().format);
    whole.append(text);
    return whole;
}

PrintPages::PrintPages(const RichText &text, const CharFormat &plain, QPaintDevice &device,
                       const QSizeF &size, double tabPixels)
    : m_document(std::make_unique<QTextDocument>())
{
    // A word that is wider than the page is broken: nothing may be lost at the right.
    QTextOption option = m_document->defaultTextOption();
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setTabStopDistance(tabPixels);
    m_document->setDefaultTextOption(option);
    m_document->setUndoRedoEnabled(false);
    m_document->setDocumentMargin(0);
    m_document->setIndentWidth(bulletIndentPixels);
    m_document->setDefaultFont(toTextFormat(plain).font());
    m_document->documentLayout()->setPaintDevice(&device);
    setRichText(*m_document, inked(text, plain.colour.value_or(0)));
    m_document->setTextWidth(size.width());
    collectLines();
    std::vector<LineExtent> extents;
    extents.reserve(m_lines.size());
    for (const Line &line : m_lines) {
        extents.push_back(line.extent);
    }
    m_starts = pageStarts(extents, size.height());
}

PrintPages::~PrintPages() = default;

void PrintPages::collectLines()
{
    // The toolkit lays out in steps; asking for the size makes it go through to the end.
    (void)m_document->documentLayout()->documentSize();
    for (QTextBlock block = m_document->begin(); block.isValid(); block = block.next()) {
        const QTextLayout &layout = *block.layout();
        for (int i = 0; i < layout.lineCount(); ++i) {
            const QTextLine line = layout.lineAt(i);
            const double top = layout.position().y() + line.y();
            m_lines.push_back({ block.blockNumber(), i, { top, top + line.height() } });
        }
    }
}

void PrintPages::draw(QPainter &painter, int page) const
{
    const size_t first = m_starts.at(size_t(page));
    const size_t next =
        size_t(page) + 1 < m_starts.size() ? m_starts[size_t(page) + 1] : m_lines.size();
    painter.setPen(Qt::black);
    for (size_t i = first; i < next; ++i) {
        const Line &line = m_lines[i];
        const QTextBlock block = m_document->findBlockByNumber(line.block);
        const QTextLayout &layout = *block.layout();
        const double pageTop = m_lines[first].extent.top;
        layout.lineAt(line.index).draw(&painter, layout.position() - QPointF(0, pageTop));
        if (line.index == 0 && block.textList()) {
            drawBullet(painter, line, pageTop);
        }
    }
}

void PrintPages::drawBullet(QPainter &painter, const Line &line, double pageTop) const
{
    const QTextBlock block = m_document->findBlockByNumber(line.block);
    const QTextLine first = block.layout()->lineAt(line.index);
    const double ascent = first.ascent();
    const QPointF start =
        block.layout()->position() + QPointF(first.naturalTextRect().left(), first.y() - pageTop);
    QTextCursor cursor(block);
    cursor.movePosition(QTextCursor::NextCharacter);
    const QBrush text = cursor.charFormat().foreground();
    painter.save();
    painter.setPen(Qt::NoPen);
    painter.setBrush(text.style() == Qt::NoBrush ? QBrush(Qt::black) : text);
    painter.drawEllipse(start + QPointF(-ascent * bulletDistance, ascent * (1 - 2 * bulletRadius)),
                        ascent * bulletRadius, ascent * bulletRadius);
    painter.restore();
}

Expected<void, QString> printOn(QPagedPaintDevice &device, const RichText &text,
                                const CharFormat &plain, double tabPixels)
{
    const PrintPages pages(text, plain, device, QSizeF(device.width(), device.height()), tabPixels);
    const std::vector<int> wanted = wantedPages(device, pages.count());
    if (wanted.empty()) {
        return Unexpected<QString>(u"it has no such pages."_s);
    }
    QPainter painter;
    if (!painter.begin(&device)) {
        return Unexpected<QString>(u"the printer doesn't take anything."_s);
    }
    for (const int page : wanted) {
        if (page != wanted.front() && !device.newPage()) {
            return Unexpected<QString>(u"it takes no page %1."_s.arg(page + 1));
        }
        pages.draw(painter, page);
    }
    if (!painter.end()) {
        return Unexpected<QString>(u"it didn't finish."_s);
    }
    return {};
}

Expected<QByteArray, QString> pdfOf(const RichText &text, const CharFormat &plain,
                                    const QString &title, const QPagedPaintDevice &paper,
                                    double tabPixels)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setTitle(title);
    writer.setCreator(u"Zeph"_s);
    writer.setPageLayout(paper.pageLayout());
    if (const auto printed = printOn(writer, text, plain, tabPixels); !printed) {
        return Unexpected<QString>(printed.error());
    }
    return buffer.data();
}

} // namespace zeph
