// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// What only Windows does with files: it lets programs keep them to themselves, and gives them
// attributes, rights and a date of making that a file which takes their place is to keep.

#include "platform/core/base.h"

#ifdef Q_OS_WIN

#include "platform/core/disk/disk.h"
#include "platform/core/disk/windows_path.h"
#include "platform/core/file_io.h"
#include "platform/core/profile_file.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>

#include <qt_windows.h>

#include <aclapi.h>
#include <sddl.h>

#include <atomic>
#include <thread>

using namespace zeph;
using test::TempFolder;

namespace {

/// Another program that has a file open.
class Holder
{
public:
    explicit Holder(const QString &path, DWORD share = 0)
        : m_file(CreateFileW(windowsPath(path).c_str(), GENERIC_READ | GENERIC_WRITE, share,
                             nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr))
    {
        EXPECT_NE(m_file, INVALID_HANDLE_VALUE) << GetLastError();
    }
    ~Holder() { letGo(); }
    Holder(const Holder &) = delete;
    Holder &operator=(const Holder &) = delete;

    void overwrite(const QByteArray &bytes) const
    {
        DWORD written = 0;
        EXPECT_TRUE(WriteFile(m_file, bytes.constData(), DWORD(bytes.size()), &written, nullptr));
        EXPECT_TRUE(SetEndOfFile(m_file));
    }
    void letGo()
    {
        if (m_file != INVALID_HANDLE_VALUE) {
            CloseHandle(m_file);
        }
        m_file = INVALID_HANDLE_VALUE;
    }

private:
    HANDLE m_file;
};

/// Does something a moment later, while the test waits in a call.
class Later
{
public:
    template <typename Function>
    explicit Later(Function function)
        : m_thread([function] {
              Sleep(100);
              function();
          })
    {
    }
    ~Later() { m_thread.join(); }

private:
    std::thread m_thread;
};

QStringList entries(const TempFolder &folder)
{
    return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden | QDir::System);
}

/// The rights of a file that are its own, as text.
QString ownRights(const QString &path)
{
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    EXPECT_EQ(GetNamedSecurityInfoW(windowsPath(path).c_str(), SE_FILE_OBJECT,
                                    DACL_SECURITY_INFORMATION, nullptr, nullptr, nullptr, nullptr,
                                    &descriptor),
              DWORD(ERROR_SUCCESS));
    wchar_t *text = nullptr;
    EXPECT_TRUE(ConvertSecurityDescriptorToStringSecurityDescriptorW(
        descriptor, SDDL_REVISION_1, DACL_SECURITY_INFORMATION, &text, nullptr));
    const QString rights = QString::fromWCharArray(text);
    LocalFree(text);
    LocalFree(descriptor);
    return rights;
}

void restrictToOwner(const QString &path)
{
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    PSID owner = nullptr;
    ASSERT_EQ(GetNamedSecurityInfoW(windowsPath(path).c_str(), SE_FILE_OBJECT,
                                    OWNER_SECURITY_INFORMATION, &owner, nullptr, nullptr, nullptr,
                                    &descriptor),
              DWORD(ERROR_SUCCESS));
    wchar_t *name = nullptr;
    EXPECT_TRUE(ConvertSidToStringSidW(owner, &name));
    const std::wstring rights = L"D:P(A;;FA;;;SY)(A;;FA;;;" + std::wstring(name) + L")";
    LocalFree(name);
    LocalFree(descriptor);
    PSECURITY_DESCRIPTOR wanted = nullptr;
    ASSERT_TRUE(ConvertStringSecurityDescriptorToSecurityDescriptorW(
        rights.c_str(), SDDL_REVISION_1, &wanted, nullptr));
    EXPECT_TRUE(SetFileSecurityW(windowsPath(path).c_str(), DACL_SECURITY_INFORMATION, wanted));
    LocalFree(wanted);
}

} // namespace

TEST(HeldFile, IsToldFromOneThatIsOnlyOpenOrMissing)
{
    const TempFolder folder;
    const QString path = folder.write(u"a.tmj"_s, "old");
    EXPECT_FALSE(disk::isHeld(path));
    {
        const Holder open(path, FILE_SHARE_READ | FILE_SHARE_WRITE);
        EXPECT_FALSE(disk::isHeld(path));
    }
    const Holder held(path);
    EXPECT_TRUE(disk::isHeld(path));
    EXPECT_FALSE(disk::isHeld(folder.file(u"none.tmj"_s)));
    EXPECT_FALSE(disk::isHeld(folder.path()));
}

