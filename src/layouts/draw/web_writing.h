// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What the sheet's SVG and its web page have in common.

#include "layouts/draw/sheet_renderer.h"

#include <QXmlStreamWriter>

namespace zeph {

/// A number of pixels, with three places at most.
QString svgNumber(double number);
/// "#" and six hexadecimal digits.
QString webColour(ColorRef colour);
/// The text with a sign for each character that XML cannot hold.
QString xmlText(QString text);
/// The family and others with the same measures or at least of its kind, as style sheets name them.
QString webFontFamilies(const QString &family);
/// A point size in pixels.
double webPixels(double points);

/// Writes the start of an svg element of the sheet's size, with its pictures and leader lines.
void writeSvgGround(QXmlStreamWriter &xml, const Sheet &sheet, const SheetLook &look);

} // namespace zeph
