// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The rules of the custom applications' fields.

#include "lists/custom_apps.h"

namespace zeph {

/// What is asked about a path that no system starts by itself; Yes puts newPath into the field.
struct AppletQuestion {
    QString title;
    QString text;
    QString newPath;

    friend bool operator==(const AppletQuestion &, const AppletQuestion &) = default;
};

/// The question about a control panel applet or a help file: a path that ends in "cpl" or "hlp", in
/// any case. None for other paths, and none when the program that it needs stands in it.
std::optional<AppletQuestion> appletQuestion(const QString &path, const QString &windowsFolder);

/// Whether an application with this path can be shown.
bool canBeUsed(const QString &path);
/// The applications as they are kept: without blanks around the fields, as before where the store
/// could not give a text back, and without a tick where there is no path.
CustomApps settledApps(CustomApps apps, const CustomApps &before);
/// A name for a program that has none: its file's, without folder and extension.
QString appNameFor(const QString &path);

} // namespace zeph
