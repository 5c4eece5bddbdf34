// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// "Error codes.rtf", the explanations of the compiler's errors. Each entry starts with its code:
// "ERROR " and four digits.

#include "platform/core/rich_text.h"

namespace zeph {

/// Where an error is explained; positions are 0-based.
struct ErrorPassage {
    qsizetype entryStart = 0;
    qsizetype entryEnd = 0; ///< where the next entry starts, or the text's end
    qsizetype headingEnd = 0; ///< after the heading line's last character

    friend bool operator==(const ErrorPassage &, const ErrorPassage &) = default;
};

/// Finds the entry of the code that an error text begins with (its first ten characters). None when
/// the explanations lack the code. A heading without a line end after it counts as long as the
/// error text.
std::optional<ErrorPassage> findErrorEntry(QStringView text, QStringView errorText);

/// Reads the explanations. The error says in words which file failed and why.
Expected<RichText, QString> readErrorCodes(const QString &path);

} // namespace zeph
