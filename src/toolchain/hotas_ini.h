// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// HOTAS.ini, the file through which the Cougar's tools and Zeph talk. The tools own it: Zeph writes
// only the keys named here and leaves everything else as it is.

#include "platform/core/paths.h"
#include "platform/core/profile_file.h"
#include "platform/process_launcher.h"

namespace zeph {

/// What the compiler wrote about its last run. An empty Status means that it is still running,
/// "ERROR" that it failed, anything else that it succeeded.
struct CompilerVerdict {
    QString FileName;
    QString Status;
    QString ErrorCode; ///< its first ten characters are the code: "ERROR " and four digits
    QString CompileTime; ///< seconds, shown as they stand
    QString DownloadTime; ///< seconds, shown as they stand
    qint32 LineNumber = 0; ///< 1-based; 0 = no line
    qint16 Memory = 0; ///< per cent of the Cougar's memory

    friend bool operator==(const CompilerVerdict &, const CompilerVerdict &) = default;
};

/// The last mode change that the tools reported.
struct ModeReport {
    QString Status;
    qint16 Axes = 0; ///< -1 error changing, 0 Windows, 1 user defined, else unknown
    qint16 Buttons = 0; ///< -1 error changing, 0 Windows, 1 Programmed, else unknown
};

/// The operations on HOTAS.ini. Every call goes to the disk; a missing file reads as empty.
class HotasIni
{
public:
    /// The file's full path.
    explicit HotasIni(const QString &path);

    /// Empties the seven keys of the compiler, so that an earlier verdict cannot be taken for the
    /// next one. The file is replaced once.
    Expected<void, FileError> clearCompiler() const;
    /// A percentage that does not fit 16 bits reads as 0.
    CompilerVerdict readCompiler() const;
    /// The compiler's Status alone.
    QString pollCompiler() const;

    Expected<void, FileError> clearModeStatus() const;
    QString pollModeStatus() const;
    /// Writes the status "OKAY", as the tool does after a request, for those that it does not
    /// report.
    Expected<void, FileError> markModeStatus() const;
    /// A missing Status reads as "ERROR"; a number that does not fit 16 bits as an unknown mode.
    ModeReport readMode() const;

private:
    ProfileFile m_file;
};

// How the Cougar's tools are started: program, arguments, folder and window, as values.

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
