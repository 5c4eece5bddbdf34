// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/composer_settings.h"

#include "platform/core/units.h"

#include <array>

namespace zeph {

namespace {

using S = ComposerSettings;

/// Takes the place, in twips, of one that no screen has.
constexpr double beyondScreen = 10;

constexpr QStringView composer = u"Composer";

constexpr std::array rows = {
    row(u"Miscellaneous", u"CompTabsAddCr", &S::CompTabsAddCr, true, SavedAs{ 27 }),
    row(composer, u"NumberOfBlanks", &S::NumberOfBlanks, 5, { 1, 32767 }),
    row(composer, u"AlwaysInsert", &S::AlwaysInsert, false),
    row(composer, u"COMPaddCR", &S::COMPaddCR, true),
    row(composer, u"COMPMacrosTickedCopy", &S::COMPMacrosTickedCopy, false),
    row(composer, u"ComposerTop", &S::ComposerTop, 10, anyNumber),
    row(composer, u"ComposerLeft", &S::ComposerLeft, 10, anyNumber),
    row(u"Unsupported", u"ShowDX9to10", &S::ShowDX9to10, 0, { 0, 2 }),
};

} // namespace

ComposerSettings::ComposerSettings()
{
    setDefaults(*this);
}

std::span<const SettingRow<ComposerSettings>> ComposerSettings::rows()
{
    return zeph::rows;
}

QPoint cornerWithin(double left, double top, const QSize &screen)
{
    const auto within = [](double twips, int pixels) {
        return pixelsFromTwips(twips >= 0 && twips < twipsFromPixels(pixels) ? twips
                                                                             : beyondScreen);
    };
    return { within(left, screen.width()), within(top, screen.height()) };
}

QPoint composerCorner(const ComposerSettings &settings, const QSize &screen)
{
    return cornerWithin(settings.ComposerLeft, settings.ComposerTop, screen);
}

} // namespace zeph
