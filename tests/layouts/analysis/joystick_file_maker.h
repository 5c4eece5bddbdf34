// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Joystick files as chance makes them, the same in every run: statements of every control and
// whatever else a file holds, tidy or not.

#include <random>
#include <string>

namespace zeph::test {

class JoystickFileMaker
{
public:
    explicit JoystickFileMaker(unsigned seed) : m_random(seed) { }

    std::string next()
    {
        std::string file;
        for (int lines = below(60); lines > 0; --lines) {
            file += line();
            if (lines > 1 || below(2) == 0) {
                file += '\n';
            }
        }
        return file;
    }

private:
    int below(int limit) { return int(m_random() % unsigned(limit)); }

    template <size_t count> std::string oneOf(const char *const (&list)[count])
    {
        return list[below(int(count))];
    }

    std::string blanks() { return oneOf({ "", "", "", "", " ", "  ", "\t", " \t ", "     " }); }

    std::string control()
    {
        const std::string number = std::to_string(below(4) + 1);
        switch (below(5)) {
        case 0:
        case 1:
            return "H" + number
                + oneOf({ "U", "L", "R", "D", "M", "UL", "DL", "UR", "DR", "", "X" });
        case 2:
            return "S" + number;
        case 3:
            return "TG" + std::to_string(below(3) + 1);
        default:
            return "T" + std::to_string(below(12));
        }
    }

    std::string head()
    {
        switch (below(4)) {
        case 0:
            return oneOf({ "JOYX", "JOYY", "THR", "RDDR", "RNG", "ANT", "MIX", "MIY", "LBRK",
                           "RBRK", "CURVE", "THR_RANGE", "ANTENNA_Up", "MIXER", "JoyX", "BTNX" });
        default:
            return "BTN" + oneOf({ " ", " ", " ", "  ", "\t" }) + control();
        }
    }

    std::string body()
    {
        std::string text;
        for (int words = below(6); words > 0; --words) {
            text += oneOf({ " ", " ", " ", "  ", "\t", "" });
            text += oneOf({ "/U", "/M",        "/D",   "/I",       "/O",    "/P",         "/R",
                            "/T", "/A",        "/H",   "/",        "/u",    "Radar_Mode", "DLY(60)",
                            "a",  "BTN S1",    "THR",  "Rem fire", "rem x", "~",          "=",
                            "10", "(0 33 67)", "\xE9", "USE" });
        }
        return text;
    }

    std::string other()
    {
        switch (below(8)) {
        case 0:
            return "USE HAT" + std::to_string(below(6)) + " AS"
                + oneOf({ "", " POV", " KEYPAD", "  ARROWKEYS Rem keys", " MOUSE (5)", "X" });
        case 1:
            return "USE RADIOSWITCH AS" + oneOf({ "", " POV", "  MOUSE Rem x", "\tKEYPAD" });
        case 2:
            return "USE MTYPE A"
                + oneOf({ "", "0", "1", "2", "3", "4", "5", "6", "12", " 1", "2 Rem 3", "x", "-1",
                          "3 1" });
        case 3:
            return oneOf({ "DEF X1 S1", "DEF X", "DEF  X2", "DEF", "DEF Y", "DEFAULT x", "def x1 a",
                           "DEFX" });
        case 4:
            return oneOf({ "Rem", "Rem x", "rem BTN S1 a", "REMARK", "~", "~BTN S1 a", "~\tTHR  x",
                           "", "", " ", "\t" });
        case 5:
            return oneOf({ "DISABLE", "DISABLE (THR)", "disable (THR)", "DISABLED /U" });
        case 6:
            return oneOf({ "USE", "USE RATE (50)", "use hat1 as POV", "USE /U x", "USED", "Use",
                           "use mtype a1" });
        default:
            return body();
        }
    }

    static std::string lower(std::string text)
    {
        for (char &each : text) {
            each = char(std::tolower(each));
        }
        return text;
    }

    std::string line()
    {
        switch (below(10)) {
        case 0:
            return blanks() + other();
        case 1:
        case 2:
            return other();
        case 3:
        case 4:
            return blanks() + body();
        case 5:
            return lower(head()) + body();
        case 6:
            return blanks() + head() + body();
        default:
            return head() + body();
        }
    }

    std::mt19937 m_random;
};

} // namespace zeph::test
