// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The names of a zip's entries, which somebody else wrote: what they mean, and which of them may
// become files.

#include "platform/core/base.h"

#include <QByteArray>

namespace zeph {

/// Decodes an entry's name: as UTF-8 when its bytes are valid UTF-8, otherwise in code page 437, in
/// which older zip programs wrote.
QString zipNameText(const QByteArray &bytes);

/// The path that an entry gets below the folder that it is unpacked into, with "/" as separator;
/// backslashes part folders too. The error says why there is none: a name that leads outside, that
/// names a drive or a device, or that not every file system can hold.
Expected<QString, QString> safeEntryName(const QString &name);

/// Whether a text can be the name of one file or folder on every system; the error says why not.
Expected<void, QString> checkFileName(const QString &name);

} // namespace zeph
