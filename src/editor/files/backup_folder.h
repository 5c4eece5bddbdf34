// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

namespace zeph {

class Dialogs;
struct Paths;

/// The backup folder to use, with a closing separator: the wanted one, made with its parents when
/// it is absent, or the default one for an empty name. One that cannot be made is told, and the
/// default one takes its place.
QString checkedBackupFolder(const QString &wanted, const Paths &paths, Dialogs &dialogs);

} // namespace zeph
