// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/text_control.h"

#include "documents/coloured_text.h"
#include "platform/richtext/rich_text_document.h"
#include "tests/support/rich_texts.h"

#include <gtest/gtest.h>

#include <QAbstractTextDocumentLayout>
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QMimeData>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QWheelEvent>

using namespace zeph;

namespace {

const QString noBreak = QString(QChar(0xA0));

class TextControlTest : public testing::Test
{
protected:
    void SetUp() override
    {
        control.resize(300, 200);
        control.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&control));
    }
    void fill(int lines)
    {
        QString text;
        for (int i = 0; i < lines; ++i) {
            text += u"BTN S1 a\n"_s;
        }
        control.shown().setText(text);
    }
    /// What the toolkit answers to something dragged over the text and let go there.
    bool drop(QMimeData &data, const QPoint &at = { 5, 5 })
    {
        QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(control.viewport(), &enter);
        if (!enter.isAccepted()) {
            return false;
        }
        QDropEvent event(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(control.viewport(), &event);
        return event.isAccepted();
    }

    TextControl control;
};

} // namespace

TEST_F(TextControlTest, CopyingKeepsNoBreakSpacesAndLineEnds)
{
    control.shown().setText(u"a"_s + noBreak + u"b\nc"_s);
    control.selectAll();
    control.copy();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"a"_s + noBreak + u"b\nc"_s);
    control.shown().select(0, 0);
    control.paste();
    EXPECT_EQ(control.shown().text(), u"a"_s + noBreak + u"b\nca"_s + noBreak + u"b\nc"_s);
}

TEST_F(TextControlTest, ALockedTextStillHasACaretAndASelection)
{
    control.shown().setText(u"one\ntwo"_s);
    control.shown().select(0, 0);
    control.shown().setLocked(true);
    QTest::keyClicks(&control, u"x"_s);
    QTest::keyClick(&control, Qt::Key_Delete);
    EXPECT_EQ(control.shown().text(), u"one\ntwo");
    QTest::keyClick(&control, Qt::Key_Down);
    EXPECT_EQ(control.shown().caretLine(), 2);
    QTest::keyClick(&control, Qt::Key_End, Qt::ShiftModifier);
    EXPECT_EQ(control.textCursor().selectedText(), u"two");
    control.shown().setLocked(false);
    QTest::keyClick(&control, Qt::Key_Delete);
    EXPECT_EQ(control.shown().text(), u"one\n");
}

TEST_F(TextControlTest, APlaceIsTheSelectionWithItsDirectionAndWhatIsSeen)
{
    fill(300);
    control.shown().select(0, 0);
    QTextCursor backwards = control.textCursor();
    backwards.setPosition(20);
    backwards.setPosition(11, QTextCursor::KeepAnchor);
    control.setTextCursor(backwards);
    control.verticalScrollBar()->setValue(150);
    const TextControl::Scroll scroll = control.scroll();
    const QTextCursor before = control.shown().cursor();
    control.shown().select(0, 0);
    ASSERT_EQ(control.verticalScrollBar()->value(), 0);
    control.shown().setCaret(before.anchor(), before.position());
    control.setScroll(scroll);
    EXPECT_EQ(control.textCursor().anchor(), 20);
    EXPECT_EQ(control.textCursor().position(), 11);
    EXPECT_EQ(control.verticalScrollBar()->value(), 150);
}

TEST_F(TextControlTest, ADroppedTextIsTakenAsPlainText)
{
    QMimeData data;
    data.setText(u"a\r\nb"_s);
    data.setHtml(u"<b>a</b>"_s);
    EXPECT_TRUE(drop(data));
    EXPECT_EQ(control.shown().text(), u"a\nb");
    EXPECT_FALSE(control.shown().richText().formatAt(0).bold);
}

TEST_F(TextControlTest, ATextDroppedWithinALineMayBeLongerThanTheLineWas)
{
    for (const bool isShown : { true, false }) {
        control.setVisible(isShown);
        control.shown().setText(u"BTN S1 a\nBTN S2 b"_s);
        control.shown().select(4, 0);
        QMimeData data;
        data.setText(u"long before "_s);
        EXPECT_TRUE(drop(data, control.cursorRect().center()));
        EXPECT_EQ(control.shown().text(), u"BTN long before S1 a\nBTN S2 b");
        EXPECT_EQ(control.shown().cursor().position(), 16);
        EXPECT_EQ(control.textCursor().position(), 16);
    }
}

TEST_F(TextControlTest, ADroppedFileIsNoText)
{
    QMimeData data;
    data.setUrls({ QUrl(u"file:///tmp/a.tmj"_s) });
    EXPECT_FALSE(drop(data));
    EXPECT_EQ(control.shown().text(), QString());
}

