// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "tests/layouts/window/sheet_window_fixture.h"

#include "layouts/window/customformatter.h"
#include "layouts/window/formgridcellsize.h"
#include "layouts/window/frmtextboxsize.h"
#include "layouts/window/showhidewindow.h"

#include <QCheckBox>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

using namespace zeph;

namespace {

class SheetBoxesTest : public test::SheetWindowTest
{
protected:
    template <class T> T *control(const QString &name) { return window->findChild<T *>(name); }
    void openSize()
    {
        press(u"mnuTextBoxSize");
        form = window->findChild<FrmTextBoxSize *>();
        ASSERT_TRUE(form);
        EXPECT_TRUE(form->isVisible());
    }
    QString field(const QString &name) { return form->findChild<QLineEdit *>(name)->text(); }
    QString previous(const QString &name) { return form->findChild<QLabel *>(name)->text(); }

    FrmTextBoxSize *form = nullptr;
};

} // namespace

TEST_F(SheetBoxesTest, TheVisibleMenuShowsAndHides)
{
    open<GraphicsPrint>();
    EXPECT_TRUE(action(u"mnuVisibleArray_3")->isChecked());
    press(u"mnuVisibleArray_3");
    EXPECT_FALSE(box(3).Visible);
    EXPECT_FALSE(action(u"mnuVisibleArray_3")->isChecked());
    press(u"mnuEditUndo");
    EXPECT_TRUE(action(u"mnuVisibleArray_3")->isChecked());
    press(u"mnuVisibleArray_17");
    EXPECT_FALSE(model().sheet().pictures[0].Visible);
}

TEST_F(SheetBoxesTest, ThePictureOfTheThrottleSheetIsEntry24)
{
    open<TQSLayout>();
    press(u"mnuVisibleArray_17");
    EXPECT_FALSE(box(17).Visible);
    press(u"mnuVisibleArray_24");
    EXPECT_FALSE(model().sheet().pictures[0].Visible);
    press(u"mnuLockedArray_24");
    EXPECT_FALSE(model().sheet().pictures[0].Locked);
}

TEST_F(SheetBoxesTest, TheSecondMenusOfTheCustomSheetCountFrom20)
{
    open<CustomLayout>();
    press(u"mnuVisibleArray2_0");
    EXPECT_TRUE(box(20).Visible);
    press(u"mnuLockedArray2_19");
    EXPECT_TRUE(box(39).Locked);
    press(u"mnuImageVisibleArray_2");
    EXPECT_TRUE(model().sheet().pictures[2].Visible);
    press(u"mnuLockedImageArray_1");
    EXPECT_FALSE(model().sheet().pictures[1].Locked);
}

TEST_F(SheetBoxesTest, AHiddenBoxHasNoControl)
{
    openShown({ 1100, 900 });
    model().select(4);
    EXPECT_TRUE(editor().isVisible());
    press(u"mnuTextboxHide");
    EXPECT_FALSE(box(4).Visible);
    EXPECT_FALSE(editor().isVisible());
}

TEST_F(SheetBoxesTest, EmptyBoxesAreHidden)
{
    open<GraphicsPrint>();
    write(4, QString());
    write(5, u" "_s);
    press(u"mnuHideEmptyText");
    EXPECT_FALSE(box(4).Visible);
    EXPECT_FALSE(action(u"mnuVisibleArray_4")->isChecked());
    EXPECT_TRUE(box(5).Visible);
    press(u"mnuShowAllText");
    EXPECT_TRUE(box(4).Visible);
}

TEST_F(SheetBoxesTest, SnapAndResizeWorkOnOneAndOnAll)
{
    open<GraphicsPrint>();
    layouts().JoystickGridCellSize = 10;
    hideAllBut({ 4, 5 });
    place(4, { 23, 19, 101, 52 });
    place(5, { 204, 208, 100, 50 });
    place(6, { 303, 303, 77, 77 });
    press(u"mnuVisibleArray_6");
    model().select(4);
    press(u"mnuSnapToGrid_0");
    EXPECT_EQ(placeOf(4), QRectF(20, 10, 101, 52));
    EXPECT_EQ(placeOf(5), QRectF(204, 208, 100, 50));
    press(u"mnuSnapToGrid_1");
    EXPECT_EQ(placeOf(5), QRectF(200, 200, 100, 50));
    press(u"mnuResizeToGrid_1");
    EXPECT_EQ(placeOf(4), QRectF(20, 10, 110, 60));
    EXPECT_EQ(placeOf(5), QRectF(200, 200, 110, 60));
    EXPECT_EQ(placeOf(6), QRectF(303, 303, 77, 77));
    press(u"mnuResizeToGrid_0");
    EXPECT_EQ(placeOf(4), QRectF(20, 10, 120, 70));
}

