// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "text/macro_table.h"

#include "language/words.h"
#include "platform/core/text1252.h"
#include "text/text_lines.h"

namespace zeph {

namespace {

QStringView withoutLeadingBlanks(QStringView line)
{
    while (line.startsWith(u' ')) {
        line = line.mid(1);
    }
    return line;
}

QStringView withoutBlanksAround(QStringView line)
{
    return withoutBlanksAtEnd(withoutLeadingBlanks(line));
}

bool isUsable(QStringView line)
{
    const bool comment = line.compare(u"Rem"_w, Qt::CaseInsensitive) == 0;
    const bool switchedOff = line.startsWith(u'~') && (line.size() == 1 || line.contains(u'='));
    return !line.isEmpty() && !comment && !switchedOff && line != u"//";
}

bool isRule(QStringView line)
{
    return line.startsWith(remAndBlank, Qt::CaseInsensitive)
        && line.sliced(remAndBlank.size()).startsWith(u"--");
}

QString headingOf(QStringView line)
{
    QString heading = withoutBlanksAround(line.mid(3)).toString().toLower();
    if (!heading.isEmpty()) {
        heading[0] = heading[0].toUpper();
    }
    return heading;
}

bool endsLine(QChar character)
{
    return QStringView(u"\r\n\v\f\u2028\u2029").contains(character);
}

bool hasMeaning(QStringView word)
{
    return language::rowOf(word).isKnown() || language::flagNumber(word)
        || language::isDirectXButton(word);
}

} // namespace

QStringList usableMacroLines(QStringView text)
{
    QStringList lines;
    for (const QStringView each : text.split(u'\n')) {
        const QStringView line = withoutLeadingBlanks(each);
        if (isUsable(line)) {
            lines.append(line.toString());
        }
    }
    return lines;
}

MacroTable extractMacros(const QStringList &lines)
{
    MacroTable table{ lines, { u"All"_s }, { {} } };
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (lines[i].startsWith(remAndBlank, Qt::CaseInsensitive)) {
            if (i + 2 < lines.size() && isRule(lines[i]) && isRule(lines[i + 2])) {
                table.MacroHeadings.append(headingOf(lines[i + 1]));
                table.names.append(QStringList());
                i += 2;
            }
        } else if (lines[i].contains(u'=')) {
            const QString name = macroName(lines[i]);
            table.names.first().append(name);
            if (table.names.size() > 1) {
                table.names.last().append(name);
            }
        }
    }
    return table;
}

QString macroName(QStringView line)
{
    const qsizetype equals = line.indexOf(u'=');
    QString name = line.left(equals < 0 ? line.size() : equals).toString();
    name.remove(u'\t');
    return withoutBlanksAround(name).toString();
}

std::optional<QString> macroKeys(const MacroTable &table, const QString &name)
{
    const QString head = name + u" ="_s;
    for (const QString &line : table.MacroLines) {
        if (line.contains(name, Qt::CaseInsensitive)
            && normalisedLine(line).startsWith(head, Qt::CaseInsensitive)) {
            return line;
        }
    }
    return std::nullopt;
}

QString macroCounts(const MacroTable &table)
{
    if (table.MacroHeadings.isEmpty()) {
        return u"No macro file analysed"_s;
    }
    QString counts =
        u"Contains "_s + QString::number(table.names.first().size()) + u" macros and "_s;
    if (table.MacroHeadings.size() > 1) {
        counts += QString::number(table.MacroHeadings.size() - 1) + u" macro headings"_s;
    }
    return counts;
}

QString withoutRefused(QString typed)
{
    while (!typed.isEmpty() && endsLine(typed.back())) {
        typed.chop(1);
    }
    while (!typed.isEmpty() && endsLine(typed.front())) {
        typed.remove(0, 1);
    }
    for (QChar &each : typed) {
        // Reading a file deletes the tabs in names, so a name with a tab would never be found.
        if (language::forbiddenMacroNameCharacters.contains(each) || endsLine(each)
            || each.category() == QChar::Other_Control) {
            each = u'_';
        }
    }
    return typed;
}

QString inWords(NameFault fault, const QString &name)
{
    switch (fault) {
    case NameFault::Exists:
        return u"There's already a macro called "_s + name + u'.';
    case NameFault::LanguageWord:
        return name
            + u" means something of its own in joystick and macro files, so a macro can't be "
              u"called "
              "that."_s;
    case NameFault::SwitchedOff:
        return u"A line that begins with ~ is switched off, so a macro's name can't begin with it."_s;
    case NameFault::NotInCodePage:
        return u"Joystick and macro files can't hold the character "_s + name[firstNot1252(name)]
            + u'.';
    default:
        return {};
    }
}

NameFault faultOfNewName(const QString &oldName, const QString &newName, const QStringList &taken)
{
    if (newName == oldName) {
        return NameFault::Same;
    }
    if (newName.startsWith(u'~')) {
        return NameFault::SwitchedOff;
    }
    if (firstNot1252(newName) >= 0) {
        return NameFault::NotInCodePage;
    }
    if (hasMeaning(newName)) {
        return NameFault::LanguageWord;
    }
    const bool isOther = newName.compare(oldName, Qt::CaseInsensitive) != 0;
    return isOther && taken.contains(newName, Qt::CaseInsensitive) ? NameFault::Exists
                                                                   : NameFault::None;
}

} // namespace zeph
