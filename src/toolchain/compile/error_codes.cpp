// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/compile/error_codes.h"

#include "language/error_codes.h"
#include "platform/core/file_io.h"
#include "platform/core/paths.h"
#include "platform/core/rtf.h"
#include "platform/core/text_search.h"

#include <algorithm>

namespace zeph {

namespace {

/// A search for the next entry starts here, so that it does not find the entry's own first word.
constexpr qsizetype afterOwnWord = language::errorWord.size();

} // namespace

std::optional<ErrorPassage> findErrorEntry(QStringView text, QStringView errorText)
{
    const qsizetype start =
        findText(text, errorText.left(language::errorHeadingLength), 0, SearchPlain);
    if (start < 0) {
        return std::nullopt;
    }
    const qsizetype after = std::min(start + afterOwnWord, text.size());
    const qsizetype next = findText(text, language::errorWord, after, SearchMatchCase);
    const qsizetype lineEnd = text.indexOf(u'\n', after);
    return ErrorPassage{
        start,
        next < 0 ? text.size() : next,
        lineEnd < 0 ? std::min(start + errorText.size(), text.size()) : lineEnd,
    };
}

Expected<RichText, QString> readErrorCodes(const QString &path)
{
    const QString onDisk = existingPath(path);
    const auto bytes = readWholeFile(onDisk.isEmpty() ? path : onDisk);
    if (!bytes) {
        return Unexpected<QString>(bytes.error().path + u"\n\n"_s + bytes.error().reason);
    }
    auto text = readRtf(*bytes);
    if (!text) {
        return Unexpected<QString>(onDisk + u"\n\n"_s + text.error().reason);
    }
    return std::move(*text);
}

} // namespace zeph
