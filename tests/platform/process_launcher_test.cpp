// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/process_launcher.h"

#include "platform/core/paths.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>
#include <QUrl>

using namespace zeph;
using test::TempFolder;

TEST(SplitCommandLine, BlanksPartWordsAndQuotesHoldThemTogether)
{
    EXPECT_EQ(splitCommandLine(u"/ZEPH /CE \"C:\\My Files\\a.tmj\""),
              (QStringList{ u"/ZEPH"_s, u"/CE"_s, u"C:\\My Files\\a.tmj"_s }));
    EXPECT_EQ(splitCommandLine(u"  a\tb  "), (QStringList{ u"a"_s, u"b"_s }));
    EXPECT_EQ(splitCommandLine(u""), QStringList());
    EXPECT_EQ(splitCommandLine(u"   "), QStringList());
}

TEST(SplitCommandLine, QuotesMayStandInsideAWord)
{
    EXPECT_EQ(splitCommandLine(u"-d\"My Files\"x y"), (QStringList{ u"-dMy Filesx"_s, u"y"_s }));
    EXPECT_EQ(splitCommandLine(u"\"\" a"), (QStringList{ QString(), u"a"_s }));
}

TEST(SplitCommandLine, ABackslashBeforeAQuoteBelongsToThePath)
{
    EXPECT_EQ(splitCommandLine(u"\"C:\\Files\\\" b"), (QStringList{ u"C:\\Files\\"_s, u"b"_s }));
}

TEST(SplitCommandLine, AnOpenQuoteGoesToTheEnd)
{
    EXPECT_EQ(splitCommandLine(u"a \"b c"), (QStringList{ u"a"_s, u"b c"_s }));
}

namespace {

/// Program and arguments of a command, one text.
QString parted(const QString &command, const QString &folder = {})
{
    const Launch launch = launchFromCommand(command, folder, WindowStyle::MaximisedFocus);
    EXPECT_EQ(launch.folder, folder);
    EXPECT_EQ(launch.style, WindowStyle::MaximisedFocus);
    return launch.program + u'|' + launch.arguments;
}

} // namespace

TEST(LaunchFromCommand, AQuotedFirstWordIsTheProgram)
{
    EXPECT_EQ(parted(u"\"C:\\My Games\\fly.exe\" -w \"a b\""_s),
              u"C:\\My Games\\fly.exe|-w \"a b\""_s);
    EXPECT_EQ(parted(u"\"C:\\fly.exe\""_s), u"C:\\fly.exe|"_s);
    EXPECT_EQ(parted(u"\"C:\\My Games\\fly.exe"_s), u"C:\\My Games\\fly.exe|"_s);
    EXPECT_EQ(parted(u"\""_s), u"|"_s);
}

TEST(LaunchFromCommand, WithoutQuotesTheShortestBeginningThatIsAFileIsTheProgram)
{
    const TempFolder folder;
    const QString program = folder.write(u"My Games/fly high.exe"_s, "x");
    EXPECT_EQ(parted(program + u"  -w a.cfg "_s), program + u"|-w a.cfg"_s);
    EXPECT_EQ(parted(program), program + u'|');
    const QString shorter = folder.write(u"My Games/fly"_s, "x");
    EXPECT_EQ(parted(program + u" -w"_s), shorter + u"|high.exe -w"_s);
}

TEST(LaunchFromCommand, AFolderIsNoProgram)
{
    const TempFolder folder;
    folder.write(u"My/inner.txt"_s, "x");
    const QString program = folder.write(u"My Games/fly.exe"_s, "x");
    EXPECT_EQ(parted(program + u" -w"_s), program + u"|-w"_s);
}

TEST(LaunchFromCommand, AProgramMayLackItsEnding)
{
    const TempFolder folder;
    const QString program = folder.write(u"My Games/fly.exe"_s, "x");
    const QString bare = program.chopped(4);
    EXPECT_EQ(parted(bare + u" -w"_s), program + u"|-w"_s);
    EXPECT_EQ(parted(u'"' + bare + u"\" -w"_s), program + u"|-w"_s);
}

