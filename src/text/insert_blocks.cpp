// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "text/insert_blocks.h"

#include "platform/core/file_io.h"
#include "platform/core/paths.h"
#include "platform/core/text1252.h"
#include "text/text_lines.h"

#include <QLocale>

#include <algorithm>

namespace zeph {

namespace {

constexpr qsizetype headingIndent = 10;
/// In any case when it is sought.
constexpr QStringView lastModified = u"Last modified:";
const QString emptyRem = remAndBlank.toString();
const QString titleRule = emptyRem + QString(46, u'#');
const QString titleIndent = emptyRem + u"   "_s;
const QString closingRem = u"Rem"_w.toString();

/// Tabs have another width in each program, so they become blanks.
QString withoutTabs(QString line)
{
    line.replace(u'\t', u' ');
    return withoutBlanksAtEnd(line).toString();
}

QStringList commentLines(QString comments)
{
    comments.replace(u"\r\n"_s, u"\n"_s);
    while (comments.endsWith(u'\n')) {
        comments.chop(1);
    }
    return comments.trimmed().isEmpty() ? QStringList() : comments.split(u'\n');
}

/// The lines with contents by section, without their closing Rem.
QList<QStringList> titleSections(const TitleFields &fields)
{
    QStringList file{ titleIndent + fields.fileName };
    if (!fields.game.isEmpty()) {
        file.append(titleIndent + u"    for "_s + fields.game);
    }
    const QStringList person{ titleIndent + u"by "_s + fields.person,
                              titleIndent + lastModified.toString() + u' ' + fields.lastModified,
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

QStringList headingBlock(const QString &heading, qsizetype longer)
{
    const QString rule = emptyRem + QString(heading.size() + longer, u'-');
    return { rule, emptyRem + QString(headingIndent, u' ') + heading, rule };
}

QString remStatement(const QString &text)
{
    return emptyRem + u' ' + text;
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

QString insertText(const language::Word &word, int delay)
{
    if (word.is(language::SlashRole)) {
        return word.text.toString();
    }
    constexpr int repeats = 2;
    return u"%1(%2)"_s.arg(word.text).arg(word.text == u"DLY"_w ? delay : repeats);
}

QString stampText(const QDateTime &when)
{
    return QLocale::c().toString(when, u"dd MMMM yyyy, h:mm ap"_s);
}

std::optional<Stamp> modifiedStamp(QStringView text, const QDateTime &when)
{
    const qsizetype hit = text.indexOf(lastModified, 0, Qt::CaseInsensitive);
    if (hit < 0) {
        return std::nullopt;
    }
    const qsizetype after = hit + lastModified.size();
    qsizetype lineEnd = text.indexOf(u'\n', after);
    if (lineEnd < 0) {
        lineEnd = text.size();
    }
    if (after == lineEnd) {
        return Stamp{ after, 0, u' ' + stampText(when) };
    }
    return Stamp{ after + 1, lineEnd - after - 1, stampText(when) };
}

qsizetype movedByStamp(const Stamp &stamp, qsizetype position)
{
    if (position >= stamp.start + stamp.length) {
        return position > stamp.start ? position + stamp.text.size() - stamp.length : position;
    }
    return std::min(position, stamp.start + stamp.text.size());
}

QStringList linesOfListFile(const QString &path)
{
    const auto bytes = readWholeFile(existingPath(path));
    if (!bytes) {
        return {};
    }
    QString text = fromText1252(*bytes);
    text.replace(u'\r', u'\n');
    QStringList lines;
    for (const QString &line : text.split(u'\n')) {
        const QString trimmed = line.trimmed();
        if (!trimmed.isEmpty()) {
            lines.append(trimmed);
        }
    }
    return lines;
}

} // namespace zeph
