// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/keytestform.h"

#include <utility>

namespace zeph {

KeyTestForm::KeyTestForm(const Context &context, KeyTestHost host, QWidget *parent)
    : QWidget(parent, Qt::Window), m_context(context), m_host(std::move(host))
{
}

} // namespace zeph
