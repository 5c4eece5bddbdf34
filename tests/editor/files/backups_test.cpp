// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/files/backups.h"

#include <gtest/gtest.h>

using namespace zeph;

namespace {

QDateTime at(int hour, int minute)
{
    return QDateTime(QDate(2024, 3, 5), QTime(hour, minute));
}

} // namespace

TEST(Backups, DateAndTimeStandBetweenBaseNameAndExtension)
{
    EXPECT_EQ(backupName(u"Flight.tmj"_s, at(15, 7)), u"Flight Mar 05 2024, 03-07pm.tmj");
    EXPECT_EQ(backupName(u"Flight.tmm"_s, at(0, 0)), u"Flight Mar 05 2024, 12-00am.tmm");
    EXPECT_EQ(backupName(u"My.best.f22"_s, at(12, 30)), u"My.best Mar 05 2024, 12-30pm.f22");
}

TEST(Backups, WithoutAMomentTheNameIsTheCaption)
{
    EXPECT_EQ(backupName(u"Flight.tmj"_s), u"Flight.tmj");
}

TEST(Backups, AVeryShortCaptionIsNoAccident)
{
    EXPECT_EQ(backupName(u"ab"_s, at(9, 7)), u" Mar 05 2024, 09-07am.ab");
}
