// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/richtext/rich_text_document.h"
#include "tests/support/rich_texts.h"

#include <gtest/gtest.h>

#include <QPlainTextDocumentLayout>
#include <QSignalSpy>
#include <QTextBlock>
#include <QTextList>

using namespace zeph;

namespace {

const CharFormat bold{ {}, 0, true, false, false, {} };
const CharFormat red{ u"Arial"_s, 10, false, false, true, colorRef(255, 0, 1) };
const ParagraphFormat centred{ 0, ParagraphAlignment::Centre, false };
const ParagraphFormat indented{ 100, ParagraphAlignment::Left, false };
const ParagraphFormat bulleted{ 0, ParagraphAlignment::Left, true };

/// Both kinds of document: the one of the editors' controls and the one of word processing.
enum class Layout { Plain, Full };

std::unique_ptr<QTextDocument> makeDocument(Layout layout, const QString &text = {})
{
    auto document = std::make_unique<QTextDocument>();
    if (layout == Layout::Plain) {
        document->setDocumentLayout(new QPlainTextDocumentLayout(document.get()));
    }
    document->setPlainText(text);
    return document;
}

class RichTextDocument : public testing::TestWithParam<Layout>
{
protected:
    std::unique_ptr<QTextDocument> document(const QString &text = {}) const
    {
        return makeDocument(GetParam(), text);
    }
};

INSTANTIATE_TEST_SUITE_P(BothLayouts, RichTextDocument,
                         testing::Values(Layout::Plain, Layout::Full));

RichText sample()
{
    return { u"ab\ncde\n"_s,
             { { 2, bold }, { 3, red }, { 2, {} } },
             { { 1, centred }, { 1, bulleted }, { 1, indented } } };
}

} // namespace

TEST(TextFormats, ComeBackFromTheToolkit)
{
    test::RichTextMaker maker(1);
    for (int round = 0; round < 500; ++round) {
        const CharFormat format = maker.characterFormat();
        EXPECT_EQ(fromTextFormat(toTextFormat(format)), format);
    }
}

TEST(TextFormats, SaysThatCharactersAreNotBold)
{
    QFont control;
    control.setBold(true);
    const QFont font = toTextFormat({}).font().resolve(control);
    EXPECT_FALSE(font.bold());
}

TEST(TextFormats, LeavesFamilySizeAndColourToTheControl)
{
    const QTextCharFormat format = toTextFormat(bold);
    EXPECT_FALSE(format.hasProperty(QTextFormat::FontFamilies));
    EXPECT_FALSE(format.hasProperty(QTextFormat::FontPointSize));
    EXPECT_FALSE(format.hasProperty(QTextFormat::ForegroundBrush));
    EXPECT_EQ(fromTextFormat(QTextCharFormat()), CharFormat());
}

TEST(TextFormats, PixelSizesOfPastedTextBecomePoints)
{
    QTextCharFormat format;
    format.setProperty(QTextFormat::FontPixelSize, 16);
    EXPECT_EQ(fromTextFormat(format).pointSize, 12);
}

TEST_P(RichTextDocument, TextAndLooksComeBack)
{
    const auto doc = document(u"old"_s);
    setRichText(*doc, sample());
    EXPECT_EQ(richTextOf(*doc), sample());
    EXPECT_EQ(doc->blockCount(), 3);
}

TEST_P(RichTextDocument, GeneratedTextsComeBackWholeAndInParts)
{
    test::RichTextMaker maker(77);
    const auto doc = document();
    for (int round = 0; round < 300; ++round) {
        const RichText text = maker.make(u"ab\n\n\u00a0\u0085\t"_s, 40);
        setRichText(*doc, text);
        ASSERT_EQ(richTextOf(*doc), text);
        const int from = maker.upTo(40);
        const int length = maker.upTo(40);
        ASSERT_EQ(richTextOf(*doc, from, length), text.mid(from, length)) << from << ' ' << length;
    }
}

TEST_P(RichTextDocument, EveryCharacterOf1252Survives)
{
    QString text;
    for (int unit = 0; unit < 256; ++unit) {
        if (unit != '\r') {
            text.append(QChar(unit));
        }
    }
    text += u"\u20ac\u201a\u2026\u0178\n"_s;
    const auto doc = document();
    setRichText(*doc, RichText::plain(text));
    EXPECT_EQ(plainTextOf(*doc), text);
    EXPECT_EQ(richTextOf(*doc, 1, 200).text, text.mid(1, 200));
    doc->setPlainText(text);
    EXPECT_EQ(plainTextOf(*doc), text);
}

