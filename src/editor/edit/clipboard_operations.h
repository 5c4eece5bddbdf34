// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/rich_text.h"

class QMimeData;

namespace zeph {

class ColouredInsert;
class MenuActions;
class EditorView;

/// Copy, cut, paste and delete on the selected document. All that change it are one undo step each
/// and refused on a protected macro file.
class ClipboardOperations
{
public:
    struct Parts {
        EditorView &view;
        MenuActions &actions;
        ColouredInsert &insert;
    };
    explicit ClipboardOperations(const Parts &parts);

    /// Puts the selection on the clipboard as plain text and as rich text; nothing without one.
    void mnuEditCopy_Click();
    void mnuEditCut_Click();
    void mnuEditDelete_Click();
    /// Rich text keeps its colours and takes the document's font.
    void mnuEditPaste_Click();
    void mnuPasteSimple_Click();

private:
    void removeSelection();
    void paste(RichText (*take)(const QMimeData &data, const CharFormat &plain));

    Parts m_parts;
};

} // namespace zeph
