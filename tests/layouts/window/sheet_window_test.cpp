// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "tests/layouts/window/sheet_window_fixture.h"

#include "layouts/files/layout_store.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>

using namespace zeph;

namespace {

class SheetTest : public test::SheetWindowTest
{
protected:
    QWidget *staleBar() { return window->findChild<QWidget *>(u"StaleBar"_s); }
    /// Lets the window look at the joystick file again.
    void wait() { QTest::qWait(350); }
    void select(int i, int start = 0, int length = 0)
    {
        model().select(i);
        editor().select(start, length);
    }
    /// Operates the dialog that comes up next.
    void inDialog(const std::function<void(QDialog &)> &operate)
    {
        QTimer::singleShot(0, window.get(), [operate] {
            auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            operate(*dialog);
        });
    }
    QString layoutFile(SheetKind kind, LayoutForm form, const QString &name)
    {
        return layoutPath(kind, form, paths.layoutsFolder(), name);
    }
};

} // namespace

TEST_F(SheetTest, TheJoystickSheetOpensFilledColouredAndArranged)
{
    open<GraphicsPrint>();
    EXPECT_EQ(window->objectName(), u"GraphicsPrint");
    EXPECT_EQ(window->windowTitle(), u"Joystick Layout Editor");
    ASSERT_EQ(model().sheet().boxes.size(), 17U);
    EXPECT_EQ(text(0), u"Hat 1\nU:    Look_Up");
    EXPECT_EQ(text(1), u"Hat 2\n KEYPAD");
    EXPECT_EQ(text(5), u"BTN S2\n        Gear_Up");
    EXPECT_EQ(text(12), u"File: "_s + documents.joystick().path());
    EXPECT_EQ(text(14), u"Custom 1:");
    EXPECT_EQ(box(5).text.formatAt(0).colour, 0x0000FFU);
    EXPECT_EQ(QSize(model().sheet().width, model().sheet().height), QSize(1043, 714));
    for (size_t i = 0; i < 17; ++i) {
        for (size_t k = i + 1; k < 17; ++k) {
            EXPECT_FALSE(placeOf(int(i)).intersects(placeOf(int(k)))) << i << " and " << k;
        }
    }
    EXPECT_FALSE(window->view().canvas().look().pictures[0].isNull());
    EXPECT_EQ(status.text(), u" All definitions extracted");
    EXPECT_FALSE(action(u"mnuEditUndo")->isEnabled());
    EXPECT_TRUE(window->close());
}

TEST_F(SheetTest, TheThrottleSheetHasItsOwnRows)
{
    open<TQSLayout>();
    EXPECT_EQ(window->objectName(), u"TQSLayout");
    EXPECT_EQ(window->windowTitle(), u"Throttle Layout Editor");
    ASSERT_EQ(model().sheet().boxes.size(), 24U);
    EXPECT_TRUE(window->actions().has(u"mnuVisibleArray_24"));
    EXPECT_TRUE(text(0).endsWith(u" Left mouse button"));
    EXPECT_TRUE(text(1).contains(u"Chaff"));
    EXPECT_TRUE(action(u"mnuWhenMovingArray_2")->isChecked());
}

TEST_F(SheetTest, TheCustomSheetIsNotFilled)
{
    open<CustomLayout>();
    EXPECT_EQ(window->objectName(), u"CustomLayout");
    EXPECT_EQ(window->windowTitle(), u"Custom layout editor");
    ASSERT_EQ(model().sheet().boxes.size(), 40U);
    for (int i = 0; i < 40; ++i) {
        EXPECT_TRUE(text(i).isEmpty());
    }
    EXPECT_TRUE(window->actions().has(u"mnuVisibleArray_19"));
    EXPECT_FALSE(window->actions().has(u"mnuVisibleArray_20"));
    EXPECT_TRUE(window->actions().has(u"mnuVisibleArray2_19"));
    EXPECT_FALSE(window->actions().has(u"mnuAnalyseArray_0"));
    EXPECT_TRUE(action(u"mnuWhenMovingArray_0")->isChecked());
    EXPECT_EQ(model().sheet().pictures[0].path, u"F-16 Block 50.bmp");
    EXPECT_EQ(model().sheet().pictures[2].path, u"Rudders.bmp");
    EXPECT_FALSE(window->view().canvas().look().pictures[1].isNull());
}

