// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

#include <QList>
#include <QString>

class QAction;

namespace zeph {

/// A heading of the macro list with its macros.
struct MacroGroup {
    struct Macro {
        QString name;
        bool isUsed = false;
    };
    QString heading;
    QList<Macro> macros;
};

/// What the Composer needs of the Editor, which lies above it; the shell implements it.
class ComposerEditor
{
public:
    virtual ~ComposerEditor() = default;

    /// The Editor's macro list as it is now.
    virtual QList<MacroGroup> macroGroups() const = 0;
    /// Chooses a macro: shows its keys on the status line and brings its tick up to date.
    virtual void ShowMacroKeys(const QString &macro) = 0;
    /// Brings a macro's tick up to date.
    virtual void TickMacroList(const QString &macro) = 0;
    /// Finds the macro's next use in the joystick file.
    virtual void FindMacroInJF(const QString &macro) = 0;
    /// Shows the macro's line in the macro file and gives that the focus.
    virtual void editMacro(const QString &macro) = 0;
    /// The delay in milliseconds that the Composer and the Editor's palette offer first.
    virtual int DefaultDLYvalue() const = 0;
    virtual void setDefaultDLYvalue(int milliseconds) = 0;
    /// The Editor's menu entry of that object name.
    virtual QAction *action(QStringView name) const = 0;
    /// Moves the focus to the selected document.
    virtual void ResetFocusToEditor() = 0;
    /// Marks the line of the caret in the selected document for a moment.
    virtual void showCaretLine() = 0;
};

} // namespace zeph
