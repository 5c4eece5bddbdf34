// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "cougar/drawn_picture.h"
#include "tests/cougar/shipped_pictures.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QPainter>
#include <QPixmap>

using namespace zeph;

namespace {

/// A picture file of one colour.
QByteArray fileOf(const QSize &size, const QColor &colour, const char *format = "BMP")
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(colour);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, format);
    return bytes;
}

DrawnPicture loaded(const QString &folder, const QString &name)
{
    const auto picture = DrawnPicture::load(folder, name);
    EXPECT_TRUE(picture) << name.toStdString();
    return picture.value_or(DrawnPicture());
}

QImage drawn(const DrawnPicture &picture, const QSize &pixels)
{
    return picture.scaledTo(pixels, 1).toImage().convertToFormat(QImage::Format_RGB32);
}

/// How far a pixel is from grey or colour of the other one, over all pixels, of 255.
double meanDifference(const QImage &a, const QImage &b)
{
    double sum = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            sum += std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y)));
        }
    }
    return sum / (double(a.width()) * a.height());
}

/// The steepest step of grey between neighbours in a row: what blurring takes away.
int steepestStep(const QImage &image)
{
    int steepest = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 1; x < image.width(); ++x) {
            steepest = std::max(steepest,
                                std::abs(qGray(image.pixel(x, y)) - qGray(image.pixel(x - 1, y))));
        }
    }
    return steepest;
}

} // namespace

TEST(DrawnPicture, WhatShipsIsShownByItsDrawingAndLooksLikeItsBitmap)
{
    const test::PicturesFolder folder;
    for (const QString &name :
         { u"F-16 Block 50"_s, u"Straight grip"_s, u"Throttle"_s, u"Rudders"_s }) {
        const DrawnPicture picture = loaded(folder.path(), name + u".bmp"_s);
        const QImage bitmap(folder.file(name + u".bmp"_s));
        EXPECT_TRUE(picture.isDrawing()) << name.toStdString();
        EXPECT_EQ(picture.size(), bitmap.size());
        // Two renderers differ along the edges; another picture differs by far more.
        EXPECT_LT(meanDifference(drawn(picture, bitmap.size()), bitmap), 2) << name.toStdString();
    }
}

TEST(DrawnPicture, ADrawingIsSharpAtFourTimesItsSizeAndABitmapIsNot)
{
    const test::PicturesFolder folder;
    const DrawnPicture drawing = loaded(folder.path(), u"Throttle.bmp"_s);
    ASSERT_TRUE(QFile::remove(folder.file(u"Throttle.svg"_s)));
    const DrawnPicture bitmap = loaded(folder.path(), u"Throttle.bmp"_s);
    ASSERT_TRUE(drawing.isDrawing() && !bitmap.isDrawing());
    EXPECT_GT(steepestStep(drawn(drawing, drawing.size() * 4)), 150);
    EXPECT_LT(steepestStep(drawn(bitmap, bitmap.size() * 4)), 100);
}

TEST(DrawnPicture, APilotsOwnPictureOfThatNameIsShownItself)
{
    const test::PicturesFolder folder;
    folder.write(u"Throttle.bmp"_s, fileOf({ 50, 40 }, Qt::red));
    const DrawnPicture picture = loaded(folder.path(), u"Throttle.bmp"_s);
    EXPECT_FALSE(picture.isDrawing());
    EXPECT_EQ(picture.size(), QSize(50, 40));
    EXPECT_EQ(drawn(picture, { 10, 8 }).pixelColor(5, 4), QColor(Qt::red));
}

TEST(DrawnPicture, NamesCountInAnyCaseAndContentsDecideTheFormat)
{
    const test::PicturesFolder folder;
    EXPECT_TRUE(loaded(folder.path(), u"THROTTLE.BMP"_s).isDrawing());
    folder.write(u"Grip.bmp"_s, fileOf({ 30, 20 }, Qt::green, "PNG"));
    EXPECT_EQ(loaded(folder.path(), u"Grip.bmp"_s).size(), QSize(30, 20));
}

TEST(DrawnPicture, AFileThatIsMissingOrNoPictureIsToldWithItsPath)
{
    const test::TempFolder folder;
    const QString gone = folder.file(u"Gone.bmp"_s);
    const QString text = folder.write(u"Text.bmp"_s, "no picture");
    for (const QString &path : { gone, text }) {
        const auto picture = DrawnPicture::load(folder.path(), path.section(u'/', -1));
        ASSERT_FALSE(picture);
        EXPECT_EQ(picture.error().path, path);
        EXPECT_FALSE(picture.error().reason.isEmpty());
    }
}

TEST(DrawnPicture, NoPictureDrawsNothing)
{
    const DrawnPicture none;
    EXPECT_TRUE(none.isNull());
    EXPECT_TRUE(none.scaledTo({ 10, 10 }, 1).isNull());
    QImage image(4, 4, QImage::Format_RGB32);
    image.fill(Qt::blue);
    QPainter painter(&image);
    none.draw(painter, QRectF(0, 0, 4, 4));
    painter.end();
    EXPECT_EQ(image.pixelColor(2, 2), QColor(Qt::blue));
}

TEST(DrawnPicture, ADrawingHasWhiteGround)
{
    const test::PicturesFolder folder;
    const DrawnPicture picture = loaded(folder.path(), u"Throttle.bmp"_s);
    QImage image(380, 420, QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    picture.draw(painter, QRectF(image.rect()));
    painter.end();
    EXPECT_EQ(image.pixelColor(1, 1), QColor(Qt::white));
}
