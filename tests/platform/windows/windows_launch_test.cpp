// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/windows/windows_launch.h"

#include "platform/core/file_io.h"
#include "platform/process_launcher.h"
#include "tests/platform/started_copy.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTest>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#endif

using namespace zeph;
using test::TempFolder;

TEST(WindowsCommandLine, TheProgramIsQuotedAndTheArgumentsAreAsWritten)
{
    const QString program = u"C:/My Games/fly.exe"_s;
    EXPECT_EQ(windowsCommandLine(program, u"/P\"My profile.tmc\"  /DA"_s),
              u'"' + QDir::toNativeSeparators(program) + u"\" /P\"My profile.tmc\"  /DA"_s);
    EXPECT_EQ(windowsCommandLine(u"fly.exe"_s, {}), u"\"fly.exe\"");
}

#ifdef Q_OS_WIN

namespace {

constexpr char toldVariable[] = "ZEPH_TOLD";
constexpr qsizetype toldLines = 4;

/// Programs that are started tell of it in a file of this folder.
class WindowsLaunch : public testing::Test
{
protected:
    WindowsLaunch() { qputenv(toldVariable, QFile::encodeName(folder.file(u"told"_s))); }
    ~WindowsLaunch() override
    {
        qunsetenv(toldVariable);
        // The last moments of a program still hold its file and its folder.
        EXPECT_TRUE(QTest::qWaitFor([this] { return QDir(folder.path()).removeRecursively(); },
                                    test::copyStartsWithinMs));
    }

    static Launch copy(const QString &more = {})
    {
        const QString arguments = test::copyArguments(u"WindowsProgram.*"_s).join(u' ');
        return { .program = test::copyProgram(), .arguments = (arguments + u' ' + more).trimmed() };
    }
    /// Style, folder, command line and PATH, as the program that was started saw them.
    QStringList told() const
    {
        // A file that has just got its name is still held for a moment.
        QByteArray bytes;
        EXPECT_TRUE(QTest::qWaitFor(
            [this, &bytes] {
                bytes = readWholeFile(folder.file(u"told"_s)).value_or(QByteArray());
                return !bytes.isEmpty();
            },
            test::copyStartsWithinMs));
        QStringList lines = QString::fromUtf8(bytes).split(u'\n');
        lines.resize(toldLines);
        QFile::remove(folder.file(u"told"_s));
        return lines;
    }

    TempFolder folder;
};

/// A kind of file that opens in a program as long as this lives. Wine looks for it among the kinds
/// of all users alone.
class RegisteredKind
{
public:
    RegisteredKind(const QString &ending, const QString &command)
        : m_kind(u"Zeph.Test"_s), m_ending(ending)
    {
        set(m_ending, u"Zeph.Test"_s);
        set(m_kind + u"\\shell\\open\\command"_s, command);
    }
    ~RegisteredKind()
    {
        for (const QString &key : { m_kind, m_ending }) {
            RegDeleteTreeW(HKEY_CLASSES_ROOT, wide(key));
        }
    }

private:
    static const wchar_t *wide(const QString &text)
    {
        return reinterpret_cast<const wchar_t *>(text.utf16());
    }
    static void set(const QString &key, const QString &value)
    {
        EXPECT_EQ(RegSetKeyValueW(HKEY_CLASSES_ROOT, wide(key), nullptr, REG_SZ, wide(value),
                                  DWORD((value.size() + 1) * sizeof(wchar_t))),
                  ERROR_SUCCESS);
    }

    QString m_kind;
    QString m_ending;
};

} // namespace

// What a program that the tests below start does.
TEST(WindowsProgram, DISABLED_TellsHowItWasStarted)
{
    STARTUPINFOW startup{};
    GetStartupInfoW(&startup);
    const bool hasStyle = (startup.dwFlags & STARTF_USESHOWWINDOW) != 0;
    const QStringList told = { QString::number(hasStyle ? startup.wShowWindow : -1),
                               QDir::toNativeSeparators(QDir::currentPath()),
                               QString::fromWCharArray(GetCommandLineW()),
                               qEnvironmentVariable("PATH") };
    const QString path = QFile::decodeName(qgetenv(toldVariable));
    QFile file(path + u".part"_s);
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write(told.join(u'\n').toUtf8());
    file.close();
    ASSERT_TRUE(file.rename(path));
}

TEST_F(WindowsLaunch, EachWindowStyleReachesTheProgram)
{
    // As Windows itself numbers them: hidden, normal, minimised, maximised, not activated, and
    // minimised with the next window activated.
    for (const int style : { 0, 1, 2, 3, 4, 6 }) {
        Launch launch = copy();
        launch.style = WindowStyle(style);
        const auto started = SystemLauncher().start(launch);
        ASSERT_TRUE(started) << started.error().toStdString();
        EXPECT_EQ(told()[0], QString::number(style));
    }
}

