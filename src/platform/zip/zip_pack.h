// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

#include <functional>

namespace zeph {

/// Packs all files of a folder (with a closing separator) and of the folders in it into a zip, by
/// their places below it. Links are left out, and so is the zip itself, which may lie there. The
/// function is called before each file: its name, how many are done, how many there are; when it
/// returns false, the packing stops. True when the zip was made; otherwise a file of its name stays
/// as it was.
Expected<bool, QString>
packFolder(const QString &folder, const QString &zipPath,
           const std::function<bool(const QString &name, int done, int all)> &progress);

} // namespace zeph
