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

/// A picture, such as the slate lines of most of ours, as it is seen on a ground.
QImage shown(const QPixmap &picture, const QColor &ground)
{
    QImage image(picture.size(), QImage::Format_RGB32);
    image.fill(ground);
    QPainter painter(&image);
    painter.drawPixmap(0, 0, picture);
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
    EXPECT_EQ(now.color(QPalette::Disabled, QPalette::PlaceholderText),
              now.color(QPalette::Disabled, QPalette::Text))
        << "in a field that cannot be used it is no more than the labels";
    qApp->removeEventFilter(&style);
    QApplication::setPalette(before);
}

// Windows gives them the window's colour.
TEST(ZephStyle, SelectionsInInactiveWindowsAreSeen)
{
    ZephStyle style(icons);
    QPalette palette(QColor(240, 240, 240));
    palette.setColor(QPalette::Active, QPalette::Highlight, QColor(0, 120, 215));
    palette.setColor(QPalette::Active, QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Inactive, QPalette::Highlight, QColor(240, 240, 240));
    palette.setColor(QPalette::Inactive, QPalette::HighlightedText, Qt::black);
    style.polish(palette);
    EXPECT_EQ(palette.color(QPalette::Inactive, QPalette::Highlight), QColor(0, 120, 215));
    EXPECT_EQ(palette.color(QPalette::Inactive, QPalette::HighlightedText), QColor(Qt::white));

    const QColor faint(145, 180, 215);
    palette.setColor(QPalette::Inactive, QPalette::Highlight, faint);
    style.polish(palette);
    EXPECT_EQ(palette.color(QPalette::Inactive, QPalette::Highlight), faint)
        << "a colour of the desktop's own stays";
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

TEST(ZephStyle, PicturesOfGreyedEntriesAreFainterThanTheOthersOnAnyDesktop)
{
    const ZephStyle style(icons);
    const QStyleOption option;
    QPixmap slate(8, 8);
    slate.fill(QColor(0x73, 0x7f, 0x8c));
    slate.setDevicePixelRatio(2);
    const QPixmap greyed = style.generatedIconPixmap(QIcon::Disabled, slate, &option);
    EXPECT_EQ(greyed.devicePixelRatio(), 2) << "crisp at scale 2 too";
    for (const QColor &ground : { QColor(45, 48, 52), QColor(239, 239, 239) }) {
        const double seen = bestContrast(shown(greyed, ground), ground);
        EXPECT_LT(seen, bestContrast(shown(slate, ground), ground) * 0.75) << ground.lightness();
        EXPECT_GT(seen, 1.5) << ground.lightness();
    }
}

TEST(ZephStyle, GreyedTextIsNotEtched)
{
    const ZephStyle style(icons);
    EXPECT_EQ(style.styleHint(QStyle::SH_EtchDisabledText, nullptr, nullptr, nullptr), 0);
}

TEST(ZephStyle, AToolBarHasAQuietEdgeOnADarkDesktop)
{
    const ZephStyle style(icons);
    QStyleOptionToolBar option;
    option.palette = darkPalette();
    option.rect = QRect(0, 0, 16, 16);
    option.state = QStyle::State_Enabled | QStyle::State_Horizontal;
    const QColor window = option.palette.color(QPalette::Window);
    QImage image(16, 16, QImage::Format_RGB32);
    image.fill(window);
    QPainter painter(&image);
    style.drawControl(QStyle::CE_ToolBar, &option, &painter, nullptr);
    EXPECT_GT(bestContrast(image, window), 1.2);
    EXPECT_LT(bestContrast(image, window), 1.6);
    EXPECT_EQ(image.pixelColor(8, 8), window);
    EXPECT_NE(image.pixelColor(8, 15), window);
}

TEST(ZephStyle, AFieldThatCannotBeWrittenIntoHasTheWindowsColour)
{
    const ZephStyle style(icons);
    const auto middle = [&style](QStyle::State state) {
        QStyleOptionFrame option;
        option.palette = darkPalette();
        option.rect = QRect(0, 0, 30, 20);
        option.lineWidth = 1;
        option.state = state | QStyle::State_Enabled;
        QImage image(30, 20, QImage::Format_RGB32);
        QPainter painter(&image);
        style.drawPrimitive(QStyle::PE_PanelLineEdit, &option, &painter, nullptr);
        return image.pixelColor(15, 10);
    };
    EXPECT_EQ(middle(QStyle::State_ReadOnly), darkPalette().color(QPalette::Window));
    EXPECT_EQ(middle(QStyle::State_None), darkPalette().color(QPalette::Base));
}
