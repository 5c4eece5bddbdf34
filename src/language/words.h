// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The vocabulary of joystick and macro files, as tables. Everything that reads or writes such text
// takes its words from here. All words stand in upper case; files may hold them in any case.

#include "platform/core/base.h"

#include <span>

namespace zeph::language {

using Words = std::span<const QStringView>;

/// What stands behind BTN: buttons, trigger stages, toggles, then the hats with all nine positions.
Words controls();
/// The nine positions of a hat as they end a control's name: U, D, L, R, M and the corners.
Words hatPositions();
/// HAT1 to HAT4.
Words hats();
/// What a hat can be made: POV, ARROWKEYS, KEYPAD, MOUSE.
Words hatRoles();

Words axes();
/// The names that stand for a pair of axes.
Words axisGroups();
/// Axes and groups that DISABLE may name: the stick's axes and the microstick stay on.
Words disableableAxes();

Words povDirections();
Words mouseAxes();
Words mouseButtons();

/// Where a slash modifier stands among the others of a statement.
enum class PositionClass : quint8 { Dogfight, S3, Action, Repeat };

struct SlashModifier {
    /// Two characters.
    QStringView word;
    /// As the Insert menu says it; the blanks in it are the menu's own.
    QStringView caption;
    PositionClass position;
};

std::span<const SlashModifier> slashModifiers();

/// A word of a body that the Insert menu offers behind the slash modifiers.
struct BodyWord {
    QStringView word;
    QStringView caption;
};

std::span<const BodyWord> bodyWords();

enum class ColourClass : quint8 { Slash, Raw, Miscellaneous, Button, Rem, AlwaysRed };

/// The words of one colour, in the order in which they are painted, and its brackets.
struct ColourWords {
    ColourClass colour;
    Words words;
    QStringView brackets;
};

std::span<const ColourWords> colourWords();

/// The twelve keywords at which a control's definition ends, in the order in which they are sought.
Words definitionKeywords();

/// The words that start a statement when they stand first on a line.
Words statementKeywords();

/// Each of these becomes "_" in a macro's name.
constexpr QStringView forbiddenMacroNameCharacters = u" <>{}()^,=";

constexpr int lastFlag = 48;
constexpr int lastBandCount = 50;

} // namespace zeph::language
