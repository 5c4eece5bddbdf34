// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What tells the three kinds of sheets apart: one row of a table each.

#include "layouts/sheet.h"
#include "platform/core/profile_list.h"

#include <span>

namespace zeph {

/// A file of places alone, or a folder with the places and a rich text a box.
enum class LayoutForm { Positions, WithText };

/// One of the two forms in which a kind of sheet is saved.
struct LayoutFormRow {
    QStringView extension; ///< with the dot
    QStringView filter; ///< of the open dialog
};

/// The files through which a sheet's texts reach the custom sheet; empty for the custom sheet.
struct TransferNames {
    QStringView list; ///< places of all boxes that were sent
    QStringView texts; ///< before the number and ".rtf"
    QStringView single; ///< before ".pos" and ".rtf"
};

/// The sheet's entry in the picture menus where it stands after the boxes.
constexpr int noPictureEntry = -1;

struct SheetKindRow {
    SheetKind kind;
    QStringView window; ///< the window's name
    QStringView caption; ///< as in "Joystick Layout Editor"
    int boxes;
    std::span<const QStringView> boxNames; ///< as the menus show them
    int secondMenuFrom; ///< first box of the second menus; the number of boxes when there are none
    std::span<const QStringView> pictures; ///< file names at first; empty for the stick's handle
    int pictureEntry; ///< in the menu arrays of the boxes, or noPictureEntry
    LayoutFormRow positions;
    LayoutFormRow withText;
    QStringView folderFile; ///< the places in the folder of a layout with text
    QStringView folderTexts; ///< before the box's number and ".rtf" there
    TransferNames transfer;
    ProfileListKeys recent; ///< the layouts used before, in Layouts.ini
    QStringView optionsSection; ///< the window's own section of Layouts.ini
    QStringView loadingStatus;
    QStringView coloursStatus; ///< while a sheet that was opened is coloured

    const LayoutFormRow &form(LayoutForm form) const
    {
        return form == LayoutForm::Positions ? positions : withText;
    }
};

const SheetKindRow &sheetKind(SheetKind kind);

/// A sheet of that kind with all its boxes and pictures, everything empty and of no size.
Sheet emptySheet(SheetKind kind);

/// Whether the sheet is printed upright: its height is not less than its width.
inline bool isPortrait(const Sheet &sheet)
{
    return sheet.height >= sheet.width;
}

} // namespace zeph
