// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "editor/context.h"
#include "editor/editor_document.h"

namespace zeph {

class ColouredCopies;
class EditorView;

/// What gives a freshly read text its looks. The passes over the language's words come with the
/// painter; until then a text takes the font and the plain colour of the scheme.
class Highlighting
{
public:
    Highlighting(const Context &context, EditorView &view, ColouredCopies &copies);

    /// Sets font, size and plain colour over the whole document; caret and state stay.
    void mnuViewReformat_Click(EditorDocument &document);
    /// Colours the whole document and writes its coloured copy; caret and state stay.
    void ApplyColourHighlighting(EditorDocument &document);

private:
    Context m_context;
    EditorView &m_view;
    ColouredCopies &m_copies;
};

} // namespace zeph
