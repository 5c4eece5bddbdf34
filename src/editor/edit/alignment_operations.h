// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"
#include "platform/core/rich_text.h"
#include "text/text_lines.h"

namespace zeph {

class MenuActions;
class EditorView;
class Highlighting;

/// The entries of the View menu that change the layout of lines.
class AlignmentOperations
{
public:
    struct Parts {
        EditorView &view;
        MenuActions &actions;
        Highlighting &highlighting;
    };
    AlignmentOperations(const Context &context, const Parts &parts);

    /// Aligns the joystick file and colours it. Refused while a protected macro file is selected.
    void mnuAlignSlash_Click();
    /// Puts the tick of the menu entry, whether aligning also indents statements, into the
    /// settings.
    void mnuIndentSlashes_Click();
    /// Sets the margin of the selected document; its colours and its state do not change. Refused
    /// on a protected macro file.
    void mnuViewrefreshIndent_Click();

    /// Shows the tick that the settings have.
    void applySettings();

private:
    Context m_context;
    Parts m_parts;
};

class ColouredInsert;

/// Comments the selected lines out or in again, as one undo step each. A partly selected line
/// counts. Refused on a protected macro file. The caret ends at the start of the first line.
class BlockOperations
{
public:
    struct Parts {
        EditorView &view;
        MenuActions &actions;
        Highlighting &highlighting;
        ColouredInsert &insert;
    };
    explicit BlockOperations(const Parts &parts);

    void BlockREM();
    void BlockRemoveREM();

private:
    LineRange lines() const;
    std::vector<LineChange> changed(LineRange range, LineChange (*change)(QStringView line)) const;
    void insertOver(LineRange range, const RichText &text);
    void goToStart(LineRange range);

    Parts m_parts;
};

} // namespace zeph
