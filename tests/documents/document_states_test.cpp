// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/document_states.h"

#include "platform/core/rtf.h"
#include "platform/richtext/rich_text_document.h"
#include "tests/support/rich_texts.h"

#include <gtest/gtest.h>

#include <QPlainTextDocumentLayout>
#include <QSignalSpy>
#include <QTextBlock>
#include <QTextDocument>

using namespace zeph;

namespace {

const CharFormat plain{ u"Arial"_s, 8, false, false, false, 0 };
const CharFormat red{ u"Arial"_s, 8, false, false, false, 0x0000FF };

/// A look as the screen shows it.
CharFormat shown(const CharFormat &look)
{
    return fromTextFormat(toTextFormat(look));
}

/// A document with its states, and a value that says what they should hold: each change is made to
/// both.
class Followed
{
public:
    explicit Followed(const RichText &start = RichText::plain({}), int linesPerChunk = 64)
    {
        document.setDocumentLayout(new QPlainTextDocumentLayout(&document));
        document.setUndoRedoEnabled(false);
        states = std::make_unique<DocumentStates>(document, linesPerChunk);
        setText(start);
    }

    void setText(const RichText &text)
    {
        states->setText(text);
        expected = text;
        showLooks();
    }
    void replace(int from, int length, const RichText &text)
    {
        states->replace(from, length, text);
        put(from, length, text);
    }
    void lay(int from, const std::vector<CharRun> &runs)
    {
        states->setCharacterRuns(runs, from);
        for (const CharRun &run : runs) {
            expected.change(from, run.length, [&run](CharFormat &look) { look = run.format; });
            from += int(run.length);
        }
        showLooks();
    }
    /// What the user does.
    void type(int position, const QString &text)
    {
        const CharFormat look = typedLook(position);
        QTextCursor cursor(&document);
        cursor.setPosition(position);
        cursor.insertText(text);
        put(position, 0, RichText::plain(text, look));
    }
    void erase(int from, int length)
    {
        QSignalSpy told(&document, &QTextDocument::contentsChange);
        stretch(from, from + length).removeSelectedText();
        put(from, length, RichText::plain({}));
        const bool isExact = told.isEmpty() || told[0] == QList<QVariant>{ from, length, 0 };
        if (!isExact) {
            // Where paragraphs of two formats become one the toolkit says that more has changed;
            // then nobody can tell which of two equal characters is gone.
            expected.characters = states->presentText().characters;
        }
    }

    QTextCursor stretch(int from, int to)
    {
        QTextCursor cursor(&document);
        cursor.setPosition(from);
        cursor.setPosition(to, QTextCursor::KeepAnchor);
        return cursor;
    }
    int size() const { return document.characterCount() - 1; }

    /// Text and looks are the value's, paragraphs those of the toolkit's document.
    void compare()
    {
        expected.normalise();
        const RichText present = states->presentText();
        ASSERT_EQ(plainTextOf(document), expected.text);
        ASSERT_EQ(present.text, expected.text);
        ASSERT_EQ(present.characters, expected.characters);
        ASSERT_EQ(present.paragraphs, richTextOf(document).paragraphs);
    }

