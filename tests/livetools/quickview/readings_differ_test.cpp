// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/quickview/readings_differ.h"

#include <gmock/gmock.h>

using namespace zeph;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// The differences of a file as "row.column: text".
std::vector<std::string> differences(QStringView file)
{
    const Digest digest = digestOf(file);
    const language::FilePair pair = language::parsePair(file.toString(), {});
    std::vector<std::string> found;
    for (const ReadingDifference &each :
         readingsDiffer(AssignToArray(digest), digest, pair.joystick)) {
        found.push_back(std::to_string(each.cell.row) + '.' + std::to_string(each.cell.column)
                        + ": " + each.languageReads.toStdString());
    }
    return found;
}

} // namespace

TEST(ReadingsDiffer, NotWhereEachModeHasItsLine)
{
    EXPECT_THAT(differences(u"BTN S1 /U a\n/M b\n/D c\n"), IsEmpty());
    EXPECT_THAT(differences(u"BTN S1 /U /I /P a /R b /O c\n/M d Rem x\n"), IsEmpty());
    EXPECT_THAT(differences(u"BTN S1 a\nBTN S2 /I a /O b\nRNG 5 2 (0 50 100) a b\n"), IsEmpty());
}

TEST(ReadingsDiffer, WhereTheFirstLineIsOfTheMiddle)
{
    EXPECT_THAT(differences(u"BTN S1 /M b\n/D /P c /R d\n"),
                ElementsAre("15.1: ", "15.2: ", "15.5: /P c /R d", "15.6: /P c /R d"));
}

TEST(ReadingsDiffer, WhereALineHasSeveralModes)
{
    EXPECT_THAT(differences(u"BTN S1 /U a /M b /D c\n"),
                ElementsAre("15.1: a", "15.2: a", "15.3: b", "15.4: b", "15.5: c", "15.6: c"));
    EXPECT_THAT(differences(u"BTN H1U /U a\n/M b /D c Rem /U d\n"),
                ElementsAre("21.3: b", "21.4: b", "21.5: c", "21.6: c"));
}

TEST(ReadingsDiffer, WhereUpAndS3AreOneWord)
{
    EXPECT_THAT(differences(u"BTN S1 /U/I a\n"), ElementsAre("15.3: ", "15.5: "));
}

TEST(ReadingsDiffer, OnlyInTheControlThatIsWrittenSo)
{
    EXPECT_THAT(differences(u"BTN S1 /U a\nBTN S2 /D b\nBTN S3 c\n"),
                ElementsAre("16.1: ", "16.2: ", "16.3: ", "16.4: "));
}

TEST(ReadingsDiffer, ALaterStatementCountsForWhatItSays)
{
    EXPECT_THAT(differences(u"BTN S1 /M b\nBTN S1 a\n"), IsEmpty());
}

TEST(ReadingsDiffer, AUseLineHasTheLastWord)
{
    EXPECT_THAT(differences(u"BTN H1U /M a\nUSE HAT1 AS POV\n"), IsEmpty());
}

TEST(ReadingsDiffer, TheTipTellsWhatTheLanguageReads)
{
    EXPECT_EQ(differenceTip({ { 15, 5 }, u"/P c"_s }),
              u"Read by the rules of the language, S1 with /D /I does: /P c");
    EXPECT_EQ(differenceTip({ { 15, 2 }, {} }),
              u"Read by the rules of the language, S1 with /U /O does nothing.");
}
