// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/document_states.h"

#include "platform/core/rtf.h"
#include "platform/richtext/rich_text_document.h"
#include "tests/support/rich_texts.h"

#include <gtest/gtest.h>

#include <QPlainTextDocumentLayout>
#include <QTextBlock>
#include <QTextDocument>

using namespace zeph;

namespace {

const CharFormat plain{ u"Arial"_s, 8, false, false, false, 0 };
const CharFormat red{ u"Arial"_s, 8, false, false, false, 0x0000FF };

class FollowedText : public QTextDocument
{
public:
    explicit FollowedText(const QString &text = {})
    {
        setDocumentLayout(new QPlainTextDocumentLayout(this));
        setUndoRedoEnabled(false);
        setRichText(*this, RichText::plain(text, plain));
    }
    void insert(int position, const QString &text)
    {
        QTextCursor cursor(this);
        cursor.setPosition(position);
        cursor.insertText(text, toTextFormat(plain));
    }
    QTextCursor stretch(int from, int to)
    {
        QTextCursor cursor(this);
        cursor.setPosition(from);
        cursor.setPosition(to, QTextCursor::KeepAnchor);
        return cursor;
    }
};

QString lines(int count)
{
    QString text;
    for (int line = 0; line < count; ++line) {
        text += u"BTN H1U Fire_Missile_"_s + QString::number(line) + u'\n';
    }
    return text;
}

/// One change of a document by chance: text, looks, paragraphs, all of it, several at a stroke.
void changeByChance(FollowedText &document, test::RichTextMaker &chance)
{
    const int size = document.characterCount() - 1;
    const int from = chance.upTo(size);
    const int to = std::min(size, from + chance.upTo(8));
    QTextCursor cursor = document.stretch(from, to);
    switch (chance.upTo(9)) {
    case 0:
        cursor.insertText(u"x\n\ny\n"_s, toTextFormat(chance.characterFormat()));
        break;
    case 1:
        cursor.removeSelectedText();
        break;
    case 2:
        cursor.setCharFormat(toTextFormat(chance.characterFormat()));
        break;
    case 3:
        cursor.setBlockFormat([&] {
            QTextBlockFormat format;
            format.setLeftMargin(chance.upTo(3) * 2);
            return format;
        }());
        break;
    case 4:
        setRichText(document, chance.make(u"ab\n"_s, 60));
        break;
    case 5:
        document.stretch(from, std::min(size, from + 200)).removeSelectedText();
        break;
    case 6: {
        cursor.beginEditBlock();
        cursor.insertText(u"first\n"_s);
        document.stretch(0, std::min(size, 1)).removeSelectedText();
        cursor.movePosition(QTextCursor::End);
        cursor.insertText(u"\nlast"_s);
        cursor.endEditBlock();
        break;
    }
    case 7:
        insertRichText(cursor, chance.make(u"cd\n"_s, 20));
        break;
    case 8:
        // A line end that is none of the file's, as pasted text may hold.
        cursor.insertText(u"s\u2028t"_s);
        break;
    default:
        cursor.insertText(u"t"_s);
        break;
    }
}

} // namespace

TEST(DocumentStates, GiveBackTextAndLooks)
{
    FollowedText document(u"BTN S1 Fire\nBTN S2 Flares"_s);
    DocumentStates states(document);
    document.stretch(0, 3).setCharFormat(toTextFormat(red));
    const RichText before = richTextOf(document);
    const DocumentState state = states.present();
    document.stretch(2, 15).removeSelectedText();
    document.stretch(0, 9).setCharFormat(toTextFormat(plain));
    ASSERT_NE(richTextOf(document), before);
    states.restore(state);
    EXPECT_EQ(richTextOf(document), before);
    EXPECT_EQ(states.richText(state), before);
}

TEST(DocumentStates, AnEmptyStateEmptiesTheDocument)
{
    FollowedText document(lines(300));
    DocumentStates states(document);
    states.restore(states.empty());
    EXPECT_EQ(plainTextOf(document), QString());
    document.insert(0, u"again"_s);
    EXPECT_EQ(states.richText(states.present()), richTextOf(document));
}

