// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QWidget>

#include <typeindex>

namespace zeph {

/// Opens, hides, minimises, restores and unloads tool windows, one of a class. A window that its
/// user closes is unloaded; one that is hidden keeps what it holds.
class ToolWindows : public QObject
{
    Q_OBJECT
public:
    /// The main window owns what opens.
    explicit ToolWindows(QWidget *owner) : QObject(owner), m_owner(owner) { }

    /// The window of that class, made by the function when it is not loaded, not yet shown.
    template <class T, class Make> T *load(Make make)
    {
        if (T *loaded = get<T>()) {
            return loaded;
        }
        T *made = make(m_owner);
        made->setAttribute(Qt::WA_DeleteOnClose);
        m_windows.insert(keyOf<T>(), made);
        Q_EMIT loaded(made);
        return made;
    }
    /// Loads it if need be, and brings it to the front.
    template <class T, class Make> T *open(Make make)
    {
        T *window = load<T>(make);
        raise(*window);
        return window;
    }
    /// The loaded window, or null.
    template <class T> T *get() const
    {
        return static_cast<T *>(m_windows.value(keyOf<T>()).data());
    }
    /// Whether it is loaded and not hidden; minimised counts as open.
    template <class T> bool isOpen() const
    {
        const T *window = get<T>();
        return window && !window->isHidden();
    }
    template <class T> void hide()
    {
        if (T *window = get<T>()) {
            window->hide();
        }
    }
    template <class T> void unload() { unload(keyOf<T>()); }

    /// All open windows go with the main window, and those come back with it.
    void minimiseAll();
    void restoreAll();
    /// Out of the compiler's way: these stay minimised until the user restores them.
    void minimiseForCompiler();
    void unloadAll();
    static void raise(QWidget &window);

Q_SIGNALS:
    /// A window was made; it is not shown yet.
    void loaded(QWidget *window);

private:
    template <class T> static size_t keyOf() { return std::type_index(typeid(T)).hash_code(); }
    void unload(size_t key);
    QList<QPointer<QWidget>> minimiseOpen();

    QWidget *m_owner;
    QHash<size_t, QPointer<QWidget>> m_windows;
    QList<QPointer<QWidget>> m_minimised;
};

} // namespace zeph
