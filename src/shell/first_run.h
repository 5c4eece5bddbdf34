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

/// What an earlier first run, which was closed before its end, has left: the names and the folder.
WelcomeAnswers earlierAnswers(Settings &settings, const Paths &paths);

/// Puts the pilot's answers into the settings and the paths. Without any name the stored one stays.
void takeWelcomeAnswers(const WelcomeAnswers &answers, Settings &settings, Paths &paths);

/// What the first run fills and shows.
struct FirstRunParts {
    HelpMenu &help;
    UserLists &lists;
    CougarTools &tools;
    /// A first run was begun before.
    bool isRepeated = false;
};

/// Does what a first run is for: makes favourites of the flight simulators' files (once),
/// welcomes the pilot, writes the store, copies the profiles, and shows the pilot what fits the
/// experience.
void runFirstRun(const Context &context, const FirstRunParts &parts, int welcomeIntervalMs,
                 QWidget *parent);

} // namespace zeph
