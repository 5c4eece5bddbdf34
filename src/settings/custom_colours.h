// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The pilot's own colours in the colour dialog.

#include "platform/core/profile_file.h"
#include "platform/dialogs.h"

namespace zeph {

/// The sixteen custom colours of the settings store (CustomColour1 to CustomColour16 in section
/// Colours); white where there is none.
CustomColours GetCustomColour(const ProfileFile &store);
Expected<void, FileError> keepCustomColours(const ProfileFile &store, const CustomColours &colours);

} // namespace zeph