TEST(LaunchFromCommand, ANameAloneIsLookedForInTheWorkingFolder)
{
    const TempFolder folder;
    const QString program = folder.write(u"fly high.exe"_s, "x");
    EXPECT_EQ(parted(u"fly high.exe -w"_s, folder.path()), program + u"|-w"_s);
    EXPECT_EQ(parted(u"no such.exe -w"_s, folder.path()), u"no|such.exe -w"_s);
}

TEST(LaunchFromCommand, WithNoSuchFileTheFirstWordIsTheProgram)
{
    EXPECT_EQ(parted(u"rundll32.exe shell32.dll,Control_RunDLL joy.cpl,,0"_s),
              u"rundll32.exe|shell32.dll,Control_RunDLL joy.cpl,,0"_s);
    EXPECT_EQ(parted(u"  lonely  "_s), u"lonely|"_s);
    EXPECT_EQ(parted(u""_s), u"|"_s);
}

TEST(CarriedLibraries, AreBesideTheProgramsFolderWhereTheToolkitIsAmongThem)
{
    const TempFolder folder;
    folder.write(u"zeph/program/Tips.txt"_s, {});
    folder.write(u"zeph/lib/other.so"_s, {});
    EXPECT_EQ(carriedLibraries(folder.file(u"zeph/program"_s)), QString());
    folder.write(u"zeph/lib/libQt6Core.so.6"_s, {});
    EXPECT_TRUE(
        isSameFile(carriedLibraries(folder.file(u"zeph/program"_s)), folder.file(u"zeph/lib"_s)));
}

TEST(SystemLauncher, AMissingProgramIsToldWithPathAndReason)
{
    const TempFolder folder;
    const QString path = folder.file(u"none.exe"_s);
    const auto started = SystemLauncher().start({ .program = path });
    ASSERT_FALSE(started);
    EXPECT_TRUE(started.error().startsWith(path + u": "_s)) << started.error().toStdString();
    EXPECT_GT(started.error().size(), path.size() + 2);
    EXPECT_FALSE(SystemLauncher().start({ .program = u"no-such-program-anywhere"_s }));
    EXPECT_FALSE(SystemLauncher().start({}));
}

TEST(SystemLauncher, AMissingFileForTheDesktopIsTold)
{
    const TempFolder folder;
    const auto opened = SystemLauncher().openWithDesktop(folder.file(u"none.pdf"_s));
    ASSERT_FALSE(opened);
    EXPECT_TRUE(opened.error().contains(u"none.pdf"_s));
}

namespace {

/// Stands in for the desktop's own programs.
class UrlCatcher : public QObject
{
    Q_OBJECT
public:
    explicit UrlCatcher(QString scheme) : m_scheme(std::move(scheme))
    {
        QDesktopServices::setUrlHandler(m_scheme, this, "caught");
    }
    ~UrlCatcher() override { QDesktopServices::unsetUrlHandler(m_scheme); }

    QList<QUrl> urls;

public Q_SLOTS:
    void caught(const QUrl &url) { urls.append(url); }

private:
    QString m_scheme;
};

} // namespace

#ifdef Q_OS_UNIX

TEST(SystemLauncher, FilesAndAddressesGoToTheDesktop)
{
    const TempFolder folder;
    const QString path = folder.write(u"My manual.pdf"_s, "x");
    const UrlCatcher files(u"file"_s);
    const UrlCatcher pages(u"http"_s);
    EXPECT_TRUE(SystemLauncher().openWithDesktop(folder.path() + u"\\MY MANUAL.pdf"_s));
    EXPECT_TRUE(SystemLauncher().openWithDesktop(u"http://localhost/page"_s));
    ASSERT_EQ(files.urls.size(), 1);
    EXPECT_EQ(QFileInfo(files.urls[0].toLocalFile()).canonicalFilePath(),
              QFileInfo(path).canonicalFilePath());
    EXPECT_EQ(pages.urls, QList<QUrl>{ QUrl(u"http://localhost/page"_s) });
}

namespace {

/// A script that writes its folder and then its words, a line each, into the file "told"; last a
/// line that came in a variable, as wine gets it.
class Script
{
public:
    explicit Script(const QString &name = u"tool.exe"_s) : m_path(m_folder.write(name, script()))
    {
        makeExecutable(m_path);
    }

