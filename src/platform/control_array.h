// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

#include <QWidget>

#include <vector>

namespace zeph {

/// The controls NAME_0 … NAME_n of a form, by index. The form must hold all of them.
template <class T> class ControlArray
{
public:
    ControlArray() = default;
    ControlArray(const QWidget *form, const QString &name)
    {
        while (auto *control =
                   form->findChild<T *>(name + u'_' + QString::number(m_controls.size()))) {
            m_controls.push_back(control);
        }
    }

    int count() const { return int(m_controls.size()); }
    T *operator[](int index) const { return m_controls.at(size_t(index)); }
    auto begin() const { return m_controls.begin(); }
    auto end() const { return m_controls.end(); }

    /// Connects one signal of every control to a handler, which receives the index first.
    template <class Signal, class Handler>
    void connect(QObject *context, Signal signal, Handler handler) const
    {
        for (int i = 0; i < count(); ++i) {
            QObject::connect((*this)[i], signal, context, [i, handler] { handler(i); });
        }
    }

private:
    std::vector<T *> m_controls;
};

} // namespace zeph
