// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "documents/editor_view.h"
#include "documents/text_control.h"
#include "editor/editor.h"
#include "editor/editor_settings.h"
#include "settings/colour_settings.h"
#include "tests/support/world.h"

#include <memory>

namespace zeph::test {

/// A colour that no scheme of the tests has.
inline constexpr ColorRef blue = 0xFF0000;

/// The world with the real Editor in it, and the folders that it expects.
struct EditorWorld : World {
    EditorWorld();

    /// Makes the Editor anew, for settings that it takes over when it is made.
    void makeEditor();
    /// Shows it in a usual size, laid out and painted.
    void showEditor();
    /// Types a text into a document.
    void type(DocumentKind kind, const QString &text);

    std::unique_ptr<Editor> editor;
};

} // namespace zeph::test
