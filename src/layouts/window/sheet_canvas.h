// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "layouts/draw/sheet_renderer.h"
#include "layouts/window/sheet_mouse.h"

#include <QWidget>

class QMouseEvent;

namespace zeph {

class BoxEditor;
class RichTextBox;
class SheetModel;

/// The sheet itself (Picture3), one pixel of the sheet to a device-independent pixel. It is drawn
/// as on paper; a control lies over the selected box (TxtRTF_ and the box's number), in which its
/// text is edited.
class SheetCanvas : public QWidget
{
    Q_OBJECT
public:
    /// The model must outlive this.
    explicit SheetCanvas(SheetModel &model, QWidget *parent = nullptr);

    /// Shows a sheet, usually the model's own; its texts may be others than the model's.
    void showSheet(const Sheet &shown);
    const Sheet &shown() const { return m_shown; }
    void setLook(const SheetLook &look);
    const SheetLook &look() const { return m_look; }
    /// Draws a grid of that cell size under the boxes; 0 for none.
    void setGrid(int cell);

    /// How many boxes that are shown do not hold their text.
    int overflowing();

    /// The control over the selected box; hidden while none is selected that is shown.
    RichTextBox &editor() const;
    bool isEditing() const;
    /// Gives the control the keyboard.
    void editorFocus();

Q_SIGNALS:
    /// The mouse has moved or sized the selected box; what is done to it now is part of that step.
    void boxMoved();
    /// The menu of the selected box is wanted there.
    void menuWanted(const QPoint &globalPosition);
    void lookChanged();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    SheetMouseEvent eventOf(const QMouseEvent &event, SheetButton button) const;
    void pressed(const QMouseEvent &event);
    void moved(const QMouseEvent &event);
    /// False when something else than a box or picture that was carried has to handle the release.
    bool released(const QMouseEvent &event);
    void fulfil(const MouseWish &wish);
    void forward(const QMouseEvent &event);
    void showEditor();
    void showPointer();
    int movablePictureAt(const QPointF &at) const;
    void drawGrid(QPainter &painter, const QRect &exposed) const;
    void drawSelection(QPainter &painter) const;

    SheetModel &m_model;
    Sheet m_shown;
    SheetLook m_look;
    SheetRenderer m_renderer;
    SheetMouse m_mouse;
    BoxEditor *m_editor;
    RichText m_edited; ///< the text that the control shows, as the model has it
    int m_grid = 0;
    int m_pressedOn = -1; ///< the box on which a button went down
    bool m_isForwarding = false; ///< the press on a box goes on in its control
    bool m_isSetting = false; ///< the program, not the user, changes the control's text
};

} // namespace zeph
