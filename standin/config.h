// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "options.h"

namespace zeph::standin {

/// Answers the mode requests: "/MODE /ZEPH" and any of /AW /AU (axes), /BW /BU (buttons), /NM
/// (report), /EB /CM /RS (empty the buffers, clear the memory, reset), or /P with a profile's name
/// and /DM or /DA. Keeps the modes in HOTAS.ini of the folder and writes the status with them. A
/// profile writes no status, because its caller does that itself. Without /MODE the real tool opens
/// a window; the stand-in prints which one: the main one, /CALIBRATE or /CURVES.
Outcome runConfig(const QStringList &arguments, const QString &hotasFolder, const Options &options);

} // namespace zeph::standin
