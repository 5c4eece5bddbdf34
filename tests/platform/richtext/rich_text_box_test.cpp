// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/richtext/rich_text_box.h"

#include "platform/core/text_search.h"
#include "tests/support/rich_texts.h"

#include <gtest/gtest.h>

#include <QScrollBar>
#include <QTest>

using namespace zeph;

namespace {

QString manyLines(int count)
{
    QString text;
    for (int line = 0; line < count; ++line) {
        text += u"line %1\n"_s.arg(line);
    }
    return text;
}

void showSmall(RichTextBox &box)
{
    box.resize(200, 120);
    box.show();
    QTest::qWait(0);
}

} // namespace

TEST(RichTextBox, HoldsARichTextWithTheCaretInFront)
{
    RichTextBox box;
    const RichText text =
        RichText::plain(u"a\u00a0b\nc"_s, { u"Arial"_s, 11, true, false, false, 7 },
                        { 300, ParagraphAlignment::Right, true });
    box.setRichText(text);
    EXPECT_EQ(box.richText(), text);
    EXPECT_EQ(box.selStart(), 0);
    EXPECT_EQ(box.selLength(), 0);
}

TEST(RichTextBox, SelectionIsStartAndLengthWhateverItsDirection)
{
    RichTextBox box;
    box.setRichText(RichText::plain(u"ab\u00a0c\nd"_s));
    box.select(1, 4);
    EXPECT_EQ(box.selStart(), 1);
    EXPECT_EQ(box.selLength(), 4);
    EXPECT_EQ(box.selText(), u"b\u00a0c\n"_s);
    box.moveCursor(QTextCursor::End);
    box.moveCursor(QTextCursor::PreviousCharacter, QTextCursor::KeepAnchor);
    EXPECT_EQ(box.selStart(), 5);
    EXPECT_EQ(box.selText(), u"d"_s);
}

TEST(RichTextBox, SelectionIsClampedToTheText)
{
    RichTextBox box;
    box.setRichText(RichText::plain(u"abc"_s));
    box.select(2, 99);
    EXPECT_EQ(box.selText(), u"c"_s);
    box.select(-5, 2);
    EXPECT_EQ(box.selText(), u"ab"_s);
    box.select(99, -1);
    EXPECT_EQ(box.selStart(), 3);
    EXPECT_EQ(box.selLength(), 0);
}

TEST(RichTextBox, FindSelectsTheHitAndBringsItToTheTop)
{
    RichTextBox box;
    showSmall(box);
    const QString text = manyLines(500);
    box.setRichText(RichText::plain(text));
    const int expected = int(text.indexOf(u"line 250\n"_s));
    EXPECT_EQ(box.find(u"LINE 250", 0, SearchWholeWord), expected);
    EXPECT_EQ(box.selText(), u"line 250"_s);
    EXPECT_NEAR(box.cursorRect().top(), box.document()->documentMargin(), 1);
    EXPECT_GT(box.verticalScrollBar()->value(), 0);
}

TEST(RichTextBox, FindWithoutAHitLeavesTheSelection)
{
    RichTextBox box;
    box.setRichText(RichText::plain(u"one two"_s));
    box.select(4, 3);
    EXPECT_EQ(box.find(u"ONE", 0, SearchMatchCase), -1);
    EXPECT_EQ(box.find(u"one", 1, SearchPlain), -1);
    EXPECT_EQ(box.selText(), u"two"_s);
}

TEST(RichTextBox, ScrollsBackToTheStart)
{
    RichTextBox box;
    showSmall(box);
    box.setRichText(RichText::plain(manyLines(300)));
    box.scrollTo(100000);
    EXPECT_EQ(box.verticalScrollBar()->value(), box.verticalScrollBar()->maximum());
    box.scrollTo(0);
    EXPECT_EQ(box.verticalScrollBar()->value(), 0);
}

TEST(RichTextBox, ShiftEnterStartsALineLikeEnter)
{
    RichTextBox box;
    box.setRichText(RichText::plain(u"ab"_s));
    box.select(1, 0);
    QTest::keyClick(&box, Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(box.richText().text, u"a\nb"_s);
    EXPECT_EQ(box.document()->blockCount(), 2);
    box.setReadOnly(true);
    QTest::keyClick(&box, Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(box.document()->blockCount(), 2);
}
