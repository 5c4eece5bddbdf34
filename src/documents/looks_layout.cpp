// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/looks_layout.h"

#include "documents/document_states.h"
#include "platform/richtext/rich_text_document.h"

#include <QScopedValueRollback>
#include <QTextBlock>

#include <cmath>
#include <limits>
#include <map>

namespace zeph {

/// How many lines of each width there are, so that the longest one is known without a pass over all
/// lines. Every line holds it, since lines may outlive the layout.
class LineWidths
{
public:
    void add(double width) { ++m_counts[width]; }
    void remove(double width)
    {
        const auto count = m_counts.find(width);
        if (--count->second == 0) {
            m_counts.erase(count);
        }
    }
    double widest() const { return m_counts.empty() ? 0 : m_counts.rbegin()->first; }

private:
    std::map<double, int> m_counts;
};

/// What the layout keeps of a line that has been laid out; the toolkit deletes it with the line.
class LooksLayout::Line : public QTextBlockUserData
{
public:
    explicit Line(std::shared_ptr<LineWidths> widths) : m_widths(std::move(widths))
    {
        m_widths->add(m_width);
    }
    ~Line() override { m_widths->remove(m_width); }
    Line(const Line &) = delete;
    Line &operator=(const Line &) = delete;

    void setWidth(double width)
    {
        if (width != m_width) {
            m_widths->remove(m_width);
            m_width = width;
            m_widths->add(m_width);
        }
    }

