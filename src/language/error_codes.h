// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The compiler's errors by number, explained to a pilot. The information file "Error codes.rtf" is
// made of this table when the program is built.

#include "language/file_kinds.h"
#include "platform/core/rich_text.h"

#include <span>

namespace zeph::language {

enum Code : int {
    UnreadableFile = 1001,
    UnknownControl = 1002,
    UnknownAxis = 1003,
    UnknownFlag = 1004,
    StrayBracketCode = 1005,
    UnknownAxisType = 1006,
    BandCount = 1007,
    BandBorders = 1008,
    OddBandsWithCentre = 1009,
    ValueOutOfRange = 1010,
    InAfterOut = 1011,
    NoMacroFile = 1012,
    /// The code of every error in the macro file.
    InMacroFile = 1013,
    ThrottleRangeOrder = 1014,
    DirectXButton = 1015,
    AxesConfiguration = 1016,
    NotDisableable = 1017,
    UnequalSwap = 1018,
    AxisAsMouse = 1019,
    UnknownHatRole = 1020,
    NoScreenResolution = 1021,
    UnknownMouseType = 1022,
    BadCommand = 1023,
    UnreadableMacroFile = 1024,
};

struct ErrorEntry {
    int code;
    /// One line, no full stop.
    QStringView title;
    QStringView cause;
    QStringView cure;
};

/// In rising order of their codes.
std::span<const ErrorEntry> errorCodes();

/// The entry of a code, or null.
const ErrorEntry *errorEntry(int code);

/// The word that starts each entry.
constexpr QStringView errorWord = u"ERROR";
/// "ERROR " and the code's four digits; readers find an entry by it.
QString errorHeading(int code);
constexpr qsizetype errorHeadingLength = errorWord.size() + 5;

/// Which document a compiler's error text is about, by the code in it: InMacroFile means the macro
/// file, any other text the joystick file.
DocumentKind documentOfError(QStringView errorText);

/// What "Error codes.rtf" says: for each entry a heading line in bold, the cause, the cure and an
/// empty line.
RichText errorCodesText();

} // namespace zeph::language
