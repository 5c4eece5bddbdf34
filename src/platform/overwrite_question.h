// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/file_io.h"

namespace zeph {

class Dialogs;

/// The title of the boxes about files that may not be written.
inline constexpr QStringView readOnlyTitle = u"Can't save Read Only file";

/// Whether a file may be written to that path: where one stands already the user is asked, and one
/// that is marked as read only is refused with a box.
bool mayOverwrite(Dialogs &dialogs, const QString &path);

/// Tells that a save failed, and why.
void tellNotSaved(Dialogs &dialogs, const FileError &error);

} // namespace zeph
