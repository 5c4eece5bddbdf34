// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/files/sheet_kinds.h"
#include "layouts/window/box_words.h"

#include <QStringList>

#include <gtest/gtest.h>

using namespace zeph;

namespace {

Sheet customSheet(const QStringList &texts)
{
    Sheet sheet = emptySheet(SheetKind::Custom);
    for (qsizetype i = 0; i < texts.size(); ++i) {
        sheet.boxes[size_t(i)].text = RichText::plain(texts[i]);
    }
    return sheet;
}

} // namespace

TEST(EmptyTextBox, IsTheFirstWithFewerThanFourCharacters)
{
    EXPECT_EQ(GetEmptyTextBox(customSheet({ u"four"_s, u""_s })), 1);
    EXPECT_EQ(GetEmptyTextBox(customSheet({ u"four"_s, u"abc"_s, u""_s })), 1);
    EXPECT_EQ(GetEmptyTextBox(customSheet({ u"abcd"_s, u"abcd"_s })), 2);
}

TEST(EmptyTextBox, NoneIsLeftWhenAllHaveText)
{
    EXPECT_EQ(GetEmptyTextBox(customSheet(QStringList(40, u"text"_s))), -1);
    EXPECT_EQ(GetEmptyTextBox(customSheet(QStringList(39, u"text"_s))), 39);
}

TEST(InsertedWord, HasABlankBeforeItUnlessThereIsOne)
{
    EXPECT_EQ(insertedWord(u"BTN S1", 6, u"Fire"_s), u" Fire");
    EXPECT_EQ(insertedWord(u"BTN S1 ", 7, u"Fire"_s), u"Fire");
    EXPECT_EQ(insertedWord(u"ab", 1, u"Fire"_s), u" Fire");
}

TEST(InsertedWord, HasNoneAtTheStart)
{
    EXPECT_EQ(insertedWord(u"", 0, u"Fire"_s), u"Fire");
    EXPECT_EQ(insertedWord(u"BTN", 0, u"Fire"_s), u"Fire");
}

TEST(SlashWords, AreTenModifiersAndTwoCalls)
{
    const QStringList captions = slashCaptions();
    ASSERT_EQ(captions.size(), 12);
    EXPECT_EQ(captions[0], u"/&U dogfight switch is up");
    EXPECT_EQ(slashWord(0), u"/U ");
    EXPECT_EQ(slashWord(1), u"/M ");
    EXPECT_EQ(slashWord(2), u"/D ");
    for (int i = 0; i < 10; ++i) {
        EXPECT_TRUE(slashWord(i).startsWith(u'/') && slashWord(i).endsWith(u' ')) << i;
    }
    EXPECT_EQ(slashWord(10), u"DLY(");
    EXPECT_EQ(slashWord(11), u"RPT(");
}

TEST(Underscores, BecomeBlanksInTheirOwnLooks)
{
    RichText text = RichText::plain(u"Gear_Up_Now"_s);
    text.change(4, 1, [](CharFormat &format) { format.bold = true; });
    const RichText converted = withoutUnderscores(text);
    EXPECT_EQ(converted.text, u"Gear Up Now");
    EXPECT_EQ(converted.characters, text.characters);
    EXPECT_TRUE(converted.formatAt(4).bold);
}
