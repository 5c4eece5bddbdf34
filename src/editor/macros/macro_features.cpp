// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/macros/macro_features.h"

#include "documents/editor_view.h"
#include "editor/editor_settings.h"
#include "editor/files/file_opening.h"
#include "editor/macros/framemacros.h"
#include "menus/menu_actions.h"
#include "platform/dialogs.h"
#include "settings/colour_settings.h"
#include "settings/settings.h"
#include "settings/shared_settings.h"

#include <QAction>

#include <utility>

namespace zeph {

namespace {

/// The menu entries whose ticks are settings.
struct TickSetting {
    QStringView action;
    SettingRef setting;
};

const TickSetting tickSettings[] = {
    { u"mnuMacrosSaveOptions_0", &EditorSettings::MacroSaveUpdateMacros },
    { u"mnuMacrosSaveOptions_1", &EditorSettings::MacroSaveIdentifyJF },
    { u"mnuMacroMouseActive", &SharedSettings::MacroWithMouse },
    { u"MnuMacroSelectMacroShow", &EditorSettings::MacroHighlightedInMacroFile },
};

} // namespace

MacroFeatures::MacroFeatures(const Context &context, const Parts &parts)
    : m_context(context), m_parts(parts),
      m_list(context, { parts.view, parts.actions, parts.saving, parts.insert }),
      m_operations(context, { parts.view, parts.actions, parts.saving, m_list }),
      m_menu(context, m_list, parts.actions)
{
    parts.actions.action(u"mnuViewMacros")->setChecked(true);
    connectFiles();
    connectMenus();
    connectList();
}

void MacroFeatures::connectFiles()
{
    Documents &documents = m_parts.view.documents();
    connect(&documents.joystick(), &Document::replaced, this, [this](Document::How how) {
        if (how != Document::How::Undone) {
            m_operations.ClearMacroTicks();
        }
    });
    connect(&documents.macro(), &Document::replaced, this, &MacroFeatures::afterMacroReplaced);
    connect(&documents.macro(), &Document::written, this, [this](Document::Save save) {
        if (save == Document::Save::Asked) {
            afterMacroSave();
        }
    });
    connect(&m_parts.opening, &FileOpening::pairLoaded, this,
            [this] { m_operations.IdentifyMacrosUsed(MacroOperations::ShowAll); });
}

void MacroFeatures::afterMacroReplaced(Document::How how)
{
    if (how == Document::How::Undone) {
        return;
    }
    m_list.ClearAllForNewMacroFile();
    // A macro of the file before is none of this one's.
    m_list.SelectedMacro.clear();
    if (how != Document::How::Fresh) {
        m_list.GetEachLineFromMacroFile();
        m_list.ExtractMacrosAndTitles();
        m_list.show();
    }
}

void MacroFeatures::afterMacroSave()
{
    if (m_parts.actions.action(u"mnuMacrosSaveOptions_0")->isChecked()) {
        m_list.mnuEditUpdateMacros_Click();
    }
    if (m_parts.actions.action(u"mnuMacrosSaveOptions_1")->isChecked()) {
        m_operations.IdentifyMacrosUsed(MacroOperations::KeepHeading);
    }
}

void MacroFeatures::connectMenus()
{
    MenuActions &on = m_parts.actions;
    on.connectTo(u"mnuViewMacros", [this] { m_list.mnuViewMacros_Click(); });
    on.connectTo(u"mnuEditUpdateMacros", [this] { m_list.mnuEditUpdateMacros_Click(); });
    on.connectTo(u"mnuMacrosIdentify",
                 [this] { m_operations.IdentifyMacrosUsed(MacroOperations::KeepHeading); });
    on.connectTo(u"mnuFindInJoyFile", [this] { m_operations.FindMacroInJF(); });
    on.connectTo(u"mnuRenameMacro", [this] { m_operations.mnuRenameMacro_Click(); });
    for (const TickSetting &tick : tickSettings) {
        on.connectTo(tick.action, [this, tick] {
            tick.setting.set(m_context.settings, m_parts.actions.action(tick.action)->isChecked());
        });
    }
}

void MacroFeatures::connectList()
{
    connect(&m_list, &MacroList::macroChosen, this,
            guarded(m_context.dialogs, [this](const QString &) { m_operations.TickMacroList(); }));
    connect(&m_list, &MacroList::inserted, this,
            guarded(m_context.dialogs, [this] { m_operations.TickMacroList(); }));
    connect(&m_list, &MacroList::findWanted, this,
            guarded(m_context.dialogs, [this] { m_operations.FindMacroInJF(); }));
    connect(&m_list, &MacroList::dragStarted, this, [this] { m_dragStarted = true; });
    // No signal tells where a drag ended; the first change to a text afterwards is the drop.
    m_parts.view.documents().forEach([this](Document &each) {
        connect(&each, &Document::edited, this, [this] {
            if (std::exchange(m_dragStarted, false)) {
                m_operations.TickMacroList();
            }
        });
    });
}

void MacroFeatures::applySettings()
{
    m_list.frame()->setColours(m_context.settings.of<ColourSettings>());
    m_list.frame()->setWidth(m_context.settings.of<EditorSettings>().MacroFrameWidth);
    for (const TickSetting &tick : tickSettings) {
        m_parts.actions.action(tick.action)->setChecked(tick.setting.isOn(m_context.settings));
    }
}

} // namespace zeph
