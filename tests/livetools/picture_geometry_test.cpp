// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/picture_geometry.h"

#include <gtest/gtest.h>

using namespace zeph;

namespace {

constexpr QPointF centre(200, 300);

/// A rotation from a place so far to the right of the centre, and so far above it.
Measures rotation(double right, double up)
{
    return { centre, centre + QPointF(right, -up), {} };
}

Measures towards(double right, double up)
{
    return { centre, centre + QPointF(1, 0), centre + QPointF(right, -up) };
}

struct Direction {
    double right;
    double up;
    float degrees;
};

constexpr Direction directions[] = {
    { 10, 0, 0 },    { 10, 10, 45 },    { 30, 40, 53.130102F },
    { 0, 10, 90 },   { -10, 10, 135 },  { -30, 40, 126.8699F },
    { -10, 0, 180 }, { -10, -10, 225 }, { -40, -30, 216.8699F },
    { 0, -10, 270 }, { 10, -10, 315 },  { 40, -30, 323.1301F },
};

class Angles : public testing::TestWithParam<Direction>
{
};

} // namespace

TEST_P(Angles, GrowCounterClockwiseFromTheRight)
{
    const auto [right, up, degrees] = GetParam();
    EXPECT_FLOAT_EQ(CalculateTheta1(rotation(right, up)), degrees);
    EXPECT_FLOAT_EQ(CalculateTheta2(towards(right, up)), degrees);
}

TEST_P(Angles, AreThoseOfThePlaceOnTheCircle)
{
    const auto [right, up, degrees] = GetParam();
    const QPointF far = centre + QPointF(right, -up) * 7;
    const QPointF on = pointOnCircle(centre, 50, far);
    EXPECT_NEAR(QLineF(centre, on).length(), 50, 1e-9);
    EXPECT_FLOAT_EQ(CalculateTheta2({ centre, centre + QPointF(50, 0), on }), degrees);
}

INSTANTIATE_TEST_SUITE_P(AllRound, Angles, testing::ValuesIn(directions));

TEST(PictureGeometry, APointStraightAboveTheCentreIsAt90)
{
    EXPECT_EQ(CalculateTheta1(rotation(0, 1)), 90.0F);
    EXPECT_EQ(CalculateTheta1(rotation(0, -1)), 270.0F);
}

TEST(PictureGeometry, ThePlaceOfTheCentreItselfIsAt0)
{
    EXPECT_EQ(CalculateTheta1(rotation(0, 0)), 0.0F);
    EXPECT_EQ(pointOnCircle(centre, 25, centre), centre + QPointF(25, 0));
}

TEST(PictureGeometry, WhatWasNotMeasuredHasNoAngleAndNoRadius)
{
    EXPECT_EQ(CalculateTheta1({}), 0.0F);
    EXPECT_EQ(CalculateTheta2(rotation(3, 4)), 0.0F);
    EXPECT_EQ(radiusOf({}), 0);
    EXPECT_EQ(radiusOf({ centre, {}, {} }), 0);
}

TEST(PictureGeometry, TheRadiusIsTheDistanceOfTheTwoPlaces)
{
    EXPECT_DOUBLE_EQ(radiusOf(rotation(30, -40)), 50);
    EXPECT_DOUBLE_EQ(radiusOf(rotation(-5, 12)), 13);
}

TEST(PictureGeometry, TheSmallestStepBelowTheHorizontalIsNearAFullTurn)
{
    EXPECT_FLOAT_EQ(CalculateTheta1(rotation(1000, -1)), 359.94270F);
    EXPECT_FLOAT_EQ(CalculateTheta1(rotation(-1000, -1)), 180.05730F);
}
