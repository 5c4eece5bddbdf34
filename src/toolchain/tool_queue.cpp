// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/tool_queue.h"

#include "platform/status_line.h"

#include <exception>

namespace zeph {

ToolQueue::Turn::Turn(ToolQueue *queue, bool has)
    : m_queue(queue), m_has(has), m_exceptions(std::uncaught_exceptions())
{
}

ToolQueue::Turn::~Turn()
{
    if (m_has && m_queue) {
        m_queue->end(std::uncaught_exceptions() > m_exceptions);
    }
}

ToolQueue::Turn ToolQueue::turn(const QString &name, std::function<void()> again)
{
    const bool isFree = m_running.isEmpty() && !m_closed;
    if (isFree) {
        m_running = name;
    } else if (!m_closed) {
        keepOrDrop({ name, std::move(again) });
    }
    return { this, isFree };
}

void ToolQueue::end(bool failed)
{
    m_running.clear();
    const std::optional<Command> next = std::exchange(m_next, std::nullopt);
    if (next && !failed && !m_closed) {
        QMetaObject::invokeMethod(this, next->again, Qt::QueuedConnection);
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