TEST(HeldFile, IsReadOnceItIsLetGo)
{
    const TempFolder folder;
    const QString path = folder.write(u"a.tmj"_s, "old");
    Holder held(path);
    const Later later([&held] { held.letGo(); });
    EXPECT_EQ(readWholeFile(path).value_or("(unread)"), "old");
}

TEST(HeldFile, ThatIsNotLetGoIsToldWithTheReason)
{
    const TempFolder folder;
    const QString path = folder.write(u"a.tmj"_s, "old");
    Holder held(path);
    const auto read = readWholeFile(path);
    ASSERT_FALSE(read);
    EXPECT_EQ(read.error().path, path);
    const auto written = writeFileAtomically(path, "new");
    ASSERT_FALSE(written);
    EXPECT_EQ(written.error().path, path);
    EXPECT_EQ(written.error().reason, qt_error_string(ERROR_SHARING_VIOLATION));
    held.letGo();
    EXPECT_EQ(folder.read(u"a.tmj"_s), "old");
    EXPECT_EQ(entries(folder), QStringList{ u"a.tmj"_s });
}

TEST(HeldFile, IsReplacedOnceItIsLetGo)
{
    const TempFolder folder;
    const QString path = folder.write(u"a.tmj"_s, "old");
    {
        Holder held(path);
        const Later later([&held] { held.letGo(); });
        EXPECT_TRUE(writeFileAtomically(path, "new"));
    }
    EXPECT_EQ(folder.read(u"a.tmj"_s), "new");
    {
        Holder reader(path, FILE_SHARE_READ | FILE_SHARE_WRITE);
        const Later later([&reader] { reader.letGo(); });
        FileBatch batch;
        EXPECT_TRUE(batch.add(path, "newer"));
        EXPECT_TRUE(batch.commit().empty());
    }
    EXPECT_EQ(folder.read(u"a.tmj"_s), "newer");
    EXPECT_EQ(entries(folder), QStringList{ u"a.tmj"_s });
}

TEST(HeldFile, IsReplacedBetweenTheLooksOfAReader)
{
    const TempFolder folder;
    const QString path = folder.write(u"a.ini"_s, "old");
    std::atomic<bool> goesOn = true;
    std::thread reader([&] {
        while (goesOn) {
            QFile file(path);
            if (file.open(QFile::ReadOnly)) {
                file.readAll();
            }
            file.close();
            Sleep(1);
        }
    });
    for (int i = 0; i < 100; ++i) {
        const auto written = writeFileAtomically(path, QByteArray::number(i));
        EXPECT_TRUE(written) << i << ": " << written.error().reason.toStdString();
    }
    goesOn = false;
    reader.join();
    EXPECT_EQ(folder.read(u"a.ini"_s), "99");
}

TEST(HeldFile, WhatItsHolderWroteIsNotLost)
{
    const TempFolder folder;
    const QString path = folder.write(u"HOTAS.ini"_s, "[A]\r\nx=1\r\n");
    const ProfileFile ours(path, ProfileUse::Shared);
    {
        Holder held(path);
        const Later later([&held] {
            held.overwrite("[A]\r\nx=2\r\n");
            held.letGo();
        });
        EXPECT_TRUE(ours.write({ u"A"_s, u"y"_s, u"3"_s }));
    }
    EXPECT_EQ(folder.read(u"HOTAS.ini"_s), "[A]\r\nx=2\r\ny=3\r\n");
}

TEST(HeldFile, AReadOnlyFileIsRefusedAtOnce)
{
    const TempFolder folder;
    const QString path = folder.write(u"a.tmj"_s, "old");
    ASSERT_TRUE(SetFileAttributesW(windowsPath(path).c_str(), FILE_ATTRIBUTE_READONLY));
    QElapsedTimer timer;
    timer.start();
    EXPECT_FALSE(writeFileAtomically(path, "new"));
    EXPECT_LT(timer.elapsed(), 500);
    EXPECT_EQ(folder.read(u"a.tmj"_s), "old");
    EXPECT_TRUE(SetFileAttributesW(windowsPath(path).c_str(), FILE_ATTRIBUTE_NORMAL));
}

