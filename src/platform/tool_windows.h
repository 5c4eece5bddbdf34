// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QWidget>

#include <functional>
#include <typeindex>

namespace zeph {

/// A tool window with contents that its user may have to save.
class AsksBeforeClosing
{
public:
    virtual ~AsksBeforeClosing() = default;
    /// Asks the user what to do with unsaved contents. False: the window has to stay.
    virtual bool mayClose() = 0;
};

/// Opens, hides, minimises, restores and unloads tool windows, one of a class. A window that its
/// user closes is unloaded; one that is hidden keeps what it holds.
class ToolWindows : public QObject
{
    Q_OBJECT
public:
    /// The owner is the main window; it becomes the parent of all that opens.
    explicit ToolWindows(QWidget *owner) : QObject(owner), m_owner(owner) { }

    /// Registers how a window of class T is made: T *make(QWidget *owner). The optional method runs
    /// once before the window is first shown; when it returns false, the window is unloaded.
    template <class T, class Make> void offer(Make make, bool (T::*beforeShown)() = nullptr)
    {
        m_factories.insert(keyOf<T>(), [make](QWidget *owner) -> QWidget * { return make(owner); });
        if (beforeShown) {
            m_beforeShown.insert(keyOf<T>(), [beforeShown](QWidget *window) {
                return (static_cast<T *>(window)->*beforeShown)();
            });
        }
    }

    /// The window of that class, made when it is not loaded, not yet shown. The class must have
    /// been offered.
    template <class T> T *load() { return static_cast<T *>(load(keyOf<T>())); }
    /// Loads it if need be, and brings it to the front. Null when it refused to be shown.
    template <class T> T *open() { return static_cast<T *>(open(keyOf<T>())); }
    /// The same for a window that nobody offered, made by the function.
    template <class T, class Make> T *load(Make make)
    {
        offer<T>(std::move(make));
        return load<T>();
    }
    template <class T, class Make> T *open(Make make)
    {
        offer<T>(std::move(make));
        return open<T>();
    }
    /// Calls back whenever a window of that class was made, as long as the context lives.
    template <class T, class Act> void whenLoaded(QObject *context, Act act)
    {
        connect(this, &ToolWindows::loaded, context, [act](QWidget *window) {
            if (auto *made = qobject_cast<T *>(window)) {
                act(*made);
            }
        });
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

    /// Minimises all open windows; restoreAll() restores exactly those.
    void minimiseAll();
    void restoreAll();
    /// Minimises all open windows; they stay minimised until the user restores them.
    void minimiseForCompiler();
    /// Asks each loaded window that AsksBeforeClosing, until one has to stay. False when one has.
    bool mayUnloadAll() const;
    void unloadAll();
    /// Shows a window, restores it when it is minimised, and activates it.
    static void raise(QWidget &window);

Q_SIGNALS:
    /// A window was made; it is not shown yet.
    void loaded(QWidget *window);

private:
    template <class T> static size_t keyOf() { return std::type_index(typeid(T)).hash_code(); }
    QWidget *load(size_t key);
    QWidget *open(size_t key);
    void unload(size_t key);
    QList<QPointer<QWidget>> minimiseOpen();

    QWidget *m_owner;
    QHash<size_t, std::function<QWidget *(QWidget *owner)>> m_factories;
    QHash<size_t, std::function<bool(QWidget *window)>> m_beforeShown;
    QHash<size_t, QPointer<QWidget>> m_windows;
    QList<QPointer<QWidget>> m_minimised;
};

} // namespace zeph
