// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/text_chunks.h"

#include "platform/richtext/rich_text_document.h"

namespace zeph {

quint32 LookTable::numberOf(const CharFormat &look, bool isColourByHand)
{
    QHash<CharFormat, quint32> &known = m_known[isColourByHand];
    if (const auto found = known.constFind(look); found != known.cend()) {
        return found.value();
    }
    const Key key = keyOf(fromTextFormat(toTextFormat(look)), isColourByHand);
    auto number = m_numbers.constFind(key);
    if (number == m_numbers.cend()) {
        number = m_numbers.insert(key, quint32(m_looks.size()));
        m_looks.push_back({ key, shownBy(key), handValueOf(key) });
    }
    known.insert(look, number.value());
    return number.value();
}

TextChunk::Runs LookTable::runsOf(const LookRuns &looks)
{
    std::vector<quint32> numbers;
    for (const CharFormat &look : looks.looks) {
        numbers.push_back(numberOf(look));
    }
    TextChunk::Runs runs;
    runs.reserve(looks.runs.size());
    for (const LookRun &run : looks.runs) {
        addRun(runs, { run.length, numbers[run.format] });
    }
    return runs;
}

LookTable::Key LookTable::keyOf(const CharFormat &look, bool isColourByHand) const
{
    Key key{ look, false, look.bold == m_plain.bold, isColourByHand && look.colour };
    key.followsFont = look.family == m_plain.family && look.pointSize == m_plain.pointSize;
    if (key.followsFont) {
        key.format.family.clear();
        key.format.pointSize = 0;
    }
    if (key.followsBold) {
        key.format.bold = false;
    }
    return key;
}

CharFormat LookTable::shownBy(const Key &key) const
{
    CharFormat shown = key.format;
    if (key.followsFont) {
        shown.family = m_plain.family;
        shown.pointSize = m_plain.pointSize;
    }
    if (key.followsBold) {
        shown.bold = m_plain.bold;
    }
    return shown;
}

quint32 LookTable::handValueOf(const Key &key)
{
    Key hand = key;
    // A font that nobody named is the plain one.
    hand.followsFont = key.format.family.isEmpty() && key.format.pointSize == 0;
    if (!key.isColourByHand) {
        hand.format.colour.reset();
    }
    const auto known = m_handValues.constFind(hand);
    return known != m_handValues.cend()
        ? known.value()
        : m_handValues.insert(hand, quint32(m_handValues.size())).value();
}

bool LookTable::setPlain(const CharFormat &plain)
{
    m_plain = fromTextFormat(toTextFormat(plain));
    // What looks like plain text from now on may not be what did until now.
    m_known[false].clear();
    m_known[true].clear();
    bool isOther = false;
    for (Look &look : m_looks) {
        const CharFormat shown = shownBy(look.key);
        isOther = isOther || shown != look.shown;
        look.shown = shown;
    }
    return isOther;
}

void addParagraphs(std::vector<ParagraphRun> &runs, const ParagraphRun &run)
{
    if (!runs.empty() && runs.back().format == run.format) {
        runs.back().count += run.count;
    } else {
        runs.push_back(run);
    }
}

ChunkReader::ChunkReader(const TextChunks &chunks, size_t chunk) : m_chunks(&chunks), m_chunk(chunk)
{
    enter();
}

/// Goes to the next chunk when one is read to its end; empty ones are passed over.
void ChunkReader::enter()
{
    while (m_chunk < m_chunks->size() && m_at == (*m_chunks)[m_chunk]->text.size()) {
        ++m_chunk;
        m_at = 0;
        m_run = 0;
    }
}

TextChunk::Run ChunkReader::next() const
{
    if (m_chunk == m_chunks->size()) {
        return {};
    }
    const TextChunk::Run &run = (*m_chunks)[m_chunk]->runs[m_run];
    return { run.length - m_taken, run.look };
}

void ChunkReader::skip(qsizetype length)
{
    while (length > 0 && m_chunk < m_chunks->size()) {
        const TextChunk &chunk = *(*m_chunks)[m_chunk];
        const quint32 left = chunk.runs[m_run].length - m_taken;
        const qsizetype part = m_at == 0 && length >= chunk.text.size()
            ? chunk.text.size()
            : std::min(length, qsizetype(left));
        m_at += part;
        m_taken += quint32(part);
        if (part >= left) {
            ++m_run;
            m_taken = 0;
        }
        length -= part;
        enter();
    }
}

void ChunkReader::takeRuns(qsizetype length, TextChunk::Runs &runs)
{
    for (TextChunk::Run run = next(); length > 0 && run.length > 0; run = next()) {
        run.length = quint32(std::min(length, qsizetype(run.length)));
        addRun(runs, run);
        length -= run.length;
        skip(run.length);
    }
}

void ChunkReader::take(qsizetype length, QString &text, TextChunk::Runs &runs)
{
    while (length > 0 && m_chunk < m_chunks->size()) {
        const QString &from = (*m_chunks)[m_chunk]->text;
        const qsizetype part = std::min(length, from.size() - m_at);
        text += QStringView(from).sliced(m_at, part);
        takeRuns(part, runs);
        length -= part;
    }
}

void RunReader::take(qsizetype length, TextChunk::Runs &runs)
{
    while (length > 0 && m_run < m_runs.size()) {
        const TextChunk::Run &run = m_runs[m_run];
        const auto part = quint32(std::min(length, qsizetype(run.length - m_taken)));
        addRun(runs, { part, run.look });
        length -= part;
        m_taken += part;
        if (m_taken == run.length) {
            ++m_run;
            m_taken = 0;
        }
    }
}

void addOtherLooks(const TextChunk::Runs &one, const TextChunk::Runs &other, qsizetype position,
                   std::vector<TextStretch> &stretches)
{
    auto left = one.begin();
    auto right = other.begin();
    // The starts of the two runs that hold the position.
    qsizetype leftStart = position;
    qsizetype rightStart = position;
    while (left != one.end() && right != other.end()) {
        const qsizetype end = std::min(leftStart + left->length, rightStart + right->length);
        if (left->look != right->look) {
            if (!stretches.empty() && stretches.back().to == position) {
                stretches.back().to = end;
            } else {
                stretches.push_back({ position, end });
            }
        }
        position = end;
        if (leftStart + left->length == end) {
            leftStart += (left++)->length;
        }
        if (rightStart + right->length == end) {
            rightStart += (right++)->length;
        }
    }
}

qsizetype sizeOf(const TextChunks &chunks, size_t first, size_t end)
{
    qsizetype size = 0;
    for (size_t i = first; i < end; ++i) {
        size += chunks[i]->text.size();
    }
    return size;
}

QString textOf(const TextChunks &chunks, qsizetype from, qsizetype to)
{
    QString text;
    text.reserve(to - from);
    qsizetype start = 0;
    for (const auto &chunk : chunks) {
        if (start >= to) {
            break;
        }
        const qsizetype end = start + chunk->text.size();
        if (end > from) {
            const qsizetype first = std::max(from, start) - start;
            text += QStringView(chunk->text).sliced(first, std::min(to, end) - start - first);
        }
        start = end;
    }
    return text;
}

std::vector<qsizetype> chunkBorders(QStringView text, int linesPerChunk)
{
    std::vector<qsizetype> borders{ 0 };
    qsizetype left = text.count(u'\n') + 1;
    for (; left > 2 * linesPerChunk; left -= linesPerChunk) {
        qsizetype at = borders.back();
        for (int line = 0; line < linesPerChunk; ++line) {
            at = text.indexOf(u'\n', at) + 1;
        }
        borders.push_back(at);
    }
    borders.push_back(text.size());
    return borders;
}

namespace {

/// Applies edits region by region. A region is made of the neighbouring old chunks that an edit
/// touches; edits that meet in a chunk have one region. Its text and runs are put together, edited
/// and cut into new chunks.
class ChunkEditor
{
public:
    ChunkEditor(const TextChunks &old, int linesPerChunk, const ParagraphSource &paragraphs)
        : m_old(old), m_linesPerChunk(linesPerChunk), m_paragraphs(paragraphs), m_reader(old)
    {
        m_chunks.reserve(old.size() + 1);
    }

