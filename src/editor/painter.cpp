// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/painter.h"

#include "platform/core/text_search.h"
#include "shell/settings/global_settings.h"

#include <algorithm>
#include <array>

namespace zeph {

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
        return pass.word != u"BTN";
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

/// Finds the whole-word hits of the words of all passes in one walk over the text. A word that is
/// made of word characters alone is a hit exactly where a run of them is that word; any other is
/// tried where its first character can start it.
class HitFinder
{
public:
    HitFinder(std::span<const PaintPass> passes, const WordTable &words)
        : m_passes(passes), m_words(words), m_hits(passes.size())
    {
    }

    /// The hits of each pass, in the order of the text.
    std::vector<Hits> find(QStringView text)
    {
        m_text = text;
        const qsizetype size = text.size();
        for (qsizetype at = 0; at < size;) {
            const qsizetype start = at;
            if (!isWord(text[at])) {
                tryOthers(start);
                ++at;
                continue;
            }
            WordHash hash;
            do {
                hash.add(fold(text[at]));
                ++at;
            } while (at < size && isWord(text[at]));
            tryWord(start, at - start, hash);
            tryOthers(start);
        }
        return std::move(m_hits);
    }

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

    std::span<const PaintPass> m_passes;
    const WordTable &m_words;
    std::vector<Hits> m_hits;
    QStringView m_text;
};

/// Lays the hits of one pass after another over the text.
class Canvas
{
public:
    explicit Canvas(QStringView text) : m_text(text), m_colours(size_t(text.size()), plain) { }

    /// Lays all passes over the text, a block of it after the other: a long text then goes through
    /// the processor's cache once, not once a pass.
    void paint(std::span<const PaintPass> passes, const std::vector<Hits> &hits,
               const std::function<void(const PaintPass &)> &begins)
    {
        std::vector<Progress> progress(passes.size());
        qsizetype from = 0;
        do {
            const qsizetype to = std::min(from + blockLength, m_text.size());
            for (size_t i = 0; i < passes.size(); ++i) {
                if (begins && from == 0) {
                    begins(passes[i]);
                }
                paintBlock(passes[i], hits[i], { from, to }, progress[i]);
            }
            from = to;
        } while (from < m_text.size());
    }

    std::vector<ColourRun> runs(const ColourScheme &scheme) const
    {
        const std::array colours = { scheme.plain,         scheme.btn, scheme.slash, scheme.raw,
                                     scheme.miscellaneous, scheme.rem, pureRed };
        std::vector<ColourRun> runs;
        for (auto at = m_colours.begin(); at != m_colours.end();) {
            const quint8 here = *at;
            const auto end =
                std::find_if(at, m_colours.end(), [here](quint8 each) { return each != here; });
            const ColorRef colour = colours[here];
            if (runs.empty() || runs.back().colour != colour) {
                runs.push_back({ 0, colour });
            }
            runs.back().length += end - at;
            at = end;
        }
        return runs;
    }

private:
    /// Stands for characters that no pass painted; the classes follow it.
    static constexpr quint8 plain = 0;
    /// In characters: colours and text of a block fit into the nearer caches.
    static constexpr qsizetype blockLength = 32768;

    /// How far a pass has come.
    struct Progress {
        size_t hit = 0;
        qsizetype next = 0; ///< hits before it are passed over
        qsizetype painted = 0; ///< the end of its last stretch, which may lie in a later block
    };
    struct Block {
        qsizetype from;
        qsizetype to;
    };

    void paintBlock(const PaintPass &pass, const Hits &hits, Block block, Progress &progress)
    {
        const auto fill = [&](qsizetype from, qsizetype to) {
            if (from < to) {
                std::fill(m_colours.begin() + from, m_colours.begin() + to,
                          quint8(quint8(pass.colour) + 1));
            }
        };
        fill(block.from, std::min(progress.painted, block.to));
        for (; progress.hit < hits.size() && hits[progress.hit] < block.to; ++progress.hit) {
            const qsizetype start = hits[progress.hit];
            if (start < progress.next) {
                continue;
            }
            const qsizetype wordEnd = start + pass.word.size();
            progress.next = wordEnd;
            if (isPainted(pass.primitive, start, wordEnd)) {
                progress.next = paintedEnd(pass.primitive, wordEnd);
                progress.painted = progress.next;
                fill(start, std::min(progress.painted, block.to));
            }
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
    std::vector<quint8> m_colours;
};

} // namespace

ColourScheme colourScheme(const GlobalSettings &settings, DocumentKind kind)
{
    return { kind == DocumentKind::Joystick ? settings.JoystickTextDefaultColour
                                            : settings.MacroTextDefaultColour,
             settings.BTNColour,
             settings.SlashColour,
             settings.RAWColour,
             settings.MiscellaneousColour,
             settings.RemStatements };
}

QHash<ColorRef, ColorRef> recolouring(const ColourScheme &before, const ColourScheme &after)
{
    constexpr ColorRef ColourScheme::*classes[] = {
        &ColourScheme::plain, &ColourScheme::btn,           &ColourScheme::slash,
        &ColourScheme::raw,   &ColourScheme::miscellaneous, &ColourScheme::rem,
    };
    QHash<ColorRef, ColorRef> result;
    for (const auto each : classes) {
        const bool isClear = std::ranges::all_of(classes, [&](const auto other) {
            return before.*other != before.*each || after.*other == after.*each;
        });
        if (isClear && before.*each != after.*each) {
            result.insert(before.*each, after.*each);
        }
    }
    return result;
}

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
    const std::vector<Hits> hits = HitFinder(m_passes, *m_words).find(text);
    Canvas canvas(text);
    canvas.paint(m_passes, hits, begins);
    return canvas.runs(scheme);
}

std::vector<ColourRun> paint(QStringView text, std::span<const PaintPass> passes,
                             const ColourScheme &scheme,
                             const std::function<void(const PaintPass &)> &begins)
{
    return Painter(passes).paint(text, scheme, begins);
}

std::vector<CharRun> characterRuns(const std::vector<ColourRun> &runs, const CharFormat &plain)
{
    std::vector<CharRun> result(runs.size(), { 0, plain });
    for (size_t i = 0; i < runs.size(); ++i) {
        result[i].length = runs[i].length;
        result[i].format.colour = runs[i].colour;
    }
    return result;
}

} // namespace zeph
