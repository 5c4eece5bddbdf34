// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/cougar_tools.h"

#include "menus/menu_actions.h"
#include "toolchain/compile/compile.h"
#include "toolchain/compile/download_menu.h"
#include "toolchain/games/games_menu.h"
#include "toolchain/tool_parts.h"
#include "toolchain/tool_presence.h"
#include "toolchain/tools_menu.h"

namespace zeph {

CougarTools::CougarTools(const Context &context, Joystick &joystick, QWidget &mainWindow)
    : QObject(&mainWindow), m_context(context), m_mainWindow(mainWindow),
      m_handshake(context, &mainWindow), m_modes(context, m_handshake, joystick),
      m_profiles(context, m_handshake), m_afterDownload(context), m_externalTools(context, m_modes)
{
}

CougarTools::~CougarTools() = default;

void CougarTools::attach(MenuActions &actions, Documents &documents, DocumentSaver &saver,
                         ToolScene &scene)
{
    const ToolParts parts{ m_handshake, m_modes, m_profiles, m_afterDownload, documents,
                           saver,       scene,   actions,    m_mainWindow };
    m_compile = std::make_unique<Compile>(m_context, parts);
    m_toolsMenu = std::make_unique<ToolsMenu>(m_context, parts, m_externalTools);
    m_downloadMenu = std::make_unique<DownloadMenu>(m_context, parts);
    m_gamesMenu = std::make_unique<GamesMenu>(m_context, parts);
    actions.connectTo(u"mnuAppsCompile", [this] { m_compile->mnuAppsCompile_Click(); });
    connectModes(actions);
    m_presence = new ToolPresence(m_context, actions);
}

void CougarTools::connectModes(MenuActions &actions)
{
    for (const auto request : { ButtonsRequest::Windows, ButtonsRequest::Programmed }) {
        actions.connectTo(u"mnuButtonsModeArray_"_s + QString::number(int(request)),
                          [this, request] { m_modes.changeButtonsMode(request); });
    }
    for (const int index : { 0, 1 }) {
        actions.connectTo(u"mnuAxesModeArray_"_s + QString::number(index),
                          [this, index] { m_modes.mnuAxesModeArray_Click(index); });
    }
}

} // namespace zeph
