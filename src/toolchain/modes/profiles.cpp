// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/modes/profiles.h"

#include "language/file_kinds.h"
#include "platform/core/file_io.h"
#include "platform/dialogs.h"
#include "platform/status_line.h"
#include "settings/settings.h"
#include "text/profile_files.h"
#include "toolchain/handshake.h"
#include "toolchain/hotas_ini.h"
#include "toolchain/tool_messages.h"
#include "toolchain/toolchain_settings.h"

#include <QDir>

namespace zeph {

namespace {

bool isManual(CalibrationRequest request, const ToolchainSettings &settings)
{
    switch (request) {
    case CalibrationRequest::Auto:
        return false;
    case CalibrationRequest::Manual:
        return true;
    case CalibrationRequest::Stored:
        break;
    }
    return settings.ResetCalibrate;
}

} // namespace

SettingProblems GetResetAxes(Settings &settings, const SettingsFiles &files)
{
    return readSettings(settings, files,
                        { &ToolchainSettings::ResetProfile, &ToolchainSettings::ResetCalibrate,
                          &ToolchainSettings::UseResetProfile });
}

Expected<void, FileError> SaveResetProfiles(Settings &settings, const SettingsFiles &files)
{
    return saveSettings(settings, files,
                        { &ToolchainSettings::ResetProfile, &ToolchainSettings::ResetCalibrate,
                          &ToolchainSettings::UseResetProfile });
}

Profiles::Profiles(const Context &context, ToolchainHandshake &handshake)
    : m_context(context), m_handshake(handshake)
{
}

bool Profiles::ApplyDefaultProfile(const QString &name, CalibrationRequest calibration)
{
    if (!fileExists(m_context.paths.config())) {
        m_context.dialogs.box(noControlPanelBox(m_context.paths));
        return true;
    }
    const auto &settings = m_context.settings.of<ToolchainSettings>();
    const QString profile = name.isEmpty() ? settings.ResetProfile : name;
    if (!isThere(profile)) {
        return true;
    }
    m_context.status.setText(u" Applying profile .. please wait ..."_s);
    const ExchangeEnd end = m_handshake.runUnreportedRequest(
        profileLaunch(m_context.paths, profile, isManual(calibration, settings)));
    if (end == ExchangeEnd::Abandoned) {
        return false;
    }
    const bool givenUp = end == ExchangeEnd::GivenUp;
    if (givenUp) {
        m_context.dialogs.box(modeTimeOutBox());
    }
    m_context.status.setText(panelAfterModeWait(givenUp));
    return true;
}

/// Looks for the profile in the tools' folder and tells the user when it is missing, or when no
/// tool could be told its name. True when it can be sent.
bool Profiles::isThere(const QString &name)
{
    if (fileExists(profilesFolder(m_context.paths) + name + profileExtension.toString())) {
        if (name.contains(u'"')) {
            m_context.dialogs.box(quoteInNameBox(name));
            return false;
        }
        return true;
    }
    const bool isStored =
        name.compare(m_context.settings.of<ToolchainSettings>().ResetProfile, Qt::CaseInsensitive)
        == 0;
    m_context.dialogs.box(missingProfileBox(name, isStored));
    return false;
}

void Profiles::CopyTMCfiles()
{
    const Paths &paths = m_context.paths;
    if (paths.hotasFolder.isEmpty() || !fileExists(paths.compiler())) {
        return;
    }
    const QString found = existingPath(profilesFolder(paths));
    const QString folder = found.isEmpty() ? profilesFolder(paths) : withClosingSeparator(found);
    QDir().mkpath(folder);
    const QString source = paths.filesFolder();
    const QStringList names = profileFiles(source);
    for (const QString &name : names) {
        if (!fileExists(folder + name)) {
            copyProfile(source + name, folder + name);
        }
    }
}

void Profiles::copyProfile(const QString &from, const QString &to)
{
    const auto copied = readWholeFile(from).and_then(
        [&to](const QByteArray &bytes) { return writeFileAtomically(to, bytes); });
    if (!copied) {
        m_context.dialogs.tell(u"Unable to copy a profile"_s,
                               copied.error().path + u"\n\n"_s + copied.error().reason,
                               BoxIcon::Exclamation);
    }
}

} // namespace zeph
