// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QFrame>

class QImage;
class QLabel;
class QScrollBar;

namespace zeph {

class PictureCanvas;

/// The frame in which a picture is scrolled and zoomed: Picture2, with HScroll1, VScroll1 and
/// Picture3, the picture itself.
class PictureFrame : public QFrame
{
    Q_OBJECT
public:
    explicit PictureFrame(QWidget *parent = nullptr);

    PictureCanvas &canvas() const { return *m_canvas; }

    /// Shows another picture at its natural size (or in the window, while it is to fit).
    void showPicture(const QImage &picture);
    /// Shows the picture as it has become, at the same zoom and place.
    void refreshPicture(const QImage &picture);

    double zoom() const;
    /// A zoom that the user chose, held to the range. The middle of what is shown stays there.
    void setZoom(double zoom);
    void zoomIn();
    void zoomOut();
    bool fits() const { return m_fits; }
    /// While on, the picture is as large as the frame allows.
    void setFits(bool fits);

    /// Fits the picture into the frame: bars are shown only where the picture is larger than what
    /// is seen of it; their maximum is the difference.
    void RepositionControls();

Q_SIGNALS:
    /// The zoom, or whether the picture is to fit, has changed.
    void zoomChanged();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void zoomAround(double zoom, const QPoint &anchor);
    void place();
    void scrollBy(const QPoint &by);
    void ensureVisible(const QPoint &at);
    double fittingZoom() const;

    QWidget *m_port; ///< what is seen of the picture
    QLabel *m_hint; ///< shown while there is no picture
    PictureCanvas *m_canvas;
    QScrollBar *m_horizontal;
    QScrollBar *m_vertical;
    bool m_fits = false;
};

} // namespace zeph
