// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// Every button that inserts on the first page and on the pages of hats, mouse, logical flags and
// templates.

#include "tests/composer/pages/page_fixture.h"

#include "platform/richtext/rich_text_box.h"

#include <QAction>
#include <QDir>
#include <QListWidget>
#include <QMenu>
#include <QTabWidget>
#include <QTest>
#include <QTextEdit>

using namespace zeph;

namespace {

enum class Into { Joystick, Macro, Selected };
enum class LineEnd { IfTicked, Never };

class PageInserts;

/// What one button does.
struct Inserts {
    const char *name;
    InsertOptions::Page page;
    QString press; ///< the control, and the entry of the menu that it opens
    void (*fill)(PageInserts &window);
    Into into;
    LineEnd lineEnd;
    bool stopsWhenProtected;
    QString text;
    QString marks; ///< as coloursOf() tells them
    QString lead; ///< what goes before the text between two letters
    QString trail; ///< what goes after it before a letter

    friend std::ostream &operator<<(std::ostream &out, const Inserts &row)
    {
        return out << row.name;
    }
};

const QString macroText = u"Fire = a"_s;
const QString protectedText =
    u"The macro file is protected, and therefore this option is disabled. To remove the "
    "protection from the macro file, deselect Protect Macro File in the Macros menu."_s;

class PageInserts : public test::PageTest, public testing::WithParamInterface<Inserts>
{
public:
    using PageTest::choose;
    using PageTest::click;
    using PageTest::control;
    using PageTest::tick;
    using PageTest::write;

