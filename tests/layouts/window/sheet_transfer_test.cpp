// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "tests/layouts/window/sheet_window_fixture.h"

#include "layouts/files/layout_store.h"
#include "layouts/window/sheet_transfer.h"

#include <QMenu>

using namespace zeph;

namespace {

class TransferTest : public test::SheetWindowTest
{
protected:
    void send(const QStringList &texts)
    {
        std::vector<TransferBox> boxes;
        for (qsizetype i = 0; i < texts.size(); ++i) {
            boxes.push_back({ QRectF(10.0 * double(i), 20, 80, 40), RichText::plain(texts[i]) });
        }
        ASSERT_TRUE(saveAllForTransfer(SheetKind::Joystick, paths.layoutsFolder(), boxes));
    }
    void fill(int count)
    {
        Sheet sheet = model().sheet();
        for (int i = 0; i < count; ++i) {
            sheet.boxes[size_t(i)].text = RichText::plain(u"taken"_s);
        }
        model().change(sheet);
    }
};

} // namespace

TEST_F(TransferTest, VisibleBoxesGoFromTheJoystickSheetToTheCustomSheet)
{
    open<GraphicsPrint>();
    hideAllBut({ 0, 5 });
    place(0, { 11, 12, 100, 60 });
    SheetKind from{};
    bool all = false;
    QObject::connect(window.get(), &SheetWindow::transferWanted, window.get(),
                     [&](SheetKind kind, bool isAll) {
                         from = kind;
                         all = isAll;
                     });
    press(u"mnuTransferArray_0");
    EXPECT_EQ(from, SheetKind::Joystick);
    EXPECT_TRUE(all);
    const RichText sent = box(5).text;
    open<CustomLayout>();
    window->transfer().GetF22textboxes();
    EXPECT_EQ(placeOf(0), QRectF(11, 12, 100, 60));
    EXPECT_EQ(text(0), u"Hat 1\nU:    Look_Up");
    EXPECT_EQ(text(1), sent.text);
    EXPECT_EQ(box(1).text.formatAt(0).colour, sent.formatAt(0).colour);
    EXPECT_TRUE(box(1).Visible);
    EXPECT_EQ(text(2), u"");
    press(u"mnuEditUndo");
    EXPECT_EQ(text(0), u"");
}

TEST_F(TransferTest, OneBoxGoesAlone)
{
    open<TQSLayout>();
    EXPECT_FALSE(action(u"mnuTransferArray_1")->isEnabled());
    model().select(1);
    press(u"mnuTransferArray_1");
    const QString sent = text(1);
    open<CustomLayout>();
    window->transfer().GetSingleThrottletextbox();
    EXPECT_EQ(text(0), sent);
    EXPECT_EQ(text(1), u"");
}

TEST_F(TransferTest, NothingToTransferIsTold)
{
    open<CustomLayout>();
    dialogs.answer(u"something's up!"_s, BoxButton::Ok);
    window->transfer().GetF22textboxes();
    EXPECT_EQ(dialogs.boxes().first().text, u"I didn't detect any text to transfer, sorry!");
    send({});
    dialogs.answer(u"something's up!"_s, BoxButton::Ok);
    window->transfer().GetF22textboxes();
}

TEST_F(TransferTest, FortyOneBoxesFillFortyAndTellOnce)
{
    open<CustomLayout>();
    QStringList texts;
    for (int i = 0; i < 41; ++i) {
        texts.append(u"Text %1"_s.arg(i));
    }
    send(texts);
    dialogs.answer(u"All text boxes have text in them"_s, BoxButton::Ok);
    window->transfer().GetF22textboxes();
    EXPECT_EQ(dialogs.boxes().size(), 1);
    for (int i = 0; i < 40; ++i) {
        EXPECT_EQ(text(i), texts[i]);
        EXPECT_TRUE(box(i).Visible);
    }
}

TEST_F(TransferTest, FortyBoxesFitExactly)
{
    open<CustomLayout>();
    send(QStringList(40, u"text"_s));
    window->transfer().GetF22textboxes();
    EXPECT_EQ(text(39), u"text");
}

TEST_F(TransferTest, ABoxHoldingThreeCharactersIsOverwritten)
{
    open<CustomLayout>();
    write(0, u"abcd"_s);
    write(1, u"abc"_s);
    send({ u"from the stick"_s });
    window->transfer().GetF22textboxes();
    EXPECT_EQ(text(0), u"abcd");
    EXPECT_EQ(text(1), u"from the stick");
}

TEST_F(TransferTest, AFullSheetTakesNothing)
{
    open<CustomLayout>();
    fill(40);
    send({ u"one more"_s });
    dialogs.answer(u"All text boxes have text in them"_s, BoxButton::Ok);
    window->transfer().GetF22textboxes();
    EXPECT_EQ(text(0), u"taken");
}

TEST_F(TransferTest, ADamagedTransferIsToldAndLeavesTheSheet)
{
    open<CustomLayout>();
    send({ u"text"_s });
    folder.write(u"Layouts/temp/temp.jft"_s, "2\r\n1,2,3,4\r\n");
    dialogs.answer(u"something's up!"_s, BoxButton::Ok);
    window->transfer().GetF22textboxes();
    EXPECT_EQ(text(0), u"");
}

TEST_F(TransferTest, MacrosAndSlashWordsAreInsertedAtTheCaret)
{
    open<CustomLayout>();
    EXPECT_FALSE(action(u"mnuSlashArray_0")->isEnabled());
    model().select(0);
    window->transfer().InsertMacro(u"Fire_Gun"_s);
    EXPECT_EQ(text(0), u"Fire_Gun");
    press(u"mnuSlashArray_1");
    EXPECT_EQ(text(0), u"Fire_Gun /M ");
    window->transfer().InsertMacro(u"Chaff"_s);
    press(u"mnuSlashArray_10");
    EXPECT_EQ(text(0), u"Fire_Gun /M Chaff DLY(");
    EXPECT_EQ(editor().selStart(), text(0).size());
    editor().select(0, 0);
    window->transfer().InsertMacro(u"First"_s);
    EXPECT_EQ(text(0), u"FirstFire_Gun /M Chaff DLY(");
    EXPECT_EQ(editor().selStart(), 5);
}

TEST_F(TransferTest, TheMacrosAreInTheMenu)
{
    macros = extractMacros(
        { u"Rem ----------"_s, u"Rem Guns"_s, u"Rem ----------"_s, u"Fire_Gun = SPC"_s });
    open<CustomLayout>();
    model().select(0);
    QMenu *menu = window->actions().menu(u"mnuInsertMacro");
    Q_EMIT menu->aboutToShow();
    ASSERT_FALSE(menu->actions().isEmpty());
    QMenu *heading = menu->actions().front()->menu();
    ASSERT_TRUE(heading);
    ASSERT_EQ(heading->actions().size(), 1);
    heading->actions().front()->trigger();
    EXPECT_EQ(text(0), u"Fire_Gun");
}

TEST_F(TransferTest, UnderscoresOfShortTextsStayWhenAllAreConverted)
{
    open<CustomLayout>();
    write(0, u"Gear_Up"_s);
    write(1, u"Fire_1"_s);
    write(20, u"Hidden_Text"_s);
    press(u"mnuConvertUnderscores_0");
    EXPECT_EQ(text(0), u"Gear Up");
    EXPECT_EQ(text(1), u"Fire_1");
    EXPECT_EQ(text(20), u"Hidden_Text");
    model().select(1);
    press(u"mnuConvertUnderscores_1");
    EXPECT_EQ(text(1), u"Fire 1");
}
