// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What Layouts.ini holds for the three sheets, beside the lists of layouts used before.

#include "layouts/files/sheet_kinds.h"
#include "settings/settings.h"
#include "text/text_styles.h"

#include <QSize>

namespace zeph {

/// The settings of the sheets. All instances share them.
struct LayoutsSettings {
    /// The defaults.
    LayoutsSettings();

    static std::span<const SettingRow<LayoutsSettings>> rows();

    /// Whether boxes move when the sheet's size changes: not after a layout was opened, until the
    /// user sets the size.
    bool repositions() const { return RepositionOnSizeChange && !isRepositionOff; }

    QString LOTextFont;
    double LOTextFontSize; ///< points
    bool LOTextFontBold;
    bool LayoutApplyColour; ///< a sheet is coloured when it opens
    bool HighlightingMethod; ///< the /U, /M and /D styles too
    bool RepositionOnSizeChange;
    int DefImageX; ///< width of a new sheet, in pixels
    int DefImageY;
    QString AutoJLO; ///< layout that opens with the sheet
    bool AutoJLOuse;
    QString AutoTLO;
    bool AutoTLOuse;
    QString AutoCLO;
    bool AutoCLOuse;
    int JoystickSnap; ///< a WhenMoving
    int JoystickGridCellSize; ///< pixels
    int ThrottleSnap;
    int ThrottleGridCellSize;
    int CleoSnap;
    int CleoGridCellSize;
    bool CleoPrintOnWhite;
    double TBAdjustHeight; ///< added to boxes when they are printed, as the next three
    double TBAdjustWidth;
    double TxtTopAdjust;
    double TxtLeftAdjust;
    bool LeaderLines; ///< from boxes to their controls
    int ShowKeys; ///< a MacroNames

    /// A layout was opened in this run. No key: it is never stored.
    bool isRepositionOff = false;
};

/// What happens to a box when the mouse has moved or sized it.
enum class WhenMoving { Snap, Resize, Leave };

/// How the macros of a box are shown.
enum class MacroNames { Names, Keys, NamesAndKeys };

/// The members in which the settings of one kind of sheet are.
struct SheetSettings {
    QString LayoutsSettings::*automatic;
    bool LayoutsSettings::*usesAutomatic;
    int LayoutsSettings::*whenMoving;
    int LayoutsSettings::*cellSize;
};
const SheetSettings &sheetSettings(SheetKind kind);

/// The size of a new sheet while the settings have none: the paper's less a margin, but not too
/// small for the boxes. All in pixels; no paper without a printer.
QSize defaultSheetSize(const std::optional<QSize> &paper);

/// Reads all settings of the sheets.
[[nodiscard]] SettingProblems readLayoutsSettings(Settings &settings, const SettingsFiles &files,
                                                  const std::optional<QSize> &paper);

/// Whether a sheet's window hides its tool bars.
bool GetLayoutOptions(const ProfileFile &layoutsIni, SheetKind kind);
Expected<void, FileError> SaveLayoutOptions(const ProfileFile &layoutsIni, SheetKind kind,
                                            bool hideAllToolBars);

/// The nine styles of the sheets; the last three are those of /U, /M and /D.
TextStyles defaultLayoutStyles();
TextStyles readLayoutStyles(const ProfileFile &layoutsIni);
Expected<void, FileError> writeLayoutStyles(const ProfileFile &layoutsIni,
                                            const TextStyles &styles);

/// The colours of the formatter's palette, which the user can change, and those used last.
struct FormatterColours {
    std::array<ColorRef, 16> palette;
    std::array<ColorRef, 8> recent;

    friend bool operator==(const FormatterColours &, const FormatterColours &) = default;
};
/// Colours that are missing or unusable get their defaults.
FormatterColours readFormatterColours(const ProfileFile &layoutsIni);
Expected<void, FileError> writeFormatterColours(const ProfileFile &layoutsIni,
                                                const FormatterColours &colours);

} // namespace zeph
