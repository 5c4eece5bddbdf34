// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Finds the definition of a control in the joystick text.

#include "text/text_lines.h"

namespace zeph {

class EditorView;

/// The definition of a statement's head ("BTN S1"): from the first place of the head (whole word,
/// in any case) to the next of the twelve keywords that can follow it, or to the end of the text.
/// Before a head that begins with "PortB" is a prefix of four characters, which belongs to the
/// definition. No value when the text has no such head.
std::optional<LineRange> buttonDefinition(QStringView text, const QString &head);

/// Shows the joystick text with the head's whole definition selected. False when there is none: the
/// selection stays as it was and, in an empty text, nothing else happens either.
bool ExtractButtonDefinition(EditorView &view, const QString &head);

} // namespace zeph
