// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/profile_file.h"
#include "platform/core/stand_in.h"
#include "tests/support/temp_folder.h"

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>

#include <gtest/gtest.h>

using namespace zeph;

namespace {

/// The real executables, copied into a folder of the test's own: they work beside themselves.
class Tools : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(QFile::copy(QStringLiteral(ZEPH_STANDIN_COMPILER), tool(u"HOTASCompiler"_s)));
        ASSERT_TRUE(QFile::copy(QStringLiteral(ZEPH_STANDIN_CONFIG), tool(u"HOTASConfig"_s)));
    }

    QString tool(const QString &name) const { return folder.file(name + u".exe"_s); }

    /// Starts a tool and waits for its end. Gives the exit code.
    int run(const QString &name, const QStringList &arguments, const QStringList &orders = {})
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const QString &order : orders)
            environment.insert(order.section(u'=', 0, 0), order.section(u'=', 1));
        process.setProcessEnvironment(environment);
        process.start(tool(name), arguments);
        EXPECT_TRUE(process.waitForFinished(60'000));
        output = QString::fromUtf8(process.readAllStandardOutput());
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        return process.exitCode();
    }

    QString value(const QString &section, const QString &key) const
    {
        return ProfileFile(folder.file(u"HOTAS.ini"_s)).text(section, key, u"(absent)"_s);
    }

    test::TempFolder folder;
    QString output;
};

} // namespace

TEST_F(Tools, TheCompilerFindsHotasIniBesideItself)
{
    const QString file = folder.write(u"Other folder/my file.tmj"_s, "BTN S1 a\r\n");
    EXPECT_EQ(run(u"HOTASCompiler"_s, { u"/ZEPH"_s, u"/CE"_s, file }), 0);
    EXPECT_EQ(value(u"Compiler"_s, u"Status"_s), u"OK");
    EXPECT_EQ(value(u"Compiler"_s, u"FileName"_s), file);
    EXPECT_EQ(value(u"TMMODE"_s, u"Buttons"_s), u"1");
    EXPECT_TRUE(output.contains(u"stand-in"));
}

TEST_F(Tools, TheCompilersExitCodeTellsAMistake)
{
    const QString file = folder.write(u"a.tmj"_s, "BTN S9 a\r\n");
    EXPECT_EQ(run(u"HOTASCompiler"_s, { u"/ZEPH"_s, u"/CO"_s, file }), 1);
    EXPECT_EQ(value(u"Compiler"_s, u"Status"_s), u"ERROR");
    EXPECT_EQ(value(u"Compiler"_s, u"LineNumber"_s), u"1");
}

TEST_F(Tools, TheEnvironmentOrdersTheVerdict)
{
    const QString file = folder.write(u"a.tmj"_s, "BTN S1 a\r\n");
    run(u"HOTASCompiler"_s, { u"/ZEPH"_s, u"/CO"_s, file }, { u"ZEPH_STANDIN_FAIL=1013:7"_s });
    EXPECT_TRUE(value(u"Compiler"_s, u"ErrorCode"_s).startsWith(u"ERROR 1013"));
    EXPECT_EQ(value(u"Compiler"_s, u"LineNumber"_s), u"7");
}

TEST_F(Tools, TheEnvironmentOrdersADelay)
{
    const QString file = folder.write(u"a.tmj"_s, "BTN S1 a\r\n");
    QElapsedTimer timer;
    timer.start();
    run(u"HOTASCompiler"_s, { u"/ZEPH"_s, u"/CO"_s, file }, { u"ZEPH_STANDIN_DELAY_MS=300"_s });
    EXPECT_GE(timer.elapsed(), 300);
    EXPECT_GE(value(u"Compiler"_s, u"CompileTime"_s).toDouble(), 0.3);
}

TEST_F(Tools, TheControlPanelAnswersAModeRequest)
{
    EXPECT_EQ(run(u"HOTASConfig"_s, { u"/MODE"_s, u"/ZEPH"_s, u"/AU"_s, u"/BU"_s }), 0);
    EXPECT_EQ(value(u"TMMODE"_s, u"Status"_s), u"OKAY");
    EXPECT_EQ(value(u"TMMODE"_s, u"Axes"_s), u"1");
    EXPECT_EQ(value(u"TMMODE"_s, u"Buttons"_s), u"1");
}

TEST_F(Tools, TheControlPanelIsSilentWhenOrdered)
{
    run(u"HOTASConfig"_s, { u"/MODE"_s, u"/ZEPH"_s, u"/BU"_s }, { u"ZEPH_STANDIN_SILENT=1"_s });
    EXPECT_EQ(value(u"TMMODE"_s, u"Status"_s), u"(absent)");
}

TEST_F(Tools, StartedTogetherTheyNeverLoseAVerdict)
{
    const QString file = folder.write(u"a.tmj"_s, "BTN S1 a\r\n");
    int kept = 0;
    for (int i = 0; i < 60; ++i) {
        folder.write(u"HOTAS.ini"_s, "[Defaults]\r\nPOVhat=3\r\n");
        QProcess compiler;
        QProcess config;
        compiler.start(tool(u"HOTASCompiler"_s), { u"/ZEPH"_s, u"/CO"_s, file });
        config.start(tool(u"HOTASConfig"_s), { u"/MODE"_s, u"/ZEPH"_s, u"/AU"_s, u"/BU"_s });
        EXPECT_TRUE(compiler.waitForFinished(60'000));
        EXPECT_TRUE(config.waitForFinished(60'000));
        const bool both = value(u"Compiler"_s, u"Status"_s) == u"OK"
            && value(u"TMMODE"_s, u"Status"_s) == u"OKAY"
            && value(u"Defaults"_s, u"POVhat"_s) == u"3";
        kept += both ? 1 : 0;
    }
    EXPECT_EQ(kept, 60);
}

TEST_F(Tools, AreToldFromRealToolsByTheMarkInTheirFiles)
{
    EXPECT_TRUE(isStandIn(tool(u"HOTASCompiler"_s)));
    EXPECT_TRUE(isStandIn(tool(u"HOTASConfig"_s)));
    EXPECT_FALSE(isStandIn(folder.write(u"Other.exe"_s, "MZ, a real one")));
    EXPECT_FALSE(isStandIn(folder.file(u"missing.exe"_s)));
}
