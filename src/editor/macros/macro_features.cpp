// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/macros/macro_features.h"

#include "documents/editor_view.h"
#include "editor/files/file_new.h"
#include "editor/files/file_opening.h"
#include "editor/files/file_saving.h"
#include "editor/macros/framemacros.h"
#include "menus/menu_actions.h"
#include "platform/handlers.h"
#include "settings/global_settings.h"

#include <QAction>

#include <utility>

namespace zeph {

namespace {

/// The ticks that are settings.
struct TickSetting {
    QStringView action;
    qint16 GlobalSettings::*setting;
};

constexpr TickSetting tickSettings[] = {
    { u"mnuMacrosSaveOptions_0", &GlobalSettings::MacroSaveUpdateMacros },
    { u"mnuMacrosSaveOptions_1", &GlobalSettings::MacroSaveIdentifyJF },
    { u"mnuMacroMouseActive", &GlobalSettings::MacroWithMouse },
    { u"MnuMacroSelectMacroShow", &GlobalSettings::MacroHighlightedInMacroFile },
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
    const auto forget = [this] {
        m_list.ClearAllForNewMacroFile();
    };
    connect(&m_parts.opening, &FileOpening::macroReplaced, this, forget);
    connect(&m_parts.fresh, &FileNew::macroReplaced, this, forget);
    connect(&m_parts.fresh, &FileNew::joystickReplaced, this,
            [this] { m_operations.ClearMacroTicks(); });
    connect(&m_parts.opening, &FileOpening::loaded, this, [this](DocumentKind kind) {
        if (kind == DocumentKind::Joystick) {
            m_operations.ClearMacroTicks();
            return;
        }
        m_list.GetEachLineFromMacroFile();
        m_list.ExtractMacrosAndTitles();
        m_list.show();
    });
    connect(&m_parts.opening, &FileOpening::pairLoaded, this,
            [this] { m_operations.IdentifyMacrosUsed(MacroOperations::ShowAll); });
    connect(&m_parts.saving, &FileSaving::saved, this, [this](DocumentKind kind) {
        if (kind == DocumentKind::Macro) {
            afterMacroSave();
        }
    });
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
            m_context.settings.*tick.setting = m_parts.actions.action(tick.action)->isChecked();
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
    // Where a drag ends is seen by the change that it makes.
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
    m_list.frame()->applySettings(m_context.settings);
    for (const TickSetting &tick : tickSettings) {
        m_parts.actions.action(tick.action)->setChecked(m_context.settings.*tick.setting == 1);
    }
}

} // namespace zeph
