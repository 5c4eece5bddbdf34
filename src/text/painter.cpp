// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "text/painter.h"

#include "platform/core/text_search.h"

#include <algorithm>
#include <array>

namespace zeph {

using language::ColourClass;
using language::operator""_w;

namespace {

constexpr size_t asciiCount = 128;
constexpr ColorRef pureRed = 255;

/// What the walk asks of each character, looked up: nearly all of a file is ASCII.
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

/// Hash of a word in any case, one character after another.
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

/// The words of a table of passes, by what a walk over a text knows of a place: the hash of the
/// word there, or its first character.
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

    /// Words of word characters alone.
    const Bucket &words(WordHash hash) const { return m_words[hash.value % bucketCount]; }
    /// All others.
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

/// Finds the whole-word hits of the words of all passes in one walk over the text. A word that is
/// made of word characters alone is a hit exactly where a run of them is that word; any other is
/// tried where its first character can start it.
class HitFinder
{
public:
    HitFinder(QStringView text, std::span<const PaintPass> passes, const WordTable &words)
        : m_text(text), m_passes(passes), m_words(words), m_hits(passes.size())
    {
    }

    /// Walks on to the end of the word that stands at a place, or to the text's end, and gives the
    /// stretch walked over. The hits are those that begin in it.
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

    /// The hits of each pass, in the order of the text.
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
            const bool joinedBehind =
                end < m_text.size() && isWord(word.text.back()) && isWord(m_text[end]);
            if (end <= m_text.size() && !joinedBehind && equals(start, word.text)) {
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

/// Lays the hits of one pass after another over the text, a block of it at a time.
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

    /// Paints the block behind the last one, with the hits that begin in it.
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
    /// About as many as a file has that is full of words; a guess alone.
    static constexpr qsizetype charactersPerRun = 4;

    /// How far a pass has come.
    struct Progress {
        qsizetype next = 0; ///< hits before it are passed over
        qsizetype painted = 0; ///< the end of its last stretch, which may lie in a later block
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
            // The character behind the word is taken in whatever it is; the name starts behind it.
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

std::vector<ColourRun> Painter::paint(QStringView text, const ColourScheme &scheme,
                                      const std::function<void(const PaintPass &)> &begins) const
{
    // A block fits into the processor's nearer caches; a long text goes through them once.
    constexpr qsizetype blockLength = 32768;
    if (begins) {
        for (const PaintPass &pass : m_passes) {
            begins(pass);
        }
    }
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
                             const ColourScheme &scheme,
                             const std::function<void(const PaintPass &)> &begins)
{
    return Painter(passes).paint(text, scheme, begins);
}

} // namespace zeph
