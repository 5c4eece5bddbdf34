// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// A sheet as it first opens: the picture of the controls, and around it the boxes with the texts of
// an analysis, fit to print.

#include "layouts/draw/sheet_renderer.h"

#include <QSize>

namespace zeph {

class ProfileFile;

/// The picture that a sheet shows, and where its controls are on it. A file that is missing or
/// unusable leaves an empty one.
struct ControlsImage {
    QString name; ///< of the file in the program's folder
    DrawnPicture picture;
    PictureWithControls controls;
};

/// The picture of the handle that the pilot has, or of the throttle. None for the custom sheet.
ControlsImage controlsImage(SheetKind kind, const QString &appFolder, const ProfileFile &store);

/// What a sheet with that picture is drawn with.
SheetLook lookOf(const ControlsImage &image, const CharFormat &plain);

/// A sheet of that size with a box for each of the texts: arranged, and with smaller texts where
/// one does not fit its box.
Sheet firstSheet(SheetKind kind, const QSize &size, const std::vector<RichText> &texts,
                 const ControlsImage &image, const CharFormat &plain);

/// The same, but on a sheet that grows from that size until all texts fit or it is as large as a
/// sheet can be.
Sheet firstSheetForAll(SheetKind kind, QSize size, const std::vector<RichText> &texts,
                       const ControlsImage &image, const CharFormat &plain);

} // namespace zeph
