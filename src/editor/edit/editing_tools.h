// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "editor/edit/alignment_operations.h"
#include "editor/edit/clipboard_operations.h"
#include "editor/edit/findandreplace.h"

#include <QObject>
#include <QPointer>

namespace zeph {

/// The tools of the Edit and View menus for existing text: clipboard, commenting lines, alignment,
/// find and replace.
class EditingTools : public QObject
{
    Q_OBJECT
public:
    struct Parts {
        EditorView &view;
        MenuActions &actions;
        Highlighting &highlighting;
        ColouredInsert &insert;
    };
    EditingTools(const Context &context, const Parts &parts);
    ~EditingTools() override;

    ClipboardOperations &clipboard() { return m_clipboard; }
    BlockOperations &blocks() { return m_blocks; }
    AlignmentOperations &alignment() { return m_alignment; }

    void mnuEditFind_Click();
    void mnuEditReplace_Click();
    void mnuEditGoto_Click();

    /// Applies changed settings.
    void applySettings();

Q_SIGNALS:
    void helpOn(const QString &word);

private:
    void openFind(FindAndReplace::Tab tab);

    Context m_context;
    Parts m_parts;
    ClipboardOperations m_clipboard;
    BlockOperations m_blocks;
    AlignmentOperations m_alignment;
    /// Created at the first use: its parent is the main window, which the Editor joins only after
    /// its construction.
    QPointer<FindAndReplace> m_find;
};

} // namespace zeph
