// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The command lines of the Cougar's two tools.

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

/// The compiler with the quoted file behind its switches, in the tools' folder, in front.
Launch compilerLaunch(const Paths &paths, CompilerCommand command, const QString &file);
/// The configuration tool with the switches of a request, in the tools' folder, in front.
Launch configLaunch(const Paths &paths, ConfigCommand command);

/// The configuration tool told to send a profile, a name without ".tmc", to the Cougar.
Launch profileLaunch(const Paths &paths, const QString &profile, bool manualCalibration);

/// Any program of the tools' folder, in front.
Launch toolLaunch(const Paths &paths, QStringView program, QStringView arguments = {});

} // namespace zeph
