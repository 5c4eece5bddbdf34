// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What a press on the buttons of the find window finds. Positions are 0-based characters.

#include "platform/core/base.h"

#include <QStringList>

#include <vector>

namespace zeph {

/// What is sought, and whether from the start ("Find first") or from the caret on ("Find next").
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
    NoFurther, ///< not behind the caret
    Hit
};

struct SearchResult {
    SearchVerdict verdict = SearchVerdict::NoWord;
    qsizetype start = -1; ///< of the hit, which is as long as the word; -1 without one

    friend bool operator==(const SearchResult &, const SearchResult &) = default;
};

SearchResult search(QStringView text, const SearchRequest &request);

/// Where "Replace All" replaces: one hit after the other from the start, each sought behind the
/// replacement of the one before, in the text as it is by then. Positions are those of the text
/// before all replacements.
std::vector<qsizetype> hitsToReplace(QStringView text, QStringView word, QStringView replacement,
                                     int options);

/// Whether a text is one that the word finds: the same, or the same but for case.
bool isSought(QStringView text, QStringView word, int options);

/// A list of earlier texts with one more at the top, unless it is in it already.
QStringList withEarlier(QStringList earlier, const QString &text);

} // namespace zeph
