// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/statement_check.h"

#include "composer/generators/parted_statement.h"
#include "language/checker.h"
#include "language/scan.h"
#include "language/use_forms.h"
#include "language/words.h"
#include "text/text_lines.h"

namespace zeph {

namespace {

using language::Item;
using language::ItemKind;
using language::JoystickFile;
using language::JoystickStatement;
using language::Place;
using language::sameWord;
using language::StatementKind;

bool isWithin(const Place &place, const Landing &landing)
{
    return place.position >= landing.start && place.position < landing.start + landing.length;
}

bool definesControl(StatementKind kind)
{
    return kind == StatementKind::Button || kind == StatementKind::FlagButton
        || kind == StatementKind::FlagDefinition || kind == StatementKind::Axis;
}

/// Whether an item is where keys and macros are, and not an argument such as TRIM's "2-".
bool isAmongKeys(const JoystickFile &file, const Item &item)
{
    for (int parent = item.parent; parent >= 0; parent = file.items[parent].parent) {
        const Item &call = file.items[parent];
        if (call.kind == ItemKind::Call
            && language::words[size_t(call.reference)].arguments != language::CallShape::Keys) {
            return false;
        }
    }
    return true;
}

void addUnknownWords(const JoystickFile &file, const JoystickStatement &statement,
                     QStringList &findings)
{
    for (int i = statement.body.items.first; i < statement.body.items.end; ++i) {
        const Item &item = file.items[i];
        if (item.kind == ItemKind::Unknown && isAmongKeys(file, item)) {
            const QString told =
                u"%1 is neither a key nor a macro of the macro file"_s.arg(file.at(item));
            if (!findings.contains(told)) {
                findings.append(told);
            }
        }
    }
}

/// What a statement settles: for a control or axis, one thing of it.
struct Settled {
    StatementKind kind = StatementKind::Unknown;
    /// Empty for a statement that a file may have several times.
    QStringView control = {};
    /// Of a USE statement, which of its kinds it is: "AS", "FORCED_CORNERS".
    QStringView what = {};

    bool isSameAs(const Settled &other) const
    {
        return kind == other.kind && sameWord(control, other.control) && sameWord(what, other.what);
    }
};

/// The first two words of a text.
Settled useOf(QStringView words)
{
    const qsizetype end = language::nameEnd(words, 0);
    const qsizetype next = language::skipBlanks(words, end);
    return { StatementKind::Use, words.first(end),
             words.sliced(next, language::nameEnd(words, next) - next) };
}

Settled settledByUse(const JoystickFile &file, const JoystickStatement &statement)
{
    if (statement.useForm >= 0) {
        const language::UseForm &form = language::useForms()[size_t(statement.useForm)];
        const bool isOfControl = form.shape == language::UseShape::Role
            || form.head.endsWith(language::sensitivityEnding);
        return isOfControl ? useOf(form.head) : Settled();
    }
    const language::Range items = statement.body.items;
    if (items.isEmpty()) {
        return {};
    }
    const qsizetype from = file.items[items.first].place.position;
    const Settled use = useOf(QStringView(file.text).first(statement.place.end()).sliced(from));
    const bool isOfControl = sameWord(use.what, u"AS"_w) || sameWord(use.what, u"FORCED_CORNERS"_w);
    return isOfControl ? use : Settled();
}

Settled settledBy(const JoystickFile &file, const JoystickStatement &statement)
{
    if (statement.kind == StatementKind::Use) {
        return settledByUse(file, statement);
    }
    return definesControl(statement.kind) ? Settled{ statement.kind, file.at(statement.subject) }
                                          : Settled();
}

/// The line of another statement that settles the same; 0 when there is none.
int lineOfOther(const JoystickFile &file, const JoystickStatement &statement)
{
    const Settled settled = settledBy(file, statement);
    if (settled.control.isEmpty()) {
        return 0;
    }
    for (const JoystickStatement &other : file.statements) {
        if (other.place.position != statement.place.position
            && settledBy(file, other).isSameAs(settled)) {
            return other.place.line;
        }
    }
    return 0;
}

ReadStatement readOf(QStringView text, qsizetype start, qsizetype length)
{
    QStringList lines;
    bool hasComments = false;
    forEachLine(text.sliced(start, length), [&](QStringView line) {
        const QStringView own = withoutBlanksAtEnd(beforeRem(line));
        hasComments = hasComments || remAt(line) >= 0;
        if (!own.isEmpty()) {
            lines.append(own.toString());
        }
    });
    return { int(start), int(length), lines.join(u'\n'), hasComments };
}

} // namespace

QStringList findingsOf(const Landing &landing, const QString &macroText)
{
    const language::FilePair pair = language::parsePair(landing.text, macroText);
    QStringList findings;
    for (const language::Finding &finding : language::check(pair)) {
        if (finding.file == language::File::Joystick && isWithin(finding.place, landing)) {
            findings.append(finding.message);
        }
    }
    for (const JoystickStatement &statement : pair.joystick.statements) {
        if (!isWithin(statement.place, landing)) {
            continue;
        }
        if (definesControl(statement.kind)) {
            addUnknownWords(pair.joystick, statement, findings);
        }
        if (const int line = lineOfOther(pair.joystick, statement)) {
            findings.append(u"Line %1 has a statement for %2 already"_s.arg(line).arg(
                settledBy(pair.joystick, statement).control));
        }
    }
    return findings;
}

std::optional<ReadStatement> statementAt(const QString &joystickText, int position)
{
    const QStringView text(joystickText);
    const qsizetype lineStart = text.first(position).lastIndexOf(u'\n') + 1;
    const qsizetype lineBreak = text.indexOf(u'\n', position);
    const qsizetype lineEnd = lineBreak < 0 ? text.size() : lineBreak;
    const JoystickFile file = language::parsePair(joystickText, {}).joystick;
    const JoystickStatement *found = nullptr;
    for (const JoystickStatement &statement : file.statements) {
        if (statement.kind != StatementKind::Unknown && statement.place.position <= lineEnd
            && statement.place.end() >= lineStart) {
            found = &statement;
        }
    }
    if (!found) {
        return {};
    }
    return readOf(text, found->place.position, found->place.length);
}

QList<ReadStatement> readableAt(const QString &joystickText, int position)
{
    const auto whole = statementAt(joystickText, position);
    if (!whole) {
        return {};
    }
    QList<ReadStatement> readable{ *whole };
    const QStringView text(joystickText);
    const QStringView statement = text.sliced(whole->start, whole->length);
    const auto add = [&](const Place &place) {
        const ReadStatement piece = readOf(text, whole->start + place.position, place.length);
        const auto isSame = [&piece](const ReadStatement &other) {
            return other.start == piece.start && other.length == piece.length;
        };
        if (std::ranges::none_of(readable, isSame)) {
            readable.append(piece);
        }
    };
    const qsizetype at = std::clamp(position - whole->start, 0, whole->length);
    // The blanks at a line's start belong to the half that begins after them.
    const qsizetype afterBlanks = language::skipBlanks(statement, at);
    const QList<Place> halves = statementHalves(statement);
    const auto half =
        std::find_if(halves.rbegin(), halves.rend(),
                     [afterBlanks](const Place &each) { return each.position <= afterBlanks; });
    if (half != halves.rend()) {
        add(*half);
    }
    if (const auto call = callAt(statement, at)) {
        add(*call);
    }
    return readable;
}

} // namespace zeph
