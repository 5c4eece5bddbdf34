// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/mode_menu.h"

#include "editor/editor.h"
#include "menus/menu_actions.h"
#include "platform/handlers.h"
#include "shell/main_status_bar.h"
#include "shell/mum.h"
#include "toolchain/modes/cougar_modes.h"

namespace zeph {

ModeMenu::ModeMenu(const Context &context, CougarModes &modes, Mum &mum, Editor &editor)
    : QObject(&editor)
{
    MainStatusBar &bar = mum.bar();
    bar.setModeTooltip(modes.tooltip());
    connect(&modes, &CougarModes::tooltipChanged, &bar, &MainStatusBar::setModeTooltip);
    connect(&bar, &MainStatusBar::modeTooltipWanted, &modes,
            guarded(context.dialogs, [&modes] { modes.UpdateStatusTooltip(); }));
    connect(
        &bar, &MainStatusBar::modePanelClicked, &modes,
        guarded(context.dialogs, [&modes](Qt::MouseButton button) { modes.panelClicked(button); }));

    MenuActions &on = editor.actions();
    for (const auto request : { ButtonsRequest::Windows, ButtonsRequest::Programmed }) {
        on.connectTo(u"mnuButtonsModeArray_"_s + QString::number(int(request)),
                     [&modes, request] { modes.changeButtonsMode(request); });
    }
    for (const int index : { 0, 1 }) {
        on.connectTo(u"mnuAxesModeArray_"_s + QString::number(index),
                     [&modes, index] { modes.mnuAxesModeArray_Click(index); });
    }
    connect(&editor, &Editor::emergencyOff, &modes,
            guarded(context.dialogs, [&modes] { modes.emergencyOff(); }));
}

} // namespace zeph
