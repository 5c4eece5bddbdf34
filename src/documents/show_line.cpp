// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/show_line.h"

#include "documents/documents.h"
#include "documents/editor_view.h"
#include "platform/dialogs.h"
#include "platform/status_line.h"
#include "text/text_lines.h"

namespace zeph {

bool showLine(const Context &context, EditorView &view, Document &document, int line,
              LineCaret caret)
{
    const auto range = lineRange(document.text(), line);
    if (!range) {
        context.dialogs.tell(u"Oops!"_s, u"Line not found"_s, BoxIcon::Exclamation);
        return false;
    }
    view.documents().select(document.kind());
    document.select(int(range->start), caret == LineCaret::SelectsLine ? int(range->length) : 0);
    view.centreCaret(document.kind());
    view.ResetFocusToEditor();
    context.status.setLine(line);
    return true;
}

} // namespace zeph
