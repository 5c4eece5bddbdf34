// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/cougar_tools.h"

#include "editor/editor.h"
#include "shell/compile_menu.h"
#include "shell/key_tester_menu.h"
#include "shell/mum.h"

namespace zeph {

CougarTools::CougarTools(const Context &context, Joystick &joystick, Mum &mum, Editor &editor,
                         HelpMenu &help)
    : QObject(&editor), m_handshake(context, &mum), m_modes(context, m_handshake, joystick),
      m_profiles(context, m_handshake), m_afterDownload(context)
{
    new CompileMenu(context, m_handshake, mum, editor, help);
    new KeyTesterMenu(context, m_modes, mum, editor);
}

} // namespace zeph