    static void makeExecutable(const QString &path)
    {
        EXPECT_TRUE(QFile::setPermissions(path, QFile::permissions(path) | QFile::ExeOwner));
    }

    const TempFolder &folder() const { return m_folder; }
    QString path() const { return m_path; }
    /// What was told; waits for the script's end.
    QStringList told() const
    {
        EXPECT_TRUE(QTest::qWaitFor([this] { return m_folder.exists(u"told"_s); }, 10000));
        return QString::fromUtf8(m_folder.read(u"told"_s)).split(u'\n', Qt::SkipEmptyParts);
    }

private:
    QByteArray script() const
    {
        const QByteArray told = QFile::encodeName(m_folder.file(u"told"_s));
        return "#!/bin/sh\n{ pwd; for word in \"$@\"; do printf '%s\\n' \"$word\"; done;"
               " printf '%s\\n' \"$ZEPH_COMMAND_LINE\"; } > '"
            + told + ".part'\nmv '" + told + ".part' '" + told + "'\n";
    }

    TempFolder m_folder;
    QString m_path;
};

QString backslashed(QString path)
{
    return path.replace(u'/', u'\\');
}

/// The words by which wine's command prompt starts a line that is in a variable, and the line.
QStringList throughPrompt(const QString &line)
{
    return { u"cmd"_s, u"/c"_s, u"%ZEPH_COMMAND_LINE%"_s, line };
}

/// Puts one folder before all others in the search path.
class SearchPath
{
public:
    explicit SearchPath(const QByteArray &path) : m_was(qgetenv("PATH")) { qputenv("PATH", path); }
    ~SearchPath() { qputenv("PATH", m_was); }

private:
    QByteArray m_was;
};

} // namespace

TEST(SystemLauncher, StartsAProgramWithItsWordsInItsFolder)
{
    const Script script;
    const TempFolder work;
    const auto started = SystemLauncher().start({ .program = script.path(),
                                                  .arguments = u"/ZEPH /CE \"/My Files/a.tmj\""_s,
                                                  .folder = work.path() });
    ASSERT_TRUE(started) << started.error().toStdString();
    const QStringList told = script.told();
    ASSERT_EQ(told.size(), 4);
    EXPECT_EQ(QDir(told[0]).canonicalPath(), QDir(work.path()).canonicalPath());
    EXPECT_EQ(told.mid(1), (QStringList{ u"/ZEPH"_s, u"/CE"_s, u"/My Files/a.tmj"_s }));
}

TEST(SystemLauncher, FindsAProgramOfAnotherCaseAndWithBackslashes)
{
    const Script script(u"Sub/Tool.exe"_s);
    const auto started =
        SystemLauncher().start({ .program = script.folder().path() + u"\\sub\\TOOL.EXE"_s });
    ASSERT_TRUE(started) << started.error().toStdString();
    EXPECT_EQ(script.told().size(), 1);
}

TEST(SystemLauncher, AFileThatIsNoProgramIsToldWithThePath)
{
    const TempFolder folder;
    const QString path = folder.write(u"notes.txt"_s, "not a program");
    const auto started = SystemLauncher().start({ .program = path });
    ASSERT_FALSE(started);
    EXPECT_TRUE(started.error().startsWith(path + u": "_s));
    EXPECT_FALSE(SystemLauncher().start({ .program = folder.path() }));
}

TEST(SystemLauncher, AProgramThatTheSystemCannotRunIsToldWithTheReason)
{
    const TempFolder folder;
    const QString path = folder.write(u"tool.exe"_s, "#!/no/such/interpreter\n");
    Script::makeExecutable(path);
    const auto started = SystemLauncher().start({ .program = path });
    ASSERT_FALSE(started);
    EXPECT_TRUE(started.error().startsWith(path + u": "_s));
    EXPECT_GT(started.error().size(), path.size() + 2) << started.error().toStdString();
}

