// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/paths.h"

#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#include <unistd.h>
#endif

using namespace zeph;
using test::TempFolder;

namespace {

/// A path with the system's own separators.
QString native(const QString &path)
{
    return QDir::toNativeSeparators(path);
}

} // namespace

TEST(Paths, FoldersLieUnderTheAppFolderAndEndInASeparator)
{
    const Paths paths{ u"/app"_s, native(u"/hotas/"_s), {} };
    EXPECT_TRUE(paths.rtfFolder().startsWith(u"/app"));
    EXPECT_TRUE(paths.rtfFolder().endsWith(native(u"/Rtf/"_s)));
    EXPECT_TRUE(paths.filesFolder().endsWith(native(u"/Files/"_s)));
    EXPECT_TRUE(paths.layoutsFolder().endsWith(native(u"/Layouts/"_s)));
    EXPECT_TRUE(paths.tempFolder().endsWith(native(u"/Temp/"_s)));
    EXPECT_TRUE(paths.defaultBackupFolder().endsWith(native(u"/Backup/"_s)));
    EXPECT_TRUE(paths.infoFolder().endsWith(native(u"/Info/"_s)));
    EXPECT_TRUE(paths.inApp(u"Tips.txt").endsWith(native(u"/Tips.txt"_s)));
}

TEST(Paths, TheToolsLieInTheHotasFolder)
{
    const Paths paths{ u"/app"_s, u"/hotas/"_s, {} };
    EXPECT_EQ(paths.compiler(), u"/hotas/HOTASCompiler.exe"_s);
    EXPECT_EQ(paths.config(), u"/hotas/HOTASConfig.exe"_s);
    EXPECT_EQ(paths.hotasIni(), u"/hotas/HOTAS.ini"_s);
}

TEST(PathNames, BothSeparatorsPartFolderAndName)
{
    EXPECT_EQ(folderOf(u"C:\\Files\\a.tmj"_s), u"C:\\Files\\"_s);
    EXPECT_EQ(nameOf(u"C:\\Files\\a.tmj"_s), u"a.tmj"_s);
    EXPECT_EQ(nameOf(u"/x\\y/a.tmj"_s), u"a.tmj"_s);
    EXPECT_EQ(folderOf(u"a.tmj"_s), QString());
    EXPECT_EQ(nameOf(u"a.tmj"_s), u"a.tmj"_s);
    EXPECT_EQ(nameOf(u"/x/"_s), QString());
}

TEST(PathNames, AFolderGetsExactlyOneClosingSeparator)
{
    EXPECT_EQ(withClosingSeparator(u"/x"_s), u"/x"_s + QDir::separator());
    EXPECT_EQ(withClosingSeparator(u"/x//"_s), u"/x"_s + QDir::separator());
    EXPECT_EQ(withClosingSeparator(u"C:\\x\\"_s), u"C:\\x"_s + QDir::separator());
    EXPECT_EQ(withClosingSeparator(u"/"_s), QString(QDir::separator()));
    EXPECT_EQ(withClosingSeparator(QString()), QString());
}

TEST(PathNames, NativeSeparatorsReplaceBothKinds)
{
    EXPECT_EQ(nativeSeparators(u"Files\\x/a.tmj"_s), native(u"Files/x/a.tmj"_s));
}

TEST(ExistingPath, TheExactNameComesFirst)
{
    const TempFolder folder;
    folder.write(u"a.tmj"_s, "lower");
    folder.write(u"A.TMJ"_s, "upper");
    EXPECT_EQ(existingPath(folder.file(u"A.TMJ"_s)), native(folder.file(u"A.TMJ"_s)));
    EXPECT_EQ(existingPath(folder.file(u"a.tmj"_s)), native(folder.file(u"a.tmj"_s)));
}

TEST(ExistingPath, EachComponentIsFoundInAnyCase)
{
    const TempFolder folder;
    const QString real = folder.write(u"Files/F-16 Früh.tmj"_s, "x");
    const QString found = existingPath(folder.file(u"FILES/f-16 FRÜH.TMJ"_s));
    EXPECT_FALSE(found.isEmpty());
    EXPECT_EQ(QFileInfo(found).canonicalFilePath(), QFileInfo(real).canonicalFilePath());
}

TEST(ExistingPath, BackslashesSeparateToo)
{
    const TempFolder folder;
    folder.write(u"Files/Sub/a.tmj"_s, "x");
    EXPECT_EQ(existingPath(folder.path() + u"\\files\\SUB\\A.tmj"_s),
              native(folder.file(u"Files/Sub/a.tmj"_s)));
}

TEST(ExistingPath, WhatIsNotThereIsEmpty)
{
    const TempFolder folder;
    folder.write(u"Files/a.tmj"_s, "x");
    EXPECT_EQ(existingPath(folder.file(u"Files/b.tmj"_s)), QString());
    EXPECT_EQ(existingPath(folder.file(u"Filez/a.tmj"_s)), QString());
    EXPECT_EQ(existingPath(folder.file(u"Files/a.tmj/c"_s)), QString());
    EXPECT_EQ(existingPath(QString()), QString());
}