TEST_F(SheetBoxesTest, TheOptionForMovedBoxesIsKept)
{
    open<TQSLayout>();
    press(u"mnuWhenMovingArray_1");
    EXPECT_TRUE(action(u"mnuWhenMovingArray_1")->isChecked());
    EXPECT_FALSE(action(u"mnuWhenMovingArray_2")->isChecked());
    EXPECT_TRUE(layoutsIni().contains("ThrottleSnap=1"));
    EXPECT_FALSE(layoutsIni().contains("JoystickSnap=1"));
}

TEST_F(SheetBoxesTest, TheGridIsDrawnUnderTheBoxes)
{
    openShown({ 1200, 950 });
    hideAllBut({});
    press(u"mnuVisibleArray_17");
    const auto colourAt = [this](int x, int y) {
        return window->view().canvas().grab(QRect(x, y, 1, 1)).toImage().pixelColor(0, 0);
    };
    EXPECT_EQ(colourAt(50, 52), QColor(Qt::white));
    press(u"mnuShowGrid");
    EXPECT_NE(colourAt(50, 52), QColor(Qt::white));
    EXPECT_EQ(colourAt(52, 53), QColor(Qt::white));
    press(u"mnuShowGrid");
    EXPECT_EQ(colourAt(50, 52), QColor(Qt::white));
}

TEST_F(SheetBoxesTest, ExactSizesAreShownAndApplied)
{
    open<GraphicsPrint>();
    place(4, { 23, 19, 101, 52 });
    place(5, { 204, 208, 100, 50 });
    model().select(4);
    openSize();
    EXPECT_EQ(field(u"TextLeft"_s), u"23");
    EXPECT_EQ(field(u"TextHeight"_s), u"52");
    EXPECT_EQ(previous(u"PreviousLeft"_s), u"");
    model().select(5);
    EXPECT_EQ(field(u"TextLeft"_s), u"204");
    EXPECT_EQ(previous(u"PreviousLeft"_s), u"23");
    EXPECT_EQ(previous(u"PreviousWidth"_s), u"101");
    form->findChild<QLineEdit *>(u"TextWidth"_s)->setText(u"101.9"_s);
    form->findChild<QLineEdit *>(u"TextHeight"_s)->setText(u"5"_s);
    form->findChild<QLineEdit *>(u"TextTop"_s)->setText(u"high"_s);
    form->findChild<QPushButton *>(u"cmdApply"_s)->click();
    EXPECT_EQ(placeOf(5), QRectF(204, 208, 101, 20));
    EXPECT_EQ(field(u"TextTop"_s), u"208");
    QTest::keyClick(form, Qt::Key_Escape);
    EXPECT_FALSE(form->isVisible());
}

TEST_F(SheetBoxesTest, WithoutASelectedBoxThereIsNoSize)
{
    open<GraphicsPrint>();
    openSize();
    EXPECT_FALSE(form->findChild<QPushButton *>(u"cmdApply"_s)->isEnabled());
}

TEST_F(SheetBoxesTest, TheCellSizeIsAskedAndKept)
{
    for (const auto &[typed, kept] :
         { std::pair(u"1"_s, 2), std::pair(u"12.7"_s, 12), std::pair(u"1000"_s, 100) }) {
        FormGridCellSize dialog(5);
        EXPECT_EQ(dialog.findChild<QLineEdit *>(u"Text1"_s)->text(), u"5");
        dialog.findChild<QLineEdit *>(u"Text1"_s)->setText(typed);
        dialog.findChild<QPushButton *>(u"cmdOK"_s)->click();
        EXPECT_EQ(dialog.result(), int(QDialog::Accepted));
        EXPECT_EQ(dialog.cellSize(), kept);
    }
}

