// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "layouts/window/sheet_desk.h"

#include <QObject>

#include <functional>

namespace zeph {

/// What the menus do to the boxes and pictures of a sheet as such: showing, locking, places and
/// sizes, the grid.
class SheetBoxes : public QObject
{
    Q_OBJECT
public:
    /// The window owns this.
    explicit SheetBoxes(const SheetDesk &desk);

    void mnuVisibleArray_Click(int index);
    void mnuVisibleArray2_Click(int index);
    void mnuLockedArray_Click(int index);
    void mnuLockedArray2_Click(int index);
    void mnuImageVisibleArray_Click(int index);
    void mnuLockedImageArray_Click(int index);
    void mnuHideEmptyText_Click();
    void MakeAllTextBoxesVisible();
    /// Scope 0: the selected box; 1: all that are shown.
    void mnuSnapToGrid_Click(int scope);
    void mnuResizeToGrid_Click(int scope);
    void mnuShowGrid_Click();
    void mnuWhenMovingArray_Click(int index);
    void setGridCell(int cell);
    int gridCell() const;
    /// Selects the next box that is shown, or the one before (-1).
    void selectNext(int step);
    void showGridCellSize();
    void showTextBoxSize();
    void showShowHide();

private:
    void connectEntries();
    /// Brings the ticks of the menus to what the sheet says.
    void showTicks();
    /// The option for boxes that the mouse has moved or sized.
    void afterMoving();
    void toggleBox(size_t box, bool LayoutTextBox::*flag);
    void togglePicture(size_t picture, bool SheetPicture::*flag);
    void inScope(int scope, const std::function<void(LayoutTextBox &)> &change);

    SheetDesk m_desk;
};

} // namespace zeph
