// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/documents.h"

#include "documents/document_look.h"
#include "documents/editor_texts.h"
#include "platform/dialogs.h"
#include "settings/global_settings.h"

namespace zeph {

Documents::Documents(const Context &context, QObject *parent)
    : QObject(parent), m_context(context),
      m_joystick(DocumentKind::Joystick, context.settings.UndoMax),
      m_macro(DocumentKind::Macro, context.settings.UndoMax)
{
    renameFresh(DocumentKind::Joystick);
    renameFresh(DocumentKind::Macro);
}

void Documents::select(DocumentKind kind)
{
    if (m_selected != kind) {
        m_selected = kind;
        Q_EMIT selectedChanged(kind);
    }
}

void Documents::setProtected(bool on)
{
    m_protected = on;
    m_macro.setLocked(on);
    Q_EMIT protectedChanged(on);
}

bool Documents::refuseProtected()
{
    if (m_selected == DocumentKind::Macro && m_protected) {
        m_context.dialogs.box(fileProtectedBox());
        return true;
    }
    // A text that is on its way to the Cougar is locked for seconds only, and the status bar says
    // so: no box.
    return selected().isLocked();
}

void Documents::renameFresh(DocumentKind kind)
{
    of(kind).rename(m_context.paths.filesFolder() + freshName(kind));
}

CharFormat Documents::plainFormat(DocumentKind kind) const
{
    return zeph::plainFormat(m_context.settings, kind);
}

} // namespace zeph
