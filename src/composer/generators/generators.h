// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What all generators share. A generator is a pure function from the values of a page's fields to a
// statement, or to a refusal that the page shows.

#include "documents/documents.h"
#include "platform/core/base.h"

#include <initializer_list>

namespace zeph {

/// A statement to insert, or the box that tells why there is none.
using Generated = Expected<Statement, Refusal>;

/// A required field is empty.
Refusal missingText();

/// A statement of one piece, painted as typing paints it.
Generated plainStatement(const QString &text, bool startsLine);

/// Whether any of the texts is empty.
bool lacksText(std::initializer_list<QStringView> texts);

/// The leading number of a text, rounded to the nearest whole number with halves to even; 0 without
/// digits. Numbers beyond 32 bits give the nearest of these.
int wholeOf(QStringView text);
/// Rounded to the nearest whole number, halves to even.
int rounded(double value);

} // namespace zeph
