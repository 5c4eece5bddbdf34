// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/generators/digital_axis.h"

namespace zeph {

namespace {

using namespace language;

struct AxisLabels {
    QStringView axis;
    // Types 1 and 6: the way up and the way down.
    const char16_t *up;
    const char16_t *down;
    const char16_t *sequence;
    const char16_t *left;
    const char16_t *right;
};

// clang-format off
constexpr AxisLabels labels[] = {
    { u"THR"_w, u"Throttle: Back to Forwards character", u"Throttle: Forwards to Back character",
      u"Characters to generate when the Throttle is moved from Back to Forwards (Idle to Full Military Power)",
      u"Throttle Back: Held character", u"Throttle Forwards: Held character" },
    { u"RDDR"_w, u"Left Rudder pedal character", u"Right Rudder pedal character",
      u"Characters to generate when moving the Rudders from left pedal forwards, to right pedal forwards",
      u"Left rudder pedal: Held character", u"Right rudder pedal: Held character" },
    { u"MIX"_w, u"Microstick X axis: Left to Right character", u"Microstick X axis: Right to Left character",
      u"Characters to generate when the Microstick X axis is moved from Left to Right",
      u"Microstick Left: Held character", u"Microstick Right: Held character" },
    { u"MIY"_w, u"Microstick Y axis: Down to Up character", u"Microstick Y axis: Up to Down character",
      u"Characters to generate when the Microstick Y axis is moved from Down to Up",
      u"Microstick Down: Held character", u"Microstick Up: Held character" },
    { u"RBRK"_w, u"Right Toebrake down character", u"Right Toebrake up character",
      u"Characters to generate when the Right Toebrake is depressed",
      u"Right Toebrake Up: Held character", u"Right Toebrake Down: Held character" },
    { u"LBRK"_w, u"Left Toebrake down character", u"Left Toebrake up character",
      u"Characters to generate when the Left Toebrake is depressed",
      u"Left Toebrake Up: Held character", u"Left Toebrake Down: Held character" },
    { u"RNG"_w, u"Range knob: CCW to CW character", u"Range: CW to CCW character",
      u"Characters to generate when rotating the RNG knob from CCW to CW looking face on at the knob",
      u"Range knob CCW: Held character", u"Range knob CW: Held character" },
    { u"ANT"_w, u"Antenna knob: CCW to CW character", u"Antenna knob: CW to CCW character",
      u"Characters to generate when rotating the ANT knob from CCW to CW looking face on at the knob",
      u"Antenna knob CCW: Held character", u"Antenna knob CW: Held character" },
    { u"JOYY"_w, u"Joystick Y axis: Back to Forwards character", u"Joystick Y axis: Forwards to Back character",
      u"Characters to generate when the Joystick Y axis is moved from Back to Forwards",
      u"Joystick Back: Held character", u"Joystick Forwards: Held character" },
    { u"JOYX"_w, u"Joystick X axis: Left to Right character", u"Joystick X axis: Right to Left character",
      u"Characters to generate when the Joystick X axis is moved from Left to Right",
      u"Joystick Left: Held character", u"Joystick Right: Held character" },
};
// clang-format on

QString text(const char16_t *label)
{
    return QStringView(label).toString();
}

QString pulsed(const char16_t *label)
{
    return text(label).replace(u"Held"_s, u"Pulsed"_s);
}

} // namespace

DirectionLabels directionLabels(int type, QStringView axis)
{
    const auto row = std::ranges::find(labels, axis, &AxisLabels::axis);
    if (row == std::end(labels))
        return {};
    switch (type) {
    case 1:
        return { text(row->up), text(row->down) };
    case 2:
        return { text(row->sequence), {} };
    case 3:
        return { text(row->left), text(row->right) };
    case 4:
        return { pulsed(row->left), pulsed(row->right) };
    case 6: {
        // Only type 6 speaks of the range knob in both labels.
        const QString down =
            axis == u"RNG"_w ? u"Range knob: CW to CCW character"_s : text(row->down);
        return { u' ' + text(row->up) + u' ', u' ' + down + u' ' };
    }
    default:
        return {};
    }
}

} // namespace zeph
