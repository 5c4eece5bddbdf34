// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/package.h"

#include "platform/core/paths.h"
#include "platform/core/profile_file.h"

namespace zeph {

Package packageOf(const QByteArray &packageIni)
{
    const auto value = [&packageIni](QStringView key) {
        return profile::value(packageIni, u"Package", key);
    };
    return { value(u"File").value_or(QString()), profile::integerOf(value(u"Shared"), 0) != 0 };
}

Package readPackage(const QString &executableFolder)
{
    const auto bytes =
        readWholeFile(withClosingSeparator(executableFolder) + packageFileName.toString());
    return bytes ? packageOf(*bytes) : Package();
}

QString fileToFetch(const Package &package, const QString &version)
{
    return QString(package.file).replace(u"<version>"_s, version);
}

} // namespace zeph
