// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/rich_text.h"

namespace zeph {

namespace {

// Characters and paragraphs have runs of the same shape: a size and a format.
qsizetype &sizeOf(CharRun &run)
{
    return run.length;
}

qsizetype &sizeOf(ParagraphRun &run)
{
    return run.count;
}

qsizetype sizeOf(const CharRun &run)
{
    return run.length;
}

qsizetype sizeOf(const ParagraphRun &run)
{
    return run.count;
}

template <class Run> void addRun(std::vector<Run> &runs, qsizetype size, const Run &like)
{
    if (size <= 0) {
        return;
    }
    if (!runs.empty() && runs.back().format == like.format) {
        sizeOf(runs.back()) += size;
        return;
    }
    runs.push_back(like);
    sizeOf(runs.back()) = size;
}

/// Makes runs cover exactly a total, without equal neighbours.
template <class Run> void tidy(std::vector<Run> &runs, qsizetype total)
{
    size_t kept = 0;
    qsizetype covered = 0;
    for (size_t i = 0; i < runs.size(); ++i) {
        const qsizetype size = std::min(sizeOf(runs[i]), total - covered);
        if (size <= 0) {
            continue;
        }
        covered += size;
        if (kept > 0 && runs[kept - 1].format == runs[i].format) {
            sizeOf(runs[kept - 1]) += size;
            continue;
        }
        if (kept != i) {
            runs[kept] = std::move(runs[i]);
        }
        sizeOf(runs[kept]) = size;
        ++kept;
    }
    runs.resize(kept);
    addRun(runs, total - covered, Run());
}

/// The part of the runs that covers [from, from + size).
template <class Run>
std::vector<Run> stretchOf(const std::vector<Run> &runs, qsizetype from, qsizetype size)
{
    std::vector<Run> stretch;
    qsizetype start = 0;
    for (const Run &run : runs) {
        const qsizetype end = start + sizeOf(run);
        addRun(stretch, std::min(end, from + size) - std::max(start, from), run);
        if (end >= from + size) {
            break;
        }
        start = end;
    }
    return stretch;
}

/// Goes along runs once, cutting stretches off.
template <class Run> class RunCutter
{
public:
    explicit RunCutter(const std::vector<Run> &runs) : m_runs(runs) { }

    /// The next stretch of a size. The stretch after it starts so much further.
    std::vector<Run> cut(qsizetype size, qsizetype step)
    {
        std::vector<Run> part;
        qsizetype within = m_within;
        for (size_t i = m_run; size > 0 && i < m_runs.size(); ++i) {
            const qsizetype length = std::min(size, sizeOf(m_runs[i]) - within);
            addRun(part, length, m_runs[i]);
            size -= length;
            within = 0;
        }
        m_within += step;
        while (m_run < m_runs.size() && m_within >= sizeOf(m_runs[m_run])) {
            m_within -= sizeOf(m_runs[m_run++]);
        }
        return part;
    }

private:
    const std::vector<Run> &m_runs;
    size_t m_run = 0; ///< the next stretch starts in this run, so far within it
    qsizetype m_within = 0;
};

} // namespace

void forEachPiece(const RichText &text, qsizetype size,
                  const std::function<bool(const RichText &)> &function)
{
    RunCutter characters(text.characters);
    RunCutter paragraphs(text.paragraphs);
    for (qsizetype from = 0; from < text.text.size(); from += size) {
        RichText piece;
        piece.text = text.text.mid(from, size);
        const qsizetype length = piece.text.size();
        const qsizetype lineEnds = piece.text.count(u'\n');
        piece.characters = characters.cut(length, length);
        piece.paragraphs = paragraphs.cut(lineEnds + 1, lineEnds);
        if (!function(piece)) {
            return;
        }
    }
}

RichText RichText::plain(QString text, const CharFormat &format, const ParagraphFormat &paragraph)
{
    RichText result;
    result.text = std::move(text);
    addRun(result.characters, result.text.size(), CharRun{ 0, format });
    addRun(result.paragraphs, result.paragraphCount(), ParagraphRun{ 0, paragraph });
    return result;
}

CharFormat RichText::formatAt(qsizetype position) const
{
    qsizetype end = 0;
    for (const CharRun &run : characters) {
        end += run.length;
        if (position < end) {
            return run.format;
        }
    }
    return end < text.size() || characters.empty() ? CharFormat() : characters.back().format;
}

RichText RichText::mid(qsizetype from, qsizetype length) const
{
    from = std::clamp(from, qsizetype(0), text.size());
    length = std::clamp(length, qsizetype(0), text.size() - from);
    RichText result;
    result.text = text.mid(from, length);
    result.characters = stretchOf(characters, from, length);
    result.paragraphs =
        stretchOf(paragraphs, QStringView(text).left(from).count(u'\n'), result.paragraphCount());
    result.normalise();
    return result;
}

void RichText::append(const RichText &other)
{
    if (text.isEmpty()) {
        // The other text replaces an empty one whole: that has no paragraph format worth keeping.
        if (!other.text.isEmpty() || paragraphs.empty()) {
            *this = other;
        }
        normalise();
        return;
    }
    if (other.text.isEmpty()) {
        return;
    }
    if (&other == this) {
        append(RichText(other));
        return;
    }
    const bool startsParagraph = text.endsWith(u'\n');
    if (startsParagraph && !paragraphs.empty() && --paragraphs.back().count == 0) {
        paragraphs.pop_back();
    }
    qsizetype joined = startsParagraph ? 0 : 1;
    for (const ParagraphRun &run : other.paragraphs) {
        addRun(paragraphs, run.count - std::min(joined, run.count), run);
        joined = 0;
    }
    for (const CharRun &run : other.characters) {
        addRun(characters, run.length, run);
    }
    text += other.text;
}

std::pair<size_t, size_t> RichText::split(qsizetype from, qsizetype length)
{
    from = std::clamp(from, qsizetype(0), text.size());
    const qsizetype to = from + std::clamp(length, qsizetype(0), text.size() - from);
    qsizetype covered = 0;
    for (const CharRun &run : characters) {
        covered += run.length;
    }
    if (covered != text.size()) {
        normalise();
    }
    size_t at = 0;
    qsizetype start = 0;
    const auto borderAt = [&](qsizetype position) {
        while (at < characters.size() && start + characters[at].length <= position) {
            start += characters[at].length;
            ++at;
        }
        if (at == characters.size() || start == position) {
            return at;
        }
        CharRun before = characters[at];
        before.length = position - start;
        characters[at].length -= before.length;
        characters.insert(characters.begin() + std::ptrdiff_t(at), std::move(before));
        start = position;
        return ++at;
    };
    if (from == to) {
        return { 0, 0 };
    }
    const size_t first = borderAt(from);
    return { first, borderAt(to) };
}

void RichText::mergeAround(size_t first, size_t last)
{
    if (first == last) {
        return;
    }
    const size_t begin = first == 0 ? 0 : first - 1;
    const size_t end = std::min(last + 1, characters.size());
    size_t kept = begin;
    for (size_t i = begin + 1; i < end; ++i) {
        if (characters[i].format == characters[kept].format) {
            characters[kept].length += characters[i].length;
        } else if (++kept != i) {
            characters[kept] = std::move(characters[i]);
        }
    }
    characters.erase(characters.begin() + std::ptrdiff_t(kept + 1),
                     characters.begin() + std::ptrdiff_t(end));
}

void RichText::normalise()
{
    tidy(characters, text.size());
    tidy(paragraphs, paragraphCount());
}

LookRuns::LookRuns(const std::vector<CharRun> &characters)
{
    LookNumbers numbers;
    runs.reserve(characters.size());
    for (const CharRun &run : characters) {
        runs.push_back(
            { quint32(std::max(run.length, qsizetype(0))), numbers.numberOf(run.format) });
    }
    looks = numbers.take();
}

RichText NumberedRichText::rich() const
{
    RichText result{ text, {}, paragraphs };
    result.characters.reserve(characters.runs.size());
    for (const LookRun &run : characters.runs) {
        result.characters.push_back({ run.length, characters.looks[run.format] });
    }
    return result;
}

quint32 LookNumbers::numberOf(const CharFormat &look)
{
    const auto known = m_numbers.constFind(look);
    if (known != m_numbers.cend()) {
        return known.value();
    }
    const auto number = quint32(m_looks.size());
    m_looks.push_back(look);
    m_numbers.insert(look, number);
    return number;
}

std::vector<CharFormat> LookNumbers::take()
{
    m_numbers.clear();
    return std::exchange(m_looks, {});
}

RichTextChanges::RichTextChanges(RichText text) : m_text(std::move(text))
{
    m_text.normalise();
    m_lookOf.reserve(size_t(m_text.text.size()));
    for (const CharRun &run : m_text.characters) {
        m_lookOf.insert(m_lookOf.end(), size_t(run.length), m_looks.numberOf(run.format));
    }
}

RichText RichTextChanges::take()
{
    m_text.characters.clear();
    for (size_t start = 0; start < m_lookOf.size();) {
        size_t end = start;
        while (end < m_lookOf.size() && m_lookOf[end] == m_lookOf[start]) {
            ++end;
        }
        m_text.characters.push_back({ qsizetype(end - start), m_looks.look(m_lookOf[start]) });
        start = end;
    }
    m_looks.take();
    m_lookOf.clear();
    return std::exchange(m_text, {});
}

} // namespace zeph
