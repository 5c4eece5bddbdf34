// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/tool_queue.h"

#include "platform/status_line.h"

#include <QPointer>
#include <QScopeGuard>

namespace zeph {

void ToolQueue::run(const QString &name, std::function<void()> operation)
{
    if (!m_running.isEmpty()) {
        keepOrDrop({ name, std::move(operation) });
        return;
    }
    // The main window, and this with it, may go while a command waits.
    const QPointer<ToolQueue> alive(this);
    const auto finish = qScopeGuard([&alive] {
        if (alive) {
            alive->m_running.clear();
            alive->m_next.reset();
        }
    });
    std::optional<Command> command{ { name, std::move(operation) } };
    while (command && alive && !m_closed) {
        m_running = command->name;
        command->operation();
        if (alive) {
            command = std::exchange(m_next, std::nullopt);
        }
    }
}

void ToolQueue::keepOrDrop(Command command)
{
    if (command.name == m_running) {
        m_status.setText(u" I'm still busy with %1: once is enough"_s.arg(command.name));
    } else if (!m_next) {
        m_status.setText(u" OK: %1 comes right after %2"_s.arg(command.name, m_running));
        m_next = std::move(command);
    } else if (command.name == m_next->name) {
        m_status.setText(
            u" %1 is waiting for %2 already: once is enough"_s.arg(command.name, m_running));
    } else {
        m_status.setText(u" I'm busy with %1, and %2 comes next: ask me again for %3 then"_s.arg(
            m_running, m_next->name, command.name));
    }
}

} // namespace zeph
