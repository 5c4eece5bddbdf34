// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "language/file_kinds.h"
#include "platform/context.h"

#include <QObject>

class QPoint;
class QWidget;

namespace zeph {

class MenuActions;
class EditorView;
class FileSaving;
class MacroList;

/// What connects the macro list with the two texts: which macros are used and where, renaming in
/// both files, and the macro under the mouse.
class MacroOperations : public QObject
{
    Q_OBJECT
public:
    struct Parts {
        EditorView &view;
        MenuActions &actions;
        FileSaving &saving;
        MacroList &list;
    };
    /// Which heading is shown after IdentifyMacrosUsed().
    enum Mode : qint16 { ShowAll = 1, KeepHeading = 2 };

    MacroOperations(const Context &context, const Parts &parts);

    void ClearMacroTicks();
    /// Updates the selected macro's tick.
    void TickMacroList();
    /// Ticks every macro that the joystick text uses. Does nothing while either text is empty.
    void IdentifyMacrosUsed(Mode mode);

    /// Selects the next use of the selected macro in the joystick text; after the last one it
    /// starts over at the first.
    void FindMacroInJF();

    /// Asks for a macro and its new name, and renames it. Begins with the macro chosen in the list,
    /// else with the one at the caret.
    void mnuRenameMacro_Click();
    /// Renames in both texts and tells how many replacements were made.
    void ChangeMacroName(const QString &oldName, const QString &newName);

    /// The word at a point of the joystick text's viewport; empty when there is none.
    QString RichWordOver(const QPoint &at) const;
    /// Shows the keys of the macro at this point of the joystick text's viewport.
    void mouseMoved(const QPoint &at);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// The macro chosen in the list, else the one at the caret; empty when there is neither.
    QString macroToRename() const;
    int renameIn(DocumentKind kind, const QString &oldName, const QString &newName);

    Context m_context;
    Parts m_parts;
    QString m_foundName;
    qsizetype m_findFrom = 0;
    QString m_wordUnderMouse;
};

} // namespace zeph
