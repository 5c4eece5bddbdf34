// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// Both texts side by side: which one is meant, and what each shows.

#include "documents/editor_texts.h"
#include "documents/line_margin.h"
#include "editor/files/file_opening.h"
#include "editor/files/file_saving.h"
#include "tests/support/editor_fixture.h"

#include <QAction>
#include <QFile>
#include <QScrollBar>
#include <QTabBar>
#include <QTest>

using namespace zeph;
using zeph::test::EditorTest;

namespace {

class TiledViewTest : public EditorTest
{
protected:
    void SetUp() override
    {
        editor->resize(900, 600);
        editor->show();
        editor->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(editor.get()));
        editor->action(u"mnuViewTileVertically")->trigger();
        editor->opening().mnuFileJoystickLoad_Click(file(u"a.tmj"_s, lines("BTN S1 a")));
        editor->opening().MnuFileMacroLoad_Click(file(u"a.tmm"_s, lines("Gun = g")));
        editor->documents().select(DocumentKind::Joystick);
        QTest::qWait(0);
    }
    static QByteArray lines(const QByteArray &line) { return (line + "\r\n").repeated(400); }
    TextControl *joystick() { return &editor->view().control(DocumentKind::Joystick); }
    TextControl *macro() { return &editor->view().control(DocumentKind::Macro); }
    void click(TextControl *control)
    {
        QTest::mouseClick(control->viewport(), Qt::LeftButton, {}, QPoint(20, 30));
    }
};

} // namespace

TEST_F(TiledViewTest, AClickIntoTheOtherTextSelectsItsTab)
{
    click(macro());
    EXPECT_EQ(editor->selected().kind(), DocumentKind::Macro);
    EXPECT_EQ(editor->findChild<QTabBar *>(u"TabStrip1"_s)->currentIndex(), 1);
    EXPECT_EQ(status.text(), u"Editing a.tmm");
    EXPECT_TRUE(macro()->hasFocus());
    EXPECT_TRUE(joystick()->isVisible());
    click(joystick());
    EXPECT_EQ(editor->selected().kind(), DocumentKind::Joystick);
}

