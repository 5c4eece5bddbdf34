// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "text/alignment.h"
#include "text/digest.h"

#include "tests/text/alignment_twin.h"

#include <gtest/gtest.h>

#include <QStringList>

#include <random>

using namespace zeph;
using zeph::test::AlignmentTwin;

namespace {

constexpr IndentOptions five = { true, 5 };

QString lines(const QStringList &all)
{
    return all.join(u'\n') + u'\n';
}

/// Files made of what aligners look at, in all orders and with all kinds of blanks.
class RandomFiles
{
public:
    std::string next()
    {
        std::string text;
        for (int line = pick(12); line > 0; --line) {
            for (int piece = pick(7); piece > 0; --piece) {
                text += pieces[size_t(pick(int(std::size(pieces))))];
            }
            if (line > 1 || pick(2) == 0) {
                text += '\n';
            }
        }
        return text;
    }

private:
    int pick(int below) { return int(m_random() % unsigned(below)); }

    static constexpr const char *pieces[] = {
        "BTN ",
        "btn S2 ",
        "BTN X1",
        "curve ",
        "CURVE ",
        "JOYX ",
        "Thr ",
        "/U ",
        "/M ",
        "/D ",
        "/I ",
        "/O ",
        "/P ",
        "/R ",
        "/T",
        "/u ",
        "/",
        "Fire",
        "a",
        " ",
        "  ",
        "\t",
        "Rem ",
        "rem",
        "REM x",
        "~",
        "USE HAT2 AS",
        "USE MTYPE A",
        "3",
        "17",
        "DEF ",
        "DISABLE",
        "USE RADIOSWITCH AS POV",
        "use hat1 as x",
        "Long_macro_name_that_fills_a_line_up_to_its_middle ",
    };
    std::mt19937 m_random{ 7 };
};

bool beginsWithBlanksBeforeKept(const std::string &text)
{
    for (const std::string &line : AlignmentTwin::read(text)) {
        const std::string tidy = AlignmentTwin::tidy(line);
        const bool kept = AlignmentTwin::lower(tidy.substr(0, 3)) == "rem" || tidy[0] == '~';
        if (kept && tidy[0] != line[0]) {
            return true;
        }
    }
    return false;
}

} // namespace

TEST(AlignSlashes, AnOUnderAStatementWithOnlyAnIGoesUnderTheI)
{
    EXPECT_EQ(AlignSlashes(u"BTN S1 /I Gun\n/O Missile\n"),
              lines({ u"BTN S1 /I Gun"_s, u"       /O Missile"_s }));
}

TEST(AlignSlashes, ACommentStaysOnlyWhereItBeginsTheLine)
{
    EXPECT_EQ(AlignSlashes(u"rem a  /U\nREM\t b\n  rem c  d\n\tRem e\nRemember  me"),
              lines({ u"rem a  /U"_s, u"REM\t b"_s, u"rem c d"_s, u"Rem e"_s, u"Remember  me"_s }));
}

TEST(AlignSlashes, ALeftOutLineStaysAsItIs)
{
    EXPECT_EQ(AlignSlashes(u"~  x\t/U\n\nBTN S1 a", five),
              lines({ u"~  x\t/U"_s, u""_s, u"     BTN S1 a"_s }));
}

TEST(AlignSlashes, AnAlignedFileStaysAsItIs)
{
    const QString text = u"BTN S1  /U /I a\n/O b\n  /M   /I c /P d\n/R e\n\t/D f\nRem /U\n/T g\n"_s;
    for (const IndentOptions &options : { IndentOptions{}, five }) {
        const QString once = AlignSlashes(text, options);
        EXPECT_NE(once, text);
        EXPECT_EQ(AlignSlashes(once, options), once);
    }
}

TEST(AlignSlashes, ASlashInACommentAfterAStatementMakesTheReference)
{
    EXPECT_EQ(AlignSlashes(u"BTN S1 /I a\n b Rem see /O there\n/O c\n"),
              lines({ u"BTN S1 /I a"_s, u"b Rem see /O there"_s, u"          /O c"_s }));
}

TEST(AlignSlashes, AStatementIsMovedInByTheSettingAlone)
{
    const QString text = u"BTN S1 /U a\n   BTN S2 /U b\n"_s;
    EXPECT_EQ(AlignSlashes(text), lines({ u"BTN S1 /U a"_s, u"BTN S2 /U b"_s }));
    EXPECT_EQ(AlignSlashes(text, five), lines({ u"     BTN S1 /U a"_s, u"     BTN S2 /U b"_s }));
}

TEST(AlignSlashes, TheDogfightColumnIsTheFirstOfUThenMThenD)
{
    EXPECT_EQ(AlignSlashes(u"BTN S1 /M a /U b\n/D c\n"),
              lines({ u"BTN S1 /M a /U b"_s, u"            /D c"_s }));
}

