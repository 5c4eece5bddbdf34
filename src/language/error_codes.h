// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What can be wrong with a pair of files, by number, in a pilot's words. The information file
// "Error codes.rtf" holds the same entries.

#include "language/file_kinds.h"

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
    /// Everything that is wrong in the macro file, whatever it is.
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
/// "ERROR " and the four digits: the form by which an entry is found.
QString errorHeading(int code);
constexpr qsizetype errorHeadingLength = errorWord.size() + 5;

/// The document that a compiler's error text speaks of: the macro file where the code's four
/// digits are those of InMacroFile.
DocumentKind documentOfError(QStringView errorText);

/// The whole of "Error codes.rtf" as plain text: for each entry a heading line, the cause, the cure
/// and an empty line.
QString errorCodesText();

} // namespace zeph::language
