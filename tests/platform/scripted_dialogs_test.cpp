// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/dialogs.h"
#include "platform/fakes/scripted_dialogs.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace zeph;

TEST(ScriptedDialogs, GivesThePreparedAnswerAndRecordsTheBox)
{
    ScriptedDialogs dialogs;
    dialogs.answer(u"Sure?"_s, BoxButton::Yes);
    EXPECT_TRUE(dialogs.ask(u"Sure?"_s, u"Really?"_s));
    ASSERT_EQ(dialogs.boxes().size(), 1);
    EXPECT_EQ(dialogs.boxes()[0].text, u"Really?"_s);
    EXPECT_EQ(dialogs.boxes()[0].icon, BoxIcon::Exclamation);
    EXPECT_EQ(dialogs.boxes()[0].defaultButton, BoxButton::No);
    EXPECT_TRUE(dialogs.unexpected().isEmpty());
}

TEST(ScriptedDialogs, AnUnpreparedBoxIsToldAndAnsweredSafely)
{
    ScriptedDialogs dialogs;
    EXPECT_FALSE(dialogs.ask(u"Sure?"_s, u"Really?"_s));
    ASSERT_EQ(dialogs.unexpected().size(), 1);
    EXPECT_TRUE(dialogs.unexpected()[0].contains(u"Really?"_s));
}

TEST(ScriptedDialogs, AnAnswerThatIsNotOnOfferIsTold)
{
    ScriptedDialogs dialogs;
    dialogs.answer(u"T"_s, BoxButton::Yes);
    EXPECT_EQ(dialogs.box({ .title = u"T"_s, .text = u"x"_s }), BoxButton::Ok);
    EXPECT_EQ(dialogs.unexpected().size(), 1);
}

TEST(ScriptedDialogs, ADefaultThatIsNoButtonIsTold)
{
    ScriptedDialogs dialogs;
    dialogs.answer(u"T"_s, BoxButton::No);
    dialogs.box(
        { u"T"_s, u"x"_s, BoxIcon::None, { BoxButton::Yes, BoxButton::No }, BoxButton::Ok });
    EXPECT_EQ(dialogs.unexpected().size(), 1);
}

TEST(ScriptedDialogs, WhatWasPreparedAndNeverShownIsTold)
{
    ScriptedDialogs dialogs;
    dialogs.answer(u"T"_s, BoxButton::Yes);
    dialogs.answerFile(u"/a"_s);
    dialogs.answerList(0);
    EXPECT_EQ(dialogs.unexpected().size(), 3);
}

TEST(ScriptedDialogs, OtherDialogsGiveTheirAnswersInOrder)
{
    ScriptedDialogs dialogs;
    dialogs.answerFile(u"/a"_s);
    dialogs.answerFile(std::nullopt);
    dialogs.answerFolder(u"/f"_s);
    dialogs.answerColour(7U);
    dialogs.answerFont(CharFormat{ u"Arial"_s, 10, false, false, false, 255U });
    dialogs.answerList(1);
    EXPECT_EQ(dialogs.openFile({ .title = u"Open"_s }), u"/a"_s);
    EXPECT_EQ(dialogs.saveFile({ .title = u"Save"_s }), std::nullopt);
    EXPECT_EQ(dialogs.chooseFolder(u"F"_s, u"/start"_s), u"/f"_s);
    EXPECT_EQ(dialogs.chooseColour(0), 7U);
    EXPECT_EQ(dialogs.chooseFont({})->family, u"Arial"_s);
    EXPECT_EQ(dialogs.chooseFromList(u"L"_s, { u"a"_s, u"b"_s }), 1);
    EXPECT_EQ(dialogs.files().size(), 2);
    EXPECT_EQ(dialogs.folders(), QStringList{ u"/start"_s });
    EXPECT_TRUE(dialogs.unexpected().isEmpty());
}

TEST(ScriptedDialogs, ALineThatIsNotInTheListIsTold)
{
    ScriptedDialogs dialogs;
    dialogs.answerList(2);
    EXPECT_EQ(dialogs.chooseFromList(u"L"_s, { u"a"_s, u"b"_s }), std::nullopt);
    EXPECT_EQ(dialogs.unexpected().size(), 1);
}

TEST(ScriptedDialogs, AnUnpreparedFileDialogIsToldAndCancelled)
{
    ScriptedDialogs dialogs;
    EXPECT_EQ(dialogs.openFile({ .title = u"Open"_s }), std::nullopt);
    EXPECT_EQ(dialogs.unexpected().size(), 1);
}

TEST(Guarded, PassesArgumentsThrough)
{
    ScriptedDialogs dialogs;
    int got = 0;
    guarded(dialogs, [&got](int a, int b) { got = a + b; })(2, 3);
    EXPECT_EQ(got, 5);
    EXPECT_TRUE(dialogs.boxes().isEmpty());
}

TEST(Guarded, WhatEscapesIsToldWithItsReasonAndGoesNoFurther)
{
    ScriptedDialogs dialogs;
    dialogs.answer(u"Zeph"_s, BoxButton::Ok);
    EXPECT_NO_THROW(guarded(dialogs, [] { throw std::runtime_error("the disk melted"); })());
    ASSERT_EQ(dialogs.boxes().size(), 1);
    EXPECT_EQ(dialogs.boxes()[0].title, u"Zeph"_s);
    EXPECT_EQ(dialogs.boxes()[0].icon, BoxIcon::Exclamation);
    EXPECT_TRUE(dialogs.boxes()[0].text.contains(u"the disk melted"_s));
    EXPECT_TRUE(dialogs.unexpected().isEmpty());
}

TEST(Guarded, WhatIsNoExceptionIsCaughtToo)
{
    ScriptedDialogs dialogs;
    dialogs.answer(u"Zeph"_s, BoxButton::Ok);
    EXPECT_NO_THROW(guarded(dialogs, [] { throw 42; })());
    EXPECT_EQ(dialogs.boxes().size(), 1);
}
