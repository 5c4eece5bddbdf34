// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// The rules of the mouse through the real window. All places are pixels of the sheet, whatever the
// screen's scale: the suite also runs at scale 2.

#include "tests/layouts/window/sheet_window_fixture.h"

#include <QMenu>
#include <QScrollBar>

using namespace zeph;

namespace {

/// A box (4) of 100 by 50 at 300, 200 and another (5) at 500, 200, in a window that shows all of
/// the sheet.
class SheetMouseWindowTest : public test::SheetWindowTest
{
protected:
    SheetMouseWindowTest()
    {
        openShown({ 1200, 950 });
        hideAllBut({ 4, 5 });
        place(4, { 300, 200, 100, 50 });
        place(5, { 500, 200, 100, 50 });
    }

    SheetCanvas &canvas() { return window->view().canvas(); }
    QPoint onWindow(const QPoint &at) { return canvas().mapTo(window.get(), at); }
    void moveTo(const QPoint &at) { QTest::mouseMove(window->windowHandle(), onWindow(at)); }
    void pressAt(Qt::MouseButton button, const QPoint &at)
    {
        QTest::mousePress(window->windowHandle(), button, {}, onWindow(at));
    }
    void releaseAt(Qt::MouseButton button, const QPoint &at)
    {
        QTest::mouseRelease(window->windowHandle(), button, {}, onWindow(at));
    }
    void drag(Qt::MouseButton button, const QPoint &from, const QPoint &to)
    {
        moveTo(from);
        pressAt(button, from);
        moveTo((from + to) / 2);
        moveTo(to);
        releaseAt(button, to);
    }
    void click(const QPoint &at, Qt::MouseButton button = Qt::LeftButton)
    {
        moveTo(at);
        pressAt(button, at);
        releaseAt(button, at);
    }
    Qt::CursorShape pointer() { return canvas().cursor().shape(); }
    void unlockPicture(const QPointF &at)
    {
        Sheet sheet = model().sheet();
        sheet.pictures[0].Locked = false;
        sheet.pictures[0].Left = float(at.x());
        sheet.pictures[0].Top = float(at.y());
        model().change(sheet);
    }
};

} // namespace

TEST_F(SheetMouseWindowTest, AnyButtonSelectsABoxAndBringsItsControlUp)
{
    click({ 350, 225 });
    EXPECT_EQ(model().selected(), 4);
    EXPECT_EQ(editor().objectName(), u"TxtRTF_4");
    EXPECT_TRUE(editor().isVisible());
    EXPECT_EQ(editor().geometry(), QRect(300, 200, 100, 50));
    click({ 550, 225 }, Qt::MiddleButton);
    EXPECT_EQ(model().selected(), 5);
    EXPECT_EQ(editor().objectName(), u"TxtRTF_5");
    click({ 350, 225 }, Qt::RightButton);
    EXPECT_EQ(model().selected(), 4);
    window->actions().menu(u"mnuTextboxPopUp")->close();
    EXPECT_EQ(placeOf(4), QRectF(300, 200, 100, 50));
}

TEST_F(SheetMouseWindowTest, TheSizingArrowsShowInTheLastSixPixels)
{
    moveTo({ 393, 225 });
    EXPECT_NE(pointer(), Qt::SizeAllCursor);
    moveTo({ 394, 225 });
    EXPECT_EQ(pointer(), Qt::SizeAllCursor);
    moveTo({ 350, 243 });
    EXPECT_NE(pointer(), Qt::SizeAllCursor);
    moveTo({ 350, 244 });
    EXPECT_EQ(pointer(), Qt::SizeAllCursor);
    moveTo({ 200, 400 });
    EXPECT_NE(pointer(), Qt::SizeAllCursor);
}

TEST_F(SheetMouseWindowTest, TheSameOverTheControlOfTheSelectedBox)
{
    click({ 350, 225 });
    moveTo({ 394, 225 });
    EXPECT_EQ(editor().viewport()->cursor().shape(), Qt::SizeAllCursor);
    moveTo({ 350, 225 });
    EXPECT_EQ(editor().viewport()->cursor().shape(), Qt::IBeamCursor);
}

