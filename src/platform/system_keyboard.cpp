// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/system_keyboard.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QLocale>

namespace zeph {

QString SystemKeyboard::layoutName() const
{
    const QLocale locale = QGuiApplication::inputMethod()->locale();
    return locale == QLocale::c() ? QString() : locale.name();
}

bool SystemKeyboard::loadLayout(const QString &)
{
    return false;
}

} // namespace zeph
