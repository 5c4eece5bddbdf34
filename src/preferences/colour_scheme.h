// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What a pilot chooses of colours and font, and the texts on which he sees it.

#include "settings/colour_settings.h"
#include "text/macro_table.h"

#include <QStringList>

#include <functional>

namespace zeph {

/// The pages of the previews.
enum class PreviewPage : quint8 { Joystick, Macro, MacroList };

/// One of the colours that can be chosen.
struct ColourCategory {
    QStringView caption;
    ColorRef ColourSettings::*colour;
    QStringView paints; ///< what has the colour, in words
    PreviewPage firstPage; ///< the pages that show it: from this one
    PreviewPage lastPage; ///< to this one
};

/// The categories, in the order of their list.
std::span<const ColourCategory> colourCategories();

/// The page to look at for a category: the present one, if the category is seen on it.
PreviewPage previewPageFor(const ColourCategory &category, PreviewPage present);

/// The families to choose from, sorted without regard to case: those that are offered, and in any
/// case the present one, so that narrowing the list chooses nothing.
QStringList fontChoices(const QStringList &families, const QString &present,
                        const std::function<bool(const QString &)> &isOffered);

/// A pair of files in which each category can be seen; line ends are '\n'.
QString sampleJoystickText();
QString sampleMacroText();
/// What the macro list shows of that macro file.
MacroTable sampleMacros();

} // namespace zeph
