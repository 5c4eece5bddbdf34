// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/keytestform.h"

#include "documents/editor_view.h"
#include "documents/text_control.h"
#include "editor/editor.h"
#include "menus/menu_actions.h"
#include "platform/tool_windows.h"
#include "shell/mum.h"
#include "tests/support/shell_world.h"

#include <QAction>
#include <QTest>

using namespace zeph;

namespace {

struct KeyTesterMenuTest : test::ShellWorld {
    std::unique_ptr<Application> run;

    void SetUp() override
    {
        writeStore();
        installData(u"KeyCodes.txt"_s);
        run = application();
        ASSERT_TRUE(run->start());
    }
    KeyTestForm *tester() const { return run->mum().toolWindows().get<KeyTestForm>(); }
};

} // namespace

TEST_F(KeyTesterMenuTest, CtrlKInTheTextOpensIt)
{
    EXPECT_EQ(tester(), nullptr);
    QTest::keyClick(&run->editor().view().control(run->editor().selected().kind()), Qt::Key_K,
                    Qt::ControlModifier);
    ASSERT_NE(tester(), nullptr);
    EXPECT_TRUE(tester()->isVisible());
    EXPECT_EQ(tester()->windowTitle(), u"Key Tester");
}

TEST_F(KeyTesterMenuTest, ThereIsOneOfIt)
{
    run->editor().actions().action(u"mnuAppsKeyTester")->trigger();
    KeyTestForm *first = tester();
    ASSERT_NE(first, nullptr);
    first->Form_KeyDown(65, 0);
    run->editor().actions().action(u"mnuAppsKeyTester")->trigger();
    EXPECT_EQ(tester(), first);
}

TEST_F(KeyTesterMenuTest, WithoutATableItDoesNotOpen)
{
    QFile::remove(folder.file(u"KeyCodes.txt"_s));
    dialogs.answer(u"KeyCodes.txt is missing !!!"_s, BoxButton::Ok);
    dialogs.answer(u"It didn't work :("_s, BoxButton::Ok);
    run->editor().actions().action(u"mnuAppsKeyTester")->trigger();
    EXPECT_EQ(tester(), nullptr);
}

TEST_F(KeyTesterMenuTest, ItsPlaceSurvivesTheEndOfTheRun)
{
    run->editor().actions().action(u"mnuAppsKeyTester")->trigger();
    ASSERT_NE(tester(), nullptr);
    tester()->resize(480, 320);
    run->mum().close();
    EXPECT_TRUE(folder.read(u"Zeph.ini"_s).contains("KeyWidthAtStartup=7200"));
}

TEST_F(KeyTesterMenuTest, WithoutDirectXTestersItOffersNone)
{
    run->editor().action(u"mnuAppsDX8_0")->setVisible(false);
    run->editor().actions().action(u"mnuAppsKeyTester")->trigger();
    ASSERT_NE(tester(), nullptr);
    EXPECT_FALSE(tester()->findChild<QAction *>(u"mnuDX8KeyTester"_s)->isVisible());
}
