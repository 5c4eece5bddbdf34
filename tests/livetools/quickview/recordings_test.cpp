// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "tests/livetools/quickview/recordings.h"

#include <gtest/gtest.h>

using namespace zeph;
using namespace zeph::test;

namespace {

class Recording : public testing::TestWithParam<GoldenCase>
{
};

INSTANTIATE_TEST_SUITE_P(Golden, Recording, testing::ValuesIn(goldenCases(recordings())));

} // namespace

TEST(Recordings, EachHasItsPartner)
{
    expectGoldenPartners(recordings());
}

TEST_P(Recording, EachLookShowsWhatIsTold)
{
    QString shown;
    for (const JoystickReading &reading : readingsOf(GetParam())) {
        const LiveState state = liveState(reading);
        shown += reading.result == Joystick::answered
            ? shownLine(state.column(), state.pressed)
            : manualLine(lostJoystickText(reading.result, 0));
    }
    expectGolden(GetParam(), u"shown"_s, QString::fromLatin1(GetParam().bytes(u"shown"_s)), shown);
}
