// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/statement_check.h"

#include "composer/generators/parted_statement.h"
#include "language/checker.h"
#include "language/scan.h"
#include "language/words.h"
#include "text/text_lines.h"

namespace zeph {

namespace {

using language::Item;
using language::ItemKind;
using language::JoystickFile;
using language::JoystickStatement;
using language::Place;
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

/// The line of another statement for the same control; 0 when there is none.
int lineOfOther(const JoystickFile &file, const JoystickStatement &statement)
{
    for (const JoystickStatement &other : file.statements) {
        if (other.place.position != statement.place.position && other.kind == statement.kind
            && other.subject.length > 0
            && file.at(other.subject).compare(file.at(statement.subject), Qt::CaseInsensitive)
                == 0) {
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
        if (!definesControl(statement.kind) || statement.subject.length == 0) {
            continue;
        }
        if (const int line = lineOfOther(pair.joystick, statement)) {
            findings.append(u"Line %1 has a statement for %2 already"_s.arg(line).arg(
                pair.joystick.at(statement.subject)));
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
