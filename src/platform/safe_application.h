// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QApplication>

#include <functional>

namespace zeph {

class Dialogs;

/// Keeps what escapes a handler from the event loop: tells it to the user and runs the last
/// resort.
class FallGuard
{
public:
    /// Shows a failure; when null, nothing is shown.
    Dialogs *dialogs = nullptr;
    /// Runs after the message. Its own failure does not run it again.
    std::function<void()> lastResort;

    /// Runs the handler. Gives its result, or true when it failed.
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
