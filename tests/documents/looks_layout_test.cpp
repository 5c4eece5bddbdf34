// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// The layout against the toolkit's own, whose looks are pieces of its text: same pictures, same
// sizes.

#include "documents/looks_layout.h"

#include "documents/document_states.h"
#include "platform/richtext/rich_text_document.h"
#include "tests/support/rich_texts.h"

#include <gtest/gtest.h>

#include <QInputMethodEvent>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTextBlock>

using namespace zeph;

namespace {

const CharFormat plainLook{ u"Arial"_s, 9, false, false, false, 0x202020 };
const CharFormat redLook{ u"Arial"_s, 9, false, false, false, 0x0000FF };
const CharFormat bigLook{ u"Arial"_s, 14, true, true, true, 0x00FF00 };

/// A text edit as the program has them.
class View : public QPlainTextEdit
{
public:
    View()
    {
        setLineWrapMode(NoWrap);
        setFont(toTextFormat(plainLook).font());
        QPalette colours = palette();
        colours.setColor(QPalette::Text, QColor(0x20, 0x20, 0x20));
        setPalette(colours);
        resize(400, 300);
    }
    /// Only one of two can have the focus, and with it a caret that blinks.
    void focusInEvent(QFocusEvent *) override { }
    void prepare()
    {
        document()->setUndoRedoEnabled(false);
        document()->setDocumentMargin(6);
        setUndoRedoEnabled(false);
    }
};

/// Looks in pieces of the text.
class PiecesView : public View
{
public:
    PiecesView() { prepare(); }
    void setText(const RichText &text) { setRichText(*document(), text); }
};

/// Looks in the layout.
class LooksView : public View
{
public:
    LooksView() : states(std::make_unique<DocumentStates>(*document()))
    {
        document()->setDocumentLayout(new LooksLayout(*document(), *states));
        setDocument(document());
        prepare();
    }
    void setText(const RichText &text) { states->setText(text); }

    std::unique_ptr<DocumentStates> states;
};

RichText sample(int lineCount)
{
    RichText text = RichText::plain(u"Rem\tThe first line of a file, in its looks\n"_s, plainLook);
    for (int line = 1; line < lineCount; ++line) {
        text.append(RichText::plain(u"BTN "_s, redLook));
        text.append(RichText::plain(u"H"_s + QString::number(line) + u"U /U AVA \u00c4\u00df "_s,
                                    plainLook));
        text.append(RichText::plain(u"Missile"_s, line % 7 == 0 ? bigLook : redLook));
        text.append(RichText::plain(QString(line % 50, u'_') + u'\n', plainLook));
    }
    return text;
}

QImage pictureOf(QWidget &widget)
{
    widget.show();
    QCoreApplication::processEvents();
    return widget.grab().toImage();
}

class LooksLayoutTest : public testing::Test
{
protected:
    void setText(const RichText &text)
    {
        pieces.setText(text);
        looks.setText(text);
    }
    void comparePictures()
    {
        const QImage one = pictureOf(pieces);
        const QImage other = pictureOf(looks);
        ASSERT_EQ(one, other);
        ASSERT_EQ(looks.horizontalScrollBar()->maximum(), pieces.horizontalScrollBar()->maximum());
        ASSERT_EQ(looks.verticalScrollBar()->maximum(), pieces.verticalScrollBar()->maximum());
    }

    PiecesView pieces;
    LooksView looks;
};

} // namespace

TEST_F(LooksLayoutTest, LooksAsAColouredTextDoes)
{
    setText(sample(40));
    comparePictures();
    pieces.verticalScrollBar()->setValue(20);
    looks.verticalScrollBar()->setValue(20);
    pieces.horizontalScrollBar()->setValue(30);
    looks.horizontalScrollBar()->setValue(30);
    comparePictures();
}

TEST_F(LooksLayoutTest, PlainTextIsBlackOnWhiteNoMore)
{
    // The comparison of pictures sees colours at all.
    looks.setText(sample(5));
    const QImage coloured = pictureOf(looks);
    looks.states->setCharacterRuns({ { looks.document()->characterCount() - 1, plainLook } });
    EXPECT_NE(pictureOf(looks), coloured);
}

TEST_F(LooksLayoutTest, FollowsWhateverChanges)
{
    for (int round = 0; round < 20; ++round) {
        test::RichTextMaker chance{ quint32(round) };
        RichText text = sample(5 + chance.upTo(30));
        setText(text);
        comparePictures();
        for (int step = 0; step < 10; ++step) {
            const int size = int(text.text.size());
            const int from = chance.upTo(size);
            const int length = std::min(chance.upTo(chance.upTo(3) == 0 ? 300 : 8), size - from);
            if (chance.upTo(2) == 0) {
                const RichText fresh = sample(chance.upTo(2)).mid(0, chance.upTo(50));
                looks.states->replace(from, length, fresh);
                RichText now = text.mid(0, from);
                now.append(fresh);
                now.append(text.mid(from + length, size));
                text = now;
            } else {
                const CharFormat look = chance.upTo(1) == 0 ? redLook : plainLook;
                looks.states->setCharacterRuns({ { length, look } }, from);
                text.change(from, length, [&look](CharFormat &format) { format = look; });
            }
            pieces.setText(text);
            looks.verticalScrollBar()->setValue(0);
            const QImage one = pictureOf(pieces);
            const QImage other = pictureOf(looks);
            // The toolkit's own layout may not know yet how wide a line below is, and lacks the
            // scroll bar then.
            const QRect both = pieces.viewport()->geometry() & looks.viewport()->geometry();
            ASSERT_EQ(one.copy(both), other.copy(both)) << "round " << round << " step " << step;
        }
    }
}

