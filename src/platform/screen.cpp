// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/screen.h"

#include <QGuiApplication>
#include <QScreen>

#include <cmath>

namespace zeph {

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
