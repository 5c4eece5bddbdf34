// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "documents/text_chunks.h"

#include <QPlainTextDocumentLayout>
#include <QPointer>
#include <QTextLayout>

namespace zeph {

class DocumentStates;
class LineWidths;

/// Lays out a document whose looks its DocumentStates hold. A line is told its looks when it is
/// first laid out, which is when it is first seen; looks that change cost only the lines that look
/// otherwise, and those only when they are seen again. Belongs to the document.
class LooksLayout : public QPlainTextDocumentLayout
{
    Q_OBJECT
public:
    LooksLayout(QTextDocument &document, DocumentStates &states);
    ~LooksLayout() override;

    /// The width of the longest line that has been laid out, and the number of lines.
    QSizeF documentSize() const override;
    /// Lays the line out if it is not.
    QRectF blockBoundingRect(const QTextBlock &block) const override;

protected:
    void documentChanged(int from, int removed, int added) override;

private:
    class Line;

    static Line &lineOf(const QTextBlock &block, const std::shared_ptr<LineWidths> &widths);
    bool isLaidOut(const QTextBlock &block) const;
    void layOut(const QTextBlock &block);
    void giveLooks(const QTextBlock &block, Line &line);
    QList<QTextLayout::FormatRange> formatsOf(const QTextBlock &block);
    QList<QTextLayout::FormatRange>
    withComposed(const QTextBlock &block, const QList<QTextLayout::FormatRange> &formats) const;
    const QTextCharFormat &formatOf(quint32 look);
    void layOutAgain(const QTextBlock &block);
    void forget(const QTextBlock &first, const QTextBlock &last);
    void onLooksChanged(const std::vector<TextStretch> &stretches);
    void tellSize();

    QPointer<DocumentStates> m_states;
    std::vector<QTextCharFormat> m_formats; ///< by the looks' numbers
    std::shared_ptr<LineWidths> m_widths;
    int m_blockCount = 0;
    int m_lineCount = 0; ///< as last told
    bool m_isGivingLooks = false;
    bool m_isTellingSize = false;
};

} // namespace zeph
