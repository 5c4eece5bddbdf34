// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/compile/download_menu.h"

#include "documents/documents.h"
#include "menus/menu_actions.h"
#include "platform/status_line.h"
#include "settings/settings.h"
#include "settings/settings_files.h"
#include "toolchain/default_options.h"
#include "toolchain/toolchain_settings.h"

#include <QAction>

namespace zeph {

namespace {

enum DownloadEntry { DownloadFile, EnableAfter, RunKeyTester, NumLockOn, IgnoreRunApp };

struct Tick {
    DownloadEntry entry;
    SettingRef setting;
};

const Tick ticks[] = {
    { EnableAfter, &DefaultOptions::DownloadMode },
    { RunKeyTester, &ToolchainSettings::RunKeyTest },
    { NumLockOn, &ToolchainSettings::NumlockDownloadMode },
    { IgnoreRunApp, &ToolchainSettings::RunAppsWithDownload },
};

QString nameOf(int entry)
{
    return u"DownloadArray1_"_s + QString::number(entry);
}

} // namespace

DownloadMenu::DownloadMenu(const Context &context, const ToolParts &parts)
    : m_context(context), m_joystick(parts.documents.joystick()), m_actions(parts.actions),
      m_download(context, parts)
{
    for (int i = DownloadFile; i <= IgnoreRunApp; ++i) {
        m_actions.connectTo(nameOf(i), [this, i] { DownloadArray1_Click(i); });
    }
    applySettings();
    connect(&parts.documents, &Documents::selectedChanged, this, &DownloadMenu::nameTheFile);
    connect(&m_joystick, &Document::replaced, this, &DownloadMenu::nameTheFile);
}

void DownloadMenu::nameTheFile()
{
    // Only a .tmj file can be downloaded, so other names are not shown.
    const bool named = lastThree(m_joystick.name()) == extensionOf(DocumentKind::Joystick);
    const QString what = named ? captionOf(m_joystick.caption()) : u"joystick file"_s;
    m_actions.action(nameOf(DownloadFile))->setText(u"&Download "_s + what);
}

void DownloadMenu::DownloadArray1_Click(int index)
{
    if (index == DownloadFile) {
        m_download.DownloadTMJ();
        return;
    }
    for (const Tick &tick : ticks) {
        if (tick.entry == index) {
            tick.setting.set(m_context.settings, m_actions.action(nameOf(index))->isChecked());
        }
    }
    if (index == EnableAfter) {
        if (!m_context.settings.of<DefaultOptions>().DownloadMode) {
            // In Windows mode the Cougar sends no keys to test.
            m_context.settings.of<ToolchainSettings>().RunKeyTest = false;
        }
        applySettings();
    }
    if (index != RunKeyTester) {
        SaveDownloadMode();
    }
}

void DownloadMenu::SaveDownloadMode()
{
    const auto saved =
        saveSettings(m_context.settings, settingsFilesOf(m_context.paths),
                     { &DefaultOptions::DownloadMode, &ToolchainSettings::NumlockDownloadMode,
                       &ToolchainSettings::RunAppsWithDownload });
    if (!saved) {
        // No box: the ticks hold for this run all the same.
        m_context.status.setText(u" Your choice holds until I end, but I couldn't keep it. "_s
                                 + saved.error().path + u": "_s + saved.error().reason);
    }
}

void DownloadMenu::applySettings()
{
    for (const Tick &tick : ticks) {
        m_actions.action(nameOf(tick.entry))->setChecked(tick.setting.isOn(m_context.settings));
    }
    m_actions.action(nameOf(RunKeyTester))
        ->setEnabled(m_context.settings.of<DefaultOptions>().DownloadMode);
}

} // namespace zeph
