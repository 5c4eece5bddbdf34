// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "notes.h"

#include <optional>

/// Does one of the steps about what a pilot sees around the texts and does outside the program.
/// driver.cpp describes them. False: what it waits for is not there yet; no value: the verb is none
/// of these.
std::optional<bool> performOnScene(Notes &notes, const QString &verb, const QString &rest);
