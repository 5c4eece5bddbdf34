// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "options.h"

namespace zeph::standin {

/// Answers the mode requests: "/MODE /ZEPH" and any of /AW /AU (axes), /BW /BU (buttons), /NM
/// (report), /EB /CM /RS (empty the buffers, clear the memory, reset), or /P with a profile's name
/// and /DM or /DA. Modes are kept in HOTAS.ini of the folder, and the status is written with them;
/// a profile writes no status, as its caller marks it. Without /MODE the real tool shows a window:
/// the stand-in only tells which one of them was asked for: none named, /CALIBRATE or /CURVES.
Outcome runConfig(const QStringList &arguments, const QString &hotasFolder, const Options &options);

} // namespace zeph::standin
