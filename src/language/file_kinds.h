// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Joystick files and macro files, told by their extensions. An extension is a name's last three
// characters, with or without a dot before them.

#include "platform/core/base.h"

namespace zeph {

enum class DocumentKind { Joystick = 0, Macro = 1 };

/// The last three characters, lower-cased.
QString lastThree(QStringView name);
bool isMacroExtension(QStringView extension);
bool isJoystickExtension(QStringView extension);
/// Macro for any of the macro extensions, Joystick for everything else.
DocumentKind kindOfName(QStringView name);
/// The macro extension that goes with a joystick file's name; "tmm" for an unknown one.
QString macroExtensionFor(QStringView joystickName);
/// The joystick extension that goes with a macro file's name; "tmj" for an unknown one.
QString joystickExtensionFor(QStringView macroName);
/// The name without its last three characters (the dot stays).
QString baseWithDot(QStringView name);
/// "tmj" or "tmm".
QString extensionOf(DocumentKind kind);
/// What a file dialog offers for a file of the kind.
QString fileFilter(DocumentKind kind);
/// What a tab shows: the name with its last three characters lower-cased.
QString tabCaption(const QString &name);
/// Whether a name counts as never saved: it begins with "Untitled".
bool isUntitled(QStringView name);
/// "Untitled.tmj" or "Untitled.tmm".
QString freshName(DocumentKind kind);
/// The ending of calibration profiles' names.
constexpr QStringView profileExtension = u".tmc";
/// A profile's name with its ending added where it is missing.
QString withProfileExtension(const QString &name);

} // namespace zeph
