// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "text/painter.h"

#include "platform/core/text_search.h"

#include <algorithm>
#include <array>

namespace zeph {

using language::ColourClass;
using language::operator""_w;

// The passes are defined as about 150 searches over the whole text, one after another. Painting
// gives the same result in one walk over the text, in blocks that fit into the processor's caches:
//
// 1. HitFinder walks over a block and notes the hits of every pass at once. It finds them by
// WordTable:
//    a run of word characters is looked up by its hash, and words with other characters ("/U",
//    "(AUTO)") by their first character.
// 2. Canvas takes the hits of one pass after another, tests the conditions of the pass's primitive
// and
//    writes its colour over the block's characters.
// 3. The block's characters become runs.
//
// A pass can paint beyond the end of a block (a comment, a BTN with its name), so Progress carries
// over how far each pass has painted and from where its next hit counts.

namespace {

constexpr size_t asciiCount = 128;
constexpr ColorRef pureRed = 255;

/// The two properties of characters that the walk needs, in a table: nearly all characters of a
/// file are ASCII.
struct AsciiTable {
    std::array<bool, asciiCount> isWord{};
    std::array<char16_t, asciiCount> folded{};

    AsciiTable()
    {
        for (char16_t c = 0; c < asciiCount; ++c) {
            isWord[c] = isWordCharacter(QChar(c));
            folded[c] = QChar(c).toCaseFolded().unicode();
        }
    }
};

const AsciiTable ascii;

bool isWord(QChar character)
{
    const char16_t c = character.unicode();
    return c < asciiCount ? ascii.isWord[c] : isWordCharacter(character);
}

char16_t fold(QChar character)
{
    const char16_t c = character.unicode();
    return c < asciiCount ? ascii.folded[c] : character.toCaseFolded().unicode();
}

/// The hash of a word in any case, built from its folded characters.
struct WordHash {
    quint32 value = 0;
    void add(char16_t folded) { value = value * 31 + folded; }
};

bool matchesCase(const PaintPass &pass)
{
    switch (pass.primitive) {
    case PaintPrimitive::OnlyWord:
        return true;
    case PaintPrimitive::BTNorDEF:
        return pass.word != u"BTN"_w;
    default:
        return false;
    }
}

using Hits = std::vector<qsizetype>;

/// The words of all passes, to be looked up by hash or by first character. A word with several
/// passes is there once.
class WordTable
{
public:
    struct Word {
        QStringView text;
        std::vector<size_t> passes;
    };
    using Bucket = std::vector<Word>;

    explicit WordTable(std::span<const PaintPass> passes)
    {
        for (size_t i = 0; i < passes.size(); ++i) {
            add(passes[i].word, i);
        }
    }

    /// Candidates among the words that consist of word characters.
    const Bucket &words(WordHash hash) const { return m_words[hash.value % bucketCount]; }
    /// Candidates among all other words.
    const Bucket &others(QChar first) const { return m_others[fold(first) % asciiCount]; }

private:
    static constexpr size_t bucketCount = 512;

    void add(QStringView word, size_t pass)
    {
        if (word.isEmpty()) {
            return;
        }
        WordHash hash;
        for (const QChar c : word) {
            hash.add(fold(c));
        }
        const bool isPure = std::all_of(word.begin(), word.end(), isWord);
        Bucket &bucket =
            isPure ? m_words[hash.value % bucketCount] : m_others[fold(word.front()) % asciiCount];
        const auto known = std::find_if(bucket.begin(), bucket.end(), [word](const Word &each) {
            return each.text.compare(word, Qt::CaseInsensitive) == 0;
        });
        if (known == bucket.end()) {
            bucket.push_back({ word, { pass } });
        } else {
            known->passes.push_back(pass);
        }
    }

