// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/richtext/rich_text_box.h"

#include "platform/core/text_search.h"
#include "platform/richtext/rich_text_document.h"
#include "tests/support/cpu_time.h"
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

TEST(RichTextBox, AWordOf400000LettersIsShownAndEditedInUnderTwoSeconds)
{
    RichTextBox box;
    showSmall(box);
    const double start = test::cpuSeconds();
    box.setRichText(RichText::plain(QString(400'000, u'x')));
    QTest::qWait(0);
    QTest::keyClicks(&box, u"y"_s);
    QTest::qWait(0);
    EXPECT_LT(test::cpuSeconds() - start, 2);
    EXPECT_GT(box.document()->size().height(), 1000) << "all of it was laid out, in many lines";
}

TEST(RichTextBox, APastedWordOf400000LettersTakesUnderTwoSecondsToo)
{
    RichTextBox box;
    showSmall(box);
    const double start = test::cpuSeconds();
    box.textCursor().insertText(u"before "_s + QString(400'000, u'x'));
    QTest::qWait(0);
    EXPECT_LT(test::cpuSeconds() - start, 2);
}

TEST(RichTextBox, TextsWithOrdinaryWordsAreWrappedBetweenThem)
{
    RichTextBox box;
    box.setRichText(RichText::plain(QString(400'000, u'x')));
    EXPECT_EQ(box.wordWrapMode(), QTextOption::WrapAnywhere);
    box.setRichText(RichText::plain(u"ordinary words "_s.repeated(50'000)));
    EXPECT_EQ(box.wordWrapMode(), QTextOption::WrapAtWordBoundaryOrAnywhere);
}

TEST(RichTextBox, WhatIsTypedAfterAHyperlinkDoesNotBelongToIt)
{
    RichTextBox box;
    CharFormat linked;
    linked.link = u"http://x/"_s;
    box.setRichText(RichText::plain(u"link"_s, linked));
    EXPECT_EQ(box.richText().formatAt(0).link, u"http://x/");
    box.select(4, 0);
    QTest::keyClicks(&box, u"ab"_s);
    box.select(2, 0);
    QTest::keyClicks(&box, u"-"_s);
    const RichText text = box.richText();
    EXPECT_EQ(text.text, u"li-nkab");
    EXPECT_EQ(text.formatAt(2).link, u"http://x/") << "but what is typed within does";
    EXPECT_EQ(text.formatAt(4).link, u"http://x/");
    EXPECT_EQ(text.formatAt(5).link, QString());
    EXPECT_EQ(text.formatAt(6).link, QString());
}

TEST(RichTextBox, AnAdoptedDocumentTakesTheOthersPlace)
{
    RichTextBox box;
    box.setRichText(RichText::plain(u"before"_s));
    const RichText text = test::RichTextMaker(7).make(u"ab \n"_s, 3000);
    for (int i = 0; i < 2; ++i) {
        auto document = std::make_unique<QTextDocument>();
        ASSERT_TRUE(fillDocument(*document, text, [](qsizetype) { return true; }));
        box.adopt(std::move(document));
        EXPECT_EQ(box.richText(), text);
        EXPECT_EQ(box.selStart(), 0);
        EXPECT_FALSE(box.document()->isUndoAvailable());
    }
    box.textCursor().insertText(QString(20'000, u'x'));
    EXPECT_EQ(box.wordWrapMode(), QTextOption::WrapAnywhere) << "it is watched like the first";
}

TEST(FillDocument, GivesTheSameAsAllAtOnceAndCanBeStopped)
{
    test::RichTextMaker maker(11);
    RichText text = RichText::plain({});
    while (text.text.size() < 270'000) {
        text.append(maker.make(u"abcdefghi klmnopqrs uvwxyz \n"_s, 5000));
    }
    QTextDocument inPieces;
    QList<qsizetype> steps;
    ASSERT_TRUE(fillDocument(inPieces, text, [&steps](qsizetype done) {
        steps.append(done);
        return true;
    }));
    EXPECT_GE(steps.size(), 3);
    EXPECT_EQ(steps.last(), text.text.size());
    EXPECT_EQ(richTextOf(inPieces), text);

    QTextDocument stopped;
    EXPECT_FALSE(fillDocument(stopped, text, [](qsizetype) { return false; }));
}