TEST_P(RichTextDocument, StrayBordersOfTheToolkitMakeNoParagraphs)
{
    const auto doc = document();
    const char16_t units[] = { u'a', u'\r', 0x2028, 0x2029, 0xfdd0, 0xfdd1, u'\n', u'b' };
    setRichText(*doc, RichText::plain(QStringView(units, 8).toString(), bold));
    EXPECT_EQ(doc->blockCount(), 2);
    EXPECT_EQ(richTextOf(*doc), RichText::plain(u"a\ufffd\ufffd\ufffd\ufffd\ufffd\nb"_s, bold));
}

TEST_P(RichTextDocument, SoftLineEndsAreLineEnds)
{
    const auto doc = document(u"a\u2028b\nc\u2028\u2028d"_s);
    const RichText text = richTextOf(*doc);
    EXPECT_EQ(text, RichText::plain(u"a\nb\nc\n\nd"_s));
    EXPECT_EQ(richTextOf(*doc, 2, 4), RichText::plain(u"b\nc\n"_s));
}

TEST_P(RichTextDocument, SettingIsOneChangeWithoutUndo)
{
    const auto doc = document(u"old"_s);
    doc->setUndoRedoEnabled(true);
    setRichText(*doc, sample());
    EXPECT_FALSE(doc->isUndoAvailable());
    EXPECT_TRUE(doc->isUndoRedoEnabled());
    EXPECT_FALSE(doc->isModified());
    doc->setUndoRedoEnabled(false);
    const QSignalSpy changes(doc.get(), &QTextDocument::contentsChanged);
    setRichText(*doc, sample());
    EXPECT_EQ(changes.count(), 1);
    EXPECT_FALSE(doc->isUndoRedoEnabled());
}

TEST_P(RichTextDocument, SettingForgetsTheOldParagraphs)
{
    const auto doc = document();
    setRichText(*doc, RichText::plain(u"a\nb"_s, red, bulleted));
    setRichText(*doc, RichText::plain(u"c\nd\ne"_s));
    EXPECT_EQ(richTextOf(*doc), RichText::plain(u"c\nd\ne"_s));
}

TEST_P(RichTextDocument, NeighbouringBulletsAreOneList)
{
    const auto doc = document();
    setRichText(*doc, RichText::plain(u"a\nb"_s, {}, bulleted));
    ASSERT_TRUE(doc->firstBlock().textList());
    EXPECT_EQ(doc->firstBlock().textList()->count(), 2);
}

TEST_P(RichTextDocument, InsertingReplacesTheSelection)
{
    const auto doc = document();
    setRichText(*doc, RichText::plain(u"abcdef"_s, bold));
    QTextCursor cursor(doc.get());
    cursor.setPosition(2);
    cursor.setPosition(4, QTextCursor::KeepAnchor);
    insertRichText(cursor, RichText::plain(u"XYZ"_s, red));
    EXPECT_EQ(cursor.position(), 5);
    EXPECT_FALSE(cursor.hasSelection());
    EXPECT_EQ(richTextOf(*doc),
              (RichText{ u"abXYZef"_s, { { 2, bold }, { 3, red }, { 2, bold } }, { { 1, {} } } }));
}

TEST_P(RichTextDocument, InsertingKeepsTheFormatOfParagraphsThatHaveText)
{
    const auto doc = document();
    setRichText(*doc, RichText::plain(u"abcd"_s, {}, centred));
    QTextCursor cursor(doc.get());
    cursor.setPosition(2);
    insertRichText(cursor, RichText::plain(u"1\n2\n3"_s, {}, indented));
    EXPECT_EQ(richTextOf(*doc),
              (RichText{ u"ab1\n2\n3cd"_s,
                         { { 9, {} } },
                         { { 1, centred }, { 1, indented }, { 1, centred } } }));
}

TEST_P(RichTextDocument, InsertingIntoAnEmptyParagraphBringsItsFormat)
{
    const auto doc = document();
    QTextCursor cursor(doc.get());
    insertRichText(cursor, sample());
    EXPECT_EQ(richTextOf(*doc), sample());
}

TEST_P(RichTextDocument, InsertingIsOneUndoStep)
{
    const auto doc = document(u"abc"_s);
    doc->setUndoRedoEnabled(true);
    QTextCursor cursor(doc.get());
    cursor.setPosition(1);
    insertRichText(cursor, sample());
    doc->undo();
    EXPECT_EQ(plainTextOf(*doc), u"abc"_s);
    EXPECT_FALSE(doc->isUndoAvailable());
}

TEST_P(RichTextDocument, RunsAreLaidOverTheText)
{
    const auto doc = document(u"ab\ncd"_s);
    applyCharacterRuns(*doc, { { 1, red }, { 2, bold }, { 2, {} } });
    EXPECT_EQ(richTextOf(*doc),
              (RichText{ u"ab\ncd"_s, { { 1, red }, { 2, bold }, { 2, {} } }, { { 1 + 1, {} } } }));
}

