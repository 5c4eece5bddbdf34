// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/picture_bytes.h"

#include <gtest/gtest.h>

using namespace zeph;

namespace {

QByteArray hex(const char *digits)
{
    return QByteArray::fromHex(digits);
}

/// The smallest picture of each kind, written out by the formats' rules.
struct Sample {
    PictureKind kind;
    QSize size;
    QByteArray bytes;
    /// Bytes at the end that may be missing all the same.
    qsizetype spare = 0;
};

const Sample samples[] = {
    // 2 by 1 pixels of 24 bits, a line filled up to 8 bytes
    { PictureKind::Bitmap,
      { 2, 1 },
      hex("424D3E000000000000003600000028000000020000000100000001001800000000000800000000000000"
          "0000000000000000000000000000FF00FF000000") },
    // the same with a height below 0, which turns it over
    { PictureKind::Bitmap,
      { 2, 1 },
      hex("424D3E00000000000000360000002800000002000000FFFFFFFF01001800000000000800000000000000"
          "0000000000000000000000000000FF00FF000000") },
    // 1 by 1 pixel with the short header
    { PictureKind::Bitmap,
      { 1, 1 },
      hex("424D1E000000000000001A0000000C0000000100010001001800FF000000") },
    // one segment, a frame of 3 by 5 pixels, a scan and the end
    { PictureKind::Jpeg,
      { 3, 5 },
      hex("FFD8FFE000040000FFC0000B080005000301011100FFDA000301AABBFF00CCFFD9") },
    // a comment, and a frame with no table of colours of its own
    { PictureKind::Gif,
      { 1, 1 },
      hex("474946383961010001008000000000 00FFFFFF21FE03414243002C00000000010001000002024401003B"),
      1 },
    // the header chunk alone and the end; the check sums are nobody's business here
    { PictureKind::Png,
      { 1, 1 },
      hex("89504E470D0A1A0A0000000D49484452000000010000000108000000003A7E9B550000000049454E44AE4260"
          "82") },
};

} // namespace

TEST(PictureBytes, KnowTheirKindWhateverTheNameSays)
{
    for (const Sample &sample : samples) {
        EXPECT_EQ(pictureKind(sample.bytes), sample.kind) << sample.bytes.toHex().toStdString();
    }
    EXPECT_EQ(pictureKind({}), PictureKind::None);
    EXPECT_EQ(pictureKind("BTN S1 a"), PictureKind::None);
    EXPECT_EQ(pictureKind("<svg/>"), PictureKind::None);
}

TEST(PictureBytes, TellTheSizeOfTheirHeader)
{
    for (const Sample &sample : samples) {
        EXPECT_EQ(claimedSize(sample.bytes), sample.size) << sample.bytes.toHex().toStdString();
    }
    EXPECT_TRUE(claimedSize("BTN S1 a").isEmpty());
    EXPECT_TRUE(claimedSize(hex("FFD8FFD9")).isEmpty());
}

TEST(PictureBytes, AreWholeWithTheirLastByteAndNotWithout)
{
    for (const Sample &sample : samples) {
        const auto name = sample.bytes.toHex().toStdString();
        EXPECT_TRUE(isWholePicture(sample.bytes)) << name;
        for (qsizetype size = 0; size < sample.bytes.size() - sample.spare; ++size) {
            EXPECT_FALSE(isWholePicture(sample.bytes.left(size))) << name << " cut at " << size;
        }
    }
}

TEST(PictureBytes, MayHaveMoreAfterTheEnd)
{
    for (const Sample &sample : samples) {
        EXPECT_TRUE(isWholePicture(sample.bytes + "more")) << sample.bytes.toHex().toStdString();
    }
}

TEST(PictureBytes, AreNotWholeWithoutAPicture)
{
    EXPECT_FALSE(isWholePicture("BTN S1 a"));
    EXPECT_FALSE(isWholePicture(hex("474946383961010001000000003B"))) << "no frame";
    EXPECT_FALSE(isWholePicture(hex("FFD8FFD9"))) << "no scan";
}

TEST(PictureBytes, AHugeHeaderIsOnlyNumbers)
{
    // 2147483647 by -2147483648 pixels of 65535 bits
    EXPECT_FALSE(isWholePicture(
        hex("424DFFFFFFFF000000003600000028000000FFFFFF7F000000800100FFFF000000000000000000000000"
            "000000000000000000000000")));
}
