// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/system_info.h"

#include "platform/core/paths.h"

#include <QDir>
#include <QGuiApplication>
#include <QOperatingSystemVersion>
#include <QScreen>
#include <cmath>

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

namespace {

constexpr int expectedDpi = 96;

} // namespace

int PrimaryScreen::logicalDpi() const
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen ? int(std::lround(screen->logicalDotsPerInch())) : expectedDpi;
}

QSize PrimaryScreen::size() const
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen ? screen->size() : QSize();
}

} // namespace zeph
