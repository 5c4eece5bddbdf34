// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

namespace zeph {

/// How a started program's window comes up; the numbers are those that files hold.
enum class WindowStyle {
    Hidden = 0,
    NormalFocus = 1,
    MinimisedFocus = 2,
    MaximisedFocus = 3,
    NormalNoFocus = 4,
    MinimisedNoFocus = 6
};

/// A program to start: its path, the rest of the command line as one string (with the quotes that
/// the called program expects), and its working folder.
struct Launch {
    QString program = {};
    QString arguments = {};
    QString folder = {};
    WindowStyle style = WindowStyle::NormalFocus;
};

/// Starts programs and never waits for them.
class ProcessLauncher
{
public:
    virtual ~ProcessLauncher() = default;
    /// Whether there is such a program: a path, or a name alone on the system's search path.
    virtual bool finds(const QString &program) const = 0;
    /// Starts it; the error is the system's reason, in words, with the program's path.
    virtual Expected<void, QString> start(const Launch &launch) = 0;
    /// Hands a file or an address to the desktop's own program for it.
    virtual Expected<void, QString> openWithDesktop(const QString &pathOrUrl) = 0;
};

/// The real launcher. A Windows executable ("MZ") is started through wine on other systems.
class SystemLauncher : public ProcessLauncher
{
public:
    bool finds(const QString &program) const override;
    Expected<void, QString> start(const Launch &launch) override;
    Expected<void, QString> openWithDesktop(const QString &pathOrUrl) override;
};

/// A launch from a command that names a program and its arguments in one text, such as
/// "C:\My Games\fly.exe -window", split as Windows does it: a quoted first word is the program;
/// otherwise the shortest beginning that ends at a blank (or at the end) and names a file, if need
/// be with ".exe" after a name that has no ending; otherwise the first word. A name without a
/// folder is looked for in the working folder too.
Launch launchFromCommand(const QString &command, const QString &folder,
                         WindowStyle style = WindowStyle::NormalFocus);

/// The folder of the libraries that came along with a program in that folder, as in the archive for
/// Linux; empty where the program uses the system's.
QString carriedLibraries(const QString &executableFolder);

/// The words of a Windows command line: blanks part them, double quotes hold blanks together.
QStringList splitCommandLine(QStringView arguments);

} // namespace zeph
