// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "lists/user_lists.h"

#include "editor/editor.h"
#include "lists/custom_apps_menu.h"
#include "lists/favourites_menu.h"
#include "lists/recent_files.h"

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
