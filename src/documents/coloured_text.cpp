// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/coloured_text.h"

#include "documents/looks_layout.h"
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
    m_content.setDocumentLayout(new LooksLayout(m_content, m_states));
    connect(&m_states, &DocumentStates::changedByUser, this, [this] {
        if (m_quiet > 0) {
            return;
        }
        if (length() == 0) {
            // An emptied text would keep the paragraph format of its last line.
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
    return m_states.stretch(from, length);
}

int ColouredText::length() const
{
    return m_content.characterCount() - 1;
}

void ColouredText::setText(const QString &text)
{
    setRichText(RichText::plain(text, m_plain, documentParagraph));
}

void ColouredText::setRichText(const NumberedRichText &text)
{
    const CaretPlace before(m_cursor);
    m_states.setText(text);
    followFrom(before);
}

void ColouredText::replace(int start, int length, const QString &text)
{
    const qsizetype starts[] = { start };
    replaceAll(starts, length, text);
}

void ColouredText::replaceAll(std::span<const qsizetype> starts, qsizetype length,
                              const QString &text)
{
    const CaretPlace before(m_cursor);
    m_states.replaceAll(starts, length, text);
    followFrom(before);
}

void ColouredText::replaceWhole(const QString &text)
{
    const CaretPlace before(m_cursor);
    m_states.replace(0, length(), RichText::plain(text, m_plain));
    followFrom(before);
}

void ColouredText::insert(const RichText &text)
{
    const int start = selStart();
    m_states.replace(start, selLength(), text);
    const int end = start + int(text.text.size());
    setCaret(end, end);
    setTypingLook(m_plain);
}

void ColouredText::removeSelection()
{
    const int start = selStart();
    m_states.replace(start, selLength(), {});
    setCaret(start, start);
}

void ColouredText::setPlain(const CharFormat &plain)
{
    m_plain = plain;
    m_states.setPlain(plain);
}

void ColouredText::setCharacterRuns(const std::vector<CharRun> &runs, int from)
{
    m_states.setCharacterRuns(runs, from);
}

void ColouredText::setLooks(const LookRuns &looks)
{
    m_states.setLooks(looks);
}

void ColouredText::changeLooks(int from, int length,
                               const std::function<void(CharFormat &)> &change, ColourGivenBy by)
{
    m_states.changeLooks(from, length, change, by);
}

void ColouredText::setMargins()
{
    const Quiet quiet(*this);
    setParagraphFormat(m_content, documentParagraph);
}

CharFormat ColouredText::typingLook() const
{
    return m_states.lookForTyping(m_cursor.position());
}

void ColouredText::setTypingLook(const CharFormat &look)
{
    if (!m_cursor.hasSelection()) {
        m_states.setTyping(m_cursor.position(), look);
    }
}

void ColouredText::setCaret(int anchor, int caret)
{
    const int last = length();
    m_cursor.setPosition(qBound(0, anchor, last));
    m_cursor.setPosition(qBound(0, caret, last), QTextCursor::KeepAnchor);
    m_states.setTyping(m_cursor.position(), std::nullopt);
    Q_EMIT caretSet();
    follow(m_cursor);
}

void ColouredText::follow(const QTextCursor &cursor)
{
    m_cursor = cursor;
    if (cursor.position() != m_states.typingPlace() || cursor.hasSelection()) {
        m_states.setTyping(cursor.position(), std::nullopt);
    }
    m_caretMark.follow(selStart());
    Q_EMIT caretMoved();
    if (std::exchange(m_hadSelection, m_cursor.hasSelection()) != m_hadSelection) {
        Q_EMIT selectionChanged(m_hadSelection);
    }
}

void ColouredText::followFrom(const CaretPlace &before)
{
    if (CaretPlace(m_cursor) != before) {
        follow(m_cursor);
    }
}

} // namespace zeph
