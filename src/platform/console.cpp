// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/console.h"

#include <cstdio>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#endif

namespace zeph {

#ifdef Q_OS_WIN

namespace {

bool isRedirected(DWORD stream)
{
    const HANDLE handle = GetStdHandle(stream);
    return handle && handle != INVALID_HANDLE_VALUE && GetFileType(handle) != FILE_TYPE_UNKNOWN;
}

/// Attached for a moment only: Ctrl+C in a console ends all programs that belong to it.
void writeToStartersConsole(const QString &text)
{
    if (!AttachConsole(ATTACH_PARENT_PROCESS)) {
        return;
    }
    const HANDLE console =
        CreateFileW(L"CONOUT$", GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                    nullptr, OPEN_EXISTING, 0, nullptr);
    if (console != INVALID_HANDLE_VALUE) {
        // As characters, whatever code page the console has.
        DWORD written = 0;
        WriteConsoleW(console, text.utf16(), DWORD(text.size()), &written, nullptr);
        CloseHandle(console);
    }
    FreeConsole();
}

} // namespace

void tellConsole(Stream stream, const QString &text)
{
    if (!isRedirected(stream == Stream::Output ? STD_OUTPUT_HANDLE : STD_ERROR_HANDLE)) {
        writeToStartersConsole(text);
        return;
    }
    std::FILE *file = stream == Stream::Output ? stdout : stderr;
    std::fputs(text.toLocal8Bit().constData(), file);
    std::fflush(file);
}

void goWithoutDisplay()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    if (!qEnvironmentVariableIsSet("QT_QPA_FONTDIR")) {
        qputenv("QT_QPA_FONTDIR", qgetenv("SystemRoot") + "\\Fonts");
    }
}

#else

void tellConsole(Stream stream, const QString &text)
{
    std::fputs(text.toLocal8Bit().constData(), stream == Stream::Output ? stdout : stderr);
}

void goWithoutDisplay()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
}

#endif

} // namespace zeph
