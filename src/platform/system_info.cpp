// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/system_info.h"

#include "platform/core/paths.h"

#include <QDir>
#include <QOperatingSystemVersion>

namespace zeph {

bool SystemInfo::isVista() const
{
    constexpr int vistaMajor = 6;
    const auto system = QOperatingSystemVersion::current();
    return system.type() == QOperatingSystemVersion::Windows && system.majorVersion() == vistaMajor;
}

QString windowsFolder()
{
    const QString usual = u"C:\\WINDOWS"_s;
#ifdef Q_OS_WIN
    return qEnvironmentVariable("windir", usual);
#else
    const QString prefix = qEnvironmentVariable("WINEPREFIX", QDir::homePath() + u"/.wine"_s);
    const QString ofWine = prefix + u"/drive_c/windows"_s;
    return folderExists(ofWine) ? ofWine : usual;
#endif
}

} // namespace zeph
