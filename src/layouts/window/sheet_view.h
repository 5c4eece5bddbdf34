// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "layouts/window/sheet_canvas.h"

class QScrollBar;

namespace zeph {

/// Where a sheet is in its window, in device-independent pixels.
struct SheetGeometry {
    QRect port; ///< the part of the window that shows it
    QPoint corner; ///< of the sheet in the port while nothing is scrolled
    int across = 0; ///< how far it can be scrolled; 0 without a scroll bar
    int down = 0;

    friend bool operator==(const SheetGeometry &, const SheetGeometry &) = default;
};

/// The least margin around a sheet.
constexpr int sheetMargin = 20;

/// Centres a sheet that fits with its margins; else there are scroll bars of that breadth.
SheetGeometry RepositionThePictureboxes(const QSize &client, const QSize &sheet, int barBreadth);

/// The part of the window with the sheet (Picture2), its margins and scroll bars.
class SheetView : public QWidget
{
    Q_OBJECT
public:
    /// The model must outlive this.
    explicit SheetView(SheetModel &model, QWidget *parent = nullptr);

    SheetCanvas &canvas() const { return *m_canvas; }
    /// Shows a sheet as SheetCanvas::showSheet() does, in its place.
    void showSheet(const Sheet &shown);
    /// Scrolls so that the selected box is seen.
    void showSelected();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void layOut();
    void scroll();

    SheetModel &m_model;
    QWidget *m_port;
    SheetCanvas *m_canvas;
    QScrollBar *m_across;
    QScrollBar *m_down;
    SheetGeometry m_geometry;
};

} // namespace zeph
