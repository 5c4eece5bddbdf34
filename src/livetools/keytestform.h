// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "editor/context.h"

#include <QWidget>

#include <functional>

namespace zeph {

/// What the Key Tester needs of the rooms around it. All must be set.
struct KeyTestHost {
    /// Asks for the buttons' programmed (true) or Windows mode.
    std::function<void(bool programmed)> changeButtonsMode;
    /// The Cougar menu's memory command of that index: 0 empty buffers, 1 clear memory.
    std::function<void(int index)> mnuMemoryClear_Click;
    /// Brings a help topic up.
    std::function<void()> showHelp;
};

/// Shows what the Cougar really sends: each key that goes down and up, and the text that results.
class KeyTestForm : public QWidget
{
    Q_OBJECT
public:
    KeyTestForm(const Context &context, KeyTestHost host, QWidget *parent = nullptr);

private:
    Context m_context;
    KeyTestHost m_host;
};

} // namespace zeph