TEST_F(SheetMouseWindowTest, TheLeftButtonSizesABoxThatIsNotSelectedYet)
{
    drag(Qt::LeftButton, { 397, 247 }, { 449, 289 });
    EXPECT_EQ(model().selected(), 4);
    EXPECT_EQ(placeOf(4), QRectF(300, 200, 150, 90));
    EXPECT_EQ(editor().selLength(), 0);
}

TEST_F(SheetMouseWindowTest, TheLeftButtonSizesTheSelectedBoxInOneStep)
{
    click({ 350, 225 });
    drag(Qt::LeftButton, { 397, 247 }, { 449, 289 });
    EXPECT_EQ(placeOf(4), QRectF(300, 200, 150, 90));
    EXPECT_EQ(editor().geometry(), QRect(300, 200, 150, 90));
    EXPECT_EQ(editor().selLength(), 0);
    press(u"mnuEditUndo");
    EXPECT_EQ(placeOf(4), QRectF(300, 200, 100, 50));
}

TEST_F(SheetMouseWindowTest, Below40By20TheEdgeStopsFollowing)
{
    click({ 350, 225 });
    moveTo({ 397, 247 });
    pressAt(Qt::LeftButton, { 397, 247 });
    moveTo({ 339, 219 });
    EXPECT_EQ(placeOf(4), QRectF(300, 200, 40, 20));
    moveTo({ 338, 218 });
    EXPECT_EQ(placeOf(4), QRectF(300, 200, 40, 20));
    moveTo({ 310, 205 });
    EXPECT_EQ(placeOf(4), QRectF(300, 200, 40, 20));
    releaseAt(Qt::LeftButton, { 310, 205 });
}

TEST_F(SheetMouseWindowTest, TheRightButtonOnTheSheetCarriesTheSelectedBox)
{
    click({ 350, 225 });
    moveTo({ 600, 500 });
    pressAt(Qt::RightButton, { 600, 500 });
    EXPECT_EQ(placeOf(4), QRectF(600, 500, 100, 50));
    moveTo({ 620, 510 });
    EXPECT_EQ(placeOf(4), QRectF(620, 510, 100, 50));
    releaseAt(Qt::RightButton, { 620, 510 });
    moveTo({ 700, 550 });
    EXPECT_EQ(placeOf(4), QRectF(620, 510, 100, 50));
    press(u"mnuEditUndo");
    EXPECT_EQ(placeOf(4), QRectF(300, 200, 100, 50));
}

TEST_F(SheetMouseWindowTest, TheRightButtonOverThePictureCarriesIt)
{
    const SheetPicture &picture = model().sheet().pictures[0];
    const QSize size = canvas().look().pictures[0].size();
    ASSERT_FALSE(size.isEmpty());
    const QPoint middle(int(picture.Left) + size.width() / 2, int(picture.Top) + size.height() / 2);
    place(4, { 5, 5, 100, 50 });
    click({ 50, 30 });
    drag(Qt::RightButton, middle, middle + QPoint(4, 6));
    EXPECT_EQ(placeOf(4).topLeft(), QPointF(middle + QPoint(4, 6)));
}

TEST_F(SheetMouseWindowTest, AnUnlockedPictureIsMovedAndNotTheBox)
{
    click({ 350, 225 });
    unlockPicture({ 400, 300 });
    drag(Qt::RightButton, { 600, 500 }, { 620, 520 });
    EXPECT_EQ(model().sheet().pictures[0].Left, 620);
    EXPECT_EQ(model().sheet().pictures[0].Top, 520);
    EXPECT_EQ(placeOf(4), QRectF(300, 200, 100, 50));
    press(u"mnuEditUndo");
    EXPECT_EQ(model().sheet().pictures[0].Left, 400);
    press(u"mnuLockedArray_17");
    drag(Qt::RightButton, { 600, 500 }, { 620, 520 });
    EXPECT_EQ(model().sheet().pictures[0].Left, 400);
    EXPECT_EQ(placeOf(4), QRectF(620, 520, 100, 50));
}

TEST_F(SheetMouseWindowTest, AHiddenPictureLetsTheBoxMove)
{
    click({ 350, 225 });
    unlockPicture({ 400, 300 });
    press(u"mnuVisibleArray_17");
    drag(Qt::RightButton, { 600, 500 }, { 620, 520 });
    EXPECT_EQ(model().sheet().pictures[0].Left, 400);
    EXPECT_EQ(placeOf(4), QRectF(620, 520, 100, 50));
}

