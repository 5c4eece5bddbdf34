// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/pictures/gesture_tracker.h"

#include <gtest/gtest.h>

using namespace zeph;

namespace {

GestureTracker asking(Gesture gesture)
{
    GestureTracker tracker;
    tracker.setGesture(gesture);
    return tracker;
}

/// A switch at (100, 100) that is rotated from 50 pixels to its right.
GestureTracker askingForTarget()
{
    GestureTracker tracker = asking(Gesture::Target);
    tracker.setMeasures({ QPointF(100, 100), QPointF(150, 100), {} });
    return tracker;
}

} // namespace

TEST(GestureTracker, MeasuresNothingWhileNothingIsAskedFor)
{
    GestureTracker tracker;
    EXPECT_FALSE(tracker.press({ 1, 2 }).isChanged);
    EXPECT_FALSE(tracker.move({ 3, 4 }, true).isChanged);
    EXPECT_FALSE(tracker.release({ 3, 4 }).isFinished);
    EXPECT_EQ(tracker.measures(), Measures());
}

TEST(GestureTracker, AClickChoosesAPlaceThatFollowsTheButton)
{
    GestureTracker tracker = asking(Gesture::Point);
    EXPECT_TRUE(tracker.press({ 10, 20 }).isChanged);
    EXPECT_EQ(tracker.measures(), Measures({ QPointF(10, 20), {}, {} }));
    EXPECT_TRUE(tracker.move({ 11, 20 }, false).isChanged);
    const auto outcome = tracker.release({ 11, 20 });
    EXPECT_TRUE(outcome.isFinished);
    EXPECT_FALSE(outcome.isChanged);
    EXPECT_EQ(tracker.measures(), Measures({ QPointF(11, 20), {}, {} }));
}

TEST(GestureTracker, APressEmptiesWhatWasMeasuredBefore)
{
    GestureTracker tracker = asking(Gesture::Radius);
    tracker.setMeasures({ QPointF(1, 1), QPointF(2, 2), QPointF(3, 3) });
    tracker.press({ 40, 50 });
    EXPECT_EQ(tracker.measures(), Measures({ QPointF(40, 50), {}, {} }));
}

TEST(GestureTracker, ADragIsALineFromWhereItBegan)
{
    GestureTracker tracker = asking(Gesture::Line);
    tracker.press({ 10, 20 });
    EXPECT_TRUE(tracker.isDrawing());
    tracker.move({ 15, 25 }, false);
    EXPECT_EQ(tracker.measures().to, QPointF(15, 25));
    EXPECT_FALSE(tracker.move({ 15, 25 }, false).isChanged);
    const auto outcome = tracker.release({ 30, 5 });
    EXPECT_TRUE(outcome.isChanged);
    EXPECT_TRUE(outcome.isFinished);
    EXPECT_FALSE(tracker.isDrawing());
    EXPECT_EQ(tracker.measures(), Measures({ QPointF(10, 20), QPointF(30, 5), {} }));
    EXPECT_FALSE(tracker.move({ 90, 90 }, false).isChanged);
}

TEST(GestureTracker, ALineThatEndsWhereItBeganIsNone)
{
    GestureTracker tracker = asking(Gesture::Line);
    tracker.press({ 10, 20 });
    tracker.move({ 15, 25 }, false);
    EXPECT_TRUE(tracker.release({ 10, 20 }).isFinished);
    EXPECT_EQ(tracker.measures(), Measures({ QPointF(10, 20), {}, {} }));
}

TEST(GestureTracker, WithShiftThePointerGivesTheTargetOnTheCircle)
{
    GestureTracker tracker = askingForTarget();
    EXPECT_FALSE(tracker.move({ 100, 10 }, false).isChanged);
    EXPECT_TRUE(tracker.move({ 100, 10 }, true).isChanged);
    ASSERT_TRUE(tracker.measures().target);
    EXPECT_NEAR(tracker.measures().target->x(), 100, 1e-9);
    EXPECT_NEAR(tracker.measures().target->y(), 50, 1e-9);
    EXPECT_EQ(tracker.measures().to, QPointF(150, 100));
}

TEST(GestureTracker, LettingGoOfShiftKeepsTheTarget)
{
    GestureTracker tracker = askingForTarget();
    tracker.move({ 20, 100 }, true);
    EXPECT_TRUE(tracker.shiftReleased().isFinished);
    EXPECT_FALSE(tracker.shiftReleased().isFinished);
    tracker.move({ 100, 180 }, false);
    EXPECT_NEAR(tracker.measures().target->x(), 50, 1e-9);
}

TEST(GestureTracker, AMoveWithoutShiftEndsTheTargetWhenItsKeyWentElsewhere)
{
    GestureTracker tracker = askingForTarget();
    tracker.move({ 20, 100 }, true);
    EXPECT_TRUE(tracker.move({ 20, 101 }, false).isFinished);
}

TEST(GestureTracker, TheRightButtonClearsTheTargetAndNothingElse)
{
    GestureTracker tracker = askingForTarget();
    tracker.move({ 20, 100 }, true);
    EXPECT_TRUE(tracker.pressRight().isChanged);
    EXPECT_EQ(tracker.measures(), Measures({ QPointF(100, 100), QPointF(150, 100), {} }));
    GestureTracker other = asking(Gesture::Line);
    other.setMeasures({ QPointF(1, 1), QPointF(2, 2), QPointF(3, 3) });
    EXPECT_FALSE(other.pressRight().isChanged);
}

TEST(GestureTracker, WithoutARadiusThereIsNoTarget)
{
    GestureTracker tracker = asking(Gesture::Target);
    EXPECT_FALSE(tracker.move({ 20, 100 }, true).isChanged);
    EXPECT_FALSE(tracker.shiftReleased().isFinished);
}

TEST(GestureTracker, AnotherGestureEndsTheDragAndKeepsTheMeasures)
{
    GestureTracker tracker = asking(Gesture::Radius);
    tracker.press({ 10, 20 });
    tracker.move({ 40, 60 }, false);
    tracker.setGesture(Gesture::None);
    EXPECT_FALSE(tracker.move({ 90, 90 }, false).isChanged);
    EXPECT_EQ(tracker.measures().to, QPointF(40, 60));
    EXPECT_EQ(tracker.meaning(), Gesture::Radius);
}
