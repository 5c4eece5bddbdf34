// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "editor/macros/macro_list_model.h"
#include "platform/context.h"
#include "text/macro_table.h"

#include <QObject>

#include <memory>

class QMenu;

namespace zeph {

class ColouredInsert;
class MenuActions;
class EditorView;
class FileSaving;
class FrameMacros;

/// The macro list. It is read from the macro file as saved on disk, never from the text, so it may
/// be out of date until the file is saved or the list updated.
class MacroList : public QObject
{
    Q_OBJECT
public:
    struct Parts {
        EditorView &view;
        MenuActions &actions;
        FileSaving &saving;
        ColouredInsert &insert;
    };
    MacroList(const Context &context, const Parts &parts);
    ~MacroList() override;

    /// The frame that shows the list; the window's layout reparents it.
    FrameMacros *frame() { return m_frame.get(); }
    MacroListModel &model() { return m_model; }
    const MacroTable &table() const { return m_table; }

    /// Empties the list. Called before a macro file is read and for a fresh one.
    void ClearAllForNewMacroFile();
    /// Reads the usable lines of the saved macro file; if it is missing the lines stay as they are.
    void GetEachLineFromMacroFile();
    /// Fills headings and list from the lines and shows all macros.
    void ExtractMacrosAndTitles();
    /// Shows the macros under a heading and selects the first of them.
    void Combo1_Click(const QString &heading);
    /// Shows the macros under a heading, 0 for all. Selects none of them and emits nothing.
    void showHeading(qsizetype heading);
    qsizetype shownHeading() const { return m_heading; }

    /// The macro that is chosen in the list; empty when none is.
    QString chosenMacro() const;
    /// Shows a macro under its new name, without waiting for the file to be saved. A line of the
    /// saved file in which a rename in the texts would find nothing keeps its name. Ticks, heading
    /// and what is chosen stay.
    void showRenamed(const QString &oldName, const QString &newName);

    /// Shows the selected macro's line on the status panel and, if the settings ask for it, in the
    /// macro text. Without such a line the panel keeps its text.
    void ShowMacroKeys();
    /// Inserts the selected macro's name at the caret of the selected text.
    void List1_DblClick();
    /// Shows the selected macro in the macro text.
    void mnuRHListEdit_Click();
    /// Rebuilds the list from disk; offers to save the macro file first if it is modified.
    void mnuEditUpdateMacros_Click();
    void mnuViewMacros_Click();
    /// Shows the frame if it is hidden.
    void show();

    /// The macro that the operations work on: the last one chosen in the list or pointed at in the
    /// joystick text.
    QString SelectedMacro;
    /// Whether no macro file was read since the list was cleared.
    bool MacroListIsEmpty = true;

Q_SIGNALS:
    /// An entry was chosen by mouse or keys.
    void macroChosen(const QString &name);
    /// The chosen entry differs from the one before.
    void listSelectionChanged();
    void findWanted();
    void popUpWanted(const QPoint &globalPosition);
    /// The selected macro's name was inserted into a text.
    void inserted();
    /// A macro is being dragged out of the list.
    void dragStarted();
    void tableChanged();

private:
    void select(const QString &name);
    void choose(const QString &name);
    bool showInMacroText(const QString &line);
    bool askForSave();
    void storeWidth(int width);

    Context m_context;
    Parts m_parts;
    MacroListModel m_model;
    std::unique_ptr<FrameMacros> m_frame; ///< ours to delete: the window is deleted after it
    MacroTable m_table;
    qsizetype m_heading = 0;
    QString m_listSelection;
};

class MacroList;

/// The pop-up menu of the macro list.
class MacroListMenu : public QObject
{
    Q_OBJECT
public:
    MacroListMenu(const Context &context, MacroList &list, MenuActions &actions);

    /// Builds the menu mnuRHList for the selected macro.
    std::unique_ptr<QMenu> build();

Q_SIGNALS:
    /// The help about the list is wanted.
    void quickTipWanted();

private:
    Context m_context;
    MacroList &m_list;
    MenuActions &m_actions;
};

} // namespace zeph
