// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QProxyStyle>

namespace zeph {

/// A colour between two others that is as near to the first as it can be while it is told apart
/// from it by that contrast (1 to 21); the second one when none is.
QColor faintest(const QColor &ground, const QColor &ink, double wanted);

/// How all windows look: the toolkit's own plain style, with what it draws too weakly or too
/// brightly on dark desktops mended, fields that cannot be written into in the window's colour,
/// message boxes with the program's pictures, no pictures on OK and Cancel, and selections that
/// are seen in windows behind another one too.
class ZephStyle : public QProxyStyle
{
    Q_OBJECT
public:
    /// The folder, with its closing separator, holds the pictures of message boxes.
    explicit ZephStyle(const QString &iconFolder);

    using QProxyStyle::polish;
    void polish(QApplication *application) override;
    void polish(QPalette &palette) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returned) const override;
    QIcon standardIcon(StandardPixmap standard, const QStyleOption *option,
                       const QWidget *widget) const override;
    QPixmap generatedIconPixmap(QIcon::Mode mode, const QPixmap &pixmap,
                                const QStyleOption *option) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;

private:
    QString m_iconFolder;
};

} // namespace zeph
