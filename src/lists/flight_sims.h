// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The flight simulators whose files Zeph knows by name.

#include "lists/favourites.h"

#include <span>

namespace zeph {

struct FlightSim {
    QStringView name;
    QStringView joystickFile;
    QStringView macroFile;
};

/// In the order in which they become favourites: the last one comes out on top.
std::span<const FlightSim> flightSimTable();

/// The favourites of those whose joystick file lies in the folder, in the table's order.
QList<Favourite> SetupFlightSimFiles(const QString &filesFolder);

} // namespace zeph
