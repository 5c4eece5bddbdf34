// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolchain/compile/after_download.h"
#include "toolchain/external_tools.h"
#include "toolchain/handshake.h"
#include "toolchain/modes/cougar_modes.h"
#include "toolchain/modes/profiles.h"

#include <QObject>

#include <memory>

namespace zeph {

class Compile;
class DocumentSaver;
class Documents;
class DownloadMenu;
class GamesMenu;
class Joystick;
class MenuActions;
class ToolPresence;
class ToolScene;
class ToolsMenu;

/// Everything that reaches the Cougar. Owns the one handshake that all exchanges with the tools
/// share.
class CougarTools : public QObject
{
    Q_OBJECT
public:
    /// The main window owns this object and the toolchain's windows. The modes can be used at once:
    /// the start of a run asks for the Cougar's mode before it makes the Editor.
    CougarTools(const Context &context, Joystick &joystick, QWidget &mainWindow);
    ~CougarTools() override;

    /// Connects the menu entries with what they do. The arguments must live as long as the entries
    /// can be used.
    void attach(MenuActions &actions, Documents &documents, DocumentSaver &saver, ToolScene &scene);

    ToolchainHandshake &handshake() { return m_handshake; }
    CougarModes &modes() { return m_modes; }
    Profiles &profiles() { return m_profiles; }
    AfterDownload &afterDownload() { return m_afterDownload; }
    /// The following exist only after attach().
    Compile &compile() { return *m_compile; }
    ToolsMenu &toolsMenu() { return *m_toolsMenu; }
    DownloadMenu &downloadMenu() { return *m_downloadMenu; }
    GamesMenu &gamesMenu() { return *m_gamesMenu; }
    ToolPresence &presence() { return *m_presence; }

private:
    void connectModes(MenuActions &actions);

    Context m_context;
    QWidget &m_mainWindow;
    ToolchainHandshake m_handshake;
    CougarModes m_modes;
    Profiles m_profiles;
    AfterDownload m_afterDownload;
    ExternalTools m_externalTools;
    std::unique_ptr<Compile> m_compile;
    std::unique_ptr<ToolsMenu> m_toolsMenu;
    std::unique_ptr<DownloadMenu> m_downloadMenu;
    std::unique_ptr<GamesMenu> m_gamesMenu;
    ToolPresence *m_presence = nullptr;
};

} // namespace zeph
