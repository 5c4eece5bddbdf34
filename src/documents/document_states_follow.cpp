// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// Following what others do to the toolkit's document.

#include "documents/document_states.h"

#include "platform/richtext/rich_text_document.h"

#include <QTextDocument>

namespace zeph {

namespace {

/// Characters of the text: the toolkit counts a separator at the end that is none.
qsizetype sizeOf(const QTextDocument &document)
{
    return document.characterCount() - 1;
}

} // namespace

bool DocumentStates::isUpToDate() const
{
    return m_revision == m_document.revision() && m_size == sizeOf(m_document);
}

void DocumentStates::onContentsChange(int position, int, int added)
{
    m_revision = m_document.revision();
    if (m_isWriting) {
        return;
    }
    // The toolkit's numbers may count that separator too.
    const qsizetype most = std::min(m_size, sizeOf(m_document));
    const qsizetype front = std::min(qsizetype(position), most);
    follow(front, std::clamp(sizeOf(m_document) - position - added, qsizetype(0), most - front));
}

void DocumentStates::onContentsChanged()
{
    // An edit block that changes nothing raises the revision too.
    m_revision = m_document.revision();
    if (!m_isWriting || m_writesForUser) {
        Q_EMIT changedByUser();
    }
}

void DocumentStates::catchUp()
{
    if (m_revision != m_document.revision()) {
        // An edit block is still open, and the toolkit reports only at its end where it changed the
        // text.
        follow(0, 0);
    }
}

void DocumentStates::follow(qsizetype sameInFront, qsizetype sameAtEnd)
{
    const qsizetype end = sizeOf(m_document) - sameAtEnd;
    const QString before = textOf(*m_known.m_chunks, sameInFront, m_size - sameAtEnd);
    const QString now = plainTextOf(m_document, sameInFront, end - sameInFront);
    std::vector<TextEdit> edits = differences(before, now);
    for (TextEdit &edit : edits) {
        edit.from += sameInFront;
        addRun(edit.runs, { quint32(edit.text.size()), lookOfTyped(edit) });
    }
    if (!edits.empty()) {
        setChunks(edited(*m_known.m_chunks, edits, m_linesPerChunk, ParagraphSource(m_document)));
    }
    const bool isInsertion = edits.size() == 1 && before.isEmpty();
    if (!isInsertion) {
        followParagraphs(sameInFront, end);
    }
}

/// Reads the paragraphs of the chunks that a stretch touches again, and of the chunk that starts at
/// its end: the toolkit may give the line after removed ones their format.
void DocumentStates::followParagraphs(qsizetype from, qsizetype to)
{
    const ParagraphSource source(m_document);
    TextChunks chunks = *m_known.m_chunks;
    bool isOther = false;
    qsizetype start = 0;
    for (auto &chunk : chunks) {
        const qsizetype end = start + chunk->text.size();
        const bool isLast = &chunk == &chunks.back();
        if (start <= to && (end > from || isLast)) {
            std::vector<ParagraphRun> paragraphs = source.read(start, chunk->text, isLast);
            if (paragraphs != chunk->paragraphs) {
                chunk = std::make_shared<TextChunk>(
                    TextChunk{ chunk->text, chunk->runs, std::move(paragraphs) });
                isOther = true;
            }
        }
        start = end;
    }
    if (isOther) {
        setChunks(std::move(chunks));
    }
}

quint32 DocumentStates::lookOfTyped(const TextEdit &edit)
{
    const qsizetype end = edit.from + edit.length;
    const bool isAtCaret = edit.from <= m_typingPlace && m_typingPlace <= end;
    if (m_chosenLook) {
        return m_looks.numberOf(*m_chosenLook, m_chosenLook->colour != m_plain.colour);
    }
    return lookAround(isAtCaret ? m_typingPlace : end);
}

} // namespace zeph
