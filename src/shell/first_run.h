// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "editor/context.h"

class QWidget;

namespace zeph {

class CougarTools;
class HelpMenu;
struct WelcomeAnswers;

/// Puts what the pilot said into the settings and the paths. No name at all leaves the stored one.
void takeWelcomeAnswers(const WelcomeAnswers &answers, GlobalSettings &settings, Paths &paths);

/// The first run: the welcome, the store, the profiles, and what the pilot is shown by experience.
void runFirstRun(const Context &context, HelpMenu &help, CougarTools &tools, int welcomeIntervalMs,
                 QWidget *parent);

} // namespace zeph
