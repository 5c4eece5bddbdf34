// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "cougar/handle_file.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

using namespace zeph;

namespace {

const QString head = u"\"Grip.bmp\"\r\n1\r\n"_s;

/// A whole file whose first record is given and whose other records are hidden.
QString fileWith(const QString &firstRecord)
{
    return head + firstRecord + u"\r\n"_s + u"0,0,0,0,\"False\"\r\n"_s.repeated(8);
}

QString whole()
{
    QString text = head;
    for (int i = 1; i <= 9; ++i) {
        text += u"%1,%2,3%1,4%1,\"True\"\r\n"_s.arg(i).arg(10 * i);
    }
    return text;
}

QList<HotSpot> spotsOf(const QString &text)
{
    const auto handle = handleFileFrom(text);
    EXPECT_TRUE(handle) << handle.error().toStdString();
    return handle ? handle->spots : QList<HotSpot>();
}

QString faultOf(const QString &text)
{
    const auto handle = handleFileFrom(text);
    return handle ? u"no fault"_s : handle.error();
}

const QList<HotSpot> firstOnly = { { u"BTN_0"_s, QRect(5, 6, 70, 80) } };

} // namespace

TEST(HandleFile, HoldsThePictureTheStagesAndNineHotSpots)
{
    const auto handle = handleFileFrom(whole());
    ASSERT_TRUE(handle);
    EXPECT_EQ(handle->picture, u"Grip.bmp");
    EXPECT_TRUE(handle->triggerHasStages);
    const QList<HotSpot> expected = {
        { u"BTN_0"_s, QRect(1, 10, 31, 41) }, { u"BTN_1"_s, QRect(2, 20, 32, 42) },
        { u"BTN_2"_s, QRect(3, 30, 33, 43) }, { u"BTN_3"_s, QRect(4, 40, 34, 44) },
        { u"HAT_0"_s, QRect(5, 50, 35, 45) }, { u"HAT_1"_s, QRect(6, 60, 36, 46) },
        { u"HAT_2"_s, QRect(7, 70, 37, 47) }, { u"HAT_3"_s, QRect(8, 80, 38, 48) },
        { u"TRIG"_s, QRect(9, 90, 39, 49) },
    };
    EXPECT_EQ(handle->spots, expected);
}

TEST(HandleFile, ATriggerWithoutStagesHasZero)
{
    EXPECT_FALSE(handleFileFrom(whole().replace(u"\r\n1\r\n"_s, u"\r\n0\r\n"_s))->triggerHasStages);
    EXPECT_TRUE(handleFileFrom(whole().replace(u"\r\n1\r\n"_s, u"\r\n-1\r\n"_s))->triggerHasStages);
}

TEST(HandleFile, OnlyExactlyTrueShowsAHotSpot)
{
    EXPECT_EQ(spotsOf(fileWith(u"5,6,70,80,\"True\""_s)), firstOnly);
    EXPECT_EQ(spotsOf(fileWith(u"5,6,70,80,True"_s)), firstOnly);
    for (const QString &other : { u"\"true\""_s, u"true"_s, u"\"TRUE\""_s, u"\" True\""_s, u"1"_s,
                                  u"#TRUE#"_s, u"\"\""_s, QString() }) {
        EXPECT_EQ(spotsOf(fileWith(u"5,6,70,80,"_s + other)), QList<HotSpot>())
            << other.toStdString();
    }
}

TEST(HandleFile, FieldsEndAtCommasAndAtLineEndsOfAnyKind)
{
    EXPECT_EQ(spotsOf(fileWith(u"5\r\n6\r\n70\n80\rTrue"_s)), firstOnly);
    EXPECT_EQ(spotsOf(fileWith(u"5,6,70,80,\"True\""_s).replace(u"\r\n"_s, u","_s)), firstOnly);
    EXPECT_EQ(spotsOf(fileWith(u"5,6,70,80,\"True\""_s).replace(u"\r\n"_s, u"\n"_s)), firstOnly);
    EXPECT_EQ(spotsOf(fileWith(u"5,6,70,80,\"True\""_s).replace(u"\r\n"_s, u"\r"_s)), firstOnly);
}

TEST(HandleFile, BlanksAroundFieldsAndEmptyLinesDoNotCount)
{
    EXPECT_EQ(spotsOf(fileWith(u"\r\n \r\n 5 ,\t6, 70,80 , \"True\" "_s)), firstOnly);
    EXPECT_EQ(spotsOf(fileWith(u"5,6,70,80, True "_s)), firstOnly);
}

TEST(HandleFile, TheLastFieldNeedsNoLineEndAndMoreFieldsArePassedOver)
{
    EXPECT_EQ(spotsOf(whole().chopped(2)).size(), 9);
    EXPECT_EQ(spotsOf(whole() + u"and,\"more\r\n"_s).size(), 9);
}

TEST(HandleFile, AQuotedNameMayHoldACommaAndAnUnquotedOneBlanks)
{
    const auto named = [](const QString &name) {
        return handleFileFrom(whole().replace(u"\"Grip.bmp\""_s, name))->picture;
    };
    EXPECT_EQ(named(u"\"Grip, red.bmp\""_s), u"Grip, red.bmp");
    EXPECT_EQ(named(u"My red grip.bmp"_s), u"My red grip.bmp");
}

