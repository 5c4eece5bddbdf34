// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// How the states read what has changed in the document, and only that.

#include "documents/document_states.h"

#include "platform/richtext/rich_text_document.h"

#include <QTextBlock>

#include <algorithm>

namespace zeph {

void DocumentStates::readChanges()
{
    const TextChunks &old = *m_known.m_chunks;
    const Stale stale = staleChunks();
    const std::vector<qsizetype> borders = cuts(stale);
    auto chunks = std::make_shared<TextChunks>();
    chunks->reserve(stale.first + borders.size() + old.size() - stale.behind);
    const auto at = [&old](size_t index) {
        return old.begin() + qsizetype(index);
    };
    chunks->assign(old.begin(), at(stale.first));
    for (size_t i = 0; i + 1 < borders.size(); ++i) {
        const bool last = stale.behind == old.size() && i + 2 == borders.size();
        auto chunk = std::make_shared<TextChunk>(read(borders[i], borders[i + 1], last));
        const size_t before = stale.first + i;
        if (before < stale.behind && old[before]->text == chunk->text) {
            // New looks on an old text: the text itself is shared.
            chunk->text = old[before]->text;
        }
        if (before < stale.behind && *old[before] == *chunk) {
            chunks->push_back(old[before]);
        } else {
            chunks->push_back(std::move(chunk));
        }
    }
    chunks->insert(chunks->end(), at(stale.behind), old.end());
    m_known.m_chunks = std::move(chunks);
}

DocumentStates::Stale DocumentStates::staleChunks() const
{
    const TextChunks &old = *m_known.m_chunks;
    const qsizetype size = m_document.characterCount() - 1;
    Stale stale{ 0, old.size(), 0, size };
    // The last chunk has no line end that would part it from what is added behind it.
    while (stale.first + 1 < old.size()) {
        const qsizetype end = stale.from + old[stale.first]->text.size();
        if (end > m_sameInFront) {
            break;
        }
        stale.from = end;
        ++stale.first;
    }
    while (stale.behind > stale.first) {
        const qsizetype start = stale.to - old[stale.behind - 1]->text.size();
        // Without the line end before it a chunk's first line is another's last.
        if (size - start >= m_sameBehind) {
            break;
        }
        stale.to = start;
        --stale.behind;
    }
    takeNeighbours(stale);
    return stale;
}

void DocumentStates::takeNeighbours(Stale &stale) const
{
    const TextChunks &old = *m_known.m_chunks;
    const int least = m_linesPerChunk / 4;
    while (lineCountOf(stale) < least && stale.first > 0) {
        stale.from -= old[--stale.first]->text.size();
    }
    while (lineCountOf(stale) < least && stale.behind < old.size()) {
        stale.to += old[stale.behind++]->text.size();
    }
}

int DocumentStates::lineCountOf(const Stale &stale) const
{
    const bool toTheEnd = stale.behind == m_known.m_chunks->size();
    return lineOfCharacter(m_document, int(stale.to)) + (toTheEnd ? 1 : 0)
        - lineOfCharacter(m_document, int(stale.from));
}

std::vector<qsizetype> DocumentStates::cuts(const Stale &stale) const
{
    const TextChunks &old = *m_known.m_chunks;
    std::vector<qsizetype> borders{ stale.from };
    const auto isLineStart = [this](qsizetype position) {
        return m_document.findBlock(int(position)).position() == position;
    };
    // Where only looks have changed the chunks stay as they were cut, so that they share the text.
    for (size_t i = stale.first; i < stale.behind; ++i) {
        borders.push_back(borders.back() + old[i]->text.size());
    }
    if (borders.size() > 1 && borders.back() == stale.to
        && std::all_of(borders.begin(), borders.end() - 1, isLineStart)
        && lineCountOf(stale) <= 2 * m_linesPerChunk * int(borders.size() - 1)) {
        return borders;
    }
    borders.resize(1);
    int left = lineCountOf(stale);
    int line = lineOfCharacter(m_document, int(stale.from));
    for (; left > 2 * m_linesPerChunk; left -= m_linesPerChunk) {
        line += m_linesPerChunk;
        borders.push_back(startOfLine(m_document, line));
    }
    if (left > 0) {
        borders.push_back(stale.to);
    }
    return borders;
}

TextChunk DocumentStates::read(qsizetype from, qsizetype to, bool last)
{
    RichText stretch = richTextOf(m_document, from, to - from);
    if (!last) {
        // Behind its line end a stretch counts the next line, which belongs to the next chunk.
        ParagraphRun &next = stretch.paragraphs.back();
        if (--next.count == 0) {
            stretch.paragraphs.pop_back();
        }
    }
    TextChunk chunk;
    chunk.text = std::move(stretch.text);
    chunk.text.squeeze();
    chunk.paragraphs = std::move(stretch.paragraphs);
    chunk.paragraphs.shrink_to_fit();
    chunk.runs.reserve(stretch.characters.size());
    for (const CharRun &run : stretch.characters) {
        chunk.runs.push_back({ quint32(run.length), numberOf(run.format) });
    }
    return chunk;
}

} // namespace zeph