// Chunks of every size from one line on, so that each border meets each kind of change.
TEST(DocumentStates, AreExactWhateverChangesADocument)
{
    for (int round = 0; round < 300; ++round) {
        test::RichTextMaker chance{ quint32(round) };
        FollowedText document(lines(chance.upTo(20)));
        DocumentStates states(document, 1 + chance.upTo(7));
        std::vector<std::pair<DocumentState, RichText>> taken;
        for (int step = 0; step < 60; ++step) {
            changeByChance(document, chance);
            if (chance.upTo(2) == 0) {
                taken.emplace_back(states.present(), richTextOf(document));
                ASSERT_EQ(states.richText(taken.back().first), taken.back().second)
                    << "round " << round << " step " << step;
            }
            if (!taken.empty() && chance.upTo(4) == 0) {
                const auto &[state, text] = taken[size_t(chance.upTo(int(taken.size()) - 1))];
                states.restore(state);
                ASSERT_EQ(richTextOf(document), text) << "round " << round << " step " << step;
            }
        }
        for (const auto &[state, text] : taken) {
            ASSERT_EQ(states.richText(state), text) << "round " << round;
        }
    }
}

// What a state is told must be what it would have read, now and at each change that follows.
TEST(DocumentStates, WhatTheyAreToldIsWhatTheyWouldHaveRead)
{
    for (int round = 0; round < 300; ++round) {
        test::RichTextMaker chance{ quint32(round) };
        FollowedText document;
        DocumentStates states(document, 1 + chance.upTo(7));
        for (int step = 0; step < 20; ++step) {
            setRichText(document, chance.make(u"ab\n"_s, 60));
            states.know(richTextOf(document));
            ASSERT_EQ(states.presentText(), richTextOf(document)) << "round " << round;
            const DocumentState first = states.present();
            const RichText firstText = richTextOf(document);
            // New looks on the text that is known already.
            const int size = document.characterCount() - 1;
            document.stretch(chance.upTo(size), chance.upTo(size))
                .setCharFormat(toTextFormat(chance.characterFormat()));
            states.know(richTextOf(document));
            ASSERT_EQ(states.presentText(), richTextOf(document)) << "round " << round;
            changeByChance(document, chance);
            ASSERT_EQ(states.presentText(), richTextOf(document)) << "round " << round;
            DocumentStates fresh(document);
            ASSERT_EQ(states.presentText(), fresh.presentText()) << "round " << round;
            states.restore(first);
            ASSERT_EQ(richTextOf(document), firstText) << "round " << round;
        }
    }
}

// Looks laid chunk by chunk against looks laid over the whole document at once.
TEST(DocumentStates, LaysLooksAsTheyWouldBeLaidOverTheWholeDocument)
{
    for (int round = 0; round < 300; ++round) {
        test::RichTextMaker chance{ quint32(round) };
        FollowedText document;
        FollowedText other;
        DocumentStates states(document, 1 + chance.upTo(4));
        const RichText text = chance.make(u"ab\n"_s, 80);
        setRichText(document, text);
        setRichText(other, text);
        const DocumentState before = states.present();
        const RichText textBefore = richTextOf(document);
        for (int step = 0; step < 5; ++step) {
            LookRuns looks;
            std::vector<CharRun> runs;
            for (int i = 0; i < 3; ++i) {
                looks.looks.push_back(chance.characterFormat());
            }
            for (qsizetype left = text.text.size(); left > 0;) {
                const qsizetype length = std::min<qsizetype>(left, 1 + chance.upTo(20));
                const auto look = quint32(chance.upTo(2));
                looks.runs.push_back({ quint32(length), look });
                runs.push_back({ length, looks.looks[look] });
                left -= length;
            }
            states.setLooks(looks);
            applyCharacterRuns(other, runs);
            ASSERT_EQ(richTextOf(document), richTextOf(other)) << "round " << round;
            ASSERT_EQ(states.presentText(), richTextOf(other)) << "round " << round;
        }
        states.restore(before);
        ASSERT_EQ(richTextOf(document), textBefore) << "round " << round;
    }
}

TEST(DocumentStates, PiecesMakeTheWholeTextAndItsFile)
{
    for (int round = 0; round < 300; ++round) {
        test::RichTextMaker chance{ quint32(round) };
        FollowedText document;
        DocumentStates states(document, 1 + chance.upTo(4));
        setRichText(document, chance.make(u"ab\n"_s, 80));
        QString text;
        RtfWriter writer;
        states.readPieces(states.present(), [&](const RichText &piece) {
            text += piece.text;
            writer.add(piece);
        });
        ASSERT_EQ(text, richTextOf(document).text) << "round " << round;
        ASSERT_EQ(writer.take(), writeRtf(richTextOf(document))) << "round " << round;
    }
}

