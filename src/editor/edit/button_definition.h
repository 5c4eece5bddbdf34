// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Where a control's definition stands in the joystick text.

#include "text/text_lines.h"

namespace zeph {

class EditorView;

/// The definition of a statement's head ("BTN S1"): from the head's first place (whole word, in any
/// case) to the next of the twelve keywords that can follow it, or to the text's end. A head that
/// begins "PortB" is written behind a prefix of four characters, which is taken in. No value when
/// the head is nowhere.
std::optional<LineRange> buttonDefinition(QStringView text, const QString &head);

/// Brings the joystick text to the front with the head's whole definition selected. False, and the
/// selection as it was, when there is none; in an empty text nothing happens at all.
bool ExtractButtonDefinition(EditorView &view, const QString &head);

} // namespace zeph
