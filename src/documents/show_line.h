// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"

namespace zeph {

class Document;
class EditorView;

/// How a line is shown: one to look at is selected; one to write in is not, since the first key
/// would replace it.
enum class LineCaret { SelectsLine, AtStart };

/// Brings a document to the front with the caret at one of its lines (1-based). False, after a box,
/// when the document does not have that line.
bool showLine(const Context &context, EditorView &view, Document &document, int line,
              LineCaret caret);

} // namespace zeph
