// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/editor_entries.h"

#include "composer/composer_editor.h"
#include "platform/status_line.h"

#include <QAction>

namespace zeph {

bool runEntry(const ComposerEditor &editor, StatusLine &status, QStringView entry)
{
    QAction *action = editor.action(entry);
    if (!action->isEnabled()) {
        status.setText(u" %1 can't be used now"_s.arg(action->text().remove(u'&')));
        return false;
    }
    action->trigger();
    return true;
}

} // namespace zeph
