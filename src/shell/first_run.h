// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"

class QWidget;

namespace zeph {

class CougarTools;
class HelpMenu;
class UserLists;
struct WelcomeAnswers;

/// Puts the pilot's answers into the settings and the paths. Without any name the stored one stays.
void takeWelcomeAnswers(const WelcomeAnswers &answers, Settings &settings, Paths &paths);

/// What the first run fills and shows.
struct FirstRunParts {
    HelpMenu &help;
    UserLists &lists;
    CougarTools &tools;
};

/// The first run: the flight simulators' files as favourites, the welcome, the store, the profiles,
/// and what the pilot is shown by experience.
void runFirstRun(const Context &context, const FirstRunParts &parts, int welcomeIntervalMs,
                 QWidget *parent);

} // namespace zeph
