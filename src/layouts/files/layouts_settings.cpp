// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/files/layouts_settings.h"

#include <array>

namespace zeph {

namespace {

using S = LayoutsSettings;

constexpr QStringView general = u"Joystick Layout";
constexpr QStringView snap = u"Snap stuff";
constexpr QStringView tweaks = u"Printing Tweaks";
const QString formatter = u"Formatter"_s;
const QString hideToolBars = u"HideAllToolBars"_s;

constexpr int unprintedMargin = 160;
constexpr QSize smallestDefault(800, 600);
constexpr QSize withoutPrinter(1043, 714);

constexpr SettingRange sheetPixels{ 400, 32767 };
constexpr SettingRange whenMoving{ 0, 2 };
constexpr SettingRange cellPixels{ 2, 100 };

constexpr SettingsStore store = SettingsStore::Layouts;

constexpr std::array rows = {
    in(store, row(general, u"LOTextFont", &S::LOTextFont, u"Arial")),
    in(store,
       row(general, u"LOTextFontSize", &S::LOTextFontSize, 8,
           SettingRange{ smallestStyleSize, largestStyleSize })),
    in(store, row(general, u"LOTextFontBold", &S::LOTextFontBold, false)),
    in(store, row(general, u"LayoutApplyColour", &S::LayoutApplyColour, true)),
    in(store, row(general, u"HighlightingMethod", &S::HighlightingMethod, false)),
    in(store, row(general, u"RepositionOnSizeChange", &S::RepositionOnSizeChange, true)),
    in(store, row(general, u"DefImageX", &S::DefImageX, withoutPrinter.width(), sheetPixels)),
    in(store, row(general, u"DefImageY", &S::DefImageY, withoutPrinter.height(), sheetPixels)),
    in(store, row(general, u"AutoJLO", &S::AutoJLO, u"")),
    in(store, row(general, u"AutoJLOuse", &S::AutoJLOuse, false)),
    in(store, row(general, u"AutoTLO", &S::AutoTLO, u"")),
    in(store, row(general, u"AutoTLOuse", &S::AutoTLOuse, false)),
    in(store, row(general, u"AutoCLO", &S::AutoCLO, u"")),
    in(store, row(general, u"AutoCLOuse", &S::AutoCLOuse, false)),
    in(store, row(general, u"LeaderLines", &S::LeaderLines, true)),
    in(store, row(general, u"ShowKeys", &S::ShowKeys, 0, SettingRange{ 0, 2 })),
    in(store, row(snap, u"JoystickSnap", &S::JoystickSnap, 2, whenMoving)),
    in(store, row(snap, u"JoystickGridCellSize", &S::JoystickGridCellSize, 5, cellPixels)),
    in(store, row(snap, u"ThrottleSnap", &S::ThrottleSnap, 2, whenMoving)),
    in(store, row(snap, u"ThrottleGridCellSize", &S::ThrottleGridCellSize, 5, cellPixels)),
    in(store, row(snap, u"CleoSnap", &S::CleoSnap, 0, whenMoving)),
    in(store, row(snap, u"CleoGridCellSize", &S::CleoGridCellSize, 5, cellPixels)),
    in(store, row(snap, u"CleoPrintOnWhite", &S::CleoPrintOnWhite, false)),
    in(store, row(tweaks, u"TBAdjustHeight", &S::TBAdjustHeight, 0, anyNumber)),
    in(store, row(tweaks, u"TBAdjustWidth", &S::TBAdjustWidth, 0, anyNumber)),
    in(store, row(tweaks, u"TxtTopAdjust", &S::TxtTopAdjust, 0, anyNumber)),
    in(store, row(tweaks, u"TxtLeftAdjust", &S::TxtLeftAdjust, 0, anyNumber)),
};

/// In the order of SheetKind.
constexpr SheetSettings sheets[] = {
    { &S::AutoJLO, &S::AutoJLOuse, &S::JoystickSnap, &S::JoystickGridCellSize },
    { &S::AutoTLO, &S::AutoTLOuse, &S::ThrottleSnap, &S::ThrottleGridCellSize },
    { &S::AutoCLO, &S::AutoCLOuse, &S::CleoSnap, &S::CleoGridCellSize },
};

/// Dark ones that white paper shows well, from the one for everything to the quiet ones.
constexpr FormatterColours defaultColours = {
    .palette = { 16711680, colorRef(0, 0, 0), colorRef(176, 0, 0), colorRef(0, 96, 0),
                 colorRef(128, 0, 128), colorRef(0, 110, 120), colorRef(110, 70, 0),
                 colorRef(192, 80, 0), colorRef(0, 0, 128), colorRef(0, 70, 140),
                 colorRef(96, 96, 0), colorRef(64, 0, 96), colorRef(160, 0, 96),
                 colorRef(64, 64, 64), colorRef(96, 96, 96), colorRef(112, 48, 48) },
    .recent = { 0, 0, 0, 0, 0, 0, 0, 0 },
};

constexpr QStringView paletteKey = u"FormatterColour";
constexpr QStringView recentKey = u"RecentColour";

QString numbered(QStringView key, size_t index)
{
    return key.toString() + QString::number(index);
}

template <size_t count>
void readColours(const QByteArray &file, QStringView key, std::array<ColorRef, count> &colours)
{
    for (size_t i = 0; i < count; ++i) {
        const QString text = profile::value(file, formatter, numbered(key, i)).value_or(QString());
        colours[i] = colorRefFromText(text.left(profileColourBuffer - 1)).value_or(colours[i]);
    }
}

template <size_t count>
void addColours(QList<ProfileEntry> &entries, QStringView key,
                const std::array<ColorRef, count> &colours)
{
    for (size_t i = 0; i < count; ++i) {
        entries.append({ formatter, numbered(key, i), textFromColorRef(colours[i]) });
    }
}

bool isHeld(const ProfileFile &layoutsIni, const SettingKey &key)
{
    return !layoutsIni.text(key.section, key.key).isEmpty();
}

} // namespace

LayoutsSettings::LayoutsSettings()
{
    setDefaults(*this);
}

std::span<const SettingRow<LayoutsSettings>> LayoutsSettings::rows()
{
    return zeph::rows;
}

const SheetSettings &sheetSettings(SheetKind kind)
{
    return sheets[size_t(kind)];
}

QSize defaultSheetSize(const std::optional<QSize> &paper)
{
    if (!paper) {
        return withoutPrinter;
    }
    return (*paper - QSize(unprintedMargin, unprintedMargin)).expandedTo(smallestDefault);
}

SettingProblems readLayoutsSettings(Settings &settings, const SettingsFiles &files,
                                    const std::optional<QSize> &paper)
{
    const SettingProblems problems = readGroup(settings.group<LayoutsSettings>(), files);
    auto &values = settings.of<LayoutsSettings>();
    const QSize size = defaultSheetSize(paper);
    if (!isHeld(files.layoutsIni, rowOf(&S::DefImageX))) {
        values.DefImageX = size.width();
    }
    if (!isHeld(files.layoutsIni, rowOf(&S::DefImageY))) {
        values.DefImageY = size.height();
    }
    for (const SheetSettings &sheet : sheets) {
        values.*sheet.usesAutomatic =
            values.*sheet.usesAutomatic && !(values.*sheet.automatic).isEmpty();
    }
    return problems;
}

bool GetLayoutOptions(const ProfileFile &layoutsIni, SheetKind kind)
{
    return layoutsIni.integer(sheetKind(kind).optionsSection, hideToolBars, 0) != 0;
}

Expected<void, FileError> SaveLayoutOptions(const ProfileFile &layoutsIni, SheetKind kind,
                                            bool hideAllToolBars)
{
    return layoutsIni.write({ sheetKind(kind).optionsSection.toString(), hideToolBars,
                              hideAllToolBars ? u"1"_s : u"0"_s });
}

TextStyles defaultLayoutStyles()
{
    TextStyles styles = defaultTextStyles();
    styles[6].name = u"/&U style"_s;
    styles[7].name = u"/&M style"_s;
    styles[8].name = u"/&D style"_s;
    return styles;
}

TextStyles readLayoutStyles(const ProfileFile &layoutsIni)
{
    return readTextStyles(layoutsIni, general.toString(), defaultLayoutStyles());
}

Expected<void, FileError> writeLayoutStyles(const ProfileFile &layoutsIni, const TextStyles &styles)
{
    return writeTextStyles(layoutsIni, general.toString(), styles);
}

FormatterColours readFormatterColours(const ProfileFile &layoutsIni)
{
    FormatterColours colours = defaultColours;
    const QByteArray file = layoutsIni.bytes().value_or(QByteArray());
    readColours(file, paletteKey, colours.palette);
    readColours(file, recentKey, colours.recent);
    return colours;
}

Expected<void, FileError> writeFormatterColours(const ProfileFile &layoutsIni,
                                                const FormatterColours &colours)
{
    QList<ProfileEntry> entries;
    addColours(entries, paletteKey, colours.palette);
    addColours(entries, recentKey, colours.recent);
    return layoutsIni.write(entries);
}

} // namespace zeph
