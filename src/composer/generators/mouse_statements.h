// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The pages of mouse and microstick: the mouse type, an axis as mouse, and the mouse statements
// for buttons.

#include "composer/generators/generators.h"
#include "composer/generators/use_parts.h"

namespace zeph {

/// The boxes of the mouse type's page.
inline constexpr UseOptions mouseTypeOptions = UseOption::ReverseUd | UseOption::ReverseLr;

struct MouseTypeFields {
    /// The name of one of mouseTypes.
    QString type;
    UseOptions options = {};
};
/// "USE MTYPE A1 - REVERSE_UD".
Generated mouseTypeStatement(const MouseTypeFields &fields);
/// The fields that tell a statement; no value when the page cannot make it.
std::optional<MouseTypeFields> readMouseType(QStringView statement);
/// What label5 tells of a mouse type: the throttle buttons that are the mouse's left and right one,
/// or "n/a".
std::pair<QString, QString> buttonsOfMouseType(QStringView type);

/// ComboAnalogueAxes_8.
inline constexpr QStringView mouseDrivers[] = {
    u"MICROSTICK"_w, u"JOYSTICK"_w, u"ROTARIES"_w, u"TOEBRAKES"_w, u"JOYX"_w, u"JOYY"_w, u"THR"_w,
    u"RDDR"_w,       u"LBRK"_w,     u"RBRK"_w,     u"MIX"_w,       u"MIY"_w,  u"ANT"_w,  u"RNG"_w,
};
/// What ComboMouseAxes offers for a single axis and for a group.
inline constexpr language::Words singleMouseAxes = language::wordsOf<language::MouseAxisRole>();
inline constexpr QStringView wholeMouse[] = { u"MOUSE"_w };
/// ComboScaleValue has the numbers from the first to the last.
constexpr int firstScale = 2;
constexpr int lastScale = 12;

struct AxisAsMouseFields {
    /// One of mouseDrivers.
    QString axis;
    /// One of mouseAxesFor() the axis.
    QString mouseAxis;
    int scale = 11;
    /// The text of TXT_Mouse_1.
    QString increment = u"2"_s;
    /// CHK_Mouse_0, and the text of TXT_Mouse_2, which counts with the tick alone.
    bool hasStart = false;
    QString start = {};
    UseOptions options = {};
};

/// The entries of ComboMouseAxes: a group drives the whole mouse, an axis one of its axes.
language::Words mouseAxesFor(QStringView axis);
/// The boxes that are enabled; the others are cleared.
UseOptions axisAsMouseOptions(QStringView axis, QStringView mouseAxis);
/// The fields after another axis was chosen: a mouse axis that is not offered any more gives way to
/// the first that is, and options that are not enabled any more lose their tick.
AxisAsMouseFields settled(AxisAsMouseFields fields);

/// "USE MICROSTICK AS MOUSE (11, 2, 1) - NO_BUTTON". Options that are not enabled are left out.
/// Refused without an increment, without the starting value that is asked for, and when scale times
/// increment exceeds 127.
Generated axisAsMouse(const AxisAsMouseFields &fields);
/// The fields that tell a statement; no value when the page cannot make it.
std::optional<AxisAsMouseFields> readAxisAsMouse(QStringView statement);

/// The buttons of the control array CMD_MouseButton, by index.
enum class MouseCommand : quint8 {
    LeftButton,
    MiddleButton,
    RightButton,
    DisableMouse,
    ButtonStatement,
    MoveX,
    MoveY,
    ZeroMouse,
};
constexpr int mouseCommandCount = int(MouseCommand::ZeroMouse) + 1;

/// The caption of a button.
QStringView captionOf(MouseCommand command);
/// Whether the joystick tab is selected first; the others go into the selected document. A whole
/// statement, which is followed by the line end of the tick, is one whose Statement starts a line.
constexpr bool goesToJoystick(MouseCommand command)
{
    using enum MouseCommand;
    return command == DisableMouse || command == ButtonStatement || command == ZeroMouse;
}

struct MouseCommandFields {
    /// OptionMousebuttonStatement: 0 the left button alone, 1 left and right by S3.
    int statement = 0;
    /// The text of TXT_DigitalAxis_8.
    QString value = {};
};

/// What a button inserts. MSX and MSY refuse an empty value.
Generated mouseCommand(MouseCommand command, const MouseCommandFields &fields);

struct ReadMouseCommand {
    MouseCommand command;
    MouseCommandFields fields;
};
/// The button that inserts this text, with its fields; no value when none does.
std::optional<ReadMouseCommand> readMouseCommand(QStringView text);

} // namespace zeph
