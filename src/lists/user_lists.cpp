// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "lists/user_lists.h"

#include "documents/documents.h"
#include "editor/editor.h"
#include "editor/files/file_opening.h"
#include "editor/files/file_saving.h"
#include "lists/custom_apps.h"
#include "lists/favourites_menu.h"
#include "menus/menu_actions.h"
#include "platform/core/most_recent.h"
#include "platform/core/profile_list.h"
#include "platform/dialogs.h"
#include <QAction>
#include <QMenu>

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

namespace {

constexpr qint32 mostFiles = 30;
constexpr QStringView joystickFields[] = { u"JFPath" };
constexpr QStringView macroFields[] = { u"MFPath" };

struct RecentKind {
    ProfileListKeys keys;
    QStringView entries; ///< the menu entries' array
    QStringView menu;
    QStringView divider;
    QStringView clearAll;
};

/// In the order of DocumentKind.
constexpr RecentKind kinds[] = {
    { { u"PreviousJoystickFiles", u"JFArrayNum", joystickFields, mostFiles },
      u"mnuJFArray",
      u"mnuJFList",
      u"mnuJFDivider",
      u"mnuPreviousClearAllJ" },
    { { u"PreviousMacroFiles", u"MFArrayNum", macroFields, mostFiles },
      u"mnuMFArray",
      u"mnuMFList",
      u"mnuMFDivider",
      u"mnuPreviousClearAllM" },
};

const RecentKind &tableOf(DocumentKind kind)
{
    return kinds[size_t(kind)];
}

QList<ProfileRow> rowsOf(const QStringList &paths)
{
    QList<ProfileRow> rows;
    for (const QString &path : paths) {
        rows.append(ProfileRow{ path });
    }
    return rows;
}

} // namespace

RecentFiles::RecentFiles(const Context &context, Editor &editor)
    : QObject(&editor), m_context(context), m_editor(editor), m_store(context.paths.iniPath)
{
    for (const DocumentKind kind : { DocumentKind::Joystick, DocumentKind::Macro }) {
        for (const ProfileRow &row : readProfileList(m_store, tableOf(kind).keys)) {
            if (!row.first().isEmpty()) {
                m_lists[size_t(kind)].append(row.first());
            }
        }
        makeMenu(kind);
    }
    editor.documents().forEach([this](Document &each) { follow(each); });
}

void RecentFiles::follow(Document &document)
{
    connect(&document, &Document::replaced, this, [this, &document](Document::How how) {
        // A text recovered after a crash may have no file yet.
        const bool isOpened = how == Document::How::Loaded || how == Document::How::Recovered;
        if (isOpened && fileExists(document.path())) {
            update(document.kind(), document.path());
        }
    });
    // Autosaves count too, but an untitled text has no name to find it by.
    connect(&document, &Document::written, this, [this, &document] {
        if (!isUntitled(document.name())) {
            update(document.kind(), document.path());
        }
    });
}

void RecentFiles::makeMenu(DocumentKind kind)
{
    const RecentKind &table = tableOf(kind);
    MenuActions &actions = m_editor.actions();
    m_menus[size_t(kind)] =
        new MenuArray(m_context.dialogs, *actions.menu(table.menu), actions.action(table.divider),
                      table.entries.toString(), [this, kind](int place) { open(kind, place); });
    actions.connectTo(table.clearAll, [this, kind] { clearAll(kind); });
    showMenu(kind);
}

void RecentFiles::update(DocumentKind kind, const QString &path)
{
    QStringList &list = m_lists[size_t(kind)];
    putFirst(list, path, mostFiles, std::equal_to<QString>());
    // A failed write is not told: losing these lists does little harm.
    (void)m_store.write(profileListEntries(m_store, tableOf(kind).keys, rowsOf(list)));
    showMenu(kind);
}

void RecentFiles::clearAll(DocumentKind kind)
{
    QStringList &list = m_lists[size_t(kind)];
    QList<ProfileEntry> emptied =
        profileListEntries(m_store, tableOf(kind).keys, rowsOf(QStringList(list.size())));
    emptied.first().value = u"0"_s;
    list.clear();
    (void)m_store.write(emptied);
    showMenu(kind);
}

void RecentFiles::open(DocumentKind kind, int place)
{
    const QString path = list(kind).value(place - 1);
    const QString existing = existingPath(path);
    if (existing.isEmpty()) {
        m_context.dialogs.tell(
            u"Can't find file"_s,
            u"There's a problem here ... I couldn't find "_s + path
                + u" which probably means you've deleted it or moved it. Sorry!"_s,
            BoxIcon::Exclamation);
        return;
    }
    m_editor.opening().OpenPreviouslySavedFiles(existing);
}

void RecentFiles::showMenu(DocumentKind kind)
{
    const RecentKind &table = tableOf(kind);
    const bool any = !list(kind).isEmpty();
    m_menus[size_t(kind)]->setCaptions(list(kind));
    m_editor.action(table.clearAll)->setVisible(any);
    m_editor.action(table.menu)->setEnabled(any);
}

} // namespace zeph
