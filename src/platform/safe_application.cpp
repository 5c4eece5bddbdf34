// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/safe_application.h"

#include "platform/core/base.h"
#include "platform/handlers.h"

#include <QScopedValueRollback>

#include <exception>

namespace zeph {

bool FallGuard::run(const std::function<bool()> &handler)
{
    try {
        return handler();
    } catch (const std::exception &error) {
        fall(QString::fromLocal8Bit(error.what()));
    } catch (...) {
        fall(u"Unknown failure"_s);
    }
    return true;
}

void FallGuard::fall(const QString &reason)
{
    if (m_falling) {
        return;
    }
    const QScopedValueRollback<bool> falling(m_falling, true);
    try {
        if (dialogs) {
            tellEscaped(*dialogs, reason);
        }
        if (lastResort) {
            lastResort();
        }
    } catch (...) {
        // There is nothing left to try; the program goes on as well as it can.
    }
}

SafeApplication::SafeApplication(int &argc, char **argv) : QApplication(argc, argv) { }

bool SafeApplication::notify(QObject *receiver, QEvent *event)
{
    return guard.run([this, receiver, event] { return QApplication::notify(receiver, event); });
}

} // namespace zeph