TEST_P(RichTextDocument, RunsLeaveAloneWhatTheyDoNotReach)
{
    const auto doc = document();
    setRichText(*doc, RichText::plain(u"abcd"_s, red));
    applyCharacterRuns(*doc, { { 0, bold }, { 2, bold } });
    EXPECT_EQ(richTextOf(*doc).characters, (std::vector<CharRun>{ { 2, bold }, { 2, red } }));
}

TEST_P(RichTextDocument, RunsBeyondTheTextAreCut)
{
    const auto doc = document(u"ab"_s);
    applyCharacterRuns(*doc, { { 1, red }, { 700, bold }, { 3, red } });
    EXPECT_EQ(richTextOf(*doc), (RichText{ u"ab"_s, { { 1, red }, { 1, bold } }, { { 1, {} } } }));
}

TEST_P(RichTextDocument, RunsThatChangeNothingTouchNothing)
{
    const auto doc = document();
    setRichText(*doc, sample());
    const QSignalSpy changes(doc.get(), &QTextDocument::contentsChange);
    applyCharacterRuns(*doc, sample().characters);
    EXPECT_EQ(changes.count(), 0);
}

TEST_P(RichTextDocument, GeneratedRunsReplaceGeneratedRuns)
{
    test::RichTextMaker maker(9);
    const auto doc = document();
    for (int round = 0; round < 300; ++round) {
        RichText text = maker.make(u"abc\n"_s, 40);
        setRichText(*doc, text);
        const RichText other = maker.make(u"abc\n"_s, 60);
        applyCharacterRuns(*doc, other.characters);
        // What the runs reach has theirs, the rest its own.
        const qsizetype reached = std::min(other.text.size(), text.text.size());
        RichText expected = text;
        std::vector<CharRun> runs = other.mid(0, reached).characters;
        const std::vector<CharRun> rest = text.mid(reached, text.text.size()).characters;
        runs.insert(runs.end(), rest.begin(), rest.end());
        expected.characters = runs;
        expected.normalise();
        ASSERT_EQ(richTextOf(*doc), expected);
    }
}

TEST_P(RichTextDocument, RunsAreLaidFromAPositionOn)
{
    const auto doc = document();
    setRichText(*doc, RichText::plain(u"abc\ndef"_s, red));
    applyCharacterRuns(*doc, { { 1, bold }, { 2, {} } }, 2);
    EXPECT_EQ(characterRunsOf(*doc),
              (std::vector<CharRun>{ { 2, red }, { 1, bold }, { 2, {} }, { 2, red } }));
    applyCharacterRuns(*doc, { { 9, bold } }, 6);
    EXPECT_EQ(characterRunsOf(*doc, 5, 9), (std::vector<CharRun>{ { 1, red }, { 1, bold } }));
    applyCharacterRuns(*doc, { { 9, bold } }, 700);
    EXPECT_EQ(characterRunsOf(*doc, 5, 1), (std::vector<CharRun>{ { 1, red } }));
}

TEST_P(RichTextDocument, GeneratedRunsFromAPositionLeaveTheRest)
{
    test::RichTextMaker maker(11);
    const auto doc = document();
    for (int round = 0; round < 300; ++round) {
        const RichText text = maker.make(u"abc\n"_s, 40);
        setRichText(*doc, text);
        const qsizetype from = round % (text.text.size() + 1);
        const RichText other = maker.make(u"abc\n"_s, 20);
        applyCharacterRuns(*doc, other.characters, from);
        RichTextChanges expected(text);
        qsizetype at = from;
        for (const CharRun &run : other.characters) {
            expected.change(at, run.length, [&run](CharFormat &format) { format = run.format; });
            at += run.length;
        }
        ASSERT_EQ(richTextOf(*doc), expected.take());
    }
}

TEST_P(RichTextDocument, AllParagraphsTakeOneFormatOnce)
{
    const auto doc = document();
    setRichText(*doc,
                RichText{ u"a\nb\nc"_s, {}, { { 1, { .leftIndentTwips = 300 } }, { 2, {} } } });
    setParagraphFormat(*doc, { .leftIndentTwips = 20 });
    EXPECT_EQ(richTextOf(*doc).paragraphs,
              (std::vector<ParagraphRun>{ { 3, { .leftIndentTwips = 20 } } }));
    const QSignalSpy changes(doc.get(), &QTextDocument::contentsChange);
    setParagraphFormat(*doc, { .leftIndentTwips = 20 });
    EXPECT_EQ(changes.count(), 0);
}

