// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/custom_apps_menu.h"

#include "editor/editor.h"
#include "editor/editor_actions.h"
#include "platform/dialogs.h"
#include "shell/menu_array.h"

#include <QAction>

namespace zeph {

namespace {

QString entryOf(int place)
{
    return u"mnuCustomApp_"_s + QString::number(place);
}

} // namespace

CustomAppsMenu::CustomAppsMenu(const Context &context, Editor &editor)
    : QObject(&editor), m_context(context), m_editor(editor),
      m_apps(readCustomApps(ProfileFile(context.paths.iniPath)))
{
    for (int place = 1; place <= int(m_apps.size()); ++place) {
        editor.actions().connectTo(entryOf(place), [this, place] { mnuCustomApp_Click(place); });
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
    if (!app.CustomAppName.isEmpty()) {
        entry->setText(captionOf(app.CustomAppName));
    }
    entry->setStatusTip(app.CustomAppPath);
    const QString file = customAppPicture(m_context.paths, place);
    if (!fileExists(file)) {
        makeCustomAppPicture(app, file);
    }
    if (const QIcon picture = loadCustomAppPicture(file); !picture.isNull()) {
        entry->setIcon(picture);
    }
}

} // namespace zeph
