// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What the language model says of statements: of one that is about to be inserted, and of the one
// at the caret.

#include "composer/placement.h"

#include <QStringList>

namespace zeph {

/// What is wrong with a statement where it would land, in words: mistakes in it, words that are
/// neither keys nor macros, and another statement for its control.
QStringList findingsOf(const Landing &landing, const QString &macroText);

/// A statement of the joystick file.
struct ReadStatement {
    int start = 0; ///< 0-based
    int length = 0;
    QString text; ///< without comments
    bool hasComments = false; ///< between its first character and its last
};

/// The statement to which the line of a 0-based position belongs; no value when there is none.
std::optional<ReadStatement> statementAt(const QString &joystickText, int position);

/// What a page may know at a 0-based position: the statement, then the half of it that the position
/// is in ("/O 3 b ^ a"), then the word with brackets around the position ("TRIM (JOYY, 2+)"). Each
/// is there only if it differs from those before; none without a statement.
QList<ReadStatement> readableAt(const QString &joystickText, int position);

} // namespace zeph
