// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "documents/document.h"
#include "platform/context.h"

#include <QWidget>

#include <memory>

class QAction;

namespace zeph {

class ColouredCopies;
class ColouredInsert;
class Documents;
class EditingTools;
class MenuActions;
class EditorKeys;
class EditorView;
class EntryConditions;
class FileNew;
class FileOpening;
class FileSaving;
class Highlighting;
class InsertForms;
struct LossGuards;
class MacroFeatures;
class Packaging;
class RightMenu;
class TextLooks;
class TypingColour;
class UndoHistories;
class UseDirectives;
class ViewEntries;

/// The permanent child of the main window, with the two documents and all working menus. It is only
/// a frame: each feature is an object of its own, which this class creates and hands out.
class Editor : public QWidget
{
    Q_OBJECT
public:
    explicit Editor(const Context &context, QWidget *parent = nullptr);
    ~Editor() override;

    /// The menu entries by object name. The rooms above connect the entries that they implement.
    MenuActions &actions() { return *m_actions; }
    QAction *action(QStringView name) const;

    Document &joystick();
    Document &macro();
    Document &selected();
    QString joystickText();
    QString macroText();

    Documents &documents() { return *m_documents; }
    EditorView &view() { return *m_view; }
    FileOpening &opening() { return *m_opening; }
    FileSaving &saving() { return *m_saving; }
    FileNew &fresh() { return *m_fresh; }
    UseDirectives &useDirectives() { return *m_useDirectives; }
    RightMenu &rightMenu() { return *m_rightMenu; }
    EditingTools &editing() { return *m_editing; }
    Highlighting &highlighting() { return *m_highlighting; }
    /// Writes a tool's text into the selected document.
    ColouredInsert &insert() { return *m_insert; }
    UndoHistories &undos() { return *m_undos; }
    MacroFeatures &macros() { return *m_macros; }
    LossGuards &guards() { return *m_guards; }
    InsertForms &insertForms() { return *m_insertForms; }

    /// Moves the focus to the selected document.
    void ResetFocusToEditor();
    /// Selects the line that the compiler complained of (1-based) in the document that the error's
    /// code belongs to. Tells when there is no such line.
    void HighlightErrorLine(int line, const QString &compileErrorText);

    /// Asks about unsaved files, the macro file first. False: the program must not exit.
    bool queryUnload();
    /// The path for the next run to reopen; empty for a document that was never saved.
    QString restorableFile(DocumentKind kind);

    /// Applies changed settings: colours, fonts, ticks, tiling.
    void applySettings();

Q_SIGNALS:
    /// Help on a word is wanted: by F1 on a selected word, or by a quick tip.
    void helpOn(const QString &word);
    /// Shift+Break was pressed.
    void emergencyOff();

private:
    void connectEditing();
    void connectOptions();
    void connectLooks();
    void connectMacros();

    Context m_context;
    std::unique_ptr<MenuActions> m_actions;
    std::unique_ptr<Documents> m_documents;
    std::unique_ptr<EditorView> m_view;
    std::unique_ptr<ColouredCopies> m_copies;
    std::unique_ptr<EditorKeys> m_keys;
    std::unique_ptr<UndoHistories> m_undos;
    std::unique_ptr<ColouredInsert> m_insert;
    std::unique_ptr<Highlighting> m_highlighting;
    std::unique_ptr<TextLooks> m_looks;
    std::unique_ptr<TypingColour> m_typingColour;
    std::unique_ptr<EditingTools> m_editing;
    std::unique_ptr<UseDirectives> m_useDirectives;
    std::unique_ptr<EntryConditions> m_conditions;
    std::unique_ptr<FileSaving> m_saving;
    std::unique_ptr<FileOpening> m_opening;
    std::unique_ptr<FileNew> m_fresh;
    std::unique_ptr<RightMenu> m_rightMenu;
    std::unique_ptr<MacroFeatures> m_macros;
    std::unique_ptr<ViewEntries> m_viewEntries;
    std::unique_ptr<LossGuards> m_guards;
    std::unique_ptr<InsertForms> m_insertForms;
    std::unique_ptr<Packaging> m_packaging;
};

} // namespace zeph
