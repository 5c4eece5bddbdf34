// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Colours a text: passes and a colour scheme decide the colour of every character.

#include "language/file_kinds.h"
#include "language/words.h"
#include "platform/core/colour_scheme.h"
#include "platform/core/rich_text.h"

#include <QHash>

#include <memory>
#include <span>
#include <vector>

namespace zeph {

/// Characters of one colour. The runs of a text follow each other and cover it.
struct ColourRun {
    qsizetype length = 0;
    ColorRef colour = 0;

    friend bool operator==(const ColourRun &, const ColourRun &) = default;
};

/// The new colour for each old one when the scheme changes. A colour of several classes that get
/// different colours is left out, because only painting can tell which class a word belongs to.
QHash<ColorRef, ColorRef> recolouring(const ColourScheme &before, const ColourScheme &after);

/// How a pass seeks its word and how much it paints. Whole words are those of the rule in
/// platform/core/text_search.h.
enum class PaintPrimitive : quint8 {
    OnlyWord, ///< whole word in exact case
    WordCheckWhole, ///< whole word in any case, with a blank after it and no "_" before it
    JoyWordnotBracket, ///< whole word in any case, with "(" as the next character or the one after
    Bracket, ///< the single character anywhere
    BTNorDEF, ///< whole word (BTN in any case, DEF in exact case) with the next character and the
              ///< name after it, up to a blank or tab, even across line ends
    REM ///< whole word in any case with the rest of its line
};

/// One search over the whole text. Passes run in order, and a later one paints over earlier ones.
/// After a hit a pass goes on at the end of what it painted.
struct PaintPass {
    PaintPrimitive primitive;
    QStringView word;
    language::ColourClass colour;
};

std::span<const PaintPass> joystickPasses();
std::span<const PaintPass> macroPasses();
/// The passes for lines while they are typed.
std::span<const PaintPass> typingPasses();
/// The pass for comments alone.
std::span<const PaintPass> remPasses();

/// Paints texts with one table of passes. Keep it to paint many short texts: its constructor
/// prepares the search. The table must outlive it.
class Painter
{
public:
    explicit Painter(std::span<const PaintPass> passes);
    ~Painter();

    /// Paints a text in time linear to its length; the result is that of all passes one after
    /// another. Neighbouring runs differ in colour.
    std::vector<ColourRun> paint(QStringView text, const ColourScheme &scheme) const;

private:
    class Words;

    std::span<const PaintPass> m_passes;
    std::unique_ptr<const Words> m_words;
};

/// Paints one text with a Painter of its own.
std::vector<ColourRun> paint(QStringView text, std::span<const PaintPass> passes,
                             const ColourScheme &scheme);

/// The runs as looks and as character runs: the plain format with each run's colour.
LookRuns lookRuns(const std::vector<ColourRun> &runs, const CharFormat &plain);
std::vector<CharRun> characterRuns(const std::vector<ColourRun> &runs, const CharFormat &plain);

} // namespace zeph
