// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolchain/compile/download.h"

#include <QObject>

namespace zeph {

class Document;

/// The Download menu's own five entries: the download and the ticks that say what goes with it.
class DownloadMenu : public QObject
{
    Q_OBJECT
public:
    DownloadMenu(const Context &context, const ToolParts &parts);

    /// Does what the entry of that index is for: 0 downloads, the others have just flipped their
    /// tick, which is taken over.
    void DownloadArray1_Click(int index);
    /// Writes the ticks of entries 1, 3 and 4; that of entry 2 is written at the end of the run.
    void SaveDownloadMode();
    /// Ticks the entries as the settings say.
    void applySettings();

private:
    void nameTheFile();

    Context m_context;
    Document &m_joystick;
    MenuActions &m_actions;
    Download m_download;
};

} // namespace zeph
