// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolchain/compile/download.h"

#include <QObject>

namespace zeph {

class AfterDownload;
class CompileMenu;
class CougarModes;
class Editor;
class Profiles;

/// The Download menu's own five entries: the download and the ticks that say what goes with it.
class DownloadMenu : public QObject
{
    Q_OBJECT
public:
    struct Parts {
        ToolchainHandshake &handshake;
        CougarModes &modes;
        Profiles &profiles;
        AfterDownload &afterDownload;
        CompileMenu &compile;
        Editor &editor;
    };

    DownloadMenu(const Context &context, const Parts &parts);

    void DownloadTMJ() { m_download.DownloadTMJ(); }
    /// The entry of that index: 0 downloads, the others have just flipped their tick.
    void DownloadArray1_Click(int index);
    /// Writes the ticks of entries 1, 3 and 4; that of entry 2 is written at exit.
    void SaveDownloadMode();
    /// Ticks the entries as the settings say.
    void applySettings();

private:
    DownloadHost host();
    void openKeyTester();

    Context m_context;
    Parts m_parts;
    Download m_download;
};

} // namespace zeph
