// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Texts of the Editor that several places show.

#include "documents/document.h"
#include "language/file_kinds.h"
#include "platform/core/colour_scheme.h"
#include "platform/core/rich_text.h"
#include "platform/dialogs.h"

namespace zeph {

/// The Yes, No and Cancel box before an unsaved document is replaced or the program ends.
Box saveQuestion(const Document &document, const QString &why);

/// Tells that a new file of the wanted kind is not begun, since the document was not saved: the
/// user may have cancelled that by accident.
Box wontContinueBox(const Document &document, DocumentKind wanted);

/// Asks whether to open a document again after its file was overwritten on disk.
Box reloadBox(const Document &document);

/// The refusal of every operation that would change a protected macro file.
Box fileProtectedBox();

/// The text of panel 1 after a tab is selected. A compiler's result ("Compile...") stays there.
QString tabStatus(const QString &current, const QString &caption, bool isProtected = false);

/// Tooltip of the picture that shows whether a document is saved.
QString savedTooltip(const Document &document);

/// What an empty document shows in place of a text: the first things that a new pilot may do.
QString firstThings(DocumentKind kind);

// What the settings say of the documents' looks.

struct ColourSettings;

/// Font and colour of a document's plain text.
CharFormat plainFormat(const ColourSettings &settings, DocumentKind kind);
/// Background of a document's control.
ColorRef documentBackground(const ColourSettings &settings, DocumentKind kind);
/// The painter's colours for one of the documents.
ColourScheme colourScheme(const ColourSettings &settings, DocumentKind kind);

} // namespace zeph
