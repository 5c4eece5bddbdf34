// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "options.h"

namespace zeph::standin {

/// Compiles a joystick file with its macro file, for as much as can be told without the hardware,
/// and writes the verdict into HOTAS.ini of the folder: "/ZEPH", then /CO (compile), /CD (and
/// download) or /CE (and enable the programmed mode), then the file. The verdict appears in one
/// replacement of HOTAS.ini, so whoever sees its status sees all of it.
Outcome runCompiler(const QStringList &arguments, const QString &hotasFolder,
                    const Options &options);

} // namespace zeph::standin
