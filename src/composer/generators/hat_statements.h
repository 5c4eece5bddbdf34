// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The hat page: what a whole hat is used as, and FORCED_CORNERS.

#include "composer/generators/generators.h"
#include "composer/generators/use_parts.h"

namespace zeph {

/// ComboHatAs.
inline constexpr QStringView hatNames[] = {
    u"HAT1"_w, u"HAT2"_w, u"HAT3"_w, u"HAT4"_w, u"RADIOSWITCH"_w,
};
/// ComboHatUSE.
inline constexpr QStringView hatRoles[] = { u"MOUSE"_w, u"POV"_w, u"ARROWKEYS"_w, u"KEYPAD"_w };
/// ComboHatForcedCorners: the radio switch has no corners.
inline constexpr language::Words hatsWithCorners = language::wordsOf<language::HatRole>();

struct HatFields {
    /// One of hatNames.
    QString hat;
    /// One of hatRoles.
    QString role;
    /// The text of TXT_hatrate, which counts for the role MOUSE alone.
    QString rate = {};
    UseOptions options = {};
};

/// Whether TXT_hatrate and its label are enabled.
bool takesRate(QStringView role);
/// The boxes that are enabled; SetupHatUSE() clears and disables all others.
UseOptions hatOptions(QStringView hat, QStringView role);

/// "USE HAT1 AS MOUSE (20) - REVERSE_UD". Options that the role does not take are left out. An
/// empty rate gives "()"; a rate outside 1 to 127 is refused.
Generated hatStatement(const HatFields &fields);
/// The fields that tell a statement; no value when the page cannot make it. A statement without
/// brackets gives an empty rate.
std::optional<HatFields> readHatStatement(QStringView statement);

/// "USE HAT1 FORCED_CORNERS".
Generated forcedCorners(const QString &hat);
/// The hat of such a statement, one of hatsWithCorners; no value for any other.
std::optional<QString> readForcedCorners(QStringView statement);

} // namespace zeph
