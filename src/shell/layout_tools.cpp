// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/layout_tools.h"

#include "editor/editor.h"
#include "editor/macros/macro_features.h"
#include "layouts/window/sheet_transfer.h"
#include "layouts/window/ubbandhtmlview.h"
#include "menus/tool_entries.h"
#include "platform/dialogs.h"

#include <QAction>

namespace zeph {

LayoutTools::LayoutTools(const Context &context, ToolWindows &windows, Editor &editor,
                         const Outside &outside)
    : QObject(&editor), m_context(context), m_windows(windows), m_editor(editor)
{
    const SheetSources sources{
        editor.documents(),
        editor.macros().list().table(),
        { outside.printers, outside.screen, *editor.action(u"mnuAppsImageViewer") },
    };
    add<GraphicsPrint>(u"mnuAppsJoystickLayout", sources);
    add<TQSLayout>(u"mnuAppsThrottleLayout", sources);
    add<CustomLayout>(u"mnuAppsCustomLayout", sources);
    editor.actions().connectTo(u"mnuExportToUBB", [this] { mnuExportToUBB_Click(); });
}

template <class Window> void LayoutTools::add(QStringView entry, const SheetSources &sources)
{
    const ToolEntries tools{ m_editor.actions(), m_windows };
    tools.add<Window>(entry, [this, sources](QWidget *owner) {
        auto *window = new Window(m_context, sources, owner);
        connect(window, &SheetWindow::helpWanted, this, &LayoutTools::helpWanted);
        connect(
            window, &SheetWindow::transferWanted, this,
            guarded(m_context.dialogs, [this](SheetKind from, bool all) { transfer(from, all); }));
        connect(&m_editor.macros().list(), &MacroList::tableChanged, window,
                guarded(m_context.dialogs, [window](auto &&...) { window->macrosChanged(); }));
        return window;
    });
}

void LayoutTools::transfer(SheetKind from, bool all)
{
    SheetTransfer &custom = m_windows.open<CustomLayout>()->transfer();
    if (from == SheetKind::Joystick) {
        all ? custom.GetF22textboxes() : custom.GetSingleF22textbox();
    } else {
        all ? custom.GetThrottletextboxes() : custom.GetSingleThrottletextbox();
    }
}

void LayoutTools::mnuExportToUBB_Click()
{
    const Document &document = m_editor.selected();
    UBBandHTMLview view(document.richText(document.selStart(), document.selLength()),
                        document.plain().colour.value_or(0), m_editor.window());
    view.exec();
}

} // namespace zeph
