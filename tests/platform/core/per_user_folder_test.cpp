// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/per_user_folder.h"

#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <QDateTime>
#include <QDir>
#include <QFile>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#include <unistd.h>
#endif

using namespace zeph;
using test::TempFolder;

TEST(PersonalFiles, AreSettingsLocksAndWorkInProgress)
{
    for (const auto *path : { u"Zeph.ini", u"zeph.INI", u"Zeph.2", u"Zeph.998", u"HOTAS.ini",
                              u"Layouts.ini", u"Zeph.lock", u"Zeph.2.lock", u"HOTAS.ini.lock",
                              u"Files/a.tmj.lock", u"Recovery/1/joystick.txt", u"Rtf/a.tmj",
                              u"Backup/a.tmj", u"temp/x", u".filled", u"Tips.txt.part" }) {
        EXPECT_TRUE(isPersonal(QString::fromUtf16(path))) << QString::fromUtf16(path).toStdString();
    }
}

TEST(PersonalFiles, AreNotTheProgramsOwnData)
{
    for (const auto *path :
         { u"Tips.txt", u"Zeph.bmp", u"Help/backups.html", u"Info/ZephInfo.ini", u"icons/new.svg",
           u"HOTASCompiler.exe", u"KeyCodes.txt", u"Files/Sample flight.tmj", u"Zeph.2x" }) {
        EXPECT_FALSE(isPersonal(QString::fromUtf16(path)))
            << QString::fromUtf16(path).toStdString();
    }
}

TEST(UpgradeOf, ReplacesOnlyWhatIsStillAsItWasCopied)
{
    const CopiedFile copied{ "old" };
    EXPECT_EQ(upgradeOf("new", "old", copied), Upgrade::Copy);
    EXPECT_EQ(upgradeOf("new", "mine", copied), Upgrade::Keep);
    EXPECT_EQ(upgradeOf("new", "new", copied), Upgrade::Nothing);
    EXPECT_EQ(upgradeOf("old", "mine", copied), Upgrade::Nothing) << "only the time is another";
    EXPECT_EQ(upgradeOf("new", {}, copied), Upgrade::Nothing) << "the user deleted it";
    EXPECT_EQ(upgradeOf("new", {}, {}), Upgrade::Copy);
    EXPECT_EQ(upgradeOf("new", "mine", {}), Upgrade::Keep);
}

TEST(ChooseFolder, IsTheExecutablesOwnWhenItCanBeWritten)
{
    const TempFolder folder;
    folder.write(u"app/Tips.txt"_s, "tip");
    const ChosenFolder chosen = chooseFolder(folder.file(u"app"_s), folder.file(u"user"_s));
    EXPECT_EQ(chosen.appFolder, QDir::toNativeSeparators(folder.file(u"app"_s)));
    EXPECT_TRUE(chosen.canWrite);
    EXPECT_FALSE(folder.exists(u"user"_s));
    EXPECT_EQ(QDir(folder.file(u"app"_s)).entryList(QDir::Files | QDir::Hidden),
              QStringList{ u"Tips.txt"_s });
}

TEST(ChooseFolder, IsTheUsersWhereAPackageSharesTheExecutables)
{
    const TempFolder folder;
    folder.write(u"app/Tips.txt"_s, "tip");
    folder.write(u"app/qt.conf"_s, "[Paths]\n");
    folder.write(u"app/Package.ini"_s, "[Package]\nShared=1\n");
    const ChosenFolder chosen = chooseFolder(folder.file(u"app"_s), folder.file(u"user"_s), true);
    EXPECT_EQ(chosen.appFolder, QDir::toNativeSeparators(folder.file(u"user"_s)));
    EXPECT_TRUE(chosen.canWrite);
    EXPECT_EQ(folder.read(u"user/Tips.txt"_s), "tip");
    EXPECT_FALSE(folder.exists(u"user/Package.ini"_s));
    EXPECT_FALSE(folder.exists(u"user/qt.conf"_s));
}

#ifdef Q_OS_UNIX

