// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/draw/box_text.h"

#include "platform/richtext/rich_text_document.h"

#include <QAbstractTextDocumentLayout>
#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <QTextBlock>
#include <QTextLayout>
#include <QTextList>

#include <algorithm>
#include <cmath>

namespace zeph {

namespace {

constexpr double metresPerInch = 0.0254;
// Sums of line heights are not exact.
constexpr double slack = 0.01;

/// A device of the sheet's resolution, whatever the screen has.
QPaintDevice &sheetDevice()
{
    static QImage device = [] {
        QImage image(1, 1, QImage::Format_RGB32);
        const int dotsPerMetre = qRound(sheetDotsPerInch / metresPerInch);
        image.setDotsPerMeterX(dotsPerMetre);
        image.setDotsPerMeterY(dotsPerMetre);
        return image;
    }();
    return device;
}

/// The format with what it leaves to the plain one.
CharFormat resolved(CharFormat format, const CharFormat &plain)
{
    if (format.family.isEmpty()) {
        format.family = plain.family;
    }
    if (format.pointSize <= 0) {
        format.pointSize = plain.pointSize;
    }
    format.colour = format.colour.value_or(plain.colour.value_or(0));
    return format;
}

/// The stretches of a line that look alike, tabs apart, since what follows one stands where the
/// tab stop is.
std::vector<BoxRun> runsOf(const QTextBlock &block, const QTextLine &line, const CharFormat &plain)
{
    std::vector<BoxRun> runs;
    const int lineEnd = line.textStart() + line.textLength();
    const QString text = plainTextOf(*block.document(), block.position(), block.length() - 1);
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextFragment fragment = it.fragment();
        int from = std::max(fragment.position() - block.position(), line.textStart());
        const int end =
            std::min(fragment.position() + fragment.length() - block.position(), lineEnd);
        const CharFormat format = resolved(fromTextFormat(fragment.charFormat()), plain);
        while (from < end) {
            int to = from + 1;
            while (text[from] != u'\t' && to < end && text[to] != u'\t') {
                ++to;
            }
            const double left = line.cursorToX(from);
            runs.push_back({ text.mid(from, to - from), left, line.cursorToX(to) - left, format });
            from = to;
        }
    }
    return runs;
}

/// The bullet of a paragraph's first line.
BoxRun bulletOf(const BoxLine &line, const CharFormat &plain)
{
    BoxRun bullet{ .text = bulletCharacter, .format = resolved({}, plain) };
    if (!line.runs.empty()) {
        bullet.format = line.runs.front().format;
    }
    const QFontMetricsF metrics(toTextFormat(bullet.format).font(), &sheetDevice());
    bullet.width = metrics.horizontalAdvance(bulletCharacter);
    bullet.left = line.left - bulletIndentPixels / 2 - bullet.width / 2;
    return bullet;
}

} // namespace

void setUpBoxDocument(QTextDocument &document, const CharFormat &plain)
{
    QTextOption option = document.defaultTextOption();
    // A word that is wider than the box is broken: nothing may be lost at the right.
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setUseDesignMetrics(true);
    document.setDefaultTextOption(option);
    document.setUndoRedoEnabled(false);
    document.setDocumentMargin(0);
    document.setIndentWidth(bulletIndentPixels);
    QFont font = toTextFormat(plain).font();
    font.setHintingPreference(QFont::PreferNoHinting);
    document.setDefaultFont(font);
    document.documentLayout()->setPaintDevice(&sheetDevice());
}

BoxText::BoxText(const RichText &text, const CharFormat &plain, double boxWidth)
    : m_plain(plain), m_document(std::make_unique<QTextDocument>())
{
    setUpBoxDocument(*m_document, plain);
    setBoxWidth(boxWidth);
    setRichText(*m_document, text);
}

BoxText::~BoxText() = default;
BoxText::BoxText(BoxText &&) noexcept = default;
BoxText &BoxText::operator=(BoxText &&) noexcept = default;

void BoxText::setBoxWidth(double width)
{
    m_document->setTextWidth(std::max(width - 2 * boxPadding, 1.0));
}

double BoxText::textHeight() const
{
    return m_document->documentLayout()->documentSize().height();
}

double BoxText::neededHeight() const
{
    return textHeight() + 2 * boxPadding;
}

double BoxText::unbrokenWidth()
{
    const double width = m_document->textWidth();
    m_document->setTextWidth(-1);
    const double ideal = m_document->idealWidth();
    m_document->setTextWidth(width);
    // A line of exactly its own width may be broken after a rounding.
    return std::ceil(ideal) + 1 + 2 * boxPadding;
}

bool BoxText::fits(double boxHeight) const
{
    return neededHeight() <= boxHeight + slack;
}

double BoxText::heldHeight(double boxHeight) const
{
    const double room = boxHeight - 2 * boxPadding + slack;
    if (const double all = textHeight(); all <= room) {
        return all;
    }
    double held = 0;
    for (QTextBlock block = m_document->begin(); block.isValid(); block = block.next()) {
        const QTextLayout &layout = *block.layout();
        for (int i = 0; i < layout.lineCount(); ++i) {
            const QTextLine line = layout.lineAt(i);
            const double bottom = layout.position().y() + line.y() + line.height();
            if (bottom > room && held > 0) {
                return held;
            }
            held = bottom;
        }
    }
    return held;
}

std::vector<BoxLine> BoxText::lines() const
{
    std::vector<BoxLine> lines;
    (void)textHeight();
    for (QTextBlock block = m_document->begin(); block.isValid(); block = block.next()) {
        const QTextLayout &layout = *block.layout();
        for (int i = 0; i < layout.lineCount(); ++i) {
            const QTextLine line = layout.lineAt(i);
            const QPointF at = layout.position() + line.position();
            const QRectF seen = line.naturalTextRect();
            BoxLine result{ .left = layout.position().x() + seen.left(),
                            .top = at.y(),
                            .baseline = at.y() + line.ascent(),
                            .height = line.height(),
                            .width = seen.width(),
                            .endsParagraph = i + 1 == layout.lineCount(),
                            .runs = runsOf(block, line, m_plain) };
            for (BoxRun &run : result.runs) {
                run.left += layout.position().x();
            }
            if (i == 0 && block.textList()) {
                result.runs.insert(result.runs.begin(), bulletOf(result, m_plain));
            }
            lines.push_back(std::move(result));
        }
    }
    return lines;
}

void BoxText::draw(QPainter &painter, double boxHeight) const
{
    QAbstractTextDocumentLayout::PaintContext context;
    // Text without a colour is black on every desktop: the sheet is paper.
    context.palette.setColor(QPalette::Text, Qt::black);
    const double width = m_document->textWidth();
    context.clip = QRectF(0, 0, width, heldHeight(boxHeight));
    painter.save();
    painter.translate(boxPadding, boxPadding);
    painter.setClipRect(QRectF(-boxPadding, 0, width + 2 * boxPadding, context.clip.height()),
                        Qt::IntersectClip);
    m_document->documentLayout()->draw(&painter, context);
    painter.restore();
}

} // namespace zeph
