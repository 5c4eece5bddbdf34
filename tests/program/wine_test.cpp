// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// The tools of the Cougar's software are programs of Windows. Here the stand-in, built as one, is
// started through wine.

#include "platform/core/base.h"
#include "tests/program/notes.h"
#include "tests/program/program.h"

#include <gmock/gmock.h>

#include <QDir>
#include <QStandardPaths>

using namespace zeph;
using namespace zeph::test;
using testing::Contains;
using testing::HasSubstr;

#ifdef Q_OS_UNIX

namespace {

const QString tools = u"Cougar software/"_s;

/// A program whose compiler is one of Windows, in a folder with a blank. The Windows build makes
/// that: ZEPH_WINDOWS_FOLDER names the folder where it lies.
class ProgramWine : public testing::Test
{
protected:
    void SetUp() override
    {
        const QDir built(qEnvironmentVariable(
            "ZEPH_WINDOWS_FOLDER", QStringLiteral(ZEPH_SOURCE_DIR "/build/windows/Zeph")));
        if (!built.exists(u"HOTASCompiler.exe"_s)) {
            GTEST_SKIP() << "no Windows build: packaging/windows/build makes one";
        }
        if (QStandardPaths::findExecutable(u"wine"_s).isEmpty()) {
            GTEST_SKIP() << "wine is not installed";
        }
        QDir().mkpath(program.file(tools));
        const QStringList files =
            built.entryList({ u"HOTASCompiler.exe"_s, u"*.dll"_s }, QDir::Files);
        for (const QString &file : files) {
            ASSERT_TRUE(QFile::copy(built.filePath(file), program.file(tools + file)));
        }
        program.settle();
        useTools();
        setUpWindows();
    }
    void TearDown() override
    {
        if (!IsSkipped()) {
            wine(u"wineserver"_s, { u"-k"_s });
        }
    }

    QString verdict(const QString &key) const
    {
        return program.setting(u"Compiler"_s, key, tools + u"HOTAS.ini"_s);
    }
    /// A path of this system as wine shows it to its programs.
    static QString seenByWine(const QString &path)
    {
        return u"Z:"_s + QString(path).replace(u'/', u'\\');
    }

    Program program;

private:
    void useTools()
    {
        // A first start of a program of Windows takes its time.
        program.write(
            u"Zeph.ini"_s,
            program.read(u"Zeph.ini"_s)
                .replace("ShowTips=0\r\n", "ShowTips=0\r\nHotasFolder=Cougar software\r\n"));
        program.setPatience(40000);
        program.write(tools + u"HOTAS.ini"_s, "[Defaults]\r\nPOVhat=3\r\n");
    }

    /// A Windows of the test's own, so that nobody's is touched.
    void setUpWindows()
    {
        const QList<std::pair<QString, QString>> variables = {
            { u"WINEPREFIX"_s, m_windows.path() },
            { u"WINEARCH"_s, u"win64"_s },
            { u"WINEDEBUG"_s, u"-all"_s },
            { u"WINEDLLOVERRIDES"_s, u"mscoree=;mshtml=;winemenubuilder.exe="_s },
        };
        for (const auto &[name, value] : variables) {
            m_environment.insert(name, value);
            program.setEnvironment(name, value);
        }
        wine(u"wineboot"_s, { u"--init"_s });
    }
    void wine(const QString &name, const QStringList &arguments)
    {
        QProcess process;
        process.setProcessEnvironment(m_environment);
        process.start(name, arguments);
        EXPECT_TRUE(process.waitForFinished(100'000)) << name.toStdString();
    }

    TempFolder m_windows;
    QProcessEnvironment m_environment = QProcessEnvironment::systemEnvironment();
};

} // namespace

TEST_F(ProgramWine, ACompilerOfWindowsGivesItsVerdictThroughHotasIni)
{
    const QStringList notes = program.run(
        { u"text MacroText ="_s, u"trigger mnuAppsCompile"_s, u"box File successfully compiled!"_s,
          u"press OK"_s, u"text Panel_1 Compiled successfully. (Memory used:"_s, u"close"_s },
        { program.file(sample) });
    EXPECT_THAT(lines(notes), Contains(HasSubstr("compiled successfully.\\n\\nCompile time: ")));
    EXPECT_EQ(verdict(u"Status"_s), u"OK");
    EXPECT_EQ(verdict(u"FileName"_s), seenByWine(program.file(sample)));
    EXPECT_EQ(program.setting(u"Defaults"_s, u"POVhat"_s, tools + u"HOTAS.ini"_s), u"3");
}

TEST_F(ProgramWine, AMistakeThatACompilerOfWindowsFindsIsSelected)
{
    const QString file = program.write(u"Files/mistake.tmj"_s, "BTN S2 a\r\nBTN S9 b\r\n");
    program.run({ u"text JoystickText BTN S9"_s, u"trigger mnuAppsCompile"_s,
                  u"window Help on compiler errors"_s,
                  u"text Panel_1 Compiler reported an error at line 2: ERROR 1002"_s,
                  u"selection JoystickText BTN S9"_s, u"close"_s },
                { file });
    EXPECT_EQ(verdict(u"Status"_s), u"ERROR");
    EXPECT_EQ(verdict(u"LineNumber"_s), u"2");
}

#endif
