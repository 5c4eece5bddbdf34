// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

#include <string>
#include <vector>

namespace zeph::test {

/// What the driver noted as standard strings, for the matchers.
inline std::vector<std::string> lines(const QStringList &notes)
{
    std::vector<std::string> result;
    for (const QString &note : notes) {
        result.push_back(note.toStdString());
    }
    return result;
}

} // namespace zeph::test
