// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/profile_list.h"

#include "platform/core/portable_paths.h"
#include "platform/core/profile_file.h"
#include "platform/core/text1252.h"

#include <algorithm>

namespace zeph {

QList<ProfileRow> readProfileList(const ProfileFile &store, const ProfileListKeys &keys)
{
    const auto file = store.bytes();
    if (!file) {
        return {};
    }
    const qint32 count = std::clamp(
        profile::integerOf(profile::value(*file, keys.section, keys.count), 0), 0, keys.most);
    QList<ProfileRow> rows;
    for (qint32 place = 1; place <= count; ++place) {
        ProfileRow row;
        for (const QStringView field : keys.fields) {
            const QString key = field.toString() + QString::number(place);
            const QString value = profile::value(*file, keys.section, key).value_or(QString());
            row.append(resolvedValue(store, keys.section, key, value.left(profileTextBuffer - 1)));
        }
        rows.append(row);
    }
    return rows;
}

QList<ProfileEntry> profileListEntries(const ProfileFile &store, const ProfileListKeys &keys,
                                       const QList<ProfileRow> &rows)
{
    const QString section = keys.section.toString();
    QList<ProfileEntry> entries = { { section, keys.count.toString(),
                                      QString::number(rows.size()) } };
    for (qsizetype i = 0; i < rows.size(); ++i) {
        for (size_t field = 0; field < keys.fields.size(); ++field) {
            const QString value = storedValue(store, keys.section, keys.fields[field],
                                              rows[i].value(qsizetype(field)));
            entries.append({ section, keys.fields[field].toString() + QString::number(i + 1),
                             firstNot1252(value) < 0 ? value : QString() });
        }
    }
    return entries;
}

Expected<void, FileError> writeProfileList(const ProfileFile &store, const ProfileListKeys &keys,
                                           const QList<ProfileRow> &rows,
                                           const QList<ProfileEntry> &more)
{
    const auto written = store.write(profileListEntries(store, keys, rows) + more);
    QStringList stale;
    for (qsizetype place = rows.size() + 1; place <= keys.most; ++place) {
        for (const QStringView field : keys.fields) {
            stale.append(field.toString() + QString::number(place));
        }
    }
    const auto removed = store.remove(keys.section, stale);
    return written ? removed : written;
}

bool isStorable(const QString &text)
{
    return text.size() <= longestStorable && firstNot1252(text) < 0;
}

QString storableOr(const QString &typed, const QString &before)
{
    const QString trimmed = typed.trimmed();
    return isStorable(trimmed) ? trimmed : before;
}

QString unstorableHint(const QStringList &texts)
{
    for (const QString &text : texts) {
        const QString trimmed = text.trimmed();
        if (const qsizetype at = firstNot1252(trimmed); at >= 0) {
            return u"My settings file has no letter for \u201C%1\u201D, so I can't keep that field "
                   "like this."_s.arg(trimmed[at]);
        }
        if (!isStorable(trimmed)) {
            return u"More than %1 characters are too many for my settings file."_s.arg(
                longestStorable);
        }
    }
    return {};
}

} // namespace zeph
