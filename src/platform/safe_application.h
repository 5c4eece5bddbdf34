// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QApplication>

#include <functional>

namespace zeph {

class Dialogs;

/// Stands between the handlers and the event loop: what escapes one is told, and the last resort
/// gets its turn.
class FallGuard
{
public:
    /// Who tells a failure; without, it is swallowed.
    Dialogs *dialogs = nullptr;
    /// Runs after the telling, once at a time, whatever it meets itself.
    std::function<void()> lastResort;

    /// What the handler gives, or true when it failed.
    bool run(const std::function<bool()> &handler);

private:
    void fall(const QString &reason);

    bool m_falling = false;
};

/// The toolkit's application, which lets no failure of a handler end the program.
class SafeApplication : public QApplication
{
public:
    SafeApplication(int &argc, char **argv);

    FallGuard guard;

    bool notify(QObject *receiver, QEvent *event) override;
};

} // namespace zeph
