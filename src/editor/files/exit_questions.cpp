// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/files/exit_questions.h"

#include "documents/editor_texts.h"
#include "documents/editor_view.h"
#include "editor/files/file_saving.h"

namespace zeph {

namespace {

bool askFor(Document &document, EditorView &view, FileSaving &saving, Dialogs &dialogs)
{
    if (!document.isModified()) {
        return true;
    }
    const QString why = u" has changed and isn't saved. Do you want to save it before exiting?"_s;
    switch (dialogs.box(saveQuestion(document, why))) {
    case BoxButton::Yes:
        view.documents().select(document.kind());
        saving.mnuFileSave_Click();
        if (document.isModified()) {
            dialogs.tell(u"Ooops!"_s, document.name() + u" wasn't saved. Exit program aborted."_s,
                         BoxIcon::Exclamation);
            return false;
        }
        return true;
    case BoxButton::No:
        return true;
    default:
        return false;
    }
}

} // namespace

bool askBeforeExit(EditorView &view, FileSaving &saving, Dialogs &dialogs)
{
    return askFor(view.documents().macro(), view, saving, dialogs)
        && askFor(view.documents().joystick(), view, saving, dialogs);
}

} // namespace zeph
