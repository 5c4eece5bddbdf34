// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/overwrite_question.h"

#include "platform/core/file_attributes.h"
#include "platform/core/paths.h"
#include "platform/dialogs.h"

namespace zeph {

bool mayOverwrite(Dialogs &dialogs, const QString &path)
{
    if (!fileExists(path)) {
        return true;
    }
    if (!dialogs.ask(u"OK to overwrite exisiting file?"_s,
                     nameOf(path) + u" already exists. Do you want me to overwrite this file?"_s)) {
        return false;
    }
    if (isReadOnlyFile(path)) {
        dialogs.tell(readOnlyTitle.toString(),
                     path
                         + u" is read only. Please save the file with a different name or "
                           "location."_s,
                     BoxIcon::Exclamation);
        return false;
    }
    return true;
}

void tellNotSaved(Dialogs &dialogs, const FileError &error)
{
    dialogs.tell(u"I couldn't save your file buddy"_s,
                 error.path
                     + u" wasn't saved, and what was there before is untouched. The system says: "_s
                     + error.reason,
                 BoxIcon::Stop);
}

} // namespace zeph
