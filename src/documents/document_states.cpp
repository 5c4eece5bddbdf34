// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/document_states.h"

#include "platform/richtext/rich_text_document.h"

#include <QTextCursor>

#include <algorithm>
#include <limits>
#include <unordered_set>

namespace zeph {

namespace {

constexpr qsizetype everything = std::numeric_limits<qsizetype>::max();

/// Adds a run behind others, to the last one where it goes on in the same format.
template <class Run, class Size> void add(std::vector<Run> &runs, Size Run::*size, const Run &run)
{
    if (!runs.empty() && runs.back().format == run.format) {
        runs.back().*size += run.*size;
    } else {
        runs.push_back(run);
    }
}

/// Hands out a text's runs piece by piece.
template <class Run, class Size> class RunReader
{
public:
    RunReader(const std::vector<Run> &runs, Size Run::*size) : m_runs(runs), m_size(size) { }

    /// Calls a function with format and size of each piece of the next so many characters or
    /// paragraphs.
    template <class Function> void take(qsizetype size, Function function)
    {
        while (size > 0 && m_index < m_runs.size()) {
            const Run &run = m_runs[m_index];
            const qsizetype part = std::min(size, qsizetype(run.*m_size) - m_taken);
            if (part > 0) {
                function(run.format, part);
            }
            size -= part;
            m_taken += part;
            if (m_taken == qsizetype(run.*m_size)) {
                ++m_index;
                m_taken = 0;
            }
        }
    }

private:
    const std::vector<Run> &m_runs;
    Size Run::*m_size;
    size_t m_index = 0;
    qsizetype m_taken = 0;
};

bool areText(const TextChunks &chunks, QStringView text)
{
    for (const auto &chunk : chunks) {
        if (!text.startsWith(chunk->text)) {
            return false;
        }
        text = text.sliced(chunk->text.size());
    }
    return text.isEmpty();
}

std::vector<qsizetype> bordersOf(const TextChunks &chunks)
{
    std::vector<qsizetype> borders{ 0 };
    for (const auto &chunk : chunks) {
        borders.push_back(borders.back() + chunk->text.size());
    }
    return borders;
}

qsizetype sizeOf(const TextChunks &chunks, size_t first, size_t behind)
{
    qsizetype size = 0;
    for (size_t i = first; i < behind; ++i) {
        size += chunks[i]->text.size();
    }
    return size;
}

/// Without the text, which chunks may share.
qsizetype bytesOf(const TextChunk &chunk)
{
    return qsizetype(sizeof(TextChunk))
        + qsizetype(chunk.runs.capacity() * sizeof(TextChunk::Run)
                    + chunk.paragraphs.capacity() * sizeof(ParagraphRun));
}

} // namespace

qsizetype DocumentState::bytesHeld(std::span<const DocumentState> states)
{
    std::unordered_set<const void *> counted;
    qsizetype bytes = 0;
    for (const DocumentState &state : states) {
        if (!state.m_chunks || !counted.insert(state.m_chunks.get()).second) {
            continue;
        }
        bytes += qsizetype(state.m_chunks->capacity() * sizeof(TextChunks::value_type));
        for (const auto &chunk : *state.m_chunks) {
            if (counted.insert(chunk.get()).second) {
                bytes += bytesOf(*chunk);
                const bool isFirst = counted.insert(chunk->text.constData()).second;
                bytes += isFirst ? chunk->text.capacity() * qsizetype(sizeof(QChar)) : 0;
            }
        }
    }
    return bytes;
}

bool operator==(const DocumentState &one, const DocumentState &other)
{
    const auto areEqual = [](const auto &left, const auto &right) {
        return left == right || *left == *right;
    };
    return one.m_chunks == other.m_chunks
        || std::ranges::equal(*one.m_chunks, *other.m_chunks, areEqual);
}

DocumentStates::DocumentStates(QTextDocument &document, int linesPerChunk)
    : m_document(document), m_linesPerChunk(linesPerChunk), m_known(empty())
{
    // Without a layout the toolkit tells nobody of changes.
    document.documentLayout();
    m_following = QObject::connect(&document, &QTextDocument::contentsChange, &document,
                                   [this](int position, int removed, int added) {
                                       onContentsChange(position, removed, added);
                                   });
}

DocumentStates::~DocumentStates()
{
    QObject::disconnect(m_following);
}

void DocumentStates::onContentsChange(int position, int, int added)
{
    // The toolkit's numbers may count the end of the last line too.
    const qsizetype size = m_document.characterCount() - 1;
    m_sameInFront = std::min(m_sameInFront, qsizetype(position));
    m_sameBehind = std::clamp(size - position - added, qsizetype(0), m_sameBehind);
    m_changed = true;
    m_revision = m_document.revision();
}

DocumentState DocumentStates::present()
{
    if (m_document.revision() != m_revision) {
        // Changed within an edit block that is still open: where, nobody has been told.
        m_sameInFront = m_sameBehind = 0;
        m_changed = true;
    }
    if (m_changed) {
        readChanges();
        settle();
    }
    return m_known;
}

void DocumentStates::settle()
{
    m_changed = false;
    m_sameInFront = m_sameBehind = everything;
    m_revision = m_document.revision();
}

void DocumentStates::know(const RichText &text)
{
    const TextChunks &old = *m_known.m_chunks;
    const bool isOldText = areText(old, text.text);
    const std::vector<qsizetype> borders = isOldText ? bordersOf(old) : cuts(text.text);
    RunReader characters(text.characters, &CharRun::length);
    RunReader paragraphs(text.paragraphs, &ParagraphRun::count);
    auto chunks = std::make_shared<TextChunks>();
    chunks->reserve(borders.size() - 1);
    for (size_t i = 0; i + 1 < borders.size(); ++i) {
        const qsizetype size = borders[i + 1] - borders[i];
        auto chunk = std::make_shared<TextChunk>();
        chunk->text = isOldText ? old[i]->text : text.text.mid(borders[i], size);
        characters.take(size, [&](const CharFormat &look, qsizetype part) {
            const quint32 number = numberAsRead(look);
            if (!chunk->runs.empty() && chunk->runs.back().look == number) {
                chunk->runs.back().length += quint32(part);
            } else {
                chunk->runs.push_back({ quint32(part), number });
            }
        });
        const bool last = i + 2 == borders.size();
        paragraphs.take(chunk->text.count(u'\n') + (last ? 1 : 0),
                        [&](const ParagraphFormat &format, qsizetype part) {
                            chunk->paragraphs.push_back({ part, format });
                        });
        chunk->runs.shrink_to_fit();
        chunk->paragraphs.shrink_to_fit();
        if (isOldText && *chunk == *old[i]) {
            chunks->push_back(old[i]);
        } else {
            chunks->push_back(std::move(chunk));
        }
    }
    m_known.m_chunks = std::move(chunks);
    settle();
}

void DocumentStates::setLooks(const LookRuns &looks)
{
    const DocumentState before = present();
    std::vector<quint32> numbers;
    for (const CharFormat &look : looks.looks) {
        numbers.push_back(numberAsRead(look));
    }
    RunReader reader(looks.runs, &LookRun::length);
    auto chunks = std::make_shared<TextChunks>();
    chunks->reserve(before.m_chunks->size());
    QTextCursor change(&m_document);
    change.beginEditBlock();
    qsizetype from = 0;
    for (const auto &chunk : *before.m_chunks) {
        std::vector<TextChunk::Run> wanted;
        wanted.reserve(chunk->runs.size());
        reader.take(chunk->text.size(), [&](quint32 look, qsizetype part) {
            if (!wanted.empty() && wanted.back().look == numbers[look]) {
                wanted.back().length += quint32(part);
            } else {
                wanted.push_back({ quint32(part), numbers[look] });
            }
        });
        if (wanted == chunk->runs) {
            chunks->push_back(chunk);
        } else {
            applyCharacterRuns(m_document, charRuns(wanted), charRuns(chunk->runs), from);
            wanted.shrink_to_fit();
            chunks->push_back(std::make_shared<TextChunk>(
                TextChunk{ chunk->text, std::move(wanted), chunk->paragraphs }));
        }
        from += chunk->text.size();
    }
    change.endEditBlock();
    m_known.m_chunks = std::move(chunks);
    settle();
}

std::vector<CharRun> DocumentStates::charRuns(const std::vector<TextChunk::Run> &runs) const
{
    std::vector<CharRun> result;
    result.reserve(runs.size());
    for (const TextChunk::Run &run : runs) {
        result.push_back({ run.length, m_looks[run.look] });
    }
    return result;
}

std::vector<qsizetype> DocumentStates::cuts(QStringView text) const
{
    std::vector<qsizetype> borders{ 0 };
    qsizetype left = text.count(u'\n') + 1;
    for (; left > 2 * m_linesPerChunk; left -= m_linesPerChunk) {
        qsizetype at = borders.back();
        for (int line = 0; line < m_linesPerChunk; ++line) {
            at = text.indexOf(u'\n', at) + 1;
        }
        borders.push_back(at);
    }
    borders.push_back(text.size());
    return borders;
}

DocumentState DocumentStates::empty(const ParagraphFormat &paragraph) const
{
    auto chunk = std::make_shared<TextChunk>();
    chunk->paragraphs.push_back({ 1, paragraph });
    DocumentState state;
    state.m_chunks = std::make_shared<TextChunks>(TextChunks{ std::move(chunk) });
    return state;
}

RichText DocumentStates::richText(const DocumentState &state) const
{
    return join(*state.m_chunks, 0, state.m_chunks->size());
}

void DocumentStates::readPieces(const DocumentState &state,
                                const std::function<void(const RichText &piece)> &read) const
{
    for (size_t i = 0; i < state.m_chunks->size(); ++i) {
        read(join(*state.m_chunks, i, i + 1));
    }
}

void DocumentStates::restore(const DocumentState &state)
{
    const DocumentState now = present();
    const TextChunks &old = *now.m_chunks;
    const TextChunks &wanted = *state.m_chunks;
    const size_t most = std::min(old.size(), wanted.size());
    size_t front = 0;
    while (front < most && old[front] == wanted[front]) {
        ++front;
    }
    if (front == wanted.size()) {
        return;
    }
    size_t back = 0;
    while (back < most - front && old[old.size() - 1 - back] == wanted[wanted.size() - 1 - back]) {
        ++back;
    }
    RichText text = join(wanted, front, wanted.size() - back);
    if (back > 0) {
        // What is replaced ends before a line, whose paragraph the toolkit may take along.
        const ParagraphFormat next = wanted[wanted.size() - back]->paragraphs.front().format;
        add(text.paragraphs, &ParagraphRun::count, { 1, next });
    }
    replaceRichText(m_document, sizeOf(old, 0, front), sizeOf(old, front, old.size() - back), text);
    m_known = state;
    settle();
}

RichText DocumentStates::join(const TextChunks &chunks, size_t first, size_t behind) const
{
    RichText result;
    result.text.reserve(sizeOf(chunks, first, behind));
    for (size_t i = first; i < behind; ++i) {
        const TextChunk &chunk = *chunks[i];
        result.text += chunk.text;
        for (const TextChunk::Run &run : chunk.runs) {
            add(result.characters, &CharRun::length, { run.length, m_looks[run.look] });
        }
        for (const ParagraphRun &run : chunk.paragraphs) {
            add(result.paragraphs, &ParagraphRun::count, run);
        }
    }
    return result;
}

/// A look that was set may read otherwise: a colour loses what no screen shows.
quint32 DocumentStates::numberAsRead(const CharFormat &look)
{
    const auto known = m_numbersAsRead.constFind(look);
    if (known != m_numbersAsRead.cend()) {
        return known.value();
    }
    const quint32 number = numberOf(fromTextFormat(toTextFormat(look)));
    m_numbersAsRead.insert(look, number);
    return number;
}

quint32 DocumentStates::numberOf(const CharFormat &look)
{
    const auto known = m_numbers.constFind(look);
    if (known != m_numbers.cend()) {
        return known.value();
    }
    const quint32 number = quint32(m_looks.size());
    m_looks.push_back(look);
    m_numbers.insert(look, number);
    return number;
}

} // namespace zeph
