// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/quickview/records.h"

namespace zeph {

namespace {

bool opensRecord(const DigestLine &line)
{
    return line.text == u"*** ";
}

} // namespace

std::vector<DigestLine> linesOf(const Digest &digest)
{
    std::vector<DigestLine> lines;
    lines.reserve(digest.sources.size());
    forEachLine(digest.text, [&](QStringView text) {
        lines.push_back({ text, digest.sources[lines.size()] });
    });
    if (!lines.empty()) {
        lines.pop_back();
    }
    return lines;
}

QStringView ControlRecord::firstText() const
{
    return lines.front().text.sliced(controlName(row).size() + 1);
}

std::vector<ControlRecord> controlRecords(std::span<const DigestLine> lines)
{
    std::vector<ControlRecord> records;
    for (size_t at = 0; at + 1 < lines.size();) {
        if (!opensRecord(lines[at])) {
            ++at;
            continue;
        }
        const size_t first = ++at;
        const QStringView head = lines[first].text;
        const int row = rowOfControl(head.first(std::max<qsizetype>(head.indexOf(u' '), 0)));
        while (at < lines.size() && !opensRecord(lines[at])) {
            ++at;
        }
        if (row > 0) {
            records.push_back({ row, lines.subspan(first, at - first) });
        }
    }
    return records;
}

} // namespace zeph
