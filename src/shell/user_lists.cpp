// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/user_lists.h"

#include "editor/editor.h"
#include "shell/custom_apps_menu.h"
#include "shell/favourites_menu.h"
#include "shell/recent_files.h"

namespace zeph {

UserLists::UserLists(const Context &context, Editor &editor)
    : QObject(&editor), m_recent(new RecentFiles(context, editor)),
      m_favourites(new FavouritesMenu(context, editor)),
      m_customApps(new CustomAppsMenu(context, editor))
{
}

void UserLists::save()
{
    m_customApps->save();
    m_favourites->save();
}

} // namespace zeph
