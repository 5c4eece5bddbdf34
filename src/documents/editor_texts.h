// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The Editor's own words that more than one place says.

#include "documents/document.h"
#include "language/file_kinds.h"
#include "platform/core/colour_scheme.h"
#include "platform/core/rich_text.h"
#include "platform/dialogs.h"

namespace zeph {

/// The Yes, No and Cancel box before an unsaved document is replaced or the program ends.
Box saveQuestion(const Document &document, const QString &why);

/// The box that a save which the user perhaps cancelled by accident ends in.
Box wontContinueBox(const Document &document, DocumentKind wanted);

/// The question whether to open a document again whose file was overwritten on disk.
Box reloadBox(const Document &document);

/// The refusal of every operation that would change a protected macro file.
Box fileProtectedBox();

/// What panel 1 becomes when a tab is selected: a compiler's result, a macro's keys and the same
/// text stay.
QString tabStatus(const QString &current, const QString &caption, bool isProtected = false);

/// Tooltip of the saved state's picture.
QString savedTooltip(const Document &document);

// How the settings want a document to look.

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
