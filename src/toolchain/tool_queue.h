// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

#include <QObject>
#include <QPointer>

#include <functional>

namespace zeph {

class StatusLine;

/// Lets one command at a time wait for a tool. The interface stays alive during a wait, so more
/// commands may be given: one other is kept and begins when the first has ended. The same command
/// once more, and a third one, are dropped. The status line says what became of each.
class ToolQueue : public QObject
{
    Q_OBJECT
public:
    /// What a command holds while it runs. Its end lets the kept command begin, from the event
    /// loop; a command that ends by an exception takes the kept one with it.
    class Turn
    {
    public:
        Turn(const Turn &) = delete;
        Turn &operator=(const Turn &) = delete;
        ~Turn();
        /// False when the command was kept or dropped, and so must not run now.
        explicit operator bool() const { return m_has; }

    private:
        friend class ToolQueue;
        Turn(ToolQueue *queue, bool has);

        // The main window, and the queue with it, may go while a command waits.
        QPointer<ToolQueue> m_queue;
        bool m_has;
        int m_exceptions;
    };

    explicit ToolQueue(StatusLine &status) : m_status(status) { }

    /// Gives a command its turn, or keeps it, or drops it. The name is what the user reads, such as
    /// "the download"; equal names are the same command. A kept one is given once more by again().
    [[nodiscard]] Turn turn(const QString &name, std::function<void()> again);

    /// The program is about to end: no command begins any more.
    void close() { m_closed = true; }

private:
    struct Command {
        QString name;
        std::function<void()> again;
    };

    void keepOrDrop(Command command);
    void end(bool failed);

    StatusLine &m_status;
    QString m_running; ///< the command's name; empty when there is none
    std::optional<Command> m_next;
    bool m_closed = false;
};

} // namespace zeph
