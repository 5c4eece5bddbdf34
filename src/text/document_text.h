// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// A document's bytes and its text. In memory a line end is the one character '\n'.

#include "platform/core/base.h"

#include <QByteArray>

namespace zeph {

/// The text of a file's bytes: CR LF, a lone CR and a lone LF each end a line, every other byte is
/// one character. No text holds a NUL; for bytes that do, the error is the 0-based offset of the
/// first.
Expected<QString, qsizetype> documentText(const QByteArray &bytes);

/// The bytes of a text, lines ended by CR LF, nothing added behind the last.
QByteArray documentBytes(QStringView text);

} // namespace zeph
