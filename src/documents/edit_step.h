// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "documents/editor_view.h"

namespace zeph {

class UndoHistories;

/// A change of the program's own to one document, made of any number of edits: no edit of it counts
/// for itself, and at the scope's end all of them are one undo step. Made only where a change is
/// sure to follow.
class EditStep
{
public:
    EditStep(EditorView &view, UndoHistories &histories, DocumentKind kind);
    ~EditStep();
    EditStep(const EditStep &) = delete;
    EditStep &operator=(const EditStep &) = delete;

private:
    EditorView &m_view;
    UndoHistories &m_histories;
    DocumentKind m_kind;
};

} // namespace zeph
