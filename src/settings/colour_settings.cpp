// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "settings/colour_settings.h"

#include "platform/core/units.h"

#include <array>

namespace zeph {

namespace {

using S = ColourSettings;

/// A row of the section Colours.
template <class... Rest> constexpr SettingRow<S> colourRow(QStringView key, Rest... rest)
{
    SettingRow<S> result = row(u"Colours", key, rest...);
    result.step = SettingsStep::Colours;
    return result;
}

constexpr SettingRow<S> at(ColorRef firstRun, SettingRow<S> row)
{
    row.firstRun = firstRun;
    return row;
}

// What a deleted colour key reads as; not the first run's colour, so that the loss is seen.
constexpr ColorRef lost = 16744448;

constexpr ColorRef black = 0;

constexpr std::array rows = {
    at(14285565, colourRow(u"BackgroundColour", &S::BackgroundColour, lost)),
    at(16711680, colourRow(u"BTNColour", &S::BTNColour, lost)),
    at(colorRef(208, 0, 0), colourRow(u"SlashColour", &S::SlashColour, lost)),
    at(32768, colourRow(u"RAWColour", &S::RAWColour, lost)),
    at(colorRef(0, 112, 176), colourRow(u"MiscellaneousColour", &S::MiscellaneousColour, lost)),
    at(16645091, colourRow(u"MacroBackgroundColour", &S::MacroBackgroundColour, lost)),
    at(colorRef(104, 104, 104), colourRow(u"RemStatements", &S::RemStatements, lost)),
    colourRow(u"JoystickTextDefaultColour", &S::JoystickTextDefaultColour, black, SavedAs{ 52 }),
    colourRow(u"MacroTextDefaultColour", &S::MacroTextDefaultColour, black, SavedAs{ 53 }),
    at(11779289, colourRow(u"MacroListBackground", &S::MacroListBackground, ColorRef(16777215))),
    colourRow(u"MacroListText", &S::MacroListText, black),
    colourRow(u"MacroHeadingsBackground", &S::MacroHeadingsBackground, ColorRef(8388608)),
    colourRow(u"MacroHeadingsText", &S::MacroHeadingsText, ColorRef(12648447)),
    colourRow(u"TextFontName", &S::TextFontName, u"Arial"),
    colourRow(u"TextFontSize", &S::TextFontSize, 8.0, anyNumber),
    colourRow(u"TextFontBold", &S::TextFontBold, false),
};

} // namespace

ColourSettings::ColourSettings()
{
    setDefaults(*this);
}

std::span<const SettingRow<ColourSettings>> ColourSettings::rows()
{
    return zeph::rows;
}

ColourScheme ColourSettings::joystickScheme() const
{
    return { JoystickTextDefaultColour, BTNColour,    SlashColour, RAWColour,
             MiscellaneousColour,       RemStatements };
}

ColourScheme ColourSettings::macroScheme() const
{
    ColourScheme scheme = joystickScheme();
    scheme.plain = MacroTextDefaultColour;
    return scheme;
}

void setFirstRunColours(ColourSettings &settings)
{
    SettingsOf<ColourSettings> group(settings);
    for (const SettingKey &key : ColourSettings::rows()) {
        const auto *colour = std::get_if<ColorRef>(&key.firstRun);
        group.set(key, colour ? SettingValue(*colour) : defaultOf(key));
    }
}

namespace {

struct DarkColour {
    ColorRef ColourSettings::*member;
    ColorRef colour;
};

constexpr DarkColour darkColours[] = {
    { &S::BackgroundColour, colorRef(30, 32, 36) },
    { &S::MacroBackgroundColour, colorRef(24, 34, 38) },
    { &S::JoystickTextDefaultColour, colorRef(230, 230, 226) },
    { &S::MacroTextDefaultColour, colorRef(230, 230, 226) },
    { &S::BTNColour, colorRef(120, 170, 255) },
    { &S::SlashColour, colorRef(255, 128, 120) },
    { &S::RAWColour, colorRef(120, 200, 120) },
    { &S::MiscellaneousColour, colorRef(90, 190, 235) },
    { &S::RemStatements, colorRef(150, 154, 160) },
    { &S::MacroListBackground, colorRef(38, 42, 50) },
    { &S::MacroListText, colorRef(225, 225, 220) },
    { &S::MacroHeadingsBackground, colorRef(20, 52, 84) },
    { &S::MacroHeadingsText, colorRef(255, 236, 170) },
};

} // namespace

void setDarkColours(ColourSettings &settings)
{
    for (const DarkColour &each : darkColours) {
        settings.*each.member = each.colour;
    }
}

SettingProblems readColours(Settings &settings, const SettingsFiles &files)
{
    return readGroup(settings.group<ColourSettings>(), files);
}

Expected<void, FileError> SaveColourScheme(Settings &settings, const SettingsFiles &files)
{
    return saveGroup(settings.group<ColourSettings>(), files);
}

namespace {

const QString section = u"Colours"_s;
constexpr ColorRef white = 16777215;

QString keyOf(size_t index)
{
    return u"CustomColour"_s + QString::number(index + 1);
}

} // namespace

CustomColours GetCustomColour(const ProfileFile &store)
{
    const QByteArray file = store.bytes().value_or(QByteArray());
    CustomColours colours;
    for (size_t i = 0; i < colours.size(); ++i) {
        const QString text = profile::value(file, section, keyOf(i)).value_or(QString());
        colours[i] = colorRefFromText(text.left(profileColourBuffer - 1)).value_or(white);
    }
    return colours;
}

Expected<void, FileError> keepCustomColours(const ProfileFile &store, const CustomColours &colours)
{
    QList<ProfileEntry> entries;
    for (size_t i = 0; i < colours.size(); ++i) {
        entries.append({ section, keyOf(i), textFromColorRef(colours[i]) });
    }
    return store.write(entries);
}

} // namespace zeph
