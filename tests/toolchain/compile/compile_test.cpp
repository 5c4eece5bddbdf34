// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/compile/compile.h"

#include "tests/support/compiler_bench.h"
#include "toolchain/toolchain_settings.h"

#include <QFile>

using namespace zeph;
using zeph::test::hangOn;
using zeph::test::success;

namespace {

class CompileTest : public test::CompilerBench
{
protected:
    void compile() { Compile(context, parts()).mnuAppsCompile_Click(); }

    /// What every compile does that begins.
    const QStringList begun{ u"minimise tools"_s, compilerStarts };
};

} // namespace

TEST_F(CompileTest, AnEmptyFileIsNotCompiled)
{
    joystick.setText({});
    joystick.setState(Document::Modified);
    dialogs.answer(u"Nothing to compile ..."_s, BoxButton::Ok);
    compile();
    ASSERT_EQ(dialogs.boxes().size(), 1);
    EXPECT_EQ(dialogs.boxes()[0].icon, BoxIcon::Information);
    EXPECT_EQ(dialogs.boxes()[0].text,
              u"The Joystick file is empty, so there's not much point in me trying to compile it!. "
              u"Load up a joystick file, or create one, or just put your feet up and watch TV.");
    EXPECT_TRUE(launcher.launches.isEmpty());
    EXPECT_EQ(done, QStringList());
}

TEST_F(CompileTest, AMissingCompilerIsToldWithItsPath)
{
    ASSERT_TRUE(QFile::remove(paths.compiler()));
    joystick.setState(Document::Modified);
    dialogs.answer(u"Compiler not found"_s, BoxButton::Ok);
    compile();
    ASSERT_EQ(dialogs.boxes().size(), 1);
    EXPECT_EQ(dialogs.boxes()[0].icon, BoxIcon::Exclamation);
    EXPECT_EQ(
        dialogs.boxes()[0].text,
        u"I couldn't locate the Compiler, which according to your preferences should be at: "_s
            + paths.compiler() + u", so I cannot compile the file. Sorry Maverick!"_s);
    EXPECT_EQ(done, QStringList());
}

TEST_F(CompileTest, AFileThatAnotherProgramHasChangedIsNotCompiled)
{
    saver.leftOpen = true;
    compile();
    EXPECT_EQ(done, QStringList());
}

TEST_F(CompileTest, AChangedFileIsSavedWithoutAQuestion)
{
    joystick.setState(Document::Modified);
    dialogs.answer(success, BoxButton::Ok);
    compile();
    EXPECT_EQ(done, (QStringList{ u"save A.TMJ"_s } + begun + QStringList{ u"focus"_s }));
    EXPECT_EQ(documents.selected().kind(), DocumentKind::Joystick);
    EXPECT_EQ(launcher.launches.size(), 1);
}

TEST_F(CompileTest, ACancelledSaveEndsTheCompileWhateverTheAnswer)
{
    saver.works = false;
    for (const BoxButton answer : { BoxButton::Yes, BoxButton::No }) {
        joystick.setState(Document::Modified);
        dialogs.answer(hangOn, answer);
        compile();
        const Box &box = dialogs.boxes().constLast();
        EXPECT_EQ(
            box.text,
            u"The joystick file isn't saved, which it needs to be for me to be able to compile it");
        EXPECT_EQ(box.buttons, (QList<BoxButton>{ BoxButton::Yes, BoxButton::No }));
        EXPECT_EQ(box.defaultButton, BoxButton::No);
    }
    EXPECT_TRUE(launcher.launches.isEmpty());
}

TEST_F(CompileTest, AChangedMacroFileIsAskedAboutAndNoEndsTheCompile)
{
    macro.setState(Document::Modified);
    dialogs.answer(hangOn, BoxButton::No);
    compile();
    ASSERT_EQ(dialogs.boxes().size(), 1);
    const Box &box = dialogs.boxes()[0];
    EXPECT_EQ(box.icon, BoxIcon::Exclamation);
    EXPECT_EQ(box.buttons, (QList<BoxButton>{ BoxButton::Yes, BoxButton::No }));
    EXPECT_EQ(box.defaultButton, BoxButton::No);
    EXPECT_EQ(box.text,
              u"The macro file isn't saved, so when I compile the joystick file, there's a danger "
              u"that the compile might fail or not give the correct response. This will be because "
              u"the compiler is using the macros from the saved file, not the one currently open. "
              u"Do you want to continue anyway?");
    EXPECT_TRUE(launcher.launches.isEmpty());
    EXPECT_EQ(done, QStringList());
}

