// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/preferences_menu.h"

#include "documents/document_settings.h"
#include "documents/foreign_keyboard.h"
#include "documents/highlighting.h"
#include "documents/undo_histories.h"
#include "editor/editor.h"
#include "editor/editor_settings.h"
#include "editor/files/file_new.h"
#include "editor/files/loss_guards.h"
#include "lists/user_lists.h"
#include "menus/menu_actions.h"
#include "menus/menu_settings.h"
#include "preferences/preferences.h"
#include "settings/colour_settings.h"
#include "settings/settings.h"
#include "shell/mum.h"
#include "toolchain/compile/download_menu.h"
#include "toolchain/cougar_tools.h"
#include "toolchain/games/games_menu.h"
#include "toolchain/tool_presence.h"
#include "toolchain/tools_menu.h"

#include <QApplication>
#include <QEvent>

namespace zeph {

PreferencesMenu::PreferencesMenu(const Context &context, const Parts &parts)
    : QObject(&parts.editor), m_context(context), m_parts(parts)
{
    MenuActions &actions = parts.editor.actions();
    actions.connectTo(u"mnuAppsPreferences", [this] { mnuAppsPreferences_Click(); });
    actions.connectTo(u"mnuGamesEdit", [this] { mnuGamesEdit_Click(); });
    new TooltipSwitch(context.settings.of<MenuSettings>(), this);
}

void PreferencesMenu::open(PreferencesTab tab)
{
    const EditorSettings editor = m_context.settings.of<EditorSettings>();
    const ColourSettings colours = m_context.settings.of<ColourSettings>();
    Preferences window(m_context, { m_parts.lists, m_parts.tools.gamesMenu().games() },
                       { [this] { m_parts.editor.undos().DeleteUndosFromMemory(); },
                         [this] {
                             restartDetector();
                         } },
                       &m_parts.mum);
    new ForeignKeyBSupport(m_context.keyboard, m_context.settings.of<DocumentSettings>(), &window);
    window.showTab(tab);
    window.exec();
    // The program may have been told to end meanwhile, which closes no window.
    window.unload();
    follow(editor, colours);
    if (window.hardwareHasChanged()) {
        m_parts.editor.fresh().HardwareHasChanged();
    }
}

void PreferencesMenu::restartDetector()
{
    if (m_parts.tools.modes().detectorRuns()) {
        m_parts.tools.modes().EnableStatusTimer();
    }
}

void PreferencesMenu::follow(const EditorSettings &editor, const ColourSettings &colours)
{
    m_parts.tools.downloadMenu().applySettings();
    m_parts.tools.presence().refresh();
    const auto &now = m_context.settings.of<EditorSettings>();
    if (now.AutoSaveEnabled != editor.AutoSaveEnabled || now.AutoSaveTime != editor.AutoSaveTime) {
        m_parts.editor.guards().autoSave.restart();
    }
    m_parts.editor.applySettings();
    m_parts.editor.highlighting().followScheme(colours);
    m_parts.tools.gamesMenu().applySettings();
    m_parts.mum.UpdateTooltips();
    m_parts.mum.refreshToolbars();
}

TooltipSwitch::TooltipSwitch(const MenuSettings &settings, QObject *parent)
    : QObject(parent), m_settings(settings)
{
    qApp->installEventFilter(this);
}

bool TooltipSwitch::eventFilter(QObject *watched, QEvent *event)
{
    return (event->type() == QEvent::ToolTip && !m_settings.OKtoShowToolTips)
        || QObject::eventFilter(watched, event);
}

} // namespace zeph