TEST_P(RichTextDocument, BulletsGoWithTheParagraphFormat)
{
    const auto doc = document();
    setRichText(*doc, RichText::plain(u"a\nb"_s, {}, { .bullet = true }));
    setParagraphFormat(*doc, {});
    EXPECT_EQ(richTextOf(*doc).paragraphs, (std::vector<ParagraphRun>{ { 2, {} } }));
}

TEST_P(RichTextDocument, LinesAreCountedFromZero)
{
    const auto doc = document(u"ab\n\ncd"_s);
    EXPECT_EQ(lineCount(*doc), 3);
    EXPECT_EQ(lineOfCharacter(*doc, 0), 0);
    EXPECT_EQ(lineOfCharacter(*doc, 2), 0);
    EXPECT_EQ(lineOfCharacter(*doc, 3), 1);
    EXPECT_EQ(lineOfCharacter(*doc, 4), 2);
    EXPECT_EQ(lineOfCharacter(*doc, 999), 2);
    EXPECT_EQ(lineOfCharacter(*doc, -1), 0);
    EXPECT_EQ(startOfLine(*doc, 0), 0);
    EXPECT_EQ(startOfLine(*doc, 2), 4);
    EXPECT_EQ(startOfLine(*doc, 3), -1);
    EXPECT_EQ(startOfLine(*doc, -1), -1);
    EXPECT_EQ(lineCount(*document()), 1);
}

TEST_P(RichTextDocument, SpanRunsOverOrUpToASet)
{
    const auto doc = document(u"aab c\nd"_s);
    EXPECT_EQ(spanEnd(*doc, 0, u"a", true, false), 2);
    EXPECT_EQ(spanEnd(*doc, 0, u" \t", true, true), 3);
    EXPECT_EQ(spanEnd(*doc, 0, u"\r\n", true, true), 5);
    EXPECT_EQ(spanEnd(*doc, 0, u"\r", true, true), 5);
    EXPECT_EQ(spanEnd(*doc, 5, u"\n", true, false), 6);
    EXPECT_EQ(spanEnd(*doc, 2, u"b", false, false), 2);
    EXPECT_EQ(spanEnd(*doc, 3, u"ab", false, false), 0);
    EXPECT_EQ(spanEnd(*doc, 7, u"\n", false, true), 6);
    EXPECT_EQ(spanEnd(*doc, 6, u"x", true, true), 7);
    EXPECT_EQ(spanEnd(*doc, 99, u"x", true, true), 7);
    EXPECT_EQ(spanEnd(*doc, -4, u"x", false, true), 0);
}

TEST_P(RichTextDocument, AStretchOfTextIsThatOfTheWhole)
{
    test::RichTextMaker maker(4711);
    for (int round = 0; round < 300; ++round) {
        const RichText text = maker.make(u"ab\n\u00a0\t"_s, 30);
        const auto doc = document();
        setRichText(*doc, text);
        const int from = maker.upTo(int(text.text.size()));
        const int length = maker.upTo(40);
        ASSERT_EQ(plainTextOf(*doc, from, length), text.text.mid(from, length));
    }
    EXPECT_EQ(plainTextOf(*document(u"abc"_s), -4, 2), u"ab");
}

TEST_P(RichTextDocument, PlainTextHasItsParagraphsAndNoLooks)
{
    test::RichTextMaker maker(4712);
    for (int round = 0; round < 300; ++round) {
        const RichText text = maker.make(u"ab\n"_s, 30);
        const auto doc = document();
        setPlainText(*doc, text.text, text.paragraphs);
        ASSERT_EQ(plainTextOf(*doc), text.text);
        ASSERT_EQ(paragraphRunsOf(*doc, 0, text.text), text.paragraphs);
        for (const QTextFormat &format : doc->allFormats()) {
            ASSERT_TRUE(!format.isCharFormat() || format.properties().isEmpty());
        }
        const RichText other = maker.make(u"a\n"_s, 30);
        if (other.paragraphCount() == text.paragraphCount()) {
            setParagraphRuns(*doc, 0, text.text, other.paragraphs);
            ASSERT_EQ(paragraphRunsOf(*doc, 0, text.text), other.paragraphs);
        }
    }
}

TEST_P(RichTextDocument, ALineEndWithinAParagraphCountsAsOneMore)
{
    const auto doc = document();
    QTextCursor(doc.get()).insertText(u"ab\u2028cd\nef"_s);
    EXPECT_EQ(paragraphRunsOf(*doc, 0, u"ab\ncd\nef"), (std::vector<ParagraphRun>{ { 3, {} } }));
    EXPECT_EQ(paragraphRunsOf(*doc, 4, u"d\nef"), (std::vector<ParagraphRun>{ { 2, {} } }));
    EXPECT_EQ(insertableText(u"ab\u2028cd\r\nef"_s), u"ab\uFFFDcd\uFFFD\nef");
}
