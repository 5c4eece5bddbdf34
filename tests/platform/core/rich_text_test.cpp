// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "tests/support/rich_texts.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>

using namespace zeph;

namespace {

const CharFormat bold{ {}, 0, true, false, false, {} };
const CharFormat red{ u"Arial"_s, 10, false, false, false, colorRef(255, 0, 0) };
const ParagraphFormat centred{ 0, ParagraphAlignment::Centre, false };
const ParagraphFormat indented{ 720, ParagraphAlignment::Left, false };

RichText sample()
{
    return { u"ab\ncde\n"_s,
             { { 2, bold }, { 3, red }, { 2, {} } },
             { { 1, centred }, { 2, indented } } };
}

} // namespace

TEST(RichTextPlain, HasOneRunOfEachKind)
{
    const RichText text = RichText::plain(u"a\nb"_s, bold, centred);
    EXPECT_EQ(text, (RichText{ u"a\nb"_s, { { 3, bold } }, { { 2, centred } } }));
    EXPECT_EQ(RichText::plain({}, bold), (RichText{ {}, {}, { { 1, {} } } }));
}

TEST(RichTextFormatAt, GivesTheRunOfTheCharacter)
{
    EXPECT_EQ(sample().formatAt(0), bold);
    EXPECT_EQ(sample().formatAt(1), bold);
    EXPECT_EQ(sample().formatAt(2), red);
    EXPECT_EQ(sample().formatAt(6), CharFormat());
}

TEST(RichTextFormatAt, GivesTheLastFormatAfterTheEnd)
{
    EXPECT_EQ(RichText::plain(u"a"_s, bold).formatAt(1), bold);
    EXPECT_EQ(RichText::plain({}).formatAt(0), CharFormat());
}

TEST(RichTextMid, TakesTheRunsAndParagraphsOfTheStretch)
{
    EXPECT_EQ(
        sample().mid(1, 3),
        (RichText{ u"b\nc"_s, { { 1, bold }, { 2, red } }, { { 1, centred }, { 1, indented } } }));
    EXPECT_EQ(sample().mid(3, 1), (RichText{ u"c"_s, { { 1, red } }, { { 1, indented } } }));
}

TEST(RichTextMid, ClampsTheStretchToTheText)
{
    EXPECT_EQ(sample().mid(-5, 1000), sample());
    EXPECT_EQ(sample().mid(99, 1), (RichText{ {}, {}, { { 1, indented } } }));
    EXPECT_EQ(sample().mid(0, -1), (RichText{ {}, {}, { { 1, centred } } }));
    EXPECT_EQ(sample().mid(2, std::numeric_limits<qsizetype>::max()).text, u"\ncde\n"_s);
}

TEST(RichTextAppend, MergesEqualNeighboursAtTheSeam)
{
    RichText text = RichText::plain(u"a"_s, bold);
    text.append(RichText::plain(u"b"_s, bold));
    EXPECT_EQ(text, RichText::plain(u"ab"_s, bold));
}

TEST(RichTextAppend, JoinedParagraphKeepsItsFormatUnlessItIsEmpty)
{
    RichText text = RichText::plain(u"a"_s, {}, centred);
    text.append(RichText::plain(u"b\nc"_s, {}, indented));
    EXPECT_EQ(text.paragraphs, (std::vector<ParagraphRun>{ { 1, centred }, { 1, indented } }));

    RichText ended = RichText::plain(u"a\n"_s, {}, centred);
    ended.append(RichText::plain(u"b"_s, {}, indented));
    EXPECT_EQ(ended.paragraphs, (std::vector<ParagraphRun>{ { 1, centred }, { 1, indented } }));
}

TEST(RichTextAppend, TakesAWholeValueIntoAnEmptyOne)
{
    RichText text;
    text.append(sample());
    EXPECT_EQ(text, sample());
    text.append(RichText());
    EXPECT_EQ(text, sample());
}

TEST(RichTextAppend, AddsATextToItself)
{
    RichText text = RichText::plain(u"ab"_s, red);
    text.append(text);
    EXPECT_EQ(text, RichText::plain(u"abab"_s, red));
}

TEST(RichTextAppend, PutsBackTogetherWhatMidTookApart)
{
    test::RichTextMaker maker(11);
    for (int round = 0; round < 2000; ++round) {
        const RichText whole = maker.make(u"abc\n\n"_s, 30);
        const qsizetype at = maker.upTo(int(whole.text.size()));
        RichText joined = whole.mid(0, at);
        joined.append(whole.mid(at, whole.text.size()));
        ASSERT_EQ(joined, whole) << "cut at " << at;
    }
}

