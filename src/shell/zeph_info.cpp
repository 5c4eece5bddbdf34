// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/zeph_info.h"

#include "platform/core/profile_file.h"

#include <QDir>

#include <algorithm>

namespace zeph {

namespace {

// More than a menu can hold; a garbled count must not read the disk for minutes.
constexpr qint32 mostEntries = 100;

/// The keys of one of the two lists.
struct ListKeys {
    QStringView section;
    QStringView count;
    QStringView path;
};

constexpr ListKeys onlineHelpKeys{ u"Online Help", u"NumberOfTopics", u"InfoFile" };
constexpr ListKeys manualKeys{ u"Manuals", u"NumberOfManuals", u"Path" };

QList<InfoEntry> readList(const ProfileFile &file, const ListKeys &keys, const QString &folder)
{
    QList<InfoEntry> entries;
    const qint32 count = std::clamp(file.integer(keys.section, keys.count, 0), 0, mostEntries);
    for (qint32 i = 1; i <= count; ++i) {
        const QString number = QString::number(i);
        const QString caption = file.text(keys.section, u"MenuCaption"_s + number);
        const QString path =
            nativeSeparators(file.text(keys.section, keys.path.toString() + number));
        if (!caption.isEmpty()) {
            entries.append({ caption, QDir::isAbsolutePath(path) ? path : folder + path });
        }
    }
    return entries;
}

} // namespace

std::optional<ZephInfo> readZephInfo(const Paths &paths)
{
    const QString path = existingPath(paths.infoFolder() + u"ZephInfo.ini"_s);
    if (path.isEmpty()) {
        return std::nullopt;
    }
    const ProfileFile file(path);
    return ZephInfo{ readList(file, onlineHelpKeys, paths.infoFolder()),
                     readList(file, manualKeys, withClosingSeparator(paths.appFolder)) };
}

} // namespace zeph
