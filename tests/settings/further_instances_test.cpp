// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "settings/further_instances.h"

#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <QDateTime>
#include <QFile>

using namespace zeph;
using test::TempFolder;

namespace {

/// Locks the numbers up to one. Each lock is a real one's copy, so that they cost no open file.
void lockAllTo(const TempFolder &folder, int last)
{
    QByteArray mark;
    {
        const InstanceLock lock(folder.path(), u"sample.lock");
        mark = folder.read(u"sample.lock"_s);
    }
    for (int number = 2; number <= last; ++number) {
        folder.write(u"Zeph.%1.lock"_s.arg(number), mark);
    }
}

Instance takeNext(const TempFolder &folder)
{
    return takeInstance(folder.path(), {});
}

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
    auto second = MoreThan1open(folder.path());
    const auto third = MoreThan1open(folder.path());
    EXPECT_EQ(third.number, 3);
    second.lock.reset();
    EXPECT_EQ(MoreThan1open(folder.path()).number, 2);
}

TEST(MoreThan1open, WhatACrashedInstanceLeftIsReplacedByAFreshCopy)
{
    const TempFolder folder;
    folder.write(u"Zeph.ini"_s, "fresh");
    folder.write(u"Zeph.2"_s, "left");
    const Instance instance = MoreThan1open(folder.path());
    EXPECT_EQ(instance.number, 2);
    EXPECT_EQ(folder.read(u"Zeph.2"_s), "fresh");
}

TEST(MoreThan1open, NumberNineHundredAndNinetyEightIsTheLast)
{
    const TempFolder folder;
    folder.write(u"Zeph.ini"_s, "x");
    lockAllTo(folder, 997);
    const Instance last = MoreThan1open(folder.path());
    EXPECT_EQ(last.number, 998);
    const Instance tooMany = MoreThan1open(folder.path());
    EXPECT_EQ(tooMany.number, 1000);
    EXPECT_TRUE(tooMany.isTooMany());
    EXPECT_FALSE(tooMany.isFurther());
    EXPECT_FALSE(folder.exists(u"Zeph.999"_s));
}

TEST(MoreThan1open, WithoutAStoreTheCopyIsEmptyAndHoldsTheNumber)
{
    const TempFolder folder;
    const Instance second = MoreThan1open(folder.path());
    EXPECT_EQ(second.number, 2);
    EXPECT_EQ(folder.read(u"Zeph.2"_s), "");
    EXPECT_EQ(MoreThan1open(folder.path()).number, 3);
}

TEST(TakeInstance, AfterTheFirstHasEndedTheNextIsFirstAndLeavesTheSecondItsStore)
{
    const TempFolder folder;
    folder.write(u"Zeph.ini"_s, "x");
    Instance first = takeNext(folder);
    const Instance second = takeNext(folder);
    ASSERT_EQ(first.number, 1);
    ASSERT_EQ(second.number, 2);
    folder.write(u"Zeph.2"_s, "the second's own");
    first.lock.reset();
    const Instance third = takeNext(folder);
    EXPECT_EQ(third.number, 1);
    EXPECT_EQ(third.iniPath, folder.file(u"Zeph.ini"_s));
    EXPECT_EQ(folder.read(u"Zeph.2"_s), "the second's own");
    const Instance fourth = takeNext(folder);
    EXPECT_EQ(fourth.number, 3) << "the second still has its number";
}

TEST(TakeInstance, TheFirstClearsWhatCrashedInstancesLeft)
{
    const TempFolder folder;
    for (const int number : { 2, 17, 999 }) {
        folder.write(copyName(number), "x");
    }
    for (const QString &kept : { u"Zeph.ini"_s, u"Zeph.1"_s, u"Zeph.1000"_s, u"Zeph.bmp"_s }) {
        folder.write(kept, "kept");
    }
    const Instance instance = takeNext(folder);
    EXPECT_EQ(instance.number, 1);
    EXPECT_EQ(instance.iniPath, folder.file(u"Zeph.ini"_s));
    EXPECT_FALSE(instance.isFurther());
    for (const int number : { 2, 17, 999 }) {
        EXPECT_FALSE(folder.exists(copyName(number)));
        EXPECT_FALSE(folder.exists(copyName(number) + u".lock"_s));
    }
    for (const QString &kept : { u"Zeph.ini"_s, u"Zeph.1"_s, u"Zeph.1000"_s, u"Zeph.bmp"_s }) {
        EXPECT_TRUE(folder.exists(kept)) << kept.toStdString();
    }
}

TEST(TakeInstance, AStoreLockedLongAgoByAnotherMachineIsTakenIfTheUserSaysSo)
{
    const TempFolder folder;
    folder.write(u"Zeph.ini"_s, "x");
    QFile lock(folder.write(u"Zeph.lock"_s, "4711\nzeph\nhangar\nfeedc0de\n0815\n"));
    ASSERT_TRUE(lock.open(QFile::ReadWrite));
    ASSERT_TRUE(lock.setFileTime(QDateTime::currentDateTime().addDays(-1),
                                 QFileDevice::FileModificationTime));
    lock.close();
    const auto answer = [](bool yes) {
        return [yes](const DoubtfulLock &) {
            return yes;
        };
    };
    EXPECT_EQ(takeInstance(folder.path(), answer(false)).number, 2);
    EXPECT_EQ(takeInstance(folder.path(), answer(true)).number, 1);
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
    deleteInstanceStore(takeNext(folder));
    EXPECT_TRUE(folder.exists(u"Zeph.ini"_s));
}
