// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "cougar/handle_list.h"

#include "platform/core/paths.h"
#include "platform/core/profile_list.h"

#include <QDir>

#include <algorithm>

namespace zeph {

namespace {

constexpr QStringView section = u"Handles";
constexpr QStringView defaultKey = u"Default";
constexpr QStringView countKey = u"NumHandles";
constexpr QStringView ending = u".tmh";
constexpr QStringView firstHandle = u"F-16 Block 50.tmh";
/// More than any pilot has; keeps a garbled count from costing time.
constexpr qint32 mostHandles = 200;

QString withEnding(const QString &name)
{
    return name + ending.toString();
}

/// The name without its ending; empty for the name of no handle file.
QString withoutEnding(const QString &file)
{
    const QString name = nameOf(nativeSeparators(file));
    return name.endsWith(ending, Qt::CaseInsensitive) ? name.chopped(ending.size()) : QString();
}

void addNew(QStringList &names, const QString &name)
{
    if (!name.isEmpty() && !names.contains(name, Qt::CaseInsensitive)) {
        names.append(name);
    }
}

} // namespace

HandleList listHandles(const ProfileFile &store, const QString &appFolder)
{
    const QByteArray file = store.bytes().value_or(QByteArray());
    const auto handle = [&file](const QString &key) {
        return withoutEnding(
            profile::value(file, section, key).value_or(firstHandle.toString()).trimmed());
    };
    HandleList list;
    const qint32 count =
        std::min(profile::integerOf(profile::value(file, section, countKey), 1), mostHandles);
    for (qint32 place = 1; place <= count; ++place) {
        addNew(list.names, handle(u"Handle"_s + QString::number(place)));
    }
    const QStringList files = QDir(appFolder).entryList({ withEnding(u"*"_s) }, QDir::Files,
                                                        QDir::Name | QDir::IgnoreCase);
    for (const QString &each : files) {
        addNew(list.names, withoutEnding(each));
    }
    list.chosen = handle(defaultKey.toString());
    const auto listed = std::ranges::find_if(list.names, [&list](const QString &name) {
        return name.compare(list.chosen, Qt::CaseInsensitive) == 0;
    });
    if (listed != list.names.end()) {
        list.chosen = *listed;
    }
    return list;
}

Expected<void, FileError> SaveHandle(const ProfileFile &store, const QString &name)
{
    const QString file = withEnding(name);
    if (!isStorable(file)) {
        return Unexpected<FileError>({ store.path(), unstorableHint({ file }) });
    }
    return store.write({ section.toString(), defaultKey.toString(), file });
}

QString handlePath(const QString &appFolder, const QString &name)
{
    return nativeSeparators(QDir(appFolder).filePath(withEnding(name)));
}

} // namespace zeph
