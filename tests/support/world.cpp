// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "tests/support/world.h"

#include "platform/core/paths.h"

#include <QFile>

namespace zeph::test {

namespace {

QString installed(const QString &name)
{
    return QStringLiteral(ZEPH_SOURCE_DIR "/data/") + name;
}

} // namespace

World::World()
{
    paths.appFolder = folder.path();
    paths.hotasFolder = withClosingSeparator(folder.path());
    paths.iniPath = folder.file(u"Zeph.ini"_s);
}

World::~World()
{
    for (const QString &what : dialogs.unexpected()) {
        qWarning("%s", qPrintable(what));
    }
}

QString World::file(const QString &name, const QByteArray &bytes) const
{
    return folder.write(u"Files/"_s + name, bytes);
}

void World::writeStore(const QByteArray &more) const
{
    folder.write(u"Zeph.ini"_s, "[FileLocations]\r\nFirstTimeUsed=2\r\nShowTips=0\r\n" + more);
}

void World::installData(const QString &name) const
{
    QFile source(installed(name));
    if (!source.open(QIODevice::ReadOnly)) {
        qWarning("cannot read %s", qPrintable(source.fileName()));
        return;
    }
    folder.write(name, source.readAll());
}

void World::installIcons() const
{
    folder.show(installed(u"icons"_s), u"icons"_s);
}

QStringList World::boxTitles() const
{
    QStringList titles;
    for (const Box &box : dialogs.boxes()) {
        titles.append(box.title);
    }
    return titles;
}

} // namespace zeph::test
