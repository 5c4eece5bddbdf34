// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "text/use_statements.h"

#include "language/file_kinds.h"
#include "text/text_lines.h"

#include <QList>

#include <array>

namespace zeph {

namespace {

struct Head {
    QStringView words;
    QString UseStatements::*value;
};

constexpr std::array heads = {
    Head{ u"USE ZEPH GRAPHIC"_w, &UseStatements::ZephGraphic },
    Head{ u"USE ZEPH README"_w, &UseStatements::ZephReadme },
    Head{ u"USE PROFILE"_w, &UseStatements::ProfileName },
};

constexpr qsizetype shortestLine = 10;

QString valueAfter(const QString &line, qsizetype headLength)
{
    return beforeRem(QStringView(line).sliced(headLength)).trimmed().toString();
}

QString profileName(QString value)
{
    const qsizetype bracket = value.indexOf(u'(');
    if (bracket >= 0) {
        value = value.left(bracket).trimmed();
    }
    return value.isEmpty() ? value : withProfileExtension(value);
}

} // namespace

UseStatements readUseStatements(QStringView joystickText)
{
    UseStatements found;
    for (const QStringView raw : joystickText.split(u'\n')) {
        if (raw.size() < shortestLine || !raw.contains(u"USE"_w, Qt::CaseInsensitive)) {
            continue;
        }
        const QString line = normalisedLine(raw);
        for (const Head &head : heads) {
            if (line.startsWith(head.words, Qt::CaseInsensitive)) {
                found.*head.value = valueAfter(line, head.words.size());
            }
        }
    }
    found.ProfileName = profileName(found.ProfileName);
    return found;
}

std::optional<MdefReference> lastMdefReference(QStringView joystickText)
{
    constexpr QStringView words = u"USE MDEF"_w;
    const qsizetype hit = joystickText.lastIndexOf(words, -1, Qt::CaseInsensitive);
    if (hit < 0) {
        return std::nullopt;
    }
    const qsizetype after = hit + words.size();
    qsizetype lineEnd = joystickText.indexOf(u'\n', after);
    if (lineEnd < 0) {
        lineEnd = joystickText.size();
    }
    const qsizetype start = std::min(after + 1, lineEnd);
    const QStringView line = joystickText.sliced(start, lineEnd - start);
    return MdefReference{ line.toString(), withoutBlanksAtEnd(beforeRem(line)).toString() };
}

QString macroNameFor(const MdefReference &reference, QStringView joystickName)
{
    const QString extension = macroExtensionFor(joystickName);
    if (lastThree(reference.cut) == extension) {
        return reference.cut;
    }
    return reference.wholeLine + u'.' + extension;
}

RunAppTail runAppTail(QStringView rest)
{
    const qsizetype clause = rest.indexOf(u"WINDOW_STYLE"_w, 0, Qt::CaseInsensitive);
    if (clause < 0) {
        return { rest, {} };
    }
    RunAppTail tail{ withoutBlanksAtEnd(rest.first(clause)), {} };
    const QChar style = rest.back();
    if (style >= u'0' && style <= u'4') {
        tail.style = style.digitValue();
    }
    return tail;
}

} // namespace zeph
