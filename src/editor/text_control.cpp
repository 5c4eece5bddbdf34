// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/text_control.h"

#include "platform/rich_text_document.h"

#include <QMimeData>
#include <QScrollBar>
#include <QTextBlock>

#include <algorithm>

namespace zeph {

namespace {

QColor toColor(ColorRef colour)
{
    return QColor(redOf(colour), greenOf(colour), blueOf(colour));
}

} // namespace

TextControl::TextControl(QWidget *parent) : QPlainTextEdit(parent)
{
    setLineWrapMode(NoWrap);
    setUndoRedoEnabled(false);
    document()->setDocumentMargin(6);
}

void TextControl::setLook(ColorRef background, const CharFormat &plain)
{
    m_plain = plain;
    QPalette look = palette();
    look.setColor(QPalette::Base, toColor(background));
    look.setColor(QPalette::Text, toColor(plain.colour.value_or(0)));
    setPalette(look);
    setFont(toTextFormat(plain).font());
    setTabStopDistance(8 * fontMetrics().averageCharWidth());
    if (document()->isEmpty()) {
        setCurrentCharFormat(toTextFormat(plain));
    }
}

QString TextControl::text() const
{
    return plainTextOf(*document());
}

RichText TextControl::richText() const
{
    return richTextOf(*document());
}

void TextControl::setText(const QString &text)
{
    setRichText(RichText::plain(text, m_plain));
}

void TextControl::setRichText(const RichText &text)
{
    zeph::setRichText(*document(), text);
    if (document()->isEmpty()) {
        setCurrentCharFormat(toTextFormat(m_plain));
    }
}

void TextControl::replace(int start, int length, const QString &text)
{
    QTextCursor cursor(document());
    cursor.setPosition(start);
    cursor.setPosition(start + length, QTextCursor::KeepAnchor);
    cursor.insertText(text);
}

int TextControl::selStart() const
{
    return textCursor().selectionStart();
}

int TextControl::selLength() const
{
    return textCursor().selectionEnd() - textCursor().selectionStart();
}

void TextControl::select(int start, int length)
{
    const int last = document()->characterCount() - 1;
    QTextCursor cursor(document());
    cursor.setPosition(qBound(0, start, last));
    cursor.setPosition(qBound(0, start + length, last), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
}

int TextControl::caretLine() const
{
    return textCursor().blockNumber() + 1;
}

TextControl::Place TextControl::place() const
{
    const QTextCursor cursor = textCursor();
    return { cursor.anchor(), cursor.position(), horizontalScrollBar()->value(),
             verticalScrollBar()->value() };
}

void TextControl::setPlace(const Place &place)
{
    const int last = document()->characterCount() - 1;
    QTextCursor cursor(document());
    cursor.setPosition(qBound(0, place.anchor, last));
    cursor.setPosition(qBound(0, place.caret, last), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
    // Setting the caret has brought it into view, where it need not have been.
    horizontalScrollBar()->setValue(place.across);
    verticalScrollBar()->setValue(place.down);
}

void TextControl::setLocked(bool on)
{
    setReadOnly(on);
    if (on) {
        // The toolkit's read-only text has no caret of its own accord.
        setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    }
}

void TextControl::focusInEvent(QFocusEvent *event)
{
    QPlainTextEdit::focusInEvent(event);
    Q_EMIT focused();
}

void TextControl::keyPressEvent(QKeyEvent *event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && event->modifiers().testFlag(Qt::ShiftModifier)) {
        // With Shift the toolkit makes a line within a paragraph; a file knows only whole lines.
        QKeyEvent plain(event->type(), event->key(), Qt::NoModifier, event->text());
        QPlainTextEdit::keyPressEvent(&plain);
        event->accept();
        return;
    }
    QPlainTextEdit::keyPressEvent(event);
}

QMimeData *TextControl::createMimeDataFromSelection() const
{
    QMimeData *selection = QPlainTextEdit::createMimeDataFromSelection();
    QString text = textCursor().selectedText();
    QChar *const end = text.data() + text.size();
    std::replace_if(text.data(), end, isBlockBorder, QChar(u'\n'));
    // The toolkit gives its text only when asked, and over what was set before: ask first. Its own
    // has blanks for no-break spaces, which are letters of the file.
    (void)selection->text();
    selection->setText(text);
    return selection;
}

bool TextControl::canInsertFromMimeData(const QMimeData *source) const
{
    return source->hasText() && !source->hasUrls();
}

void TextControl::insertFromMimeData(const QMimeData *source)
{
    QString text = source->text();
    // A NUL would make a file that no other program reads, and that could not be opened again.
    text.remove(QChar(0));
    text.replace(u"\r\n"_s, u"\n"_s);
    text.replace(u'\r', u'\n');
    QTextCursor cursor = textCursor();
    cursor.insertText(text, toTextFormat(m_plain));
    setTextCursor(cursor);
    ensureCursorVisible();
}

} // namespace zeph