namespace {

/// An installed program in a folder that this process may read but not write. Nobody's rights are
/// taken where the process could write everywhere.
class InstalledTest : public testing::Test
{
protected:
    InstalledTest()
    {
        m_folder.write(u"app/Tips.txt"_s, "tip");
        m_folder.write(u"app/KeyCodes.txt"_s, "keys");
        m_folder.write(u"app/Info/Syntax.rtf"_s, "info");
        m_folder.write(u"app/Zeph.ini"_s, "another person's");
        m_folder.write(u"app/Rtf/a.tmj"_s, "another person's");
        setMode(u"."_s, 0777);
        protect();
    }
    ~InstalledTest() override { unprotect(); }

    void SetUp() override
    {
        if (!m_restricted && geteuid() == 0) {
            GTEST_SKIP() << "cannot drop the right to write everywhere";
        }
    }
    ChosenFolder choose() const { return chooseFolder(file(u"app"), file(u"user/Zeph")); }
    QString file(QStringView name) const { return m_folder.file(name.toString()); }
    QByteArray user(const QString &name) const { return m_folder.read(u"user/Zeph/"_s + name); }
    bool userHas(const QString &name) const { return m_folder.exists(u"user/Zeph/"_s + name); }
    void write(const QString &name, const QByteArray &bytes) const { m_folder.write(name, bytes); }
    /// What an upgrade installs.
    void install(const QString &name, const QByteArray &bytes)
    {
        unprotect();
        m_folder.write(u"app/"_s + name, bytes);
        protect();
    }
    /// A folder within the program's that everybody may write.
    void installForAll(const QString &name)
    {
        unprotect();
        QDir().mkdir(m_folder.file(u"app/"_s + name));
        setMode(u"app/"_s + name, 0777);
        protect();
    }
    void setMode(const QString &name, mode_t mode) const
    {
        EXPECT_EQ(chmod(QFile::encodeName(m_folder.file(name)).constData(), mode), 0);
    }

private:
    void protect()
    {
        setMode(u"app/Tips.txt"_s, 0444);
        setMode(u"app/Info"_s, 0555);
        setMode(u"app"_s, 0555);
        m_restricted = geteuid() == 0 && seteuid(65534) == 0;
    }
    void unprotect()
    {
        if (m_restricted) {
            EXPECT_EQ(seteuid(0), 0);
        }
        setMode(u"app"_s, 0755);
        setMode(u"app/Info"_s, 0755);
        setMode(u"app/Tips.txt"_s, 0644);
    }

    TempFolder m_folder;
    bool m_restricted = false;
};

} // namespace

TEST_F(InstalledTest, APerUserFolderIsFilled)
{
    const ChosenFolder chosen = choose();
    EXPECT_EQ(chosen.appFolder, file(u"user/Zeph"));
    EXPECT_TRUE(chosen.canWrite);
    EXPECT_TRUE(chosen.kept.isEmpty());
    EXPECT_EQ(user(u"Tips.txt"_s), "tip");
    EXPECT_EQ(user(u"Info/Syntax.rtf"_s), "info");
    EXPECT_TRUE(QFile::permissions(file(u"user/Zeph/Tips.txt")) & QFile::WriteOwner);
}

TEST_F(InstalledTest, LibrariesAndTheUninstallerStayWithTheProgram)
{
    install(u"Qt6Core.dll"_s, "library");
    install(u"Uninstall.exe"_s, "program");
    install(u"HOTASCompiler.exe"_s, "tool");
    choose();
    EXPECT_FALSE(userHas(u"Qt6Core.dll"_s));
    EXPECT_FALSE(userHas(u"Uninstall.exe"_s));
    EXPECT_EQ(user(u"HOTASCompiler.exe"_s), "tool");
}

TEST_F(InstalledTest, ACopyThatWasCutShortIsMadeAnew)
{
    write(u"user/Zeph/Tips.txt.part"_s, "ti");
    QFile::setPermissions(file(u"user/Zeph/Tips.txt.part"), QFile::ReadOwner);
    choose();
    EXPECT_EQ(user(u"Tips.txt"_s), "tip");
    EXPECT_FALSE(userHas(u"Tips.txt.part"_s));
}

