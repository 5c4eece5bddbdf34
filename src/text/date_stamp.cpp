// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "text/date_stamp.h"

#include <QLocale>

#include <algorithm>

namespace zeph {

QString stampText(const QDateTime &when)
{
    return QLocale::c().toString(when, u"dd MMMM yyyy, h:mm ap"_s);
}

std::optional<Stamp> modifiedStamp(QStringView text, const QDateTime &when)
{
    constexpr QStringView words = u"last modified:";
    const qsizetype hit = text.indexOf(words, 0, Qt::CaseInsensitive);
    if (hit < 0) {
        return std::nullopt;
    }
    const qsizetype behind = hit + words.size();
    qsizetype lineEnd = text.indexOf(u'\n', behind);
    if (lineEnd < 0) {
        lineEnd = text.size();
    }
    if (behind == lineEnd) {
        return Stamp{ behind, 0, u' ' + stampText(when) };
    }
    return Stamp{ behind + 1, lineEnd - behind - 1, stampText(when) };
}

qsizetype movedByStamp(const Stamp &stamp, qsizetype position)
{
    if (position >= stamp.start + stamp.length) {
        return position > stamp.start ? position + stamp.text.size() - stamp.length : position;
    }
    return std::min(position, stamp.start + stamp.text.size());
}

} // namespace zeph
