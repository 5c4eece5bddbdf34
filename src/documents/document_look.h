// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// How the settings want a document to look.

#include "language/file_kinds.h"
#include "platform/core/colour_scheme.h"
#include "platform/core/rich_text.h"

namespace zeph {

struct ColourSettings;

/// Font and colour of a document's plain text.
CharFormat plainFormat(const ColourSettings &settings, DocumentKind kind);
/// Gives a format the font of another: family, size and weight.
void takeFont(CharFormat &format, const CharFormat &font);
/// Background of a document's control.
ColorRef documentBackground(const ColourSettings &settings, DocumentKind kind);
/// The painter's colours for one of the documents.
ColourScheme colourScheme(const ColourSettings &settings, DocumentKind kind);

} // namespace zeph
