// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "settings/setting_row.h"

#include <QPoint>
#include <QSize>

namespace zeph {

/// The Composer.
struct ComposerSettings {
    /// The defaults.
    ComposerSettings();

    static std::span<const SettingRow<ComposerSettings>> rows();

    /// A line end follows a statement that a page inserts.
    bool CompTabsAddCr;
    /// How many blanks the Spaces button inserts.
    int NumberOfBlanks;
    /// A click on a control never looks for its statement first.
    bool AlwaysInsert;
    /// A line end follows a macro that a double click inserts.
    bool COMPaddCR;
    /// The macro list is copied anew whenever the window becomes active.
    bool COMPMacrosTickedCopy;
    double ComposerTop; ///< twips
    double ComposerLeft; ///< twips
    /// DirectX axes 9 and 10: 0 not offered, 1 offered, 2 in use.
    int ShowDX9to10;
};

/// Where the corner of a window goes, in pixels: where it was, in twips, but a left or top beyond a
/// screen of that size, in pixels, counts as 10 twips.
QPoint cornerWithin(double left, double top, const QSize &screen);
QPoint composerCorner(const ComposerSettings &settings, const QSize &screen);

} // namespace zeph
