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

/// The macro list: read from the macro file as saved on disk, never from the text, so that it may
/// lag behind until the file is saved or the list updated.
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

    /// The frame that shows the list; whoever lays out the window takes it as a child.
    FrameMacros *frame() { return m_frame.get(); }
    MacroListModel &model() { return m_model; }
    const MacroTable &table() const { return m_table; }

    /// Empties the list, before a macro file is read and for a fresh one.
    void ClearAllForNewMacroFile();
    /// Reads the usable lines of the saved macro file; a missing file leaves them as they are.
    void GetEachLineFromMacroFile();
    /// Fills headings and list from the lines and shows all macros.
    void ExtractMacrosAndTitles();
    /// Shows the macros under a heading and selects the first of them.
    void Combo1_Click(const QString &heading);
    /// Shows the macros under a heading, 0 for all, without a word and selecting none.
    void showHeading(qsizetype heading);
    qsizetype shownHeading() const { return m_heading; }

    /// Shows the selected macro's line on the status panel, and in the macro text where that is
    /// wanted. Without such a line the panel keeps its text.
    void ShowMacroKeys();
    /// Inserts the selected macro's name at the caret of the selected text.
    void List1_DblClick();
    /// Shows the selected macro in the macro text.
    void mnuRHListEdit_Click();
    /// Rebuilds the list from disk; asks for a save first where the text has changed.
    void mnuEditUpdateMacros_Click();
    void mnuViewMacros_Click();
    /// Shows a hidden list.
    void show();

    /// The macro that the operations work on: last chosen in the list or touched by the mouse.
    QString SelectedMacro;
    /// Whether no macro file was analysed since the list was cleared.
    bool MacroListIsEmpty = true;

Q_SIGNALS:
    /// An entry was chosen by mouse or keys.
    void macroChosen(const QString &name);
    /// Another entry than before was chosen.
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
    std::unique_ptr<FrameMacros> m_frame; ///< stands in the window, which goes after it
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
