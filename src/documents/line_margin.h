// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QList>
#include <QWidget>

#include <functional>

class QPlainTextEdit;

namespace zeph {

/// A line that is seen: its 1-based number and its place in the viewport, in pixels.
struct SeenLine {
    int number = 0;
    double top = 0;
    double height = 0;
    double baseline = 0;
};

/// The colours of the margin and of the mark on the caret's line.
struct MarginColours {
    QColor background;
    QColor number;
    /// The number of the caret's line.
    QColor current;
    /// The mark on the caret's line.
    QColor mark;
};

/// Colours that fit a text's background: numbers that can be read on the margin, and a mark that
/// leaves the text readable.
MarginColours marginColours(const QColor &textBackground);
/// How well one colour is read on another: 1 not at all, 21 best.
double contrast(const QColor &one, const QColor &other);

/// The line numbers at the left of a text.
class LineMargin : public QWidget
{
    Q_OBJECT
public:
    using SeenLines = std::function<QList<SeenLine>()>;

    /// The function gives the lines to number; it is called whenever the margin is painted.
    LineMargin(QPlainTextEdit &text, SeenLines seenLines);

    /// The width in pixels that the number of the last line needs.
    int wantedWidth() const;

protected:
    void paintEvent(QPaintEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    QPlainTextEdit &m_text;
    SeenLines m_seenLines;
};

} // namespace zeph
