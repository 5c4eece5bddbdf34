// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/disk/windows_path.h"

#include <gtest/gtest.h>

#ifdef Q_OS_WIN
#include <QDir>
#endif

using namespace zeph;

TEST(LongWindowsPath, OfADriveOrAShareIsMarkedAsItIs)
{
    EXPECT_EQ(longWindowsPath(u"C:\\My Files\\a.tmj"_s), u"\\\\?\\C:\\My Files\\a.tmj");
    EXPECT_EQ(longWindowsPath(u"z:\\"_s), u"\\\\?\\z:\\");
    EXPECT_EQ(longWindowsPath(u"\\\\server\\share\\a.tmj"_s), u"\\\\?\\UNC\\server\\share\\a.tmj");
}

TEST(LongWindowsPath, WhatIsMarkedOrNotFullStaysAsItIs)
{
    for (const auto *path :
         { u"\\\\?\\C:\\a.tmj", u"\\\\?\\UNC\\server\\share\\a.tmj", u"\\\\.\\CON", u"a.tmj",
           u"Files\\a.tmj", u"C:a.tmj", u"\\a.tmj", u"C:", u"" }) {
        EXPECT_EQ(longWindowsPath(QString::fromUtf16(path)), QString::fromUtf16(path));
    }
}

#ifdef Q_OS_WIN

namespace {

QString windowsPathOf(const QString &path)
{
    return QString::fromStdWString(windowsPath(path));
}

} // namespace

TEST(WindowsPath, IsFullWithoutDotsAndWithBackslashes)
{
    EXPECT_EQ(windowsPathOf(u"C:/Files/./Sub/../a.tmj"_s), u"\\\\?\\C:\\Files\\a.tmj");
    EXPECT_EQ(windowsPathOf(u"//server/share/a.tmj"_s), u"\\\\?\\UNC\\server\\share\\a.tmj");
    EXPECT_EQ(windowsPathOf(u"a.tmj"_s),
              u"\\\\?\\"_s + QDir::toNativeSeparators(QDir::currentPath() + u"/a.tmj"_s));
}

TEST(WindowsPath, BlanksAndDotsAtTheEndDoNotCount)
{
    EXPECT_EQ(windowsPathOf(u"C:\\Files\\a.tmj. "_s), u"\\\\?\\C:\\Files\\a.tmj");
}

TEST(WindowsPath, ADeviceStaysADevice)
{
    EXPECT_EQ(windowsPathOf(u"C:\\Files\\NUL"_s), u"\\\\.\\NUL");
    EXPECT_EQ(windowsPathOf(u"con"_s).toUpper(), u"\\\\.\\CON");
}

#endif
