// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/files/sheet_kinds.h"
#include "layouts/window/sheet_model.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

using namespace zeph;

namespace {

class SheetModelTest : public testing::Test
{
protected:
    Sheet moved(float left)
    {
        Sheet sheet = model.sheet();
        sheet.boxes[0].Left = left;
        return sheet;
    }
    void type(const QString &text) { model.type(0, RichText::plain(text)); }
    QString text() const { return model.sheet().boxes[0].text.text; }

    SheetModel model{ emptySheet(SheetKind::Joystick) };
};

} // namespace

TEST_F(SheetModelTest, AChangeIsAStepAndNoChangeIsNone)
{
    EXPECT_FALSE(model.change(model.sheet()));
    EXPECT_FALSE(model.canUndo());
    EXPECT_TRUE(model.change(moved(10)));
    EXPECT_TRUE(model.change(moved(20)));
    model.undo();
    EXPECT_EQ(model.sheet().boxes[0].Left, 10);
    model.redo();
    EXPECT_EQ(model.sheet().boxes[0].Left, 20);
    model.undo();
    model.undo();
    EXPECT_EQ(model.sheet().boxes[0].Left, 0);
    EXPECT_FALSE(model.canUndo());
    model.undo();
    EXPECT_EQ(model.sheet().boxes[0].Left, 0);
}

TEST_F(SheetModelTest, AnythingNewAfterAnUndoEndsRedo)
{
    model.change(moved(10));
    model.undo();
    model.change(moved(30));
    EXPECT_FALSE(model.canRedo());
}

TEST_F(SheetModelTest, ADragIsOneStepHoweverManyPlacesItPassed)
{
    for (const float left : { 1.0F, 2.0F, 3.0F }) {
        model.preview(moved(left));
    }
    EXPECT_FALSE(model.canUndo());
    EXPECT_TRUE(model.commit());
    model.undo();
    EXPECT_EQ(model.sheet().boxes[0].Left, 0);
    EXPECT_FALSE(model.canUndo());
}

TEST_F(SheetModelTest, ADragBackToWhereItBeganIsNoStep)
{
    model.preview(moved(5));
    model.preview(moved(0));
    EXPECT_FALSE(model.commit());
    EXPECT_FALSE(model.canUndo());
}

TEST_F(SheetModelTest, AWordThatIsTypedIsOneStep)
{
    for (const QString &each : { u"G"_s, u"Ge"_s, u"Gea"_s, u"Gear"_s, u"Gear "_s, u"Gear U"_s }) {
        type(each);
    }
    model.undo();
    EXPECT_EQ(text(), u"Gear ");
    model.undo();
    EXPECT_EQ(text(), u"");
    model.redo();
    model.redo();
    EXPECT_EQ(text(), u"Gear U");
}

TEST_F(SheetModelTest, TypingAfterAnythingElseIsAStepOfItsOwn)
{
    type(u"a"_s);
    model.change(moved(10));
    type(u"ab"_s);
    model.undo();
    EXPECT_EQ(text(), u"a");
    EXPECT_EQ(model.sheet().boxes[0].Left, 10);
}

TEST_F(SheetModelTest, AReplacedSheetHasNoSteps)
{
    model.change(moved(10));
    model.replace(moved(50));
    EXPECT_FALSE(model.canUndo());
    EXPECT_FALSE(model.canRedo());
    EXPECT_EQ(model.sheet().boxes[0].Left, 50);
}

TEST_F(SheetModelTest, TheOldestStepsAreForgotten)
{
    for (int i = 1; i <= 150; ++i) {
        model.change(moved(float(i)));
    }
    int steps = 0;
    for (; model.canUndo(); ++steps) {
        model.undo();
    }
    EXPECT_EQ(steps, 100);
    EXPECT_EQ(model.sheet().boxes[0].Left, 50);
}

TEST_F(SheetModelTest, SelectingTellsOnceAndIsNoStep)
{
    const QSignalSpy told(&model, &SheetModel::selectedChanged);
    model.select(3);
    model.select(3);
    EXPECT_EQ(told.count(), 1);
    EXPECT_EQ(model.selectedBox(), &model.sheet().boxes[3]);
    EXPECT_FALSE(model.canUndo());
}
