// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"

#include <QObject>

namespace zeph {

class Editor;
class HelpMenu;
class Mum;
class Printers;
class TemplateForm;

/// Ties the Template Editor to the main window and the Editor's menus.
class TemplateMenu : public QObject
{
    Q_OBJECT
public:
    TemplateMenu(const Context &context, Printers &printers, Mum &mum, Editor &editor,
                 HelpMenu &help);

    /// Brings the Template Editor to the front.
    TemplateForm *mnuAppsTemplateEditor_Click();
    /// Shows the readme that belongs to the joystick file.
    void mnuAppsViewReadMe_Click();
    /// The question about a template that was not saved. False stops the exit.
    bool queryUnload();

private:
    TemplateForm *make(QWidget *owner);

    Context m_context;
    Printers &m_printers;
    Mum &m_mum;
    Editor &m_editor;
    HelpMenu &m_help;
};

} // namespace zeph
