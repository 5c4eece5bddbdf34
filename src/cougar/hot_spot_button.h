// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "cougar/places.h"

#include <QAbstractButton>

namespace zeph {

/// A hot spot of a picture: unseen until it is pointed at, has the focus or is marked.
class HotSpotButton : public QAbstractButton
{
    Q_OBJECT
public:
    HotSpotButton(const QString &id, QWidget *parent);

    QRect place; ///< in pixels of the picture
    void setMarked(bool isMarked);
    /// Whether a picture shows what is here; else the button draws itself.
    void setHasPicture(bool hasPicture);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void drawRing(QPainter &painter, const QColor &colour, qreal width) const;
    QRectF frame() const;
    qreal radius() const;

    bool m_isMarked = false;
    bool m_hasPicture = true;
};

} // namespace zeph
