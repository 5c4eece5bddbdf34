// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"

namespace zeph {

class Document;
class EditorView;

/// What the caret does at a line that is shown: a line to look at is selected; one to write in is
/// not, since the first key would replace it.
enum class LineCaret { SelectsLine, AtStart };

/// Brings a document to the front with the caret at one of its lines (1-based). A line that the
/// document does not have is told; false then.
bool showLine(const Context &context, EditorView &view, Document &document, int line,
              LineCaret caret);

} // namespace zeph
