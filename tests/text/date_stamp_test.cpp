// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "text/date_stamp.h"

#include <gtest/gtest.h>

#include <QLocale>

using namespace zeph;

namespace {

const QDateTime morning(QDate(2024, 3, 5), QTime(9, 7));
const QDateTime night(QDate(2024, 12, 31), QTime(0, 30));

QString stamped(QString text, const QDateTime &when)
{
    const auto stamp = modifiedStamp(text, when);
    return stamp ? text.replace(stamp->start, stamp->length, stamp->text) : text;
}

} // namespace

TEST(DateStamp, IsEnglishWithoutLeadingZeroInTheHourWhateverTheLocale)
{
    QLocale::setDefault(QLocale(QLocale::German));
    EXPECT_EQ(stampText(morning), u"05 March 2024, 9:07 am");
    EXPECT_EQ(stampText(night), u"31 December 2024, 12:30 am");
    EXPECT_EQ(stampText(QDateTime(QDate(2024, 1, 1), QTime(15, 0))), u"01 January 2024, 3:00 pm");
    QLocale::setDefault(QLocale::c());
}

TEST(DateStamp, ReplacesWhatStandsBehindTheBlankToTheLinesEnd)
{
    EXPECT_EQ(stamped(u"Rem LAST Modified: yesterday\nBTN S1 a"_s, morning),
              u"Rem LAST Modified: 05 March 2024, 9:07 am\nBTN S1 a");
}

TEST(DateStamp, OnlyTheFirstLineIsTouched)
{
    EXPECT_EQ(stamped(u"last modified: a\nlast modified: b"_s, morning),
              u"last modified: 05 March 2024, 9:07 am\nlast modified: b");
}

TEST(DateStamp, ATextWithoutTheWordsStaysAsItIs)
{
    EXPECT_FALSE(modifiedStamp(u"BTN S1 a", morning));
}

TEST(DateStamp, AnEmptyStampGetsItsBlank)
{
    EXPECT_EQ(stamped(u"Last modified:\nx"_s, morning),
              u"Last modified: 05 March 2024, 9:07 am\nx");
}

TEST(DateStamp, PositionsMoveWithTheTextBehindTheStamp)
{
    const Stamp stamp{ 10, 2, u"abcde"_s };
    EXPECT_EQ(movedByStamp(stamp, 3), 3);
    EXPECT_EQ(movedByStamp(stamp, 10), 10);
    EXPECT_EQ(movedByStamp(stamp, 11), 11);
    EXPECT_EQ(movedByStamp(stamp, 12), 15);
    EXPECT_EQ(movedByStamp(stamp, 20), 23);
    EXPECT_EQ(movedByStamp(Stamp{ 10, 8, u"abc"_s }, 16), 13);
    EXPECT_EQ(movedByStamp(Stamp{ 10, 0, u"abc"_s }, 10), 10);
}
