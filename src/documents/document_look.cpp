// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/document_look.h"

#include "settings/global_settings.h"

namespace zeph {

CharFormat plainFormat(const GlobalSettings &settings, DocumentKind kind)
{
    CharFormat format;
    format.family = settings.TextFontName;
    format.pointSize = leadingNumber(settings.TextFontSize);
    format.bold = settings.TextFontBold != 0;
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

ColorRef documentBackground(const GlobalSettings &settings, DocumentKind kind)
{
    return kind == DocumentKind::Joystick ? settings.BackgroundColour
                                          : settings.MacroBackgroundColour;
}

} // namespace zeph
