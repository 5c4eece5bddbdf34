// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/statement_check.h"

#include "language/checker.h"
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
    QStringList lines;
    const QStringView raw = file.at(found->place);
    bool hasComments = false;
    forEachLine(raw, [&](QStringView line) {
        const QStringView own = withoutBlanksAtEnd(beforeRem(line));
        hasComments = hasComments || remAt(line) >= 0;
        if (!own.isEmpty()) {
            lines.append(own.toString());
        }
    });
    return ReadStatement{ int(found->place.position), int(found->place.length), lines.join(u'\n'),
                          hasComments };
}

} // namespace zeph
