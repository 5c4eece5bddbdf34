// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/view_entries.h"

#include "editor/files/file_opening.h"
#include "tests/support/editor_fixture.h"

#include <QAction>
#include <QTabBar>
#include <QTest>

using namespace zeph;
using zeph::test::EditorTest;

namespace {

class ViewEntriesTest : public EditorTest
{
protected:
    void SetUp() override
    {
        editor->resize(900, 600);
        editor->show();
        editor->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(editor.get()));
        editor->opening().OpenFavouriteFile(file(u"m.tmm"_s, "Fire = a\r\n"));
        editor->documents().select(DocumentKind::Joystick);
    }
    QWidget *joystick() { return &editor->view().control(DocumentKind::Joystick); }
    QWidget *macro() { return &editor->view().control(DocumentKind::Macro); }
    QWidget *list() { return editor->findChild<QWidget *>(u"List1"_s); }
    void trigger(const QString &entry) { editor->action(entry)->trigger(); }
    bool isTicked(const QString &entry) { return editor->action(entry)->isChecked(); }
};

} // namespace

TEST_F(ViewEntriesTest, EachFileHasAnEntryThatGoesToIt)
{
    EXPECT_TRUE(isTicked(u"mnuViewJoystickFile"_s));
    // Twice: an entry whose file is in front already keeps its tick.
    for (int i = 0; i < 2; ++i) {
        list()->setFocus();
        trigger(u"mnuViewMacroFile"_s);
        EXPECT_TRUE(macro()->hasFocus());
        EXPECT_TRUE(isTicked(u"mnuViewMacroFile"_s));
        EXPECT_FALSE(isTicked(u"mnuViewJoystickFile"_s));
    }
    trigger(u"mnuViewJoystickFile"_s);
    EXPECT_TRUE(joystick()->hasFocus());
    EXPECT_TRUE(isTicked(u"mnuViewJoystickFile"_s));
    EXPECT_FALSE(isTicked(u"mnuViewMacroFile"_s));
    editor->documents().select(DocumentKind::Macro);
    EXPECT_TRUE(isTicked(u"mnuViewMacroFile"_s));
}

TEST_F(ViewEntriesTest, CtrlTabGoesFromFileToFileAndTypesNothing)
{
    QTest::keyClick(joystick(), Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_TRUE(macro()->hasFocus());
    QTest::keyClick(macro(), Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_TRUE(joystick()->hasFocus());
    EXPECT_EQ(editor->joystickText(), QString());
    EXPECT_EQ(editor->macroText(), u"Fire = a\n");
}

TEST_F(ViewEntriesTest, AnEntryGoesToTheMacroListAndBack)
{
    trigger(u"mnuViewGoToMacros"_s);
    EXPECT_TRUE(list()->hasFocus());
    trigger(u"mnuViewGoToMacros"_s);
    EXPECT_TRUE(joystick()->hasFocus());
    // A list that is hidden is shown first.
    trigger(u"mnuViewMacros"_s);
    ASSERT_FALSE(list()->isVisible());
    trigger(u"mnuViewGoToMacros"_s);
    EXPECT_TRUE(list()->isVisible());
    EXPECT_TRUE(list()->hasFocus());
}

TEST_F(ViewEntriesTest, ATabOfAChangedDocumentHasADotInItsPicture)
{
    settings.of<EditorSettings>().UpdateModified = false;
    const auto *tabs = editor->findChild<QTabBar *>(u"TabStrip1"_s);
    const auto redIn = [tabs](int tab) {
        const QImage picture = tabs->tabIcon(tab).pixmap(tabs->iconSize()).toImage();
        int red = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                const QColor at = picture.pixelColor(x, y);
                red += at.alpha() > 200 && at.red() > 180 && at.green() < 80 && at.blue() < 80;
            }
        }
        return red;
    };
    EXPECT_EQ(redIn(1), 0);
    type(DocumentKind::Macro, u"x"_s);
    EXPECT_GT(redIn(1), 8);
    EXPECT_EQ(redIn(0), 0);
    EXPECT_EQ(tabs->tabText(1), u"m.tmm");
    editor->action(u"mnuPreferencesProtectMacroFile")->trigger();
    EXPECT_GT(redIn(1), 8);
    editor->macro().setState(Document::Saved);
    EXPECT_EQ(redIn(1), 0);
}
