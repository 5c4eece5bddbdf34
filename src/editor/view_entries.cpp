// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/view_entries.h"

#include "documents/editor_view.h"
#include "editor/macros/framemacros.h"
#include "editor/macros/macro_list.h"
#include "menus/menu_actions.h"

#include <QAction>

namespace zeph {

ViewEntries::ViewEntries(const Parts &parts) : m_parts(parts)
{
    Documents &documents = parts.view.documents();
    const auto goTo = [this, &documents](DocumentKind kind) {
        documents.select(kind);
        m_parts.view.ResetFocusToEditor();
        showTicks();
    };
    MenuActions &on = parts.actions;
    on.connectTo(u"mnuViewJoystickFile", [goTo] { goTo(DocumentKind::Joystick); });
    on.connectTo(u"mnuViewMacroFile", [goTo] { goTo(DocumentKind::Macro); });
    on.connectTo(u"mnuViewOtherFile",
                 [goTo, &documents] { goTo(documents.other(documents.selected()).kind()); });
    on.connectTo(u"mnuViewGoToMacros", [this] { goToMacrosOrBack(); });
    on.connectTo(u"mnuViewZoomIn", [this] { m_parts.view.zoom(1); });
    on.connectTo(u"mnuViewZoomOut", [this] { m_parts.view.zoom(-1); });
    on.connectTo(u"mnuViewZoomBack", [this] { m_parts.view.zoom(0); });
    connect(&documents, &Documents::selectedChanged, this, &ViewEntries::showTicks);
    showTicks();
}

void ViewEntries::goToMacrosOrBack()
{
    FrameMacros &frame = *m_parts.list.frame();
    const QWidget *focus = frame.window()->focusWidget();
    if (focus && frame.isAncestorOf(focus)) {
        m_parts.view.ResetFocusToEditor();
    } else {
        m_parts.list.show();
        frame.list().setFocus();
    }
}

void ViewEntries::showTicks()
{
    // An entry flips its own tick when it is chosen, also when its file is in front already.
    const DocumentKind selected = m_parts.view.documents().selected().kind();
    m_parts.actions.action(u"mnuViewJoystickFile")->setChecked(selected == DocumentKind::Joystick);
    m_parts.actions.action(u"mnuViewMacroFile")->setChecked(selected == DocumentKind::Macro);
}

} // namespace zeph
