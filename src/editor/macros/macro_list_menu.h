// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"

#include <QObject>

#include <memory>

class QMenu;

namespace zeph {

class MenuActions;
class MacroList;

/// The pop-up menu of the macro list.
class MacroListMenu : public QObject
{
    Q_OBJECT
public:
    MacroListMenu(const Context &context, MacroList &list, MenuActions &actions);

    /// The menu mnuRHList for the selected macro.
    std::unique_ptr<QMenu> build();

Q_SIGNALS:
    /// The pilot wants to read about the list.
    void quickTipWanted();

private:
    Context m_context;
    MacroList &m_list;
    MenuActions &m_actions;
};

} // namespace zeph
