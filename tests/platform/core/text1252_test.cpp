// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/text1252.h"

#include <gtest/gtest.h>

using namespace zeph;

TEST(Text1252, EveryByteSurvivesTheWayThereAndBack)
{
    QByteArray all;
    for (int byte = 0; byte < 256; ++byte) {
        all.append(char(byte));
    }
    const QString text = fromText1252(all);
    ASSERT_EQ(text.size(), 256);
    EXPECT_EQ(toText1252(text), all);
    EXPECT_EQ(firstNot1252(text), -1);
}

TEST(Text1252, TheOddBytesAreTheCodePagesOwnCharacters)
{
    EXPECT_EQ(fromText1252("\x80\x8A\x9F\x96\xFF"), u"€ŠŸ–ÿ"_s);
    EXPECT_EQ(toText1252(u"“Žœ”"), QByteArray("\x93\x8E\x9C\x94"));
}

TEST(Text1252, UnassignedBytesBecomeControlCharactersOfTheirNumber)
{
    EXPECT_EQ(fromText1252("\x81\x8D\x8F\x90\x9D"), u"\u0081\u008D\u008F\u0090\u009D"_s);
}

TEST(Text1252, ACharacterThatIsMissingBecomesAQuestionMarkAndCanBeFoundBeforehand)
{
    EXPECT_EQ(toText1252(u"aЖb"), "a?b");
    EXPECT_EQ(firstNot1252(u"aЖb"), 1);
    EXPECT_FALSE(isText1252(u'Ж'));
    // 0080 is the euro's byte, not its character.
    EXPECT_FALSE(isText1252(QChar(0x80)));
    EXPECT_TRUE(isText1252(u'€'));
}
