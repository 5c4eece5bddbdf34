// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The Editor's own words that more than one place says.

#include "documents/document.h"
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

} // namespace zeph
