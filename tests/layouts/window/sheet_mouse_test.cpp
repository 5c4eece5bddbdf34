// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/window/sheet_mouse.h"

#include <gtest/gtest.h>

using namespace zeph;

namespace {

using enum SheetButton;

/// A sheet of 800 by 600 with a box of 100 by 50 at 200, 100, another at 400, 100, and a picture at
/// 10, 20 that is locked.
class SheetMouseTest : public testing::Test
{
protected:
    SheetMouseTest()
    {
        sheet.width = 800;
        sheet.height = 600;
        sheet.pictures = { { .Left = 10, .Top = 20, .path = {} } };
        sheet.boxes = { { .Left = 200, .Top = 100, .Width = 100, .Height = 50, .text = {} },
                        { .Left = 400, .Top = 100, .Width = 100, .Height = 50, .text = {} } };
    }

    MouseWish press(SheetButton button, QPointF at, int box = -1)
    {
        return mouse.pressed(sheet, selected, { .at = at, .button = button, .box = box });
    }
    MouseWish move(SheetButton button, QPointF at, int box = -1)
    {
        return mouse.moved(sheet, selected, { .at = at, .button = button, .box = box });
    }
    MouseWish release(SheetButton button, QPointF at, int box = -1)
    {
        return mouse.released(sheet, selected, { .at = at, .button = button, .box = box });
    }
    bool sizesAt(QPointF at, int box = 0)
    {
        move(None, at, box);
        return mouse.pointer() == SheetPointer::Sizing;
    }

    Sheet sheet;
    int selected = 0;
    SheetMouse mouse;
};

} // namespace

TEST_F(SheetMouseTest, TheLastSixPixelsAtTheRightAndBelowSize)
{
    EXPECT_FALSE(sizesAt({ 250, 120 }));
    EXPECT_FALSE(sizesAt({ 293.9, 120 }));
    EXPECT_TRUE(sizesAt({ 294, 120 }));
    EXPECT_TRUE(sizesAt({ 299.9, 120 }));
    EXPECT_FALSE(sizesAt({ 250, 143.9 }));
    EXPECT_TRUE(sizesAt({ 250, 144 }));
    // The other edges do not.
    EXPECT_FALSE(sizesAt({ 200, 120 }));
    EXPECT_FALSE(sizesAt({ 250, 100 }));
}

TEST_F(SheetMouseTest, TheRightButtonShowsThePointerToo)
{
    move(Right, { 298, 120 }, 0);
    EXPECT_EQ(mouse.pointer(), SheetPointer::Sizing);
    move(Right, { 250, 120 }, 0);
    EXPECT_EQ(mouse.pointer(), SheetPointer::Normal);
}

TEST_F(SheetMouseTest, ALockedBoxIsNotSized)
{
    sheet.boxes[0].Locked = true;
    EXPECT_FALSE(sizesAt({ 298, 148 }));
    press(Left, { 298, 148 }, 0);
    EXPECT_EQ(move(Left, { 350, 200 }, 0), MouseWish());
}

TEST_F(SheetMouseTest, AnyButtonSelectsABox)
{
    for (const SheetButton button : { Left, Right, Other }) {
        EXPECT_EQ(press(button, { 450, 120 }, 1), MouseWish{ .select = 1 });
        release(button, { 450, 120 }, 1);
    }
}

TEST_F(SheetMouseTest, SizingFollowsTheMouseByOnePixelMore)
{
    ASSERT_TRUE(sizesAt({ 298, 148 }));
    press(Left, { 298, 148 }, 0);
    EXPECT_TRUE(mouse.isCarrying());
    EXPECT_EQ(move(Left, { 329.7, 179.2 }, 0).place, QRectF(200, 100, 130, 80));
    const MouseWish end = release(Left, { 330, 180 }, 0);
    EXPECT_TRUE(end.whenMoving);
    EXPECT_EQ(end.select, 0);
    EXPECT_FALSE(mouse.isCarrying());
}

TEST_F(SheetMouseTest, SizesBelow40By20AreRefusedEachOnItsOwn)
{
    ASSERT_TRUE(sizesAt({ 298, 148 }));
    press(Left, { 298, 148 }, 0);
    EXPECT_EQ(move(Left, { 239, 119 }, 0).place, QRectF(200, 100, 40, 20));
    EXPECT_EQ(move(Left, { 238, 169 }, 0).place, QRectF(200, 100, 100, 70));
    EXPECT_EQ(move(Left, { 329, 118 }, 0).place, QRectF(200, 100, 130, 50));
    EXPECT_EQ(move(Left, { -50, -50 }, 0).place, QRectF(200, 100, 100, 50));
}

TEST_F(SheetMouseTest, APressInTheMiddleSizesNothing)
{
    ASSERT_FALSE(sizesAt({ 250, 120 }));
    press(Left, { 250, 120 }, 0);
    EXPECT_FALSE(mouse.isCarrying());
    EXPECT_EQ(move(Left, { 298, 148 }, 0), MouseWish());
    EXPECT_FALSE(release(Left, { 298, 148 }, 0).whenMoving);
}

TEST_F(SheetMouseTest, TheRightButtonOnTheSheetBringsTheBoxThereAndCarriesIt)
{
    EXPECT_EQ(press(Right, { 600.9, 300.2 }).place, QRectF(600, 300, 100, 50));
    EXPECT_EQ(move(Right, { 610, 310 }).place, QRectF(610, 310, 100, 50));
    EXPECT_TRUE(release(Right, { 610, 310 }).whenMoving);
    EXPECT_EQ(move(None, { 620, 320 }), MouseWish());
}

