// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "options.h"

namespace zeph::standin {

/// Checks a joystick file with its macro file and writes the verdict into HOTAS.ini of the folder.
/// The arguments are "/ZEPH", then /CO (compile), /CD (and download) or /CE (and enable the
/// programmed mode), then the file. HOTAS.ini is replaced once, so a reader that sees the status
/// sees the whole verdict.
Outcome runCompiler(const QStringList &arguments, const QString &hotasFolder,
                    const Options &options);

} // namespace zeph::standin
