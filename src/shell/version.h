// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

namespace zeph {

/// The version as it is told, compared and shown.
inline constexpr char16_t versionText[] = u"4.4.02";

} // namespace zeph