TEST_F(CompileTest, AChangedMacroFileIsLeftUnsavedWhenTheUserGoesOn)
{
    macro.setState(Document::Modified);
    dialogs.answer(hangOn, BoxButton::Yes);
    dialogs.answer(success, BoxButton::Ok);
    compile();
    EXPECT_EQ(launcher.launches.size(), 1);
    EXPECT_TRUE(macro.isModified());
}

TEST_F(CompileTest, AnEmptyMacroTextWithItsChangedFlagSetGivesNoWarning)
{
    macro.setState(Document::Modified);
    macro.setText({});
    dialogs.answer(success, BoxButton::Ok);
    compile();
    EXPECT_EQ(launcher.launches.size(), 1);
}

TEST_F(CompileTest, RunsTheCompilerOnTheFileOnTheDisk)
{
    dialogs.answer(success, BoxButton::Ok);
    compile();
    ASSERT_EQ(launcher.launches.size(), 1);
    const Launch &launch = launcher.launches[0];
    EXPECT_EQ(launch.program, paths.compiler());
    EXPECT_EQ(launch.arguments, u"/ZEPH /CO \""_s + joystick.path() + u'"');
    EXPECT_EQ(launch.folder, paths.hotasFolder);
    EXPECT_EQ(launch.style, WindowStyle::NormalFocus);
    EXPECT_EQ(handshake->StatusCaption(), u"Compiling A.tmj");
}

TEST_F(CompileTest, SuccessIsToldAndTheFocusGoesBack)
{
    QStringList panels;
    QObject::connect(&status, &StatusLine::textChanged, &status,
                     [&](const QString &text) { panels += text; });
    dialogs.answer(success, BoxButton::Ok);
    compile();
    EXPECT_EQ(panels, (QStringList{ u"Done"_s, u"Compiled successfully. (Memory used: 4%)"_s }));
    ASSERT_EQ(dialogs.boxes().size(), 1);
    EXPECT_EQ(dialogs.boxes()[0].text,
              joystick.path()
                  + u" compiled successfully.\n\nCompile time: 0.5s.\nMemory used: 4%"_s);
    EXPECT_EQ(done, (begun + QStringList{ u"focus"_s }));
}

TEST_F(CompileTest, ASuccessWithALineIsSuccessAndHighlightsNothing)
{
    lineWritten = u"5"_s;
    dialogs.answer(success, BoxButton::Ok);
    compile();
    EXPECT_EQ(done, (begun + QStringList{ u"focus"_s }));
}

TEST_F(CompileTest, AnErrorOpensItsHelpAndShowsItsLine)
{
    statusWritten = u"ERROR"_s;
    lineWritten = u"5"_s;
    compile();
    EXPECT_EQ(status.text(), u"Compiler reported an error at line 5: ERROR 1013: bad macro");
    EXPECT_EQ(
        done,
        (begun
         + QStringList{ u"help ERROR 1013: bad macro"_s, u"highlight 5 ERROR 1013: bad macro"_s }));
}

TEST_F(CompileTest, TheHelpOnAnErrorKnowsItsLineAndBothFiles)
{
    statusWritten = u"ERROR"_s;
    lineWritten = u"5"_s;
    compile();
    EXPECT_EQ(scene.shown.line, 5);
    EXPECT_EQ(scene.shown.files.joystick.name, u"A.tmj");
    EXPECT_EQ(scene.shown.files.macro.name, u"a.tmm");
}

TEST_F(CompileTest, AnErrorWithoutALineOpensItsHelpOnly)
{
    statusWritten = u"ERROR"_s;
    compile();
    EXPECT_EQ(status.text(), u"Compiler reported the following error: ERROR 1013: bad macro");
    EXPECT_EQ(done, (begun + QStringList{ u"help ERROR 1013: bad macro"_s }));
}

TEST_F(CompileTest, WithTheStatusBarAloneAFailureShowsNoWindowYetItsLine)
{
    settings.of<ToolchainSettings>().HOTASStatusBarErrors = true;
    statusWritten = u"ERROR"_s;
    lineWritten = u"5"_s;
    compile();
    EXPECT_EQ(status.text(), u"Compiler reported an error at line 5: ERROR 1013: bad macro");
    EXPECT_EQ(done, (begun + QStringList{ u"highlight 5 ERROR 1013: bad macro"_s }));
}

TEST_F(CompileTest, WithTheStatusBarAloneASuccessComesWithoutABox)
{
    settings.of<ToolchainSettings>().HOTASStatusBarErrors = true;
    compile();
    EXPECT_EQ(status.text(), u"Compiled successfully. (Memory used: 4%)");
    EXPECT_TRUE(dialogs.boxes().isEmpty());
}