TEST_F(SheetTest, AnEmptyJoystickFileGivesTheCaptions)
{
    setText({});
    open<GraphicsPrint>();
    EXPECT_EQ(text(9), u"JoyX");
    EXPECT_EQ(text(12), u"File:");
    EXPECT_EQ(text(0), u"");
    press(u"mnuAnalyseArray_0");
    EXPECT_EQ(text(9), u"JoyX");
}

TEST_F(SheetTest, WithoutColouringTheTextsArePlain)
{
    folder.write(u"Layouts.ini"_s, "[Joystick Layout]\r\nLayoutApplyColour=0\r\n");
    open<GraphicsPrint>();
    EXPECT_EQ(box(5).text.formatAt(0).colour.value_or(0), 0U);
}

TEST_F(SheetTest, TheSecondMethodGivesTheSwitchItsStyles)
{
    folder.write(u"Layouts.ini"_s,
                 "[Joystick Layout]\r\nHighlightingMethod=1\r\n"
                 "StyleFontColour7=164\r\nStyleFontBold7=1\r\n");
    open<GraphicsPrint>();
    const qsizetype fire = text(4).indexOf(u"Fire_Gun");
    ASSERT_GT(fire, 0);
    EXPECT_EQ(box(4).text.formatAt(fire).colour, 164U);
    EXPECT_TRUE(box(4).text.formatAt(fire).bold);
}

TEST_F(SheetTest, TheAnalysisLeavesItsFilesInTemp)
{
    open<GraphicsPrint>();
    EXPECT_TRUE(readWholeFile(folder.file(u"Temp/F2align.txt"_s))
                    .value_or(QByteArray())
                    .startsWith("USE MTYPE A1\r\nUSE HAT2"));
    EXPECT_TRUE(QFile::exists(folder.file(u"Temp/F2align2.txt"_s)));
    EXPECT_TRUE(readWholeFile(folder.file(u"Temp/tmpJoy2.txt"_s))
                    .value_or(QByteArray())
                    .startsWith("BTN S1 "));
}

TEST_F(SheetTest, AnalysingOneBoxLeavesAllOthersAsTheyAre)
{
    open<GraphicsPrint>();
    write(4, u"mine"_s);
    write(5, u"mine too"_s);
    const Sheet before = model().sheet();
    select(5);
    press(u"mnuAnalyseArray_1");
    EXPECT_EQ(text(5), u"BTN S2\n        Gear_Up");
    EXPECT_EQ(box(5).text.formatAt(0).colour, 0x0000FFU);
    for (int i = 0; i < 17; ++i) {
        if (i != 5) {
            EXPECT_EQ(box(i), before.boxes[size_t(i)]) << i;
        }
    }
}

TEST_F(SheetTest, TheBoxesOfThePilotAreNotAnalysedAlone)
{
    open<GraphicsPrint>();
    EXPECT_FALSE(action(u"mnuAnalyseArray_1")->isEnabled());
    select(13);
    EXPECT_TRUE(action(u"mnuAnalyseArray_1")->isEnabled());
    EXPECT_TRUE(action(u"mnuReanalyse")->isEnabled());
    select(14);
    EXPECT_FALSE(action(u"mnuAnalyseArray_1")->isEnabled());
    EXPECT_FALSE(action(u"mnuReanalyse")->isEnabled());
}

TEST_F(SheetTest, AnalysingOneBoxOfAnEmptyFileIsTold)
{
    open<GraphicsPrint>();
    setText({});
    select(5);
    const QString before = text(5);
    dialogs.answer(u"I can't analyse an empty file buddy!"_s, BoxButton::Ok);
    press(u"mnuAnalyseArray_1");
    EXPECT_EQ(text(5), before);
    EXPECT_TRUE(dialogs.boxes().first().text.startsWith(u"The joystick file is empty"));
}

