// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "text/insert_blocks.h"

#include <algorithm>
#include <array>

namespace zeph {

namespace {

constexpr qsizetype headingIndent = 10;
const QString titleRule = u"Rem "_s + QString(46, u'#');
const QString emptyRem = u"Rem "_s;
const QString titleIndent = u"Rem    "_s;
const QString closingRem = u"Rem"_s;

// clang-format off
constexpr std::array words = {
    SlashWord{ u"/U", u"Dogfight switch up", true },
    SlashWord{ u"/M", u"Dogfight switch in the middle", true },
    SlashWord{ u"/D", u"Dogfight switch down", true },
    SlashWord{ u"/I", u"S3 held in", true },
    SlashWord{ u"/O", u"S3 out", true },
    SlashWord{ u"/P", u"When the control is pressed", true },
    SlashWord{ u"/R", u"When the control is released", true },
    SlashWord{ u"/T", u"One statement a press, in turn", true },
    SlashWord{ u"/A", u"Repeats while the control is held", true },
    SlashWord{ u"/H", u"Holds the key as long as the control", true },
    SlashWord{ u"", u"Waits so many milliseconds", false },
    SlashWord{ u"RPT(2)", u"Repeats what follows", false },
};
// clang-format on

/// Lines of the same width in every font of fixed pitch.
QString withoutTabs(QString line)
{
    line.replace(u'\t', u' ');
    while (line.endsWith(u' ')) {
        line.chop(1);
    }
    return line;
}

QStringList commentLines(QString comments)
{
    comments.replace(u"\r\n"_s, u"\n"_s);
    while (comments.endsWith(u'\n')) {
        comments.chop(1);
    }
    return comments.trimmed().isEmpty() ? QStringList() : comments.split(u'\n');
}

/// The field lines by section, still open on the right.
QList<QStringList> titleSections(const TitleFields &fields)
{
    QStringList file{ titleIndent + fields.fileName };
    if (!fields.game.isEmpty()) {
        file.append(titleIndent + u"    for "_s + fields.game);
    }
    const QStringList person{ titleIndent + u"by "_s + fields.person,
                              titleIndent + u"Last modified: "_s + fields.lastModified,
                              titleIndent + u"Controllers: "_s + fields.controllers };
    QList<QStringList> sections{ file, person };
    QStringList comments = commentLines(fields.comments);
    for (QString &line : comments) {
        line.prepend(titleIndent);
    }
    if (!comments.isEmpty()) {
        sections.append(comments);
    }
    return sections;
}

} // namespace

QStringList headingBlock(const QString &heading)
{
    const QString rule = u"Rem "_s + QString(heading.size(), u'-');
    return { rule, u"Rem "_s + QString(headingIndent, u' ') + heading, rule };
}

QString remStatement(const QString &text)
{
    return u"Rem "_s + u' ' + text;
}

QStringList titleBlock(const TitleFields &fields)
{
    QList<QStringList> sections = titleSections(fields);
    qsizetype column = titleRule.size() - closingRem.size();
    for (QStringList &section : sections) {
        for (QString &line : section) {
            line = withoutTabs(line);
            column = std::max(column, line.size() + 1);
        }
    }
    QStringList block{ titleRule };
    for (const QStringList &section : std::as_const(sections)) {
        block.append(emptyRem);
        for (const QString &line : section) {
            block.append(line.leftJustified(column) + closingRem);
        }
    }
    block.append(titleRule);
    return block;
}

std::span<const SlashWord> slashWords()
{
    return words;
}

QString slashText(const SlashWord &word, int delay)
{
    const QString text = QString::fromUtf16(word.text);
    return text.isEmpty() ? u"DLY(%1)"_s.arg(delay) : text;
}

} // namespace zeph
