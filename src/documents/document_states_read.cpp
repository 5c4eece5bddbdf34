// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// Reading states, and following what others do to the document.

#include "documents/document_states.h"

#include "platform/richtext/rich_text_document.h"

#include <QTextCursor>
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

void DocumentStates::setTyping(qsizetype place, std::optional<CharFormat> look)
{
    m_typingPlace = place;
    m_chosenLook = std::move(look);
}

CharFormat DocumentStates::lookForTyping(qsizetype position)
{
    catchUp();
    return position == m_typingPlace && m_chosenLook ? *m_chosenLook : look(lookAround(position));
}

void DocumentStates::setPlain(const CharFormat &plain)
{
    if (plain == m_plain) {
        return;
    }
    m_plain = plain;
    if (m_looks.setPlain(plain)) {
        Q_EMIT looksChanged({});
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

quint32 DocumentStates::lookAround(qsizetype position)
{
    if (m_size == 0) {
        return m_looks.numberOf(m_plain);
    }
    position = std::clamp(position, qsizetype(0), m_size);
    const qsizetype before = std::max(position - 1, qsizetype(0));
    const QString around = textOf(*m_known.m_chunks, before, std::min(position + 1, m_size));
    const bool isLineStart = position == 0 || around.front() == u'\n';
    const bool isLineEnd = position == m_size || around.back() == u'\n';
    const qsizetype like = isLineStart && !isLineEnd ? position : before;
    return runs(like, 1).front().look;
}

TextChunk::Runs DocumentStates::runs(qsizetype from, qsizetype length) const
{
    const TextChunks &chunks = *m_known.m_chunks;
    if (from < m_lastStart) {
        m_lastChunk = 0;
        m_lastStart = 0;
    }
    while (m_lastChunk + 1 < chunks.size()
           && m_lastStart + chunks[m_lastChunk]->text.size() <= from) {
        m_lastStart += chunks[m_lastChunk++]->text.size();
    }
    ChunkReader reader(chunks, m_lastChunk);
    reader.skip(from - m_lastStart);
    TextChunk::Runs runs;
    reader.takeRuns(length, runs);
    return runs;
}

std::vector<CharRun> DocumentStates::charRuns(const TextChunk::Runs &runs) const
{
    std::vector<CharRun> result;
    result.reserve(runs.size());
    for (const TextChunk::Run &run : runs) {
        const TextChunk::Run *before = &run == runs.data() ? nullptr : &run - 1;
        // Looks that differ in nothing but who gave them are one to a reader.
        if (before && m_looks.handOf(before->look) != m_looks.handOf(run.look)
            && look(before->look) == look(run.look)) {
            result.back().length += run.length;
        } else {
            result.push_back({ run.length, look(run.look) });
        }
    }
    return result;
}

std::vector<CharRun> DocumentStates::looks(qsizetype from, qsizetype length)
{
    catchUp();
    const qsizetype first = std::clamp(from, qsizetype(0), m_size);
    return charRuns(runs(first, std::clamp(length, qsizetype(0), m_size - first)));
}

RichText DocumentStates::stretch(qsizetype from, qsizetype length)
{
    catchUp();
    const qsizetype first = std::clamp(from, qsizetype(0), m_size);
    const qsizetype to = first + std::clamp(length, qsizetype(0), m_size - first);
    RichText result;
    result.text = textOf(*m_known.m_chunks, first, to);
    result.characters = charRuns(runs(first, to - first));
    result.paragraphs = paragraphRunsOf(m_document, first, result.text);
    return result;
}

RichText DocumentStates::richText(const DocumentState &state) const
{
    return join(*state.m_chunks, 0, state.m_chunks->size());
}

RichText DocumentStates::piece(const DocumentState &state, size_t index) const
{
    return join(*state.m_chunks, index, index + 1);
}

namespace {

/// The chunks that two states do not share at their starts and ends.
class OtherChunks
{
public:
    OtherChunks(const TextChunks &one, const TextChunks &other) : m_one(one), m_other(other)
    {
        const size_t most = std::min(one.size(), other.size());
        while (m_first < most && one[m_first] == other[m_first]) {
            ++m_first;
        }
        size_t back = 0;
        while (back < most - m_first
               && one[one.size() - 1 - back] == other[other.size() - 1 - back]) {
            ++back;
        }
        m_length = sizeOf(one, m_first, one.size() - back);
        m_hasSameLength = m_length == sizeOf(other, m_first, other.size() - back);
    }

    size_t first() const { return m_first; }
    /// Characters of the first state's chunks.
    qsizetype length() const { return m_length; }

    bool holdSameText() const
    {
        if (!m_hasSameLength) {
            return false;
        }
        Place left{ m_one, m_first };
        Place right{ m_other, m_first };
        for (qsizetype rest = m_length; rest > 0;) {
            const QStringView one = left.rest();
            const QStringView other = right.rest();
            const qsizetype part = std::min(one.size(), other.size());
            // Chunks that differ in nothing but looks share their text.
            if (one.data() != other.data() && one.first(part) != other.first(part)) {
                return false;
            }
            left.skip(part);
            right.skip(part);
            rest -= part;
        }
        return true;
    }

private:
    struct Place {
        const TextChunks &chunks;
        size_t chunk;
        qsizetype at = 0;

        QStringView rest() const { return QStringView(chunks[chunk]->text).sliced(at); }
        void skip(qsizetype length)
        {
            at += length;
            if (at == chunks[chunk]->text.size()) {
                ++chunk;
                at = 0;
            }
        }
    };

    const TextChunks &m_one;
    const TextChunks &m_other;
    size_t m_first = 0;
    qsizetype m_length = 0;
    bool m_hasSameLength = false;
};

} // namespace

bool DocumentStates::holdSame(const DocumentState &one, const DocumentState &other,
                              bool withLooks) const
{
    const OtherChunks chunks(*one.m_chunks, *other.m_chunks);
    const bool isSameText = chunks.holdSameText();
    if (!isSameText || !withLooks) {
        return isSameText;
    }
    ChunkReader left(*one.m_chunks, chunks.first());
    ChunkReader right(*other.m_chunks, chunks.first());
    for (qsizetype rest = chunks.length(); rest > 0;) {
        const TextChunk::Run leftRun = left.next();
        const TextChunk::Run rightRun = right.next();
        if (m_looks.handOf(leftRun.look) != m_looks.handOf(rightRun.look)) {
            return false;
        }
        const auto part = qsizetype(std::min(leftRun.length, rightRun.length));
        left.skip(part);
        right.skip(part);
        rest -= part;
    }
    return true;
}

RichText DocumentStates::join(const TextChunks &chunks, size_t first, size_t end) const
{
    if (first + 1 == end) {
        const TextChunk &chunk = *chunks[first];
        return { chunk.text, charRuns(chunk.runs), chunk.paragraphs };
    }
    RichText result;
    result.text.reserve(sizeOf(chunks, first, end));
    TextChunk::Runs runs;
    for (size_t i = first; i < end; ++i) {
        const TextChunk &chunk = *chunks[i];
        result.text += chunk.text;
        for (const TextChunk::Run &run : chunk.runs) {
            addRun(runs, run);
        }
        for (const ParagraphRun &run : chunk.paragraphs) {
            addParagraphs(result.paragraphs, run);
        }
    }
    result.characters = charRuns(runs);
    return result;
}

} // namespace zeph
