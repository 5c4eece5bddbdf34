// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/stand_in.h"

#include "platform/core/file_io.h"
#include "platform/core/paths.h"

namespace zeph {

bool isStandIn(const QString &program)
{
    const auto bytes = readWholeFile(existingPath(program));
    return bytes && bytes->contains(standInMark);
}

} // namespace zeph
