// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Colouring as a pure function: a text, a table of passes and a scheme give the colour of every
// character.

#include "language/file_kinds.h"
#include "language/words.h"
#include "platform/core/colour_scheme.h"
#include "platform/core/rich_text.h"

#include <QHash>

#include <functional>
#include <memory>
#include <span>
#include <vector>

namespace zeph {

/// A stretch of characters of one colour; the runs follow each other and cover the whole text.
struct ColourRun {
    qsizetype length = 0;
    ColorRef colour = 0;

    friend bool operator==(const ColourRun &, const ColourRun &) = default;
};

/// What the colours of a text become when the scheme changes. A colour that serves several classes
/// is left out when they part: which of them a word belongs to, only painting can tell.
QHash<ColorRef, ColorRef> recolouring(const ColourScheme &before, const ColourScheme &after);

/// How a pass seeks its word and what it paints of a hit. "Whole" is the whole-word rule of
/// platform/core/text_search.h.
enum class PaintPrimitive : quint8 {
    OnlyWord, ///< whole word in exact case
    WordCheckWhole, ///< whole word in any case, a blank behind it and no "_" before it
    JoyWordnotBracket, ///< whole word in any case; "(" is the next character or the one after it
    Bracket, ///< the single character, wherever it stands
    BTNorDEF, ///< whole word (BTN in any case, another in exact case), and on to the blank or tab
              ///< that ends the name behind it, across line ends too
    REM ///< whole word in any case, and on to the line's end
};

/// One search over the whole text; passes run in order, and later ones paint over earlier ones. A
/// pass goes on behind what its last hit painted.
struct PaintPass {
    PaintPrimitive primitive;
    QStringView word;
    language::ColourClass colour;
};

std::span<const PaintPass> joystickPasses();
std::span<const PaintPass> macroPasses();
/// The passes over lines as they are typed.
std::span<const PaintPass> typingPasses();
/// Comments alone.
std::span<const PaintPass> remPasses();

/// A table of passes made ready to paint many texts, however short. Outlived by the table.
class Painter
{
public:
    explicit Painter(std::span<const PaintPass> passes);
    ~Painter();

    /// Paints a text: linear in its length, exactly as the passes one after another would. No two
    /// neighbouring runs have the same colour. What is given as begins hears of each pass, in
    /// order, before the text is painted.
    std::vector<ColourRun> paint(QStringView text, const ColourScheme &scheme,
                                 const std::function<void(const PaintPass &)> &begins = {}) const;

private:
    class Words;

    std::span<const PaintPass> m_passes;
    std::unique_ptr<const Words> m_words;
};

/// Paints one text.
std::vector<ColourRun> paint(QStringView text, std::span<const PaintPass> passes,
                             const ColourScheme &scheme,
                             const std::function<void(const PaintPass &)> &begins = {});

/// The runs as looks: the plain format with each run's colour.
LookRuns lookRuns(const std::vector<ColourRun> &runs, const CharFormat &plain);
std::vector<CharRun> characterRuns(const std::vector<ColourRun> &runs, const CharFormat &plain);

} // namespace zeph
