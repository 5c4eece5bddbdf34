// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/document_look.h"

#include "settings/colour_settings.h"

namespace zeph {

CharFormat plainFormat(const ColourSettings &settings, DocumentKind kind)
{
    CharFormat format;
    format.family = settings.TextFontName;
    format.pointSize = settings.TextFontSize;
    format.bold = settings.TextFontBold;
    format.colour = kind == DocumentKind::Joystick ? settings.JoystickTextDefaultColour
                                                   : settings.MacroTextDefaultColour;
    return format;
}

void takeFont(CharFormat &format, const CharFormat &font)
{
    format.family = font.family;
    format.pointSize = font.pointSize;
    format.bold = font.bold;
}

ColorRef documentBackground(const ColourSettings &settings, DocumentKind kind)
{
    return kind == DocumentKind::Joystick ? settings.BackgroundColour
                                          : settings.MacroBackgroundColour;
}

ColourScheme colourScheme(const ColourSettings &settings, DocumentKind kind)
{
    return kind == DocumentKind::Joystick ? settings.joystickScheme() : settings.macroScheme();
}

} // namespace zeph
