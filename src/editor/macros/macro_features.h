// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "documents/document.h"
#include "editor/macros/macro_list.h"
#include "editor/macros/macro_operations.h"
#include "platform/context.h"

#include <QObject>

namespace zeph {

class ColouredInsert;
class MenuActions;
class EditorView;
class FileOpening;
class FileSaving;

/// Connects everything about macros with the loading and saving of files and with the menus.
class MacroFeatures : public QObject
{
    Q_OBJECT
public:
    struct Parts {
        EditorView &view;
        MenuActions &actions;
        FileOpening &opening;
        FileSaving &saving;
        ColouredInsert &insert;
    };
    MacroFeatures(const Context &context, const Parts &parts);

    MacroList &list() { return m_list; }
    MacroOperations &operations() { return m_operations; }
    MacroListMenu &menu() { return m_menu; }

    void applySettings();

private:
    void connectFiles();
    void connectMenus();
    void connectList();
    void afterMacroReplaced(Document::How how);
    void afterMacroSave();

    Context m_context;
    Parts m_parts;
    MacroList m_list;
    MacroOperations m_operations;
    MacroListMenu m_menu;
    bool m_dragStarted = false;
};

} // namespace zeph
