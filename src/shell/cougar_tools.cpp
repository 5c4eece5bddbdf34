// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/cougar_tools.h"

#include "editor/editor.h"
#include "shell/compile_menu.h"
#include "shell/download_menu.h"
#include "shell/games_menu.h"
#include "shell/mode_menu.h"
#include "shell/mum.h"
#include "shell/tools_menu.h"

namespace zeph {

CougarTools::CougarTools(const Context &context, Joystick &joystick, Mum &mum)
    : QObject(&mum), m_handshake(context, &mum), m_modes(context, m_handshake, joystick),
      m_profiles(context, m_handshake), m_afterDownload(context)
{
}

void CougarTools::attach(const Context &context, Mum &mum, Editor &editor, HelpMenu &help)
{
    new ModeMenu(context, m_modes, mum, editor);
    m_toolsMenu = new ToolsMenu(context, m_modes, m_profiles, mum, editor);
    auto *compile = new CompileMenu(context, m_handshake, mum, editor, help);
    m_downloadMenu = new DownloadMenu(
        context, { m_handshake, m_modes, m_profiles, m_afterDownload, *compile, editor });
    m_gamesMenu = new GamesMenu(
        context, { mum, editor, *compile, m_handshake, m_modes, m_profiles, m_afterDownload });
}

} // namespace zeph