TEST_F(TextControlTest, ALockedTextTakesNoDrop)
{
    control.shown().setLocked(true);
    QMimeData data;
    data.setText(u"a"_s);
    EXPECT_FALSE(drop(data));
    EXPECT_EQ(control.shown().text(), QString());
}

TEST_F(TextControlTest, OddCharactersAreCharactersOfOneLine)
{
    const QString odd = u"a\fb"_s + noBreak + QChar(0x85) + u"\v\t\u001Ac"_s;
    control.shown().setText(odd);
    EXPECT_EQ(control.shown().text(), odd);
    EXPECT_EQ(control.blockCount(), 1);
    EXPECT_EQ(control.shown().richText().text, odd);
}

// What it gives must be what was set and laid, in the toolkit's text.
TEST_F(TextControlTest, ItsRichTextIsWhatWasMadeOfIt)
{
    ColouredText &text = control.shown();
    for (int round = 0; round < 200; ++round) {
        test::RichTextMaker chance{ quint32(round) };
        RichText expected = chance.make(u"ab \n"_s, 80);
        const auto compare = [&] {
            expected.normalise();
            expected.paragraphs = richTextOf(*control.document()).paragraphs;
            ASSERT_EQ(plainTextOf(*control.document()), expected.text) << "round " << round;
            ASSERT_EQ(text.richText(), expected) << "round " << round;
        };
        text.setRichText(expected);
        compare();
        // A colour of which only the lower bytes are one.
        CharFormat odd;
        odd.colour = 0xFF000012;
        text.setCharacterRuns({ { text.length(), odd } });
        odd.colour = 0x12;
        expected.change(0, text.length(), [&odd](CharFormat &look) { look = odd; });
        compare();
        const int from = chance.upTo(text.length());
        const int length = chance.upTo(text.length() - from);
        const CharFormat laid = fromTextFormat(toTextFormat(chance.characterFormat()));
        text.setCharacterRuns({ { length, laid } }, from);
        expected.change(from, length, [&laid](CharFormat &look) { look = laid; });
        compare();
        const auto turn = [](CharFormat &look) {
            look.bold = !look.bold;
        };
        text.changeLooks(0, text.length(), turn);
        expected.change(0, text.length(), turn);
        compare();
        text.replace(from, 0, u"x\ny"_s);
        EXPECT_EQ(text.text(), QString(expected.text).insert(from, u"x\ny"_s));
    }
}

TEST_F(TextControlTest, ATextThatNoLineHoldsIsReplaced)
{
    control.shown().setText(u"a\rb\u2028c\nd"_s);
    EXPECT_EQ(control.shown().text(), u"a\uFFFDb\uFFFDc\nd");
    EXPECT_EQ(control.shown().richText().text, control.shown().text());
}

