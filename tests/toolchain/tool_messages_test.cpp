// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/tool_messages.h"

#include <gtest/gtest.h>

using namespace zeph;

TEST(TimeOutBox, OfACompile)
{
    const Box box = compilerTimeOutBox(CompilerTask::Compile, u"Viper"_s);
    EXPECT_EQ(box.title, u"Now this is taking rather a long time Viper, isn't it?!");
    EXPECT_EQ(box.icon, BoxIcon::Exclamation);
    EXPECT_EQ(box.buttons, QList<BoxButton>{ BoxButton::Ok });
    EXPECT_EQ(
        box.text,
        u"I'm going to pass control back to you now, as I'm worried that there may be a problem "
        u"with the compile and the Compiler's communication with your Cougar - it's just taking "
        u"too long for my liking. I could be wrong of course, but I'd prefer to play it safe, and "
        u"I presume you do too.\n\nIf you know for certain that there isn't a problem with your "
        u"Cougar or your files, then you can increase the amount of time I sit around waiting for "
        u"the compiler to compile your file. To do this, see the help topic 'Unsupported "
        u"options.'\n\nIf it looks like Zeph has crashed (it hasn't by the way otherwise you "
        u"wouldn't be reading this) then sometimes it can help to disconnect your controllers from "
        u"your computer to try to force the compiler to recognise the controllers aren't plugged "
        u"in. This can help to prevent the compiler crashing and hanging your machine if you're "
        u"suspicious that this is about to happen. \n\n Well, that's my experience anyway! ");
}

TEST(TimeOutBox, OfADownloadSpeaksOfTheDownload)
{
    const Box box = compilerTimeOutBox(CompilerTask::Download, u"buddy"_s);
    EXPECT_EQ(box.title, u"Now this is taking rather a long time buddy, isn't it?!");
    EXPECT_TRUE(box.text.contains(
        u" with the download and the Compiler's communication with your Cougar - it's just"_s));
    EXPECT_TRUE(box.text.contains(
        u" waiting for the compiler to download your file. To do this, see the help topic"_s));
    EXPECT_FALSE(box.text.contains(u"to compile your file"_s));
    EXPECT_TRUE(box.text.endsWith(u"\n\n Well, that's my experience anyway! "_s));
}

TEST(TimeOutBox, OfAModeRequestHasAFixedTitleAndNoAdviceAboutTheCompiler)
{
    const Box box = modeTimeOutBox();
    EXPECT_EQ(box.title, u"Now this is taking rather a long time buddy, isn't it?!");
    EXPECT_EQ(box.icon, BoxIcon::Exclamation);
    EXPECT_EQ(
        box.text,
        u"I'm going to pass control back to you now, as I'm worried that there may be a problem "
        u"with the TM applications and their communication with your Cougar - it's just taking too "
        u"long for my liking. I could be wrong of course, but I'd prefer to play it safe, and I "
        u"presume you do too.\n\nIf you know for certain that there isn't a problem with your "
        u"Cougar, then you can increase the amount of time I sit around waiting for the Cougar to "
        u"respond back to me. To do this, see the help topic 'Unsupported options.'");
}

TEST(PanelAfterWait, BeginsWithABlankForModeRequestsOnly)
{
    EXPECT_EQ(panelAfterCompilerWait(false), u"Done");
    EXPECT_EQ(panelAfterCompilerWait(true), u"Control returned to you");
    EXPECT_EQ(panelAfterModeWait(false), u" Ready");
    EXPECT_EQ(panelAfterModeWait(true), u" Control returned to you");
}