    void chooseType(const QString &type)
    {
        auto &list = control<QListWidget>(u"MouseList"_s);
        list.setCurrentItem(list.findItems(type, Qt::MatchExactly).value(0));
    }
    void writeLine(int index, const QString &text)
    {
        control<QTextEdit>(u"RichTexFlag_%1"_s.arg(index)).setPlainText(text);
    }

protected:
    void SetUp() override
    {
        QDir(folder.path()).mkdir(u"Templates"_s);
        folder.write(u"Templates/a.rtf"_s,
                     "{\\rtf1{\\colortbl;\\red255\\green0\\blue0;}one {\\cf1 two}}");
        openPage(GetParam().page);
        GetParam().fill(*this);
    }
    Document &target() { return GetParam().into == Into::Macro ? macro() : joystick(); }
    /// Both files, of which the one that the button writes into has this text and is selected.
    void fillTarget(const QString &text, int caret = -1)
    {
        if (GetParam().into == Into::Macro)
            setMacro(text, caret);
        else
            setJoystick(text, caret);
    }
    /// Turns the nested tabs to a control.
    void bring(QWidget &control)
    {
        for (QWidget *inner = &control; inner; inner = inner->parentWidget()) {
            for (auto *tabs : composer()->findChildren<QTabWidget *>()) {
                if (const int at = tabs->indexOf(inner); at >= 0)
                    tabs->setCurrentIndex(at);
            }
        }
        ASSERT_TRUE(control.isVisible());
    }
    void press()
    {
        const QString name = GetParam().press.section(u' ', 0, 0);
        const QString entry = GetParam().press.section(u' ', 1);
        bring(control<QWidget>(name));
        if (auto *preview = composer()->findChild<RichTextBox *>(name)) {
            QTest::mouseDClick(preview->viewport(), Qt::LeftButton, {}, QPoint(5, 5));
            return;
        }
        click(name);
        if (!entry.isEmpty()) {
            auto &chosen = control<QAction>(entry);
            auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
            ASSERT_TRUE(menu && menu->actions().contains(&chosen));
            menu->close();
            chosen.trigger();
        }
    }
    void expectRefused()
    {
        dialogs.answer(u"File protected"_s, BoxButton::Ok);
        press();
        ASSERT_EQ(dialogs.boxes().size(), 1);
        EXPECT_EQ(dialogs.boxes().last().text, protectedText);
        EXPECT_EQ(joystick().text(), QString());
        EXPECT_EQ(macro().text(), macroText);
        EXPECT_EQ(editor->selected().kind(), DocumentKind::Macro);
    }
};

// clang-format off
constexpr auto firstPage = InsertOptions::Composer;
constexpr auto hatsPage = InsertOptions::Hats;
constexpr auto mousePage = InsertOptions::Mouse;
constexpr auto templatesPage = InsertOptions::Templates;
constexpr auto logicalPage = InsertOptions::Logical;

void asItIs(PageInserts &) { }

const QString twoLines = u"BTN T1 /I /H MOUSE_RB \n            /O /H MOUSE_LB "_s;

const Inserts insertRows[] = {
    // The first page.
    { "Button", firstPage, u"BTN_4"_s, asItIs, Into::Joystick, LineEnd::Never, false,
      u"BTN T1 "_s, u"bbbbbbb"_s, u"\n"_s, u" "_s },
    { "ButtonOfTheStick", firstPage, u"BTN_2"_s, asItIs, Into::Joystick, LineEnd::Never, false,
      u"BTN S3 "_s, u"bbbbbbb"_s, u"\n"_s, u" "_s },
    { "HatDirection", firstPage, u"HAT_1 MnuHatPostion_4"_s, asItIs, Into::Joystick, LineEnd::Never,
      false, u"BTN H2M "_s, u"bbbbbbbb"_s, u"\n"_s, u" "_s },
    { "HatCorner", firstPage, u"HAT_3 MnuHatCornerPostion_2"_s, asItIs, Into::Joystick, LineEnd::Never,
      false, u"BTN H4UR "_s, u"bbbbbbbbb"_s, u"\n"_s, u" "_s },
    { "Trigger", firstPage, u"TRIG mnuTriggerStage_1"_s, asItIs, Into::Joystick, LineEnd::Never, false,
      u"BTN TG2 "_s, u"bbbbbbbb"_s, u"\n"_s, u" "_s },
    { "Slash", firstPage, u"SlashButton_7"_s, asItIs, Into::Selected, LineEnd::Never, true,
      u"/H "_s, u"sss"_s, QString(), u" "_s },
    { "Delay", firstPage, u"DlyRptButtons_0"_s, asItIs, Into::Selected, LineEnd::Never, true,
      u"DLY(60) "_s, u"rrrr..r."_s, u" "_s, QString() },
    { "Repeat", firstPage, u"DlyRptButtons_1"_s, asItIs, Into::Selected, LineEnd::Never, true,
      u"RPT(2) "_s, u"rrrr.r."_s, u" "_s, QString() },
    { "CarriageReturn", firstPage, u"Command7_0"_s, asItIs, Into::Selected, LineEnd::Never, true,
      u"\n"_s, u"."_s, QString(), QString() },
    { "Spaces", firstPage, u"Command7_1"_s, asItIs, Into::Selected, LineEnd::Never, true,
      u"     "_s, u"....."_s, QString(), QString() },
    { "Remark", firstPage, u"CommandREM"_s,
      [](PageInserts &w) { w.write(u"RemTextBox"_s, u"gear up"_s); },
      Into::Selected, LineEnd::Never, true, u"Rem gear up "_s, u"kkkkkkkkkkkk"_s, u" "_s, u" "_s },
    // Hats: no protected macro file stops them.
    { "HatRole", hatsPage, u"CMDHatViewInsert_0"_s,
      [](PageInserts &w) {
          w.choose(u"ComboHatAs"_s, u"HAT2"_s);
          w.choose(u"ComboHatUSE"_s, u"KEYPAD"_s);
          w.tick(u"CheckHatUse_0"_s);
          w.tick(u"CheckHatUse_9"_s);
      },
      Into::Joystick, LineEnd::IfTicked, false, u"USE HAT2 AS KEYPAD - REVERSE_UD, NOHOLD"_s,
      u"mmm......mm.mmmmmm...mmmmmmmmmm..mmmmmm"_s, u"\n"_s, QString() },
    { "ForcedCorners", hatsPage, u"CMDHatViewInsert_1"_s,
      [](PageInserts &w) { w.choose(u"ComboHatForcedCorners"_s, u"HAT3"_s); },
      Into::Joystick, LineEnd::IfTicked, false, u"USE HAT3 FORCED_CORNERS"_s,
      u"mmm......mmmmmmmmmmmmmm"_s, u"\n"_s, QString() },
    // The mouse: a protected macro file stops all of them.
    { "MouseType", mousePage, u"Command9_0"_s,
      [](PageInserts &w) {
          w.chooseType(u"A3"_s);
          w.tick(u"CheckHatUse_4"_s);
      },
      Into::Joystick, LineEnd::IfTicked, true, u"USE MTYPE A3 - REVERSE_LR"_s,
      u"mmm.mmmmm......mmmmmmmmmm"_s, u"\n"_s, QString() },
    { "AxisAsMouse", mousePage, u"Command9_1"_s,
      [](PageInserts &w) {
          w.choose(u"ComboAnalogueAxes_8"_s, u"MICROSTICK"_s);
          w.tick(u"CheckHatUse_10"_s);
      },
      Into::Joystick, LineEnd::IfTicked, true, u"USE MICROSTICK AS MOUSE (11, 2) - NO_BUTTON"_s,
      u"mmm.mmmmmmmmmm.mm.mmmmm.r.....r...mmmmmmmmm"_s, u"\n"_s, QString() },
    { "LeftButton", mousePage, u"CMD_MouseButton_0"_s, asItIs, Into::Selected, LineEnd::Never, true,
      u"MOUSE_LB "_s, u"mmmmmmmm."_s, u" "_s, QString() },
    { "MiddleButton", mousePage, u"CMD_MouseButton_1"_s, asItIs, Into::Selected, LineEnd::Never, true,
      u"MOUSE_MB "_s, u"mmmmmmmm."_s, u" "_s, QString() },
    { "RightButton", mousePage, u"CMD_MouseButton_2"_s, asItIs, Into::Selected, LineEnd::Never, true,
      u"MOUSE_RB "_s, u"mmmmmmmm."_s, u" "_s, QString() },
    { "DisableMouse", mousePage, u"CMD_MouseButton_3"_s, asItIs, Into::Joystick, LineEnd::Never, true,
      u"DISABLE MOUSE "_s, u"mmmmmmm.mmmmm."_s, u" "_s, QString() },
    { "LeftOnly", mousePage, u"CMD_MouseButton_4"_s, asItIs, Into::Joystick, LineEnd::IfTicked, true,
      u"BTN T1 /H MOUSE_LB "_s, u"bbbbbb.ss.mmmmmmmm."_s, u"\n"_s, QString() },
    { "LeftAndRight", mousePage, u"CMD_MouseButton_4"_s,
      [](PageInserts &w) { w.click(u"OptionMousebuttonStatement_1"_s); },
      Into::Joystick, LineEnd::IfTicked, true, twoLines,
      u"bbbbbb.ss.ss.mmmmmmmm..............ss.ss.mmmmmmmm."_s, u"\n"_s, QString() },
    { "MoveX", mousePage, u"CMD_MouseButton_5"_s,
      [](PageInserts &w) { w.write(u"TXT_DigitalAxis_8"_s, u"-5"_s); },
      Into::Selected, LineEnd::Never, true, u"MSX(-5) "_s, u"rrrr..r."_s, u" "_s, QString() },
    { "MoveY", mousePage, u"CMD_MouseButton_6"_s,
      [](PageInserts &w) { w.write(u"TXT_DigitalAxis_8"_s, u"5+"_s); },
      Into::Selected, LineEnd::Never, true, u"MSY(5+) "_s, u"rrrr..r."_s, u" "_s, QString() },
    { "ZeroMouse", mousePage, u"CMD_MouseButton_7"_s, asItIs, Into::Joystick, LineEnd::IfTicked, true,
      u"USE ZERO_MOUSE "_s, u"mmm.mmmmmmmmmm."_s, u"\n"_s, QString() },
    // The workbench's lines have their own ends and one more, whatever the tick says.
    { "AllFlagLines", logicalPage, u"Command13_0"_s,
      [](PageInserts &w) {
          w.writeLine(0, u"DEF X1 S1 AND T6"_s);
          w.writeLine(40, u"BTN X1 /P a"_s);
      },
      Into::Joystick, LineEnd::Never, true, u"DEF X1 S1 AND T6\nBTN X1 /P a\n\n"_s,
      u"bbbbbb....mmm....bbbbbb.ss...."_s, u"\n"_s, QString() },
    { "SelectedFlagLine", logicalPage, u"Command13_1"_s,
      [](PageInserts &w) {
          w.writeLine(0, u"DEF X1 S1 AND T6"_s);
          w.writeLine(40, u"BTN X1 /P a"_s);
          w.click(u"OptionFlag_40"_s);
      },
      Into::Joystick, LineEnd::Never, true, u"BTN X1 /P a\n\n"_s, u"bbbbbb.ss...."_s, u"\n"_s,
      QString() },
    // Templates keep their own looks.
    { "TemplateIntoJoystick", templatesPage, u"Command11_0"_s,
      [](PageInserts &w) { w.control<QListWidget>(u"Templates"_s).setCurrentRow(0); },
      Into::Joystick, LineEnd::Never, false, u"one two"_s, u"....???"_s, QString(), QString() },
    { "TemplateIntoMacro", templatesPage, u"Command11_1"_s,
      [](PageInserts &w) { w.control<QListWidget>(u"Templates"_s).setCurrentRow(0); },
      Into::Macro, LineEnd::Never, true, u"one two"_s, u"....???"_s, QString(), QString() },
    { "TemplateDoubleClick", templatesPage, u"TemplatesPreview"_s,
      [](PageInserts &w) { w.control<QListWidget>(u"Templates"_s).setCurrentRow(0); },
      Into::Selected, LineEnd::Never, true, u"one two"_s, u"....???"_s, QString(), QString() },
};
// clang-format on

} // namespace