TEST(HandleFile, ThePictureLiesInTheProgramsFolderWhateverFolderIsNamed)
{
    const auto named = [](const QString &name) {
        return handleFileFrom(whole().replace(u"Grip.bmp"_s, name))->picture;
    };
    EXPECT_EQ(named(u"C:\\Cougar\\Grip.bmp"_s), u"Grip.bmp");
    EXPECT_EQ(named(u"..\\..\\Grip.bmp"_s), u"Grip.bmp");
    EXPECT_EQ(named(u"/etc/Grip.bmp"_s), u"Grip.bmp");
}

TEST(HandleFile, AShortFileIsToldWithWhatItLacks)
{
    EXPECT_EQ(faultOf({}), u"Line 1: the file ends before the name of the picture.");
    EXPECT_EQ(faultOf(u"\"Grip.bmp\"\r\n"_s),
              u"Line 2: the file ends before the stages of the trigger.");
    EXPECT_EQ(faultOf(head + u"1,2,3"_s),
              u"Line 3: the file ends before the height of the button S1.");
    EXPECT_EQ(faultOf(head + u"1,2,3,4,\"True\"\r\n"_s.repeated(8)),
              u"Line 11: the file ends before the left edge of the trigger.");
    EXPECT_EQ(faultOf(whole().chopped(8)),
              u"Line 11: the file ends before the visibility of the trigger.");
}

TEST(HandleFile, EveryFileThatIsCutOffIsAnErrorOrWhole)
{
    const QString text = whole();
    for (qsizetype length = 0; length < text.size() - 3; ++length) {
        const auto handle = handleFileFrom(text.first(length));
        // From here on only the last word is cut, which hides the trigger.
        const bool isWhole =
            handle && handle->spots.size() == 8 && text.first(length).contains(u"49,"_s);
        EXPECT_TRUE(!handle || isWhole) << length;
    }
}

TEST(HandleFile, WhatIsNoNumberIsToldWithItsLine)
{
    EXPECT_EQ(faultOf(fileWith(u"5,wide,70,80,\"True\""_s)),
              u"Line 3: “wide” is no whole number for the top of the button S1.");
    EXPECT_EQ(faultOf(u"\"Grip.bmp\"\r\nTrue\r\n"_s),
              u"Line 2: “True” is no whole number for the stages of the trigger.");
    for (const QString &number :
         { u"1.5"_s, u"40000"_s, u"12px"_s, QString(), u"99999999999999"_s }) {
        EXPECT_EQ(
            faultOf(fileWith(u"5,6,70,"_s + number + u",\"True\""_s)),
            u"Line 3: “%1” is no whole number for the height of the button S1."_s.arg(number));
    }
}

TEST(HandleFile, NegativeSizesAreErrorsAndNegativePlacesAreNot)
{
    EXPECT_EQ(faultOf(fileWith(u"5,6,-1,80,\"True\""_s)),
              u"Line 3: the button S1 is less than nothing wide or high.");
    EXPECT_EQ(faultOf(fileWith(u"5,6,70,-1,\"True\""_s)),
              u"Line 3: the button S1 is less than nothing wide or high.");
    EXPECT_EQ(spotsOf(fileWith(u"-5,-6,70,80,\"True\""_s)),
              (QList<HotSpot>{ { u"BTN_0"_s, QRect(-5, -6, 70, 80) } }));
}

TEST(HandleFile, QuotationMarksMustBeClosedBeforeTheComma)
{
    EXPECT_EQ(faultOf(u"\"Grip.bmp\r\n1\r\n"_s), u"Line 1: a quotation mark is missing.");
    EXPECT_EQ(faultOf(fileWith(u"5,6,70,80,\"True\"ly"_s)),
              u"Line 3: there is something between a quotation mark and the comma.");
    EXPECT_EQ(faultOf(u"\"\"\r\n1\r\n"_s), u"Line 1: the picture has no name.");
}

TEST(HandleFile, IsReadFromTheDiskInAnyCaseOfItsName)
{
    const test::TempFolder folder;
    folder.write(u"Grip.tmh"_s, whole().toLatin1());
    EXPECT_TRUE(loadHandleFile(folder.file(u"GRIP.TMH"_s)));
}

TEST(HandleFile, AFileThatIsMissingOrBrokenIsToldWithItsPath)
{
    const test::TempFolder folder;
    const auto missing = loadHandleFile(folder.file(u"Gone.tmh"_s));
    ASSERT_FALSE(missing);
    EXPECT_EQ(missing.error().path, folder.file(u"Gone.tmh"_s));
    EXPECT_FALSE(missing.error().reason.isEmpty());
    const auto broken = loadHandleFile(folder.write(u"Broken.tmh"_s, "Grip.bmp,one"));
    ASSERT_FALSE(broken);
    EXPECT_EQ(broken.error().path, folder.file(u"Broken.tmh"_s));
    EXPECT_EQ(broken.error().reason,
              u"Line 1: “one” is no whole number for the stages of the trigger.");
}
