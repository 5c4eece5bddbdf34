// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "text/text_lines.h"

#include <gtest/gtest.h>

using namespace zeph;

TEST(TextLines, ALineIsFoundByItsNumber)
{
    const QString text = u"one\ntwo\n\nfour"_s;
    EXPECT_EQ(lineRange(text, 1)->start, 0);
    EXPECT_EQ(lineRange(text, 2)->start, 4);
    EXPECT_EQ(lineRange(text, 2)->length, 3);
    EXPECT_EQ(lineRange(text, 3)->length, 0);
    EXPECT_EQ(lineRange(text, 4)->start, 9);
    EXPECT_EQ(lineRange(text, 4)->length, 4);
}

TEST(TextLines, ALineThatDoesNotExistIsNone)
{
    EXPECT_FALSE(lineRange(u"one", 2));
    EXPECT_FALSE(lineRange(u"one", 0));
    EXPECT_FALSE(lineRange(u"one", -3));
    EXPECT_TRUE(lineRange(u"one\n", 2));
}

TEST(TextLines, Code1013SpeaksOfTheMacroFile)
{
    EXPECT_EQ(documentOfError(u"ERROR 1013: something"), DocumentKind::Macro);
    EXPECT_EQ(documentOfError(u"ERROR 1012: something"), DocumentKind::Joystick);
    EXPECT_EQ(documentOfError(u"1013"), DocumentKind::Joystick);
    EXPECT_EQ(documentOfError(u""), DocumentKind::Joystick);
}