TEST_F(SheetBoxesTest, TheShowHideWindowHasATickABoxAndRunsTheMenus)
{
    open<GraphicsPrint>();
    press(u"mnuShowHide");
    auto *hide = control<ShowHideWindow>(u"HideForF22"_s);
    ASSERT_TRUE(hide);
    EXPECT_EQ(hide->windowTitle(), u"Show/Hide textboxes");
    EXPECT_EQ(hide->findChildren<QCheckBox *>().size(), 17);
    auto *tick = hide->findChild<QCheckBox *>(u"Check1_4"_s);
    EXPECT_TRUE(tick->isChecked());
    tick->click();
    EXPECT_FALSE(box(4).Visible);
    press(u"mnuVisibleArray_4");
    EXPECT_TRUE(tick->isChecked());
    write(4, QString());
    hide->findChild<QPushButton *>(u"cmdHideEmpty"_s)->click();
    EXPECT_FALSE(tick->isChecked());
    hide->findChild<QPushButton *>(u"cmdShowGrid"_s)->click();
    EXPECT_TRUE(action(u"mnuShowGrid")->isChecked());
    place(5, { 204, 208, 101, 52 });
    hide->findChild<QPushButton *>(u"cmdSnap"_s)->click();
    EXPECT_EQ(placeOf(5), QRectF(200, 205, 101, 52));
    hide->findChild<QPushButton *>(u"cmdResize"_s)->click();
    EXPECT_EQ(placeOf(5), QRectF(200, 205, 105, 55));
    hide->findChild<QPushButton *>(u"cmdSize"_s)->click();
    EXPECT_TRUE(window->findChild<FrmTextBoxSize *>());
}

TEST_F(SheetBoxesTest, EachSheetHasAShowHideWindowOfItsOwnName)
{
    open<TQSLayout>();
    press(u"mnuShowHide");
    EXPECT_TRUE(control<ShowHideWindow>(u"HideForTQS"_s));
    open<CustomLayout>();
    press(u"mnuShowHide");
    ASSERT_TRUE(control<ShowHideWindow>(u"HideForCleo"_s));
    EXPECT_EQ(window->findChildren<QCheckBox *>().size(), 40);
}

TEST_F(SheetBoxesTest, TheKeyboardGoesFromBoxToBox)
{
    openShown({ 1100, 900 });
    hideAllBut({ 2, 5, 9 });
    press(u"mnuNextTextbox");
    EXPECT_EQ(model().selected(), 2);
    press(u"mnuNextTextbox");
    EXPECT_EQ(model().selected(), 5);
    press(u"mnuPreviousTextbox");
    press(u"mnuPreviousTextbox");
    EXPECT_EQ(model().selected(), 9);
    EXPECT_TRUE(editor().hasFocus());
}

TEST_F(SheetBoxesTest, ThePaletteColoursTheSelection)
{
    open<GraphicsPrint>();
    model().select(14);
    editor().select(0, 6);
    press(u"mnuFormatter");
    auto *palette = window->findChild<CustomFormatter *>();
    ASSERT_TRUE(palette);
    palette->findChild<QToolButton *>(u"LabelColour_0"_s)->click();
    EXPECT_EQ(box(14).text.formatAt(0).colour, 16711680U);
    EXPECT_NE(box(14).text.formatAt(7).colour, 16711680U);
    EXPECT_TRUE(layoutsIni().contains("RecentColour0=16711680"));
    // Another colour pushes the first one to the second place.
    palette->findChild<QToolButton *>(u"LabelColour_2"_s)->click();
    palette->findChild<QToolButton *>(u"LabelColourLast_1"_s)->click();
    EXPECT_EQ(box(14).text.formatAt(0).colour, 16711680U);
}

TEST_F(SheetBoxesTest, ARightClickOnThePaletteChangesItsColour)
{
    open<GraphicsPrint>();
    press(u"mnuFormatter");
    auto *button =
        window->findChild<CustomFormatter *>()->findChild<QToolButton *>(u"LabelColour_3"_s);
    EXPECT_EQ(button->toolTip(), u"Right click to customise colours");
    dialogs.answerColour(0x123456);
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(3, 3),
                            button->mapToGlobal(QPoint(3, 3)));
    QApplication::sendEvent(button, &event);
    EXPECT_TRUE(layoutsIni().contains("FormatterColour3=1193046"));
}

TEST_F(SheetBoxesTest, ThePaletteGivesFontsAndSizes)
{
    open<GraphicsPrint>();
    model().select(14);
    editor().select(0, 6);
    press(u"mnuFormatter");
    auto *sizes =
        window->findChild<CustomFormatter *>()->findChild<QComboBox *>(u"ComboFontSize"_s);
    EXPECT_EQ(sizes->currentText(), u"8");
    sizes->setCurrentText(u"14"_s);
    QTest::keyClick(sizes->lineEdit(), Qt::Key_Return);
    EXPECT_EQ(box(14).text.formatAt(0).pointSize, 14);
    EXPECT_TRUE(window->findChild<CustomFormatter *>()->isVisible());
}

TEST_F(SheetBoxesTest, ColoursWithoutASelectedBoxChangeNothing)
{
    open<GraphicsPrint>();
    const Sheet before = model().sheet();
    press(u"mnuFormatter");
    window->findChild<CustomFormatter *>()->findChild<QToolButton *>(u"LabelColour_0"_s)->click();
    EXPECT_EQ(model().sheet(), before);
}
