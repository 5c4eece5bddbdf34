// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/storable.h"

#include "platform/core/text1252.h"

namespace zeph {

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
