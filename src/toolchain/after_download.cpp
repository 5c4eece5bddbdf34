// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/after_download.h"

namespace zeph {

void AfterDownload::TurnNumLockOn() { }

void AfterDownload::GetAppsToRun(const QString &) { }

} // namespace zeph
