// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The searches of the find window. Positions are 0-based characters.

#include "platform/core/base.h"

#include <QStringList>

#include <vector>

namespace zeph {

/// A search from the start of the text ("Find first") or from the caret on ("Find next").
struct SearchRequest {
    QString word;
    int options = 0; ///< of SearchOption
    bool first = true;
    qsizetype caret = 0;
};

enum class SearchVerdict {
    NoWord, ///< nothing to search for was given
    NoText, ///< the document is empty
    NotFound, ///< not in the whole text
    NoFurther, ///< not after the caret
    Hit
};

struct SearchResult {
    SearchVerdict verdict = SearchVerdict::NoWord;
    qsizetype start = -1; ///< of the hit, which is as long as the word; -1 without one

    friend bool operator==(const SearchResult &, const SearchResult &) = default;
};

SearchResult search(QStringView text, const SearchRequest &request);

/// All hits from the start of the text on; none overlaps the one before.
std::vector<qsizetype> allHits(QStringView text, QStringView word, int options);

/// The last hit that starts before a position, or the very last one when none does; -1 when there
/// are no hits.
qsizetype hitBefore(const std::vector<qsizetype> &hits, qsizetype position);

/// Says which of the hits starts at a position: "Hit 2 of 7", or "7 hits" when none does.
QString hitCount(const std::vector<qsizetype> &hits, qsizetype position);

/// A line number of plain digits, blanks around it allowed; no value for anything else.
std::optional<int> plainLineNumber(QStringView typed);

/// The hits of "Replace All". Each hit is sought after the replacement of the one before, in the
/// text as changed so far; the positions returned are those in the unchanged text.
std::vector<qsizetype> hitsToReplace(QStringView text, QStringView word, QStringView replacement,
                                     int options);

/// Whether the text is the word itself, in exact case if the options say so.
bool isSought(QStringView text, QStringView word, int options);

/// The list with the text added at the top, unless the list has it.
QStringList withEarlier(QStringList earlier, const QString &text);

} // namespace zeph
