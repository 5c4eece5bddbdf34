// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"

namespace zeph {

class MenuActions;
class EditorView;
class Highlighting;

/// The entries of the View menu that set a text's lines afresh.
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
    /// Keeps in the settings whether statements are moved in when they are aligned.
    void mnuIndentSlashes_Click();
    /// Sets the margin of the selected document, whose colours and state stay. Refused on a
    /// protected macro file.
    void mnuViewrefreshIndent_Click();

    /// Shows the settings' tick.
    void applySettings();

private:
    Context m_context;
    Parts m_parts;
};

} // namespace zeph
