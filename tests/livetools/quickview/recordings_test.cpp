// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/documents.h"
#include "livetools/quickview/quickview.h"
#include "livetools/quickview/shown_column.h"
#include "platform/fakes/fake_joystick.h"
#include "tests/livetools/quickview/recordings.h"
#include "tests/support/world.h"
#include "text/macro_table.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QTimer>

using namespace zeph;
using namespace zeph::test;

namespace {

class Recording : public testing::TestWithParam<GoldenCase>
{
};

/// Quick View on a Cougar whose buttons are in Windows mode, with a recording for a joystick. The
/// window takes its first look when it opens.
class RecordingInWindow : public testing::TestWithParam<GoldenCase>, public World
{
protected:
    RecordingInWindow()
    {
        folder.write(u"HOTAS.ini"_s, "[TMMODE]\r\nStatus=OKAY\r\nButtons=0\r\n");
        stick.recording = readingsOf(GetParam());
    }

    bool isManual() const { return !view.findChild<QTimer *>(u"JoyTimer"_s)->isActive(); }
    std::bitset<flagCount> bold() const
    {
        std::bitset<flagCount> flags;
        for (size_t flag = 0; flag < flagCount; ++flag) {
            const auto *label = view.findChild<QLabel *>(u"Label1_"_s + QString::number(flag));
            flags[flag] = label && label->font().bold();
        }
        return flags;
    }
    /// What the window shows after a look.
    QString shown() const
    {
        return isManual() ? manualLine(status.text()) : shownLine(view.shown().column(), bold());
    }

    Documents documents{ context() };
    MacroTable macros;
    FakeJoystick stick;
    QuickView view{ context(), { documents, macros, stick } };
};

INSTANTIATE_TEST_SUITE_P(Golden, Recording, testing::ValuesIn(goldenCases(recordings())));
INSTANTIATE_TEST_SUITE_P(Golden, RecordingInWindow, testing::ValuesIn(goldenCases(recordings())));

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

TEST_P(RecordingInWindow, EachTickShowsWhatIsTold)
{
    const qsizetype looks = stick.recording.size();
    ASSERT_TRUE(view.Form_Load());
    QString all = shown();
    while (!stick.recording.isEmpty()) {
        view.JoyTimer_Timer();
        all += shown();
    }
    expectGolden(GetParam(), u"shown"_s, QString::fromLatin1(GetParam().bytes(u"shown"_s)), all);
    EXPECT_EQ(stick.asked.size(), looks) << "one look a tick";
}

TEST_P(RecordingInWindow, AfterTheLastAnswerThePilotChooses)
{
    ASSERT_TRUE(view.Form_Load());
    while (!isManual() && !stick.recording.isEmpty()) {
        view.JoyTimer_Timer();
    }
    ASSERT_TRUE(isManual()) << "each recording ends with the plug out";
    EXPECT_TRUE(bold().none());
    EXPECT_EQ(columnName(view.shown().column()), u"/U /O");
    const qsizetype looks = stick.asked.size();
    view.JoyTimer_Timer();
    EXPECT_EQ(stick.asked.size(), looks);
}
