// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "text/use_statements.h"

#include <QList>

#include <array>

namespace zeph {

namespace {

struct Head {
    QStringView words;
    QString UseStatements::*value;
};

constexpr std::array heads = {
    Head{ u"use zeph graphic", &UseStatements::ZephGraphic },
    Head{ u"use zeph readme", &UseStatements::ZephReadme },
    Head{ u"use profile", &UseStatements::ProfileName },
};

constexpr qsizetype shortestLine = 10;

QString valueBehind(const QString &line, qsizetype headLength)
{
    QString value = line.sliced(headLength);
    const qsizetype rem = value.indexOf(u"rem "_s, 0, Qt::CaseInsensitive);
    return (rem < 0 ? value : value.left(rem)).trimmed();
}

QString profileName(QString value)
{
    const qsizetype bracket = value.indexOf(u'(');
    if (bracket >= 0) {
        value = value.left(bracket).trimmed();
    }
    if (!value.isEmpty() && !value.endsWith(u".tmc"_s, Qt::CaseInsensitive)) {
        value += u".tmc"_s;
    }
    return value;
}

} // namespace

QString normalisedLine(QStringView line)
{
    QString result;
    result.reserve(line.size());
    for (const QChar c : line) {
        const bool blank = c == u' ' || c == u'\t';
        if (!blank) {
            result += c;
        } else if (!result.isEmpty() && !result.endsWith(u' ')) {
            result += u' ';
        }
    }
    return result;
}

UseStatements readUseStatements(QStringView joystickText)
{
    UseStatements found;
    for (const QStringView raw : joystickText.split(u'\n')) {
        if (raw.size() < shortestLine || !raw.contains(u"use", Qt::CaseInsensitive)) {
            continue;
        }
        const QString line = normalisedLine(raw);
        for (const Head &head : heads) {
            if (line.startsWith(head.words, Qt::CaseInsensitive)) {
                found.*head.value = valueBehind(line, head.words.size());
            }
        }
    }
    found.ProfileName = profileName(found.ProfileName);
    return found;
}

} // namespace zeph
