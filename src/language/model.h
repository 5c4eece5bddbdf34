// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The model of a joystick file and its macro file: statements, macros and the words of their
// bodies, each with its place. Any text has a model; words that are not understood are kept as
// unknown. All lists are flat and in text order, and parts refer to each other by index, so that
// deeply nested or broken text costs no more than plain text.

#include "language/words.h"
#include "platform/core/base.h"

#include <QList>

#include <array>

namespace zeph::language {

enum class File : quint8 { Joystick, Macro };

struct Place {
    /// 0-based, in characters from the file's start.
    qsizetype position = 0;
    qsizetype length = 0;
    /// 1-based line of the first character.
    int line = 1;

    qsizetype end() const { return position + length; }
    bool operator==(const Place &) const = default;
};

/// Indices from first up to, not including, end.
struct Range {
    int first = 0;
    int end = 0;

    int size() const { return end - first; }
    bool isEmpty() const { return end <= first; }
    bool operator==(const Range &) const = default;
};

enum class ItemKind : quint8 {
    /// Not understood: perhaps a macro of another file, perhaps a mistake.
    Unknown,
    /// A single character or a key's name.
    Key,
    /// SHF, CTL, ALT and the like, which belong to the key that follows.
    ModifierKey,
    /// "^", the null character.
    Null,
    Number,
    /// A word of the language: a control, an axis, a role, an option.
    Word,
    Flag,
    /// A macro of the macro file; Item::reference is its index.
    MacroUse,
    /// A word with its brackets; Item::reference is the word's index in words.
    Call,
    /// Brackets and their contents.
    Group,
    Comma,
    /// A slash modifier; Item::reference is its index in slashModifiers.
    Slash,
};

/// A word, a bracket group or a separator of a body. The contents of a group or call are the items
/// after it, up to endItem.
struct Item {
    Place place;
    ItemKind kind = ItemKind::Unknown;
    /// The word of this macro use is also a key or a word of the language, so the use is not
    /// certain.
    bool alsoKey = false;
    /// For a Group or Call: whether the closing bracket was found.
    bool closed = false;
    /// Index of the group or call around it, or -1.
    int parent = -1;
    /// The first index after its contents; its own index + 1 without contents.
    int endItem = 0;
    int reference = -1;
};

/// One slash modifier in force for a branch.
struct Link {
    /// Index in slashModifiers.
    int modifier = -1;
    /// Index of its item.
    int item = -1;

    bool operator==(const Link &) const = default;
};

/// The modifiers in force, outermost first. A modifier replaces the one of its own level and ends
/// those of the levels further in.
struct Chain {
    std::array<Link, slashLevels> links;
    int size = 0;

    bool holds(QStringView slashWord) const;
};

/// Items of a body under the same modifiers. Modifiers that follow each other directly begin one
/// branch.
struct Branch {
    /// From the first of its modifiers to the end of its last item.
    Place place;
    Chain chain;
    /// The items after the modifiers.
    Range items;
};

/// The body of a statement or macro: its items and branches in the file's lists.
struct Body {
    Range items;
    Range branches;
};

enum class StatementKind : quint8 {
    /// BTN and a control.
    Button,
    /// BTN X and a number.
    FlagButton,
    /// DEF X and a number.
    FlagDefinition,
    /// An axis and what it does.
    Axis,
    Curve,
    Rate,
    ShiftButton,
    Disable,
    ThrottleRange,
    Use,
    /// MDEF, JSX, JSY, PORTB, SWAPTG.
    Legacy,
    /// Text before the first statement keyword.
    Unknown,
};

struct JoystickStatement {
    StatementKind kind = StatementKind::Unknown;
    /// From the keyword to the last character that is neither blank nor comment.
    Place place;
    Place keyword;
    /// The control, axis or flag that the statement defines; for USE the form's head words. Its
    /// length is 0 when it is missing.
    Place subject;
    /// For a USE statement of shape Tail: the rest of its line without comment and blanks.
    Place tail;
    /// For a USE statement the index of its form in useForms(); -1 when it has none of these, and
    /// for all other statements.
    int useForm = -1;
    Body body;
};

struct Macro {
    /// The line from its first character that is no blank, without comment and blanks at its end.
    Place place;
    /// Everything before the first "=", tabs removed, blanks trimmed.
    QString name;
    Place namePlace;
    Body body;
};

struct MacroHeading {
    QString title;
    Place place;
    /// Index of the next macro in the file; a heading without macros has the one of the next
    /// heading.
    int firstMacro = 0;
};

/// A certain mistake in one of the files.
struct Finding {
    /// A code of errorCodes().
    int code = 0;
    QString message;
    File file = File::Joystick;
    Place place;
};

/// A bracket without a partner.
struct StrayBracket {
    Place place;
    bool opening = false;
};

/// What both files have. All places are places in the text.
struct Source {
    QString text;
    QList<Item> items;
    QList<Branch> branches;
    /// The first of each body; further ones would only follow from it.
    QList<StrayBracket> strayBrackets;
    /// Every /I that follows an /O of its own level.
    QList<Place> lateS3;

    QStringView at(const Place &place) const
    {
        return QStringView(text).sliced(place.position, place.length);
    }
    QStringView at(const Item &item) const { return at(item.place); }
};

struct JoystickFile : Source {
    QList<JoystickStatement> statements;
};

struct MacroFile : Source {
    QList<Macro> macros;
    QList<MacroHeading> headings;
};

struct FilePair {
    JoystickFile joystick;
    MacroFile macro;
};

/// The model of the two texts, whose line ends are "\n". Linear in their length; never fails.
FilePair parsePair(const QString &joystickText, const QString &macroText);

/// The name in a USE MDEF statement.
struct MacroReference {
    /// Without quotes; may be empty.
    QString name;
    /// With quotes.
    Place place;
};
/// The macro file's name in the last USE MDEF statement; no value without such a statement.
std::optional<MacroReference> macroReference(const JoystickFile &joystick);

} // namespace zeph::language