TEST_F(SheetMouseTest, ABoxIsNotCarriedOffTheSheet)
{
    press(Right, { 600, 300 });
    EXPECT_EQ(move(Right, { -20, 900 }).place, QRectF(0, 599, 100, 50));
}

TEST_F(SheetMouseTest, ALockedBoxIsNotCarried)
{
    sheet.boxes[0].Locked = true;
    EXPECT_EQ(press(Right, { 600, 300 }), MouseWish());
    EXPECT_EQ(move(Right, { 610, 310 }), MouseWish());
    EXPECT_FALSE(release(Right, { 610, 310 }).whenMoving);
}

TEST_F(SheetMouseTest, WithoutASelectedBoxNothingIsCarried)
{
    selected = -1;
    EXPECT_EQ(press(Right, { 600, 300 }), MouseWish());
    EXPECT_FALSE(release(Right, { 600, 300 }).whenMoving);
}

TEST_F(SheetMouseTest, TheRightButtonOnABoxCarriesNothing)
{
    EXPECT_EQ(press(Right, { 250, 120 }, 0), MouseWish{ .select = 0 });
    EXPECT_EQ(move(Right, { 500, 400 }, 0), MouseWish());
    EXPECT_FALSE(release(Right, { 500, 400 }, 0).whenMoving);
}

TEST_F(SheetMouseTest, JustOffTheEdgeTheLeftButtonOnTheSheetStillSizes)
{
    ASSERT_TRUE(sizesAt({ 299, 149 }));
    // The mouse has left the box by its corner; the pointer is still on.
    move(None, { 302, 152 });
    EXPECT_EQ(mouse.pointer(), SheetPointer::Sizing);
    // From the sheet, the size is the plain difference.
    EXPECT_EQ(press(Left, { 302, 152 }).place, QRectF(200, 100, 102, 52));
    EXPECT_EQ(move(Left, { 239, 119 }).place, QRectF(200, 100, 100, 50));
    EXPECT_EQ(move(Left, { 240, 120 }).place, QRectF(200, 100, 40, 20));
    EXPECT_TRUE(release(Left, { 240, 120 }).whenMoving);
}

TEST_F(SheetMouseTest, WhileThePointerSizesTheRightButtonCarriesNothing)
{
    ASSERT_TRUE(sizesAt({ 299, 149 }));
    EXPECT_EQ(press(Right, { 302, 152 }), MouseWish());
}

TEST_F(SheetMouseTest, FartherAwayThePointerIsTheUsualOneAgain)
{
    ASSERT_TRUE(sizesAt({ 299, 149 }));
    move(None, { 320, 170 });
    EXPECT_EQ(mouse.pointer(), SheetPointer::Normal);
    EXPECT_EQ(press(Left, { 320, 170 }), MouseWish());
}

TEST_F(SheetMouseTest, AnUnlockedPictureGoesBeforeTheBox)
{
    sheet.pictures[0].Locked = false;
    EXPECT_EQ(press(Right, { 300.5, 200.5 }),
              MouseWish({ .picture = std::pair(0, QPointF(300, 200)) }));
    EXPECT_EQ(move(Right, { 320, 210 }).picture, std::pair(0, QPointF(320, 210)));
    // The box was not moved, so that no option for moved boxes is due.
    EXPECT_FALSE(release(Right, { 320, 210 }).whenMoving);
}

TEST_F(SheetMouseTest, AHiddenPictureLetsTheBoxMove)
{
    sheet.pictures[0].Locked = false;
    sheet.pictures[0].Visible = false;
    EXPECT_EQ(press(Right, { 600, 300 }).place, QRectF(600, 300, 100, 50));
}

TEST_F(SheetMouseTest, ThePicturesOfTheCustomSheetAreHeldWhereTheyArePressed)
{
    sheet.kind = SheetKind::Custom;
    sheet.pictures[0].Locked = false;
    for (const SheetButton button : { Left, Right }) {
        mouse.pressed(sheet, selected, { .at = { 110, 70 }, .button = button, .picture = 0 });
        EXPECT_EQ(move(button, { 130, 80 }).picture, std::pair(0, QPointF(30, 30)));
        release(button, { 130, 80 });
    }
}

TEST_F(SheetMouseTest, BesideThePicturesOfTheCustomSheetTheBoxMoves)
{
    sheet.kind = SheetKind::Custom;
    sheet.pictures[0].Locked = false;
    EXPECT_EQ(press(Right, { 600, 300 }).place, QRectF(600, 300, 100, 50));
}

TEST_F(SheetMouseTest, TheBoxUnderAPlaceIsTheSelectedOneThenTheTopmost)
{
    sheet.boxes[1].Left = 250;
    EXPECT_EQ(boxAt(sheet, 0, { 260, 120 }), 0);
    EXPECT_EQ(boxAt(sheet, -1, { 260, 120 }), 1);
    EXPECT_EQ(boxAt(sheet, 1, { 210, 120 }), 0);
    EXPECT_EQ(boxAt(sheet, 0, { 300, 99.9 }), -1);
    sheet.boxes[1].Visible = false;
    EXPECT_EQ(boxAt(sheet, -1, { 260, 120 }), 0);
}
