// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/help_menu.h"

#include "editor/editor.h"
#include "menus/menu_actions.h"
#include "platform/dialogs.h"
#include "platform/package.h"
#include "platform/process_launcher.h"
#include "platform/tool_windows.h"
#include "settings/settings.h"
#include "settings/shared_settings.h"
#include "shell/frmabout.h"
#include "shell/frmtip.h"
#include "shell/help_set.h"
#include "shell/helpwindow.h"
#include "shell/informationwindow.h"
#include "shell/settings/shell_settings.h"
#include "shell/version_check.h"

#include <QAction>
#include <QMenu>
#include <QScopedValueRollback>

namespace zeph {

HelpMenu::HelpMenu(const Context &context, Downloader &downloader, ToolWindows &windows,
                   Editor &editor)
    : QObject(&editor), m_context(context), m_downloader(downloader), m_windows(windows),
      m_editor(editor)
{
    offerWindows();
    MenuActions &on = editor.actions();
    on.connectTo(u"mnuHelpContents", [this] { mnuHelpContents_Click(); });
    on.connectTo(u"mnuHelpTip", [this] { showTip(); });
    on.connectTo(u"mnuHelpSyntax", [this] { showInformation(u"Syntax.rtf"_s, u"Syntax"_s); });
    on.connectTo(u"mnuHelpSlashModifiers",
                 [this] { showInformation(u"Slash modifiers.rtf"_s, u"Slash modifiers"_s); });
    on.connectTo(u"mnuHelpErrorCodes",
                 [this] { showInformation(u"Error codes.rtf"_s, u"Error codes"_s); });
    on.connectArray(u"mnuHelpAbout"_s, [this](int i) { mnuHelpAbout_Click(i); });
    connect(&editor, &Editor::helpOn, this,
            guarded(context.dialogs, [this](const QString &word) { showKeyword(word); }));
}

void HelpMenu::offerWindows()
{
    m_windows.offer<HelpWindow>([this](QWidget *owner) {
        return new HelpWindow(m_context.paths, m_context.dialogs, m_context.launcher, owner);
    });
    m_windows.offer<InformationWindow>(
        [this](QWidget *owner) { return new InformationWindow(m_context.dialogs, owner); });
    m_windows.offer<frmTip>([this](QWidget *owner) {
        return new frmTip(m_context.paths, m_context.settings, {}, owner);
    });
    m_windows.offer<frmAbout>(
        [this](QWidget *owner) { return new frmAbout(m_context.paths, owner); });
}

void HelpMenu::readZephInfo()
{
    const auto info = ::zeph::readZephInfo(m_context.paths);
    if (!info) {
        m_context.dialogs.tell(u"Missing file"_s,
                               u"Interesting. ZephInfo.ini is missing from Zeph's Info folder, so "
                               "I'm not going to be able to enable the Help menu's Manuals menu "
                               "item."_s,
                               BoxIcon::Exclamation);
    }
    fillSubmenu(u"mnuHelpHowDoI", info ? info->onlineHelp : QList<InfoEntry>(),
                &HelpMenu::openInformation);
    fillSubmenu(u"mnuHelpManuals", info ? info->manuals : QList<InfoEntry>(),
                &HelpMenu::openManual);
}

void HelpMenu::fillSubmenu(QStringView name, const QList<InfoEntry> &entries,
                           void (HelpMenu::*open)(const InfoEntry &))
{
    QMenu *menu = m_editor.actions().menu(name);
    menu->clear();
    for (const InfoEntry &entry : entries) {
        QAction *action = menu->addAction(entry.caption);
        action->setObjectName(name.toString() + u"Array_"_s
                              + QString::number(menu->actions().size() - 1));
        connect(action, &QAction::triggered, this,
                guarded(m_context.dialogs, [this, open, entry](bool) { (this->*open)(entry); }));
    }
    m_editor.action(name)->setEnabled(!entries.isEmpty());
}

void HelpMenu::mnuHelpContents_Click()
{
    // A pilot who keeps a help file of the old form asks for it by hand.
    const QString oldHelp = existingPath(m_context.paths.inApp(u"Zeph.hlp"));
    if (m_context.settings.of<SharedSettings>().UseHLPnotCHM && !oldHelp.isEmpty()) {
        if (const auto opened = m_context.launcher.openWithDesktop(oldHelp); !opened) {
            m_context.dialogs.tell(u"Can't open help"_s, opened.error(), BoxIcon::Exclamation);
        }
        return;
    }
    if (auto *help = m_windows.load<HelpWindow>(); help->showContents()) {
        ToolWindows::raise(*help);
    }
}

void HelpMenu::showTopic(int number)
{
    if (auto *help = m_windows.load<HelpWindow>(); help->showTopic(number)) {
        ToolWindows::raise(*help);
    }
}

void HelpMenu::showKeyword(const QString &word)
{
    if (auto *help = m_windows.load<HelpWindow>(); help->showKeyword(word)) {
        ToolWindows::raise(*help);
    }
}

bool HelpMenu::showFile(const QString &path, const QString &title)
{
    auto *window = m_windows.load<InformationWindow>();
    if (!window->showFile(path, title)) {
        return false;
    }
    ToolWindows::raise(*window);
    return true;
}

void HelpMenu::showInformation(const QString &fileName, const QString &title)
{
    showFile(m_context.paths.infoFolder() + fileName, title);
}

void HelpMenu::openInformation(const InfoEntry &entry)
{
    showFile(entry.path, QString(entry.caption).remove(u'&'));
}

void HelpMenu::openManual(const InfoEntry &entry)
{
    const QString path = existingPath(entry.path);
    if (path.isEmpty()) {
        m_context.dialogs.tell(u"Missing manual"_s,
                               u"Manual not found. According to the ZephInfo.ini file, it should "
                               "be located here: "_s
                                   + entry.path,
                               BoxIcon::Exclamation);
        return;
    }
    auto *help = m_windows.load<HelpWindow>();
    if (help->showPage(path)) {
        ToolWindows::raise(*help);
    } else if (const auto opened = m_context.launcher.openWithDesktop(path); !opened) {
        m_context.dialogs.tell(u"Can't open manual"_s, opened.error(), BoxIcon::Exclamation);
    }
}

void HelpMenu::showTip()
{
    m_windows.open<frmTip>();
}

void HelpMenu::mnuHelpAbout_Click(int index)
{
    if (index == 0) {
        // The wait leaves the menus alive; one question at a time is enough.
        if (!m_checksVersion) {
            const QScopedValueRollback<bool> checking(m_checksVersion, true);
            checkVersion(m_downloader, m_context, m_context.settings.of<ShellSettings>().VersionURL,
                         readPackage(QCoreApplication::applicationDirPath()));
        }
    } else if (index == 1) {
        showInformation(u"Vista compatibility.rtf"_s, u"Vista compatibility"_s);
    } else {
        m_windows.open<frmAbout>();
    }
}

} // namespace zeph
