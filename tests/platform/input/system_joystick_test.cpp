// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/input/system_joystick.h"

#define SDL_MAIN_HANDLED
#include <SDL.h>

#include <gtest/gtest.h>

#include <csignal>

using namespace zeph;

namespace {

constexpr Uint16 cougar = 0x0400;
constexpr Uint16 otherModel = 0x0401;

/// A machine whose first real reading has been taken, so that virtual sticks come after the real
/// ones that may be plugged in.
class SystemJoystickTest : public testing::Test
{
protected:
    SystemJoystickTest()
    {
        joystick.read(0);
        first = SDL_NumJoysticks();
    }
    ~SystemJoystickTest() override
    {
        for (SDL_Joystick *each : { stick, other }) {
            if (each) {
                pullOut(each);
            }
        }
    }

    /// Plugs a stick with 28 buttons and a hat in, open for the test's hands.
    static SDL_Joystick *plugIn(Uint16 model, int hats = 1, int buttons = 28)
    {
        SDL_VirtualJoystickDesc desc{};
        desc.version = SDL_VIRTUAL_JOYSTICK_DESC_VERSION;
        desc.type = SDL_JOYSTICK_TYPE_FLIGHT_STICK;
        desc.naxes = 8;
        desc.nbuttons = Uint16(buttons);
        desc.nhats = Uint16(hats);
        desc.vendor_id = 0x044f;
        desc.product_id = model;
        desc.name = "Virtual stick";
        const int index = SDL_JoystickAttachVirtualEx(&desc);
        EXPECT_GE(index, 0) << SDL_GetError();
        return SDL_JoystickOpen(index);
    }

    static void pullOut(SDL_Joystick *&which)
    {
        const SDL_JoystickID instance = SDL_JoystickInstanceID(which);
        for (int index = 0; index < SDL_NumJoysticks(); ++index) {
            if (SDL_JoystickGetDeviceInstanceID(index) == instance) {
                EXPECT_EQ(SDL_JoystickDetachVirtual(index), 0);
                break;
            }
        }
        SDL_JoystickClose(which);
        which = nullptr;
    }

    SystemJoystick joystick;
    int first = 0;
    SDL_Joystick *stick = nullptr;
    SDL_Joystick *other = nullptr;
};

struct HatCase {
    Uint8 hat;
    quint32 pov;
};

constexpr HatCase hatCases[] = {
    { SDL_HAT_UP, 0 },           { SDL_HAT_RIGHTUP, 4500 },
    { SDL_HAT_RIGHT, 9000 },     { SDL_HAT_RIGHTDOWN, 13500 },
    { SDL_HAT_DOWN, 18000 },     { SDL_HAT_LEFTDOWN, 22500 },
    { SDL_HAT_LEFT, 27000 },     { SDL_HAT_LEFTUP, 31500 },
    { SDL_HAT_CENTERED, 65535 },
};

} // namespace

TEST(SystemJoystick, SetsNothingUpBeforeTheFirstReading)
{
    const SystemJoystick joystick;
    EXPECT_EQ(SDL_WasInit(SDL_INIT_JOYSTICK), 0U);
}

#ifdef Q_OS_UNIX

TEST(SystemJoystick, LeavesTheProgramsSignalsAlone)
{
    SystemJoystick joystick;
    joystick.read(0);
    ASSERT_NE(SDL_WasInit(SDL_INIT_JOYSTICK), 0U);
    for (const int number : { SIGINT, SIGTERM }) {
        struct sigaction action = {};
        ASSERT_EQ(sigaction(number, nullptr, &action), 0);
        EXPECT_EQ(action.sa_handler, SIG_DFL);
    }
}

#endif

TEST(SystemJoystick, TakesTheSubsystemDownWithItself)
{
    {
        SystemJoystick joystick;
        joystick.read(0);
    }
    EXPECT_EQ(SDL_WasInit(SDL_INIT_JOYSTICK), 0U);
}

TEST_F(SystemJoystickTest, ANumberThatWasNeverThereIsNoAnswerAndNotPulledOut)
{
    for (const int id : { -1, first, first + 7 }) {
        const quint32 result = joystick.read(id).result;
        EXPECT_NE(result, Joystick::answered) << id;
        EXPECT_NE(result, Joystick::unplugged) << id;
    }
}

TEST_F(SystemJoystickTest, APluggedInStickAnswersAtTheNextReading)
{
    EXPECT_NE(joystick.read(first).result, Joystick::answered);
    stick = plugIn(cougar);
    const JoystickReading reading = joystick.read(first);
    EXPECT_EQ(reading.result, Joystick::answered);
    EXPECT_EQ(reading.buttons, 0U);
    EXPECT_EQ(reading.pov, 65535U);
}

