// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/richtext/rich_text_box.h"

#include "platform/core/text_search.h"
#include "platform/richtext/rich_text_document.h"
#include "platform/richtext/rich_text_mime.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <QTextBlock>

#include <algorithm>
#include <cmath>

namespace zeph {

namespace {

// The toolkit breaks a word into lines at a cost of its length squared. One of this many characters
// takes it some milliseconds.
constexpr qsizetype longWord = 10000;

} // namespace

RichTextBox::RichTextBox(QWidget *parent) : QTextEdit(parent)
{
    document()->setIndentWidth(bulletIndentPixels);
    watchDocument();
    connect(this, &RichTextBox::cursorPositionChanged, this, &RichTextBox::leaveLink);
}

void RichTextBox::watchDocument()
{
    connect(document(), &QTextDocument::contentsChange, this,
            [this](int position, int, int added) { wrapLongWords(position, added); });
}

void RichTextBox::wrapLongWords(int position, int added)
{
    if (wordWrapMode() == QTextOption::WrapAnywhere) {
        return;
    }
    const QTextBlock last = document()->findBlock(position + added);
    for (QTextBlock block = document()->findBlock(position); block.isValid();
         block = block.next()) {
        if (block.length() > longWord && holdsLongWord(block.text(), longWord)) {
            setWordWrapMode(QTextOption::WrapAnywhere);
            return;
        }
        if (block == last) {
            return;
        }
    }
}

/// What is typed after a hyperlink does not belong to it.
void RichTextBox::leaveLink()
{
    const QTextCursor cursor = textCursor();
    QTextCharFormat typing = currentCharFormat();
    if (cursor.hasSelection() || !typing.isAnchor()) {
        return;
    }
    QTextCursor next(cursor);
    const bool isWithin = next.movePosition(QTextCursor::NextCharacter)
        && next.charFormat().anchorHref() == typing.anchorHref();
    if (!isWithin) {
        typing.clearProperty(QTextFormat::IsAnchor);
        typing.clearProperty(QTextFormat::AnchorHref);
        setCurrentCharFormat(typing);
    }
}

/// Shows a text that is wrapped as its words need it, without laying it out the other way.
void RichTextBox::showText(bool hasLongWord, const std::function<void()> &show)
{
    if (hasLongWord) {
        setWordWrapMode(QTextOption::WrapAnywhere);
    }
    show();
    if (!hasLongWord) {
        setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    }
    select(0, 0);
    scrollTo(0);
}

void RichTextBox::adopt(std::unique_ptr<QTextDocument> document)
{
    QTextDocument *const before = this->document();
    const bool isOwn = before->parent() == this;
    const bool hasLongWord = holdsLongWord(document->toRawText(), longWord);
    document->setParent(this);
    showText(hasLongWord, [&] { setDocument(document.release()); });
    if (isOwn) {
        delete before;
    }
    watchDocument();
    Q_EMIT undoAvailable(this->document()->isUndoAvailable());
    Q_EMIT redoAvailable(this->document()->isRedoAvailable());
}

RichText RichTextBox::richText() const
{
    return richTextOf(*document());
}

void RichTextBox::setRichText(const RichText &text)
{
    showText(holdsLongWord(text.text, longWord), [&] { zeph::setRichText(*document(), text); });
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
    if (position <= 0) {
        // Needs no layout of the rest.
        verticalScrollBar()->setValue(0);
        return;
    }
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
