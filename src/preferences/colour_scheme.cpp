// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "preferences/colour_scheme.h"
#include "settings/colour_settings.h"

#include <algorithm>

namespace zeph {

namespace {

using S = ColourSettings;
using enum PreviewPage;

constexpr ColourCategory categories[] = {
    { u"Buttons", &S::BTNColour, u"BTN and DEF, with the name after them", Joystick, Joystick },
    { u"Background: Joystick", &S::BackgroundColour, u"The paper of the joystick file", Joystick,
      Joystick },
    { u"Rem statements", &S::RemStatements, u"Comments in both files", Joystick, Macro },
    { u"Slash modifiers", &S::SlashColour, u"/U, /M, /I and their family, and < > around keys",
      Joystick, Macro },
    { u"DLY statements", &S::RAWColour, u"DLY, RPT, CURVE and other words for keys and axes, ( )",
      Joystick, Macro },
    { u"Configuration", &S::MiscellaneousColour, u"USE and all that sets the Cougar up, { }",
      Joystick, Macro },
    { u"Background: Macro", &S::MacroBackgroundColour, u"The paper of the macro file", Macro,
      Macro },
    { u"Text: Joystick", &S::JoystickTextDefaultColour,
      u"Whatever has no colour of its own in the joystick file", Joystick, Joystick },
    { u"Text: Macro", &S::MacroTextDefaultColour,
      u"Whatever has no colour of its own in the macro file", Macro, Macro },
    { u"Macro List: Background", &S::MacroListBackground, u"The paper of the macro list", MacroList,
      MacroList },
    { u"Macro List: Text", &S::MacroListText, u"The macros in the list", MacroList, MacroList },
    { u"Macro Headings: Background", &S::MacroHeadingsBackground, u"The field above the macro list",
      MacroList, MacroList },
    { u"Macro Headings: Text", &S::MacroHeadingsText, u"The headings above the macro list",
      MacroList, MacroList },
};

constexpr QStringView joystickText = u"Rem A few lines to try your colours on\n"
                                     u"USE MDEF sample\n"
                                     u"USE RATE (60)\n"
                                     u"USE HAT1 AS POV\n"
                                     u"USE CURVE (JOYSTICK, 3)\n"
                                     u"\n"
                                     u"BTN S1 /U Radar_On       Rem air to air\n"
                                     u"       /M Camera\n"
                                     u"       /D Laser DLY (120) Camera\n"
                                     u"BTN S2 /I /H Fire_Gun\n"
                                     u"       /O <SHF r> RPT (3) Flare\n"
                                     u"BTN T6 {CTL v} Chaff\n"
                                     u"RNG 1 4 Range_Out Range_In\n"
                                     u"DEF X1 S3 AND TG1\n"
                                     u"BTN X1 Jettison\n";

constexpr QStringView macroText = u"Rem ------------------------------\n"
                                  u"Rem           Weapons\n"
                                  u"Rem ------------------------------\n"
                                  u"Fire_Gun = SPC\n"
                                  u"Jettison = <CTL j>\n"
                                  u"Laser = /P SHF l /R\n"
                                  u"Camera = {c}\n"
                                  u"\n"
                                  u"Rem ------------------------------\n"
                                  u"Rem           Radar and countermeasures\n"
                                  u"Rem ------------------------------\n"
                                  u"Radar_On = r\n"
                                  u"Range_In = F3\n"
                                  u"Range_Out = F4\n"
                                  u"Chaff = x\n"
                                  u"Flare = z\n"
                                  u"Panic = Chaff DLY(100) RPT(3) Flare\n";

} // namespace

std::span<const ColourCategory> colourCategories()
{
    return categories;
}

PreviewPage previewPageFor(const ColourCategory &category, PreviewPage present)
{
    return std::clamp(present, category.firstPage, category.lastPage);
}

QStringList fontChoices(const QStringList &families, const QString &present,
                        const std::function<bool(const QString &)> &isOffered)
{
    QStringList choices;
    std::ranges::copy_if(families, std::back_inserter(choices), isOffered);
    if (!present.isEmpty() && !choices.contains(present, Qt::CaseInsensitive)) {
        choices.append(present);
    }
    choices.sort(Qt::CaseInsensitive);
    return choices;
}

QString sampleJoystickText()
{
    return joystickText.toString();
}

QString sampleMacroText()
{
    return macroText.toString();
}

MacroTable sampleMacros()
{
    return extractMacros(usableMacroLines(macroText));
}

} // namespace zeph
