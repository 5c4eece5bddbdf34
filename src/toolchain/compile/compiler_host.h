// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

#include <functional>

namespace zeph {

struct CompilerVerdict;
class Document;

/// What everything that runs the compiler needs of the windows above it. All must be set.
struct CompilerHost {
    std::function<QString()> joystickText;
    std::function<QString()> macroText;
    std::function<const Document &()> joystick;
    std::function<const Document &()> macro;
    std::function<void()> selectJoystickTab;
    /// Saves the selected document; its state tells afterwards whether that took place.
    std::function<void()> mnuFileSave_Click;
    std::function<void()> ResetFocusToEditor;
    /// Line (1-based) and error text.
    std::function<void(int, const QString &)> HighlightErrorLine;
    /// Shows CompilerHelp, without blocking, with the verdict's error.
    std::function<void(const CompilerVerdict &)> showCompilerHelp;
};

} // namespace zeph
