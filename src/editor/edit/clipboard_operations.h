// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/rich_text.h"

class QMimeData;

namespace zeph {

class ColouredInsert;
class MenuActions;
class EditorView;

/// Copy, cut, paste and delete in the selected document. Those that change it are one undo step
/// each and refused on a protected macro file.
class ClipboardOperations
{
public:
    struct Parts {
        EditorView &view;
        MenuActions &actions;
        ColouredInsert &insert;
    };
    explicit ClipboardOperations(const Parts &parts);

    /// Copies the selection as plain text and as rich text; without a selection the clipboard stays
    /// as it is.
    void mnuEditCopy_Click();
    void mnuEditCut_Click();
    void mnuEditDelete_Click();
    /// Pastes rich text with its colours, in the document's font.
    void mnuEditPaste_Click();
    void mnuPasteSimple_Click();

private:
    void removeSelection();
    void paste(RichText (*take)(const QMimeData &data, const CharFormat &plain));

    Parts m_parts;
};

} // namespace zeph
