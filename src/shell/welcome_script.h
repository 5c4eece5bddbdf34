// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What the first run asks and says, without its window.

#include "platform/core/base.h"

#include <span>

namespace zeph {

/// What the pilot answered.
struct WelcomeAnswers {
    QString firstName = {};
    QString lastName = {};
    QString callsign = {};
    /// Folder of the Cougar's software with its closing separator.
    QString hotasFolder = {};
    /// 0-based experience option, or -1 when the window was closed before an answer.
    int experience = -1;
    /// The font of both texts; empty for the one that is set.
    QString fontName = {};
    bool darkColours = false;
};

/// First name, callsign in double quotes and last name, with single blanks between those there are.
QString composeValidUser(const QString &firstName, const QString &callsign,
                         const QString &lastName);
/// The names from which composeValidUser() makes a name, as far as that can be told: without a
/// callsign the first word counts as the first name.
WelcomeAnswers partsOfValidUser(const QString &validUser, const QString &callsign);
/// What FirstTimeUsed becomes by the experience option: 2 to 5, or still 1 for no answer.
int firstTimeUsedAfter(int experience);

/// The pages that wait for the pilot.
enum class WelcomePage { None, Name, Hotas, Experience };

/// A step of the script: a line that is shown for some ticks and grows by a dot at each, then a
/// page that waits for the pilot. At the end of one step the pilot is greeted by callsign.
struct WelcomeStep {
    const char16_t *line;
    int ticks;
    bool dots;
    bool greets;
    WelcomePage page;
};

std::span<const WelcomeStep> welcomeScript();
std::span<const char16_t *const> experienceOptions();

} // namespace zeph