    QTextDocument document;
    std::unique_ptr<DocumentStates> states;
    RichText expected;

private:
    CharFormat typedLook(int position) const
    {
        const QString &text = expected.text;
        if (text.isEmpty()) {
            return {};
        }
        const bool isLineStart = position == 0 || text[position - 1] == u'\n';
        const bool isLineEnd = position == text.size() || text[position] == u'\n';
        const int like = isLineStart && !isLineEnd ? position : std::max(position - 1, 0);
        return expected.formatAt(like);
    }
    void put(int from, int length, const RichText &text)
    {
        RichText result = expected.mid(0, from);
        result.append(text);
        result.append(expected.mid(from + length, expected.text.size()));
        expected = result;
        showLooks();
    }
    void showLooks()
    {
        for (CharRun &run : expected.characters) {
            run.format = shown(run.format);
        }
        expected.normalise();
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

std::vector<CharRun> runsByChance(test::RichTextMaker &chance, int length)
{
    std::vector<CharRun> runs;
    for (int left = length; left > 0;) {
        const int part = std::min(left, 1 + chance.upTo(20));
        runs.push_back({ part, chance.characterFormat() });
        left -= part;
    }
    return runs;
}

/// One change by chance: text, looks, paragraphs, all of it; the user's and the program's.
void changeByChance(Followed &text, test::RichTextMaker &chance)
{
    const int from = chance.upTo(text.size());
    const int length = std::min(text.size() - from, chance.upTo(8));
    switch (chance.upTo(9)) {
    case 0:
        return text.type(from, u"x\n\ny\n"_s);
    case 1:
        return text.erase(from, length);
    case 2:
        return text.lay(from, runsByChance(chance, length));
    case 3: {
        QTextBlockFormat format;
        format.setLeftMargin(chance.upTo(3) * 2);
        return text.stretch(from, from + length).setBlockFormat(format);
    }
    case 4:
        return text.setText(chance.make(u"ab\n"_s, 60));
    case 5:
        return text.erase(from, std::min(text.size() - from, 200));
    case 6:
        return text.replace(from, length, chance.make(u"cd\n"_s, 20));
    case 7:
        return text.lay(0, runsByChance(chance, text.size()));
    default:
        return text.type(from, u"t"_s);
    }
}

} // namespace

TEST(DocumentStates, GiveBackTextAndLooks)
{
    Followed text(RichText::plain(u"BTN S1 Fire\nBTN S2 Flares"_s, plain));
    text.lay(0, { { 3, red } });
    const RichText before = text.expected;
    const DocumentState state = text.states->present();
    text.erase(2, 13);
    text.lay(0, { { 9, plain } });
    text.compare();
    ASSERT_NE(text.states->presentText(), before);
    text.states->restore(state);
    EXPECT_EQ(text.states->presentText(), before);
    EXPECT_EQ(plainTextOf(text.document), before.text);
    EXPECT_EQ(text.states->richText(state), before);
}

TEST(DocumentStates, AnEmptyStateEmptiesTheDocument)
{
    Followed text(RichText::plain({}));
    const DocumentState empty = text.states->present();
    text.states->setText(RichText::plain(lines(300), plain));
    text.states->restore(empty);
    EXPECT_EQ(plainTextOf(text.document), QString());
    text.expected = RichText::plain({});
    text.type(0, u"again"_s);
    text.compare();
}

// Chunks of every size from one line on, so that each border meets each kind of change.
TEST(DocumentStates, AreExactWhateverChangesADocument)
{
    for (int round = 0; round < 300; ++round) {
        test::RichTextMaker chance{ quint32(round) };
        Followed text(RichText::plain(lines(chance.upTo(20)), plain), 1 + chance.upTo(7));
        std::vector<std::pair<DocumentState, RichText>> taken;
        for (int step = 0; step < 60; ++step) {
            changeByChance(text, chance);
            text.compare();
            if (chance.upTo(2) == 0) {
                taken.emplace_back(text.states->present(), text.states->presentText());
            }
            if (!taken.empty() && chance.upTo(4) == 0) {
                const auto &[state, then] = taken[size_t(chance.upTo(int(taken.size()) - 1))];
                text.states->restore(state);
                text.expected = then;
                text.compare();
                ASSERT_EQ(text.states->presentText(), then);
            }
            if (testing::Test::HasFatalFailure()) {
                FAIL() << "round " << round << " step " << step;
            }
        }
        for (const auto &[state, then] : taken) {
            ASSERT_EQ(text.states->richText(state), then) << "round " << round;
        }
    }
}

// Several edits in one edit block are told as one; the text is exact all the same, and so are the
// looks of what was not between them.
TEST(DocumentStates, FollowSeveralEditsThatAreToldAsOne)
{
    Followed text(RichText::plain(lines(300), plain));
    text.lay(0, { { 3, red } });
    text.lay(text.size() - 3, { { 3, red } });
    QTextCursor cursor(&text.document);
    cursor.beginEditBlock();
    cursor.setPosition(100);
    cursor.insertText(u"first\n"_s);
    text.stretch(50, 52).removeSelectedText();
    cursor.setPosition(5000);
    cursor.insertText(u"s\u2028t"_s);
    cursor.endEditBlock();
    const RichText present = text.states->presentText();
    EXPECT_EQ(present.text, plainTextOf(text.document));
    EXPECT_EQ(present.mid(0, 50).characters, text.expected.mid(0, 50).characters);
    EXPECT_EQ(present.mid(present.text.size() - 50, 50).characters,
              text.expected.mid(text.expected.text.size() - 50, 50).characters);
}

TEST(DocumentStates, EditsOfLinesThatAreToldAsOneLeaveTheLooksBetweenThem)
{
    Followed text(RichText::plain(lines(10), plain));
    text.lay(30, { { 10, red } });
    QTextCursor cursor(&text.document);
    cursor.beginEditBlock();
    cursor.setPosition(3);
    cursor.insertText(u"!"_s);
    cursor.setPosition(150);
    cursor.insertText(u"!"_s);
    cursor.endEditBlock();
    std::vector<CharRun> looks{ { 31, plain }, { 10, red } };
    looks.push_back({ text.size() - 41, plain });
    EXPECT_EQ(text.states->presentText().characters, looks);
}

TEST(DocumentStates, TypedCharactersLookAsTheOneBeforeOrAsChosen)
{
    Followed text(RichText::plain(u"abc\ndef"_s, plain));
    text.lay(0, { { 2, red } });
    EXPECT_EQ(text.states->lookForTyping(0), red);
    EXPECT_EQ(text.states->lookForTyping(2), red);
    EXPECT_EQ(text.states->lookForTyping(3), plain);
    // At a line's start the line goes on before its first character.
    text.lay(3, { { 1, red } });
    EXPECT_EQ(text.states->lookForTyping(4), plain);
    const CharFormat bold{ u"Arial"_s, 8, true, false, false, 0 };
    text.states->setTyping(3, bold);
    text.stretch(3, 3).insertText(u"x"_s);
    EXPECT_EQ(text.states->looks(3, 1).front().format, bold);
    // Characters that take the place of a selection look as the last of it, where the caret is.
    text.states->setTyping(2, std::nullopt);
    text.lay(0, { { 1, plain } });
    text.stretch(0, 2).insertText(u"yz"_s);
    EXPECT_EQ(text.states->looks(0, 2), (std::vector<CharRun>{ { 2, red } }));
}

TEST(DocumentStates, SayWhichCharactersLookOtherwise)
{
    for (int round = 0; round < 300; ++round) {
        test::RichTextMaker chance{ quint32(round) };
        Followed text(chance.make(u"ab\n"_s, 80), 1 + chance.upTo(4));
        const DocumentState before = text.states->present();
        const RichText old = text.states->presentText();
        std::vector<TextStretch> told;
        QObject::connect(text.states.get(), &DocumentStates::looksChanged, text.states.get(),
                         [&told](const std::vector<TextStretch> &stretches) { told = stretches; });
        const auto compare = [&](const RichText &one, const RichText &other) {
            QString expected(one.text.size(), u'.');
            QString marks = expected;
            for (qsizetype i = 0; i < one.text.size(); ++i) {
                expected[i] = one.formatAt(i) == other.formatAt(i) ? u'.' : u'x';
            }
            for (const TextStretch &stretch : std::exchange(told, {})) {
                marks.replace(stretch.from, stretch.to - stretch.from,
                              QString(stretch.to - stretch.from, u'x'));
            }
            ASSERT_EQ(marks, expected) << "round " << round;
        };
        text.lay(0, runsByChance(chance, text.size()));
        compare(old, text.states->presentText());
        const RichText laid = text.states->presentText();
        text.states->restore(before);
        compare(laid, old);
    }
}

TEST(DocumentStates, LooksThatAreThereAlreadyAreNoChange)
{
    Followed text(RichText::plain(lines(10), plain));
    QSignalSpy looks(text.states.get(), &DocumentStates::looksChanged);
    QSignalSpy edits(&text.document, &QTextDocument::contentsChanged);
    const DocumentState before = text.states->present();
    text.states->setCharacterRuns({ { text.size(), plain } });
    const std::vector<DocumentState> both{ before, text.states->present() };
    EXPECT_EQ(DocumentState::bytesHeld(both), DocumentState::bytesHeld(std::span(both).first(1)));
    EXPECT_EQ(looks.size(), 0);
    text.lay(3, { { 2, red } });
    EXPECT_EQ(looks.size(), 1);
    EXPECT_EQ(edits.size(), 0);
}

TEST(DocumentStates, PiecesMakeTheWholeTextAndItsFile)
{
    for (int round = 0; round < 300; ++round) {
        test::RichTextMaker chance{ quint32(round) };
        Followed text(chance.make(u"ab\n"_s, 80), 1 + chance.upTo(4));
        QString whole;
        RtfWriter writer;
        const DocumentState present = text.states->present();
        for (size_t i = 0; i < text.states->pieceCount(present); ++i) {
            const RichText piece = text.states->piece(present, i);
            whole += piece.text;
            writer.add(piece);
        }
        text.expected.paragraphs = richTextOf(text.document).paragraphs;
        ASSERT_EQ(whole, text.expected.text) << "round " << round;
        ASSERT_EQ(writer.take(), writeRtf(text.expected)) << "round " << round;
    }
}

TEST(DocumentStates, AStretchIsThePartOfTheWhole)
{
    for (int round = 0; round < 300; ++round) {
        test::RichTextMaker chance{ quint32(round) };
        Followed text(chance.make(u"ab\n"_s, 80), 1 + chance.upTo(4));
        const int from = chance.upTo(text.size());
        const int length = chance.upTo(90);
        const RichText part = text.expected.mid(from, length);
        ASSERT_EQ(text.states->stretch(from, length).text, part.text) << "round " << round;
        ASSERT_EQ(text.states->stretch(from, length).characters, part.characters);
        ASSERT_EQ(text.states->looks(from, length), part.characters);
    }
}

TEST(DocumentStates, ATextThatIsSetIsCutAsOneThatIsRead)
{
    Followed text(RichText::plain(lines(10000), plain));
    DocumentStates read(text.document);
    const std::vector<DocumentState> one{ text.states->present() };
    const std::vector<DocumentState> other{ read.present() };
    const qsizetype size = DocumentState::bytesHeld(one);
    EXPECT_LT(std::abs(size - DocumentState::bytesHeld(other)), size / 50);
}

TEST(DocumentStates, AreExactWithinAnOpenEditBlock)
{
    Followed text(RichText::plain(lines(300), plain));
    QTextCursor cursor(&text.document);
    cursor.beginEditBlock();
    text.type(5, u"x"_s);
    EXPECT_FALSE(text.states->isUpToDate());
    text.compare();
    text.replace(700, 5, RichText::plain(u"z"_s, red));
    text.compare();
    text.type(1000, u"y\n"_s);
    cursor.endEditBlock();
    text.compare();
    EXPECT_TRUE(text.states->isUpToDate());
    // A block in which nothing was done is over when it is over.
    cursor.beginEditBlock();
    cursor.endEditBlock();
    EXPECT_TRUE(text.states->isUpToDate());
}

TEST(DocumentStates, AKeystrokeCostsOneChunk)
{
    Followed text(RichText::plain(lines(10000), plain));
    std::vector<DocumentState> taken{ text.states->present() };
    const qsizetype whole = DocumentState::bytesHeld(taken);
    EXPECT_GT(whole, text.size() * 2);
    text.type(100000, u"x"_s);
    taken.push_back(text.states->present());
    EXPECT_LT(DocumentState::bytesHeld(taken) - whole, whole / 50);
    // The same state twice costs nothing.
    const qsizetype two = DocumentState::bytesHeld(taken);
    taken.push_back(text.states->present());
    EXPECT_EQ(DocumentState::bytesHeld(taken), two);
}

TEST(DocumentStates, NewLooksShareTheText)
{
    Followed text(RichText::plain(lines(10000), plain));
    std::vector<DocumentState> taken{ text.states->present() };
    const qsizetype whole = DocumentState::bytesHeld(taken);
    text.lay(0, { { text.size(), red } });
    taken.push_back(text.states->present());
    EXPECT_LT(DocumentState::bytesHeld(taken), 2 * whole);
    text.states->restore(taken.front());
    EXPECT_EQ(text.states->presentText().characters.front().format, plain);
}

TEST(DocumentStates, RestoringTouchesOnlyWhatDiffers)
{
    Followed text(RichText::plain(lines(1000), plain));
    const DocumentState state = text.states->present();
    text.type(20000, u"typed"_s);
    QSignalSpy changes(&text.document, &QTextDocument::contentsChange);
    text.states->restore(state);
    ASSERT_EQ(changes.size(), 1);
    EXPECT_EQ(changes[0][0].toInt(), 20000);
    EXPECT_LE(changes[0][2].toInt(), 1);
    text.states->restore(state);
    EXPECT_EQ(changes.size(), 1);
}

TEST(DocumentStates, ALineEndWithinAParagraphBecomesAWholeOneWhenRestored)
{
    Followed text(RichText::plain(u"ab\ncd\neg"_s, plain, { .leftIndentTwips = 300 }));
    const DocumentState state = text.states->present();
    text.stretch(0, 8).insertText(u"ab\u2028cd\nef"_s);
    text.states->restore(state);
    EXPECT_EQ(text.states->presentText(), text.states->richText(state));
    EXPECT_EQ(richTextOf(text.document).paragraphs, text.expected.paragraphs);
    EXPECT_EQ(text.document.blockCount(), 3);
}

TEST(DocumentStates, ManyReplacementsAreOneEditBlock)
{
    for (int round = 0; round < 100; ++round) {
        test::RichTextMaker chance{ quint32(round) };
        Followed text(chance.make(u"ab\n"_s, 200), 1 + chance.upTo(7));
        const RichText before = text.expected;
        const QString word = chance.make(u"xy\n"_s, 5).text;
        std::vector<qsizetype> starts;
        const int length = chance.upTo(2);
        for (int at = chance.upTo(9); at + length <= text.size();
             at += length + 1 + chance.upTo(9)) {
            starts.push_back(at);
        }
        QSignalSpy changes(&text.document, &QTextDocument::contentsChange);
        text.states->replaceAll(starts, length, word);
        const bool changesNothing = starts.empty() || (length == 0 && word.isEmpty());
        EXPECT_EQ(changes.size(), changesNothing ? 0 : 1);
        QString wanted = before.text;
        for (auto start = starts.rbegin(); start != starts.rend(); ++start) {
            wanted.replace(*start, length, word);
        }
        ASSERT_EQ(text.states->presentText().text, wanted) << "round " << round;
        ASSERT_EQ(plainTextOf(text.document), wanted) << "round " << round;
        // What is not replaced looks as before.
        qsizetype old = 0;
        qsizetype now = 0;
        starts.push_back(before.text.size());
        for (const qsizetype start : starts) {
            ASSERT_EQ(text.states->looks(now, start - old), before.mid(old, start - old).characters)
                << "round " << round;
            now += start - old + word.size();
            old = start + length;
        }
    }
}

TEST(DocumentStates, ManyLinesAtOnceAreCutIntoChunks)
{
    Followed text;
    std::vector<DocumentState> taken{ text.states->present() };
    text.type(0, lines(5000));
    taken.push_back(text.states->present());
    const qsizetype filled = DocumentState::bytesHeld(taken);
    text.type(60000, u"x"_s);
    taken.push_back(text.states->present());
    EXPECT_LT(DocumentState::bytesHeld(taken) - filled, filled / 25);
}

namespace {

constexpr int boldFrom = 3;

/// Whether the present state is the same as another to the user who saves it.
bool isSame(Followed &text, const DocumentState &state)
{
    return text.states->holdSame(text.states->present(), state);
}

} // namespace

TEST(DocumentStates, AreTheSameWhereTextAndTheUsersLooksAreHoweverTheyCameAbout)
{
    Followed text;
    text.states->setPlain(plain);
    text.setText(RichText::plain(lines(300), plain));
    const DocumentState saved = text.states->present();
    text.type(1000, u"x\n\n"_s);
    EXPECT_FALSE(isSame(text, saved));
    text.erase(1000, 3);
    EXPECT_TRUE(isSame(text, saved));
    // As long, but another letter, early and late.
    for (const int at : { 0, int(lines(300).size()) - 2 }) {
        const QString letter = lines(300).mid(at, 1);
        text.erase(at, 1);
        text.type(at, u"@"_s);
        EXPECT_FALSE(isSame(text, saved));
        text.erase(at, 1);
        text.type(at, letter);
        EXPECT_TRUE(isSame(text, saved));
    }
}

TEST(DocumentStates, CountTheUsersLooksAndNoOthers)
{
    Followed text;
    text.states->setPlain(plain);
    text.setText(RichText::plain(lines(300), plain));
    const DocumentState saved = text.states->present();
    CharFormat highlighted = plain;
    highlighted.colour = ColorRef(0xB00000);
    text.states->setCharacterRuns({ { 5000, highlighted } }, 100);
    EXPECT_TRUE(isSame(text, saved));
    const std::function<void(CharFormat &)> looks[] = {
        [](CharFormat &look) { look.bold = true; },
        [](CharFormat &look) { look.italic = true; },
        [](CharFormat &look) { look.underline = true; },
        [](CharFormat &look) { look.family = u"Courier"_s; },
        [](CharFormat &look) { look.pointSize = 31; },
        [](CharFormat &look) { look.colour = ColorRef(0x123456); },
    };
    for (const auto &look : looks) {
        const DocumentState before = text.states->present();
        text.states->changeLooks(boldFrom, 4, look, ColourGivenBy::User);
        EXPECT_FALSE(isSame(text, saved));
        text.states->restore(before);
        EXPECT_TRUE(isSame(text, saved));
    }
    // What was given and taken away again was never there.
    for (const bool on : { true, false }) {
        text.states->changeLooks(
            boldFrom, 4, [on](CharFormat &look) { look.bold = on; }, ColourGivenBy::User);
    }
    EXPECT_TRUE(isSame(text, saved));
    text.states->changeLooks(
        0, 400, [](CharFormat &look) { look.colour = ColorRef(0x654321); },
        ColourGivenBy::Highlighter);
    EXPECT_TRUE(isSame(text, saved));
}

TEST(DocumentStates, PlainTextFollowsItsFontInKeptStatesToo)
{
    Followed text;
    text.states->setPlain(plain);
    text.setText(RichText::plain(lines(3), plain));
    text.states->changeLooks(
        0, 2, [](CharFormat &look) { look.pointSize = 31; }, ColourGivenBy::User);
    const DocumentState kept = text.states->present();
    CharFormat other = plain;
    other.family = u"Times"_s;
    other.bold = !plain.bold;
    text.states->setPlain(other);
    const RichText now = text.states->richText(kept);
    EXPECT_EQ(now.formatAt(5).family, u"Times");
    EXPECT_EQ(now.formatAt(5).bold, other.bold);
    EXPECT_EQ(now.formatAt(0).family, plain.family);
    EXPECT_EQ(now.formatAt(0).pointSize, 31);
}
