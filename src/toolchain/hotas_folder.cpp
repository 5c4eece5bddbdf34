// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/hotas_folder.h"

#include "platform/core/paths.h"
#include "platform/core/stand_in.h"

#include <QDir>

namespace zeph {

namespace {

/// One spelling for each folder, so that two of them can be compared.
QString cleaned(const QString &folder)
{
    return withClosingSeparator(nativeSeparators(QDir::cleanPath(nativeSeparators(folder))));
}

} // namespace

QString hotasFolderBy(const QString &setting, const QString &appFolder)
{
    const QString named = nativeSeparators(setting.trimmed());
    if (named.isEmpty()) {
        return withClosingSeparator(appFolder);
    }
    if (named == u"~" || named.startsWith(u'~' + QString(QDir::separator()))) {
        return cleaned(QDir::homePath() + named.mid(1));
    }
    return cleaned(QDir(appFolder).filePath(named));
}

QString settingForHotasFolder(const QString &folder, const QString &appFolder)
{
    return folder.isEmpty() || cleaned(folder) == cleaned(appFolder) ? QString()
                                                                     : withClosingSeparator(folder);
}

bool holdsRealTools(const QString &hotasFolder)
{
    const QString compiler = withClosingSeparator(hotasFolder) + u"HOTASCompiler.exe"_s;
    return fileExists(compiler) && !isStandIn(compiler);
}

} // namespace zeph
