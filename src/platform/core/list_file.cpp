// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/list_file.h"

#include "platform/core/file_io.h"
#include "platform/core/paths.h"
#include "platform/core/text1252.h"

namespace zeph {

QStringList linesOfListFile(const QString &path)
{
    const auto bytes = readWholeFile(existingPath(path));
    if (!bytes) {
        return {};
    }
    QString text = fromText1252(*bytes);
    text.replace(u'\r', u'\n');
    QStringList lines;
    for (const QString &line : text.split(u'\n')) {
        const QString trimmed = line.trimmed();
        if (!trimmed.isEmpty()) {
            lines.append(trimmed);
        }
    }
    return lines;
}

} // namespace zeph
