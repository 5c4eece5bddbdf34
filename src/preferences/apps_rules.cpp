// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "preferences/apps_rules.h"

#include "platform/core/storable.h"

namespace zeph {

namespace {

/// Files that need a program of Windows in front of them.
struct Applet {
    QStringView ending;
    QStringView program;
    QStringView title;
};

constexpr Applet applets[] = {
    { u"cpl", u"\\control.exe", u"Information for using control panel applets" },
    { u"hlp", u"\\winhlp32.exe", u"Information for using help files" },
};

constexpr QStringView quotes = u"\"";

/// The end of a path, without the quote that closes it.
QString unclosed(const QString &path)
{
    QString end = path.trimmed();
    while (end.endsWith(quotes)) {
        end.chop(1);
    }
    return end;
}

} // namespace

std::optional<AppletQuestion> appletQuestion(const QString &path, const QString &windowsFolder)
{
    for (const Applet &applet : applets) {
        // Without the separator: pilots type the program's name alone too.
        if (!unclosed(path).endsWith(applet.ending, Qt::CaseInsensitive)
            || path.contains(applet.program.sliced(1), Qt::CaseInsensitive)) {
            continue;
        }
        const QString prefix = windowsFolder + applet.program.toString() + u' ';
        const QString newPath = prefix + path.trimmed();
        return AppletQuestion{
            applet.title.toString(),
            u"I see you're trying to run one of the control panel's programs. If you want to do "
            "this, then you need to add "_s
                + prefix + u"to your path so that it looks like this: "_s + newPath
                + u". Would you like me to do this for you now?"_s,
            newPath
        };
    }
    return std::nullopt;
}

bool canBeUsed(const QString &path)
{
    return !path.trimmed().isEmpty();
}

CustomApps settledApps(CustomApps apps, const CustomApps &before)
{
    for (size_t i = 0; i < apps.size(); ++i) {
        CustomApp &app = apps[i];
        app.CustomAppName = storableOr(app.CustomAppName, before[i].CustomAppName);
        app.CustomAppPath = storableOr(app.CustomAppPath, before[i].CustomAppPath);
        app.CustomAppUse = app.CustomAppUse && canBeUsed(app.CustomAppPath);
    }
    return apps;
}

QString appNameFor(const QString &path)
{
    const QString name = nameOf(unclosed(path));
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot > 0 ? name.first(dot) : name;
}

} // namespace zeph