    TextChunks make(const std::vector<TextEdit> &edits)
    {
        for (auto edit = edits.begin(); edit != edits.end();) {
            keepUntil(edit->from);
            takeChunk();
            while (!isRegionWhole(edit, edits.end())) {
                if (edit != edits.end() && (edit->from < m_end || isAtEnd())) {
                    apply(*edit++);
                } else {
                    takeChunk();
                }
            }
            cutRegion();
        }
        m_chunks.insert(m_chunks.end(), m_old.begin() + qsizetype(m_next), m_old.end());
        return std::move(m_chunks);
    }

private:
    bool isAtEnd() const { return m_next == m_old.size(); }

    /// Takes over the chunks before the one that holds a position.
    void keepUntil(qsizetype position)
    {
        while (m_next + 1 < m_old.size() && m_end + m_old[m_next]->text.size() <= position) {
            const auto &chunk = m_old[m_next++];
            m_end += chunk->text.size();
            m_newStart += chunk->text.size();
            m_chunks.push_back(chunk);
        }
        m_reader = ChunkReader(m_old, m_next);
        m_position = m_end;
    }

    /// Adds the next old chunk to the region.
    void takeChunk() { m_end += m_old[m_next++]->text.size(); }

    void apply(const TextEdit &edit)
    {
        while (m_end < edit.from + edit.length && !isAtEnd()) {
            takeChunk();
        }
        copyUntil(edit.from);
        m_reader.skip(edit.length);
        m_position += edit.length;
        m_text += edit.text;
        for (const TextChunk::Run &run : edit.runs) {
            addRun(m_runs, run);
        }
    }

