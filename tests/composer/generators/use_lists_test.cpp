// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/generators/use_lists.h"

#include "composer/generators/use_insert.h"

#include <gmock/gmock.h>

using namespace zeph;
using testing::ElementsAre;

TEST(UseLists, TheControlsAreThoseOfTheHatsTheStickAndTheThrottle)
{
    QStringList names;
    for (const QStringView name : useControls)
        names.append(name.toString());
    EXPECT_EQ(names.join(u' '),
              u"H1U H1D H1L H1R H2U H2D H2L H2R H3U H3D H3L H3R H4U H4D H4L H4R TG1 TG2 "
              "S1 S2 S3 S4 T1 T2 T3 T4 T5 T6 T7 T8 T9 T10");
}

TEST(UseLists, ThereIsNoWindowStyle5)
{
    std::vector<int> styles;
    for (const WindowStyleRow &row : windowStyles)
        styles.push_back(int(row.style));
    EXPECT_THAT(styles, ElementsAre(0, 1, 2, 3, 4, 6));
}

TEST(UseLists, AWindowStyleTellsWhatItDoes)
{
    EXPECT_EQ(windowStyles[2].description, u"Application is maximised with focus.");
    EXPECT_EQ(windowStyles[5].description,
              u"Default setting. Application is displayed as an icon. Zeph remains active.");
}

TEST(UseLists, TheRatesSampleFollowsTheTick)
{
    EXPECT_EQ(rateSample(true), u"USE RATE (60)");
    EXPECT_EQ(rateSample(false), u"BTN S2 /T RATE (0)\n               /T RATE (60)");
}

TEST(UseLists, TextBoxesAndTicksHaveTheirFields)
{
    UseFields fields;
    for (size_t index = 0; index < useTexts.size(); ++index)
        fields.*useTexts[index] = QString::number(index);
    EXPECT_EQ(fields.macroFile, u"0");
    EXPECT_EQ(fields.rate, u"1");
    EXPECT_EQ(fields.hatSensitivity, u"2");
    EXPECT_EQ(fields.t1Sensitivity, u"3");
    EXPECT_EQ(fields.nullCharacter, u"4");
    EXPECT_EQ(fields.graphic, u"5");
    EXPECT_EQ(fields.readme, u"6");
    EXPECT_EQ(fields.application, u"7");
    for (size_t index = 0; index < useTicks.size(); ++index) {
        UseFields ticked;
        ticked.*useTicks[index] = true;
        EXPECT_EQ(int(index) == 0, ticked.rateOfFile);
        EXPECT_EQ(int(index) == 1, ticked.allDirectXButtons);
        EXPECT_EQ(int(index) == 2, ticked.shiftOfFile);
        EXPECT_EQ(int(index) == 3, ticked.reverseWithS3In);
        EXPECT_EQ(int(index) == 4, ticked.resetWithS3In);
    }
}

TEST(UseLists, OnlyAnApplicationIsTakenWithItsWholePath)
{
    EXPECT_EQ(browsedText(useBrowses[0], u"/home/pilot/Falcon.tmm"_s), u"Falcon.tmm");
    EXPECT_EQ(browsedText(useBrowses[1], u"C:\\Files\\My picture.bmp"_s), u"My picture.bmp");
    EXPECT_EQ(browsedText(useBrowses[2], u"Read me.txt"_s), u"Read me.txt");
    const QString path = browsedText(useBrowses[3], u"/opt/tools/trainer.exe"_s);
    EXPECT_TRUE(path.endsWith(u"trainer.exe") && path.contains(u"tools"));
}

TEST(UseLists, EachBrowseButtonFillsItsOwnTextBox)
{
    std::vector<QString> filled;
    for (const UseBrowse &browse : useBrowses) {
        UseFields fields;
        fields.*useTexts[size_t(browse.text)] = u"x"_s;
        filled.push_back(fields.macroFile + u'|' + fields.graphic + u'|' + fields.readme + u'|'
                         + fields.application);
    }
    EXPECT_THAT(filled, ElementsAre(u"x|||"_s, u"|x||"_s, u"||x|"_s, u"|||x"_s));
}

TEST(ProfileList, ItsFirstProfileIsSelectedAfterEveryRefresh)
{
    ProfileList list;
    list.UpdateProfiles({ u"A.tmc"_s, u"B.tmc"_s });
    EXPECT_EQ(list.selected(), u"A.tmc");
    EXPECT_TRUE(list.select(u"b.TMC"));
    EXPECT_EQ(list.index(), 1);
    list.UpdateProfiles({ u"A.tmc"_s, u"B.tmc"_s });
    EXPECT_EQ(list.selected(), u"A.tmc");
}

TEST(ProfileList, WithoutProfilesNothingIsSelected)
{
    ProfileList list;
    EXPECT_EQ(list.index(), -1);
    EXPECT_EQ(list.selected(), QString());
    list.UpdateProfiles({ u"A.tmc"_s });
    list.UpdateProfiles({});
    EXPECT_EQ(list.selected(), QString());
    EXPECT_FALSE(generateUse(UseInsert::Profile, { .profile = list.selected() }));
}

TEST(ProfileList, AProfileThatIsNotListedLeavesTheSelection)
{
    ProfileList list;
    list.UpdateProfiles({ u"A.tmc"_s, u"B.tmc"_s });
    list.select(u"B.tmc");
    EXPECT_FALSE(list.select(u"C.tmc"));
    EXPECT_EQ(list.selected(), u"B.tmc");
}
