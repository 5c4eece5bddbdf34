// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "templates/templateform.h"

#include "documents/editor_view.h"
#include "documents/text_control.h"
#include "editor/editor.h"
#include "editor/files/file_opening.h"
#include "editor/files/recovery_files.h"
#include "menus/menu_actions.h"
#include "platform/richtext/rich_text_box.h"
#include "platform/tool_windows.h"
#include "shell/mum.h"
#include "tests/support/shell_world.h"

#include <QTest>
#include <QTimer>

using namespace zeph;

namespace {

struct TemplateMenuTest : test::ShellWorld {
    std::unique_ptr<Application> run;

    void SetUp() override
    {
        writeStore();
        run = application();
        ASSERT_TRUE(run->start());
    }
    TemplateForm *form() const { return run->mum().toolWindows().get<TemplateForm>(); }
    static RichTextBox &textOf(TemplateForm &form)
    {
        return *form.findChild<RichTextBox *>(u"TemplateText"_s);
    }
};

} // namespace

TEST_F(TemplateMenuTest, TheMenuOpensOneOfIt)
{
    run->editor().actions().action(u"mnuAppsTemplateEditor")->trigger();
    TemplateForm *first = form();
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(first->windowTitle(), u"ReadMe and Template Editor");
    run->editor().actions().action(u"mnuAppsTemplateEditor")->trigger();
    EXPECT_EQ(form(), first);
}

TEST_F(TemplateMenuTest, TheReadmeOfTheJoystickFileIsOpened)
{
    folder.write(u"Files/Read.rtf"_s, "{\\rtf1 Read me first}");
    const QString jet =
        folder.write(u"Files/Jet.tmj"_s, "USE ZEPH README Read.rtf\r\nBTN S1 a\r\n");
    run->editor().opening().OpenFavouriteFile(jet);
    run->editor().actions().action(u"mnuAppsViewReadMe")->trigger();
    ASSERT_NE(form(), nullptr);
    EXPECT_EQ(form()->windowTitle(), u" Editing Read.rtf");
    EXPECT_EQ(textOf(*form()).toPlainText(), u"Read me first");
}

TEST_F(TemplateMenuTest, WhatItSavesIsOfferedToTheEditorThatHasItOpen)
{
    const QString path = folder.write(u"Files/Jet.tmj"_s, "BTN S1 a\r\n");
    run->editor().opening().OpenFavouriteFile(path);
    run->editor().actions().action(u"mnuAppsTemplateEditor")->trigger();
    ASSERT_NE(form(), nullptr);
    ASSERT_TRUE(form()->OpenReadMe(path));
    textOf(*form()).textCursor().insertText(u"Rem mine\n"_s);
    dialogs.answer(u"Open Jet.tmj again?"_s, BoxButton::Yes);
    form()->mnuFileSave_Click();
    EXPECT_EQ(run->editor().joystick().text().section(u'\n', 0, 0), u"Rem mine");
    EXPECT_EQ(run->editor().joystick().state(), Document::Saved);
}

TEST_F(TemplateMenuTest, AnUnsavedTemplateIsAskedAboutBeforeTheEnd)
{
    run->editor().actions().action(u"mnuAppsTemplateEditor")->trigger();
    ASSERT_NE(form(), nullptr);
    textOf(*form()).textCursor().insertText(u"mine"_s);
    dialogs.answer(u" Save Untitled.rtf now?"_s, BoxButton::Cancel);
    EXPECT_FALSE(run->mum().close());
    EXPECT_TRUE(form()->isVisible());
    dialogs.answer(u" Save Untitled.rtf now?"_s, BoxButton::No);
    EXPECT_TRUE(run->mum().close());
}

TEST_F(TemplateMenuTest, ASaveTakesTheKeptTextAway)
{
    run->editor().action(u"mnuAppsTemplateEditor")->trigger();
    ASSERT_TRUE(form()->OpenReadMe(folder.write(u"Templates/mine.rtf"_s, "{\\rtf1 half}")));
    textOf(*form()).setPlainText(u"a whole readme"_s);
    QMetaObject::invokeMethod(run->mum().findChild<QTimer *>(u"TemplateRecoveryTimer"_s),
                              "timeout");
    const QString kept = u"Recovery/1/template.txt"_s;
    for (int waited = 0; waited < 500 && !folder.exists(kept); ++waited) {
        QTest::qWait(10);
    }
    ASSERT_TRUE(folder.exists(kept));
    form()->mnuFileSave_Click();
    EXPECT_FALSE(folder.exists(kept));
}

TEST_F(TemplateMenuTest, AnUnsavedTextIsOnTheDiskAndComesBackAfterACrash)
{
    run->editor().action(u"mnuAppsTemplateEditor")->trigger();
    textOf(*form()).setPlainText(u"half a readme"_s);
    auto *timer = run->mum().findChild<QTimer *>(u"TemplateRecoveryTimer"_s);
    ASSERT_TRUE(timer);
    EXPECT_TRUE(timer->isActive());
    EXPECT_EQ(timer->interval(), 3000);
    QMetaObject::invokeMethod(timer, "timeout");
    const QString kept = u"Recovery/1/template.txt"_s;
    for (int waited = 0; waited < 500 && !folder.exists(kept); ++waited) {
        QTest::qWait(10);
    }
    const auto recovered = readRecovery(folder.read(kept));
    ASSERT_TRUE(recovered);
    // What a crash leaves is such a folder that nobody holds.
    RecoveredText left = *recovered;
    left.path = folder.write(u"Templates/mine.rtf"_s, "{\\rtf1 half}");
    textOf(*form()).setPlainText({});
    run.reset();
    EXPECT_FALSE(folder.exists(kept));
    folder.write(u"Recovery/7/template.txt"_s, recoveryBytes(left));

    dialogs.answer(u"Look what I found, buddy"_s, BoxButton::Yes);
    run = application();
    ASSERT_TRUE(run->start());
    ASSERT_NE(form(), nullptr);
    EXPECT_EQ(textOf(*form()).toPlainText(), u"half a readme");
    EXPECT_EQ(form()->path(), left.path);
    EXPECT_TRUE(form()->HasTemplateTextChanged());
    EXPECT_FALSE(folder.exists(u"Recovery/7/template.txt"_s));
    dialogs.answer(u" Save mine.rtf now?"_s, BoxButton::No);
    run.reset();
}
