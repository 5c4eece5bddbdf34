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

/// As characters, whatever code page the console has.
void writeToConsole(HANDLE console, const QString &text)
{
    DWORD written = 0;
    WriteConsoleW(console, text.utf16(), DWORD(text.size()), &written, nullptr);
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
        writeToConsole(console, text);
        CloseHandle(console);
    }
    FreeConsole();
}

} // namespace

void tellConsole(Stream stream, const QString &text)
{
    const bool isOutput = stream == Stream::Output;
    const HANDLE handle = GetStdHandle(isOutput ? STD_OUTPUT_HANDLE : STD_ERROR_HANDLE);
    DWORD mode = 0;
    if (!handle || handle == INVALID_HANDLE_VALUE || GetFileType(handle) == FILE_TYPE_UNKNOWN) {
        writeToStartersConsole(text);
    } else if (GetConsoleMode(handle, &mode)) {
        writeToConsole(handle, text);
    } else {
        std::FILE *file = isOutput ? stdout : stderr;
        std::fputs(text.toLocal8Bit().constData(), file);
        std::fflush(file);
    }
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
