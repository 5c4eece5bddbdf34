// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/quickview/live_state.h"

#include <gmock/gmock.h>

using namespace zeph;

namespace {

constexpr quint32 centred = 65535;

quint32 buttonBits(std::initializer_list<int> set)
{
    quint32 buttons = 0;
    for (const int bit : set) {
        buttons |= 1U << unsigned(bit);
    }
    return buttons;
}

LiveState stateOfBits(std::initializer_list<int> set, quint32 pov = centred)
{
    return liveState({ Joystick::answered, buttonBits(set), pov });
}

/// The flags of a state.
std::vector<int> flagsOf(const LiveState &state)
{
    std::vector<int> flags;
    for (size_t flag = 0; flag < flagCount; ++flag) {
        if (state.pressed[flag]) {
            flags.push_back(int(flag));
        }
    }
    return flags;
}

/// The one flag of hat 2, 3 or 4.
int hatFlag(const LiveState &state, int hat)
{
    const int first = 20 + (hat - 1) * 9;
    for (const int flag : flagsOf(state)) {
        if (flag >= first && flag < first + 9) {
            return flag;
        }
    }
    return -1;
}

} // namespace

TEST(LiveState, HatsAtRestPressTheirM)
{
    EXPECT_THAT(flagsOf(stateOfBits({})), testing::ElementsAre(28, 37, 46, 55));
}

TEST(LiveState, EveryButtonHasItsFlag)
{
    const std::pair<int, int> rows[] = {
        { 0, 18 }, { 1, 15 }, { 2, 16 }, { 3, 17 }, { 4, 14 }, { 5, 19 }, { 18, 0 }, { 19, 2 },
        { 20, 1 }, { 21, 3 }, { 22, 4 }, { 23, 5 }, { 24, 6 }, { 25, 7 }, { 26, 8 }, { 27, 9 },
    };
    for (const auto &[bit, flag] : rows) {
        std::vector<int> expected{ flag, 28, 37, 46, 55 };
        EXPECT_EQ(flagsOf(stateOfBits({ bit })), expected) << bit;
    }
}

TEST(LiveState, ButtonsAboveThe28thAreNone)
{
    EXPECT_EQ(stateOfBits({ 28, 29, 30, 31 }), stateOfBits({}));
}

TEST(LiveState, EveryAngleOfHat1HasItsFlag)
{
    const std::pair<quint32, int> rows[] = {
        { 0, 20 },     { 4500, 21 },  { 9000, 22 },  { 13500, 23 },      { 18000, 24 },
        { 22500, 25 }, { 27000, 26 }, { 31500, 27 }, { 36000, 28 },      { 65535, 28 },
        { 1, 28 },     { 4499, 28 },  { 100, 28 },   { 0xFFFFFFFF, 28 },
    };
    for (const auto &[pov, flag] : rows) {
        std::vector<int> expected{ flag, 37, 46, 55 };
        EXPECT_EQ(flagsOf(stateOfBits({}, pov)), expected) << pov;
    }
}

TEST(LiveState, TheOtherHatsCountClockwiseFromUp)
{
    const std::pair<std::vector<int>, int> rows[] = {
        { { 0 }, 1 }, { { 0, 1 }, 2 }, { { 1 }, 3 }, { { 1, 2 }, 4 },
        { { 2 }, 5 }, { { 2, 3 }, 6 }, { { 3 }, 7 }, { {}, 9 },
    };
    const int before[] = { 0, 0, 28, 37, 46 };
    for (const int hat : { 2, 3, 4 }) {
        for (const auto &[directions, state] : rows) {
            quint32 buttons = 0;
            for (const int direction : directions) {
                buttons |= 1U << unsigned(6 + (hat - 2) * 4 + direction);
            }
            const LiveState live = liveState({ Joystick::answered, buttons, centred });
            EXPECT_EQ(hatFlag(live, hat), before[hat] + state) << hat << ' ' << state;
            EXPECT_EQ(flagsOf(live).size(), 4U);
        }
    }
}

TEST(LiveState, UpAndLeftIsADiagonalOfHats2And4)
{
    EXPECT_EQ(hatFlag(stateOfBits({ 6, 9 }), 2), 28 + 8);
    EXPECT_EQ(hatFlag(stateOfBits({ 14, 17 }), 4), 46 + 8);
}