TEST(RichTextChange, ChangesOnlyTheStretchAndMerges)
{
    RichText text = RichText::plain(u"abcdef"_s);
    text.change(1, 3, [](CharFormat &format) { format.bold = true; });
    EXPECT_EQ(text.characters, (std::vector<CharRun>{ { 1, {} }, { 3, bold }, { 2, {} } }));
    text.change(4, 99, [](CharFormat &format) { format.bold = true; });
    EXPECT_EQ(text.characters, (std::vector<CharRun>{ { 1, {} }, { 5, bold } }));
    text.change(0, 6, [](CharFormat &format) { format.bold = false; });
    EXPECT_EQ(text, RichText::plain(u"abcdef"_s));
}

TEST(RichTextChange, LeavesTheTextAloneForNoStretch)
{
    RichText text = sample();
    const auto toBold = [](CharFormat &format) {
        format.bold = true;
    };
    text.change(3, 0, toBold);
    text.change(3, -2, toBold);
    text.change(700, 2, toBold);
    EXPECT_EQ(text, sample());
}

TEST(RichTextChange, CoversATextWithoutRunsFirst)
{
    RichText text;
    text.text = u"abc"_s;
    text.change(1, 1, [](CharFormat &format) { format.bold = true; });
    EXPECT_EQ(text.characters, (std::vector<CharRun>{ { 1, {} }, { 1, bold }, { 1, {} } }));
}

TEST(RichTextChange, GivesWhatAnArrayOfFormatsGives)
{
    test::RichTextMaker maker(5);
    for (int round = 0; round < 1000; ++round) {
        RichText text = maker.make(u"ab\n"_s, 25);
        RichTextChanges many(text);
        std::vector<CharFormat> expected;
        for (qsizetype i = 0; i < text.text.size(); ++i) {
            expected.push_back(text.formatAt(i));
        }
        for (int edit = 0; edit < 5; ++edit) {
            const int from = maker.upTo(27) - 1;
            const int length = maker.upTo(8);
            const auto colour = ColorRef(maker.upTo(2));
            const auto paint = [&](CharFormat &format) {
                format.colour = colour;
            };
            text.change(from, length, paint);
            many.change(from, length, paint);
            const int start = std::max(from, 0);
            for (int i = start; i < start + length && i < int(expected.size()); ++i) {
                expected[size_t(i)].colour = colour;
            }
        }
        for (size_t i = 0; i < expected.size(); ++i) {
            ASSERT_EQ(text.formatAt(qsizetype(i)), expected[i]) << "at " << i;
        }
        RichText normal = text;
        normal.normalise();
        ASSERT_EQ(text, normal);
        ASSERT_EQ(many.take(), text);
    }
}

TEST(RichTextChanges, SixtyThousandAreDoneAtOnce)
{
    constexpr int edits = 60000;
    RichTextChanges changes(RichText::plain(QString(edits * 11, u'x')));
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < edits; ++i) {
        changes.change(i * 11, 7, [&](CharFormat &format) { format.colour = ColorRef(i % 40); });
    }
    const RichText text = changes.take();
    // A scan of all runs at each edit would take a hundred times as long.
    EXPECT_LT(timer.elapsed(), 2000);
    EXPECT_EQ(text.characters.size(), size_t(edits) * 2);
    EXPECT_EQ(text.formatAt(11 * 41 + 6).colour, ColorRef(1));
    EXPECT_EQ(text.formatAt(11 * 41 + 7).colour, std::nullopt);
}

TEST(RichTextNormalise, DropsEmptyRunsMergesEqualOnesAndCoversTheRest)
{
    RichText text;
    text.text = u"ab\ncd"_s;
    text.characters = { { 0, red }, { 1, bold }, { -3, red }, { 1, bold } };
    text.paragraphs = { { 0, centred } };
    text.normalise();
    EXPECT_EQ(text, (RichText{ u"ab\ncd"_s, { { 2, bold }, { 3, {} } }, { { 2, {} } } }));
}

TEST(RichTextNormalise, CutsRunsThatReachBeyondTheText)
{
    RichText text;
    text.text = u"ab"_s;
    text.characters = { { 1, bold }, { std::numeric_limits<qsizetype>::max(), red }, { 3, bold } };
    text.paragraphs = { { 7, centred }, { 1, {} } };
    text.normalise();
    EXPECT_EQ(text, (RichText{ u"ab"_s, { { 1, bold }, { 1, red } }, { { 1, centred } } }));
}
