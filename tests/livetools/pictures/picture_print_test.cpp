// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/pictures/picture_print.h"

#include "platform/core/base.h"

#include <gtest/gtest.h>

#include <QPrinter>

using namespace zeph;

TEST(PicturePrint, APictureThatFitsTakesOnePage)
{
    EXPECT_EQ(pagesOf({ 600, 900 }, { 600, 900 }), QList<QRect>({ { 0, 0, 600, 900 } }));
    EXPECT_EQ(pagesOf({ 1, 1 }, { 600, 900 }), QList<QRect>({ { 0, 0, 1, 1 } }));
}

TEST(PicturePrint, ALargerOneIsCutIntoPagesRowByRow)
{
    EXPECT_EQ(pagesOf({ 601, 1000 }, { 600, 900 }),
              QList<QRect>({ { 0, 0, 600, 900 },
                             { 600, 0, 1, 900 },
                             { 0, 900, 600, 100 },
                             { 600, 900, 1, 100 } }));
}

TEST(PicturePrint, APageIsMeasuredInPixelsOfAScreen)
{
    QPrinter printer;
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setPageLayout(QPageLayout(QPageSize(QSizeF(7, 10), QPageSize::Inch),
                                      QPageLayout::Portrait, QMarginsF(1, 1, 1, 1),
                                      QPageLayout::Inch));
    // 5 by 8 inches between the margins, of 96 pixels each.
    EXPECT_EQ(pageInPixels(printer), QSize(480, 768));
}
