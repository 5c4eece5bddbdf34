// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

#include <QObject>

#include <functional>

namespace zeph {

class StatusLine;

/// Runs the commands that wait for a tool, one after the other. The interface stays alive during a
/// wait, so more commands may be given: one other is kept and runs when the first has ended. The
/// same command once more, and a third one, are dropped. The status line says what became of each.
class ToolQueue : public QObject
{
    Q_OBJECT
public:
    explicit ToolQueue(StatusLine &status) : m_status(status) { }

    /// Runs the operation, or keeps it, or drops it. The name is what the user reads, such as "the
    /// download"; equal names are the same command. What the operation throws goes to the caller,
    /// and the command that was kept is dropped.
    void run(const QString &name, std::function<void()> operation);

    /// The program is about to end: nothing more is run.
    void close() { m_closed = true; }

private:
    struct Command {
        QString name;
        std::function<void()> operation;
    };

    void keepOrDrop(Command command);

    StatusLine &m_status;
    QString m_running; ///< the command's name; empty when there is none
    std::optional<Command> m_next;
    bool m_closed = false;
};

} // namespace zeph
