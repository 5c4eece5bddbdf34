// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/windows/windows_launch.h"

#include <QDir>

#ifdef Q_OS_WIN
#include "platform/core/paths.h"
#include "platform/core/stand_in.h"

#include <QCoreApplication>
#include <QProcessEnvironment>

#include <qt_windows.h>

#include <objbase.h>
#include <shellapi.h>
#include <thread>
#endif

namespace zeph {

QString windowsCommandLine(const QString &program, const QString &arguments)
{
    const QString quoted = u'"' + QDir::toNativeSeparators(program) + u'"';
    return arguments.isEmpty() ? quoted : quoted + u' ' + arguments;
}

#ifdef Q_OS_WIN

namespace {

/// As the call that starts a program takes it: "name=value" each, and an empty one at the end.
std::wstring environmentBlock(const QProcessEnvironment &environment)
{
    std::wstring block;
    for (const QString &name : environment.keys()) {
        block += (name + u'=' + environment.value(name)).toStdWString() + L'\0';
    }
    return block + L'\0';
}

/// Whether a program is one of our stand-ins, which have the names of the tools of the Cougar's
/// software. A game is not read for this.
bool isOurTool(const QString &program)
{
    return nameOf(program).startsWith(u"HOTAS", Qt::CaseInsensitive) && isStandIn(program);
}

/// The environment of a stand-in: it needs the libraries of this program, also from the user's own
/// folder, to which nobody copies them. No other program gets to see them.
std::wstring standInEnvironment()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"PATH"_s,
                       QDir::toNativeSeparators(QCoreApplication::applicationDirPath()) + u';'
                           + environment.value(u"PATH"_s));
    return environmentBlock(environment);
}

/// Hands a file to the shell; gives an error code of the system, 0 when all is well.
DWORD execute(const std::wstring &file, const std::wstring &arguments, const std::wstring &folder,
              int style)
{
    SHELLEXECUTEINFOW info{};
    info.cbSize = sizeof info;
    info.fMask = SEE_MASK_NOASYNC | SEE_MASK_FLAG_NO_UI;
    info.lpVerb = L"open";
    info.lpFile = file.c_str();
    info.lpParameters = arguments.c_str();
    info.lpDirectory = folder.empty() ? nullptr : folder.c_str();
    info.nShow = style;
    DWORD code = 0;
    // The call may handle messages of the thread's windows while it waits; here there are none.
    std::thread([&] {
        const bool isReady =
            SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE));
        code = ShellExecuteExW(&info) ? 0 : GetLastError();
        if (isReady) {
            CoUninitialize();
        }
    }).join();
    return code;
}

// What the headers of the compiler do not name.
constexpr DWORD elevationRequired = 740;

std::optional<QString> inWords(DWORD code)
{
    return code == 0 ? std::nullopt : std::optional(qt_error_string(int(code)));
}

} // namespace

std::optional<QString> startOnWindows(const QString &program, const QString &arguments,
                                      const QString &folder, int style)
{
    std::wstring line = windowsCommandLine(program, arguments).toStdWString();
    const std::wstring current = QDir::toNativeSeparators(folder).toStdWString();
    const bool isOurs = isOurTool(program);
    std::wstring environment = isOurs ? standInEnvironment() : std::wstring();
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESHOWWINDOW;
    startup.wShowWindow = WORD(style);
    // A program for the console gets one, in that style; a stand-in has nothing to say there.
    const DWORD flags =
        CREATE_UNICODE_ENVIRONMENT | (isOurs ? CREATE_NO_WINDOW : CREATE_NEW_CONSOLE);
    PROCESS_INFORMATION process{};
    if (CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, flags,
                       isOurs ? environment.data() : nullptr,
                       current.empty() ? nullptr : current.c_str(), &startup, &process)) {
        CloseHandle(process.hThread);
        CloseHandle(process.hProcess);
        return std::nullopt;
    }
    const DWORD code = GetLastError();
    return inWords(code != elevationRequired
                       ? code
                       : execute(QDir::toNativeSeparators(program).toStdWString(),
                                 arguments.toStdWString(), current, style));
}

std::optional<QString> openOnWindows(const QString &pathOrUrl)
{
    const bool isAddress = pathOrUrl.contains(u"://");
    return inWords(
        execute((isAddress ? pathOrUrl : QDir::toNativeSeparators(pathOrUrl)).toStdWString(), {},
                {}, SW_SHOWNORMAL));
}

#endif

} // namespace zeph
