// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "language/macro_parser.h"

#include "language/body_parser.h"
#include "language/joystick_parser.h"
#include "language/words.h"

namespace zeph::language {

namespace {

constexpr QStringView rem = u"Rem"_w;

QStringView wholeLine(const MacroFile &file, const Line &line)
{
    return QStringView(file.text).sliced(line.first, line.end - line.first);
}

bool isDropped(QStringView line)
{
    return line.isEmpty() || sameWord(line, rem) || line == u"~" || line == u"//"
        || (line.startsWith(u'~') && line.contains(u'='));
}

bool isRule(QStringView line)
{
    return line.startsWith(rem, Qt::CaseInsensitive) && line.sliced(rem.size()).startsWith(u" --");
}

bool isComment(QStringView line)
{
    return line.startsWith(rem, Qt::CaseInsensitive)
        && (line.size() == rem.size() || !isNameCharacter(line[rem.size()]));
}

// All lines but the dropped ones. A heading is three neighbours in this list, even with empty lines
// between them in the file.
std::vector<Line> usableLines(const MacroFile &file)
{
    std::vector<Line> lines;
    LineReader reader(file.text);
    Line line;
    while (reader.next(line)) {
        if (!isDropped(wholeLine(file, line)))
            lines.push_back(line);
    }
    return lines;
}

void addHeading(MacroFile &file, const Line &middle)
{
    MacroHeading heading;
    const QStringView line = wholeLine(file, middle);
    heading.title = line.sliced(std::min(rem.size(), line.size())).trimmed().toString();
    heading.place = { middle.first, line.size(), middle.number };
    heading.firstMacro = int(file.macros.size());
    file.headings.append(heading);
}

void addMacro(MacroFile &file, const Line &line)
{
    const QStringView text(file.text);
    const qsizetype equals = text.indexOf(u'=', line.first);
    const QStringView before = text.sliced(line.first, equals - line.first);
    Macro macro;
    macro.name = before.toString().remove(u'\t').trimmed();
    macro.namePlace = { line.first, trimmedEnd(before), line.number };
    const qsizetype end = std::max(line.codeEnd, equals + 1);
    macro.place = { line.first, end - line.first, line.number };
    file.macros.append(macro);
}

// Keys in brackets may go on over several lines; a line with "=" ends them, because it is a macro.
void readLinesInBrackets(BodyParser &parser, const MacroFile &file, const Place &macro)
{
    const QStringView text(file.text);
    const qsizetype lineEnd = text.indexOf(u'\n', macro.end());
    if (lineEnd < 0)
        return;
    LineReader reader(text, lineEnd, macro.line);
    Line line;
    while (parser.isInBrackets() && reader.next(line)) {
        const QStringView whole = wholeLine(file, line);
        if (isDropped(whole) || isComment(whole))
            continue;
        if (whole.contains(u'='))
            return;
        parser.read(line.first, line.codeEnd, line.number);
    }
}

} // namespace

void findMacros(MacroFile &file)
{
    const std::vector<Line> lines = usableLines(file);
    for (size_t at = 0; at < lines.size(); ++at) {
        const QStringView line = wholeLine(file, lines[at]);
        if (isRule(line) && at + 2 < lines.size() && isRule(wholeLine(file, lines[at + 2]))) {
            addHeading(file, lines[at + 1]);
            at += 2;
        } else if (!isComment(line) && line.contains(u'=')) {
            addMacro(file, lines[at]);
        }
    }
}

WordMap macroIndex(const MacroFile &file)
{
    WordMap index;
    for (int macro = 0; macro < int(file.macros.size()); ++macro) {
        const QString &name = file.macros[macro].name;
        if (!name.isEmpty())
            index.insert(name, macro);
    }
    return index;
}

void parseMacroBodies(MacroFile &file, const WordMap &macros)
{
    BodyParser parser(file, macros);
    const QStringView text(file.text);
    for (Macro &macro : file.macros) {
        parser.begin(BodyParser::Holds::Keys);
        const qsizetype from = text.indexOf(u'=', macro.place.position) + 1;
        const qsizetype end = macro.place.end();
        // A body of one bracket alone means the key.
        const qsizetype first = skipBlanks(text.first(end), from);
        if (first + 1 == end && isBracketOrComma(text[first]))
            parser.readKey(first, macro.place.line);
        else
            parser.read(from, end, macro.place.line);
        readLinesInBrackets(parser, file, macro.place);
        macro.body = parser.finish();
    }
}

FilePair parsePair(const QString &joystickText, const QString &macroText)
{
    FilePair pair;
    pair.joystick.text = joystickText;
    pair.macro.text = macroText;
    findMacros(pair.macro);
    const WordMap macros = macroIndex(pair.macro);
    parseMacroBodies(pair.macro, macros);
    parseJoystick(pair.joystick, macros);
    return pair;
}

} // namespace zeph::language