TEST_F(InstalledTest, AUsersFolderInsideTheProgramsIsNotCopiedIntoItself)
{
    installForAll(u"homes"_s);
    const QString inside = file(u"app/homes/me");
    EXPECT_TRUE(chooseFolder(file(u"app"), inside).canWrite);
    EXPECT_TRUE(QFile::exists(inside + u"/Tips.txt"_s));
    EXPECT_FALSE(QFile::exists(inside + u"/homes"_s));
}

TEST_F(InstalledTest, AnotherPersonsFilesAreNotCopied)
{
    choose();
    EXPECT_FALSE(userHas(u"Zeph.ini"_s));
    EXPECT_FALSE(userHas(u"Rtf"_s));
}

TEST_F(InstalledTest, WhatThePerUserFolderHasAlreadyIsLeftAlone)
{
    write(u"user/Zeph/Tips.txt"_s, "mine");
    choose();
    EXPECT_EQ(user(u"Tips.txt"_s), "mine");
    EXPECT_EQ(user(u"Info/Syntax.rtf"_s), "info");
}

TEST_F(InstalledTest, WhatTheUserDeletedDoesNotComeBack)
{
    choose();
    ASSERT_TRUE(QFile::remove(file(u"user/Zeph/Tips.txt")));
    choose();
    EXPECT_FALSE(userHas(u"Tips.txt"_s));
    install(u"Tips.txt"_s, "newer tip");
    choose();
    EXPECT_FALSE(userHas(u"Tips.txt"_s));
}

TEST_F(InstalledTest, AnUpgradeBringsTheProgramsDataUpToDateAndNamesWhatTheUserChanged)
{
    choose();
    write(u"user/Zeph/KeyCodes.txt"_s, "my keys");
    install(u"Tips.txt"_s, "newer tip");
    install(u"KeyCodes.txt"_s, "newer keys");
    install(u"Info/New.rtf"_s, "new info");
    EXPECT_EQ(choose().kept, QStringList{ u"KeyCodes.txt"_s });
    EXPECT_EQ(user(u"Tips.txt"_s), "newer tip");
    EXPECT_EQ(user(u"KeyCodes.txt"_s), "my keys");
    EXPECT_EQ(user(u"Info/New.rtf"_s), "new info");
    EXPECT_TRUE(choose().kept.isEmpty()) << "told once";
    install(u"Tips.txt"_s, "newest tip!");
    EXPECT_TRUE(choose().kept.isEmpty());
    EXPECT_EQ(user(u"Tips.txt"_s), "newest tip!");
}

TEST_F(InstalledTest, AFolderFilledByAnEarlierProgramIsBroughtUpToDateToo)
{
    write(u"user/Zeph/Tips.txt"_s, "old tip");
    write(u"user/Zeph/.filled"_s, "");
    write(u"user/Zeph/KeyCodes.txt"_s, "my keys");
    for (const QStringView name : { u"user/Zeph/Tips.txt", u"user/Zeph/.filled" }) {
        QFile each(file(name));
        ASSERT_TRUE(each.open(QFile::ReadWrite));
        ASSERT_TRUE(each.setFileTime(QDateTime(QDate(2023, 1, 1), QTime(12, 0)),
                                     QFile::FileModificationTime));
    }
    EXPECT_EQ(choose().kept, QStringList{ u"KeyCodes.txt"_s });
    EXPECT_EQ(user(u"Tips.txt"_s), "tip");
    EXPECT_EQ(user(u"KeyCodes.txt"_s), "my keys");
}

TEST_F(InstalledTest, WithoutAnyFolderToWriteTheProgramRunsWhereItIs)
{
    const ChosenFolder chosen = chooseFolder(file(u"app"), file(u"app/user"));
    EXPECT_FALSE(chosen.canWrite);
    EXPECT_EQ(chosen.appFolder, file(u"app"));
}

#endif