TEST(LiveState, Hat3LeftAsksWhetherHat2IsUp)
{
    EXPECT_EQ(hatFlag(stateOfBits({ 6, 13 }), 3), 37 + 8) << "hat 2 up, hat 3 left";
    EXPECT_EQ(hatFlag(stateOfBits({ 6, 10, 13 }), 3), 37 + 8);
    EXPECT_EQ(hatFlag(stateOfBits({ 10, 13 }), 3), 37 + 7) << "hat 3 up and left";
    EXPECT_EQ(hatFlag(stateOfBits({ 6, 7, 13 }), 3), 37 + 7) << "hat 2 up and right";
    EXPECT_EQ(hatFlag(stateOfBits({ 6, 12, 13 }), 3), 37 + 6) << "down counts first";
    EXPECT_EQ(hatFlag(stateOfBits({ 6, 17 }), 4), 46 + 7) << "hat 4 asks itself";
}

TEST(LiveState, DirectionsThatContradictEachOtherFollowTheirOrder)
{
    EXPECT_EQ(hatFlag(stateOfBits({ 6, 8 }), 2), 28 + 5) << "down after up";
    EXPECT_EQ(hatFlag(stateOfBits({ 7, 9 }), 2), 28 + 7) << "left after right";
    EXPECT_EQ(hatFlag(stateOfBits({ 6, 7, 8 }), 2), 28 + 5);
    EXPECT_EQ(hatFlag(stateOfBits({ 6, 7, 8, 9 }), 2), 28 + 6);
    EXPECT_EQ(hatFlag(stateOfBits({ 7, 8, 9 }), 2), 28 + 7);
}

TEST(LiveState, TheDogfightSwitchAndS3GiveTheColumn)
{
    EXPECT_EQ(stateOfBits({ 24, 2 }).column(), 1);
    EXPECT_EQ(stateOfBits({ 24 }).column(), 2);
    EXPECT_EQ(stateOfBits({ 2 }).column(), 3);
    EXPECT_EQ(stateOfBits({}).column(), 4);
    EXPECT_EQ(stateOfBits({ 25, 2 }).column(), 5);
    EXPECT_EQ(stateOfBits({ 25 }).column(), 6);
    EXPECT_EQ(stateOfBits({ 24, 25 }).column(), 2) << "up counts first";
}

TEST(LiveState, AClickChoosesThePosition)
{
    LiveState state;
    const std::pair<int, int> clicks[] = { { 0, 2 }, { 3, 1 }, { 1, 3 },
                                           { 4, 4 }, { 2, 6 }, { 3, 5 } };
    for (const auto &[label, column] : clicks) {
        state = withClicked(state, label);
        EXPECT_EQ(state.column(), column);
        EXPECT_TRUE(litLabels(state)[size_t(label)]);
        EXPECT_EQ(litLabels(state).count(), 2U);
    }
    EXPECT_EQ(litLabels(state).to_string(), "01100") << "/D and /I";
}

TEST(LiveState, OnlyWhatChangedIsDrawn)
{
    const LiveState rest = stateOfBits({});
    EXPECT_TRUE(changeOf(rest, rest).isNothing());
    const StateChange pressed = changeOf(rest, stateOfBits({ 6, 0 }));
    EXPECT_EQ(pressed.turnsBold, std::bitset<flagCount>().set(18).set(29));
    EXPECT_EQ(pressed.turnsPlain, std::bitset<flagCount>().set(37));
    EXPECT_FALSE(pressed.column);
    EXPECT_TRUE(changeOf(rest, stateOfBits({ 2 })).column);
    EXPECT_FALSE(changeOf(rest, stateOfBits({ 2 })).isNothing());
}

TEST(LiveState, ALostJoystickIsTold)
{
    EXPECT_EQ(lostJoystickText(Joystick::unplugged, 0),
              u"No joystick detected on ID 1. Switching to manual mode");
    EXPECT_EQ(lostJoystickText(Joystick::badId, 3),
              u"I'm not detecting the Joystick on ID 4. Switching to manual mode");
    EXPECT_EQ(lostJoystickText(Joystick::answered, 0), u"");
}
