// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/quickview/picture_plan.h"

#include <gtest/gtest.h>

using namespace zeph;

namespace {

const QSizeF least(pictureSize.width() + 2 * pictureMargin,
                   pictureSize.height() + 2 * pictureMargin);

/// Everything that may cover nothing else: labels, boxes, drawings, captions.
QList<QRectF> apart(const PicturePlan &plan)
{
    QList<QRectF> all = { plan.throttle, plan.stick, plan.title, plan.microstick };
    for (const QRectF &place : plan.positions) {
        all.append(place);
    }
    for (const QRectF &place : plan.labels) {
        if (!place.isEmpty()) {
            all.append(place);
        }
    }
    return all;
}

void expectApart(const QSizeF &widget)
{
    const PicturePlan plan = picturePlan(widget);
    const QList<QRectF> all = apart(plan);
    EXPECT_EQ(all.size(), 4 + positionCount + rowCount - 4);
    for (qsizetype i = 0; i < all.size(); ++i) {
        EXPECT_TRUE(plan.picture.adjusted(-.01, -.01, .01, .01).contains(all[i])) << i;
        for (qsizetype j = i + 1; j < all.size(); ++j) {
            const QRectF common = all[i] & all[j];
            EXPECT_LT(common.width() * common.height(), .01) << i << " and " << j;
        }
    }
}

} // namespace

TEST(PicturePlan, AtItsLeastSizeThePictureHasTheMarginAroundIt)
{
    const PicturePlan plan = picturePlan(least);
    EXPECT_EQ(plan.scale, 1);
    EXPECT_EQ(plan.picture, QRectF(QPointF(pictureMargin, pictureMargin), QSizeF(pictureSize)));
}

TEST(PicturePlan, NothingCoversAnythingElse)
{
    expectApart(least);
    expectApart(QSizeF(1920, 1000));
    expectApart(QSizeF(1100, 1600));
}

TEST(PicturePlan, ASmallerWidgetGetsThePlanOfTheLeastSize)
{
    EXPECT_EQ(picturePlan(QSizeF(200, 100)).picture, picturePlan(least).picture);
}

TEST(PicturePlan, ALargerWidgetScalesEverything)
{
    const QSizeF doubled(2 * pictureSize.width() + 2 * pictureMargin,
                         2 * pictureSize.height() + 2 * pictureMargin);
    const PicturePlan plan = picturePlan(doubled);
    EXPECT_EQ(plan.scale, 2);
    for (int row = 1; row <= rowCount; ++row) {
        EXPECT_EQ(plan.label(row).size(), picturePlan(least).label(row).size() * 2) << row;
    }
}

TEST(PicturePlan, WhatIsWiderGoesToTheLabels)
{
    const PicturePlan wide = picturePlan(QSizeF(least.width() + 400, least.height()));
    const PicturePlan usual = picturePlan(least);
    EXPECT_EQ(wide.scale, 1);
    EXPECT_EQ(wide.throttle.size(), usual.throttle.size());
    EXPECT_EQ(wide.stick.size(), usual.stick.size());
    for (int row = 1; row <= rowCount; ++row) {
        if (!usual.label(row).isEmpty()) {
            EXPECT_GT(wide.label(row).width(), usual.label(row).width()) << row;
        }
    }
}

TEST(PicturePlan, RowsWithoutAControlHaveNoLabel)
{
    const PicturePlan plan = picturePlan(least);
    for (int row = 1; row <= rowCount; ++row) {
        EXPECT_EQ(plan.label(row).isEmpty(), row >= 11 && row <= 14) << row;
    }
}

TEST(PicturePlan, TheDirectionsOfAHatAreWithinItsFrame)
{
    const PicturePlan plan = picturePlan(QSizeF(1500, 900));
    for (int row = firstHatRow; row < firstHatRow + hatCount * hatRowCount; ++row) {
        const QRectF &frame = plan.hats[size_t(hatOfRow(row))];
        EXPECT_TRUE(frame.contains(plan.label(row))) << row;
        EXPECT_GE(plan.label(row).top(), frame.top() + plan.hatNames[size_t(hatOfRow(row))]) << row;
    }
}

TEST(PicturePlan, ALineGoesFromTheLabelsEdgeToTheControl)
{
    const PicturePlan plan = picturePlan(least);
    const QPointF control = plan.throttle.center();
    const std::vector<QPointF> line = joiningLine(plan, 3, control);
    ASSERT_EQ(line.size(), 2U);
    EXPECT_EQ(line.front(), QPointF(plan.label(3).right(), plan.label(3).center().y()));
    EXPECT_EQ(line.back(), control);
}

TEST(PicturePlan, NoLineCrossesALabel)
{
    for (const QSizeF &size : { least, QSizeF(1920, 1000), QSizeF(1100, 1600) }) {
        const PicturePlan plan = picturePlan(size);
        for (int row = 1; row <= rowCount; ++row) {
            const bool onThrottle = row <= 10 || isRotaryRow(row);
            const QRectF &drawing = onThrottle ? plan.throttle : plan.stick;
            const std::vector<QPointF> line = joiningLine(plan, row, drawing.center());
            for (size_t at = 1; at < line.size(); ++at) {
                for (int step = 1; step < 200; ++step) {
                    const QPointF point = line[at - 1] + (line[at] - line[at - 1]) * step / 200.0;
                    for (int other = 1; other <= rowCount; ++other) {
                        EXPECT_FALSE(plan.label(other).adjusted(1, 1, -1, -1).contains(point))
                            << row << " crosses " << other;
                    }
                }
            }
        }
    }
}
