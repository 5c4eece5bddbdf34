// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/cougar_tools.h"

#include "editor/editor.h"
#include "shell/compile_menu.h"
#include "shell/games_menu.h"
#include "shell/mum.h"

namespace zeph {

CougarTools::CougarTools(const Context &context, Joystick &joystick, Mum &mum, Editor &editor,
                         HelpMenu &help)
    : QObject(&editor), m_handshake(context, &mum), m_modes(context, m_handshake, joystick),
      m_profiles(context, m_handshake), m_afterDownload(context)
{
    auto *compile = new CompileMenu(context, m_handshake, mum, editor, help);
    new GamesMenu(context,
                  { mum, editor, *compile, m_handshake, m_modes, m_profiles, m_afterDownload });
}

} // namespace zeph
