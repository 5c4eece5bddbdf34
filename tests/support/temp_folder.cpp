// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "tests/support/temp_folder.h"

#include <QFile>
#include <QFileInfo>

#include <filesystem>

namespace zeph::test {

QString TempFolder::root() const
{
#ifdef Q_OS_WIN
    return path().first(qsizetype(sizeof R"(C:\)" - 1));
#else
    return QStringLiteral("/");
#endif
}

QString TempFolder::write(const QString &name, const QByteArray &bytes) const
{
    const QString path = file(name);
    QDir().mkpath(QFileInfo(path).path());
    QFile out(path);
    if (!out.open(QIODevice::WriteOnly) || out.write(bytes) != bytes.size()) {
        qWarning("cannot write %s", qPrintable(path));
    }
    return path;
}

QByteArray TempFolder::read(const QString &name) const
{
    QFile in(file(name));
    if (!in.open(QIODevice::ReadOnly)) {
        qWarning("cannot read %s", qPrintable(in.fileName()));
        return {};
    }
    return in.readAll();
}

void TempFolder::show(const QString &source, const QString &name) const
{
#ifdef Q_OS_WIN
    std::error_code failed;
    std::filesystem::copy(QFileInfo(source).filesystemFilePath(),
                          QFileInfo(file(name)).filesystemFilePath(),
                          std::filesystem::copy_options::recursive, failed);
#else
    const bool failed = !QFile::link(source, file(name));
#endif
    if (failed) {
        qWarning("cannot show %s", qPrintable(source));
    }
}

bool TempFolder::exists(const QString &name) const
{
    return QFileInfo::exists(file(name));
}

} // namespace zeph::test
