// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/zeph_style.h"

#include "documents/line_margin.h"
#include "platform/core/base.h"
#include "platform/icon_file.h"

#include <QApplication>
#include <QEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStyleFactory>
#include <QStyleOption>

namespace zeph {

namespace {

/// What text needs to be read, and what the frame of a control needs to be seen.
constexpr double readable = 4.5;
constexpr double visible = 3;
/// What tells a highlighted entry or an edge from its ground.
constexpr double noticeable = 1.35;
/// How much is left of the picture of an entry that cannot be used.
constexpr double greyedOpacity = 0.5;

struct BoxPicture {
    QStyle::StandardPixmap standard;
    QStringView name;
};

constexpr BoxPicture boxPictures[] = {
    { QStyle::SP_MessageBoxInformation, u"box-information" },
    { QStyle::SP_MessageBoxQuestion, u"box-question" },
    { QStyle::SP_MessageBoxWarning, u"box-exclamation" },
    { QStyle::SP_MessageBoxCritical, u"box-stop" },
};

void makePlaceholdersReadable()
{
    QPalette palette = QApplication::palette();
    const QColor base = palette.color(QPalette::Base);
    QColor now = palette.color(QPalette::PlaceholderText);
    const double part = now.alphaF();
    now = QColor::fromRgbF(float(now.redF() * part + base.redF() * (1 - part)),
                           float(now.greenF() * part + base.greenF() * (1 - part)),
                           float(now.blueF() * part + base.blueF() * (1 - part)));
    if (contrast(now, base) < readable) {
        palette.setColor(QPalette::PlaceholderText,
                         faintest(base, palette.color(QPalette::Text), readable));
        palette.setColor(QPalette::Disabled, QPalette::PlaceholderText,
                         palette.color(QPalette::Disabled, QPalette::Text));
        QApplication::setPalette(palette);
    }
}

bool isOn(const QStyleOption &option)
{
    return option.state & (QStyle::State_On | QStyle::State_NoChange);
}

/// The frame of a tick box or a radio button, which the toolkit derives from the window's colour
/// and so makes darker than a dark window.
void drawFrame(const QStyleOption &option, QPainter &painter, bool isRound)
{
    const QPalette &palette = option.palette;
    const QColor base = palette.color(QPalette::Base);
    const bool enabled = option.state & QStyle::State_Enabled;
    const bool focused = option.state & QStyle::State_HasFocus;
    const QColor ink =
        palette.color(enabled ? QPalette::Normal : QPalette::Disabled, QPalette::Text);
    const QColor weak = faintest(palette.color(QPalette::Window), ink, enabled ? visible : 1.5);
    painter.setPen(QPen(focused ? palette.color(QPalette::Highlight) : weak, 1));
    painter.setBrush(enabled ? base : palette.color(QPalette::Window));
    const QRectF frame = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
    if (isRound) {
        painter.drawEllipse(frame);
    } else {
        painter.drawRoundedRect(frame, 2, 2);
    }
}

void drawTick(const QStyleOption &option, QPainter &painter)
{
    const QRectF box = option.rect;
    const bool enabled = option.state & QStyle::State_Enabled;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(
        QPen(option.palette.color(enabled ? QPalette::Normal : QPalette::Disabled, QPalette::Text),
             box.width() / 7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const auto at = [&box](double x, double y) {
        return QPointF(box.left() + x * box.width(), box.top() + y * box.height());
    };
    QPainterPath path(at(0.24, 0.52));
    if (option.state & QStyle::State_NoChange) {
        path.lineTo(at(0.76, 0.52));
    } else {
        path.lineTo(at(0.43, 0.72));
        path.lineTo(at(0.77, 0.28));
    }
    painter.drawPath(path);
}

void drawDot(const QStyleOption &option, QPainter &painter)
{
    const double margin = option.rect.width() * 0.28;
    painter.setPen(Qt::NoPen);
    painter.setBrush(option.palette.color(option.state & QStyle::State_Enabled ? QPalette::Normal
                                                                               : QPalette::Disabled,
                                          QPalette::Text));
    painter.drawEllipse(QRectF(option.rect).adjusted(margin, margin, -margin, -margin));
}

/// A plain bar with an edge towards the texts. The toolkit's own edges are white on dark desktops.
void drawToolBar(const QStyleOption &option, QPainter &painter)
{
    const QColor window = option.palette.color(QPalette::Window);
    painter.fillRect(option.rect, window);
    const QRect edge = option.state & QStyle::State_Horizontal
        ? QRect(option.rect.bottomLeft(), option.rect.bottomRight())
        : QRect(option.rect.topRight(), option.rect.bottomRight());
    painter.fillRect(edge,
                     faintest(window, option.palette.color(QPalette::WindowText), noticeable));
}

} // namespace

QColor faintest(const QColor &ground, const QColor &ink, double wanted)
{
    for (int percent = 5; percent < 100; percent += 5) {
        const auto between = [percent](int from, int to) {
            return from + (to - from) * percent / 100;
        };
        const QColor colour(between(ground.red(), ink.red()), between(ground.green(), ink.green()),
                            between(ground.blue(), ink.blue()));
        if (contrast(ground, colour) >= wanted) {
            return colour;
        }
    }
    return ink;
}

ZephStyle::ZephStyle(const QString &iconFolder)
    : QProxyStyle(QStyleFactory::create(u"Fusion"_s)), m_iconFolder(iconFolder)
{
}

void ZephStyle::polish(QApplication *application)
{
    QProxyStyle::polish(application);
    application->removeEventFilter(this);
    application->installEventFilter(this);
    makePlaceholdersReadable();
}

void ZephStyle::polish(QPalette &palette)
{
    QProxyStyle::polish(palette);
    // On Windows a selection has the window's colour while another window is active. So a mistake
    // that the compiler found would be lost while its explanation is read, and what was found
    // while Find stays open.
    if (palette.color(QPalette::Inactive, QPalette::Highlight)
        == palette.color(QPalette::Inactive, QPalette::Window)) {
        for (const auto role : { QPalette::Highlight, QPalette::HighlightedText }) {
            palette.setColor(QPalette::Inactive, role, palette.color(QPalette::Active, role));
        }
    }
}

bool ZephStyle::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == qApp && event->type() == QEvent::ApplicationPaletteChange) {
        makePlaceholdersReadable();
    }
    return QProxyStyle::eventFilter(watched, event);
}

int ZephStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                         QStyleHintReturn *returned) const
{
    // On a dark desktop etched text looks printed twice.
    return hint == SH_DialogButtonBox_ButtonsHaveIcons || hint == SH_EtchDisabledText
        ? 0
        : QProxyStyle::styleHint(hint, option, widget, returned);
}

