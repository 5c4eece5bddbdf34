// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

namespace zeph {

class ComposerEditor;
class StatusLine;

/// Runs the Editor's menu entry of that object name. One that cannot be used now is told on the
/// status line. False then.
bool runEntry(const ComposerEditor &editor, StatusLine &status, QStringView entry);

} // namespace zeph
