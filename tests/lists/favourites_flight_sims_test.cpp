// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "lists/favourites.h"

#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace zeph;

TEST(FlightSims, StandInReverseOrderSoThatTheMenuComesOutAlphabetical)
{
    const auto table = flightSimTable();
    EXPECT_EQ(table.size(), 33U);
    // As the names' characters stand in the code page, "-" before "/"; the pairs that a blank or a
    // longer name tells apart stand as they are.
    EXPECT_EQ(table.front().name, u"WarBirds III");
    EXPECT_EQ(table.back().name, u"Air Warrior III");
    EXPECT_TRUE(std::ranges::all_of(table, [](const FlightSim &sim) {
        return sim.joystickFile.endsWith(u".tmj") && sim.macroFile.endsWith(u".tmm");
    }));
}

TEST(FlightSims, OnlyThoseWhoseJoystickFileIsThereBecomeFavourites)
{
    const test::TempFolder folder;
    folder.write(u"Files/fb.TMJ"_s, "BTN S2 a");
    folder.write(u"Files/TM Eaw.tmj"_s, "BTN S2 a");
    folder.write(u"Files/CFS3.tmm"_s, "Fire = a");
    const QString files = folder.file(u"Files/"_s);
    const QList<Favourite> expected = {
        { u"Forgotten Battles"_s, files + u"FB.tmj"_s, files + u"FB.tmm"_s },
        { u"European Air War"_s, files + u"TM Eaw.tmj"_s, files + u"TM Eaw.tmm"_s },
    };
    EXPECT_EQ(SetupFlightSimFiles(files), expected);
}
