// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "composer/wizards/lesson.h"
#include "cougar/drawn_picture.h"

#include <QWidget>

class QSvgRenderer;

namespace zeph {

/// The picture of a lesson's page, as large as its place allows, with rings around the controls
/// that the page is about. Without its file the place stays empty. The file is read when the
/// picture is first painted.
class LessonPicture : public QWidget
{
    Q_OBJECT
public:
    LessonPicture(const QString &appFolder, const LessonPage &page, QWidget *parent = nullptr);
    ~LessonPicture() override;

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void load();
    QSize pictureSize() const;
    void drawRings(QPainter &painter, const QRectF &target) const;

    QString m_appFolder;
    const LessonPage &m_page;
    bool m_isLoaded = false;
    DrawnPicture m_cougar;
    std::unique_ptr<QSvgRenderer> m_drawing;
};

/// The places of the page's controls on its picture of the Cougar, in its pixels; controls that lie
/// on one another have one place.
QList<QRect> ringsOf(const LessonPage &page);

} // namespace zeph
