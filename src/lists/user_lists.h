// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "language/file_kinds.h"
#include "platform/context.h"
#include "platform/core/profile_file.h"

#include <QObject>
#include <array>

class QMenu;

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

    /// Writes the custom applications and the favourites, even if unchanged.
    void save();

private:
    RecentFiles *m_recent;
    FavouritesMenu *m_favourites;
    CustomAppsMenu *m_customApps;
};

class Document;
class MenuArray;

/// The joystick files and macro files opened or saved before: most recently used first, at most 30
/// each, with their entries in the File menu.
class RecentFiles : public QObject
{
    Q_OBJECT
public:
    /// Reads both lists from the settings store and shows them.
    RecentFiles(const Context &context, Editor &editor);

    const QStringList &list(DocumentKind kind) const { return m_lists[size_t(kind)]; }

private:
    void follow(Document &document);
    void makeMenu(DocumentKind kind);
    void update(DocumentKind kind, const QString &path);
    void clearAll(DocumentKind kind);
    void open(DocumentKind kind, int place);
    void showMenu(DocumentKind kind);

    Context m_context;
    Editor &m_editor;
    ProfileFile m_store;
    std::array<QStringList, 2> m_lists;
    std::array<MenuArray *, 2> m_menus{};
};

} // namespace zeph