INSTANTIATE_TEST_SUITE_P(, PageInserts, testing::ValuesIn(insertRows),
                         [](const auto &test) { return test.param.name; });

TEST_P(PageInserts, GoIntoAnEmptyFileInTheirColoursAsOneStep)
{
    const Inserts &row = GetParam();
    ASSERT_EQ(row.text.size(), row.marks.size());
    fillTarget(QString());
    press();
    EXPECT_EQ(target().text(), row.text);
    EXPECT_EQ(coloursOf(target()), row.marks);
    EXPECT_EQ(target().selStart(), row.text.size());
    EXPECT_EQ(target().selLength(), 0);
    EXPECT_TRUE(target().isModified());
    target().undo();
    EXPECT_EQ(target().text(), QString());
    EXPECT_FALSE(target().history().canUndo());
}

TEST_P(PageInserts, EndTheLineWhereTheTickIsForThem)
{
    const Inserts &row = GetParam();
    makeLineEnds(true);
    fillTarget(QString());
    press();
    const QString end = row.lineEnd == LineEnd::IfTicked ? u"\n"_s : QString();
    EXPECT_EQ(target().text(), row.text + end);
    EXPECT_EQ(target().selStart(), target().length());
    target().undo();
    EXPECT_EQ(target().text(), QString());
    EXPECT_FALSE(target().history().canUndo());
}

