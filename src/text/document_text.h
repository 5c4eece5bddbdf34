// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// A document as bytes on the disk and as text in memory, where a line end is the one character
// '\n'.

#include "platform/core/base.h"

#include <QByteArray>

namespace zeph {

/// The text of a file's bytes: CR LF, a single CR and a single LF each end a line, every other byte
/// is one character. Bytes with a NUL are no text; the error is the 0-based offset of the first
/// NUL.
Expected<QString, qsizetype> documentText(const QByteArray &bytes);

/// The bytes of a text, with CR LF for each line end and nothing added at the end.
QByteArray documentBytes(QStringView text);

} // namespace zeph
