// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/zip_names.h"

#include <gtest/gtest.h>

#include <QStringList>

using namespace zeph;

namespace {

QString pathOf(const QString &name)
{
    return safeEntryName(name).value_or(u"refused"_s);
}

} // namespace

TEST(ZipNames, APlainNameIsItsOwnPath)
{
    EXPECT_EQ(pathOf(u"a.tmj"_s), u"a.tmj");
    EXPECT_EQ(pathOf(u"My files/Äpfel 2.tmm"_s), u"My files/Äpfel 2.tmm");
    EXPECT_EQ(pathOf(u"a/./b//c.txt"_s), u"a/b/c.txt");
    EXPECT_EQ(pathOf(u"folder/"_s), u"folder");
    EXPECT_EQ(pathOf(u"a..b.txt"_s), u"a..b.txt");
    EXPECT_EQ(pathOf(u".hidden"_s), u".hidden");
}

TEST(ZipNames, BackslashesPartFolders)
{
    EXPECT_EQ(pathOf(u"sub\\a.tmj"_s), u"sub/a.tmj");
    EXPECT_EQ(pathOf(u"..\\a.tmj"_s), u"refused");
    EXPECT_EQ(pathOf(u"sub\\..\\..\\a.tmj"_s), u"refused");
    EXPECT_EQ(pathOf(u"\\a.tmj"_s), u"refused");
    EXPECT_EQ(pathOf(u"\\\\server\\share\\a.tmj"_s), u"refused");
}

TEST(ZipNames, WhatLeadsOutsideIsRefused)
{
    for (const QStringView name :
         { u"../a.tmj", u"a/../../b", u"a/..", u"..", u"/etc/passwd", u"//x/y", u"C:a.tmj",
           u"C:\\a.tmj", u"c:/a.tmj", u"sub/C:/a.tmj", u"a.tmj:stream" }) {
        EXPECT_FALSE(safeEntryName(name.toString())) << name.toString().toStdString();
    }
}

TEST(ZipNames, WhatNoFileCanBeCalledIsRefused)
{
    const QStringList names{ u""_s,
                             u"/"_s,
                             u"./."_s,
                             u"a\nb"_s,
                             u"a\tb"_s,
                             u"a"_s + QChar(0) + u'b',
                             u"a"_s + QChar(0x7F),
                             u"a*.txt"_s,
                             u"what?"_s,
                             u"a|b"_s,
                             u"a\"b"_s,
                             u"<a>"_s,
                             u"NUL"_s,
                             u"con.txt"_s,
                             u"sub/Com1.tmj"_s,
                             u"lpt9 .x"_s,
                             u"com¹.tmj"_s,
                             u"CONOUT$"_s,
                             u"end."_s,
                             u"end "_s,
                             u" start"_s,
                             u" "_s,
                             u"..."_s,
                             QString(256, u'x'),
                             QString(128, u'ä') + u'x',
                             QString(QChar(0xD800)),
                             u"d/"_s.repeated(32) + u"x"_s };
    for (const QString &name : names) {
        EXPECT_FALSE(safeEntryName(name)) << name.toStdString();
    }
    EXPECT_TRUE(safeEntryName(QString(255, u'x')));
    EXPECT_TRUE(safeEntryName(u"CONSOLE.txt"_s));
    EXPECT_TRUE(safeEntryName(u"com0"_s));
    EXPECT_TRUE(safeEntryName(u"d/"_s.repeated(31) + u"x"_s));
}

TEST(ZipNames, BytesAreUtf8OrTheOldCodePage)
{
    EXPECT_EQ(zipNameText("\xC3\x9C"
                          "bung.tmj"),
              u"Übung.tmj");
    EXPECT_EQ(zipNameText("\x9A"
                          "bung.tmj"),
              u"Übung.tmj");
    EXPECT_EQ(zipNameText("caf\x82 \xFF"), u"café \u00A0");
}

TEST(ZipNames, MarksThatTurnTheDirectionOfReadingAreRefused)
{
    // With the fourth a program may be shown as "exe.txt".
    for (const int mark : { 0x061C, 0x200E, 0x200F, 0x202E, 0x202A, 0x2066, 0x2069 }) {
        const QString name = u"txt"_s + QChar(char16_t(mark)) + u"txt.exe"_s;
        EXPECT_FALSE(safeEntryName(name)) << mark;
        EXPECT_FALSE(safeEntryName(u"folder"_s + QChar(char16_t(mark)) + u"/a.txt"_s)) << mark;
    }
    EXPECT_EQ(pathOf(u"\u05d0\u05d1.txt"_s), u"\u05d0\u05d1.txt")
        << "right to left letters are none";
}
