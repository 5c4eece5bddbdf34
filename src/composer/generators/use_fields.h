// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The buttons of the page "Use / Misc.", and what its fields hold.

#include "platform/core/base.h"
#include "platform/process_launcher.h"

#include <array>

namespace zeph {

/// The buttons CMD_UseInsert; a value is the button's index.
enum class UseInsert {
    MacroFile,
    Rate,
    DirectXButton,
    ShiftButton,
    UseS3Lock,
    S3Lock,
    S3Unlock,
    HatSensitivity,
    T1Sensitivity,
    ReverseToggles,
    ResetToggles,
    KeyboardAzerty,
    StickOff,
    Profile,
    ChordedFdfu,
    NullCharacter,
    EmptyBuffers,
    Graphic,
    Readme,
    Startup,
    Application,
};
constexpr int useInsertCount = int(UseInsert::Application) + 1;

/// How the Cougar starts when it gets power. While it calibrates itself, its axes are always those
/// that Windows knows.
class HardwareStartup
{
public:
    bool emulation() const { return m_emulation; }
    bool userAxes() const { return m_userAxes; }
    bool autoCalibration() const { return m_autoCalibration; }
    bool mayHaveUserAxes() const { return !m_autoCalibration; }

    void setEmulation(bool on) { m_emulation = on; }
    /// Without effect while the user's own axes are not allowed.
    void setUserAxes(bool on) { m_userAxes = on && mayHaveUserAxes(); }
    /// Switched on, it takes the user's own axes away; switched off, it does not bring them back.
    void setAutoCalibration(bool on)
    {
        m_autoCalibration = on;
        m_userAxes = m_userAxes && !on;
    }

    bool operator==(const HardwareStartup &) const = default;

private:
    bool m_emulation = true;
    bool m_userAxes = false;
    bool m_autoCalibration = true;
};

/// What the page's fields hold.
struct UseFields {
    QString macroFile = {};
    QString rate = {};
    bool rateOfFile = false; ///< USE RATE, not the RATE of a button's body
    QString directXControl = u"H1U"_s;
    int directXButton = 1;
    bool allDirectXButtons = false;
    QString shiftControl = u"H1U"_s;
    bool shiftOfFile = false; ///< USE ... AS SHIFTBTN, not the SHIFTBTN of a button's body
    QString hat = u"HAT1"_s;
    QString hatSensitivity = {};
    QString t1Sensitivity = {};
    bool reverseWithS3In = false;
    bool resetWithS3In = false;
    /// The file's name with its ending; empty when the folder has no profile.
    QString profile = {};
    bool autoProfile = true; ///< (AUTO), not (CUSTOM)
    QString hotasFolder = {}; ///< as the refusal without a profile tells it
    QString nullCharacter = {};
    QString graphic = {};
    QString readme = {};
    HardwareStartup startup = {};
    QString application = {};
    WindowStyle windowStyle = WindowStyle::MinimisedNoFocus;

    bool operator==(const UseFields &) const = default;
};

/// The fields of the text boxes TXT_USE, by index.
inline constexpr std::array<QString UseFields::*, 8> useTexts = {
    &UseFields::macroFile,     &UseFields::rate,          &UseFields::hatSensitivity,
    &UseFields::t1Sensitivity, &UseFields::nullCharacter, &UseFields::graphic,
    &UseFields::readme,        &UseFields::application,
};
/// The fields of the check boxes CHK_Use, by index.
inline constexpr std::array<bool UseFields::*, 5> useTicks = {
    &UseFields::rateOfFile,      &UseFields::allDirectXButtons, &UseFields::shiftOfFile,
    &UseFields::reverseWithS3In, &UseFields::resetWithS3In,
};

} // namespace zeph
