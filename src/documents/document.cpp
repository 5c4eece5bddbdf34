// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/document.h"

#include "platform/core/paths.h"
#include "platform/richtext/rich_text_document.h"

#include <QPlainTextDocumentLayout>

namespace zeph {

namespace {

constexpr qint16 noSteps = 0;
constexpr double edge = 6; // device-independent pixels around the text

QTextDocument &prepared(QTextDocument &content)
{
    content.setDocumentLayout(new QPlainTextDocumentLayout(&content));
    content.setUndoRedoEnabled(false);
    content.setDocumentMargin(edge);
    setParagraphFormat(content, documentParagraph);
    return content;
}

} // namespace

Document::Document(DocumentKind kind, const qint16 &undoMax, QObject *parent)
    : QObject(parent), m_kind(kind), m_states(prepared(m_content)), m_cursor(&m_content),
      m_history(*this, undoMax)
{
    connect(&m_content, &QTextDocument::contentsChanged, this, &Document::onContentsChanged);
}

Document::Document(DocumentKind kind) : Document(kind, noSteps) { }

Document::~Document() = default;

void Document::rename(const QString &path)
{
    m_path = path;
    m_name = nameOf(path);
    Q_EMIT renamed();
}

void Document::setState(qint16 state)
{
    if (m_state != state) {
        m_state = state;
        Q_EMIT stateChanged();
    }
}

void Document::setLocked(bool locked)
{
    m_locked = locked;
    Q_EMIT lockedChanged(locked);
}

void Document::onContentsChanged()
{
    if (m_quiet > 0) {
        return;
    }
    if (length() == 0) {
        // What goes into the emptied text has the document's margin, whatever stood there before.
        setMargins();
    }
    countEdit();
}

void Document::countEdit()
{
    setState(Modified);
    const bool undone = m_history.canRedo();
    if (m_history.textChanged() || undone) {
        Q_EMIT stepsChanged();
    }
    Q_EMIT edited();
}

QString Document::text() const
{
    return plainTextOf(m_content);
}

RichText Document::richText() const
{
    return const_cast<DocumentStates &>(m_states).presentText();
}

RichText Document::richText(int from, int length) const
{
    return richTextOf(m_content, from, length);
}

int Document::length() const
{
    return m_content.characterCount() - 1;
}

void Document::setText(const QString &text)
{
    setRichText(RichText::plain(text, m_plain, documentParagraph));
}

void Document::setRichText(const RichText &text)
{
    const Quiet quiet(*this);
    zeph::setRichText(m_content, text);
    const bool isUniform = text.paragraphs.size() == 1 && !text.paragraphs.front().format.bullet;
    if (isUniform && text.text == this->text()) {
        m_states.know(text);
    }
    if (m_content.isEmpty()) {
        setTypingLook(m_plain);
    }
}

void Document::replace(int start, int length, const QString &text)
{
    const Quiet quiet(*this);
    QTextCursor cursor(&m_content);
    cursor.setPosition(start);
    cursor.setPosition(start + length, QTextCursor::KeepAnchor);
    cursor.insertText(text);
}

void Document::replaceAll(std::span<const qsizetype> starts, qsizetype length, const QString &text)
{
    const Quiet quiet(*this);
    QTextCursor cursor(&m_content);
    cursor.beginEditBlock();
    // From the end on, so that the places before stay what they are.
    for (auto start = starts.rbegin(); start != starts.rend(); ++start) {
        cursor.setPosition(int(*start));
        cursor.setPosition(int(*start + length), QTextCursor::KeepAnchor);
        cursor.insertText(text);
    }
    cursor.endEditBlock();
}

void Document::replaceWhole(const QString &text)
{
    const Quiet quiet(*this);
    QTextCursor cursor(&m_content);
    cursor.select(QTextCursor::Document);
    cursor.insertText(text, toTextFormat(m_plain));
}

void Document::insert(RichText text)
{
    const Quiet quiet(*this);
    text.paragraphs.clear();
    QTextCursor cursor = m_cursor;
    insertRichText(cursor, text);
    setCaret(cursor.position(), cursor.position());
    setTypingLook(m_plain);
}

void Document::removeSelection()
{
    const Quiet quiet(*this);
    QTextCursor cursor = m_cursor;
    cursor.removeSelectedText();
    setCaret(cursor.position(), cursor.position());
}

void Document::setPlain(const CharFormat &plain)
{
    m_plain = plain;
    if (m_content.isEmpty()) {
        setTypingLook(plain);
    }
}

void Document::setCharacterRuns(const std::vector<CharRun> &runs, int from)
{
    qsizetype length = 0;
    for (const CharRun &run : runs) {
        length += std::max(run.length, qsizetype(0));
    }
    if (from > 0 || length != this->length()) {
        const Quiet quiet(*this);
        applyCharacterRuns(m_content, runs, from);
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
    setLooks(looks);
}

void Document::setLooks(const LookRuns &looks)
{
    const Quiet quiet(*this);
    m_states.setLooks(looks);
}

void Document::changeLooks(int from, int length, const std::function<void(CharFormat &)> &change)
{
    const bool whole = from == 0 && length == this->length();
    std::vector<CharRun> runs =
        whole ? richText().characters : characterRunsOf(m_content, from, length);
    for (CharRun &run : runs) {
        change(run.format);
    }
    setCharacterRuns(runs, from);
}

void Document::setMargins()
{
    const Quiet quiet(*this);
    setParagraphFormat(m_content, documentParagraph);
}

CharFormat Document::typingLook() const
{
    return fromTextFormat(m_cursor.charFormat());
}

void Document::setTypingLook(const CharFormat &look)
{
    if (!m_cursor.hasSelection()) {
        m_cursor.setCharFormat(toTextFormat(look));
        Q_EMIT typingLookSet(look);
    }
}

void Document::setCaret(int anchor, int caret)
{
    const int last = length();
    m_cursor.setPosition(qBound(0, anchor, last));
    m_cursor.setPosition(qBound(0, caret, last), QTextCursor::KeepAnchor);
    Q_EMIT caretSet();
    if (m_content.isEmpty()) {
        // A caret that was moved knows nothing of the looks that typing is to have.
        setTypingLook(m_plain);
    }
    tellCaret();
}

void Document::follow(const QTextCursor &cursor)
{
    m_cursor = cursor;
    tellCaret();
}

void Document::tellCaret()
{
    Q_EMIT caretMoved();
    if (std::exchange(m_hadSelection, m_cursor.hasSelection()) != m_hadSelection) {
        Q_EMIT selectionChanged(m_hadSelection);
    }
}

} // namespace zeph
