// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// How a key is written: in the language's own syntax, and as what presses and releases it; and the
// statements that Tumbo builds of these texts.

#include "composer/generators/generators.h"
#include "livetools/board_keys.h"

#include <array>

namespace zeph {

/// What make and break texts consist of: names for KD and KU, or codes for USB.
enum class CodeView { KdKu, Usb };

/// A key with the modifiers that are on, in three notations. Make and break are without the
/// brackets of KD, KU and USB.
struct KeyStrings {
    QString KeySyntax;
    QString MakeCodes;
    QString BreakCodes;
    QString CombinedCodes; ///< make, a blank, break

    friend bool operator==(const KeyStrings &, const KeyStrings &) = default;
};

/// The key in its notations. With useShfKey a shifted symbol is written as SHF and the key, without
/// it as the symbol; the codes have their Shift either way.
KeyStrings GetKeystrings(const BoardKey &key, const KeyToggles &toggles, CodeView view,
                         bool useShfKey);
/// Writes the modifiers into the codes: presses before the make text, releases after the break text
/// in reverse order. The modifiers may be spelt with their side, "LCTL LSHF ", or without.
void addModifiers(KeyStrings &strings, const QString &modifiers, CodeView view);

/// The four notations, in the order of Tumbo's boxes.
enum class Notation { Syntax, Make, Break, Combined };
inline constexpr std::array notations = { Notation::Syntax, Notation::Make, Notation::Break,
                                          Notation::Combined };

/// A notation's text as it goes into a statement, codes perhaps with the brackets of KD, KU or USB
/// around them: "KD (LSHF a)". Empty for an empty text.
QString statementText(Notation notation, const QString &text, CodeView view, bool withBrackets);

/// The statement that presses the key with the control and releases it with it, with the syntax as
/// its comment; empty unless all of make, break and syntax are there.
QString pressAndReleaseStatement(const KeyStrings &strings, CodeView view);
/// The combined codes with the syntax as their comment; empty unless both are there. Codes that are
/// one blank count.
QString combinedWithRem(const KeyStrings &strings);

/// A statement as it goes into a document: "/O" starts a line of its own when "/I" is before it.
/// Refused when "/O" comes first. Both count in upper case only.
Generated statementToInsert(const QString &statement);
/// The line that makes a macro of a statement; characters that a macro's name cannot have become
/// "_". Empty without a name or a statement.
QString macroLine(const QString &name, const QString &statement);

} // namespace zeph
