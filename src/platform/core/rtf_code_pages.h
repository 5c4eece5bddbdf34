// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The code pages of RTF's bytes. Every one agrees with ASCII below 80.

#include "platform/core/base.h"

#include <QByteArray>

#include <array>

namespace zeph::rtf {

/// The characters of the bytes 80 to FF. Unassigned bytes are the character of their number.
using HighHalf = std::array<char16_t, 128>;

/// The upper half of a code page that is built in, or null for the others: decode those whole, with
/// decoded(), since a character may take two bytes.
const HighHalf *highHalfOf(int codePage);

/// Bytes in a code page that is not built in; one that nobody knows is read as 1252.
QString decoded(QByteArrayView bytes, int codePage);

/// The code page of a font's \fcharset number, or 0 where the document's own counts.
int codePageOfCharset(int charset);

/// The byte (80 to FF) of a character in 1252, or 0 when it has none there.
uchar byteIn1252(char16_t character);

} // namespace zeph::rtf
