// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The colours and the font that pilots can choose, and the sample texts that show them.

#include "settings/colour_settings.h"
#include "text/macro_table.h"

#include <QStringList>

#include <functional>

namespace zeph {

/// The pages of the preview.
enum class PreviewPage : quint8 { Joystick, Macro, MacroList };

/// One of the colours that can be chosen.
struct ColourCategory {
    QStringView caption;
    ColorRef ColourSettings::*colour;
    QStringView paints; ///< what is shown in it, for the user
    PreviewPage firstPage; ///< the pages that show it: from this one
    PreviewPage lastPage; ///< to this one
};

/// The categories, in the order of their list.
std::span<const ColourCategory> colourCategories();

/// The page to show for a category: the present one if the category is visible there.
PreviewPage previewPageFor(const ColourCategory &category, PreviewPage present);

/// The font families to choose from, sorted without regard to case: those for which isOffered() is
/// true and always the present one, so that filtering the list changes no setting.
QStringList fontChoices(const QStringList &families, const QString &present,
                        const std::function<bool(const QString &)> &isOffered);

/// A pair of sample files in which each category is visible; line ends are '\n'.
QString sampleJoystickText();
QString sampleMacroText();
/// The macro list of that macro file.
MacroTable sampleMacros();

} // namespace zeph
