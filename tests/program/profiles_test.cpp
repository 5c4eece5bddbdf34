// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/base.h"
#include "tests/program/notes.h"
#include "tests/program/program.h"

#include <gmock/gmock.h>

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>

#include <functional>

using namespace zeph;
using namespace zeph::test;
using testing::Contains;
using testing::HasSubstr;

namespace {

/// Whether something becomes true: a tool that nobody waits for writes a little later.
bool comes(const std::function<bool()> &holds)
{
    constexpr int lookEveryMs = 20;
    const QDeadlineTimer until(20000);
    QEventLoop loop;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &loop, [&] {
        if (holds() || until.hasExpired()) {
            loop.quit();
        }
    });
    look.start(lookEveryMs);
    loop.exec();
    return holds();
}

QString loaded(const Program &program, const QString &key)
{
    return program.setting(u"StandIn"_s, key, u"HOTAS.ini"_s);
}

} // namespace

TEST(ProgramProfiles, TheFirstRunPutsTheProfileWhereTheToolsLook)
{
    Program program;
    program.run({ u"maybe-ok WARNING"_s, u"window Welcome to Zeph"_s, u"type txtFirstName Ann"_s,
                  u"press cmdNames"_s, u"press cmdHotas"_s, u"press Option_Experience_3"_s,
                  u"press cmdExperience"_s, u"press cmdFinish"_s, u"gone Welcome"_s, u"close"_s });
    EXPECT_EQ(program.read(u"Profiles/Default.tmc"_s), program.read(u"Files/Default.tmc"_s));
}

TEST(ProgramProfiles, TheChosenProfileReachesTheToolWithItsCalibration)
{
    Program program;
    program.settle();
    program.write(u"Profiles/My stick.tmc"_s, "x");
    const QStringList notes = program.run(
        { u"trigger mnuResetOptions"_s, u"window Reset axes options"_s, u"type List_Profiles m"_s,
          u"press Option_Calibrate_1"_s, u"press CMD_OK"_s, u"gone Reset axes options"_s,
          u"trigger mnuApplyDefaultTMC"_s, u"text Panel_1  Ready"_s, u"close"_s });
    EXPECT_THAT(lines(notes), Contains("window Reset axes options"));
    EXPECT_TRUE(
        comes([&program] { return loaded(program, u"LoadedProfile"_s) == u"My stick.tmc"_s; }));
    EXPECT_EQ(loaded(program, u"Calibration"_s), u"manual");
    EXPECT_EQ(program.setting(u"Apps"_s, u"ResetProfile"_s), u"My stick");
}

TEST(ProgramProfiles, AMissingProfileIsToldAndNothingIsSent)
{
    Program program;
    program.settle("[Apps]\r\nUseResetProfile=1\r\nResetProfile=Gone\r\n");
    const QStringList notes = program.run(
        { u"trigger mnuApplyDefaultTMC"_s, u"box Cannot find profile in HOTAS Profiles folder"_s,
          u"press OK"_s, u"gone Cannot find profile"_s, u"close"_s });
    EXPECT_THAT(lines(notes), Contains(HasSubstr("Unable to find profile: Gone.tmc.")));
    EXPECT_EQ(loaded(program, u"LoadedProfile"_s), u"(absent)");
}
