// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

namespace zeph {

/// The words that the file of each stand-in tool holds, and that no real tool does.
inline constexpr char standInMark[] = "a stand-in that drives no hardware";

/// Whether the program is one of the stand-ins that come with Zeph: they check files, and nothing
/// reaches a Cougar. A missing program is none. Reads the whole file.
bool isStandIn(const QString &program);

} // namespace zeph
