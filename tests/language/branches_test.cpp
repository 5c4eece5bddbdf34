// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "language/model.h"
#include "language/words.h"

#include <gmock/gmock.h>

using namespace zeph;
using namespace zeph::language;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// Each branch as "modifiers: items".
std::vector<std::string> branches(const QString &text)
{
    const JoystickFile file = parsePair(text, {}).joystick;
    std::vector<std::string> result;
    for (const Branch &branch : file.branches) {
        QString line;
        for (int at = 0; at < branch.chain.size; ++at)
            line += slashModifiers[size_t(branch.chain.links[size_t(at)].modifier)].text;
        line += u':';
        for (int index = branch.items.first; index < branch.items.end; ++index) {
            if (file.items[index].kind != ItemKind::Group)
                line += u' ' + file.at(file.items[index]).toString();
        }
        result.push_back(line.toStdString());
    }
    return result;
}

} // namespace

TEST(Branches, ABodyWithoutModifiersIsOneBranch)
{
    EXPECT_THAT(branches(u"BTN S1 a b"_s), ElementsAre(": a b"));
    EXPECT_THAT(branches(u"BTN S1"_s), IsEmpty());
}

TEST(Branches, DogfightPositionsHoldTheS3Positions)
{
    EXPECT_THAT(branches(u"BTN S1 /U /I a\n /O b\n /M c\n /D /I d\n /O e"_s),
                ElementsAre("/U/I: a", "/U/O: b", "/M: c", "/D/I: d", "/D/O: e"));
}

TEST(Branches, S3MayStandOutsideToo)
{
    EXPECT_THAT(branches(u"BTN S1 /I /U a /D b /O c"_s),
                ElementsAre("/I/U: a", "/I/D: b", "/O: c"));
}

TEST(Branches, PressAndReleaseReplaceEachOther)
{
    EXPECT_THAT(branches(u"BTN S1 x /P a /R b"_s), ElementsAre(": x", "/P: a", "/R: b"));
}

TEST(Branches, AToggleHoldsPressAndRelease)
{
    EXPECT_THAT(branches(u"BTN S1 /T /P a /R b /T c"_s),
                ElementsAre("/T/P: a", "/T/R: b", "/T: c"));
}

TEST(Branches, RepeatStandsInnermost)
{
    EXPECT_THAT(branches(u"BTN T1 /I /H MOUSE_RB\n /O /H MOUSE_LB"_s),
                ElementsAre("/I/H: MOUSE_RB", "/O/H: MOUSE_LB"));
}

TEST(Branches, AModifierWithNothingAfterItIsAnEmptyBranch)
{
    EXPECT_THAT(branches(u"BTN S1 /U"_s), ElementsAre("/U:"));
}

TEST(Branches, ModifiersInsideBracketsEndWithThem)
{
    EXPECT_THAT(branches(u"BTN S1 /I { /P a } b"_s), ElementsAre("/I:", "/I/P: a", "/I: b"));
}

TEST(Branches, AnyCaseAndNoBlankBetweenModifiers)
{
    EXPECT_THAT(branches(u"BTN S1 /u/i a"_s), ElementsAre("/U/I: a"));
}

TEST(Branches, HaveTheirPlaceOverLines)
{
    const QString text = u"BTN S1 /U a\n       /D b c  Rem x\n"_s;
    const JoystickFile file = parsePair(text, {}).joystick;
    ASSERT_EQ(file.branches.size(), 2);
    EXPECT_EQ(file.at(file.branches[0].place), u"/U a");
    EXPECT_EQ(file.at(file.branches[1].place), u"/D b c");
    EXPECT_EQ(file.branches[1].place.line, 2);
    EXPECT_TRUE(file.branches[1].chain.holds(u"/d"));
    EXPECT_FALSE(file.branches[1].chain.holds(u"/U"));
}