    bool hasLooks = false; ///< its formats are its present looks

private:
    std::shared_ptr<LineWidths> m_widths;
    double m_width = 0;
};

LooksLayout::LooksLayout(QTextDocument &document, DocumentStates &states)
    : QPlainTextDocumentLayout(&document), m_states(&states),
      m_widths(std::make_shared<LineWidths>())
{
    connect(&states, &DocumentStates::looksChanged, this, &LooksLayout::onLooksChanged);
}

LooksLayout::~LooksLayout() = default;

void LooksLayout::setZoom(double factor)
{
    if (factor != m_zoom) {
        m_zoom = factor;
        m_formats.clear();
        forget(document()->firstBlock(), document()->lastBlock());
        tellSize();
        Q_EMIT update();
    }
}

QSizeF LooksLayout::documentSize() const
{
    return QSizeF(m_widths->widest(), document()->lineCount());
}

QRectF LooksLayout::blockBoundingRect(const QTextBlock &block) const
{
    if (block.isValid() && !isLaidOut(block)) {
        // The toolkit's own layouts do the same within this const function.
        const_cast<LooksLayout *>(this)->layOut(block);
    }
    return QPlainTextDocumentLayout::blockBoundingRect(block);
}

bool LooksLayout::isLaidOut(const QTextBlock &block) const
{
    const auto *line = static_cast<const Line *>(block.userData());
    return line && line->hasLooks && block.layout()->lineCount() > 0;
}

LooksLayout::Line &LooksLayout::lineOf(const QTextBlock &block,
                                       const std::shared_ptr<LineWidths> &widths)
{
    QTextBlock owner = block;
    if (!owner.userData()) {
        owner.setUserData(new Line(widths));
    }
    return static_cast<Line &>(*owner.userData());
}

/// Gives the line the same geometry as the toolkit's layout of plain text would.
void LooksLayout::layOut(const QTextBlock &block)
{
    Line &line = lineOf(block, m_widths);
    giveLooks(block, line);
    const double margin = document()->documentMargin();
    const double widestBefore = m_widths->widest();
    QTextLayout &layout = *block.layout();
    layout.setTextOption(document()->defaultTextOption());
    double width = 0;
    double height = 0;
    layout.beginLayout();
    for (QTextLine row = layout.createLine(); row.isValid(); row = layout.createLine()) {
        row.setLeadingIncluded(true);
        row.setLineWidth(double(std::numeric_limits<int>::max()) - 2 * margin);
        row.setPosition(QPointF(margin, height));
        height += row.height();
        if (row.leading() < 0) {
            height += std::ceil(row.leading());
        }
        width = std::max(width, row.naturalTextWidth() + 2 * margin);
    }
    layout.endLayout();
    QTextBlock counted = block;
    counted.setLineCount(block.isVisible() ? layout.lineCount() : 0);
    line.setWidth(width);
    if (m_widths->widest() != widestBefore || document()->lineCount() != m_lineCount) {
        tellSize();
    }
}

void LooksLayout::giveLooks(const QTextBlock &block, Line &line)
{
    // Set first, since the toolkit may ask for the line again before this returns.
    line.hasLooks = true;
    if (!m_states || !m_states->isUpToDate()) {
        // While the text is being changed its looks are not known: the line keeps those it has, and
        // is laid out again after the change.
        line.hasLooks = !m_states;
        return;
    }
    const QList<QTextLayout::FormatRange> formats = formatsOf(block);
    if (formats != block.layout()->formats()) {
        const QScopedValueRollback giving(m_isGivingLooks, true);
        block.layout()->setFormats(formats);
        // setFormats() counts as a change of the text, which the toolkit would report together with
        // the next true one. It is reported now, while documentChanged() ignores it.
        document()->markContentsDirty(block.position(), block.length());
    }
}

QList<QTextLayout::FormatRange> LooksLayout::formatsOf(const QTextBlock &block)
{
    QList<QTextLayout::FormatRange> formats;
    int start = 0;
    for (const TextChunk::Run &run : m_states->runs(block.position(), block.length() - 1)) {
        formats.append({ start, int(run.length), formatOf(run.look) });
        start += int(run.length);
    }
    return block.layout()->preeditAreaText().isEmpty() ? formats : withComposed(block, formats);
}

/// Makes room in a line's formats for the text that an input method is composing there. That text
/// keeps the marks of the input method, in the look in which it will be typed.
QList<QTextLayout::FormatRange>
LooksLayout::withComposed(const QTextBlock &block,
                          const QList<QTextLayout::FormatRange> &formats) const
{
    const QTextLayout &layout = *block.layout();
    const int at = layout.preeditAreaPosition();
    const int length = int(layout.preeditAreaText().size());
    QList<QTextLayout::FormatRange> result;
    for (const QTextLayout::FormatRange &range : formats) {
        const int before = std::clamp(at - range.start, 0, range.length);
        if (before > 0) {
            result.append({ range.start, before, range.format });
        }
        if (before < range.length) {
            result.append({ range.start + before + length, range.length - before, range.format });
        }
    }
    const QTextCharFormat typed = toTextFormat(m_states->lookForTyping(block.position() + at));
    for (const QTextLayout::FormatRange &mark : layout.formats()) {
        if (mark.start >= at && mark.start + mark.length <= at + length) {
            result.append({ mark.start, mark.length, typed });
            result.back().format.merge(mark.format);
        }
    }
    return result;
}

const QTextCharFormat &LooksLayout::formatOf(quint32 look)
{
    while (m_formats.size() <= look) {
        CharFormat format = m_states->look(quint32(m_formats.size()));
        format.pointSize *= m_zoom;
        m_formats.push_back(toTextFormat(format));
    }
    return m_formats[look];
}

void LooksLayout::forget(const QTextBlock &first, const QTextBlock &last)
{
    for (QTextBlock block = first; block.isValid(); block = block.next()) {
        block.clearLayout();
        if (auto *line = static_cast<Line *>(block.userData())) {
            line->hasLooks = false;
        }
        const int lines = block.isVisible() ? 1 : 0;
        if ((block.lineCount() > 0) != block.isVisible()) {
            block.setLineCount(lines);
        }
        if (block == last) {
            break;
        }
    }
}

/// Lays one line out anew. Only this line is painted again, unless its height has changed.
void LooksLayout::layOutAgain(const QTextBlock &block)
{
    const double before = QPlainTextDocumentLayout::blockBoundingRect(block).height();
    layOut(block);
    if (QPlainTextDocumentLayout::blockBoundingRect(block).height() == before) {
        Q_EMIT updateBlock(block);
    } else {
        Q_EMIT update();
    }
}

void LooksLayout::documentChanged(int from, int, int added)
{
    if (m_isGivingLooks) {
        return;
    }
    const QTextBlock first = document()->findBlock(from);
    const QTextBlock last = document()->findBlock(from + added);
    const bool isOneLine = first == last && document()->blockCount() == m_blockCount;
    m_blockCount = document()->blockCount();
    if (isOneLine && isLaidOut(first)) {
        layOutAgain(first);
        return;
    }
    forget(first, last);
    if (document()->lineCount() != m_lineCount) {
        tellSize();
    }
    Q_EMIT update();
}

void LooksLayout::onLooksChanged(const std::vector<TextStretch> &stretches)
{
    if (stretches.empty()) {
        m_formats.clear();
        forget(document()->begin(), document()->lastBlock());
        Q_EMIT update();
        return;
    }
    QTextBlock block = document()->findBlock(int(stretches.front().from));
    const bool isOneLine = stretches.back().to <= block.position() + block.length();
    if (isOneLine && isLaidOut(block)) {
        layOutAgain(block);
        return;
    }
    for (const TextStretch &stretch : stretches) {
        if (stretch.to <= block.position()) {
            continue; // its lines are forgotten already
        }
        if (stretch.from >= block.position()) {
            block = document()->findBlock(int(stretch.from));
        }
        const QTextBlock last = document()->findBlock(int(stretch.to - 1));
        forget(block, last);
        block = last.next();
        if (!block.isValid()) {
            break;
        }
    }
    Q_EMIT update();
}

void LooksLayout::tellSize()
{
    m_lineCount = document()->lineCount();
    if (!m_isTellingSize) {
        const QScopedValueRollback telling(m_isTellingSize, true);
        Q_EMIT documentSizeChanged(documentSize());
    }
}

} // namespace zeph
