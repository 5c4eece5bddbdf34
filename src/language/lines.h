// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// A text line by line, with what of each line counts.

#include "language/scan.h"

namespace zeph::language {

/// A line as the parsers take it. All positions count from the text's start.
struct Line {
    /// The first character that is no blank.
    qsizetype first = 0;
    /// Behind the last character that is neither blank nor comment.
    qsizetype codeEnd = 0;
    /// Behind the last character that is no blank, comments included.
    qsizetype end = 0;
    /// 1-based.
    int number = 1;

    bool isEmpty() const { return end <= first; }
};

/// Walks over the lines of a text.
class LineReader
{
public:
    explicit LineReader(QStringView text) : m_text(text) { }
    /// Begins behind the line of that number, which ends at `end`.
    LineReader(QStringView text, qsizetype end, int number)
        : m_text(text), m_at(end + 1), m_number(number)
    {
    }

    /// The next line, or false behind the last one.
    bool next(Line &line);

private:
    QStringView m_text;
    qsizetype m_at = 0;
    int m_number = 0;
};

} // namespace zeph::language