TEST_F(SheetMouseWindowTest, ALockedBoxIgnoresMovingAndSizing)
{
    click({ 350, 225 });
    press(u"mnuLockedArray_4");
    moveTo({ 397, 247 });
    EXPECT_NE(editor().viewport()->cursor().shape(), Qt::SizeAllCursor);
    drag(Qt::LeftButton, { 397, 247 }, { 449, 289 });
    EXPECT_EQ(placeOf(4), QRectF(300, 200, 100, 50));
    drag(Qt::RightButton, { 600, 500 }, { 620, 520 });
    EXPECT_EQ(placeOf(4), QRectF(300, 200, 100, 50));
}

TEST_F(SheetMouseWindowTest, FromTheSheetTheSizeIsThePlainDifference)
{
    click({ 350, 225 });
    moveTo({ 398, 248 });
    moveTo({ 402, 252 });
    ASSERT_EQ(pointer(), Qt::SizeAllCursor);
    pressAt(Qt::LeftButton, { 402, 252 });
    moveTo({ 430, 260 });
    releaseAt(Qt::LeftButton, { 430, 260 });
    EXPECT_EQ(placeOf(4), QRectF(300, 200, 130, 60));
}

TEST_F(SheetMouseWindowTest, MovedBoxesSnapWhenTheyShould)
{
    press(u"mnuWhenMovingArray_0");
    layouts().JoystickGridCellSize = 10;
    click({ 350, 225 });
    drag(Qt::RightButton, { 600, 500 }, { 623, 519 });
    EXPECT_EQ(placeOf(4), QRectF(620, 510, 100, 50));
    press(u"mnuEditUndo");
    EXPECT_EQ(placeOf(4), QRectF(300, 200, 100, 50));
}

TEST_F(SheetMouseWindowTest, SizedBoxesGoToTheGridWhenTheyShould)
{
    press(u"mnuWhenMovingArray_1");
    layouts().JoystickGridCellSize = 10;
    drag(Qt::LeftButton, { 397, 247 }, { 442, 280 });
    // 143 by 81 become the next cells' ends.
    EXPECT_EQ(placeOf(4), QRectF(300, 200, 150, 90));
}

TEST_F(SheetMouseWindowTest, LeftAsTheyAreIsTheDefaultOfTheJoystickSheet)
{
    EXPECT_TRUE(action(u"mnuWhenMovingArray_2")->isChecked());
    click({ 350, 225 });
    drag(Qt::RightButton, { 600, 500 }, { 623, 519 });
    EXPECT_EQ(placeOf(4), QRectF(623, 519, 100, 50));
}

TEST_F(SheetMouseWindowTest, InAScrolledWindowPlacesAreTheSheetsToo)
{
    click({ 350, 225 });
    window->resize(500, 480);
    QTest::qWait(1);
    auto *across = window->findChild<QScrollBar *>(u"HScroll1"_s);
    auto *down = window->findChild<QScrollBar *>(u"VScroll1"_s);
    ASSERT_TRUE(across->isVisible() && down->isVisible());
    across->setValue(250);
    down->setValue(150);
    drag(Qt::LeftButton, { 397, 247 }, { 449, 289 });
    EXPECT_EQ(placeOf(4), QRectF(300, 200, 150, 90));
    drag(Qt::RightButton, { 480, 330 }, { 500, 350 });
    EXPECT_EQ(placeOf(4), QRectF(500, 350, 150, 90));
}

TEST_F(SheetMouseWindowTest, APressInABoxPutsTheCaretThere)
{
    write(4, u"WWWWW\nsecond line"_s);
    place(4, { 300, 200, 150, 60 });
    click({ 306, 230 });
    EXPECT_TRUE(editor().hasFocus());
    EXPECT_EQ(editor().selStart(), 6);
    EXPECT_EQ(editor().selLength(), 0);
}

TEST_F(SheetMouseWindowTest, TheRightButtonOnABoxOpensItsMenuAtTheRelease)
{
    moveTo({ 350, 225 });
    pressAt(Qt::RightButton, { 350, 225 });
    QMenu *menu = window->actions().menu(u"mnuTextboxPopUp");
    EXPECT_FALSE(menu->isVisible());
    releaseAt(Qt::RightButton, { 350, 225 });
    EXPECT_TRUE(menu->isVisible());
    EXPECT_EQ(model().selected(), 4);
    menu->close();
}
