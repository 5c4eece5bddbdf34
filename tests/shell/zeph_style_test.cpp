// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/zeph_style.h"

#include "documents/line_margin.h"
#include "platform/core/base.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QStyleOption>

using namespace zeph;

namespace {

const QString icons = QStringLiteral(ZEPH_SOURCE_DIR "/data/icons/");

QPalette darkPalette()
{
    QPalette palette(QColor(45, 48, 52));
    palette.setColor(QPalette::Base, QColor(30, 32, 35));
    palette.setColor(QPalette::Text, QColor(235, 235, 235));
    return palette;
}

/// What the style draws for an element on a ground of the window's colour.
QImage drawn(const ZephStyle &style, QStyle::PrimitiveElement element, QStyle::State state)
{
    QStyleOptionButton option;
    option.palette = darkPalette();
    option.rect = QRect(0, 0, 16, 16);
    option.state = state | QStyle::State_Enabled;
    QImage image(16, 16, QImage::Format_RGB32);
    image.fill(option.palette.color(QPalette::Window));
    QPainter painter(&image);
    style.drawPrimitive(element, &option, &painter, nullptr);
    return image;
}

double bestContrast(const QImage &image, const QColor &ground)
{
    double best = 1;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            best = std::max(best, contrast(image.pixelColor(x, y), ground));
        }
    }
    return best;
}

} // namespace

TEST(ZephStyle, TickBoxesAreSeenOnADarkDesktop)
{
    const ZephStyle style(icons);
    const QColor window = darkPalette().color(QPalette::Window);
    for (const auto element : { QStyle::PE_IndicatorCheckBox, QStyle::PE_IndicatorRadioButton,
                                QStyle::PE_IndicatorItemViewItemCheck }) {
        EXPECT_GE(bestContrast(drawn(style, element, QStyle::State_Off), window), 2.9) << element;
        EXPECT_GE(bestContrast(drawn(style, element, QStyle::State_On), window), 4.5) << element;
    }
}

TEST(ZephStyle, PlaceholdersAreReadableOnADarkDesktop)
{
    const QPalette before = QApplication::palette();
    ZephStyle style(icons);
    style.polish(qApp);
    QPalette dark = darkPalette();
    dark.setColor(QPalette::PlaceholderText, QColor(70, 72, 75));
    QApplication::setPalette(dark);
    const QPalette now = QApplication::palette();
    EXPECT_GE(contrast(now.color(QPalette::PlaceholderText), now.color(QPalette::Base)), 4.5);
    qApp->removeEventFilter(&style);
    QApplication::setPalette(before);
}

TEST(ZephStyle, MessageBoxesHaveOwnPicturesAndTheirButtonsNone)
{
    const ZephStyle style(icons);
    EXPECT_EQ(
        style.styleHint(QStyle::SH_DialogButtonBox_ButtonsHaveIcons, nullptr, nullptr, nullptr), 0);
    const ZephStyle without(u"/nowhere/"_s);
    for (const auto standard : { QStyle::SP_MessageBoxInformation, QStyle::SP_MessageBoxQuestion,
                                 QStyle::SP_MessageBoxWarning, QStyle::SP_MessageBoxCritical }) {
        const QImage own = style.standardIcon(standard, nullptr, nullptr).pixmap(48).toImage();
        const QImage usual = without.standardIcon(standard, nullptr, nullptr).pixmap(48).toImage();
        EXPECT_FALSE(own.isNull()) << standard;
        EXPECT_NE(own, usual) << standard;
    }
}