TEST_F(LooksLayoutTest, AnUndoneStateLooksAsBefore)
{
    looks.setText(sample(30));
    const QImage before = pictureOf(looks);
    const DocumentState state = looks.states->present();
    looks.states->setCharacterRuns({ { 40, bigLook } }, 60);
    EXPECT_NE(pictureOf(looks), before);
    looks.states->restore(state);
    EXPECT_EQ(pictureOf(looks), before);
    looks.states->replace(3, 100, RichText::plain(u"x\ny"_s, redLook));
    EXPECT_NE(pictureOf(looks), before);
    looks.states->restore(state);
    EXPECT_EQ(pictureOf(looks), before);
}

TEST_F(LooksLayoutTest, TypedTextTakesTheLookBeforeIt)
{
    setText(sample(10));
    for (View *view : { static_cast<View *>(&pieces), static_cast<View *>(&looks) }) {
        QTextCursor cursor = view->textCursor();
        cursor.setPosition(50);
        view->setTextCursor(cursor);
        QTest::keyClicks(view, u"abc def"_s);
        QTest::keyClick(view, Qt::Key_Return);
        QTest::keyClick(view, Qt::Key_Backspace);
    }
    comparePictures();
}

TEST_F(LooksLayoutTest, NewLooksLayOutOnlyTheLinesThatHaveThem)
{
    looks.setText(sample(10));
    pictureOf(looks);
    const QTextBlock third = looks.document()->findBlockByNumber(2);
    looks.states->setCharacterRuns({ { 3, bigLook }, { 1, plainLook } }, third.position());
    looks.states->setCharacterRuns({ { 3, redLook } },
                                   looks.document()->lastBlock().position() - 5);
    for (QTextBlock line = looks.document()->begin(); line.isValid(); line = line.next()) {
        EXPECT_GT(line.layout()->lineCount(), 0) << line.blockNumber();
    }
    std::vector<CharRun> runs;
    for (QTextBlock line = looks.document()->begin(); line.isValid(); line = line.next()) {
        runs.push_back(
            { line.length() - 1, line.blockNumber() % 2 == 0 ? bigLook : CharFormat(redLook) });
        runs.push_back({ 1, plainLook });
    }
    const std::vector<CharRun> before = looks.states->looks(0, 100000);
    looks.states->setCharacterRuns(before);
    for (QTextBlock line = looks.document()->begin(); line.isValid(); line = line.next()) {
        EXPECT_GT(line.layout()->lineCount(), 0) << line.blockNumber();
    }
    looks.states->setCharacterRuns(
        { { 2, redLook }, { third.position() - 2, plainLook }, { 2, redLook } });
    EXPECT_EQ(looks.document()->begin().layout()->lineCount(), 0);
    EXPECT_EQ(third.layout()->lineCount(), 0);
    EXPECT_GT(third.next().layout()->lineCount(), 0);
}

TEST_F(LooksLayoutTest, GivingLooksIsNoChangeOfTheText)
{
    looks.setText(sample(10));
    QSignalSpy changed(looks.document(), &QTextDocument::contentsChanged);
    QSignalSpy change(looks.document(), &QTextDocument::contentsChange);
    pictureOf(looks);
    EXPECT_EQ(changed.size(), 0);
    // What is told next is what was done, no more.
    QTextCursor cursor(looks.document());
    cursor.setPosition(100);
    cursor.insertText(u"x"_s);
    ASSERT_EQ(change.size(), 1);
    EXPECT_EQ(change[0], (QList<QVariant>{ 100, 0, 1 }));
}

TEST_F(LooksLayoutTest, TheLongestLineThatShrinksLeavesTheNextLongest)
{
    looks.setText(RichText::plain(
        QString(90, u'x') + u'\n' + QString(80, u'x') + u'\n' + QString(70, u'x'), plainLook));
    pictureOf(looks);
    const auto width = [this] {
        return looks.document()->documentLayout()->documentSize().width();
    };
    const double longest = width();
    QTextCursor cursor(looks.document());
    cursor.setPosition(0);
    cursor.setPosition(60, QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    pictureOf(looks);
    const double second = width();
    EXPECT_LT(second, longest);
    cursor.setPosition(31);
    cursor.setPosition(112, QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    pictureOf(looks);
    EXPECT_LT(width(), second);
    looks.setText(RichText::plain(QString(90, u'x'), plainLook));
    pictureOf(looks);
    EXPECT_EQ(width(), longest);
}

TEST_F(LooksLayoutTest, ComposedTextIsShownAmongTheLooks)
{
    setText(sample(3));
    for (View *view : { static_cast<View *>(&pieces), static_cast<View *>(&looks) }) {
        QTextCursor cursor = view->textCursor();
        cursor.setPosition(50);
        view->setTextCursor(cursor);
        QTextCharFormat underlined;
        underlined.setFontUnderline(true);
        QInputMethodEvent event(u"xyz"_s,
                                { { QInputMethodEvent::TextFormat, 0, 3, QVariant(underlined) } });
        QCoreApplication::sendEvent(view, &event);
    }
    comparePictures();
    for (View *view : { static_cast<View *>(&pieces), static_cast<View *>(&looks) }) {
        QInputMethodEvent event;
        event.setCommitString(u"xyz"_s);
        QCoreApplication::sendEvent(view, &event);
    }
    comparePictures();
}
