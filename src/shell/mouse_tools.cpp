// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/mouse_tools.h"

#include "composer/composer_editor.h"
#include "composer/mouse/mousemanual.h"
#include "composer/mouse/mouseprogram.h"
#include "editor/editor.h"
#include "livetools/pictures/viewimage.h"
#include "menus/tool_entries.h"
#include "platform/dialogs.h"
#include "settings/settings.h"
#include "settings/shared_settings.h"

namespace zeph {

MouseTools::MouseTools(const Context &context, ToolWindows &windows, Editor &editor,
                       ComposerEditor &composerEditor)
    : QObject(&editor), m_context(context), m_windows(windows)
{
    const ToolEntries tools{ editor.actions(), windows };
    tools.add<MouseProgram>(
        u"mnuMouseWizard",
        [this, &editor, &composerEditor](QWidget *owner) {
            auto *wizard = new MouseProgram(m_context, editor.documents(), composerEditor, owner);
            if (auto *viewer = m_windows.get<ViewImage>()) {
                wizard->useViewer(viewer);
            }
            connect(wizard, &MouseProgram::viewerWanted, this,
                    guarded(m_context.dialogs, [this] { openViewer(); }));
            connect(wizard, &MouseProgram::helpWanted, this, &MouseTools::helpWanted);
            return wizard;
        },
        &MouseProgram::Form_Load);
    tools.add<MouseManual>(u"mnuMouseManual", [this, &editor, &composerEditor](QWidget *owner) {
        auto *manual = new MouseManual(m_context, editor.documents(), composerEditor, owner);
        connect(manual, &MouseManual::helpWanted, this, &MouseTools::helpWanted);
        return manual;
    });
    windows.whenLoaded<ViewImage>(this, [this](ViewImage &viewer) { followViewer(viewer); });
}

void MouseTools::openManual(int tab)
{
    m_windows.open<MouseManual>()->showTab(tab);
}

void MouseTools::openViewer()
{
    auto *viewer = m_windows.open<ViewImage>();
    // Without a picture the wizard tells how to open one, and no box is needed.
    if (fileExists(m_context.settings.of<SharedSettings>().ImageFilePath)) {
        viewer->showImageFile();
    }
}

void MouseTools::followViewer(ViewImage &viewer)
{
    if (auto *wizard = m_windows.get<MouseProgram>()) {
        wizard->useViewer(&viewer);
    }
    connect(&viewer, &ViewImage::mouseManualWanted, this,
            guarded(m_context.dialogs, [this](int tab) { openManual(tab); }));
}

} // namespace zeph
