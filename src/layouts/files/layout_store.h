// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Layouts on the disk. Names that are read and replaced are found in any case.

#include "layouts/files/layout_file.h"

namespace zeph {

/// The form that a path's last letters name, in any case; no value for other files.
std::optional<LayoutForm> layoutFormOf(SheetKind kind, const QString &path);

/// Where a layout of that name is saved in the folder of all layouts, which ends with a separator:
/// the file of a layout with text lies in a folder of its own.
QString layoutPath(SheetKind kind, LayoutForm form, const QString &layouts, const QString &name);

/// The names that the save dialogs offer: the folders in the folder of all layouts, sorted, without
/// the one of transfers.
QStringList layoutNames(const QString &layouts);
/// Whether a layout can have that name; the error says why not.
Expected<void, QString> checkLayoutName(const QString &name);

/// Reads a layout. That of a layout with text is the file with the places; the texts lie beside it.
Expected<Sheet, LayoutError> loadLayout(SheetKind kind, LayoutForm form, const QString &path);
/// Writes a layout in the place of the one that is there; for one with text, its folder is made.
Expected<void, LayoutError> saveLayout(const Sheet &sheet, LayoutForm form, const QString &path);

/// The file that a picture's path in a layout means; empty when there is none. The program's own
/// pictures are named without a folder or with a separator alone, and one from a folder that is
/// gone is looked for among them.
QString pictureFile(const QString &path, const QString &appFolder);
/// The path by which a layout names a picture's file.
QString picturePathOf(const QString &file, const QString &appFolder);

/// A text box on its way to the custom sheet.
struct TransferBox {
    QRectF place;
    RichText text;

    friend bool operator==(const TransferBox &, const TransferBox &) = default;
};

/// The joystick or throttle sheet's boxes that are shown, in their order.
std::vector<TransferBox> shownBoxes(const Sheet &sheet);

/// Writes what the joystick or throttle sheet sends, with all its boxes or with one.
Expected<void, LayoutError> saveAllForTransfer(SheetKind from, const QString &layouts,
                                               const std::vector<TransferBox> &boxes);
Expected<void, LayoutError> saveSingleForTransfer(SheetKind from, const QString &layouts,
                                                  const TransferBox &box);
/// Reads what was sent; no boxes when nothing was.
Expected<std::vector<TransferBox>, LayoutError> loadAllForTransfer(SheetKind from,
                                                                   const QString &layouts);
Expected<std::vector<TransferBox>, LayoutError> loadSingleForTransfer(SheetKind from,
                                                                      const QString &layouts);

} // namespace zeph
