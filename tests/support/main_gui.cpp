// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "tests/support/watch.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QFont>
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

/// The offscreen platform of Windows takes the fonts of a folder and knows none by another name, so
/// that any of them would be taken for those that are not there.
void nameFonts()
{
#ifdef Q_OS_WIN
    const QString sans = QStringLiteral("Liberation Sans");
    QFont::insertSubstitution(QStringLiteral("Arial"), sans);
    QFont::insertSubstitution(QStringLiteral("Courier New"), QStringLiteral("Liberation Mono"));
    QFont::insertSubstitution(QStringLiteral("Times New Roman"),
                              QStringLiteral("Liberation Serif"));
    constexpr int pointSize = 9;
    QApplication::setFont(QFont(sans, pointSize));
#endif
}

} // namespace

int main(int argc, char **argv)
{
    testing::InitGoogleMock(&argc, argv);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication application(argc, argv);
    nameFonts();
    zeph::test::failOnWarnings();
    watchForModals();
    return RUN_ALL_TESTS();
}
