// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "config.h"

#include "platform/core/profile_file.h"
#include "tests/support/temp_folder.h"

#include <QProcessEnvironment>

#include <gtest/gtest.h>

using namespace zeph;
using namespace zeph::standin;

namespace {

class Config : public testing::Test
{
protected:
    QString hotas() const { return folder.path() + u'/'; }

    int run(const QStringList &switches, const Options &options = {})
    {
        return runConfig(QStringList{ u"/MODE"_s, u"/ZEPH"_s } + switches, hotas(), options)
            .exitCode;
    }

    QString value(const QString &key, const QString &section = u"TMMODE"_s) const
    {
        return ProfileFile(hotas() + u"HOTAS.ini"_s).text(section, key, u"(absent)"_s);
    }

    test::TempFolder folder;
};

struct ModeRequest {
    QStringList switches;
    QString axes;
    QString buttons;
};

} // namespace

TEST_F(Config, SwitchesTheModesThatAreNamedAndKeepsTheOthers)
{
    const QList<ModeRequest> requests{
        { { u"/NM"_s }, u"0"_s, u"0"_s },           { { u"/BU"_s }, u"0"_s, u"1"_s },
        { { u"/AU"_s }, u"1"_s, u"1"_s },           { { u"/NM"_s }, u"1"_s, u"1"_s },
        { { u"/bw"_s }, u"1"_s, u"0"_s },           { { u"/AW"_s, u"/BW"_s }, u"0"_s, u"0"_s },
        { { u"/AU"_s, u"/BU"_s }, u"1"_s, u"1"_s }, { { u"/EB"_s }, u"1"_s, u"1"_s },
        { { u"/CM"_s }, u"1"_s, u"1"_s },           { { u"/RS"_s }, u"0"_s, u"0"_s },
    };
    for (const ModeRequest &request : requests) {
        ProfileFile(hotas() + u"HOTAS.ini"_s).write({ u"TMMode"_s, u"Status"_s, {} });
        EXPECT_EQ(run(request.switches), 0);
        EXPECT_EQ(value(u"Status"_s), u"OKAY");
        EXPECT_EQ(value(u"Axes"_s), request.axes) << request.switches[0].toStdString();
        EXPECT_EQ(value(u"Buttons"_s), request.buttons) << request.switches[0].toStdString();
    }
}

TEST_F(Config, ClearingTheMemoryForgetsTheFile)
{
    folder.write(u"HOTAS.ini"_s, "[StandIn]\r\nLoadedFile=a.tmj\r\n");
    run({ u"/EB"_s });
    EXPECT_EQ(value(u"LoadedFile"_s, u"StandIn"_s), u"a.tmj");
    run({ u"/CM"_s });
    EXPECT_EQ(value(u"LoadedFile"_s, u"StandIn"_s), QString());
}

TEST_F(Config, AProfileIsKeptAndWritesNoStatus)
{
    folder.write(u"Profiles/My stick.tmc"_s, "x");
    EXPECT_EQ(run({ u"/PMy stick.tmc"_s, u"/DM"_s }), 0);
    EXPECT_EQ(value(u"LoadedProfile"_s, u"StandIn"_s), u"My stick.tmc");
    EXPECT_EQ(value(u"Calibration"_s, u"StandIn"_s), u"manual");
    EXPECT_EQ(value(u"Status"_s), u"(absent)");
    EXPECT_EQ(run({ u"/P"_s, u"my stick.TMC"_s, u"/DA"_s }), 0);
    EXPECT_EQ(value(u"Calibration"_s, u"StandIn"_s), u"auto");
}

TEST_F(Config, AProfileThatIsNotThereIsRefused)
{
    EXPECT_EQ(run({ u"/Pnone.tmc"_s, u"/DA"_s }), 1);
    EXPECT_EQ(value(u"LoadedProfile"_s, u"StandIn"_s), u"(absent)");
    EXPECT_EQ(value(u"Status"_s), u"(absent)");
}