TEST_F(SystemJoystickTest, ButtonsAreBitsFromZeroOn)
{
    stick = plugIn(cougar);
    for (const int button : { 0, 2, 24, 27 }) {
        SDL_JoystickSetVirtualButton(stick, button, SDL_PRESSED);
    }
    EXPECT_EQ(joystick.read(first).buttons, 1U << 0 | 1U << 2 | 1U << 24 | 1U << 27);
    SDL_JoystickSetVirtualButton(stick, 2, SDL_RELEASED);
    EXPECT_EQ(joystick.read(first).buttons, 1U << 0 | 1U << 24 | 1U << 27);
}

TEST_F(SystemJoystickTest, AButtonHeldBeforeTheFirstReadingOfTheStickIsSeen)
{
    stick = plugIn(cougar);
    SDL_JoystickSetVirtualButton(stick, 5, SDL_PRESSED);
    EXPECT_EQ(joystick.read(first).buttons, 1U << 5);
}

TEST_F(SystemJoystickTest, ButtonsBeyondTheThirtySecondAreLeftOut)
{
    stick = plugIn(cougar, 1, 40);
    SDL_JoystickSetVirtualButton(stick, 31, SDL_PRESSED);
    SDL_JoystickSetVirtualButton(stick, 32, SDL_PRESSED);
    EXPECT_EQ(joystick.read(first).buttons, 1U << 31);
}

TEST_F(SystemJoystickTest, TheHatGivesHundredthsOfADegree)
{
    stick = plugIn(cougar);
    for (const HatCase &row : hatCases) {
        SDL_JoystickSetVirtualHat(stick, 0, row.hat);
        EXPECT_EQ(joystick.read(first).pov, row.pov) << int(row.hat);
    }
}

TEST_F(SystemJoystickTest, AStickWithoutAHatReadsAsCentred)
{
    stick = plugIn(cougar, 0);
    EXPECT_EQ(joystick.read(first).result, Joystick::answered);
    EXPECT_EQ(joystick.read(first).pov, 65535U);
}

TEST_F(SystemJoystickTest, APulledOutStickReads165AndAnswersAgainWhenPutBack)
{
    stick = plugIn(cougar);
    EXPECT_EQ(joystick.read(first).result, Joystick::answered);
    pullOut(stick);
    const JoystickReading gone = joystick.read(first);
    EXPECT_EQ(gone.result, 165U);
    EXPECT_EQ(gone.buttons, 0U);
    EXPECT_EQ(gone.pov, 65535U);
    EXPECT_EQ(joystick.read(first).result, 165U);
    stick = plugIn(cougar);
    SDL_JoystickSetVirtualButton(stick, 3, SDL_PRESSED);
    EXPECT_EQ(joystick.read(first).result, Joystick::answered);
    EXPECT_EQ(joystick.read(first).buttons, 1U << 3);
    EXPECT_NE(joystick.read(first + 1).result, Joystick::answered);
}

TEST_F(SystemJoystickTest, AStickPutBackBetweenTwoReadingsIsNotMissed)
{
    stick = plugIn(cougar);
    EXPECT_EQ(joystick.read(first).result, Joystick::answered);
    pullOut(stick);
    stick = plugIn(cougar);
    EXPECT_EQ(joystick.read(first).result, Joystick::answered);
}

TEST_F(SystemJoystickTest, TheOthersKeepTheirNumbersWhenOneIsPulledOut)
{
    stick = plugIn(cougar);
    other = plugIn(otherModel);
    SDL_JoystickSetVirtualButton(other, 7, SDL_PRESSED);
    EXPECT_EQ(joystick.read(first + 1).buttons, 1U << 7);
    pullOut(stick);
    EXPECT_EQ(joystick.read(first).result, Joystick::unplugged);
    EXPECT_EQ(joystick.read(first + 1).buttons, 1U << 7);
    stick = plugIn(cougar);
    EXPECT_EQ(joystick.read(first).result, Joystick::answered);
    EXPECT_EQ(joystick.read(first).buttons, 0U);
    EXPECT_EQ(joystick.read(first + 1).buttons, 1U << 7);
}

TEST_F(SystemJoystickTest, AnotherModelDoesNotTakeThePlaceOfOneThatIsOut)
{
    stick = plugIn(cougar);
    EXPECT_EQ(joystick.read(first).result, Joystick::answered);
    pullOut(stick);
    other = plugIn(otherModel);
    EXPECT_EQ(joystick.read(first).result, Joystick::unplugged);
    EXPECT_EQ(joystick.read(first + 1).result, Joystick::answered);
}

TEST_F(SystemJoystickTest, NoEventsPileUpWhileItIsRead)
{
    stick = plugIn(cougar);
    for (int times = 0; times < 100; ++times) {
        SDL_JoystickSetVirtualButton(stick, 0, times % 2 == 0 ? SDL_PRESSED : SDL_RELEASED);
        joystick.read(first);
    }
    EXPECT_EQ(SDL_HasEvents(SDL_JOYAXISMOTION, SDL_JOYDEVICEREMOVED), SDL_FALSE);
}
