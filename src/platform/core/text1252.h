// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Windows-1252, the code page of every text file that Zeph shares with other programs.

#include "platform/core/base.h"

#include <QByteArray>

namespace zeph {

/// Every byte becomes one character. The five bytes that 1252 leaves unassigned (81, 8D, 8F, 90,
/// 9D) become U+0081 and so on, so that they come back as they were.
QString fromText1252(QByteArrayView bytes);

/// Whether 1252 has this character.
bool isText1252(QChar character);

/// The text's bytes. A character that 1252 lacks becomes "?": ask firstNot1252() beforehand where a
/// loss has to be told.
QByteArray toText1252(QStringView text);

/// Index of the first character that 1252 lacks, or -1.
qsizetype firstNot1252(QStringView text);

} // namespace zeph