TEST_F(Config, AnswersTheOrderedModes)
{
    Options options;
    options.axes = -1;
    options.buttons = -1;
    run({ u"/BU"_s }, options);
    EXPECT_EQ(value(u"Axes"_s), u"-1");
    EXPECT_EQ(value(u"Buttons"_s), u"-1");
    EXPECT_EQ(value(u"Status"_s), u"OKAY");
}

TEST_F(Config, AnErrorMayBeOrderedForAxesOrButtonsAlone)
{
    run({ u"/AU"_s, u"/BU"_s });
    Options options;
    options.axes = -1;
    run({ u"/AW"_s, u"/BW"_s }, options);
    EXPECT_EQ(value(u"Axes"_s), u"-1");
    EXPECT_EQ(value(u"Buttons"_s), u"0");
    options.axes.reset();
    options.buttons = -1;
    run({ u"/AW"_s, u"/BW"_s }, options);
    EXPECT_EQ(value(u"Axes"_s), u"0");
    EXPECT_EQ(value(u"Buttons"_s), u"-1");
}

TEST_F(Config, IsSilentWhenOrdered)
{
    Options options;
    options.silent = true;
    run({ u"/BU"_s }, options);
    EXPECT_EQ(value(u"Status"_s), u"(absent)");
}

TEST_F(Config, RefusesWhatItDoesNotKnow)
{
    EXPECT_EQ(run({ u"/XY"_s }), 1);
    EXPECT_EQ(value(u"Status"_s), u"(absent)");
}

TEST_F(Config, TheWindowsOfTheRealToolDoNotOpenHere)
{
    struct Row {
        QStringList arguments;
        QString window;
    };
    for (const Row &row : { Row{ {}, u"main"_s }, Row{ { u"/CALIBRATE"_s }, u"calibration"_s },
                            Row{ { u"/curves"_s }, u"curves"_s } }) {
        const Outcome outcome = runConfig(row.arguments, hotas(), {});
        EXPECT_EQ(outcome.exitCode, 0);
        ASSERT_EQ(outcome.lines.size(), 2);
        EXPECT_TRUE(outcome.lines[1].contains(row.window)) << outcome.lines[1].toStdString();
        EXPECT_FALSE(folder.exists(u"HOTAS.ini"_s));
    }
    EXPECT_EQ(runConfig({ u"/OTHER"_s }, hotas(), {}).exitCode, 1);
}

TEST(Options, ComeFromTheEnvironment)
{
    QProcessEnvironment environment;
    environment.insert(u"ZEPH_STANDIN_DELAY_MS"_s, u"250"_s);
    environment.insert(u"ZEPH_STANDIN_SILENT"_s, u"1"_s);
    environment.insert(u"ZEPH_STANDIN_FAIL"_s, u"1013:4"_s);
    environment.insert(u"ZEPH_STANDIN_AXES"_s, u"-1"_s);
    environment.insert(u"ZEPH_STANDIN_BUTTONS"_s, u"0"_s);
    const Options options = optionsFrom(environment);
    EXPECT_EQ(options.delayMs, 250);
    EXPECT_TRUE(options.silent);
    ASSERT_TRUE(options.fail);
    EXPECT_EQ(options.fail->code, 1013);
    EXPECT_EQ(options.fail->line, 4);
    EXPECT_EQ(options.axes, -1);
    EXPECT_EQ(options.buttons, 0);
}

TEST(Options, GarbageIsNoOrder)
{
    QProcessEnvironment environment;
    environment.insert(u"ZEPH_STANDIN_DELAY_MS"_s, u"-5"_s);
    environment.insert(u"ZEPH_STANDIN_SILENT"_s, u"0"_s);
    environment.insert(u"ZEPH_STANDIN_FAIL"_s, u"x"_s);
    environment.insert(u"ZEPH_STANDIN_AXES"_s, u""_s);
    const Options options = optionsFrom(environment);
    EXPECT_EQ(options.delayMs, 0);
    EXPECT_FALSE(options.silent);
    EXPECT_FALSE(options.fail);
    EXPECT_FALSE(options.axes);
}
