// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/run_app_lines.h"

#include "text/text_lines.h"

namespace zeph {

namespace {

constexpr QStringView head = u"USE ZEPH RUN_APP"_w;
/// What no line that names an application falls below: the head, a blank and three characters.
constexpr qsizetype shortestLine = 20;
constexpr qsizetype commandAt = head.size() + 1;

WindowStyle styleOf(QChar digit)
{
    return digit >= u'0' && digit <= u'4' ? WindowStyle(digit.digitValue())
                                          : WindowStyle::MinimisedNoFocus;
}

std::optional<RunApp> runAppOf(QStringView raw)
{
    if (raw.size() < shortestLine || !raw.contains(u"USE"_w, Qt::CaseInsensitive)) {
        return std::nullopt;
    }
    const QString line = normalisedLine(raw);
    if (line.size() < shortestLine || !line.startsWith(head, Qt::CaseInsensitive)) {
        return std::nullopt;
    }
    const QStringView command = QStringView(line).sliced(commandAt);
    RunApp app{ .command = withoutBlanksAtEnd(beforeRem(command)).toString() };
    const qsizetype word = app.command.indexOf(u"WINDOW_STYLE"_w, 0, Qt::CaseInsensitive);
    if (word >= 0) {
        app.style = styleOf(app.command.back());
        app.command = withoutBlanksAtEnd(QStringView(app.command).first(word)).toString();
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