TEST(ReplacedFile, KeepsItsAttributes)
{
    const TempFolder folder;
    const QString path = folder.write(u"a.tmj"_s, "old");
    ASSERT_TRUE(SetFileAttributesW(windowsPath(path).c_str(), FILE_ATTRIBUTE_HIDDEN));
    ASSERT_TRUE(writeFileAtomically(path, "new"));
    EXPECT_EQ(folder.read(u"a.tmj"_s), "new");
    EXPECT_TRUE(GetFileAttributesW(windowsPath(path).c_str()) & FILE_ATTRIBUTE_HIDDEN);
}

TEST(ReplacedFile, KeepsItsDateOfMaking)
{
    const TempFolder folder;
    const QString path = folder.write(u"a.tmj"_s, "old");
    const FILETIME made{ 0x89ABCDEF, 0x01D00000 };
    {
        const HANDLE file = CreateFileW(windowsPath(path).c_str(), FILE_WRITE_ATTRIBUTES, 0,
                                        nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
        ASSERT_NE(file, INVALID_HANDLE_VALUE);
        EXPECT_TRUE(SetFileTime(file, &made, nullptr, nullptr));
        CloseHandle(file);
    }
    WIN32_FILE_ATTRIBUTE_DATA before{};
    ASSERT_TRUE(GetFileAttributesExW(windowsPath(path).c_str(), GetFileExInfoStandard, &before));
    if (before.ftCreationTime.dwLowDateTime != made.dwLowDateTime) {
        GTEST_SKIP() << "this system keeps no date of making";
    }
    ASSERT_TRUE(writeFileAtomically(path, "new"));
    WIN32_FILE_ATTRIBUTE_DATA after{};
    ASSERT_TRUE(GetFileAttributesExW(windowsPath(path).c_str(), GetFileExInfoStandard, &after));
    EXPECT_EQ(folder.read(u"a.tmj"_s), "new");
    EXPECT_EQ(after.ftCreationTime.dwHighDateTime, before.ftCreationTime.dwHighDateTime);
    EXPECT_EQ(after.ftCreationTime.dwLowDateTime, before.ftCreationTime.dwLowDateTime);
}

TEST(ReplacedFile, KeepsTheRightsThatAreItsOwn)
{
    const TempFolder folder;
    const QString path = folder.write(u"a.tmj"_s, "old");
    // Nothing is inherited, and others than the owner and the system may not even read.
    restrictToOwner(path);
    const QString before = ownRights(path);
    folder.write(u"plain.tmj"_s, "x");
    ASSERT_NE(before, ownRights(folder.file(u"plain.tmj"_s))) << "this test shows nothing";
    ASSERT_TRUE(writeFileAtomically(path, "new"));
    EXPECT_EQ(ownRights(path), before);
}

TEST(WindowsNames, ADeviceIsNoFileAndNoneIsMade)
{
    const TempFolder folder;
    for (const QString &name : { u"CON"_s, u"nul"_s, u"COM1"_s }) {
        EXPECT_FALSE(writeFileAtomically(folder.file(name), "x")) << name.toStdString();
    }
    EXPECT_TRUE(entries(folder).isEmpty()) << entries(folder).join(u' ').toStdString();
}

TEST(WindowsNames, BlanksAndDotsAtTheEndMeanTheFileWithoutThem)
{
    const TempFolder folder;
    folder.write(u"a.tmj"_s, "old");
    EXPECT_TRUE(writeFileAtomically(folder.file(u"a.tmj. "_s), "new"));
    EXPECT_EQ(entries(folder), QStringList{ u"a.tmj"_s });
    EXPECT_EQ(folder.read(u"a.tmj"_s), "new");
}

TEST(WindowsNames, AShortcutIsAFileOfItsOwn)
{
    const TempFolder folder;
    const QString target = folder.write(u"a.tmj"_s, "old");
    const QString shortcut = folder.file(u"a.lnk"_s);
    ASSERT_TRUE(QFile::link(target, shortcut));
    EXPECT_TRUE(writeFileAtomically(shortcut, "new"));
    EXPECT_EQ(folder.read(u"a.tmj"_s), "old");
    EXPECT_EQ(folder.read(u"a.lnk"_s), "new");
}

#endif
