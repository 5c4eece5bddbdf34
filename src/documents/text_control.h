// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "documents/document_states.h"

#include <QPlainTextEdit>

#include <functional>

namespace zeph {

/// The small margin that every document has.
constexpr ParagraphFormat documentParagraph = { .leftIndentTwips = 20 };

class LineMargin;
struct SeenLine;

/// One of the Editor's two texts: shows a document's text and colours, unwrapped, so that a line is
/// always a line of the file. Keeps no undo of its own. Positions are 0-based characters.
class TextControl : public QPlainTextEdit
{
    Q_OBJECT
public:
    explicit TextControl(QWidget *parent = nullptr);

    /// Background of the whole control and the format of plain text.
    void setLook(ColorRef background, const CharFormat &plain);
    const CharFormat &plainFormat() const { return m_plain; }

    /// The text, every character as it is (the toolkit's own call changes some blanks).
    QString text() const;
    RichText richText() const;
    /// The document's states; kept up to date by whatever changes the text.
    DocumentStates &states() { return *m_states; }
    void setText(const QString &text);
    void setRichText(const RichText &text);
    /// Replaces a stretch, in the format that stands there; caret and selection of the user move
    /// along.
    void replace(int start, int length, const QString &text);
    /// Replaces stretches of one length, at ascending places that do not overlap, as one change.
    void replaceAll(const QList<qsizetype> &starts, int length, const QString &text);

    /// Lays looks over the characters from a position on; text, caret and scroll stay.
    void setCharacterRuns(const std::vector<CharRun> &runs, int from = 0);
    /// Changes the looks of a stretch through a function.
    void changeLooks(int from, int length, const std::function<void(CharFormat &)> &change);
    /// Behind the last character.
    int end() const;

    int selStart() const;
    int selLength() const;
    void select(int start, int length);
    /// 1-based line of the caret.
    int caretLine() const;

    /// Where the user is in the text: the selection, with its direction, and what is seen of it.
    struct Place {
        int anchor = 0;
        int caret = 0;
        int across = 0; ///< of the scroll bars
        int down = 0;
    };
    Place place() const;
    void setPlace(const Place &place);

    /// Guards the text against the user; the caret still moves and text can still be selected.
    void setLocked(bool on);

    /// The numbers of the lines at the left.
    void showLineNumbers(bool shown);
    /// A mark behind the caret's line, over the whole width.
    void showCurrentLine(bool shown);
    QList<SeenLine> seenLines() const;

Q_SIGNALS:
    /// The text has got the focus.
    void focused();
    /// A key that may change the text comes to the control: Qt::Key value.
    void keyComing(int key);

protected:
    void focusInEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    QMimeData *createMimeDataFromSelection() const override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    bool canInsertFromMimeData(const QMimeData *source) const override;
    void insertFromMimeData(const QMimeData *source) override;

private:
    void tellKey(const QKeyEvent &event);
    void placeMargin();
    void updateMargin(const QRect &changed, int scrolled);
    void moveMark();
    void updateLine(int line);
    /// The stretch of the viewport, over its whole width, in which a line stands.
    QRectF lineArea(const QTextBlock &line) const;

    CharFormat m_plain;
    std::unique_ptr<DocumentStates> m_states;
    LineMargin *m_margin;
    bool m_marksLine = false;
    int m_markedLine = 1;
};

} // namespace zeph
