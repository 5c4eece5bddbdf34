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

/// Lays out a document whose looks are held by its DocumentStates; the document owns the layout.
///
/// A line gets its looks, as formats of its QTextLayout, when it is laid out, and it is laid out
/// when it is first asked for, which is when it is first seen. So opening and recolouring a file
/// cost what is seen of it, not what there is.
///
/// When text or looks change, the lines concerned are forgotten and laid out when they are next
/// asked for. A change within one line that is laid out already, such as typing, is followed at
/// once, so that only this line is painted again.
class LooksLayout : public QPlainTextDocumentLayout
{
    Q_OBJECT
public:
    LooksLayout(QTextDocument &document, DocumentStates &states);
    ~LooksLayout() override;

    /// Shows all text so many times as large; the looks themselves stay.
    void setZoom(double factor);

    /// The width of the longest line that has been laid out, and the number of lines (not pixels).
    QSizeF documentSize() const override;
    /// Lays the line out first, if that has not been done.
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
    std::vector<QTextCharFormat> m_formats; ///< made of the looks, by their numbers
    std::shared_ptr<LineWidths> m_widths;
    double m_zoom = 1;
    int m_blockCount = 0;
    int m_lineCount = 0; ///< in the size that was last told
    bool m_isGivingLooks = false;
    bool m_isTellingSize = false;
};

} // namespace zeph