TEST_F(TextControlTest, WhatIsDraggedElsewhereKeepsItsLooksAndThoseBetween)
{
    CharFormat plain{ u"Arial"_s, 8, false, false, false, 0 };
    CharFormat red = plain;
    red.colour = 0xFF;
    ColouredText &text = control.shown();
    text.setPlain(plain);
    text.setText(u"one two three four"_s);
    text.setCharacterRuns({ { 3, red } }, 4);
    text.setCharacterRuns({ { 5, red } }, 8);
    text.select(14, 4);
    // The text is taken from its end and let go at the start, as one change.
    QMimeData data;
    data.setText(u"four"_s);
    const QPoint at(2, 8);
    QDragEnterEvent enter(at, Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(control.viewport(), &enter);
    QDropEvent event(at, Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(control.viewport(), &event);
    const std::vector<CharRun> looks = text.richText().characters;
    ASSERT_GE(looks.size(), 4u);
    EXPECT_TRUE(text.text().startsWith(u"fourone two three"));
    EXPECT_EQ(looks[1], (CharRun{ 3, red }));
    EXPECT_EQ(looks[3], (CharRun{ 5, red }));
}

TEST_F(TextControlTest, AScreenReaderIsToldTheColours)
{
    ColouredText &text = control.shown();
    text.setPlain({ u"Arial"_s, 8, false, false, false, 0 });
    text.setText(u"Rem x\nBTN S1"_s);
    text.setCharacterRuns({ { 3, { u"Arial"_s, 8, true, true, true, 0x0000FF } } }, 6);
    QAccessibleInterface *told = QAccessible::queryAccessibleInterface(&control);
    ASSERT_TRUE(told && told->textInterface() && told->editableTextInterface());
    EXPECT_EQ(told->role(), QAccessible::EditableText);
    EXPECT_EQ(told->text(QAccessible::Value), u"Rem x\nBTN S1");
    int start = -1;
    int end = -1;
    const QString look = told->textInterface()->attributes(7, &start, &end);
    EXPECT_EQ(start, 6);
    EXPECT_EQ(end, 9);
    for (const QString &wanted :
         { u"color:rgb(255,0,0);"_s, u"font-weight:bold;"_s, u"font-style:italic;"_s,
           u"text-underline-style:solid;"_s, u"font-family:\"Arial\";"_s, u"font-size:8pt;"_s }) {
        EXPECT_TRUE(look.contains(wanted)) << wanted.toStdString();
    }
    EXPECT_TRUE(told->textInterface()->attributes(0, &start, &end).contains(u"color:rgb(0,0,0);"));
    EXPECT_TRUE(told->textInterface()->attributes(12, &start, &end).contains(u"rgb(0,0,0)"));
    EXPECT_EQ(told->textInterface()->attributes(13, &start, &end), QString());
}

TEST_F(TextControlTest, AScreenReaderReadsAndWritesTheText)
{
    ColouredText &text = control.shown();
    text.setText(u"one\ntwo"_s);
    QAccessibleInterface *told = QAccessible::queryAccessibleInterface(&control);
    QAccessibleTextInterface &reader = *told->textInterface();
    EXPECT_EQ(reader.characterCount(), 7);
    EXPECT_EQ(reader.text(2, 5), u"e\nt");
    reader.setSelection(0, 1, 3);
    int start = -1;
    int end = -1;
    reader.selection(0, &start, &end);
    EXPECT_EQ(start, 1);
    EXPECT_EQ(end, 3);
    EXPECT_EQ(text.selLength(), 2);
    reader.removeSelection(0);
    EXPECT_EQ(reader.selectionCount(), 0);
    EXPECT_EQ(reader.offsetAtPoint(reader.characterRect(5).center()), 5);
    told->editableTextInterface()->replaceText(0, 3, u"1"_s);
    EXPECT_EQ(text.text(), u"1\ntwo");
    text.setLocked(true);
    EXPECT_TRUE(told->state().readOnly);
    told->editableTextInterface()->deleteText(0, 3);
    EXPECT_EQ(text.text(), u"1\ntwo");
}

TEST_F(TextControlTest, ZoomShowsTheTextLargerAndLeavesItsLooks)
{
    CharFormat plain;
    plain.family = u"DejaVu Sans"_s;
    plain.pointSize = 10;
    control.setLook(0xFFFFFF, plain);
    fill(3);
    const CharFormat look = control.shown().richText(0, 1).formatAt(0);
    const auto width = [this] {
        const QTextBlock line = control.document()->firstBlock();
        control.document()->documentLayout()->blockBoundingRect(line);
        return line.layout()->lineAt(0).naturalTextWidth();
    };
    const double before = width();
    control.setZoom(2);
    EXPECT_NEAR(width(), 2 * before, before / 5);
    EXPECT_EQ(control.shown().richText(0, 1).formatAt(0), look);
    EXPECT_NEAR(control.font().pointSizeF(), 2 * control.shown().plain().pointSize, 0.01);
    control.setZoom(1);
    EXPECT_EQ(width(), before);
}

TEST_F(TextControlTest, TheWheelWithCtrlAsksForZoomAndScrollsNothing)
{
    fill(100);
    QList<int> steps;
    QObject::connect(&control, &TextControl::zoomWanted,
                     [&steps](int each) { steps.append(each); });
    const auto turn = [this](int delta, Qt::KeyboardModifiers held) {
        QWheelEvent event(QPointF(50, 50), control.viewport()->mapToGlobal(QPointF(50, 50)), {},
                          QPoint(0, delta), Qt::NoButton, held, Qt::NoScrollPhase, false);
        QApplication::sendEvent(control.viewport(), &event);
    };
    turn(-60, Qt::ControlModifier);
    turn(-60, Qt::ControlModifier);
    turn(240, Qt::ControlModifier);
    EXPECT_EQ(steps, (QList<int>{ -1, 2 }));
    EXPECT_EQ(control.verticalScrollBar()->value(), 0);
    turn(-120, Qt::NoModifier);
    EXPECT_GT(control.verticalScrollBar()->value(), 0);
    EXPECT_EQ(steps.size(), 2);
}

TEST_F(TextControlTest, EveryTextHasTheMargin)
{
    const std::vector<ParagraphRun> one{ { 1, { .leftIndentTwips = 20 } } };
    EXPECT_EQ(richTextOf(*control.document()).paragraphs, one);
    control.shown().setText(u"a\nb"_s);
    const std::vector<ParagraphRun> two{ { 2, { .leftIndentTwips = 20 } } };
    EXPECT_EQ(richTextOf(*control.document()).paragraphs, two);
    control.shown().setText(QString());
    EXPECT_EQ(richTextOf(*control.document()).paragraphs, one);
}