TEST_F(SheetTest, HighlightingOfAllLeavesHiddenBoxesAlone)
{
    open<GraphicsPrint>();
    write(4, u"BTN S1 a"_s);
    write(5, u"BTN S2 a"_s);
    press(u"mnuVisibleArray_5");
    press(u"mnuApplyColours");
    EXPECT_EQ(box(4).text.formatAt(0).colour, 0x0000FFU);
    EXPECT_FALSE(box(5).text.formatAt(0).colour.has_value());
}

TEST_F(SheetTest, ThePopUpColoursItsBoxAlone)
{
    open<GraphicsPrint>();
    write(4, u"BTN S1 a"_s);
    write(5, u"BTN S2 a"_s);
    select(5);
    press(u"mnuTextboxColours");
    EXPECT_EQ(box(5).text.formatAt(0).colour, 0x0000FFU);
    EXPECT_FALSE(box(4).text.formatAt(0).colour.has_value());
}

TEST_F(SheetTest, TypingGoesIntoTheSelectedBoxAndIsUndone)
{
    openShown({ 1100, 900 });
    select(14);
    editor().setFocus();
    editor().selectAll();
    QTest::keyClicks(&editor(), u"Flaps"_s);
    EXPECT_EQ(text(14), u"Flaps");
    QTest::keyClick(&editor(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(text(14), u"Custom 1:");
    EXPECT_EQ(editor().richText().text, u"Custom 1:");
    QTest::keyClick(&editor(), Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(text(14), u"Flaps");
}

TEST_F(SheetTest, SelectingABoxChangesNothing)
{
    openShown({ 1100, 900 });
    const Sheet before = model().sheet();
    for (int i = 0; i < 17; ++i) {
        select(i);
    }
    EXPECT_EQ(model().sheet(), before);
    EXPECT_FALSE(action(u"mnuEditUndo")->isEnabled());
}

TEST_F(SheetTest, AStyleGivesItsLookInFull)
{
    folder.write(u"Layouts.ini"_s,
                 "[Joystick Layout]\r\nStyleName2=Mine\r\nStyleFontName2=Courier New\r\n"
                 "StyleFontSize2=11\r\nStyleFontBold2=1\r\nStyleFontUnderline2=1\r\n"
                 "StyleFontItalic2=1\r\nStyleFontColour2=255\r\n");
    open<GraphicsPrint>();
    EXPECT_EQ(action(u"mnuStyleArray_1")->text(), u"Mine");
    EXPECT_EQ(action(u"mnuStyleArray_6")->text(), u"/&U style");
    select(14, 0, 6);
    press(u"mnuStyleArray_1");
    const CharFormat format = box(14).text.formatAt(0);
    EXPECT_EQ(format.family, u"Courier New");
    EXPECT_EQ(format.pointSize, 11);
    EXPECT_TRUE(format.bold && format.underline && format.italic);
    EXPECT_EQ(format.colour, 255U);
    EXPECT_FALSE(box(14).text.formatAt(7).bold);
    EXPECT_EQ(editor().selLength(), 6);
    press(u"mnuEditUndo");
    EXPECT_FALSE(box(14).text.formatAt(0).bold);
}

TEST_F(SheetTest, ANewerJoystickTextMakesTheSheetOld)
{
    openShown({ 1100, 900 });
    EXPECT_FALSE(staleBar()->isVisible());
    write(14, u"my own words"_s);
    setText(u"BTN S2 Gear_Down\n"_s);
    wait();
    EXPECT_TRUE(staleBar()->isVisible());
    window->findChild<QPushButton *>(u"cmdAnalyseAgain"_s)->click();
    EXPECT_EQ(text(5), u"BTN S2\n        Gear_Down");
    EXPECT_EQ(text(14), u"my own words");
    EXPECT_FALSE(staleBar()->isVisible());
}

TEST_F(SheetTest, ASheetOfAnEmptyFileIsOldWhenTheFileIsFilled)
{
    setText({});
    openShown({ 1100, 900 });
    wait();
    EXPECT_FALSE(staleBar()->isVisible());
    setText(u"BTN S2 Gear_Down\n"_s);
    wait();
    EXPECT_TRUE(staleBar()->isVisible());
    window->findChild<QPushButton *>(u"cmdAnalyseAgain"_s)->click();
    EXPECT_EQ(text(5), u"BTN S2\n        Gear_Down");
    EXPECT_FALSE(staleBar()->isVisible());
}

TEST_F(SheetTest, AnUndoneAnalysisLeavesTheSheetOldAgain)
{
    openShown({ 1100, 900 });
    setText(u"BTN S2 Gear_Down\n"_s);
    wait();
    window->findChild<QPushButton *>(u"cmdAnalyseAgain"_s)->click();
    EXPECT_FALSE(staleBar()->isVisible());
    press(u"mnuEditUndo");
    EXPECT_TRUE(staleBar()->isVisible());
    press(u"mnuEditRedo");
    EXPECT_FALSE(staleBar()->isVisible());
    press(u"mnuEditUndo");
    write(14, u"my own words"_s);
    EXPECT_TRUE(staleBar()->isVisible());
}

TEST_F(SheetTest, ATextThatComesBackMakesItNewAgain)
{
    openShown({ 1100, 900 });
    const QString before = documents.joystick().text();
    setText(u"BTN S2 Gear_Down\n"_s);
    wait();
    EXPECT_TRUE(staleBar()->isVisible());
    setText(before);
    wait();
    EXPECT_FALSE(staleBar()->isVisible());
}

TEST_F(SheetTest, NoAnalysisRunsOverTheTextsOfALayout)
{
    open<GraphicsPrint>();
    Sheet saved = model().sheet();
    saved.boxes[5].text = RichText::plain(u"from the layout"_s);
    saved.boxes[5].text.change(0, 4, [](CharFormat &format) { format.bold = true; });
    const QString path = layoutFile(SheetKind::Joystick, LayoutForm::WithText, u"Mine"_s);
    ASSERT_TRUE(saveLayout(saved, LayoutForm::WithText, path));
    folder.write(u"Files/Jet.tmj"_s, "BTN S2 Gear_Up\r\n");
    QFile file(folder.file(u"Files/Jet.tmj"_s));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    const auto older = QDateTime::currentDateTime().addSecs(-3600);
    ASSERT_TRUE(file.setFileTime(older, QFileDevice::FileModificationTime));
    file.close();
    dialogs.answerFile(path);
    press(u"mnuOpenTextWithPositions");
    EXPECT_EQ(text(5), u"from the layout");
    EXPECT_TRUE(box(5).text.formatAt(0).bold);
    EXPECT_FALSE(box(5).text.formatAt(5).bold);
    EXPECT_EQ(window->windowTitle(), u"Joystick Layout Editor - Joystick layout.jft");
    wait();
    EXPECT_FALSE(staleBar()->isVisibleTo(window.get()));
}

TEST_F(SheetTest, ALayoutThatIsOlderThanTheJoystickFileSaysSo)
{
    open<GraphicsPrint>();
    const QString path = layoutFile(SheetKind::Joystick, LayoutForm::WithText, u"Mine"_s);
    ASSERT_TRUE(saveLayout(model().sheet(), LayoutForm::WithText, path));
    QFile file(folder.write(u"Files/Jet.tmj"_s, "BTN S2 Gear_Up\r\n"));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.setFileTime(QDateTime::currentDateTime().addSecs(3600),
                                 QFileDevice::FileModificationTime));
    file.close();
    dialogs.answerFile(path);
    press(u"mnuOpenTextWithPositions");
    EXPECT_TRUE(staleBar()->isVisibleTo(window.get()));
}

TEST_F(SheetTest, PositionsLeaveTheTextsAndCanBeTakenBack)
{
    open<GraphicsPrint>();
    Sheet other = model().sheet();
    other.width = 900;
    other.height = 1000;
    other.boxes[5].Left = 77;
    other.boxes[6].Visible = false;
    other.boxes[7].Locked = true;
    const QString path = layoutFile(SheetKind::Joystick, LayoutForm::Positions, u"Mine"_s);
    ASSERT_TRUE(saveLayout(other, LayoutForm::Positions, path));
    const QString before = text(5);
    dialogs.answerFile(path);
    press(u"mnuOpenPositions");
    EXPECT_EQ(text(5), before);
    EXPECT_EQ(box(5).Left, 77);
    EXPECT_FALSE(action(u"mnuVisibleArray_6")->isChecked());
    EXPECT_TRUE(action(u"mnuLockedArray_7")->isChecked());
    EXPECT_TRUE(action(u"mnuPrinterOrientArray_0")->isChecked());
    EXPECT_EQ(window->statusBar()->currentMessage(), u" OK .. ready!");
    EXPECT_TRUE(action(u"mnuPrevLO")->isEnabled());
    press(u"mnuEditUndo");
    EXPECT_EQ(model().sheet().width, 1043);
    EXPECT_TRUE(action(u"mnuPrinterOrientArray_1")->isChecked());
}

TEST_F(SheetTest, ADamagedLayoutIsToldAndLeavesTheSheet)
{
    open<GraphicsPrint>();
    const Sheet before = model().sheet();
    dialogs.answerFile(folder.write(u"Layouts/Bad.jfl"_s, "1000 700\r\nwide,1,True,True\r\n"));
    dialogs.answer(u"I couldn't open your layout buddy"_s, BoxButton::Ok);
    press(u"mnuOpenPositions");
    EXPECT_EQ(model().sheet(), before);
    EXPECT_TRUE(dialogs.boxes().first().text.contains(u"Bad.jfl"));
    EXPECT_TRUE(dialogs.boxes().first().text.contains(u"line 2"));
}

TEST_F(SheetTest, TheAutomaticLayoutOpensWithTheWindow)
{
    open<GraphicsPrint>();
    Sheet saved = model().sheet();
    saved.boxes[5].Left = 123;
    const QString path = layoutFile(SheetKind::Joystick, LayoutForm::Positions, u"Mine"_s);
    ASSERT_TRUE(saveLayout(saved, LayoutForm::Positions, path));
    dialogs.answerFile(path);
    press(u"mnuOpenPositions");
    press(u"mnuAutoLayout");
    window.reset();
    open<GraphicsPrint>();
    EXPECT_EQ(box(5).Left, 123);
    EXPECT_EQ(text(5), u"BTN S2\n        Gear_Up");
    EXPECT_TRUE(action(u"mnuAutoLayout")->isChecked());
}

TEST_F(SheetTest, PositionsOpenedOverANoteLeaveItToBeAskedAbout)
{
    open<GraphicsPrint>();
    const QString path = layoutFile(SheetKind::Joystick, LayoutForm::Positions, u"Mine"_s);
    ASSERT_TRUE(saveLayout(model().sheet(), LayoutForm::Positions, path));
    write(14, u"mine"_s);
    dialogs.answerFile(path);
    press(u"mnuOpenPositions");
    EXPECT_EQ(text(14), u"mine");
    dialogs.answer(u"Save layout?"_s, BoxButton::Cancel);
    EXPECT_FALSE(window->mayClose());
}

TEST_F(SheetTest, APictureOfTheProgramsFolderIsKeptByName)
{
    open<CustomLayout>();
    const QString picture = folder.path() + u"/Mine.png"_s;
    ASSERT_TRUE(QImage(20, 10, QImage::Format_RGB32).save(picture));
    dialogs.answerFile(picture);
    press(u"mnuOwnPicture");
    EXPECT_EQ(model().sheet().pictures[3].path, u"Mine.png");
}

TEST_F(SheetTest, TheUsualLookIsChosenFromTheMenuAndKept)
{
    open<GraphicsPrint>();
    EXPECT_TRUE(action(u"mnuColourOnOpening")->isChecked());
    EXPECT_FALSE(action(u"mnuStylesOnOpening")->isChecked());
    press(u"mnuColourOnOpening");
    press(u"mnuStylesOnOpening");
    CharFormat font;
    font.family = u"Courier New"_s;
    font.pointSize = 10;
    font.bold = true;
    dialogs.answerFont(font);
    press(u"mnuUsualFont");
    const ProfileFile kept(folder.path() + u"/Layouts.ini"_s);
    EXPECT_EQ(kept.integer(u"Joystick Layout", u"LayoutApplyColour", 1), 0);
    EXPECT_EQ(kept.integer(u"Joystick Layout", u"HighlightingMethod", 0), 1);
    EXPECT_EQ(kept.text(u"Joystick Layout", u"LOTextFont"), u"Courier New");
    EXPECT_EQ(kept.integer(u"Joystick Layout", u"LOTextFontSize", 0), 10);
    EXPECT_EQ(kept.integer(u"Joystick Layout", u"LOTextFontBold", 0), 1);
    window.reset();
    open<GraphicsPrint>();
    EXPECT_EQ(box(5).text.formatAt(0).family, u"Courier New");
    EXPECT_EQ(box(5).text.formatAt(0).pointSize, 10);
}

TEST_F(SheetTest, ClosingAsksOnlyWhenSomethingWouldBeLost)
{
    open<GraphicsPrint>();
    EXPECT_TRUE(window->mayClose());
    write(14, u"mine"_s);
    dialogs.answer(u"Save layout?"_s, BoxButton::Cancel);
    EXPECT_FALSE(window->mayClose());
    EXPECT_EQ(
        dialogs.boxes().last().text,
        u"Before I close down the Joystick Layout Editor, would you like to save the layout?");
    dialogs.answer(u"Save layout?"_s, BoxButton::No);
    EXPECT_TRUE(window->mayClose());
}

TEST_F(SheetTest, OverflowIsCountedAndFitTextMendsIt)
{
    openShown({ 1100, 900 });
    auto *panel = window->findChild<QLabel *>(u"LBL_Overflow"_s);
    EXPECT_FALSE(panel->isVisible());
    place(14, { 10, 10, 120, 56 });
    write(14, u"one\ntwo\nthree\nfour"_s);
    EXPECT_EQ(panel->text(), u"1 textbox does not hold all of its text");
    select(14);
    press(u"mnuFitText_1");
    EXPECT_FALSE(panel->isVisible());
    EXPECT_EQ(text(14), u"one\ntwo\nthree\nfour");
    EXPECT_LT(box(14).text.formatAt(0).pointSize, 8);
    EXPECT_GE(box(14).text.formatAt(0).pointSize, 5);
}

TEST_F(SheetTest, FitTextFitsTheKeysWhileTheyAreShown)
{
    macros = extractMacros(
        { u"Fire_Gun = a b c d e f g h i j k l m n o p q r s t u v w x y z a b c d e f g h i j"_s });
    for (const QStringView entry : { u"mnuFitText_0", u"mnuFitText_1" }) {
        openShown({ 1100, 900 });
        auto *panel = window->findChild<QLabel *>(u"LBL_Overflow"_s);
        hideAllBut({ 14 });
        place(14, { 10, 10, 100, 40 });
        write(14, u"Fire_Gun"_s);
        EXPECT_FALSE(panel->isVisible());
        press(u"mnuShowKeysArray_1");
        EXPECT_TRUE(panel->isVisible());
        select(14);
        press(entry);
        EXPECT_FALSE(panel->isVisible());
        EXPECT_EQ(text(14), u"Fire_Gun");
        EXPECT_LT(box(14).text.formatAt(0).pointSize, 8);
        press(u"mnuShowKeysArray_0");
        window->actions().action(u"mnuEditUndo")->trigger();
        EXPECT_EQ(text(14), u"Fire_Gun");
    }
}

TEST_F(SheetTest, ShownKeysAreAViewOnly)
{
    open<GraphicsPrint>();
    const Sheet before = model().sheet();
    press(u"mnuShowKeysArray_1");
    EXPECT_TRUE(window->view().canvas().shown().boxes[4].text.text.contains(u"SPC"));
    EXPECT_FALSE(window->view().canvas().shown().boxes[4].text.text.contains(u"Fire_Gun"));
    EXPECT_EQ(model().sheet(), before);
    press(u"mnuShowKeysArray_2");
    EXPECT_TRUE(window->view().canvas().shown().boxes[4].text.text.contains(u"Fire_Gun"));
    EXPECT_TRUE(window->view().canvas().shown().boxes[4].text.text.contains(u"SPC"));
    press(u"mnuShowKeysArray_0");
    EXPECT_EQ(window->view().canvas().shown(), before);
}

TEST_F(SheetTest, ArrangePutsTheBoxesBackInOrder)
{
    open<GraphicsPrint>();
    const Sheet fresh = model().sheet();
    for (int i = 0; i < 17; ++i) {
        place(i, { 100, 100, 60, 40 });
    }
    press(u"mnuArrange");
    for (int i = 0; i < 17; ++i) {
        EXPECT_EQ(placeOf(i).topLeft(),
                  QPointF(fresh.boxes[size_t(i)].Left, fresh.boxes[size_t(i)].Top))
            << i;
    }
}

TEST_F(SheetTest, ASizeThatRepositionsMovesTheBoxes)
{
    open<GraphicsPrint>();
    const QRectF before = placeOf(4);
    window->AdjustLayoutSize({ 1300, 900 });
    EXPECT_EQ(model().sheet().width, 1300);
    EXPECT_NE(placeOf(4), before);
    layouts().isRepositionOff = true;
    const QRectF arranged = placeOf(4);
    window->AdjustLayoutSize({ 700, 1000 });
    EXPECT_EQ(placeOf(4), arranged);
    EXPECT_TRUE(action(u"mnuPrinterOrientArray_0")->isChecked());
}

TEST_F(SheetTest, TheSizeDialogGivesTheSizeAndTheArrangement)
{
    open<GraphicsPrint>();
    layouts().isRepositionOff = true;
    const QRectF before = placeOf(4);
    inDialog([](QDialog &dialog) {
        EXPECT_EQ(dialog.findChild<QLineEdit *>(u"TextWidth"_s)->text(), u"1043");
        dialog.findChild<QLineEdit *>(u"TextWidth"_s)->setText(u"300"_s);
        dialog.findChild<QLineEdit *>(u"TextHeight"_s)->setText(u"900.7"_s);
        dialog.findChild<QPushButton *>(u"cmdOK"_s)->click();
    });
    press(u"mnuLayoutSize");
    EXPECT_EQ(QSize(model().sheet().width, model().sheet().height), QSize(400, 900));
    EXPECT_EQ(placeOf(4), before);
    inDialog([](QDialog &dialog) {
        dialog.findChild<QLineEdit *>(u"TextWidth"_s)->setText(u"1200"_s);
        dialog.findChild<QCheckBox *>(u"CheckReposition"_s)->setChecked(true);
        dialog.findChild<QPushButton *>(u"cmdOK"_s)->click();
    });
    press(u"mnuLayoutSize");
    EXPECT_EQ(model().sheet().width, 1200);
    EXPECT_NE(placeOf(4), before);
}

TEST_F(SheetTest, ALayoutThatIsSavedWithTextComesBackWithItsFormats)
{
    open<GraphicsPrint>();
    Sheet sheet = model().sheet();
    sheet.boxes[5].text = RichText::plain(u"bold and plain"_s);
    sheet.boxes[5].text.change(0, 4, [](CharFormat &format) { format.bold = true; });
    model().change(sheet);
    inDialog([](QDialog &dialog) {
        dialog.findChild<QComboBox *>(u"Combo1"_s)->setCurrentText(u"Mine"_s);
        dialog.findChild<QPushButton *>(u"cmdOK"_s)->click();
    });
    press(u"mnuSaveTextWithPositions");
    EXPECT_TRUE(QFile::exists(folder.file(u"Layouts/Mine/Joystick layout.jft"_s)));
    EXPECT_TRUE(QFile::exists(folder.file(u"Layouts/Mine/Cougar Joystick Text16.rtf"_s)));
    EXPECT_TRUE(window->mayClose());
    write(5, u"something else"_s);
    dialogs.answer(u"Save layout?"_s, BoxButton::No);
    window->findChild<QAction *>(u"mnuPrevLOArray_1"_s)->trigger();
    EXPECT_EQ(text(5), u"bold and plain");
    EXPECT_TRUE(box(5).text.formatAt(3).bold);
    EXPECT_FALSE(box(5).text.formatAt(4).bold);
}

TEST_F(SheetTest, TheToolbarIsHiddenWhereTheFileSaysSo)
{
    folder.write(u"Layouts.ini"_s, "[Throttle]\r\nHideAllToolBars=1\r\n");
    open<TQSLayout>();
    auto *bar = window->findChild<QToolBar *>(u"Toolbar1"_s);
    EXPECT_FALSE(bar->isVisibleTo(window.get()));
    press(u"mnuViewToolBar");
    EXPECT_TRUE(bar->isVisibleTo(window.get()));
    EXPECT_TRUE(layoutsIni().contains("HideAllToolBars=0"));
}

TEST_F(SheetTest, AMissingPictureLeavesTheSheetWorking)
{
    QFile::remove(folder.file(u"Throttle.bmp"_s));
    open<TQSLayout>();
    EXPECT_TRUE(window->view().canvas().look().pictures[0].isNull());
    EXPECT_TRUE(text(1).contains(u"Chaff"));
}

TEST_F(SheetTest, CutAndPasteWorkInTheSelectedBox)
{
    openShown({ 1100, 900 });
    select(14, 0, 6);
    press(u"mnuEditCut");
    EXPECT_EQ(text(14), u" 1:");
    select(15, 0, 0);
    press(u"mnuEditPaste");
    EXPECT_EQ(text(15), u"CustomCustom 2:");
}

TEST(SheetGeometry, CentresASheetThatFits)
{
    const SheetGeometry place = RepositionThePictureboxes({ 1000, 800 }, { 600, 400 }, 16);
    EXPECT_EQ(place.port, QRect(0, 0, 1000, 800));
    EXPECT_EQ(place.corner, QPoint(200, 200));
    EXPECT_EQ(place.across, 0);
    EXPECT_EQ(place.down, 0);
}

TEST(SheetGeometry, TwentyPixelsOfMarginFitExactly)
{
    EXPECT_EQ(RepositionThePictureboxes({ 640, 440 }, { 600, 400 }, 16).across, 0);
    const SheetGeometry place = RepositionThePictureboxes({ 639, 500 }, { 600, 400 }, 16);
    EXPECT_EQ(place.across, 1);
    EXPECT_EQ(place.down, 0);
    EXPECT_EQ(place.port, QRect(0, 0, 639, 484));
    EXPECT_EQ(place.corner, QPoint(20, 42));
}

TEST(SheetGeometry, OneBarCanMakeTheOtherOneNeeded)
{
    const SheetGeometry place = RepositionThePictureboxes({ 639, 440 }, { 600, 400 }, 16);
    EXPECT_EQ(place.port, QRect(0, 0, 623, 424));
    EXPECT_EQ(place.across, 17);
    EXPECT_EQ(place.down, 16);
    EXPECT_EQ(place.corner, QPoint(20, 20));
}
