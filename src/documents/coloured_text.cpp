// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/coloured_text.h"

#include "platform/richtext/rich_text_document.h"

#include <QPlainTextDocumentLayout>

namespace zeph {

namespace {

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

ColouredText::ColouredText(QObject *parent)
    : QObject(parent), m_states(prepared(m_content)), m_cursor(&m_content)
{
    connect(&m_content, &QTextDocument::contentsChanged, this, [this] {
        if (m_quiet > 0) {
            return;
        }
        if (length() == 0) {
            // What goes into the emptied text has the margin, whatever was there before.
            setMargins();
        }
        Q_EMIT changed();
    });
}

void ColouredText::setLocked(bool locked)
{
    m_locked = locked;
    Q_EMIT lockedChanged(locked);
}

QString ColouredText::text() const
{
    return plainTextOf(m_content);
}

RichText ColouredText::richText() const
{
    return m_states.presentText();
}

RichText ColouredText::richText(int from, int length) const
{
    return richTextOf(m_content, from, length);
}

int ColouredText::length() const
{
    return m_content.characterCount() - 1;
}

void ColouredText::setText(const QString &text)
{
    setRichText(RichText::plain(text, m_plain, documentParagraph));
}

void ColouredText::setRichText(const RichText &text)
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

void ColouredText::replace(int start, int length, const QString &text)
{
    const Quiet quiet(*this);
    QTextCursor cursor(&m_content);
    cursor.setPosition(start);
    cursor.setPosition(start + length, QTextCursor::KeepAnchor);
    cursor.insertText(text);
}

void ColouredText::replaceAll(std::span<const qsizetype> starts, qsizetype length,
                              const QString &text)
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

void ColouredText::replaceWhole(const QString &text)
{
    const Quiet quiet(*this);
    QTextCursor cursor(&m_content);
    cursor.select(QTextCursor::Document);
    cursor.insertText(text, toTextFormat(m_plain));
}

void ColouredText::insert(RichText text)
{
    const Quiet quiet(*this);
    text.paragraphs.clear();
    QTextCursor cursor = m_cursor;
    insertRichText(cursor, text);
    setCaret(cursor.position(), cursor.position());
    setTypingLook(m_plain);
}

void ColouredText::removeSelection()
{
    const Quiet quiet(*this);
    QTextCursor cursor = m_cursor;
    cursor.removeSelectedText();
    setCaret(cursor.position(), cursor.position());
}

void ColouredText::setPlain(const CharFormat &plain)
{
    m_plain = plain;
    if (m_content.isEmpty()) {
        setTypingLook(plain);
    }
}

void ColouredText::setCharacterRuns(const std::vector<CharRun> &runs, int from)
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

void ColouredText::setLooks(const LookRuns &looks)
{
    const Quiet quiet(*this);
    m_states.setLooks(looks);
}

void ColouredText::changeLooks(int from, int length,
                               const std::function<void(CharFormat &)> &change)
{
    const bool whole = from == 0 && length == this->length();
    std::vector<CharRun> runs =
        whole ? richText().characters : characterRunsOf(m_content, from, length);
    for (CharRun &run : runs) {
        change(run.format);
    }
    setCharacterRuns(runs, from);
}

void ColouredText::setMargins()
{
    const Quiet quiet(*this);
    setParagraphFormat(m_content, documentParagraph);
}

CharFormat ColouredText::typingLook() const
{
    return fromTextFormat(m_cursor.charFormat());
}

void ColouredText::setTypingLook(const CharFormat &look)
{
    if (!m_cursor.hasSelection()) {
        m_cursor.setCharFormat(toTextFormat(look));
        Q_EMIT typingLookSet(look);
    }
}

void ColouredText::setCaret(int anchor, int caret)
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

void ColouredText::follow(const QTextCursor &cursor)
{
    m_cursor = cursor;
    tellCaret();
}

void ColouredText::tellCaret()
{
    Q_EMIT caretMoved();
    if (std::exchange(m_hadSelection, m_cursor.hasSelection()) != m_hadSelection) {
        Q_EMIT selectionChanged(m_hadSelection);
    }
}

} // namespace zeph
