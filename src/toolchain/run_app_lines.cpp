// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/run_app_lines.h"

#include "text/use_statements.h"

namespace zeph {

namespace {

constexpr QStringView head = u"use zeph run_app";
/// What no line that names an application falls below: the head, a blank and three characters.
constexpr qsizetype shortestLine = 20;
constexpr qsizetype commandAt = head.size() + 1;

QString trimmedRight(QString text)
{
    while (text.endsWith(u' ')) {
        text.chop(1);
    }
    return text;
}

QString withoutComment(const QString &command)
{
    const qsizetype rem = command.indexOf(u"rem "_s, 0, Qt::CaseInsensitive);
    return trimmedRight(rem < 0 ? command : command.first(rem));
}

WindowStyle styleOf(QChar digit)
{
    return digit >= u'0' && digit <= u'4' ? WindowStyle(digit.digitValue())
                                          : WindowStyle::MinimisedNoFocus;
}

std::optional<RunApp> runAppOf(QStringView raw)
{
    if (raw.size() < shortestLine || !raw.contains(u"use", Qt::CaseInsensitive)) {
        return std::nullopt;
    }
    const QString line = normalisedLine(raw);
    if (line.size() < shortestLine || !line.startsWith(head, Qt::CaseInsensitive)) {
        return std::nullopt;
    }
    RunApp app{ .command = withoutComment(line.sliced(commandAt)) };
    const qsizetype word = app.command.indexOf(u"window_style"_s, 0, Qt::CaseInsensitive);
    if (word >= 0) {
        app.style = styleOf(app.command.back());
        app.command = trimmedRight(app.command.first(word));
    }
    return app;
}

} // namespace

QList<RunApp> runAppLines(QStringView joystickText)
{
    QList<RunApp> apps;
    for (const QStringView line : joystickText.split(u'\n')) {
        if (const auto app = runAppOf(line)) {
            apps.append(*app);
        }
    }
    return apps;
}

} // namespace zeph
