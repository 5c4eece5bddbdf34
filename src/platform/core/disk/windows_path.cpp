// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/disk/windows_path.h"

#ifdef Q_OS_WIN
#include <QDir>

#include <qt_windows.h>
#endif

namespace zeph {

QString longWindowsPath(const QString &full)
{
    constexpr QStringView share = u"\\\\";
    if (full.startsWith(u"\\\\?\\") || full.startsWith(u"\\\\.\\")) {
        return full;
    }
    if (full.startsWith(share)) {
        return u"\\\\?\\UNC\\"_s + full.sliced(share.size());
    }
    const bool isOnDrive =
        full.size() > 2 && full[0].isLetter() && full[1] == u':' && full[2] == u'\\';
    return isOnDrive ? u"\\\\?\\"_s + full : full;
}

#ifdef Q_OS_WIN

std::wstring windowsPath(const QString &path)
{
    const std::wstring given = QDir::toNativeSeparators(path).toStdWString();
    std::wstring full(GetFullPathNameW(given.c_str(), 0, nullptr, nullptr), L'\0');
    full.resize(GetFullPathNameW(given.c_str(), DWORD(full.size()), full.data(), nullptr));
    return longWindowsPath(QString::fromStdWString(full)).toStdWString();
}

QString withNameOnDisk(const QString &path)
{
    WIN32_FIND_DATAW found{};
    const HANDLE search = FindFirstFileW(windowsPath(path).c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) {
        return path;
    }
    FindClose(search);
    const qsizetype name = path.lastIndexOf(QDir::separator()) + 1;
    // Dots that stay or go up are no names of the disk.
    const bool isName = name > 0 && name < path.size() && !path.endsWith(u'.');
    return isName ? path.first(name) + QString::fromWCharArray(found.cFileName) : path;
}

#endif

} // namespace zeph
