// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// How the Cougar's tools are started: program, arguments, folder and window, as values.

#include "platform/core/paths.h"
#include "platform/process_launcher.h"

namespace zeph {

/// What the compiler is asked to do with a joystick file.
enum class CompilerCommand { Compile, Download, DownloadAndEnable };

/// What the Cougar itself is asked to do.
enum class ConfigCommand {
    ButtonsWindows,
    ButtonsProgrammed,
    ReportMode, ///< changes nothing
    AxesWindows,
    AxesUserDefined,
    AllProgrammed,
    PureWindows,
    EmptyBuffers,
    ClearMemory,
    ResetCougar
};

/// Starts the compiler on a file. This and all others start in the tools' folder, with a normal
/// window that takes the focus.
Launch compilerLaunch(const Paths &paths, CompilerCommand command, const QString &file);
/// Starts the configuration tool with the switches of a request.
Launch configLaunch(const Paths &paths, ConfigCommand command);

/// Starts the configuration tool so that it sends a profile, a name without ".tmc", to the Cougar.
Launch profileLaunch(const Paths &paths, const QString &profile, bool manualCalibration);

/// Starts any program of the tools' folder.
Launch toolLaunch(const Paths &paths, QStringView program, QStringView arguments = {});

} // namespace zeph
