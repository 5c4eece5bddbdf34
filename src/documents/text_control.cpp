// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/text_control.h"

#include "documents/line_margin.h"
#include "documents/pasted_text.h"
#include "platform/colours.h"
#include "platform/richtext/rich_text_document.h"
#include "platform/richtext/rich_text_mime.h"

#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>

namespace zeph {

namespace {

/// Whether a key press puts characters into a text, which commands do not.
bool types(const QKeyEvent &event)
{
    const auto held = event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    const QString text = event.text();
    return held != Qt::ControlModifier && !text.isEmpty()
        && (text[0].isPrint() || text[0] == u'\t' || text[0].isSurrogate());
}

bool changesText(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Backspace
        || key == Qt::Key_Delete;
}

} // namespace

TextControl::TextControl(QWidget *parent)
    : QPlainTextEdit(parent), m_states(std::make_unique<DocumentStates>(*document())),
      m_margin(new LineMargin(*this, [this] { return seenLines(); }))
{
    setLineWrapMode(NoWrap);
    setUndoRedoEnabled(false);
    document()->setDocumentMargin(6);
    setParagraphFormat(*document(), documentParagraph);
    m_margin->hide();
    connect(this, &TextControl::blockCountChanged, this, &TextControl::placeMargin);
    connect(this, &TextControl::updateRequest, this, &TextControl::updateMargin);
    connect(this, &TextControl::cursorPositionChanged, this, &TextControl::moveMark);
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
    placeMargin();
}

QString TextControl::text() const
{
    return plainTextOf(*document());
}

RichText TextControl::richText() const
{
    return m_states->presentText();
}

void TextControl::setText(const QString &text)
{
    setRichText(RichText::plain(text, m_plain, documentParagraph));
}

void TextControl::setRichText(const RichText &text)
{
    zeph::setRichText(*document(), text);
    const bool isUniform = text.paragraphs.size() == 1 && !text.paragraphs.front().format.bullet;
    if (isUniform && text.text == this->text()) {
        m_states->know(text);
    }
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

void TextControl::replaceAll(const QList<qsizetype> &starts, int length, const QString &text)
{
    QTextCursor change(document());
    change.beginEditBlock();
    for (auto start = starts.rbegin(); start != starts.rend(); ++start) {
        replace(int(*start), length, text);
    }
    change.endEditBlock();
}

void TextControl::setCharacterRuns(const std::vector<CharRun> &runs, int from)
{
    qsizetype length = 0;
    for (const CharRun &run : runs) {
        length += std::max(run.length, qsizetype(0));
    }
    if (from > 0 || length != end()) {
        applyCharacterRuns(*document(), runs, from);
        return;
    }
    LookRuns looks;
    looks.runs.reserve(runs.size());
    QHash<CharFormat, quint32> numbers;
    for (const CharRun &run : runs) {
        const auto known = numbers.constFind(run.format);
        const quint32 number = known != numbers.cend() ? *known : quint32(looks.looks.size());
        if (known == numbers.cend()) {
            numbers.insert(run.format, number);
            looks.looks.push_back(run.format);
        }
        looks.runs.push_back({ quint32(std::max(run.length, qsizetype(0))), number });
    }
    m_states->setLooks(looks);
}

void TextControl::changeLooks(int from, int length, const std::function<void(CharFormat &)> &change)
{
    const bool whole = from == 0 && length == end();
    std::vector<CharRun> runs =
        whole ? richText().characters : characterRunsOf(*document(), from, length);
    for (CharRun &run : runs) {
        change(run.format);
    }
    setCharacterRuns(runs, from);
}

int TextControl::end() const
{
    return document()->characterCount() - 1;
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
    const int last = end();
    QTextCursor cursor(document());
    cursor.setPosition(qBound(0, start, last));
    cursor.setPosition(qBound(0, start + length, last), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
    if (document()->isEmpty()) {
        // A new cursor knows nothing of the looks that typing is to have.
        setCurrentCharFormat(toTextFormat(m_plain));
    }
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
    const int last = end();
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

void TextControl::showLineNumbers(bool shown)
{
    m_margin->setVisible(shown);
    placeMargin();
}

void TextControl::showCurrentLine(bool shown)
{
    m_marksLine = shown;
    viewport()->update();
}

QRectF TextControl::lineArea(const QTextBlock &line) const
{
    const QRectF area = blockBoundingGeometry(line).translated(contentOffset());
    return { 0, area.top(), double(viewport()->width()), area.height() };
}

QList<SeenLine> TextControl::seenLines() const
{
    QList<SeenLine> lines;
    const int end = viewport()->height();
    for (QTextBlock line = firstVisibleBlock(); line.isValid(); line = line.next()) {
        const QRectF area = lineArea(line);
        if (area.top() > end) {
            break;
        }
        const QTextLine text = line.layout()->lineAt(0);
        const double baseline =
            text.isValid() ? area.top() + text.y() + text.ascent() : area.bottom();
        lines.append({ line.blockNumber() + 1, area.top(), area.height(), baseline });
    }
    return lines;
}

void TextControl::placeMargin()
{
    const int width = m_margin->isHidden() ? 0 : m_margin->wantedWidth();
    setViewportMargins(width, 0, 0, 0);
    const QRect text = viewport()->geometry();
    m_margin->setGeometry(text.left() - width, text.top(), width, text.height());
    m_margin->update();
}

void TextControl::updateMargin(const QRect &changed, int scrolled)
{
    if (scrolled != 0) {
        m_margin->update();
    } else {
        m_margin->update(0, changed.y(), m_margin->width(), changed.height());
    }
}

void TextControl::moveMark()
{
    const int line = caretLine();
    if (line != m_markedLine) {
        updateLine(m_markedLine);
        updateLine(line);
        m_markedLine = line;
    }
}

void TextControl::updateLine(int line)
{
    const QTextBlock block = document()->findBlockByNumber(line - 1);
    if (block.isValid()) {
        const QRect area = lineArea(block).toAlignedRect();
        viewport()->update(area);
        updateMargin(area, 0);
    }
}

void TextControl::resizeEvent(QResizeEvent *event)
{
    QPlainTextEdit::resizeEvent(event);
    placeMargin();
}

void TextControl::paintEvent(QPaintEvent *event)
{
    if (m_marksLine) {
        QPainter painter(viewport());
        painter.fillRect(lineArea(textCursor().block()),
                         marginColours(palette().color(QPalette::Base)).mark);
    }
    QPlainTextEdit::paintEvent(event);
}

void TextControl::tellKey(const QKeyEvent &event)
{
    if (!isReadOnly() && (types(event) || changesText(event.key()))) {
        Q_EMIT keyComing(event.key());
    }
}

void TextControl::inputMethodEvent(QInputMethodEvent *event)
{
    // What is composed of several keys comes without a key press.
    if (!isReadOnly() && !event->commitString().isEmpty()) {
        Q_EMIT keyComing(event->commitString() == u" " ? Qt::Key_Space : Qt::Key_unknown);
    }
    QPlainTextEdit::inputMethodEvent(event);
}

void TextControl::keyPressEvent(QKeyEvent *event)
{
    tellKey(*event);
    const auto held = event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && held == Qt::NoModifier && !isReadOnly()) {
        // The toolkit would make a line within a paragraph with Shift, which files do not know, and
        // two changes of one key on an empty line.
        QTextCursor cursor = textCursor();
        cursor.insertBlock();
        setTextCursor(cursor);
        ensureCursorVisible();
        event->accept();
        return;
    }
    QPlainTextEdit::keyPressEvent(event);
}

QMimeData *TextControl::createMimeDataFromSelection() const
{
    return new RichTextMime(zeph::richTextOf(*document(), selStart(), selLength()));
}

bool TextControl::canInsertFromMimeData(const QMimeData *source) const
{
    return holdsText(source) && !source->hasUrls();
}

void TextControl::insertFromMimeData(const QMimeData *source)
{
    QTextCursor cursor = textCursor();
    insertRichText(cursor, pastedText(*source, m_plain));
    setTextCursor(cursor);
    setCurrentCharFormat(toTextFormat(m_plain));
    ensureCursorVisible();
}

} // namespace zeph
