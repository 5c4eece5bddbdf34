// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "options.h"

#include "platform/core/stand_in.h"

#include <QCoreApplication>
#include <QProcessEnvironment>
#include <QTextStream>
#include <QThread>

#include <cstdio>

namespace zeph::standin {

namespace {

std::optional<int> number(const QString &text)
{
    bool ok = false;
    const int value = text.trimmed().toInt(&ok);
    return ok ? std::optional(value) : std::nullopt;
}

} // namespace

Options optionsFrom(const QProcessEnvironment &environment)
{
    Options options;
    options.delayMs =
        std::max(0, number(environment.value(u"ZEPH_STANDIN_DELAY_MS"_s)).value_or(0));
    options.silent = environment.value(u"ZEPH_STANDIN_SILENT"_s) == u"1";
    const QStringList fail = environment.value(u"ZEPH_STANDIN_FAIL"_s).split(u':');
    if (const std::optional<int> code = number(fail.value(0)))
        options.fail = { *code, number(fail.value(1)).value_or(0) };
    options.axes = number(environment.value(u"ZEPH_STANDIN_AXES"_s));
    options.buttons = number(environment.value(u"ZEPH_STANDIN_BUTTONS"_s));
    return options;
}

QString introduction(QStringView tool)
{
    return u"%1: %2."_s.arg(tool, QLatin1String(standInMark));
}

void waitFor(const Options &options)
{
    if (options.delayMs > 0)
        QThread::msleep(static_cast<unsigned long>(options.delayMs));
}

int runTool(int argc, char *argv[], Tool tool)
{
    const QCoreApplication application(argc, argv);
    const Outcome outcome =
        tool(application.arguments().sliced(1), QCoreApplication::applicationDirPath() + u'/',
             optionsFrom(QProcessEnvironment::systemEnvironment()));
    QTextStream out(stdout);
    for (const QString &line : outcome.lines)
        out << line << '\n';
    return outcome.exitCode;
}

} // namespace zeph::standin