TEST(ExistingPath, DotsGoUpAndStay)
{
    const TempFolder folder;
    folder.write(u"Files/a.tmj"_s, "x");
    folder.write(u"Temp/b.txt"_s, "x");
    EXPECT_TRUE(fileExists(folder.file(u"FILES/../temp/./B.TXT"_s)));
}

TEST(FileExists, TellsFilesFromFolders)
{
    const TempFolder folder;
    folder.write(u"Files/a.tmj"_s, "x");
    EXPECT_TRUE(fileExists(folder.file(u"files/A.tmj"_s)));
    EXPECT_FALSE(fileExists(folder.file(u"files"_s)));
    EXPECT_TRUE(folderExists(folder.file(u"files"_s)));
    EXPECT_TRUE(folderExists(folder.file(u"files\\"_s)));
    EXPECT_FALSE(folderExists(folder.file(u"files/a.tmj"_s)));
    EXPECT_FALSE(fileExists(QString()));
    EXPECT_FALSE(folderExists(QString()));
}

TEST(ChooseAppFolder, TheExecutablesOwnWhenItCanBeWritten)
{
    const TempFolder folder;
    folder.write(u"app/Tips.txt"_s, "tip");
    EXPECT_EQ(chooseAppFolder(folder.file(u"app"_s), folder.file(u"user"_s)),
              native(folder.file(u"app"_s)));
    EXPECT_FALSE(folder.exists(u"user"_s));
    EXPECT_EQ(QDir(folder.file(u"app"_s)).entryList(QDir::Files | QDir::Hidden),
              QStringList{ u"Tips.txt"_s });
}

#ifdef Q_OS_UNIX

namespace {

/// An installed program in a folder that this process may read but not write. Nobody's rights are
/// taken where the process could write everywhere.
class Installed
{
public:
    Installed()
    {
        m_folder.write(u"app/Tips.txt"_s, "tip");
        m_folder.write(u"app/Info/Syntax.rtf"_s, "info");
        setMode(u"."_s, 0777);
        setMode(u"app/Tips.txt"_s, 0444);
        setMode(u"app/Info"_s, 0555);
        setMode(u"app"_s, 0555);
        if (geteuid() == 0) {
            m_restricted = seteuid(65534) == 0;
        }
    }
    ~Installed()
    {
        if (m_restricted) {
            EXPECT_EQ(seteuid(0), 0);
        }
        setMode(u"app"_s, 0755);
        setMode(u"app/Info"_s, 0755);
    }

    bool isRestricted() const { return m_restricted || geteuid() != 0; }
    QString choose() const
    {
        return chooseAppFolder(m_folder.file(u"app"_s), m_folder.file(u"user/Zeph"_s));
    }
    const TempFolder &folder() const { return m_folder; }

private:
    void setMode(const QString &name, mode_t mode) const
    {
        EXPECT_EQ(chmod(QFile::encodeName(m_folder.file(name)).constData(), mode), 0);
    }

    TempFolder m_folder;
    bool m_restricted = false;
};

} // namespace

TEST(ChooseAppFolder, APerUserFolderIsFilledWhenTheExecutablesCannotBeWritten)
{
    const Installed installed;
    if (!installed.isRestricted()) {
        GTEST_SKIP() << "cannot drop the right to write everywhere";
    }
    EXPECT_EQ(installed.choose(), installed.folder().file(u"user/Zeph"_s));
    EXPECT_EQ(installed.folder().read(u"user/Zeph/Tips.txt"_s), "tip");
    EXPECT_EQ(installed.folder().read(u"user/Zeph/Info/Syntax.rtf"_s), "info");
    EXPECT_TRUE(QFile::permissions(installed.folder().file(u"user/Zeph/Tips.txt"_s))
                & QFile::WriteOwner);
}

TEST(ChooseAppFolder, WhatThePerUserFolderHasAlreadyIsLeftAlone)
{
    const Installed installed;
    if (!installed.isRestricted()) {
        GTEST_SKIP() << "cannot drop the right to write everywhere";
    }
    installed.folder().write(u"user/Zeph/Tips.txt"_s, "mine");
    installed.choose();
    EXPECT_EQ(installed.folder().read(u"user/Zeph/Tips.txt"_s), "mine");
    EXPECT_EQ(installed.folder().read(u"user/Zeph/Info/Syntax.rtf"_s), "info");
}

TEST(ChooseAppFolder, WhatTheUserDeletedDoesNotComeBackAtTheNextStart)
{
    const Installed installed;
    if (!installed.isRestricted()) {
        GTEST_SKIP() << "cannot drop the right to write everywhere";
    }
    installed.choose();
    ASSERT_TRUE(QFile::remove(installed.folder().file(u"user/Zeph/Tips.txt"_s)));
    installed.choose();
    EXPECT_FALSE(installed.folder().exists(u"user/Zeph/Tips.txt"_s));
}

#endif

TEST(RootOf, IsTheDriveOfAPath)
{
    const QString separator = QDir::separator();
    EXPECT_EQ(rootOf(u"D:\\Games\\fly.exe"_s), u"D:"_s + separator);
    EXPECT_EQ(rootOf(u"d:fly.exe"_s), u"d:"_s + separator);
#ifdef Q_OS_UNIX
    EXPECT_EQ(rootOf(u"/opt/games/fly.exe"_s), u"/"_s);
#endif
}
