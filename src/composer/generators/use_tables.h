// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The statements of the page "Use / Misc." as tables, which its generator and its reader share.

#include "composer/generators/use_fields.h"
#include "language/words.h"

namespace zeph {

using language::operator""_w;

namespace use {

/// A statement without values. One blank follows it.
struct Fixed {
    UseInsert insert;
    QStringView text;
    bool startsLine;
    /// A button with a tick inserts this text only while the tick is as `ticked` says.
    bool UseFields::*tick = nullptr;
    bool ticked = false;
};

inline constexpr Fixed fixedStatements[] = {
    { UseInsert::DirectXButton, u"USE ALL_DIRECTX_BUTTONS"_w, true, &UseFields::allDirectXButtons,
      true },
    { UseInsert::UseS3Lock, u"USE S3_LOCK"_w, true },
    { UseInsert::S3Lock, u"S3_LOCK"_w, false },
    { UseInsert::S3Unlock, u"S3_UNLOCK"_w, false },
    { UseInsert::ReverseToggles, u"/I REVERSE_TOGGLES"_w, false, &UseFields::reverseWithS3In,
      true },
    { UseInsert::ReverseToggles, u"REVERSE_TOGGLES"_w, false, &UseFields::reverseWithS3In, false },
    { UseInsert::ResetToggles, u"/I RESET_TOGGLES"_w, false, &UseFields::resetWithS3In, true },
    { UseInsert::ResetToggles, u"RESET_TOGGLES"_w, false, &UseFields::resetWithS3In, false },
    { UseInsert::KeyboardAzerty, u"USE KEYBOARD AZERTY", true },
    { UseInsert::StickOff, u"STICK_OFF"_w, false },
    { UseInsert::ChordedFdfu, u"USE CHORDED_FDFU"_w, true },
    { UseInsert::EmptyBuffers, u"EMPTY_BUFFERS"_w, false },
};

/// A USE statement whose value is the rest of its line.
struct Line {
    UseInsert insert;
    /// The words after USE.
    QStringView head;
    QString UseFields::*value;
    /// What the refusal of an empty value says; without it, an empty value is written.
    QStringView missing = {};
    QStringView end = {};
};

inline constexpr Line lineStatements[] = {
    { UseInsert::MacroFile, u"MDEF"_w, &UseFields::macroFile, {}, u" " },
    { UseInsert::NullCharacter, u"NULLCHR"_w, &UseFields::nullCharacter,
      u"You haven't assigned a character to use as the Null Character." },
    { UseInsert::Graphic, u"ZEPH GRAPHIC"_w, &UseFields::graphic,
      u"You haven't selected an image file." },
    { UseInsert::Readme, u"ZEPH README"_w, &UseFields::readme,
      u"You haven't selected a ReadMe file." },
};

/// The words in the brackets of HWSTARTUP, in their order: each for an option that is off and on.
inline constexpr std::array<QStringView, 2> startupWords[] = {
    { u"EMULATION_OFF"_w, u"EMULATION_ON"_w },
    { u"AXIS_MODE_WINDOWS"_w, u"AXIS_MODE_USER"_w },
    { u"CALIBRATION_MANUAL"_w, u"CALIBRATION_AUTO"_w },
};

constexpr QStringView sensitivityEnd = u"_SENSITIVITY";
constexpr QStringView autoMode = u"(AUTO)"_w;
constexpr QStringView customMode = u"(CUSTOM)"_w;

} // namespace use

} // namespace zeph
