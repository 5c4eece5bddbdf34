// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The four custom applications: programs that the user has put on the Apps menu and its toolbar.

#include "platform/context.h"
#include "platform/core/paths.h"
#include "platform/core/profile_file.h"
#include "platform/process_launcher.h"

#include <QIcon>

#include <QObject>
#include <array>

namespace zeph {

struct CustomApp {
    QString CustomAppName;
    QString CustomAppPath; ///< followed by any switches
    bool CustomAppUse = false; ///< whether it is shown
};

/// The index is 0-based; the numbers in keys, names and captions count from 1.
using CustomApps = std::array<CustomApp, 4>;

CustomApps readCustomApps(const ProfileFile &store);
Expected<void, FileError> writeCustomApps(const ProfileFile &store, const CustomApps &apps);

/// The launch of an application: in the foreground, with the root of its drive as working folder.
Launch customAppLaunch(const CustomApp &app);

/// What keeps an application from being started, in words: it is missing, or a folder. Empty when
/// nothing does.
QString lackOf(const CustomApp &app, const ProcessLauncher &launcher);

/// The path of the picture of the application at a place (1-based).
QString customAppPicture(const Paths &paths, int place);
/// Writes that file from the icon that the system shows for the application. False, and nothing
/// written, when the system has no icon or the disk refuses.
bool makeCustomAppPicture(const CustomApp &app, const QString &file);
/// Reads that file; an empty icon when it does not exist.
QIcon loadCustomAppPicture(const QString &file);

class Editor;

/// The custom applications on the Apps menu; the buttons of the toolbar follow the menu entries.
class CustomAppsMenu : public QObject
{
    Q_OBJECT
public:
    /// Reads the applications from the settings store and shows them.
    CustomAppsMenu(const Context &context, Editor &editor);

    const CustomApps &apps() const { return m_apps; }
    /// Replaces the applications and shows them on the menu and the toolbar. Does not store them:
    /// that is save().
    void set(const CustomApps &apps);
    void save();

private:
    void mnuCustomApp_Click(int place);
    void show(int place);

    Context m_context;
    Editor &m_editor;
    CustomApps m_apps;
    /// The looks of an entry whose application has no name or no picture.
    std::array<QString, std::tuple_size_v<CustomApps>> m_plainCaptions;
    QIcon m_plainPicture;
};

} // namespace zeph
