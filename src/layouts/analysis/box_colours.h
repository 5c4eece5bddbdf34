// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The two ways of colouring a box of a layout sheet. An empty box stays as it is.

#include "layouts/sheet.h"
#include "platform/core/colour_scheme.h"
#include "text/text_styles.h"

namespace zeph {

/// What normal highlighting gives to a box.
struct BoxLook {
    ColourScheme colours; ///< plain text is black, whatever they say of it
    CharFormat font; ///< its family, size and bold alone
};

/// Normal highlighting: font and size of all text, black, then the colours of captions and words.
/// Italic and underlined characters stay so.
RichText ApplyColours(SheetKind kind, RichText box, const BoxLook &look);

/// What follows /U, /M and /D in the layout styles 7, 8 and 9, each until another direction of the
/// hat or another modifier of the three, even over line ends; then the comments in their colour.
RichText ApplyUMDcolours(RichText box, const TextStyles &styles, ColorRef remStatements);

} // namespace zeph
