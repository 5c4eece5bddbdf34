// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/base.h"
#include "tests/program/notes.h"
#include "tests/program/program.h"

#include <gmock/gmock.h>

using namespace zeph;
using namespace zeph::test;
using testing::Contains;
using testing::HasSubstr;

namespace {

/// Everything that the start itself has to say is on the status line by then.
const QString started = u"text Panel_1 Ready! Welcome to Zeph"_s;

class ProgramGames : public testing::Test
{
protected:
    ProgramGames() { program.setEnvironment(u"CALLSIGN"_s, u"Viper"_s); }

    /// A store with one game of that mode.
    void settle(int mode, const QString &joystickFile)
    {
        program.settle(
            "[Games]\r\nGameArrayNum=1\r\nGameName1=Falcon\r\nGamePath1=" + game.toLocal8Bit()
            + " -g2 \"two words\"\r\nGameDIRPath1=" + program.file(u"My games"_s).toLocal8Bit()
            + "\r\nGameJF1=" + program.file(joystickFile).toLocal8Bit()
            + "\r\nGameJFmode1=" + QByteArray::number(mode) + "\r\n");
    }

    void expectStarted() const
    {
        const QStringList noted = { game, u"-g2"_s, u"two words"_s, program.file(u"My games"_s),
                                    u"Viper\n"_s };
        EXPECT_EQ(program.recorded(u"notes.txt"_s, 1).toStdString(),
                  noted.join(u';').toStdString());
    }

    Program program;
    const QString game = program.writeRecorder(u"My games/Falcon/falcon"_s, u"notes.txt"_s);
};

} // namespace

TEST_F(ProgramGames, Mode0DownloadsTheGamesFileAndStartsTheGame)
{
    settle(0, sample);
    program.run({ started, u"trigger mnuGameArray_1"_s,
                  u"text Panel_1 Compiled successfully. Launching game ..."_s, u"close"_s });
    expectStarted();
    EXPECT_EQ(program.setting(u"TMMODE"_s, u"Buttons"_s, u"HOTAS.ini"_s), u"1");
}

TEST_F(ProgramGames, Mode1IgnoresTheFileAndStartsTheGameInWindowsMode)
{
    settle(1, u"Files/nowhere.tmj"_s);
    program.run({ started, u"trigger mnuGameArray_1"_s, u"pause 1500"_s, u"close"_s });
    expectStarted();
    EXPECT_EQ(program.setting(u"TMMODE"_s, u"Buttons"_s, u"HOTAS.ini"_s), u"0");
    EXPECT_EQ(program.setting(u"TMMODE"_s, u"Axes"_s, u"HOTAS.ini"_s), u"0");
}

TEST_F(ProgramGames, Mode2DownloadsTheFileForAllGames)
{
    settle(2, u"Files/nowhere.tmj"_s);
    program.write(u"Files/TM Default for games.tmj"_s, "BTN S2 a\r\n");
    program.run({ started, u"trigger mnuGameArray_1"_s,
                  u"text Panel_1 Compiled successfully. Launching game ..."_s, u"close"_s });
    expectStarted();
    EXPECT_THAT(program.setting(u"Compiler"_s, u"FileName"_s, u"HOTAS.ini"_s).toStdString(),
                HasSubstr("TM Default for games.tmj"));
}

TEST_F(ProgramGames, AMissingFileEndsTheLaunch)
{
    settle(0, u"Files/nowhere.tmj"_s);
    program.run({ started, u"trigger mnuGameArray_1"_s, u"box Aborting game launch"_s,
                  u"press OK"_s, u"close"_s });
    EXPECT_FALSE(program.exists(u"notes.txt"_s));
}

TEST_F(ProgramGames, ALaunchWhoseCompileFailsOpensTheFailedFileAndNeverStartsTheGame)
{
    settle(0, u"Files/Broken.tmj"_s);
    program.write(u"Files/Broken.tmj"_s, "Rem fine\r\nBTN S99 a\r\n");
    program.run({ started, u"trigger mnuGameArray_1"_s, u"text JoystickText BTN S99 a"_s,
                  u"text Panel_1 Compiler error on line 2: ERROR 1002"_s,
                  u"window Help on compiler errors"_s, u"selection JoystickText BTN S99 a"_s,
                  u"close"_s },
                { program.file(sample) });
    EXPECT_FALSE(program.exists(u"notes.txt"_s));
}

TEST_F(ProgramGames, AfterATimeOutYesStartsTheGame)
{
    settle(0, sample);
    program.silenceTools();
    const QStringList noted =
        program.run({ started, u"trigger mnuGameArray_1"_s,
                      u"box Now this is taking rather a long time buddy, isn't it?!"_s,
                      u"press Yes"_s, u"text Panel_1 Done"_s, u"close"_s });
    EXPECT_THAT(lines(noted),
                Contains(HasSubstr("Would you like me to continue with running your game now?")));
    expectStarted();
}

TEST_F(ProgramGames, AfterATimeOutNoStartsNothing)
{
    settle(0, sample);
    program.silenceTools();
    program.run({ started, u"trigger mnuGameArray_1"_s,
                  u"box Now this is taking rather a long time buddy, isn't it?!"_s, u"press No"_s,
                  u"text Panel_1 Control returned to you"_s, u"close"_s });
    EXPECT_FALSE(program.exists(u"notes.txt"_s));
}

TEST_F(ProgramGames, AQuoteInTheFilesNameIsToldAndTheGameDoesNotStart)
{
    if (!canHoldQuotes) {
        GTEST_SKIP() << "no file has such a name here";
    }
    program.write(u"Files/f\"4.tmj"_s, "BTN S2 a\r\n");
    settle(0, u"Files/f\"4.tmj"_s);
    program.run({ started, u"trigger mnuGameArray_1"_s, u"box That name has a quote in it"_s,
                  u"press OK"_s, u"done"_s, u"close"_s });
    EXPECT_FALSE(program.exists(u"notes.txt"_s));
}
