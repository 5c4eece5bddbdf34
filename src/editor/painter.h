// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Colouring as a pure function: a text, a table of passes and a scheme give the colour of every
// character.

#include "editor/file_kinds.h"
#include "platform/core/base.h"
#include "platform/core/units.h"

#include <span>
#include <vector>

namespace zeph {

/// A stretch of characters of one colour; the runs follow each other and cover the whole text.
struct ColourRun {
    qsizetype length = 0;
    ColorRef colour = 0;

    friend bool operator==(const ColourRun &, const ColourRun &) = default;
};

/// The colours of a run of the painter, by class.
struct ColourScheme {
    ColorRef plain = 0;
    ColorRef btn = 0;
    ColorRef slash = 0;
    ColorRef raw = 0;
    ColorRef miscellaneous = 0;
    ColorRef rem = 0;
};

struct GlobalSettings;

/// The scheme of the settings for one of the documents.
ColourScheme colourScheme(const GlobalSettings &settings, DocumentKind kind);

enum class PaintPrimitive { OnlyWord, WordCheckWhole, JoyWordnotBracket, Bracket, BTNorDEF, REM };
enum class ColourClass { Btn, Slash, Raw, Miscellaneous, Rem, PureRed };

/// One search over the whole text; passes run in order, and later ones paint over earlier ones.
struct PaintPass {
    PaintPrimitive primitive;
    const char16_t *word;
    ColourClass colour;
};

std::span<const PaintPass> joystickPasses();
std::span<const PaintPass> macroPasses();
/// The passes over lines as they are typed.
std::span<const PaintPass> typingPasses();
/// Comments alone.
std::span<const PaintPass> remPasses();

/// Paints the text: linear in its length, exactly as the passes one after another would.
std::vector<ColourRun> paint(QStringView text, std::span<const PaintPass> passes,
                             const ColourScheme &scheme);

} // namespace zeph
