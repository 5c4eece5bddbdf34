// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/handlers.h"

namespace zeph {

void tellEscaped(Dialogs &dialogs, const QString &reason)
{
    dialogs.box(
        { .title = u"Zeph"_s,
          .text = u"Oops! Something has gone wrong here, and I have to admit that I didn't see "
                  u"it coming. This is all I know about it:\n\n"_s
              + reason,
          .icon = BoxIcon::Exclamation });
}

} // namespace zeph
