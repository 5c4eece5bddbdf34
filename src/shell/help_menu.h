// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"

#include <QObject>

namespace zeph {

class Downloader;
class Editor;
class ToolWindows;
struct InfoEntry;

/// What the Help menu and F1 do.
class HelpMenu : public QObject
{
    Q_OBJECT
public:
    HelpMenu(const Context &context, Downloader &downloader, ToolWindows &windows, Editor &editor);

    /// Fills the menus How do I and Manuals from ZephInfo.ini; tells when that file is missing.
    void readZephInfo();

    void mnuHelpContents_Click();
    void showTopic(int number);
    void showKeyword(const QString &word);
    /// Shows a text of the Info folder in a window of that title.
    void showInformation(const QString &fileName, const QString &title);
    void showTip();
    /// Runs the version check (0), shows the compatibility text (1) or the About window (2).
    void mnuHelpAbout_Click(int index);

private:
    void offerWindows();
    void fillSubmenu(QStringView name, const QList<InfoEntry> &entries,
                     void (HelpMenu::*open)(const InfoEntry &));
    void openInformation(const InfoEntry &entry);
    void openManual(const InfoEntry &entry);
    bool showFile(const QString &path, const QString &title);

    Context m_context;
    Downloader &m_downloader;
    ToolWindows &m_windows;
    Editor &m_editor;
    bool m_checksVersion = false;
};

} // namespace zeph
