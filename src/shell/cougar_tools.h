// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolchain/compile/after_download.h"
#include "toolchain/handshake.h"
#include "toolchain/modes/cougar_modes.h"
#include "toolchain/modes/profiles.h"

#include <QObject>

namespace zeph {

class CompileMenu;
class DownloadMenu;
class Editor;
class GamesMenu;
class HelpMenu;
class Joystick;
class Mum;
class ToolsMenu;
struct CompilerVerdict;

/// Everything that reaches the Cougar, tied to the main window and the Editor's menus. Owns the one
/// handshake that all exchanges with the tools share.
class CougarTools : public QObject
{
    Q_OBJECT
public:
    /// Made before the Editor, since the start of a run asks the Cougar's mode before it.
    CougarTools(const Context &context, Joystick &joystick, Mum &mum);
    /// Ties everything to the Editor's menus.
    void attach(const Context &context, Mum &mum, Editor &editor, HelpMenu &help);

    ToolchainHandshake &handshake() { return m_handshake; }
    CougarModes &modes() { return m_modes; }
    Profiles &profiles() { return m_profiles; }
    AfterDownload &afterDownload() { return m_afterDownload; }
    ToolsMenu &toolsMenu() { return *m_toolsMenu; }
    DownloadMenu &downloadMenu() { return *m_downloadMenu; }
    GamesMenu &gamesMenu() { return *m_gamesMenu; }

private:
    ToolchainHandshake m_handshake;
    CougarModes m_modes;
    Profiles m_profiles;
    AfterDownload m_afterDownload;
    ToolsMenu *m_toolsMenu = nullptr;
    DownloadMenu *m_downloadMenu = nullptr;
    GamesMenu *m_gamesMenu = nullptr;
};

} // namespace zeph