    std::array<Bucket, bucketCount> m_words;
    std::array<Bucket, asciiCount> m_others; ///< by first character
};

/// A stretch of the text [from, to).
struct Block {
    qsizetype from = 0;
    qsizetype to = 0;
};

/// Finds the whole-word hits of all passes in one walk over the text. A word of word characters is
/// a hit where a whole run of word characters equals it. Any other word is compared at each place
/// with its first character.
class HitFinder
{
public:
    HitFinder(QStringView text, std::span<const PaintPass> passes, const WordTable &words)
        : m_text(text), m_passes(passes), m_words(words), m_hits(passes.size())
    {
    }

    /// Walks on to the given position, or to the end of the word there, and returns the stretch
    /// walked over. hits() are then those that begin in this stretch.
    Block walk(qsizetype until)
    {
        for (Hits &hits : m_hits) {
            hits.clear();
        }
        const qsizetype from = m_at;
        const qsizetype size = m_text.size();
        until = std::min(until, size);
        while (m_at < until) {
            const qsizetype start = m_at;
            if (!isWord(m_text[m_at])) {
                tryOthers(start);
                ++m_at;
                continue;
            }
            WordHash hash;
            do {
                hash.add(fold(m_text[m_at]));
                ++m_at;
            } while (m_at < size && isWord(m_text[m_at]));
            tryWord(start, m_at - start, hash);
            tryOthers(start);
        }
        return { from, m_at };
    }

    /// The start positions of each pass's hits, in text order.
    const std::vector<Hits> &hits() const { return m_hits; }

private:
    using Word = WordTable::Word;

    void tryWord(qsizetype start, qsizetype length, WordHash hash)
    {
        for (const Word &word : m_words.words(hash)) {
            if (word.text.size() == length && equals(start, word.text)) {
                addHits(word, start);
            }
        }
    }

    void tryOthers(qsizetype start)
    {
        for (const Word &word : m_words.others(m_text[start])) {
            const qsizetype end = start + word.text.size();
            const bool joinedAfter =
                end < m_text.size() && isWord(word.text.back()) && isWord(m_text[end]);
            if (end <= m_text.size() && !joinedAfter && equals(start, word.text)) {
                addHits(word, start);
            }
        }
    }

    bool equals(qsizetype start, QStringView word) const
    {
        return std::equal(word.begin(), word.end(), m_text.begin() + start,
                          [](QChar a, QChar b) { return fold(a) == fold(b); });
    }

    void addHits(const Word &word, qsizetype start)
    {
        for (const size_t pass : word.passes) {
            const QStringView wanted = m_passes[pass].word;
            if (!matchesCase(m_passes[pass]) || m_text.mid(start, wanted.size()) == wanted) {
                m_hits[pass].push_back(start);
            }
        }
    }

    QStringView m_text;
    std::span<const PaintPass> m_passes;
    const WordTable &m_words;
    std::vector<Hits> m_hits;
    qsizetype m_at = 0;
};

/// Paints the hits of one pass after another, block by block.
class Canvas
{
public:
    Canvas(QStringView text, std::span<const PaintPass> passes, const ColourScheme &scheme)
        : m_text(text), m_passes(passes), m_progress(passes.size()),
          m_schemeColours{ scheme.plain,         scheme.btn, scheme.slash, scheme.raw,
                           scheme.miscellaneous, scheme.rem, pureRed }
    {
        m_runs.reserve(size_t(text.size() / charactersPerRun) + 1);
    }

    /// Paints the next block with the hits that begin in it.
    void paint(Block block, const std::vector<Hits> &hits)
    {
        m_block = block;
        m_colours.assign(size_t(block.to - block.from), ColourClass::Plain);
        for (size_t i = 0; i < m_passes.size(); ++i) {
            paintPass(m_passes[i], hits[i], m_progress[i]);
        }
        addRuns();
    }

    std::vector<ColourRun> takeRuns() { return std::move(m_runs); }

private:
    /// An estimate for a file full of words, to reserve memory once.
    static constexpr qsizetype charactersPerRun = 4;

    /// How far a pass has got.
    struct Progress {
        qsizetype next = 0; ///< earlier hits do not count
        qsizetype painted = 0; ///< end of what it painted, possibly in a later block
    };