TEST_F(TiledViewTest, CommandsActOnTheTextThatWasClicked)
{
    click(macro());
    QTest::keyClicks(macro(), u"x"_s);
    QTest::keyClick(macro(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(editor->macro().state(), Document::Saved);
    EXPECT_TRUE(folder.read(u"Files/a.tmm"_s).contains('x'));
}

TEST_F(TiledViewTest, AClickHitsTheLineThatTheUserSees)
{
    macro()->verticalScrollBar()->setValue(200);
    click(macro());
    EXPECT_EQ(macro()->verticalScrollBar()->value(), 200);
    EXPECT_GT(macro()->shown().caretLine(), 200);
}

TEST_F(TiledViewTest, TheTextThatIsNotSelectedKeepsItsCaretAndItsScroll)
{
    macro()->shown().select(50, 4);
    macro()->verticalScrollBar()->setValue(200);
    QTest::keyClicks(joystick(), u"x"_s);
    editor->saving().mnuFileSave_Click();
    EXPECT_EQ(macro()->verticalScrollBar()->value(), 200);
    EXPECT_EQ(macro()->shown().selStart(), 50);
    EXPECT_EQ(macro()->shown().selLength(), 4);
    EXPECT_EQ(editor->macro().selStart(), 50);
}

TEST_F(TiledViewTest, AClickIntoTheProtectedTextSaysSo)
{
    editor->action(u"mnuPreferencesProtectMacroFile")->trigger();
    click(macro());
    EXPECT_EQ(status.text(), u"a.tmm is protected and can't be edited.");
}

TEST_F(TiledViewTest, TheCompilersWordStaysWhenItsLineIsInTheProtectedText)
{
    editor->action(u"mnuPreferencesProtectMacroFile")->trigger();
    const QString word = u"Compiler reported an error at line 2: ERROR 1013: brackets"_s;
    status.setText(word);
    editor->HighlightErrorLine(2, u"ERROR 1013: brackets"_s);
    EXPECT_EQ(editor->selected().kind(), DocumentKind::Macro);
    EXPECT_EQ(status.text(), word);
}

TEST_F(TiledViewTest, ProtectionOutlivesTheFileAndGuardsTheNextOne)
{
    editor->action(u"mnuPreferencesProtectMacroFile")->trigger();
    editor->opening().MnuFileMacroLoad_Click(file(u"b.tmm"_s, "Fire = f"));
    EXPECT_EQ(editor->macroText(), u"Fire = f");
    QTest::keyClicks(macro(), u"x"_s);
    EXPECT_EQ(editor->macroText(), u"Fire = f");
    EXPECT_EQ(editor->macro().state(), Document::Saved);
}

TEST_F(TiledViewTest, BothStatesAreOnTheStatusBarWhileBothTextsAreShown)
{
    const auto other = [this] {
        const StatusContents &contents = status.contents(StatusPanel::OtherSaved);
        return std::pair(contents.picture, contents.tooltip);
    };
    EXPECT_EQ(other(), std::pair(2, u"a.tmm is saved"_s));
    type(DocumentKind::Macro, u"x"_s);
    EXPECT_EQ(other(), std::pair(3, u"a.tmm has been modified and isn't saved"_s));
    EXPECT_EQ(status.savedPicture(), 2);
    editor->documents().select(DocumentKind::Macro);
    EXPECT_EQ(other(), std::pair(2, u"a.tmj is saved"_s));
    EXPECT_EQ(status.savedPicture(), 3);
    editor->action(u"mnuViewTileVertically")->trigger();
    EXPECT_EQ(other(), std::pair(0, QString()));
}

TEST_F(TiledViewTest, ZoomHoldsForBothTextsAndCtrl0EndsIt)
{
    const double before = joystick()->font().pointSizeF();
    editor->action(u"mnuViewZoomIn")->trigger();
    editor->action(u"mnuViewZoomIn")->trigger();
    EXPECT_NEAR(joystick()->font().pointSizeF(), before * 1.21, 0.1);
    EXPECT_NEAR(macro()->font().pointSizeF(), before * 1.21, 0.1);
    EXPECT_EQ(status.text(), u"Both files are shown at 121 %");
    // Changed settings leave the zoom as it is.
    editor->applySettings();
    EXPECT_NEAR(macro()->font().pointSizeF(), before * 1.21, 0.1);
    EXPECT_EQ(editor->action(u"mnuViewZoomBack")->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_0));
    editor->action(u"mnuViewZoomBack")->trigger();
    EXPECT_EQ(joystick()->font().pointSizeF(), before);
    editor->action(u"mnuViewZoomOut")->trigger();
    EXPECT_LT(macro()->font().pointSizeF(), before);
}

TEST_F(EditorTest, AnEmptyEditorShowsTheFirstThreeThingsToDoInReadableInk)
{
    for (const DocumentKind kind : { DocumentKind::Joystick, DocumentKind::Macro }) {
        const TextControl &control = editor->view().control(kind);
        const QString ghost = control.placeholderText();
        for (const QString &each : { u"1."_s, u"2."_s, u"3."_s, u"F8"_s, u"Sample flight.tmj"_s }) {
            EXPECT_TRUE(ghost.contains(each)) << each.toStdString();
        }
        EXPECT_TRUE(QFile::exists(QStringLiteral(ZEPH_SOURCE_DIR "/data/Files/Sample flight.tmj")));
        for (const ColorRef ground : { colorRef(30, 32, 36), colorRef(253, 250, 217) }) {
            CharFormat plain;
            plain.pointSize = 8;
            editor->view().control(kind).setLook(ground, plain);
            EXPECT_GE(contrast(control.palette().color(QPalette::PlaceholderText),
                               control.palette().color(QPalette::Base)),
                      4.5);
        }
    }
}
