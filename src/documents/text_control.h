// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/rich_text.h"

#include <QPlainTextEdit>

namespace zeph {

class ColouredText;
class LineMargin;
struct SeenLine;

/// A view of a text: shows it in its colours, unwrapped, so that a line is always a line of
/// the file, and lets the user type into it. Caret and selection are the text's own. Positions are
/// 0-based characters.
class TextControl : public QPlainTextEdit
{
    Q_OBJECT
public:
    /// The text must outlive the view.
    explicit TextControl(ColouredText &text, QWidget *parent = nullptr);
    /// A view of a text of its own.
    explicit TextControl(QWidget *parent = nullptr);

    ColouredText &shown() const { return m_text; }

    /// Sets the background of the whole control, and what plain text looks like.
    void setLook(ColorRef background, const CharFormat &plain);
    /// Shows everything so many times as large. The text's looks stay what they are.
    void setZoom(double factor);
    /// Shows a stretch as selected; the text's own caret and selection stay where they are.
    void mark(int start, int length);
    /// Shows the text's own caret and selection again after mark().
    void showCaret();

    /// Gives the keyboard to the text.
    void takeFocus();

    /// Values of the two scroll bars.
    struct Scroll {
        int across = 0;
        int down = 0;
    };
    Scroll scroll() const;
    void setScroll(const Scroll &scroll);

    /// Shows the numbers of the lines at the left, or hides them.
    void showLineNumbers(bool shown);
    /// Marks the caret's line over the whole width, or no longer.
    void showCurrentLine(bool shown);
    /// Marks each place where the text has a word (options are those of SearchOption); an empty
    /// word marks none. A word with a line end in it is not marked.
    void markWord(const QString &word, int options);
    QList<SeenLine> seenLines() const;

Q_SIGNALS:
    /// The text has got the focus, but not by takeFocus().
    void focused();
    /// The wheel was turned with Ctrl held: up, which is positive, to see more largely.
    void zoomWanted(int steps);

protected:
    void focusInEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    QMimeData *createMimeDataFromSelection() const override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    bool canInsertFromMimeData(const QMimeData *source) const override;
    void insertFromMimeData(const QMimeData *source) override;

private:
    /// Locks the text against the user's changes; the caret still moves and text can be selected.
    void setLocked(bool on);
    void useFont();
    void tellCaret();
    void tellKey(const QKeyEvent &event);
    void placeMargin();
    void updateMargin(const QRect &changed, int scrolled);
    void moveMark();
    void updateLine(int line);
    void paintWords(QPainter &painter) const;
    void paintWordsOf(QPainter &painter, const QTextBlock &line) const;
    /// The part of the viewport, over its whole width, that a line takes.
    QRectF lineArea(const QTextBlock &line) const;

    ColouredText &m_text;
    LineMargin *m_margin;
    bool m_takesFocus = false;
    bool m_shows = false; ///< the text's own caret is being shown: nothing to tell the text
    bool m_marks = false; ///< the view's selection is that of mark(), not the text's
    bool m_marksLine = false;
    double m_zoom = 1;
    int m_turned = 0; ///< of the wheel, in eighths of a degree, since the last step
    int m_markedLine = 1;
    QString m_markedWord;
    int m_wordOptions = 0;
};

} // namespace zeph
