// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/tool_windows.h"

namespace zeph {

void ToolWindows::minimiseAll()
{
    m_minimised.append(minimiseOpen());
}

void ToolWindows::minimiseForCompiler()
{
    minimiseOpen();
}

QList<QPointer<QWidget>> ToolWindows::minimiseOpen()
{
    QList<QPointer<QWidget>> minimised;
    for (const auto &window : std::as_const(m_windows)) {
        if (window && !window->isHidden() && !window->isMinimized()) {
            window->showMinimized();
            minimised.append(window);
        }
    }
    return minimised;
}

void ToolWindows::restoreAll()
{
    for (const auto &window : std::exchange(m_minimised, {})) {
        if (window && window->isMinimized()) {
            window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
        }
    }
}

void ToolWindows::unloadAll()
{
    for (const size_t key : m_windows.keys()) {
        unload(key);
    }
}

void ToolWindows::raise(QWidget &window)
{
    window.show();
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.raise();
    window.activateWindow();
}

void ToolWindows::unload(size_t key)
{
    if (QWidget *window = m_windows.take(key)) {
        window->close();
        // A hidden window takes close() without the deletion that goes with it.
        delete window;
    }
}

} // namespace zeph