TEST(DocumentStates, AToldTextIsCutAsOneThatIsRead)
{
    FollowedText document(lines(10000));
    DocumentStates told(document);
    told.know(richTextOf(document));
    DocumentStates read(document);
    const std::vector<DocumentState> one{ told.present() };
    const std::vector<DocumentState> other{ read.present() };
    const qsizetype size = DocumentState::bytesHeld(one);
    EXPECT_LT(std::abs(size - DocumentState::bytesHeld(other)), size / 50);
}

TEST(DocumentStates, NewLooksThatAreToldShareTheText)
{
    FollowedText document(lines(10000));
    DocumentStates states(document);
    std::vector<DocumentState> taken{ states.present() };
    const qsizetype whole = DocumentState::bytesHeld(taken);
    states.know(states.presentText());
    taken.push_back(states.present());
    document.stretch(0, document.characterCount() - 1).setCharFormat(toTextFormat(red));
    states.know(richTextOf(document));
    taken.push_back(states.present());
    EXPECT_LT(DocumentState::bytesHeld(taken), 2 * whole);
}

TEST(DocumentStates, AreExactWithinAnOpenEditBlock)
{
    FollowedText document(lines(300));
    DocumentStates states(document);
    states.present();
    QTextCursor cursor(&document);
    cursor.beginEditBlock();
    document.insert(5, u"x"_s);
    EXPECT_EQ(states.presentText(), richTextOf(document));
    document.insert(1000, u"y\n"_s);
    cursor.endEditBlock();
    EXPECT_EQ(states.presentText(), richTextOf(document));
}

TEST(DocumentStates, AKeystrokeCostsOneChunk)
{
    FollowedText document(lines(10000));
    DocumentStates states(document);
    std::vector<DocumentState> taken{ states.present() };
    const qsizetype whole = DocumentState::bytesHeld(taken);
    EXPECT_GT(whole, document.characterCount() * 2);
    document.insert(100000, u"x"_s);
    taken.push_back(states.present());
    EXPECT_LT(DocumentState::bytesHeld(taken) - whole, whole / 50);
    // The same state twice costs nothing.
    const qsizetype two = DocumentState::bytesHeld(taken);
    taken.push_back(states.present());
    EXPECT_EQ(DocumentState::bytesHeld(taken), two);
}

TEST(DocumentStates, NewLooksShareTheText)
{
    FollowedText document(lines(10000));
    DocumentStates states(document);
    std::vector<DocumentState> taken{ states.present() };
    const qsizetype whole = DocumentState::bytesHeld(taken);
    const RichText before = richTextOf(document);
    document.stretch(0, document.characterCount() - 1).setCharFormat(toTextFormat(red));
    taken.push_back(states.present());
    EXPECT_LT(DocumentState::bytesHeld(taken), 2 * whole);
    states.restore(taken.front());
    EXPECT_EQ(richTextOf(document), before);
}

TEST(DocumentStates, RestoringTouchesOnlyTheChunksThatDiffer)
{
    FollowedText document(lines(1000));
    DocumentStates states(document);
    const DocumentState state = states.present();
    document.insert(20000, u"typed"_s);
    int from = -1;
    int added = -1;
    QObject::connect(&document, &QTextDocument::contentsChange, &document,
                     [&](int at, int, int more) {
                         from = at;
                         added = more;
                     });
    states.restore(state);
    EXPECT_GE(from, 19000);
    EXPECT_LT(added, 100);
}

TEST(DocumentStates, ManyLinesAtOnceAreCutIntoChunks)
{
    FollowedText document;
    DocumentStates states(document);
    std::vector<DocumentState> taken{ states.present() };
    document.insert(0, lines(5000));
    taken.push_back(states.present());
    const qsizetype filled = DocumentState::bytesHeld(taken);
    document.insert(60000, u"x"_s);
    taken.push_back(states.present());
    EXPECT_LT(DocumentState::bytesHeld(taken) - filled, filled / 25);
}
