// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "language/file_kinds.h"

namespace zeph {

class TextControl;
struct ColourSettings;

/// Shows a sample's text in the colours and the font of a scheme, as the document of that kind
/// would be shown.
void showSample(TextControl &sample, DocumentKind kind, const ColourSettings &scheme);

} // namespace zeph
