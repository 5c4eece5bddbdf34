// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Quick View's table once more, step by step and slowly, over plain bytes: what the fast one has to
// agree with. Rows and columns are counted from 1, row and column 0 stay empty.

#include "tests/text/alignment_twin.h"

#include <array>

namespace zeph::test {

struct AssignmentsTwin {
    using Line = std::string;
    using Table = std::array<std::array<Line, 7>, 59>;

    Table table;
    Line title;

    explicit AssignmentsTwin(const Line &joystickText)
        : m_lines(AlignmentTwin::read(AlignmentTwin::leftAlignAnalyse(joystickText)))
    {
        m_lines.pop_back(); // "END "
        readValues();
        for (size_t at = 1; at < m_lines.size(); ++at) {
            if (m_lines[at - 1] == "*** ") {
                readStatement(at);
            }
        }
        setHats();
        for (int row = 2; row <= 5 && !trim(m_radio).empty(); ++row) {
            all(row, m_radio);
        }
        setMouse();
    }

private:
    static Line trim(Line line)
    {
        while (!line.empty() && line.back() == ' ') {
            line.pop_back();
        }
        while (!line.empty() && line.front() == ' ') {
            line.erase(0, 1);
        }
        return line;
    }
    static Line folded(const Line &line) { return AlignmentTwin::upper(line); }
    static Line left(const Line &line, size_t count) { return line.substr(0, count); }

    void all(int row, const Line &text)
    {
        for (int column = 1; column <= 6; ++column) {
            table[size_t(row)][size_t(column)] = trim(text);
        }
    }

    void readValues()
    {
        for (const Line &line : m_lines) {
            for (int hat = 1; hat <= 4; ++hat) {
                if (left(line, 5) == "Hat" + std::to_string(hat) + ":") {
                    m_hats[size_t(hat)] = line.substr(5);
                }
            }
            if (left(line, 6) == "Radio:") {
                m_radio = line.substr(6);
            }
            if (left(line, 7) == "MType: ") {
                m_type = line.substr(7);
            }
        }
    }

    void readStatement(size_t at)
    {
        const Line line = folded(m_lines[at]);
        const Line three = left(line, 3);
        const Line four = left(line, 4);
        const Line five = left(line, 5);
        for (int n = 1; n <= 9; ++n) {
            if (three == "T" + std::to_string(n) + " ") {
                TestForUMDIO(at, n, 3);
            }
        }
        for (int n = 1; n <= 4; ++n) {
            if (three == "S" + std::to_string(n) + " ") {
                TestForUMDIO(at, 14 + n, 3);
            }
        }
        const std::pair<const char *, int> others[] = {
            { "T10 ", 10 }, { "RNG ", 57 }, { "ANT ", 58 }, { "TG1 ", 19 }, { "TG2 ", 20 }
        };
        for (const auto &[name, row] : others) {
            if (four == name) {
                TestForUMDIO(at, row, 4);
            }
        }
        const int firstRows[] = { 21, 30, 39, 48 };
        for (int hat = 1; hat <= 4; ++hat) {
            const Line start = "H" + std::to_string(hat);
            const int first = firstRows[hat - 1];
            const std::pair<const char *, int> single[] = {
                { "U ", 0 }, { "R ", 2 }, { "D ", 4 }, { "L ", 6 }, { "M ", 8 }
            };
            for (const auto &[direction, offset] : single) {
                if (four == start + direction) {
                    TestForUMDIO(at, first + offset, 4);
                }
            }
            const std::pair<const char *, int> diagonal[] = {
                { "UR ", 1 }, { "DR ", 3 }, { "DL ", 5 }, { "UL ", 7 }
            };
            for (const auto &[direction, offset] : diagonal) {
                if (five == start + direction) {
                    TestForUMDIO(at, first + offset, 5);
                }
            }
        }
    }

