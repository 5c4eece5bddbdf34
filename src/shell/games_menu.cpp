// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/games_menu.h"

#include "documents/editor_view.h"
#include "documents/foreign_keyboard.h"
#include "editor/editor.h"
#include "editor/files/file_opening.h"
#include "editor/files/file_saving.h"
#include "menus/menu_actions.h"
#include "menus/menu_array.h"
#include "platform/tool_windows.h"
#include "settings/global_settings.h"
#include "shell/compile_menu.h"
#include "shell/mum.h"
#include "toolchain/compile/after_download.h"
#include "toolchain/games/entergamename.h"
#include "toolchain/modes/cougar_modes.h"
#include "toolchain/modes/profiles.h"

#include <QAction>
#include <QMenu>

namespace zeph {

GamesMenu::GamesMenu(const Context &context, const Parts &parts)
    : QObject(&parts.editor), m_context(context), m_parts(parts), m_games(context.paths.iniPath),
      m_launch(context, parts.handshake, m_games, host())
{
    MenuActions &actions = parts.editor.actions();
    m_menu = new MenuArray(context.dialogs, *actions.menu(u"mnuGames"),
                           actions.action(u"mnuGamesSortDivider"), u"mnuGameArray"_s,
                           [this](int place) { m_launch.mnuGameArray_Click(place); });
    actions.connectTo(u"mnuGamesAdd", [this] { mnuGamesAdd_Click(); });
    actions.connectTo(u"mnuGamesSort", [this] { m_games.SortGamesAlphabetically(); });
    connect(&m_games, &Games::changed, this, &GamesMenu::showGames);
    showGames();
    applySettings();
}

void GamesMenu::applySettings()
{
    const QString caption = m_context.settings.GamesCaption;
    m_parts.editor.actions().menu(u"mnuGames")->setTitle(caption.isEmpty() ? u"&Games"_s : caption);
}

GamesHost GamesMenu::host()
{
    GamesHost host;
    addEditorTo(host);
    addToolsTo(host);
    host.bringMainWindowBack = [this] {
        ToolWindows::raise(m_parts.mum);
        m_parts.editor.ResetFocusToEditor();
    };
    host.minimiseMainWindow = [this] {
        m_parts.mum.showMinimized();
    };
    return host;
}

void GamesMenu::addEditorTo(GamesHost &host)
{
    Editor &editor = m_parts.editor;
    host.joystick = [&editor]() -> const Document & {
        return editor.joystick();
    };
    host.saveChanged = [this] {
        saveChanged();
    };
    host.resetsAxes = [&editor] {
        return editor.action(u"mnuResetAxes")->isChecked();
    };
    host.ensuresNumLock = [&editor] {
        return editor.action(u"DownloadArray1_3")->isChecked();
    };
    host.OpenPreviouslySavedFiles = [&editor](const QString &path) {
        editor.opening().OpenPreviouslySavedFiles(path);
    };
    host.selectJoystickTab = [&editor] {
        editor.documents().select(DocumentKind::Joystick);
    };
    host.HighlightErrorLine = [&editor](int line, const QString &text) {
        editor.HighlightErrorLine(line, text);
    };
}

void GamesMenu::addToolsTo(GamesHost &host)
{
    host.ApplyDefaultProfile = [this] {
        return m_parts.profiles.ApplyDefaultProfile();
    };
    host.changeToPureWindows = [this] {
        return m_parts.modes.changeWholeMode(false);
    };
    host.TurnNumLockOn = [this] {
        m_parts.afterDownload.TurnNumLockOn();
    };
    host.GetAppsToRun = [this] {
        m_parts.afterDownload.GetAppsToRun(m_parts.editor.joystickText());
    };
    host.showCougarModeIfDetecting = [this] {
        if (m_parts.modes.detectorRuns()) {
            m_parts.modes.ShowCougarMode();
        }
    };
    host.showCompilerHelp = [this](const CompilerVerdict &verdict) {
        m_parts.compile.showCompilerHelp(verdict);
    };
}

/// A document that could not be saved, or whose Save As was cancelled, stays marked as changed: its
/// text would otherwise go without a question at the end of the run.
void GamesMenu::saveChanged()
{
    Editor &editor = m_parts.editor;
    const DocumentKind selected = editor.selected().kind();
    for (const DocumentKind kind : { DocumentKind::Joystick, DocumentKind::Macro }) {
        if (editor.documents().of(kind).isModified()) {
            editor.documents().select(kind);
            editor.saving().mnuFileSave_Click();
        }
    }
    if (editor.selected().kind() != selected) {
        editor.documents().select(selected);
    }
}

void GamesMenu::mnuGamesAdd_Click()
{
    const Document &joystick = m_parts.editor.joystick();
    EnterGameName window(m_context.paths, m_context.dialogs,
                         isUntitled(joystick.name()) ? QString() : joystick.path(), &m_parts.mum);
    new ForeignKeyBSupport(m_context.keyboard, m_context.settings, &window);
    if (window.exec() == QDialog::Accepted) {
        m_games.update(window.game());
    }
}

void GamesMenu::showGames()
{
    QStringList names;
    for (const Game &game : m_games.list()) {
        names.append(game.GameName);
    }
    m_menu->setCaptions(names);
    for (const QStringView name : { u"mnuGamesDivider", u"mnuGamesSortDivider", u"mnuGamesSort" }) {
        m_parts.editor.action(name)->setVisible(!names.isEmpty());
    }
}

} // namespace zeph
