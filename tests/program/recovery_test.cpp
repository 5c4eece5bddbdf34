// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/base.h"
#include "tests/program/notes.h"
#include "tests/program/program.h"

#include <gmock/gmock.h>

#include <QThread>

using namespace zeph;
using namespace zeph::test;

namespace {

/// Waits for what another process does, ten seconds at most.
template <class Condition> bool comesTrue(Condition condition)
{
    for (int waited = 0; waited < 1000 && !condition(); ++waited) {
        QThread::msleep(10);
    }
    return condition();
}

} // namespace

TEST(ProgramRecovery, WhatWasTypedBeforeAKillIsOfferedByTheNextStart)
{
    Program program;
    program.settle();
    const QString path = program.write(u"Files/a.tmj"_s, "BTN S1 a");
    const QString kept = u"Recovery/1/joystick.txt"_s;
    const auto process = program.start(
        { u"text JoystickText BTN"_s, u"type JoystickText typed "_s, u"pause 20000"_s },
        u"typed.log"_s, { path });
    EXPECT_TRUE(comesTrue([&] { return program.exists(kept); }));
    process->kill();
    process->waitForFinished();
    EXPECT_EQ(program.read(u"Files/a.tmj"_s), "BTN S1 a");

    program.run({ u"modal"_s, u"press Yes"_s, u"text JoystickText typed BTN S1 a"_s,
                  u"trigger mnuFileSave"_s, u"text Panel_1 "_s + path, u"close"_s });
    EXPECT_EQ(program.read(u"Files/a.tmj"_s), "typed BTN S1 a");
    EXPECT_FALSE(program.exists(u"Recovery"_s));
}

TEST(ProgramRecovery, ADamagedRecoveryFileIsToldWithItsPathAndStays)
{
    Program program;
    program.settle();
    const QString path = program.write(u"Recovery/1/joystick.txt"_s, "Zeph recov");
    const QStringList notes =
        program.run({ u"modal"_s, u"press OK"_s, u"text Panel_1 Ready"_s, u"close"_s });
    EXPECT_THAT(lines(notes), testing::Contains(testing::HasSubstr(path.toStdString())));
    EXPECT_EQ(program.read(u"Recovery/1/joystick.txt"_s), "Zeph recov");
}
