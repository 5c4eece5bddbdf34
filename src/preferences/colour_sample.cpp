// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "preferences/colour_sample.h"

#include "documents/coloured_text.h"
#include "documents/editor_texts.h"
#include "documents/text_control.h"
#include "settings/colour_settings.h"
#include "text/painter.h"

namespace zeph {

void showSample(TextControl &sample, DocumentKind kind, const ColourSettings &scheme)
{
    static const Painter joystick{ joystickPasses() };
    static const Painter macro{ macroPasses() };
    const Painter &painter = kind == DocumentKind::Joystick ? joystick : macro;
    const CharFormat plain = plainFormat(scheme, kind);
    sample.setLook(documentBackground(scheme, kind), plain);
    sample.shown().setCharacterRuns(
        characterRuns(painter.paint(sample.shown().text(), colourScheme(scheme, kind)), plain));
}

} // namespace zeph
