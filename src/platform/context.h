// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/paths.h"

namespace zeph {

class Clock;
class Dialogs;
class Keyboard;
class ProcessLauncher;
class StatusLine;
class Settings;

/// What the windows of Zeph share, owned by the Application and made there in one function. Pure
/// code takes values instead.
struct Context {
    Paths &paths;
    Settings &settings;
    StatusLine &status;
    Dialogs &dialogs;
    ProcessLauncher &launcher;
    Clock &clock;
    Keyboard &keyboard;
};

} // namespace zeph
