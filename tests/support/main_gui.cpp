// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "tests/support/watch.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QTimer>
#include <QWidget>

namespace {

/// A modal window that nobody answers would hang the suite: after a while it is told and closed.
void watchForModals()
{
    constexpr int patienceMs = 20000;
    static QWidget *seen = nullptr;
    auto *timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [] {
        QWidget *modal = QApplication::activeModalWidget();
        if (modal && modal == seen) {
            ADD_FAILURE() << "left open: " << modal->windowTitle().toStdString();
            modal->close();
        }
        seen = modal;
    });
    timer->start(patienceMs);
}

} // namespace

int main(int argc, char **argv)
{
    testing::InitGoogleMock(&argc, argv);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication application(argc, argv);
    zeph::test::failOnWarnings();
    watchForModals();
    return RUN_ALL_TESTS();
}
