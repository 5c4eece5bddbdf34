// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/text_control.h"

#include "documents/text_accessible.h"

#include "documents/coloured_text.h"
#include "documents/line_margin.h"
#include "documents/looks_layout.h"
#include "platform/colours.h"
#include "platform/core/text_search.h"
#include "platform/richtext/rich_text_document.h"
#include "platform/richtext/rich_text_mime.h"

#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTextBlock>
#include <QWheelEvent>

namespace zeph {

namespace {

/// Whether a key press puts characters into a text; keys of commands do not.
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

/// The toolkit calls this with the name of the object's class, then with those of its base classes;
/// only TextControl's own is answered.
QAccessibleInterface *makeAccessible(const QString &className, QObject *object)
{
    auto *control = qobject_cast<TextControl *>(object);
    const bool isItsOwn =
        control && className == QLatin1StringView(TextControl::staticMetaObject.className());
    return isItsOwn ? new TextAccessible(*control, control->shown()) : nullptr;
}

} // namespace

TextControl::TextControl(QWidget *parent) : TextControl(*new ColouredText, parent)
{
    m_text.setParent(this);
}

TextControl::TextControl(ColouredText &text, QWidget *parent)
    : QPlainTextEdit(parent), m_text(text),
      m_margin(new LineMargin(*this, [this] { return seenLines(); }))
{
    QAccessible::installFactory(makeAccessible);
    setDocument(&text.content());
    setLineWrapMode(NoWrap);
    m_margin->hide();
    connect(this, &TextControl::blockCountChanged, this, &TextControl::placeMargin);
    connect(this, &TextControl::updateRequest, this, &TextControl::updateMargin);
    connect(this, &TextControl::cursorPositionChanged, this, &TextControl::moveMark);
    connect(this, &TextControl::cursorPositionChanged, this, &TextControl::tellCaret);
    connect(this, &TextControl::selectionChanged, this, &TextControl::tellCaret);
    connect(&m_text, &ColouredText::caretSet, this, &TextControl::showCaret);
    connect(&m_text, &ColouredText::lockedChanged, this, &TextControl::setLocked);
}

void TextControl::setLook(ColorRef background, const CharFormat &plain)
{
    const ColouredText::Quiet quiet(m_text);
    QPalette look = palette();
    look.setColor(QPalette::Base, toColor(background));
    look.setColor(QPalette::Text, toColor(plain.colour.value_or(0)));
    // On any ground, not only on the one that the desktop's own colour is made for.
    look.setColor(QPalette::PlaceholderText, marginColours(toColor(background)).number);
    setPalette(look);
    m_text.setPlain(plain);
    useFont();
}

void TextControl::setZoom(double factor)
{
    const ColouredText::Quiet quiet(m_text);
    m_zoom = factor;
    if (auto *layout = qobject_cast<LooksLayout *>(document()->documentLayout())) {
        layout->setZoom(factor);
    }
    useFont();
    viewport()->update();
}

void TextControl::useFont()
{
    CharFormat plain = m_text.plain();
    plain.pointSize *= m_zoom;
    setFont(toTextFormat(plain).font());
    setTabStopDistance(8 * fontMetrics().averageCharWidth());
    placeMargin();
}

void TextControl::tellCaret()
{
    // The text itself tells where its caret went by a change of the program's.
    if (!m_marks && !m_shows && !m_text.states().isWriting()) {
        m_text.follow(textCursor());
    }
}

void TextControl::mark(int start, int length)
{
    m_marks = true;
    QTextCursor cursor(document());
    cursor.setPosition(start);
    cursor.setPosition(start + length, QTextCursor::KeepAnchor);
    setTextCursor(cursor);
}

void TextControl::showCaret()
{
    m_marks = false;
    const QScopedValueRollback shows(m_shows, true);
    setTextCursor(m_text.cursor());
}

TextControl::Scroll TextControl::scroll() const
{
    return { horizontalScrollBar()->value(), verticalScrollBar()->value() };
}

void TextControl::setScroll(const Scroll &scroll)
{
    horizontalScrollBar()->setValue(scroll.across);
    verticalScrollBar()->setValue(scroll.down);
}

void TextControl::setLocked(bool on)
{
    setReadOnly(on);
    if (on) {
        // Without these flags the toolkit's read-only text shows no caret.
        setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    }
}

void TextControl::takeFocus()
{
    const QScopedValueRollback takes(m_takesFocus, true);
    setFocus();
}

void TextControl::focusInEvent(QFocusEvent *event)
{
    QPlainTextEdit::focusInEvent(event);
    if (!m_takesFocus) {
        Q_EMIT focused();
    }
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
    const int line = textCursor().blockNumber() + 1;
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

void TextControl::wheelEvent(QWheelEvent *event)
{
    if (event->modifiers() != Qt::ControlModifier) {
        QPlainTextEdit::wheelEvent(event);
        return;
    }
    // Fine wheels send less than a step at a time.
    m_turned += event->angleDelta().y();
    if (const int steps = m_turned / QWheelEvent::DefaultDeltasPerStep) {
        m_turned -= steps * QWheelEvent::DefaultDeltasPerStep;
        Q_EMIT zoomWanted(steps);
    }
    event->accept();
}

void TextControl::markWord(const QString &word, int options)
{
    if (word != m_markedWord || options != m_wordOptions) {
        m_markedWord = word;
        m_wordOptions = options;
        viewport()->update();
    }
}

void TextControl::paintWords(QPainter &painter) const
{
    // Sought anew at each painting, and only in what is seen: so the marks follow the text, and
    // cost nothing while it is typed or loaded.
    for (QTextBlock line = firstVisibleBlock(); line.isValid(); line = line.next()) {
        if (lineArea(line).top() > viewport()->height()) {
            break;
        }
        paintWordsOf(painter, line);
    }
}

void TextControl::paintWordsOf(QPainter &painter, const QTextBlock &line) const
{
    const QRectF area = blockBoundingGeometry(line).translated(contentOffset());
    const QTextLine shown = line.layout()->lineAt(0);
    if (!shown.isValid()) {
        return;
    }
    const QString text = line.text();
    const int end = shown.xToCursor(viewport()->width() - area.left());
    const qsizetype length = m_markedWord.size();
    qsizetype at = std::max<qsizetype>(0, shown.xToCursor(-area.left()) - length);
    for (at = findText(text, m_markedWord, at, m_wordOptions); at >= 0 && at <= end;
         at = findText(text, m_markedWord, at + length, m_wordOptions)) {
        const double left = shown.cursorToX(int(at));
        const double right = shown.cursorToX(int(at + length));
        painter.drawRect(QRectF(area.left() + left, area.top(), right - left, area.height() - 1));
    }
}

void TextControl::paintEvent(QPaintEvent *event)
{
    if (m_marksLine) {
        QPainter painter(viewport());
        painter.fillRect(lineArea(textCursor().block()),
                         marginColours(palette().color(QPalette::Base)).mark);
    }
    if (!m_markedWord.isEmpty()) {
        QPainter painter(viewport());
        const MarginColours colours = marginColours(palette().color(QPalette::Base));
        painter.setPen(colours.number);
        painter.setBrush(colours.mark);
        paintWords(painter);
    }
    QPlainTextEdit::paintEvent(event);
}

void TextControl::tellKey(const QKeyEvent &event)
{
    if (!isReadOnly() && (types(event) || changesText(event.key()))) {
        Q_EMIT m_text.keyComing(event.key());
    }
}

void TextControl::inputMethodEvent(QInputMethodEvent *event)
{
    // A character that is composed of several keys comes without a key press.
    if (!isReadOnly() && !event->commitString().isEmpty()) {
        Q_EMIT m_text.keyComing(event->commitString() == u" " ? Qt::Key_Space : Qt::Key_unknown);
    }
    QPlainTextEdit::inputMethodEvent(event);
}

void TextControl::keyPressEvent(QKeyEvent *event)
{
    tellKey(*event);
    const auto held = event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && held == Qt::NoModifier && !isReadOnly()) {
        // With Shift the toolkit would break the line within a paragraph, which files do not know,
        // and on an empty line it would make two changes of one key.
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
    return new RichTextMime(m_text.richText(m_text.selStart(), m_text.selLength()));
}

bool TextControl::canInsertFromMimeData(const QMimeData *source) const
{
    return holdsText(source) && !source->hasUrls();
}

void TextControl::insertFromMimeData(const QMimeData *source)
{
    const QTextCursor selection = textCursor();
    const RichText pasted = pastedText(*source, m_text.plain());
    const int start = selection.selectionStart();
    m_text.states().replace(start, selection.selectionEnd() - start, pasted,
                            DocumentStates::By::User);
    const int end = start + int(pasted.text.size());
    m_text.setCaret(end, end);
    m_text.setTypingLook(m_text.plain());
    ensureCursorVisible();
}

} // namespace zeph