TEST_P(PageInserts, PartAWordInALinesMiddleAsOneStep)
{
    const Inserts &row = GetParam();
    const QString before = u"USE X abc\nBTN S4 d"_s;
    fillTarget(before, 7);
    press();
    const QString upToCaret = u"USE X a"_s + row.lead + row.text + row.trail;
    EXPECT_EQ(target().text(), upToCaret + u"bc\nBTN S4 d"_s);
    EXPECT_EQ(target().selStart(), upToCaret.size());
    EXPECT_EQ(target().selLength(), 0);
    target().undo();
    EXPECT_EQ(target().text(), before);
    EXPECT_FALSE(target().history().canUndo());
}

TEST_P(PageInserts, GoToTheirFileWhenTheMacroFileIsSelected)
{
    const Inserts &row = GetParam();
    setJoystick(QString());
    setMacro(macroText, 0);
    press();
    const bool intoMacro = row.into != Into::Joystick;
    EXPECT_EQ(joystick().text(), intoMacro ? QString() : row.text);
    EXPECT_EQ(macro().text(), (intoMacro ? row.text + row.trail : QString()) + macroText);
    EXPECT_EQ(editor->selected().kind(), intoMacro ? DocumentKind::Macro : DocumentKind::Joystick);
}

TEST_P(PageInserts, AreStoppedByASelectedProtectedMacroFileOrNot)
{
    const Inserts &row = GetParam();
    setJoystick(QString());
    setMacro(macroText, 0);
    editor->documents().setProtected(true);
    if (row.stopsWhenProtected) {
        expectRefused();
        return;
    }
    press();
    EXPECT_EQ(joystick().text(), row.text);
    EXPECT_EQ(macro().text(), macroText);
    EXPECT_EQ(editor->selected().kind(), DocumentKind::Joystick);
}

TEST_P(PageInserts, AreNotStoppedByAProtectedMacroFileThatIsNotSelected)
{
    const Inserts &row = GetParam();
    setMacro(macroText);
    setJoystick(QString());
    editor->documents().setProtected(true);
    if (row.into == Into::Macro) {
        expectRefused();
        return;
    }
    press();
    EXPECT_EQ(joystick().text(), row.text);
    EXPECT_EQ(macro().text(), macroText);
}
