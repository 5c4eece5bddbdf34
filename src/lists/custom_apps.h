// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The four custom applications: programs of the user's on the Apps menu and its toolbar.

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
    QString CustomAppPath; ///< with any switches behind it
    bool CustomAppUse = false; ///< whether it is shown
};

/// By place, which counts from 1 where it is told to the user or stands in a name.
using CustomApps = std::array<CustomApp, 4>;

CustomApps readCustomApps(const ProfileFile &store);
Expected<void, FileError> writeCustomApps(const ProfileFile &store, const CustomApps &apps);

/// How an application starts: in front, in the root of its drive.
Launch customAppLaunch(const CustomApp &app);

/// The file of an application's picture, place by place (1-based).
QString customAppPicture(const Paths &paths, int place);
/// Makes that file from the icon that the system shows for the application. False, and no file
/// changed, when the system has none.
bool makeCustomAppPicture(const CustomApp &app, const QString &file);
/// The picture; empty when there is no such file.
QIcon loadCustomAppPicture(const QString &file);

class Editor;

/// The custom applications on the Apps menu; the toolbar's buttons follow its entries.
class CustomAppsMenu : public QObject
{
    Q_OBJECT
public:
    /// Reads the applications.
    CustomAppsMenu(const Context &context, Editor &editor);

    const CustomApps &apps() const { return m_apps; }
    /// Takes other applications and shows them on the menu and the toolbar, with pictures of their
    /// own; save() keeps them.
    void set(const CustomApps &apps);
    void save();

private:
    void mnuCustomApp_Click(int place);
    void show(int place);

    Context m_context;
    Editor &m_editor;
    CustomApps m_apps;
    /// How an entry looks whose application has no name or no picture.
    std::array<QString, std::tuple_size_v<CustomApps>> m_plainCaptions;
    QIcon m_plainPicture;
};

} // namespace zeph
