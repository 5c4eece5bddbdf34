// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "composer/composer_editor.h"
#include "platform/context.h"

#include <QObject>

#include <functional>

namespace zeph {

class Editor;
class LineBlink;
class ToolWindows;

/// The Composer's windows and the Editor as they know it. Registers the Composer and Tumbo under
/// their menu entries, and keeps the Composer's macro list like the Editor's.
class ComposerTools : public QObject, public ComposerEditor
{
    Q_OBJECT
public:
    /// The Editor owns this object.
    ComposerTools(const Context &context, ToolWindows &windows, Editor &editor);

    /// Opens the Composer at the page of the templates.
    void openTemplates();
    /// Opens Tumbo, whose statement goes to nobody.
    void mnuInsertRAW_Click();
    /// Opens Tumbo for a window that takes its keys from there: each change of Tumbo's statement is
    /// given to the function, until Tumbo is opened again or unloaded, or the context is deleted.
    void openTumboFor(std::function<void(const QString &)> feed, const QObject *context = nullptr);

    QList<MacroGroup> macroGroups() const override;
    void ShowMacroKeys(const QString &macro) override;
    void TickMacroList(const QString &macro) override;
    void FindMacroInJF(const QString &macro) override;
    void editMacro(const QString &macro) override;
    int DefaultDLYvalue() const override;
    void setDefaultDLYvalue(int milliseconds) override;
    QAction *action(QStringView name) const override;
    void ResetFocusToEditor() override;
    void showCaretLine() override;

Q_SIGNALS:
    /// The help topic of that number is wanted.
    void helpWanted(int topic);
    /// The place of the help is wanted to which its index leads from this word.
    void keywordWanted(const QString &word);

private:
    void followMacroList();

    Context m_context;
    ToolWindows &m_windows;
    Editor &m_editor;
    LineBlink *m_blink;
    QMetaObject::Connection m_tumboFeed; ///< to the window that opened Tumbo last
};

} // namespace zeph