TEST_F(WindowsLaunch, TheArgumentsArriveAsTheyAreWrittenAndTheFolderIsCurrent)
{
    const QString more = u"/ZEPH /CE \"C:\\My Files\\Flug für Jürgen.tmj\"  /P\"My profile\""_s;
    Launch launch = copy(more);
    QDir(folder.path()).mkdir(u"Jürgens Ordner"_s);
    launch.folder = folder.file(u"JÜRGENS ORDNER"_s);
    ASSERT_TRUE(SystemLauncher().start(launch));
    const QStringList lines = told();
    EXPECT_TRUE(lines[2].endsWith(u' ' + more)) << lines[2].toStdString();
    EXPECT_EQ(lines[1].compare(launch.folder, Qt::CaseInsensitive), 0) << lines[1].toStdString();
}

TEST_F(WindowsLaunch, AProgramInAFolderWithBlanksAndUmlautsIsFoundInAnyCase)
{
    QDir(folder.path()).mkdir(u"Für Jürgen"_s);
    const QString program = folder.file(u"Für Jürgen/fly high.exe"_s);
    ASSERT_TRUE(QFile::copy(test::copyProgram(), program));
    Launch launch = copy();
    launch.program = folder.path() + u"\\FÜR JÜRGEN\\Fly High.EXE"_s;
    const auto started = SystemLauncher().start(launch);
    ASSERT_TRUE(started) << started.error().toStdString();
    const QString command = told()[2];
    EXPECT_TRUE(command.contains(u"fly high.exe"_s)) << command.toStdString();
}

TEST_F(WindowsLaunch, OnlyAStandInIsShownTheProgramsLibraries)
{
    const QString libraries = QDir::toNativeSeparators(QCoreApplication::applicationDirPath());
    ASSERT_TRUE(SystemLauncher().start(copy()));
    const QString usual = told()[3];
    EXPECT_FALSE(usual.startsWith(libraries + u';')) << usual.toStdString();

    const QString program = folder.file(u"HOTASCompiler.exe"_s);
    ASSERT_TRUE(QFile::copy(test::copyProgram(), program));
    QFile marked(program);
    ASSERT_TRUE(marked.open(QFile::Append));
    marked.write("a stand-in that drives no hardware");
    marked.close();
    Launch launch = copy();
    launch.program = program;
    ASSERT_TRUE(SystemLauncher().start(launch));
    EXPECT_EQ(told()[3], libraries + u';' + usual);
}

TEST_F(WindowsLaunch, WhatIsNoProgramIsToldWithPathAndReason)
{
    const QString path = folder.write(u"notes.exe"_s, "not a program");
    const auto started = SystemLauncher().start({ .program = path });
    ASSERT_FALSE(started);
    EXPECT_TRUE(started.error().startsWith(path + u": "_s)
                || started.error().contains(u"notes.exe: "))
        << started.error().toStdString();
    EXPECT_GT(started.error().size(), path.size() + 10) << started.error().toStdString();
}

TEST_F(WindowsLaunch, AFileOpensInTheProgramOfItsKind)
{
    const QString command = u'"' + QDir::toNativeSeparators(test::copyProgram()) + u"\" "_s
        + test::copyArguments(u"WindowsProgram.*"_s).join(u' ') + u" \"%1\""_s;
    const RegisteredKind kind(u".zephtest"_s, command);
    const QString file = folder.write(u"Flug für Jürgen.zephtest"_s, "x");
    const auto opened =
        SystemLauncher().openWithDesktop(folder.path() + u"\\FLUG für Jürgen.zephtest"_s);
    ASSERT_TRUE(opened) << opened.error().toStdString();
    const QString line = told()[2];
    EXPECT_TRUE(line.endsWith(u'"')) << line.toStdString();
    EXPECT_TRUE(line.chopped(1).endsWith(QDir::toNativeSeparators(file), Qt::CaseInsensitive))
        << line.toStdString();
}

TEST_F(WindowsLaunch, AFileWithoutAProgramForItIsTold)
{
    const QString file = folder.write(u"a.zephtestofnobody"_s, "x");
    const auto opened = SystemLauncher().openWithDesktop(file);
    ASSERT_FALSE(opened);
    EXPECT_TRUE(opened.error().startsWith(file + u": "_s));
    EXPECT_GT(opened.error().size(), file.size() + 2);
}

#endif
