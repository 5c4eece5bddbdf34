// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "settings/further_instances.h"

#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

using namespace zeph;
using test::TempFolder;

namespace {

QString copyName(int number)
{
    return u"Zeph.%1"_s.arg(number);
}

} // namespace

TEST(MoreThan1open, TheSecondStartTakesNumberTwoWithACopyOfTheStore)
{
    const TempFolder folder;
    folder.write(u"Zeph.ini"_s, "[A]\r\nx=1\r\n");
    const Instance instance = MoreThan1open(folder.path());
    EXPECT_EQ(instance.number, 2);
    EXPECT_EQ(instance.iniPath, folder.file(u"Zeph.2"_s));
    EXPECT_TRUE(instance.isFurther());
    EXPECT_EQ(folder.read(u"Zeph.2"_s), "[A]\r\nx=1\r\n");
    EXPECT_EQ(folder.read(u"Zeph.ini"_s), "[A]\r\nx=1\r\n");
}

TEST(MoreThan1open, NumbersOfClosedInstancesAreUsedAgain)
{
    const TempFolder folder;
    folder.write(u"Zeph.ini"_s, "x");
    folder.write(u"Zeph.2"_s, "second");
    folder.write(u"Zeph.4"_s, "fourth");
    EXPECT_EQ(MoreThan1open(folder.path()).number, 3);
    EXPECT_EQ(MoreThan1open(folder.path()).number, 5);
    EXPECT_EQ(folder.read(u"Zeph.2"_s), "second");
    EXPECT_EQ(folder.read(u"Zeph.4"_s), "fourth");
}

TEST(MoreThan1open, NumberNineHundredAndNinetyEightIsTheLast)
{
    const TempFolder folder;
    folder.write(u"Zeph.ini"_s, "x");
    for (int number = 2; number <= 997; ++number) {
        folder.write(copyName(number), "");
    }
    EXPECT_EQ(MoreThan1open(folder.path()).number, 998);
    const Instance tooMany = MoreThan1open(folder.path());
    EXPECT_EQ(tooMany.number, 1000);
    EXPECT_TRUE(tooMany.isTooMany());
    EXPECT_FALSE(tooMany.isFurther());
    EXPECT_FALSE(folder.exists(u"Zeph.999"_s));
}

TEST(MoreThan1open, WithoutAStoreTheCopyIsEmptyAndHoldsTheNumber)
{
    const TempFolder folder;
    EXPECT_EQ(MoreThan1open(folder.path()).number, 2);
    EXPECT_EQ(folder.read(u"Zeph.2"_s), "");
    EXPECT_EQ(MoreThan1open(folder.path()).number, 3);
}

TEST(GetRidOfPreviousIniFiles, DeletesWhatCrashedInstancesLeft)
{
    const TempFolder folder;
    for (const int number : { 2, 17, 999 }) {
        folder.write(copyName(number), "x");
    }
    for (const QString &kept : { u"Zeph.ini"_s, u"Zeph.1"_s, u"Zeph.1000"_s, u"Zeph.bmp"_s }) {
        folder.write(kept, "kept");
    }
    const Instance instance = GetRidOfPreviousIniFiles(folder.path());
    EXPECT_EQ(instance.number, 1);
    EXPECT_EQ(instance.iniPath, folder.file(u"Zeph.ini"_s));
    EXPECT_FALSE(instance.isFurther());
    for (const int number : { 2, 17, 999 }) {
        EXPECT_FALSE(folder.exists(copyName(number)));
    }
    for (const QString &kept : { u"Zeph.ini"_s, u"Zeph.1"_s, u"Zeph.1000"_s, u"Zeph.bmp"_s }) {
        EXPECT_TRUE(folder.exists(kept)) << kept.toStdString();
    }
}

TEST(EndOfAnInstance, AFurtherInstancesCopyIsGone)
{
    const TempFolder folder;
    folder.write(u"Zeph.ini"_s, "x");
    const Instance instance = MoreThan1open(folder.path());
    deleteInstanceStore(instance);
    EXPECT_FALSE(folder.exists(u"Zeph.2"_s));
    EXPECT_TRUE(folder.exists(u"Zeph.ini"_s));
    deleteInstanceStore(instance);
}

TEST(EndOfAnInstance, TheFirstInstancesStoreStays)
{
    const TempFolder folder;
    folder.write(u"Zeph.ini"_s, "x");
    deleteInstanceStore(GetRidOfPreviousIniFiles(folder.path()));
    EXPECT_TRUE(folder.exists(u"Zeph.ini"_s));
}