    void copyUntil(qsizetype position)
    {
        m_reader.take(position - m_position, m_text, m_runs);
        m_position = position;
    }

    /// Whether the region can be cut: no further edit falls into it, it ends at the end of a line,
    /// and it is not so short that the next chunk should be joined to it. Copies what is left of
    /// its old text.
    template <class Edit> bool isRegionWhole(Edit edit, Edit end)
    {
        if (edit != end && (edit->from < m_end || isAtEnd())) {
            return false;
        }
        copyUntil(m_end);
        if (isAtEnd()) {
            return true;
        }
        const bool endsLine = m_text.isEmpty() || m_text.endsWith(u'\n');
        return endsLine && m_text.count(u'\n') >= m_linesPerChunk / 4
            && !m_old[m_next]->text.isEmpty();
    }

    void cutRegion()
    {
        const std::vector<qsizetype> borders = chunkBorders(m_text, m_linesPerChunk);
        RunReader reader(m_runs);
        for (size_t i = 0; i + 1 < borders.size(); ++i) {
            const qsizetype size = borders[i + 1] - borders[i];
            const bool isLast = isAtEnd() && i + 2 == borders.size();
            if (size == 0 && !isLast) {
                continue;
            }
            auto chunk = std::make_shared<TextChunk>();
            chunk->text = m_text.mid(borders[i], size);
            chunk->text.squeeze();
            reader.take(size, chunk->runs);
            chunk->runs.shrink_to_fit();
            chunk->paragraphs = m_paragraphs.read(m_newStart, chunk->text, isLast);
            m_newStart += size;
            m_chunks.push_back(std::move(chunk));
        }
        m_text.clear();
        m_runs.clear();
    }

    const TextChunks &m_old;
    int m_linesPerChunk;
    const ParagraphSource &m_paragraphs;
    ChunkReader m_reader;
    TextChunks m_chunks;
    size_t m_next = 0; ///< the old chunk after the region
    qsizetype m_end = 0; ///< of the region, in the old text
    qsizetype m_position = 0; ///< in the old text, up to which it is copied
    qsizetype m_newStart = 0; ///< of the region, in the new text
    QString m_text; ///< of the region, with its runs
    TextChunk::Runs m_runs;
};

/// How many characters two texts have in common at their start and end. The toolkit may report one
/// line end more than has changed, before inserted text and after removed text. So the start is
/// counted first after an insertion, and the end first after a removal.
struct CommonEnds {
    qsizetype front = 0;
    qsizetype back = 0;

    CommonEnds(QStringView one, QStringView other)
    {
        const bool hasGrown = one.size() < other.size();
        if (hasGrown) {
            countFront(one, other);
        }
        countBack(one, other);
        if (!hasGrown) {
            countFront(one, other);
        }
    }

private:
    void countFront(QStringView one, QStringView other)
    {
        const qsizetype most = std::min(one.size(), other.size()) - back;
        while (front < most && one[front] == other[front]) {
            ++front;
        }
    }
    void countBack(QStringView one, QStringView other)
    {
        const qsizetype most = std::min(one.size(), other.size()) - front;
        while (back < most && one[one.size() - 1 - back] == other[other.size() - 1 - back]) {
            ++back;
        }
    }
};

void addDifference(QStringView before, QStringView now, qsizetype from,
                   std::vector<TextEdit> &edits)
{
    const CommonEnds same(before, now);
    const qsizetype length = before.size() - same.front - same.back;
    const qsizetype inserted = now.size() - same.front - same.back;
    if (length > 0 || inserted > 0) {
        edits.push_back(
            { from + same.front, length, now.mid(same.front, inserted).toString(), {} });
    }
}

} // namespace

TextChunks edited(const TextChunks &chunks, const std::vector<TextEdit> &edits, int linesPerChunk,
                  const ParagraphSource &paragraphs)
{
    return ChunkEditor(chunks, linesPerChunk, paragraphs).make(edits);
}

std::vector<TextEdit> differences(QStringView before, QStringView now)
{
    std::vector<TextEdit> edits;
    if (before.count(u'\n') != now.count(u'\n')) {
        addDifference(before, now, 0, edits);
        return edits;
    }
    qsizetype from = 0;
    for (;;) {
        const qsizetype end = before.indexOf(u'\n');
        const qsizetype nowEnd = now.indexOf(u'\n');
        addDifference(before.left(end), now.left(nowEnd), from, edits);
        if (end < 0) {
            return edits;
        }
        from += end + 1;
        before = before.sliced(end + 1);
        now = now.sliced(nowEnd + 1);
    }
}

} // namespace zeph
