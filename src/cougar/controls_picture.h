// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "cougar/drawn_picture.h"
#include "cougar/handle_file.h"

#include <QPixmap>
#include <QWidget>

#include <vector>

class QAbstractButton;

namespace zeph {

class HotSpotButton;

/// A picture of the Cougar with its controls to click. It grows and shrinks with its window and
/// keeps its shape. Each hot spot is a button: named by its id (BTN_0, HAT_0, TRIG), reached by Tab
/// in the order given, clicked with Space and Enter too, and named to a screen reader.
class ControlsPicture : public QWidget
{
    Q_OBJECT
public:
    explicit ControlsPicture(QWidget *parent = nullptr);

    /// Shows a picture with hot spots, whose places are in its pixels; one that lies outside of it
    /// is hidden. Without a picture the hot spots are frames with their names, in a place large
    /// enough for all of them. Buttons of ids that were there before stay the same objects.
    void showPicture(const DrawnPicture &picture, const QList<HotSpot> &spots);
    /// Shows a handle with the picture that it names. An error says why there is no picture.
    Expected<void, FileError> showHandle(const QString &appFolder, const HandleFile &handle);
    /// Shows a picture that ships, such as "Throttle.bmp", or a user's in its place, with the hot
    /// spots of ours. An error says why there is no picture.
    Expected<void, FileError> showDrawing(const QString &appFolder, const QString &fileName);

    /// The button of a hot spot, to give it a tool tip or to open a menu below it; its text is what
    /// the language calls the control. Null when the hot spot is not shown.
    QAbstractButton *spot(QStringView id) const;
    /// Marks these hot spots and no others, until the next call.
    void highlight(const QStringList &ids);

    /// Where the picture is, in pixels of this widget.
    QRectF pictureRect() const;
    /// Where a place of the picture, given in its pixels, is in pixels of this widget.
    QRectF onWidget(const QRectF &place) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void clicked(const QString &id);
    /// The pointer, or else the focus, is on this hot spot now; empty when on none.
    void hovered(const QString &id);
    /// The user asks for the context menu of a hot spot, by mouse or keyboard.
    void menuWanted(const QString &id, const QPoint &globalPosition);
    /// The picture has another place, so that what is laid over it has to move.
    void laidOut();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    HotSpotButton *button(QStringView id) const;
    HotSpotButton *makeButton(const QString &id);
    void layOut();
    void tellHovered();

    DrawnPicture m_picture;
    QSize m_extent; ///< what the places are given in: the picture's size, or room for all of them
    std::vector<HotSpotButton *> m_buttons; ///< of all ids that were ever shown
    QStringList m_marked;
    QString m_pointed;
    QString m_focused;
    QString m_told;
    QPixmap m_shown;
};

} // namespace zeph
