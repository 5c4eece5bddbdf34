// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// A sheet as the bytes of a file that other programs show. All of them have the lines and places
// that SheetRenderer draws.

#include "layouts/draw/sheet_renderer.h"

#include <QStringList>

namespace zeph {

/// One page with text that can be selected, fonts embedded: A4, or of the sheet's size when that is
/// larger. The error is the reason in the system's words.
Expected<QByteArray, QString> pdfOf(const Sheet &sheet, const SheetLook &look,
                                    const QString &title);

/// So many pixels for one of the sheet's. The error is the reason, such as a picture that is too
/// large for the memory.
Expected<QByteArray, QString> pngOf(const Sheet &sheet, const SheetLook &look, int scale);

/// Vectors, and text as text. The lines that a box does not hold are left out.
QByteArray svgOf(const Sheet &sheet, const SheetLook &look, const QString &title);

/// One web page that needs no other file. The text that a box does not hold can be scrolled to.
QByteArray htmlOf(const Sheet &sheet, const SheetLook &look, const QString &title);

/// The endings of the files that exportSheet() can make, in lower case: pdf, svg, png, html.
QStringList exportEndings();

/// The file of one of these endings. The scale is that of pngOf().
Expected<QByteArray, QString> exportSheet(QStringView ending, const Sheet &sheet,
                                          const SheetLook &look, const QString &title,
                                          int scale = 1);

} // namespace zeph