TEST_F(CompileTest, ASilentCompilerIsToldTwiceAsTimeOutAndAsUnknownResult)
{
    statusWritten.clear();
    const QString title = u"Now this is taking rather a long time Maverick, isn't it?!"_s;
    dialogs.answer(title, BoxButton::Ok);
    dialogs.answer(u"Unknown result"_s, BoxButton::Ok);
    compile();
    ASSERT_EQ(dialogs.boxes().size(), 2);
    EXPECT_EQ(dialogs.boxes()[0].title, title);
    EXPECT_EQ(dialogs.boxes()[1].title, u"Unknown result");
    EXPECT_EQ(dialogs.boxes()[1].icon, BoxIcon::Exclamation);
    EXPECT_EQ(status.text(), u"Control returned to you");
    EXPECT_EQ(done, begun);
}

TEST_F(CompileTest, AVerdictThatComesDuringTheTimeOutMessageIsTold)
{
    // The tool's status comes with the very tick that gives it up, so the poll has just missed it.
    statusWritten.clear();
    afterTick = [this](int count) {
        if (count == 46) {
            writeCompiler(u"Status"_s, u"OKAY"_s);
        }
    };
    dialogs.answer(u"Now this is taking rather a long time Maverick, isn't it?!"_s, BoxButton::Ok);
    dialogs.answer(success, BoxButton::Ok);
    compile();
    EXPECT_EQ(status.text(), u"Compiled successfully. (Memory used: 0%)");
}

TEST_F(CompileTest, ACompilerThatDoesNotStartIsToldOnce)
{
    dialogs.answer(u"Unable to run the Thrustmaster software"_s, BoxButton::Ok);
    refused = u"HOTASCompiler.exe"_s;
    status.setText(u"before"_s);
    compile();
    EXPECT_EQ(dialogs.boxes().size(), 1);
    EXPECT_EQ(status.text(), u"before");
}

TEST_F(CompileTest, TheVerdictIsAboutTheFileThatWasCompiled)
{
    const QString compiled = joystick.path();
    QTimer::singleShot(0, &mainWindow, [this] { joystick.rename(u"/another.tmj"_s); });
    dialogs.answer(success, BoxButton::Ok);
    compile();
    ASSERT_EQ(dialogs.boxes().size(), 1);
    EXPECT_TRUE(dialogs.boxes()[0].text.startsWith(compiled));
}

TEST_F(CompileTest, AnErrorIsAboutTheFilesThatWereOpenAtTheStart)
{
    const SentFiles sent = sentFiles(documents);
    statusWritten = u"ERROR"_s;
    lineWritten = u"5"_s;
    QTimer::singleShot(0, &mainWindow, [this] {
        joystick.rename(u"/another.tmj"_s);
        macro.rename(u"/another.tmm"_s);
    });
    compile();
    EXPECT_EQ(scene.shown.files.joystick.path, sent.joystick.path);
    EXPECT_EQ(scene.shown.files.macro.path, sent.macro.path);
    EXPECT_EQ(scene.shown.file().name, u"a.tmm");
}

TEST_F(CompileTest, ANameWithADoubleQuoteIsToldSinceACommandLineLosesIt)
{
    if (!test::canHoldQuotes) {
        GTEST_SKIP() << "no file has such a name here";
    }
    joystick.rename(folder.write(u"My \"best\".tmj"_s, "x"));
    dialogs.answer(u"That name has a quote in it"_s, BoxButton::Ok);
    compile();
    EXPECT_TRUE(dialogs.boxes()[0].text.contains(joystick.path()));
    EXPECT_TRUE(launcher.launches.isEmpty());
}

TEST_F(CompileTest, ASecondCompileDuringTheFirstIsDropped)
{
    settings.of<ToolchainSettings>().HOTASStatusBarErrors = true;
    const auto single = afterTick;
    afterTick = [this, single](int count) {
        if (count == 1) {
            compile();
            EXPECT_EQ(status.text(), u" I'm still busy with the compile: once is enough");
        } else if (count == 2) {
            single(1);
        }
    };
    compile();
    EXPECT_EQ(launcher.launches.size(), 1);
    EXPECT_EQ(done.count(u"focus"_s), 1);
}

TEST_F(CompileTest, ClosingTheProgramDuringTheWaitTellsNothing)
{
    auto compileCommand = std::make_unique<Compile>(context, parts());
    statusWritten.clear();
    QTimer::singleShot(0, &mainWindow, [&] {
        compileCommand.reset();
        handshake.reset();
    });
    compileCommand->mnuAppsCompile_Click();
    EXPECT_EQ(done, begun);
    EXPECT_EQ(status.text(), u"");
}
