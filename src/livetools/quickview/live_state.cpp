// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/quickview/live_state.h"

namespace zeph {

namespace {

constexpr int dogfightUpBit = 24;
constexpr int dogfightDownBit = 25;
constexpr int s3Bit = 2;

bool isSet(quint32 buttons, int bit)
{
    return (buttons >> unsigned(bit) & 1U) != 0;
}

struct ButtonRow {
    int bit;
    QStringView control;
};

constexpr ButtonRow buttonRows[] = {
    { 0, u"TG1"_w }, { 1, u"S2"_w },  { 2, u"S3"_w },  { 3, u"S4"_w },
    { 4, u"S1"_w },  { 5, u"TG2"_w }, { 18, u"T1"_w }, { 19, u"T3"_w },
    { 20, u"T2"_w }, { 21, u"T4"_w }, { 22, u"T5"_w }, { 23, u"T6"_w },
    { 24, u"T7"_w }, { 25, u"T8"_w }, { 26, u"T9"_w }, { 27, u"T10"_w },
};

size_t flagOf(QStringView control)
{
    return size_t(rowOfControl(control) - 1);
}

/// A hat's state counts from 1 for up, clockwise; 9 is its middle.
constexpr int up = 1;
constexpr int upRight = 2;
constexpr int right = 3;
constexpr int downRight = 4;
constexpr int down = 5;
constexpr int downLeft = 6;
constexpr int left = 7;
constexpr int upLeft = 8;
constexpr int middle = 9;

size_t flagOfHat(int hat, int state)
{
    return size_t(firstHatRow + (hat - 1) * hatRowCount + state - 2);
}

int stateOfPov(quint32 pov)
{
    constexpr quint32 step = 4500;
    return pov % step == 0 && pov / step < quint32(hatRowCount - 1) ? int(pov / step) + up : middle;
}

/// The state of hat 2, 3 or 4. Hat 3's left asks whether hat 2, not hat 3, is up: pilots know the
/// picture so.
int stateOfButtons(quint32 buttons, int hat, int stateOfHat2)
{
    constexpr int firstBit = 6;
    const int bit = firstBit + (hat - 2) * 4;
    int state = middle;
    if (isSet(buttons, bit)) {
        state = up;
    }
    if (isSet(buttons, bit + 1)) {
        state = state == up ? upRight : right;
    }
    if (isSet(buttons, bit + 2)) {
        state = state == right ? downRight : down;
    }
    if (isSet(buttons, bit + 3)) {
        const int asked = hat == 3 ? stateOfHat2 : state;
        state = state == down ? downLeft : asked == up ? upLeft : left;
    }
    return state;
}

} // namespace

LiveState liveState(const JoystickReading &reading)
{
    LiveState state;
    const quint32 buttons = reading.buttons;
    state.base = isSet(buttons, dogfightUpBit) ? upBase
        : isSet(buttons, dogfightDownBit)      ? downBase
                                               : middleBase;
    state.io = isSet(buttons, s3Bit) ? heldIn : letOut;
    state.pressed.set(flagOfHat(1, stateOfPov(reading.pov)));
    for (const ButtonRow &row : buttonRows) {
        if (isSet(buttons, row.bit)) {
            state.pressed.set(flagOf(row.control));
        }
    }
    const int hat2 = stateOfButtons(buttons, 2, middle);
    state.pressed.set(flagOfHat(2, hat2));
    for (const int hat : { 3, 4 }) {
        state.pressed.set(flagOfHat(hat, stateOfButtons(buttons, hat, hat2)));
    }
    return state;
}

LiveState withClicked(LiveState state, int label)
{
    constexpr std::array bases = { upBase, middleBase, downBase };
    if (size_t(label) < bases.size()) {
        state.base = bases[size_t(label)];
    } else {
        state.io = size_t(label) == bases.size() ? heldIn : letOut;
    }
    return state;
}

std::bitset<5> litLabels(const LiveState &state)
{
    std::bitset<5> lit;
    lit.set(size_t(state.base / 2));
    lit.set(state.io == heldIn ? 3 : 4);
    return lit;
}

StateChange changeOf(const LiveState &before, const LiveState &after)
{
    return { after.pressed & ~before.pressed, before.pressed & ~after.pressed,
             before.column() != after.column() };
}

QString lostJoystickText(quint32 result, int id)
{
    if (result == Joystick::answered) {
        return {};
    }
    const QString start = result == Joystick::unplugged
        ? u"No joystick detected on ID "_s
        : u"I'm not detecting the Joystick on ID "_s;
    return start + QString::number(id + 1) + u". Switching to manual mode"_s;
}

} // namespace zeph
