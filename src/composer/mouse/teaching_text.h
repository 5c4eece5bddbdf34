// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/paths.h"

class QTextBrowser;

namespace zeph {

/// Shows a text of the folder Wizards, and its beginning first. Where the file is missing, that is
/// what is shown.
void showTeaching(QTextBrowser &browser, const Paths &paths, QStringView file);

} // namespace zeph