    void fill(qsizetype from, qsizetype to, ColourClass colour)
    {
        to = std::min(to, m_block.to);
        if (from < to) {
            const auto begin = m_colours.begin() + (from - m_block.from);
            std::fill(begin, begin + (to - from), colour);
        }
    }

    void paintPass(const PaintPass &pass, const Hits &hits, Progress &progress)
    {
        fill(m_block.from, progress.painted, pass.colour);
        for (const qsizetype start : hits) {
            if (start < progress.next) {
                continue;
            }
            const qsizetype wordEnd = start + pass.word.size();
            progress.next = wordEnd;
            if (isPainted(pass.primitive, start, wordEnd)) {
                progress.next = paintedEnd(pass.primitive, wordEnd);
                progress.painted = progress.next;
                fill(start, progress.painted, pass.colour);
            }
        }
    }

    void addRuns()
    {
        for (auto at = m_colours.begin(); at != m_colours.end();) {
            const ColourClass here = *at;
            const auto end = std::find_if(at, m_colours.end(),
                                          [here](ColourClass each) { return each != here; });
            const ColorRef colour = m_schemeColours[size_t(here)];
            if (m_runs.empty() || m_runs.back().colour != colour) {
                m_runs.push_back({ 0, colour });
            }
            m_runs.back().length += end - at;
            at = end;
        }
    }

    bool holds(qsizetype at, QChar character) const
    {
        return at < m_text.size() && m_text[at] == character;
    }

    bool isPainted(PaintPrimitive primitive, qsizetype start, qsizetype end) const
    {
        switch (primitive) {
        case PaintPrimitive::WordCheckWhole:
            return holds(end, u' ') && (start == 0 || m_text[start - 1] != u'_');
        case PaintPrimitive::JoyWordnotBracket:
            return holds(end, u'(') || holds(end + 1, u'(');
        default:
            return true;
        }
    }

    qsizetype paintedEnd(PaintPrimitive primitive, qsizetype wordEnd) const
    {
        const auto endAt = [this](qsizetype from, auto isEnd) {
            const auto begin = m_text.begin() + std::min(from, m_text.size());
            return std::find_if(begin, m_text.end(), isEnd) - m_text.begin();
        };
        switch (primitive) {
        case PaintPrimitive::BTNorDEF:
            // The character after the word is always painted; the name starts after it.
            return endAt(wordEnd + 1, [](QChar c) { return c == u' ' || c == u'\t'; });
        case PaintPrimitive::REM:
            return endAt(wordEnd, [](QChar c) { return c == u'\n'; });
        default:
            return wordEnd;
        }
    }

    QStringView m_text;
    std::span<const PaintPass> m_passes;
    std::vector<Progress> m_progress;
    std::array<ColorRef, 7> m_schemeColours; ///< by ColourClass
    Block m_block;
    std::vector<ColourClass> m_colours; ///< of the block
    std::vector<ColourRun> m_runs;
};

} // namespace

class Painter::Words : public WordTable
{
public:
    using WordTable::WordTable;
};

Painter::Painter(std::span<const PaintPass> passes)
    : m_passes(passes), m_words(std::make_unique<const Words>(passes))
{
}

Painter::~Painter() = default;

std::vector<ColourRun> Painter::paint(QStringView text, const ColourScheme &scheme) const
{
    // Hits and colours of a block of this length fit into the processor's nearer caches.
    constexpr qsizetype blockLength = 32768;
    HitFinder finder(text, m_passes, *m_words);
    Canvas canvas(text, m_passes, scheme);
    for (qsizetype at = 0; at < text.size();) {
        const Block block = finder.walk(at + blockLength);
        canvas.paint(block, finder.hits());
        at = block.to;
    }
    return canvas.takeRuns();
}

std::vector<ColourRun> paint(QStringView text, std::span<const PaintPass> passes,
                             const ColourScheme &scheme)
{
    return Painter(passes).paint(text, scheme);
}

} // namespace zeph
