// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"

#include <QObject>

namespace zeph {

class CustomAppsMenu;
class Editor;
class FavouritesMenu;
class RecentFiles;

/// What the user has named or used before: recent files, favourites, custom applications. Reads
/// them all and shows them on the Editor's menus.
class UserLists : public QObject
{
    Q_OBJECT
public:
    UserLists(const Context &context, Editor &editor);

    RecentFiles &recent() { return *m_recent; }
    FavouritesMenu &favourites() { return *m_favourites; }
    CustomAppsMenu &customApps() { return *m_customApps; }

    /// Writes the custom applications and the favourites, whether or not they changed.
    void save();

private:
    RecentFiles *m_recent;
    FavouritesMenu *m_favourites;
    CustomAppsMenu *m_customApps;
};

} // namespace zeph
