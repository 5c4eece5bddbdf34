// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/download_menu.h"

#include "documents/editor_view.h"
#include "editor/editor.h"
#include "menus/menu_actions.h"
#include "settings/settings_files.h"
#include "shell/compile_menu.h"
#include "toolchain/compile/after_download.h"
#include "toolchain/modes/cougar_modes.h"
#include "toolchain/modes/profiles.h"

#include <QAction>

namespace zeph {

namespace {

enum DownloadEntry { DownloadFile, EnableAfter, RunKeyTester, NumLockOn, IgnoreRunApp };

struct Tick {
    DownloadEntry entry;
    qint16 GlobalSettings::*setting;
};

constexpr Tick ticks[] = {
    { EnableAfter, &GlobalSettings::DownloadMode },
    { RunKeyTester, &GlobalSettings::RunKeyTest },
    { NumLockOn, &GlobalSettings::NumlockDownloadMode },
    { IgnoreRunApp, &GlobalSettings::RunAppsWithDownload },
};

QString nameOf(int entry)
{
    return u"DownloadArray1_"_s + QString::number(entry);
}

} // namespace

DownloadMenu::DownloadMenu(const Context &context, const Parts &parts)
    : QObject(&parts.editor), m_context(context), m_parts(parts),
      m_download(context, parts.handshake, host())
{
    for (int i = DownloadFile; i <= IgnoreRunApp; ++i) {
        parts.editor.actions().connectTo(nameOf(i), [this, i] { DownloadArray1_Click(i); });
    }
    applySettings();
}

void DownloadMenu::DownloadArray1_Click(int index)
{
    if (index == DownloadFile) {
        DownloadTMJ();
        return;
    }
    for (const Tick &tick : ticks) {
        if (tick.entry == index) {
            m_context.settings.*tick.setting = m_parts.editor.action(nameOf(index))->isChecked();
        }
    }
    if (index == EnableAfter) {
        if (m_context.settings.DownloadMode == 0) {
            // In Windows mode the Cougar sends none of the keys that there would be to test.
            m_context.settings.RunKeyTest = 0;
        }
        applySettings();
    }
    if (index != RunKeyTester) {
        SaveDownloadMode();
    }
}

void DownloadMenu::SaveDownloadMode()
{
    using G = GlobalSettings;
    // Nobody is told when this fails: the ticks hold for this run all the same.
    (void)saveSettings(m_context.settings, settingsFilesOf(m_context.paths),
                       { &G::DownloadMode, &G::NumlockDownloadMode, &G::RunAppsWithDownload });
}

void DownloadMenu::applySettings()
{
    for (const Tick &tick : ticks) {
        m_parts.editor.action(nameOf(tick.entry))
            ->setChecked(m_context.settings.*tick.setting == 1);
    }
    m_parts.editor.action(nameOf(RunKeyTester))->setEnabled(m_context.settings.DownloadMode == 1);
}

DownloadHost DownloadMenu::host()
{
    DownloadHost host{ m_parts.compile.compilerHost(), {}, {}, {}, {}, {}, {}, {} };
    host.lockJoystickText = [this](bool locked) {
        m_parts.editor.joystick().setLocked(locked);
    };
    host.resetsAxes = [this] {
        return m_parts.editor.action(u"mnuResetAxes")->isChecked();
    };
    host.ApplyDefaultProfile = [this] {
        return m_parts.profiles.ApplyDefaultProfile();
    };
    host.showCougarMode = [this] {
        if (m_parts.modes.detectorRuns()) {
            m_parts.modes.ShowCougarMode();
        }
    };
    host.TurnNumLockOn = [this] {
        m_parts.afterDownload.TurnNumLockOn();
    };
    host.GetAppsToRun = [this](const QString &joystickText) {
        m_parts.afterDownload.GetAppsToRun(joystickText);
    };
    host.openKeyTester = [this] {
        openKeyTester();
    };
    return host;
}

void DownloadMenu::openKeyTester()
{
    m_parts.editor.actions().trigger(
        m_context.settings.DefaultToDX8KeyTester == 1 ? u"mnuAppsDX8_0" : u"mnuAppsKeyTester");
}

} // namespace zeph
