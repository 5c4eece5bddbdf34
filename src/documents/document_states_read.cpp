// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// Reading states and comparing them.

#include "documents/document_states.h"

#include "platform/richtext/rich_text_document.h"

#include <QTextDocument>

#include <algorithm>

namespace zeph {

bool operator==(const DocumentState &one, const DocumentState &other)
{
    const auto areEqual = [](const auto &left, const auto &right) {
        return left == right || *left == *right;
    };
    return one.m_chunks == other.m_chunks
        || std::ranges::equal(*one.m_chunks, *other.m_chunks, areEqual);
}

DocumentState DocumentStates::present()
{
    if (m_revision != m_document.revision()) {
        catchUp();
    }
    return m_known;
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
        while (m_back < most - m_first
               && one[one.size() - 1 - m_back] == other[other.size() - 1 - m_back]) {
            ++m_back;
        }
        m_length = sizeOf(one, m_first, one.size() - m_back);
        m_hasSameLength = m_length == sizeOf(other, m_first, other.size() - m_back);
    }

    size_t first() const { return m_first; }
    /// How many chunks both share at their ends.
    size_t back() const { return m_back; }
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
    size_t m_back = 0;
    qsizetype m_length = 0;
    bool m_hasSameLength = false;
};

} // namespace

bool DocumentStates::holdSame(const DocumentState &one, const DocumentState &other, Same what) const
{
    const OtherChunks chunks(*one.m_chunks, *other.m_chunks);
    const bool isSameText = chunks.holdSameText();
    if (!isSameText || what == Same::Text) {
        return isSameText;
    }
    if (what == Same::AllLooks) {
        const auto rest = [this, &chunks](const TextChunks &all) {
            return join(all, chunks.first(), all.size() - chunks.back());
        };
        return rest(*one.m_chunks) == rest(*other.m_chunks);
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