    /// Joins the lines after the one at `at` to the working text, up to the line that ends the
    /// block; returns that line's number.
    size_t joinBlock(size_t at, Line &working) const
    {
        for (++at; at < m_lines.size(); ++at) {
            const Line start = folded(left(m_lines[at], 2));
            if (m_lines[at] == "*** " || start == "/M" || start == "/D") {
                break;
            }
            working += m_lines[at];
        }
        return at;
    }

    void TestForUMDIO(size_t at, int row, size_t nameLength)
    {
        Line working = m_lines[at].substr(nameLength);
        const size_t up = folded(working).find("/U ");
        if (up == Line::npos) {
            joinBlock(at, working);
            for (const int base : { 0, 2, 4 }) {
                IndividualArrayAssign(row, base, working);
            }
            return;
        }
        working = working.substr(up + 3);
        at = joinBlock(at, working);
        IndividualArrayAssign(row, 0, working);
        while (at < m_lines.size() && m_lines[at] != "*** ") {
            const int base = folded(left(m_lines[at], 2)) == "/M" ? 2 : 4;
            working = m_lines[at];
            at = joinBlock(at, working);
            IndividualArrayAssign(row, base, working);
        }
    }

    void IndividualArrayAssign(int row, int base, const Line &working)
    {
        std::array<Line, 7> &columns = table[size_t(row)];
        Line &held = columns[size_t(base) + 1];
        Line &out = columns[size_t(base) + 2];
        const Line test = folded(working);
        const size_t i = test.find("/I ");
        if (i == Line::npos && test.find("/O ") == Line::npos) {
            held = out = store(working);
        } else if (i == Line::npos) {
            out = store(working.substr(test.find("/O ") + 3));
        } else {
            const size_t o = test.find("/O ", i);
            held =
                store(o == Line::npos ? working.substr(i + 3) : working.substr(i + 3, o - i - 3));
            if (o != Line::npos) {
                out = store(working.substr(o + 3));
            } else if (test.find("/O ") != Line::npos) {
                out = store(working.substr(test.find("/O ") + 3));
            }
        }
    }

    static Line RemoveUMDIOmodifiers(const Line &working)
    {
        const Line two = folded(left(working, 2));
        for (const char *modifier : { "/U", "/M", "/D", "/I", "/O" }) {
            if (two == modifier) {
                return working.size() < 3 ? Line() : working.substr(3);
            }
        }
        return working;
    }
    static Line store(const Line &working) { return trim(RemoveUMDIOmodifiers(working)); }

    void setHats()
    {
        const int rows[5][4] = {
            {}, { 21, 23, 25, 27 }, { 30, 32, 34, 36 }, { 39, 41, 43, 45 }, { 48, 50, 52, 54 }
        };
        for (int hat = 1; hat <= 4; ++hat) {
            Line value = trim(m_hats[size_t(hat)]);
            const Line two = folded(left(value, 2));
            if (two == "PO") {
                value = "POV";
            } else if (two == "MO") {
                value = "MOUSE";
            } else if (two == "AR") {
                value = "ARROWKEYS";
            } else if (two == "KE") {
                value = "KEYPAD";
            }
            for (const int row : rows[hat]) {
                if (!value.empty()) {
                    all(row, value);
                }
            }
        }
    }

    void setMouse()
    {
        const Line digits = trim(m_type);
        const Line number = digits.substr(0, digits.find_first_not_of("0123456789"));
        const bool isZero = number.find_first_not_of('0') == Line::npos;
        title = isZero ? "Microstick" : "  Mouse";
        const size_t first = number.find_first_not_of('0');
        const Line type = isZero ? "0" : number.substr(first);
        if (type == "1") {
            all(1, "Left mouse button");
            all(6, "Right mouse button");
        } else if (type == "2") {
            all(6, "Left mouse button");
            all(1, "Right mouse button");
        } else if (type == "3") {
            all(1, "Left mouse button");
        } else if (type == "4") {
            all(1, "Right mouse button");
        }
    }

    std::vector<Line> m_lines;
    std::array<Line, 5> m_hats;
    Line m_radio;
    Line m_type;
};

} // namespace zeph::test
