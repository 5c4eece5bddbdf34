// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QWidget>

namespace zeph {

class TextControl;

/// What stands beside and behind the text, in colours that fit its background.
struct MarginColours {
    QColor background;
    QColor number;
    /// The number of the caret's line.
    QColor current;
    /// The mark on the caret's line.
    QColor mark;
};

/// Margin, numbers that can be read on it, and a mark that leaves the text readable.
MarginColours marginColours(const QColor &textBackground);
/// How well one colour is read on another: 1 not at all, 21 best.
double contrast(const QColor &one, const QColor &other);

/// The line numbers at the left of a text.
class LineMargin : public QWidget
{
    Q_OBJECT
public:
    explicit LineMargin(TextControl &text);

    /// Room for the number of the last line.
    int wantedWidth() const;

protected:
    void paintEvent(QPaintEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    TextControl &m_text;
};

} // namespace zeph