TEST(SystemLauncher, AMissingWorkingFolderIsTold)
{
    const Script script;
    const auto started =
        SystemLauncher().start({ .program = script.path(), .folder = u"/no/such/folder"_s });
    ASSERT_FALSE(started);
    EXPECT_TRUE(started.error().startsWith(u"/no/such/folder: "_s));
    EXPECT_FALSE(script.folder().exists(u"told"_s));
}

TEST(SystemLauncher, AWindowsProgramGoesThroughWineWithPathsAsItUnderstandsThem)
{
    const Script wine(u"wine"_s);
    const TempFolder folder;
    const QString program = folder.write(u"HOTASCompiler.exe"_s, "MZ...");
    const QString file = folder.write(u"My Files/a.tmj"_s, "x");
    {
        const SearchPath path(QFile::encodeName(wine.folder().path()) + ":/usr/bin:/bin");
        const auto started = SystemLauncher().start(
            { .program = program, .arguments = u"/ZEPH /CE \"%1\""_s.arg(file) });
        ASSERT_TRUE(started) << started.error().toStdString();
    }
    EXPECT_EQ(wine.told().mid(1),
              throughPrompt(
                  u"\"Z:%1\" /ZEPH /CE \"Z:%2\""_s.arg(backslashed(program), backslashed(file))));
}

TEST(SystemLauncher, QuotesReachWineAsTheyAreWritten)
{
    const Script wine(u"wine"_s);
    const QString program = wine.folder().write(u"HOTASConfig.exe"_s, "MZ...");
    const QString arguments = u"/MODE /ZEPH /P\"My profile.tmc\" /DA"_s;
    {
        const SearchPath path(QFile::encodeName(wine.folder().path()) + ":/usr/bin:/bin");
        ASSERT_TRUE(SystemLauncher().start({ .program = program, .arguments = arguments }));
    }
    EXPECT_EQ(wine.told().mid(1),
              throughPrompt(u"\"Z:%1\" "_s.arg(backslashed(program)) + arguments));
}

TEST(SystemLauncher, FindsAPathOrANameOnTheSearchPathAndNoFolder)
{
    const Script tool;
    const SearchPath path(QFile::encodeName(tool.folder().path()));
    const SystemLauncher launcher;
    EXPECT_TRUE(launcher.finds(tool.path()));
    EXPECT_TRUE(launcher.finds(u"tool.exe"_s));
    EXPECT_FALSE(launcher.finds(u"rundll32.exe"_s));
    EXPECT_FALSE(launcher.finds(tool.folder().path()));
}

TEST(SystemLauncher, WineIsAskedForTheWindowStylesThatItKnows)
{
    struct Row {
        WindowStyle style;
        QStringList words;
    };
    const Row rows[] = {
        { WindowStyle::NormalFocus, {} },
        { WindowStyle::MinimisedFocus, { u"start"_s, u"/min"_s, u"/unix"_s } },
        { WindowStyle::MaximisedFocus, { u"start"_s, u"/max"_s, u"/unix"_s } },
        { WindowStyle::MinimisedNoFocus, { u"start"_s, u"/min"_s, u"/unix"_s } },
    };
    for (const Row &row : rows) {
        const Script wine(u"wine"_s);
        const QString program = wine.folder().write(u"fly.exe"_s, "MZ...");
        const SearchPath path(QFile::encodeName(wine.folder().path()) + ":/usr/bin:/bin");
        const auto started = SystemLauncher().start(
            { .program = program, .arguments = u"-w"_s, .style = row.style });
        ASSERT_TRUE(started) << started.error().toStdString();
        EXPECT_EQ(wine.told().mid(1), row.words + QStringList({ program, u"-w"_s }))
            << int(row.style);
    }
}

TEST(SystemLauncher, AWindowsProgramWithoutWineIsToldInClearWords)
{
    const TempFolder empty;
    const QString program = empty.write(u"HOTASCompiler.exe"_s, "MZ...");
    const SearchPath path(QFile::encodeName(empty.path()));
    const auto started = SystemLauncher().start({ .program = program });
    ASSERT_FALSE(started);
    EXPECT_TRUE(started.error().startsWith(program + u": "_s));
    EXPECT_TRUE(started.error().contains(u"wine"_s));
}

#endif

#include "process_launcher_test.moc"
