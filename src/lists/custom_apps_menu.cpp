// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "lists/custom_apps_menu.h"

#include "editor/editor.h"
#include "menus/menu_actions.h"
#include "menus/menu_array.h"
#include "platform/dialogs.h"

#include <QAction>
#include <QFile>

namespace zeph {

namespace {

QString entryOf(int place)
{
    return u"mnuCustomApp_"_s + QString::number(place);
}

} // namespace

CustomAppsMenu::CustomAppsMenu(const Context &context, Editor &editor)
    : QObject(&editor), m_context(context), m_editor(editor),
      m_apps(readCustomApps(ProfileFile(context.paths.iniPath))),
      m_plainPicture(editor.action(entryOf(1))->icon())
{
    for (int place = 1; place <= int(m_apps.size()); ++place) {
        m_plainCaptions[size_t(place - 1)] = editor.action(entryOf(place))->text();
        editor.actions().connectTo(entryOf(place), [this, place] { mnuCustomApp_Click(place); });
        show(place);
    }
}

void CustomAppsMenu::set(const CustomApps &apps)
{
    for (int place = 1; place <= int(apps.size()); ++place) {
        const size_t index = size_t(place - 1);
        const QString picture = existingPath(customAppPicture(m_context.paths, place));
        if (apps[index].CustomAppPath != m_apps[index].CustomAppPath && !picture.isEmpty()) {
            // Another program has another picture, or none.
            QFile::remove(picture);
        }
        m_apps[index] = apps[index];
        show(place);
    }
}

void CustomAppsMenu::save()
{
    // A store that cannot be written makes no fuss, as everywhere in the store.
    (void)writeCustomApps(ProfileFile(m_context.paths.iniPath), m_apps);
}

void CustomAppsMenu::mnuCustomApp_Click(int place)
{
    const CustomApp &app = m_apps.at(size_t(place - 1));
    if (const auto started = m_context.launcher.start(customAppLaunch(app)); !started) {
        m_context.dialogs.tell(u"I couldn't start that buddy"_s, started.error(),
                               BoxIcon::Exclamation);
    }
}

void CustomAppsMenu::show(int place)
{
    const CustomApp &app = m_apps.at(size_t(place - 1));
    QAction *entry = m_editor.action(entryOf(place));
    entry->setVisible(app.CustomAppUse);
    entry->setEnabled(app.CustomAppUse);
    if (!app.CustomAppUse) {
        return;
    }
    entry->setText(app.CustomAppName.isEmpty() ? m_plainCaptions[size_t(place - 1)]
                                               : captionOf(app.CustomAppName));
    entry->setStatusTip(app.CustomAppPath);
    const QString file = customAppPicture(m_context.paths, place);
    if (!fileExists(file)) {
        makeCustomAppPicture(app, file);
    }
    const QIcon picture = loadCustomAppPicture(file);
    entry->setIcon(picture.isNull() ? m_plainPicture : picture);
}

} // namespace zeph
