// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "print/print_pages.h"

#include "documents/line_margin.h"
#include "platform/colours.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

#include <array>

using namespace zeph;

namespace {

using Starts = std::vector<size_t>;

RichText lines(int count)
{
    QStringList text;
    for (int i = 1; i <= count; ++i) {
        text.append(u"Line "_s + QString::number(i));
    }
    return RichText::plain(text.join(u'\n'),
                           { .family = u"Arial"_s, .pointSize = 10, .colour = {} });
}

/// A sheet of pixels that counts as 96 to the inch.
QImage sheet(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.setDotsPerMeterX(3780);
    image.setDotsPerMeterY(3780);
    image.fill(Qt::white);
    return image;
}

} // namespace

TEST(PageStarts, APageHoldsTheLinesThatFitWhole)
{
    const std::array<LineExtent, 5> strip = {
        { { 0, 10 }, { 10, 20 }, { 20, 30 }, { 30, 40 }, { 40, 50 } }
    };
    EXPECT_EQ(pageStarts(strip, 20), (Starts{ 0, 2, 4 }));
    EXPECT_EQ(pageStarts(strip, 19.9), (Starts{ 0, 1, 2, 3, 4 }));
    EXPECT_EQ(pageStarts(strip, 50), (Starts{ 0 }));
}

TEST(PageStarts, ALineHigherThanAPageStandsAlone)
{
    const std::array<LineExtent, 3> strip = { { { 0, 10 }, { 10, 90 }, { 90, 100 } } };
    EXPECT_EQ(pageStarts(strip, 30), (Starts{ 0, 1, 2 }));
}

TEST(PageStarts, NothingIsOnePage)
{
    EXPECT_EQ(pageStarts({}, 100), (Starts{ 0 }));
}

TEST(PrintHeader, StandsBeforeTheTextWithItsBlankLines)
{
    const RichText text =
        withPrintHeader(lines(2), { .family = u"Arial"_s, .pointSize = 10, .colour = {} },
                        u"/pilot/Falcon.tmj"_s, u"05 March 2024, 9:07 am"_s);
    EXPECT_EQ(text.text.toStdString(),
              "\n\n/pilot/Falcon.tmj\nPrinted on: 05 March 2024, 9:07 am\n\nLine 1\nLine 2");
    EXPECT_EQ(text.formatAt(3).colour, ColorRef(0));
}

TEST(PrintInk, OnlyAColourThatPaperSwallowsBecomesBlack)
{
    EXPECT_EQ(inkOf(colorRef(255, 255, 255), true), ColorRef(0));
    EXPECT_EQ(inkOf(colorRef(255, 255, 0), true), ColorRef(0));
    EXPECT_EQ(inkOf(255, true), ColorRef(255));
    EXPECT_EQ(inkOf(8421504, true), ColorRef(8421504));
    EXPECT_EQ(inkOf(0, true), ColorRef(0));
    // The blue, the green and the grey of dark colours keep their hue: contrasts 2.3, 2.0 and 2.8.
    for (const ColorRef pale :
         { colorRef(120, 170, 255), colorRef(120, 200, 120), colorRef(150, 154, 160) }) {
        EXPECT_EQ(inkOf(pale, false), pale) << "the colour of a light screen";
        const ColorRef ink = inkOf(pale, true);
        EXPECT_GE(contrast(toColor(ink), Qt::white), 4.5) << pale;
        EXPECT_LE(contrast(toColor(ink), Qt::white), 6) << pale;
        EXPECT_LE(std::abs(toColor(ink).hslHue() - toColor(pale).hslHue()), 3) << pale;
    }
}

TEST(PrintPages, ALongWordIsBrokenRatherThanCut)
{
    QImage paper = sheet(200, 1000);
    const CharFormat plain{ .family = u"Arial"_s, .pointSize = 10, .colour = {} };
    const PrintPages one(RichText::plain(u"short"_s, plain), plain, paper, QSizeF(200, 1000));
    EXPECT_EQ(one.count(), 1);
    const PrintPages many(RichText::plain(QString(2000, u'W'), plain), plain, paper,
                          QSizeF(200, 1000));
    EXPECT_GT(many.count(), 1) << "2,000 wide letters do not fit on one small page";
    QPainter painter(&paper);
    many.draw(painter, 0);
    painter.end();
    bool isBlankAtRight = true;
    for (int y = 0; y < paper.height(); ++y) {
        isBlankAtRight &= paper.pixel(199, y) == qRgb(255, 255, 255);
    }
    EXPECT_TRUE(isBlankAtRight);
}

TEST(PrintPages, ABulletIsPrintedBeforeItsParagraph)
{
    QImage paper = sheet(300, 100);
    const CharFormat plain{ .family = u"Arial"_s, .pointSize = 20, .colour = colorRef(200, 0, 0) };
    const PrintPages pages(RichText::plain(u"lamp"_s, plain, { .bullet = true }), plain, paper,
                           QSizeF(300, 100));
    QPainter painter(&paper);
    pages.draw(painter, 0);
    painter.end();
    int red = 0;
    for (int y = 0; y < paper.height(); ++y) {
        for (int x = 0; x < 24; ++x) {
            red += paper.pixel(x, y) == qRgb(200, 0, 0) ? 1 : 0;
        }
    }
    EXPECT_GT(red, 4);
}