QPixmap ZephStyle::generatedIconPixmap(QIcon::Mode mode, const QPixmap &pixmap,
                                       const QStyleOption *option) const
{
    if (mode != QIcon::Disabled) {
        return QProxyStyle::generatedIconPixmap(mode, pixmap, option);
    }
    // The toolkit's greyed pictures are brighter than the others on a dark desktop.
    QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            const int grey = qGray(pixel);
            image.setPixel(x, y, qRgba(grey, grey, grey, int(qAlpha(pixel) * greyedOpacity)));
        }
    }
    return QPixmap::fromImage(image);
}

QIcon ZephStyle::standardIcon(StandardPixmap standard, const QStyleOption *option,
                              const QWidget *widget) const
{
    for (const BoxPicture &picture : boxPictures) {
        const QIcon own = picture.standard == standard
            ? iconFromFile(m_iconFolder + picture.name.toString() + u".svg"_s)
            : QIcon();
        if (!own.isNull()) {
            return own;
        }
    }
    return QProxyStyle::standardIcon(standard, option, widget);
}

void ZephStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                              QPainter *painter, const QWidget *widget) const
{
    const auto *field = qstyleoption_cast<const QStyleOptionFrame *>(option);
    if (element == PE_PanelLineEdit && field && (field->state & State_ReadOnly)) {
        // A field that nobody can write into must not look as if one could.
        QStyleOptionFrame shown = *field;
        shown.palette.setBrush(QPalette::Base, field->palette.brush(QPalette::Window));
        QProxyStyle::drawPrimitive(element, &shown, painter, widget);
        return;
    }
    const bool isRound = element == PE_IndicatorRadioButton;
    if (!isRound && element != PE_IndicatorCheckBox && element != PE_IndicatorItemViewItemCheck) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    drawFrame(*option, *painter, isRound);
    if (isOn(*option) && isRound) {
        drawDot(*option, *painter);
    } else if (isOn(*option)) {
        drawTick(*option, *painter);
    }
    painter->restore();
}

void ZephStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                            const QWidget *widget) const
{
    if (element == CE_ToolBar) {
        drawToolBar(*option, *painter);
        return;
    }
    const auto *entry = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
    if (element == CE_MenuItem && entry && (entry->state & State_Selected)) {
        // The pictures are made for the menu's ground; on the toolkit's colour for a highlighted
        // entry some of theirs would be lost.
        QStyleOptionMenuItem plain = *entry;
        plain.palette.setColor(QPalette::Highlight,
                               faintest(entry->palette.color(QPalette::Base),
                                        entry->palette.color(QPalette::WindowText), noticeable));
        plain.palette.setColor(QPalette::HighlightedText,
                               entry->palette.color(QPalette::WindowText));
        QProxyStyle::drawControl(element, &plain, painter, widget);
        return;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

} // namespace zeph