TEST(AlignSlashes, AStatementWithoutAModifierForgetsTheColumn)
{
    EXPECT_EQ(AlignSlashes(u"BTN S1 /U a\nBTN S2 b\n/M c\n"),
              lines({ u"BTN S1 /U a"_s, u"BTN S2 b"_s, u"/M c"_s }));
}

TEST(AlignSlashes, TheReferenceIsTheLastLineWithASlash)
{
    // The second line moves the /I; the third follows it and not the statement.
    EXPECT_EQ(AlignSlashes(u"BTN S1 /U /I a\n/M Long /I b\n/O c\n"),
              lines({ u"BTN S1 /U /I a"_s, u"       /M Long /I b"_s, u"               /O c"_s }));
}

TEST(AlignSlashes, ActionAndToggleHaveTheirColumns)
{
    EXPECT_EQ(AlignSlashes(u"BTN S1 /P a /R b\n/R c\nBTN S2 /T d\nx\n/T e\n"),
              lines({ u"BTN S1 /P a /R b"_s, u"            /R c"_s, u"BTN S2 /T d"_s, u"x"_s,
                      u"       /T e"_s }));
}

TEST(AlignSlashes, ALowerCaseModifierIsNone)
{
    EXPECT_EQ(AlignSlashes(u"BTN S1 /u a\n/M c\n"), lines({ u"BTN S1 /u a"_s, u"/M c"_s }));
}

TEST(AlignSlashes, PaddingEndsAtSixtyNineBlanks)
{
    const QString statement = u"BTN S1 "_s + QString(80, u'x') + u" /U a"_s;
    EXPECT_EQ(AlignSlashes(statement + u"\n/M b\n"_s),
              lines({ statement, QString(69, u' ') + u"/M b"_s }));
    EXPECT_EQ(AlignSlashes(u"BTN S1", { true, 30000 }), lines({ QString(80, u' ') + u"BTN S1"_s }));
    EXPECT_EQ(AlignSlashes(u"BTN S1", { true, -4 }), lines({ u"BTN S1"_s }));
}

TEST(AlignSlashes, ShortLinesAndCommentsAreNotMovedIn)
{
    // Two characters, but five with the blanks of the alignment.
    EXPECT_EQ(AlignSlashes(u"ab\nBTN /U\n/M\n rem x\n", five),
              lines({ u"ab"_s, u"     BTN /U"_s, u"         /M"_s, u"rem x"_s }));
}

TEST(AlignSlashes, AnEmptyTextHasNoLines)
{
    EXPECT_EQ(AlignSlashes(u""), QString());
    EXPECT_EQ(AlignSlashes(u"\n"), u"\n");
}

TEST(AlignForLayouts, ColumnsStayWhereAHeadLineLacksTheWord)
{
    EXPECT_EQ(AlignForLayouts(u"BTN S1 /U a\nBTN S2 b\n/M c\n"),
              lines({ u"BTN S1 /U a"_s, u"BTN S2 b"_s, u"       /M c"_s }));
}

TEST(AlignForLayouts, ALineThatHoldsADogfightModifierTakesItsColumn)
{
    EXPECT_EQ(AlignForLayouts(u"BTN S1 /U a\nx /M c\n"),
              lines({ u"BTN S1 /U a"_s, u"       x /M c"_s }));
}

TEST(AlignForLayouts, TheCounterpartAboveComesFirst)
{
    // The /I above is no reference for another /I; the /O is.
    EXPECT_EQ(AlignForLayouts(u"BTN S1 /I a /O b\n/I c\n/I d\n"),
              lines({ u"BTN S1 /I a /O b"_s, u"            /I c"_s, u"       /I d"_s }));
}

TEST(AlignForLayouts, NothingIsMovedIn)
{
    EXPECT_EQ(AlignForLayouts(u"  BTN S1 a"), u"BTN S1 a\n");
}

TEST(LeftAlignAnalyse, ButtonXIsLeftOut)
{
    EXPECT_EQ(LeftAlignAnalyse(u"BTN X1 a\nbtn x2 b\nBTN S1 c\n"), u"*** \nS1 c \n*** \nEND \n");
}

TEST(LeftAlignAnalyse, AMouseTypeStandsBeforeTheNextControl)
{
    EXPECT_EQ(LeftAlignAnalyse(u"USE MTYPE A3\nBTN S1 c\n"),
              u"*** \nMType: 3 \n*** \nS1 c \n*** \nEND \n");
    EXPECT_EQ(LeftAlignAnalyse(u"USE MTYPE A12 x\n"), u"*** \nMType: 12 \n*** \nEND \n");
    EXPECT_EQ(LeftAlignAnalyse(u"USE MTYPE A\n"), u"*** \nEND \n");
}

