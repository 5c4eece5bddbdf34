// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/tools_menu.h"

#include "menus/menu_actions.h"
#include "settings/settings.h"
#include "settings/settings_files.h"
#include "toolchain/external_tools.h"
#include "toolchain/handshake.h"
#include "toolchain/modes/profilechooser.h"
#include "toolchain/modes/profiles.h"
#include "toolchain/toolchain_settings.h"

#include <QAction>

namespace zeph {

namespace {

/// The entries NAME_0 ... that one operation serves; it receives the index.
struct IndexedEntries {
    QStringView name;
    int count;
    void (ExternalTools::*operation)(int);
};

constexpr IndexedEntries indexedEntries[] = {
    { u"MnuDiagArray_", 6, &ExternalTools::MnuDiagArray_Click },
    { u"mnuMemoryClear_", 5, &ExternalTools::mnuMemoryClear_Click },
    { u"mnuFlashArray_", 2, &ExternalTools::mnuFlashArray_Click },
};

} // namespace

ToolsMenu::ToolsMenu(const Context &context, const ToolParts &parts, ExternalTools &tools)
    : m_context(context), m_parts(parts), m_tools(tools)
{
    connectTools();
    connectProfiles();
    UpdateResetAxes();
}

void ToolsMenu::connectTools()
{
    MenuActions &actions = m_parts.actions;
    for (const IndexedEntries &entries : indexedEntries) {
        for (int i = 0; i < entries.count; ++i) {
            actions.connectTo(
                entries.name.toString() + QString::number(i),
                [this, i, operation = entries.operation] { (m_tools.*operation)(i); });
        }
    }
    for (const Companion &companion : companionTable()) {
        actions.connectTo(companion.action,
                          [this, program = companion.program] { m_tools.startCompanion(program); });
    }
    actions.connectTo(u"mnuFlashUpgrade", [this] { m_tools.mnuFlashUpgrade_Click(); });
    actions.connectTo(u"mnuHandleInstall", [this] { m_tools.mnuHandleInstall_Click(); });
}

void ToolsMenu::connectProfiles()
{
    MenuActions &actions = m_parts.actions;
    actions.connectTo(u"mnuResetAxes", [this] { mnuResetAxes_Click(); });
    actions.connectTo(u"mnuApplyDefaultTMC", [this] { apply({}, CalibrationRequest::Stored); });
    actions.connectTo(u"mnuResetOptions", [this] { mnuResetOptions_Click(); });
    actions.connectTo(u"mnuDownloadProfile", [this] { mnuDownloadProfile_Click(); });
}

void ToolsMenu::UpdateResetAxes()
{
    const bool used = m_context.settings.of<ToolchainSettings>().UseResetProfile;
    m_parts.actions.action(u"mnuResetAxes")->setChecked(used);
    m_parts.actions.action(u"mnuApplyDefaultTMC")->setEnabled(used);
}

void ToolsMenu::saveAndUpdate()
{
    // A store that cannot be written is not told: the choice holds for this run all the same.
    (void)SaveResetProfiles(m_context.settings, settingsFilesOf(m_context.paths));
    UpdateResetAxes();
}

void ToolsMenu::mnuResetAxes_Click()
{
    m_context.settings.of<ToolchainSettings>().UseResetProfile =
        m_parts.actions.action(u"mnuResetAxes")->isChecked();
    saveAndUpdate();
}

void ToolsMenu::mnuResetOptions_Click()
{
    FormResetOptions form(m_context, &m_parts.mainWindow);
    if (!form.UpdateProfiles()) {
        return;
    }
    form.ShowResetValues();
    form.exec();
    saveAndUpdate();
}

void ToolsMenu::mnuDownloadProfile_Click()
{
    QString profile;
    CalibrationRequest calibration = CalibrationRequest::Stored;
    {
        // The window must be gone before the wait, during which its owner may be destroyed.
        SelectProfileForm form(m_context, &m_parts.mainWindow);
        if (!form.UpdateProfiles() || form.exec() != QDialog::Accepted) {
            return;
        }
        profile = form.profile();
        calibration = form.calibration();
    }
    apply(profile, calibration);
}

/// Sends a profile, the stored one for an empty name, when no other command waits for a tool.
void ToolsMenu::apply(const QString &profile, CalibrationRequest calibration)
{
    const QString name =
        profile.isEmpty() ? m_context.settings.of<ToolchainSettings>().ResetProfile : profile;
    const auto turn = m_parts.handshake.commands().turn(
        u"the profile "_s + name, [this, profile, calibration] { apply(profile, calibration); });
    if (turn) {
        m_parts.profiles.ApplyDefaultProfile(profile, calibration);
    }
}

} // namespace zeph
