// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/colour_scheme.h"
#include "platform/core/profile_file.h"
#include "platform/dialogs.h"
#include "settings/settings.h"

namespace zeph {

/// Colours and font of the texts and of the macro list.
struct ColourSettings {
    /// The defaults; the first run sets other colours (setFirstRunColours).
    ColourSettings();

    static std::span<const SettingRow<ColourSettings>> rows();

    ColourScheme joystickScheme() const;
    ColourScheme macroScheme() const;

    ColorRef BackgroundColour;
    ColorRef BTNColour;
    ColorRef SlashColour;
    ColorRef RAWColour;
    ColorRef MiscellaneousColour;
    ColorRef MacroBackgroundColour;
    ColorRef RemStatements;
    ColorRef JoystickTextDefaultColour;
    ColorRef MacroTextDefaultColour;
    ColorRef MacroListBackground;
    ColorRef MacroListText;
    ColorRef MacroHeadingsBackground;
    ColorRef MacroHeadingsText;
    QString TextFontName;
    double TextFontSize; ///< points
    bool TextFontBold;
};

/// Sets the colours and the font to those of the first run.
void setFirstRunColours(ColourSettings &settings);

/// Sets the colours to light ones on dark ground; the font stays.
void setDarkColours(ColourSettings &settings);

/// Reads the colours and the font of the texts.
[[nodiscard]] SettingProblems readColours(Settings &settings, const SettingsFiles &files);
/// Writes all keys of the colours and the font.
Expected<void, FileError> SaveColourScheme(Settings &settings, const SettingsFiles &files);

// The colours that the pilot has made in the colour dialog.

/// The sixteen custom colours of the settings store (CustomColour1 to CustomColour16 in section
/// Colours); white where there is none.
CustomColours GetCustomColour(const ProfileFile &store);
/// Writes all sixteen.
Expected<void, FileError> keepCustomColours(const ProfileFile &store, const CustomColours &colours);

} // namespace zeph
