// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/tool_windows.h"

#include <QDialog>

namespace zeph {

QWidget *ToolWindows::load(size_t key)
{
    if (QWidget *loaded = m_windows.value(key)) {
        return loaded;
    }
    Q_ASSERT_X(m_factories.contains(key), "ToolWindows::load", "nobody offered this window");
    QWidget *made = m_factories.value(key)(m_owner);
    made->setAttribute(Qt::WA_DeleteOnClose);
    m_windows.insert(key, made);
    Q_EMIT loaded(made);
    return made;
}

QWidget *ToolWindows::open(size_t key)
{
    const bool isNew = !m_windows.value(key);
    const QPointer<QWidget> window = load(key);
    if (const auto beforeShown = m_beforeShown.value(key); isNew && beforeShown) {
        // Events may run in there, and close the window.
        if (!beforeShown(window) || !window) {
            unload(key);
            return nullptr;
        }
    }
    raise(*window);
    return window;
}

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
    const auto minimise = [&minimised](QWidget *window) {
        if (window && !window->isHidden() && !window->isMinimized()) {
            window->showMinimized();
            minimised.append(window);
        }
    };
    for (const auto &window : std::as_const(m_windows)) {
        minimise(window);
    }
    // A room may keep a tool window of its own. One that appears by itself is no tool.
    for (auto *dialog : m_owner->findChildren<QDialog *>(Qt::FindDirectChildrenOnly)) {
        if (!dialog->isModal() && !dialog->testAttribute(Qt::WA_ShowWithoutActivating)) {
            minimise(dialog);
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

bool ToolWindows::mayUnloadAll() const
{
    // A question runs events, which may unload windows.
    const auto windows = m_windows;
    for (const auto &window : windows) {
        auto *asks = dynamic_cast<AsksBeforeClosing *>(window.data());
        if (asks && !asks->mayClose()) {
            return false;
        }
    }
    return true;
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
