// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/external_tools.h"

#include "platform/core/stand_in.h"
#include "platform/dialogs.h"
#include "platform/process_launcher.h"
#include "platform/status_line.h"
#include "toolchain/hotas_ini.h"
#include "toolchain/modes/cougar_modes.h"
#include "toolchain/tool_messages.h"

namespace zeph {

namespace {

constexpr QStringView configProgram = u"HOTASConfig.exe";
constexpr QStringView cleanseProgram = u"HOTASCleanse.exe";
constexpr QStringView updateProgram = u"HOTASUpdate.exe";
constexpr QStringView gamingProgram = u"rundll32.exe";
constexpr QStringView readyPanel = u" Ready";

struct DiagRow {
    QStringView program;
    QStringView arguments;
    QStringView note; ///< follows the program's name in the box that tells that it is missing
};

/// By the index of MnuDiagArray.
constexpr DiagRow diagRows[] = {
    { configProgram, {}, {} },         { configProgram, u"/CALIBRATE", {} },
    { configProgram, u"/CURVES", {} }, { u"HOTASView.exe", {}, {} },
    { u"MultiDevices.exe", {}, {} },   { u"CougarBState.exe", {}, u", the Logical Flag viewer" },
};

/// A request to the Cougar itself, and what panel 1 shows while it is made.
struct MemoryRow {
    ConfigCommand command;
    QStringView panel;
};

/// By the index of mnuMemoryClear; the two indices after these are no requests to the Cougar.
constexpr MemoryRow memoryRows[] = {
    { ConfigCommand::EmptyBuffers, u" Emptying the buffers .. please wait ..." },
    { ConfigCommand::ClearMemory, u" Clearing the memory .. please wait ..." },
    { ConfigCommand::ResetCougar, u" Resetting the Cougar .. please wait ..." },
};
constexpr int cleanseIndex = 3;
constexpr int resynchroniseIndex = 4;

/// By the index of mnuFlashArray.
constexpr QStringView gamingPages[] = {
    u"shell32.dll,Control_RunDLL joy.cpl,,0",
    u"shell32.dll,Control_RunDLL joy.cpl,,1",
};

constexpr Companion companions[] = {
    { u"mnuAppsMultiEditor", u"ZephMFE.exe" }, { u"mnuAppsLauncher", u"Launcher.exe" },
    { u"mnuAppsAnalyser", u"Analyser.exe" },   { u"mnuAppsDX8_0", u"ZephDX8Kb.exe" },
    { u"mnuAppsDX8_1", u"ZephDX8Joy.exe" },    { u"mnuAppsDX8_2", u"ZephDX8Mouse.exe" },
};

bool mayReset(Dialogs &dialogs)
{
    return dialogs.ask(
        u"Ok to proceed with RESET?"_s,
        u"You are about to perform a RESET of the Cougar. This is effectively the same as "
        "disconnecting your Cougar from your machine, and then plugging it back in.\n\n"
        "Keep your finger off the trigger until it's over: if you hold the trigger during the "
        "reset, the firmware is cleared from the Cougar.\n\n"
        "Windows needs about 15 seconds to find the Cougar again.\n\n"
        "Would you like me to go ahead and reset the Cougar?"_s,
        BoxIcon::Question);
}

} // namespace

std::span<const Companion> companionTable()
{
    return companions;
}

QList<EntryProgram> entryPrograms(const Paths &paths)
{
    const QString config = paths.config();
    QList<EntryProgram> all{
        { u"mnuAppsCompile"_s, paths.compiler(), true },
        { u"DownloadArray1_0"_s, paths.compiler(), false },
        { u"mnuApplyDefaultTMC"_s, config, true },
        { u"mnuDownloadProfile"_s, config, true },
        { u"mnuFlashUpgrade"_s, paths.hotasFolder + updateProgram.toString(), true },
        { u"mnuMemoryClear_%1"_s.arg(cleanseIndex), paths.hotasFolder + cleanseProgram.toString(),
          true },
    };
    const auto add = [&all](const QString &array, std::initializer_list<int> indices,
                            const QString &program) {
        for (const int i : indices) {
            all.append({ array + QString::number(i), program, false });
        }
    };
    add(u"mnuMemoryClear_"_s, { 0, 1, 2, resynchroniseIndex }, config);
    add(u"mnuButtonsModeArray_"_s, { 0, 1 }, config);
    add(u"mnuAxesModeArray_"_s, { 0, 1 }, config);
    add(u"mnuFlashArray_"_s, { 0, 1 }, gamingProgram.toString());
    for (int i = 0; i < int(std::size(diagRows)); ++i) {
        all.append({ u"MnuDiagArray_%1"_s.arg(i),
                     paths.hotasFolder + diagRows[i].program.toString(), true });
    }
    for (const Companion &companion : companions) {
        all.append({ companion.action.toString(), paths.inApp(companion.program), false });
    }
    return all;
}

QString lackOf(const EntryProgram &entry, const ProcessLauncher &launcher)
{
    if (launcher.finds(entry.program)) {
        return {};
    }
    const QString folder = folderOf(entry.program);
    return folder.isEmpty() ? u"This system has no "_s + entry.program
                            : nameOf(entry.program) + u" is missing: it isn't in "_s + folder;
}

/// Starts a program. False, which is told, when it could not be started.
bool ExternalTools::start(const Launch &launch)
{
    const auto started = m_context.launcher.start(launch);
    if (!started) {
        m_context.dialogs.tell(u"Unable to start the program"_s, started.error(),
                               BoxIcon::Exclamation);
    }
    return started.has_value();
}

bool ExternalTools::startTool(QStringView program, QStringView arguments, QStringView note)
{
    const Launch launch = toolLaunch(m_context.paths, program, arguments);
    if (!fileExists(launch.program)) {
        m_context.dialogs.box(program == configProgram ? noControlPanelBox(m_context.paths)
                                                       : missingToolBox(program, note));
        return false;
    }
    return start(launch);
}

void ExternalTools::MnuDiagArray_Click(int index)
{
    const DiagRow &row = diagRows[index];
    if (row.program == configProgram && isStandIn(m_context.paths.config())) {
        m_context.status.setText(
            u" That's the stand-in: the Cougar Control Panel comes with Thrustmaster's own software"_s);
        return;
    }
    startTool(row.program, row.arguments, row.note);
}

void ExternalTools::mnuMemoryClear_Click(int index)
{
    if (!fileExists(m_context.paths.config())) {
        m_context.dialogs.box(noControlPanelBox(m_context.paths));
        return;
    }
    if (index == cleanseIndex) {
        startCleanse();
        return;
    }
    if (index == resynchroniseIndex) {
        m_modes.changeButtonsMode(ButtonsRequest::ReportOnly);
    } else {
        const MemoryRow &row = memoryRows[index];
        if (row.command == ConfigCommand::ResetCougar && !mayReset(m_context.dialogs)) {
            return;
        }
        m_context.status.setText(row.panel.toString());
        start(configLaunch(m_context.paths, row.command));
    }
    m_context.status.setText(readyPanel.toString());
}

void ExternalTools::startCleanse()
{
    if (startTool(cleanseProgram, {}, {})) {
        m_context.status.setText(u" Hope that worked for you. Did wonders for me."_s);
    }
}

void ExternalTools::mnuFlashUpgrade_Click()
{
    const Launch launch = toolLaunch(m_context.paths, updateProgram);
    if (!fileExists(launch.program)) {
        // "Could" should be "couldn't", but these are the words that pilots know.
        m_context.dialogs.tell(u"There's a problem ... "_s,
                               u"I could locate "_s + launch.program + u'.', BoxIcon::Stop);
        return;
    }
    if (start(launch)) {
        m_context.status.setText(u" Over to the TM applications for this"_s);
    }
}

void ExternalTools::mnuHandleInstall_Click()
{
    FileRequest request;
    request.title = u"Select the joystick handle installer"_s;
    request.filter = u"Joystick handle installer (*.exe)|*.exe"_s;
    request.defaultExtension = u"exe"_s;
    request.folder = m_context.paths.hotasFolder;
    const auto installer = m_context.dialogs.openFile(request);
    if (installer && !installer->isEmpty()) {
        start({ .program = *installer, .folder = rootOf(*installer) });
    }
}

void ExternalTools::mnuFlashArray_Click(int index)
{
    start({ .program = gamingProgram.toString(),
            .arguments = gamingPages[index].toString(),
            .folder = m_context.paths.hotasFolder });
}

void ExternalTools::startCompanion(QStringView program)
{
    const QString path = m_context.paths.inApp(program);
    if (!fileExists(path)) {
        m_context.dialogs.box(missingCompanionBox(m_context.paths, program));
        return;
    }
    start({ .program = path, .folder = m_context.paths.appFolder });
}

} // namespace zeph
