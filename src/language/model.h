// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The model of a pair of files: what can be understood of a joystick file and its macro file, each
// part with its place. Any text has a model; what is not understood is kept as unknown. All lists
// are flat and in text order, and parts point into them by index, so that a deep or broken text
// costs no more than a plain one.

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
    /// Not understood: a key, a macro of another file or a slip.
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
    /// A word with brackets behind it; Item::reference is its index in words.
    Call,
    /// Brackets with what stands between them.
    Group,
    Comma,
    /// A slash modifier; Item::reference is its index in slashModifiers.
    Slash,
};

/// A word, a bracket group or a separator of a body. A group's or call's contents follow it in the
/// list, up to endItem.
struct Item {
    Place place;
    ItemKind kind = ItemKind::Unknown;
    /// A macro's use whose word is also a key's name or a word of the language: which of the two
    /// is meant is not certain.
    bool alsoKey = false;
    /// For a Group or Call: the closing bracket was found.
    bool closed = false;
    /// The group or call around it, or -1.
    int parent = -1;
    /// The index behind its contents; its own index + 1 without contents.
    int endItem = 0;
    int reference = -1;
};

/// One slash modifier in force for a branch.
struct Link {
    /// Index in slashModifiers.
    int modifier = -1;
    /// Its item.
    int item = -1;

    bool operator==(const Link &) const = default;
};

/// The modifiers in force, outermost first. A modifier replaces the one of its own level and drops
/// what stood further in; dogfight, S3, toggle, press/release and repeat are the levels.
struct Chain {
    std::array<Link, 5> links;
    int size = 0;

    bool holds(QStringView slashWord) const;
};

/// A stretch of a body under the same modifiers. Modifiers written in one run open one branch.
struct Branch {
    /// From the first modifier of the run to the end of the last item.
    Place place;
    Chain chain;
    /// The items behind the modifiers.
    Range items;
};

/// The items and branches of a statement's or macro's body in its file's lists.
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

struct Statement {
    StatementKind kind = StatementKind::Unknown;
    /// From the keyword to the last character that is neither blank nor comment.
    Place place;
    Place keyword;
    /// The control, axis or flag the statement is about; for USE the form's head words. Length 0
    /// when it is missing.
    Place subject;
    /// For a USE statement with a tail: the rest of its line without comment and blanks.
    Place tail;
    /// Index in useForms(), -1 for any other statement.
    int useForm = -1;
    Body body;
};

struct Macro {
    /// The whole line without blanks and comment at its end.
    Place place;
    /// Everything before the first "=", tabs removed, blanks trimmed.
    QString name;
    Place namePlace;
    Body body;
};

struct Heading {
    QString title;
    Place place;
    /// Index of the first macro that stands under it, perhaps that of the next heading.
    int firstMacro = 0;
};

/// Something that is certainly wrong.
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

/// What both files have. The places look into text.
struct Source {
    QString text;
    QList<Item> items;
    QList<Branch> branches;
    /// At most one a body, the first: what follows it is a consequence.
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
    QList<Statement> statements;
};

struct MacroFile : Source {
    QList<Macro> macros;
    QList<Heading> headings;
};

struct FilePair {
    JoystickFile joystick;
    MacroFile macro;
};

/// The model of the two texts, whose line ends are "\n". Linear in their length; never fails.
FilePair parsePair(const QString &joystickText, const QString &macroText);

/// The joystick file's macro file as its last USE MDEF statement names it, without quotes; empty
/// without one. The finding's place is that of the name.
struct MacroReference {
    QString name;
    Place place;
};
std::optional<MacroReference> macroReference(const JoystickFile &joystick);

} // namespace zeph::language
