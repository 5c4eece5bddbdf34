// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "editor/context.h"

namespace zeph {

class EditorView;
struct EditorDocument;

/// Brings a document to the front with one of its lines (1-based) selected and the caret in it. A
/// line that the document does not have is told; false then.
bool showLine(const Context &context, EditorView &view, EditorDocument &document, int line);

} // namespace zeph
