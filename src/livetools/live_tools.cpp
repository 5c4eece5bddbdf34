// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/live_tools.h"

#include "livetools/keytestform.h"
#include "livetools/pictures/viewimage.h"
#include "livetools/quickview/quickview.h"
#include "platform/dialogs.h"
#include "toolchain/modes/cougar_modes.h"

namespace zeph {

namespace {

void connectKeyTester(KeyTestForm &form, const Context &context, CougarModes &modes)
{
    QObject::connect(&form, &KeyTestForm::buttonsModeWanted, &modes,
                     guarded(context.dialogs, [&modes](bool programmed) {
                         modes.changeButtonsMode(programmed ? ButtonsRequest::Programmed
                                                            : ButtonsRequest::Windows);
                     }));
    QObject::connect(&form, &KeyTestForm::emergencyOff, &modes,
                     guarded(context.dialogs, [&modes] { modes.emergencyOff(); }));
}

} // namespace

void addLiveTools(const ToolEntries &tools, const Context &context, CougarModes &modes)
{
    const KeyTestEntries entries{ { tools.menus.action(u"mnuMemoryClear_0"),
                                    tools.menus.action(u"mnuMemoryClear_1") },
                                  tools.menus.action(u"mnuAppsDX8_0") };
    tools.add<KeyTestForm>(
        u"mnuAppsKeyTester",
        [context, entries, &modes](QWidget *owner) {
            auto *form = new KeyTestForm(context, entries, owner);
            connectKeyTester(*form, context, modes);
            return form;
        },
        &KeyTestForm::Form_Load);
}

void addImageViewer(const ToolEntries &tools, const Context &context, Printers &printers)
{
    const PictureEntries entries{ tools.menus.action(u"mnuMouseWizard"),
                                  tools.menus.action(u"mnuMouseManual") };
    tools.windows.offer<ViewImage>([context, &printers, entries](QWidget *owner) {
        return new ViewImage(context, printers, entries, owner);
    });
    tools.menus.connectTo(u"mnuAppsImageViewer", [&windows = tools.windows] {
        windows.open<ViewImage>()->showImageFile();
    });
}

void addQuickView(const ToolEntries &tools, const Context &context, const QuickViewSources &sources,
                  CougarModes &modes)
{
    tools.add<QuickView>(
        u"mnuAppsQuickView",
        [context, sources, &modes](QWidget *owner) {
            auto *form = new QuickView(context, sources, owner);
            QObject::connect(form, &QuickView::windowsModeWanted, &modes,
                             guarded(context.dialogs, [&modes] {
                                 modes.changeButtonsMode(ButtonsRequest::Windows);
                             }));
            return form;
        },
        &QuickView::Form_Load);
}

} // namespace zeph
