// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/richtext/rich_text_box.h"

#include "platform/core/text_search.h"
#include "platform/richtext/rich_text_document.h"
#include "platform/richtext/rich_text_mime.h"

#include <QKeyEvent>
#include <QScrollBar>

#include <algorithm>
#include <cmath>

namespace zeph {

RichTextBox::RichTextBox(QWidget *parent) : QTextEdit(parent)
{
    document()->setIndentWidth(bulletIndentPixels);
}

RichText RichTextBox::richText() const
{
    return richTextOf(*document());
}

void RichTextBox::setRichText(const RichText &text)
{
    zeph::setRichText(*document(), text);
    select(0, 0);
    scrollTo(0);
}

int RichTextBox::selStart() const
{
    return textCursor().selectionStart();
}

int RichTextBox::selLength() const
{
    const QTextCursor cursor = textCursor();
    return cursor.selectionEnd() - cursor.selectionStart();
}

QString RichTextBox::selText() const
{
    return richTextOf(*document(), selStart(), selLength()).text;
}

void RichTextBox::select(int start, int length)
{
    const int size = document()->characterCount() - 1;
    const int from = std::clamp(start, 0, size);
    QTextCursor cursor(document());
    cursor.setPosition(from);
    cursor.setPosition(from + std::clamp(length, 0, size - from), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
}

void RichTextBox::scrollTo(int position)
{
    QTextCursor cursor(document());
    cursor.setPosition(std::clamp(position, 0, document()->characterCount() - 1));
    // The toolkit lays out in steps, and tells the scroll bar its true range only from the event
    // loop.
    const int height = int(std::ceil(document()->size().height()));
    QScrollBar *const bar = verticalScrollBar();
    bar->setRange(0, std::max(0, height - viewport()->height()));
    bar->setValue(bar->value() + cursorRect(cursor).top() - int(document()->documentMargin()));
}

int RichTextBox::find(QStringView word, int from, int options)
{
    const qsizetype hit = findText(plainTextOf(*document()), word, from, options);
    if (hit < 0) {
        return -1;
    }
    select(int(hit), int(word.size()));
    scrollTo(int(hit));
    return int(hit);
}

void RichTextBox::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::InsertLineSeparator) && !isReadOnly()) {
        textCursor().insertBlock();
        ensureCursorVisible();
        event->accept();
        return;
    }
    QTextEdit::keyPressEvent(event);
}

QMimeData *RichTextBox::createMimeDataFromSelection() const
{
    return new RichTextMime(richTextOf(*document(), selStart(), selLength()));
}

bool RichTextBox::canInsertFromMimeData(const QMimeData *source) const
{
    return holdsText(source) && !source->hasUrls();
}

void RichTextBox::insertFromMimeData(const QMimeData *source)
{
    QTextCursor cursor = textCursor();
    if (const auto rich = richTextOf(*source)) {
        insertRichText(cursor, *rich);
    } else {
        cursor.insertText(plainTextOf(*source), currentCharFormat());
    }
    setTextCursor(cursor);
    ensureCursorVisible();
}

} // namespace zeph
