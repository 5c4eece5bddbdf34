// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/tools_menu.h"

#include "editor/editor.h"
#include "menus/menu_actions.h"
#include "settings/settings_files.h"
#include "settings/settings_moments.h"
#include "shell/mum.h"
#include "toolchain/modes/formresetoptions.h"
#include "toolchain/modes/profiles.h"
#include "toolchain/modes/selectprofileform.h"

#include <QAction>

namespace zeph {

namespace {

/// Entries of which one handler receives the index.
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

ToolsMenu::ToolsMenu(const Context &context, CougarModes &modes, Profiles &profiles, Mum &mum,
                     Editor &editor)
    : QObject(&editor), m_context(context), m_profiles(profiles), m_mum(mum), m_editor(editor),
      m_tools(context, modes)
{
    connectTools();
    connectProfiles();
    UpdateResetAxes();
}

void ToolsMenu::connectTools()
{
    MenuActions &actions = m_editor.actions();
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
    MenuActions &actions = m_editor.actions();
    actions.connectTo(u"mnuResetAxes", [this] { mnuResetAxes_Click(); });
    actions.connectTo(u"mnuApplyDefaultTMC", [this] { m_profiles.ApplyDefaultProfile(); });
    actions.connectTo(u"mnuResetOptions", [this] { mnuResetOptions_Click(); });
    actions.connectTo(u"mnuDownloadProfile", [this] { mnuDownloadProfile_Click(); });
}

void ToolsMenu::UpdateResetAxes()
{
    const bool used = m_context.settings.UseResetProfile == 1;
    m_editor.action(u"mnuResetAxes")->setChecked(used);
    m_editor.action(u"mnuApplyDefaultTMC")->setEnabled(used);
}

void ToolsMenu::saveAndUpdate()
{
    // A store that cannot be written makes no fuss, as everywhere.
    (void)SaveResetProfiles(m_context.settings, settingsFilesOf(m_context.paths));
    UpdateResetAxes();
}

void ToolsMenu::mnuResetAxes_Click()
{
    m_context.settings.UseResetProfile = m_editor.action(u"mnuResetAxes")->isChecked() ? 1 : 0;
    saveAndUpdate();
}

void ToolsMenu::mnuResetOptions_Click()
{
    FormResetOptions form(m_context, &m_mum);
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
        // The window is gone before the wait, during which its owner may go.
        SelectProfileForm form(m_context, &m_mum);
        if (!form.UpdateProfiles() || form.exec() != QDialog::Accepted) {
            return;
        }
        profile = form.profile();
        calibration = form.calibration();
    }
    m_profiles.ApplyDefaultProfile(profile, calibration);
}

} // namespace zeph
