// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "tests/support/watch.h"

#include <gtest/gtest.h>

#include <QString>
#include <QtGlobal>

namespace zeph::test {

namespace {

void handleMessage(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    const QByteArray line = text.toLocal8Bit();
    fprintf(stderr, "%s\n", line.constData());
    // The offscreen platform says this of itself at windows without a screen of their own.
    if (type == QtDebugMsg || type == QtInfoMsg
        || text.startsWith(QLatin1String("This plugin does not support"))) {
        return;
    }
    ADD_FAILURE() << "run-time warning: " << line.constData();
}

} // namespace

void failOnWarnings()
{
    qInstallMessageHandler(handleMessage);
}

} // namespace zeph::test
