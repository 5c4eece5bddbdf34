// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/picture_file.h"

#include "tests/support/picture_files.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

using namespace zeph;
using test::bytesOf;
using test::pictureOf;
using test::TempFolder;

TEST(PictureFile, ReadsTheFourKindsUnderAnyName)
{
    const TempFolder folder;
    const QImage image = pictureOf({ 40, 30 });
    for (const char *kind : { "bmp", "png" }) {
        const auto read = readPicture(folder.write(u"any.txt"_s, bytesOf(image, kind)));
        ASSERT_TRUE(read) << kind << read.error().toStdString();
        EXPECT_EQ(read->image, image) << kind;
        EXPECT_EQ(read->size, QSize(40, 30));
    }
    const auto jpg = readPicture(folder.write(u"a.bmp"_s, bytesOf(image, "jpg")));
    ASSERT_TRUE(jpg);
    EXPECT_EQ(jpg->image.size(), QSize(40, 30));
    const auto gif = readPicture(folder.write(u"a.gif"_s, test::gifBytes()));
    ASSERT_TRUE(gif) << gif.error().toStdString();
    EXPECT_EQ(gif->image.pixelColor(0, 0), QColor(Qt::white));
}

TEST(PictureFile, WhatIsTransparentIsWhite)
{
    const TempFolder folder;
    QImage image(2, 1, QImage::Format_ARGB32);
    image.setPixelColor(0, 0, QColor(255, 0, 0));
    image.setPixelColor(1, 0, QColor(0, 0, 0, 0));
    const auto read = readPicture(folder.write(u"a.png"_s, bytesOf(image, "png")));
    ASSERT_TRUE(read);
    EXPECT_FALSE(read->image.hasAlphaChannel());
    EXPECT_EQ(read->image.pixelColor(0, 0), QColor(255, 0, 0));
    EXPECT_EQ(read->image.pixelColor(1, 0), QColor(Qt::white));
}

TEST(PictureFile, ALargePictureIsReadSmallerAndTellsItsSize)
{
    const TempFolder folder;
    const QString path = folder.write(u"a.png"_s, bytesOf(pictureOf({ 400, 100 }), "png"));
    const auto read = readPicture(path, { 100, 100 });
    ASSERT_TRUE(read);
    EXPECT_EQ(read->image.size(), QSize(100, 25));
    EXPECT_EQ(read->size, QSize(400, 100));
    const auto small = readPicture(path, { 800, 800 });
    ASSERT_TRUE(small);
    EXPECT_EQ(small->image.size(), QSize(400, 100)) << "is never made larger";
}

TEST(PictureFile, ACutOffFileIsDamagedWhateverItsKind)
{
    const TempFolder folder;
    const QImage image = pictureOf({ 64, 64 });
    for (const QByteArray &whole : { bytesOf(image, "bmp"), bytesOf(image, "jpg"),
                                     bytesOf(image, "png"), test::gifBytes() }) {
        const auto read = readPicture(folder.write(u"cut"_s, whole.left(whole.size() * 2 / 3)));
        ASSERT_FALSE(read) << whole.left(4).toHex().toStdString();
        EXPECT_EQ(read.error(), u"It is damaged: a part of the file is missing.");
    }
}

TEST(PictureFile, OtherFilesAreRefusedWithTheReason)
{
    const TempFolder folder;
    EXPECT_EQ(readPicture(folder.write(u"empty.bmp"_s, {})).error(), u"The file is empty.");
    EXPECT_EQ(readPicture(folder.write(u"text.bmp"_s, "USE ZEPH GRAPHIC")).error(),
              u"It is no picture that I know. I can show bmp, jpg, gif and png pictures.");
    EXPECT_TRUE(readPicture(folder.file(u"none.bmp"_s)).error().startsWith(u"It can't be read."));
    EXPECT_TRUE(readPicture(folder.path()).error().startsWith(u"It can't be read."));
}

TEST(PictureFile, AHeaderOfAHugePictureIsRefusedBeforeItTakesMemory)
{
    const TempFolder folder;
    const auto read = readPicture(folder.write(u"huge.bmp"_s, test::hugeBitmap()));
    ASSERT_FALSE(read);
    EXPECT_EQ(read.error(),
              u"It says that it is 30000 by 30000 pixels, which is more than I can show.");
}

TEST(PictureFile, BecomesABitmapWithTheSamePixels)
{
    const QImage image = pictureOf({ 33, 7 });
    const QByteArray bytes = bitmapOf(image);
    EXPECT_TRUE(bytes.startsWith("BM"));
    EXPECT_EQ(QImage::fromData(bytes).convertToFormat(QImage::Format_RGB32), image);
}
