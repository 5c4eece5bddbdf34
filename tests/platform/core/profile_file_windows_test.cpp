// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// The tools of the Cougar's software read and write the same files by the calls of Windows: what
// one side writes the other reads.

#include "platform/core/base.h"

#ifdef Q_OS_WIN

#include "platform/core/profile_file.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <QDir>

#include <qt_windows.h>

using namespace zeph;
using test::TempFolder;

namespace {

const wchar_t *wide(const QString &text)
{
    return reinterpret_cast<const wchar_t *>(text.utf16());
}

/// HOTAS.ini as both sides see it.
struct ProfileFileAndWindows : testing::Test {
    TempFolder folder;
    const QString path = QDir::toNativeSeparators(folder.file(u"HOTAS.ini"_s));
    const ProfileFile ours{ path, ProfileUse::Shared };
    const QString umlauts = u"C:\\My Files\\Übung für Jürgen.tmj"_s;
    const QStringList values = {
        u"OK"_s,           umlauts,  u"one = two ; three"_s, u"'single'"_s, u"say \"hi\" twice"_s,
        u"[no section]"_s, QString()
    };

    void windowsWrites(const QString &section, const QString &key, const QString &value) const
    {
        EXPECT_TRUE(WritePrivateProfileStringW(wide(section), wide(key), wide(value), wide(path)))
            << GetLastError();
    }
    QString windowsReads(const QString &section, const QString &key) const
    {
        wchar_t buffer[profileTextBuffer];
        const DWORD length = GetPrivateProfileStringW(wide(section), wide(key), L"(absent)", buffer,
                                                      profileTextBuffer, wide(path));
        return QString::fromWCharArray(buffer, int(length));
    }
};

} // namespace

TEST_F(ProfileFileAndWindows, WhatWindowsWritesWeRead)
{
    for (const QString &value : values) {
        windowsWrites(u"Compiler"_s, u"Value"_s, value);
        EXPECT_EQ(ours.text(u"compiler", u"VALUE", u"(absent)"_s),
                  windowsReads(u"Compiler"_s, u"Value"_s))
            << value.toStdString();
    }
    windowsWrites(u"Compiler"_s, u"FileName"_s, umlauts);
    EXPECT_EQ(ours.text(u"Compiler", u"FileName"), umlauts);
}

TEST_F(ProfileFileAndWindows, WhatWeWriteWindowsReads)
{
    for (const QString &value : values) {
        ASSERT_TRUE(ours.write({ u"TMMODE"_s, u"Value"_s, value }));
        EXPECT_EQ(windowsReads(u"tmmode"_s, u"VALUE"_s),
                  ours.text(u"TMMODE", u"Value", u"(absent)"_s))
            << value.toStdString();
    }
    ASSERT_TRUE(ours.write({ u"TMMODE"_s, u"FileName"_s, umlauts }));
    EXPECT_EQ(windowsReads(u"TMMODE"_s, u"FileName"_s), umlauts);
}

TEST_F(ProfileFileAndWindows, EachLeavesTheOthersValuesAlone)
{
    folder.write(u"HOTAS.ini"_s,
                 "; by hand\r\n[Defaults]\r\nPOVhat=3\r\n\r\n[Compiler]\r\nStatus=OK\r\n");
    windowsWrites(u"Compiler"_s, u"LineNumber"_s, u"7"_s);
    ASSERT_TRUE(ours.write({ u"Defaults"_s, u"MDEFrequired"_s, u"1"_s }));
    windowsWrites(u"TMMODE"_s, u"Axes"_s, u"1"_s);
    EXPECT_EQ(ours.integer(u"Defaults", u"POVhat", 0), 3);
    EXPECT_EQ(ours.integer(u"Compiler", u"LineNumber", 0), 7);
    EXPECT_EQ(ours.integer(u"TMMODE", u"Axes", 0), 1);
    EXPECT_EQ(windowsReads(u"Compiler"_s, u"Status"_s), u"OK");
    EXPECT_EQ(windowsReads(u"Defaults"_s, u"MDEFrequired"_s), u"1");
    EXPECT_TRUE(folder.read(u"HOTAS.ini"_s).startsWith("; by hand\r\n"));
}

TEST_F(ProfileFileAndWindows, NumbersAreReadAlike)
{
    for (const QString &value : { u"12"_s, u"-5"_s, u"007"_s, u"12abc"_s, u"abc"_s, u" 4 "_s,
                                  u"+6"_s, u"2147483648"_s, u""_s }) {
        ASSERT_TRUE(ours.write({ u"A"_s, u"n"_s, value }));
        const auto windows = qint32(GetPrivateProfileIntW(L"A", L"n", 99, wide(path)));
        EXPECT_EQ(ours.integer(u"A", u"n", 99), windows) << value.toStdString();
    }
}

TEST_F(ProfileFileAndWindows, LongValuesAreCutAlike)
{
    ASSERT_TRUE(ours.write({ u"A"_s, u"long"_s, QString(600, u'x') }));
    EXPECT_EQ(windowsReads(u"A"_s, u"long"_s), ours.text(u"A", u"long"));
}

TEST_F(ProfileFileAndWindows, AKeyThatWindowsTakesOutIsGone)
{
    ASSERT_TRUE(ours.write({ { u"A"_s, u"x"_s, u"1"_s }, { u"A"_s, u"y"_s, u"2"_s } }));
    EXPECT_TRUE(WritePrivateProfileStringW(L"A", L"x", nullptr, wide(path)));
    EXPECT_EQ(ours.text(u"A", u"x", u"(absent)"_s), u"(absent)");
    EXPECT_EQ(ours.text(u"A", u"y"), u"2");
    ASSERT_TRUE(ours.remove(u"A", { u"y"_s }));
    EXPECT_EQ(windowsReads(u"A"_s, u"y"_s), u"(absent)");
}

#endif