TEST(LeftAlignAnalyse, HatsAndTheRadioSwitchAreRecords)
{
    EXPECT_EQ(
        LeftAlignAnalyse(u"use Hat2  AS POV\nUSE RADIOSWITCH AS HAT3\nUSE HAT1 AS\nUSE RATE 3"),
        u"*** \nHat2: POV \n*** \nRadio: HAT3 \n*** \nEND \n");
}

TEST(LeftAlignAnalyse, AContinuationFollowsItsControl)
{
    EXPECT_EQ(LeftAlignAnalyse(u"BTN S1 /I a Rem one\n  /O\tb REM two\nJOYX  c\n"),
              u"*** \nS1 /I a  \n/O b  \n*** \nJOYX c \n*** \nEND \n");
}

TEST(LeftAlignAnalyse, CommentsDefinitionsAndShortLinesAreLeftOut)
{
    EXPECT_EQ(LeftAlignAnalyse(u"  Rem a\nDISABLE b\ndef X1 c\nDEFAULT\nab\n\t  \nCURVE d\n"),
              u"*** \nCURVE d \n*** \nEND \n");
}

TEST(LeftAlignAnalyse, AnEmptyTextIsAnEmptyList)
{
    EXPECT_EQ(LeftAlignAnalyse(u""), u"*** \nEND \n");
}

TEST(Alignment, AgreesWithItsSlowTwinsOnThousandsOfFiles)
{
    RandomFiles files;
    for (int i = 0; i < 6000; ++i) {
        const std::string bytes = files.next();
        const QString text = QString::fromLatin1(bytes.c_str());
        ASSERT_EQ(AlignSlashes(text).toStdString(), AlignmentTwin::alignSlashes(bytes, false, 0))
            << bytes;
        ASSERT_EQ(AlignSlashes(text, five).toStdString(),
                  AlignmentTwin::alignSlashes(bytes, true, 5))
            << bytes;
        ASSERT_EQ(AlignForLayouts(text).toStdString(), AlignmentTwin::alignForLayouts(bytes))
            << bytes;
        ASSERT_EQ(LeftAlignAnalyse(text).toStdString(), AlignmentTwin::leftAlignAnalyse(bytes))
            << bytes;
    }
}

TEST(Alignment, AligningAnAlignedFileChangesNothing)
{
    RandomFiles files;
    int tried = 0;
    for (int i = 0; i < 6000; ++i) {
        const std::string bytes = files.next();
        if (beginsWithBlanksBeforeKept(bytes)) {
            continue;
        }
        ++tried;
        for (const IndentOptions &options : { IndentOptions{}, five }) {
            const QString once = AlignSlashes(QString::fromLatin1(bytes.c_str()), options);
            ASSERT_EQ(AlignSlashes(once, options), once) << bytes;
        }
    }
    EXPECT_GT(tried, 2000);
}

TEST(Alignment, AnIndentOfUpTo80BlanksIsWrittenInFull)
{
    for (const int spaces : { 69, 70, 79, 80 }) {
        EXPECT_EQ(AlignSlashes(u"BTN S1", { true, spaces }),
                  lines({ QString(spaces, u' ') + u"BTN S1"_s }));
    }
}

TEST(Alignment, APlaceKeepsItsLineAndWhatStandsBeforeIt)
{
    // What is before and after "|" in both texts belongs together.
    const std::pair<QString, QString> places[] = {
        { u"|BTN S1"_s, u"|BTN S1"_s },
        { u"  |BTN S1"_s, u"|BTN S1"_s },
        { u" | BTN S1"_s, u"|BTN S1"_s },
        { u"BTN  S|1"_s, u"BTN S|1"_s },
        { u"BTN\t\t|S1"_s, u"BTN |S1"_s },
        { u"BTN |  S1"_s, u"BTN |S1"_s },
        { u"BTN S1|"_s, u"BTN S1|"_s },
        { u"BTN S1 /I a\n/O |b"_s, u"BTN S1 /I a\n       /O |b\n"_s },
        { u"BTN S1 /I a\n|/O b"_s, u"BTN S1 /I a\n|       /O b\n"_s },
        { u"a\n\n|\nb"_s, u"a\n\n|\nb\n"_s },
        { u"a\nb|"_s, u"     a\n     b|\n"_s },
    };
    for (const auto &[from, to] : places) {
        QString before = from;
        QString after = to;
        EXPECT_EQ(placeAfterAligning(before.remove(u'|'), after.remove(u'|'), from.indexOf(u'|')),
                  to.indexOf(u'|'))
            << from.toStdString();
    }
}
