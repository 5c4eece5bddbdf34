// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/text_control.h"

#include "documents/coloured_text.h"
#include "platform/richtext/rich_text_document.h"
#include "tests/support/rich_texts.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QMimeData>
#include <QScrollBar>
#include <QTest>

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
    bool drop(QMimeData &data)
    {
        const QPoint at(5, 5);
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

// Reading costs only what has changed; what it gives must be what the document holds.
TEST_F(TextControlTest, ItsRichTextIsTheDocumentsWhateverSetIt)
{
    for (int round = 0; round < 200; ++round) {
        test::RichTextMaker chance{ quint32(round) };
        control.shown().setRichText(chance.make(u"ab \n\r\u2028"_s, 80));
        ASSERT_EQ(control.shown().richText(), richTextOf(*control.document())) << "round " << round;
        // A colour of which only the lower bytes are one.
        CharFormat odd;
        odd.colour = 0xFF000012;
        control.shown().setCharacterRuns({ { control.shown().length(), odd } });
        ASSERT_EQ(control.shown().richText(), richTextOf(*control.document())) << "round " << round;
        const int from = chance.upTo(control.shown().length());
        control.shown().setCharacterRuns(
            { { chance.upTo(control.shown().length() - from), chance.characterFormat() } }, from);
        ASSERT_EQ(control.shown().richText(), richTextOf(*control.document())) << "round " << round;
        control.shown().changeLooks(0, control.shown().length(),
                                    [](CharFormat &look) { look.bold = !look.bold; });
        control.shown().replace(from, 0, u"x\ny"_s);
        ASSERT_EQ(control.shown().richText(), richTextOf(*control.document())) << "round " << round;
    }
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
