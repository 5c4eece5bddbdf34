// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The sheets' analysis once more, string by string and statement by statement, over plain bytes
// with CR LF and with a list of lines: what the fast one has to agree with.

#include "tests/text/alignment_twin.h"

#include <array>

namespace zeph::test {

class AnalysisTwin
{
public:
    using Text = std::string;

    AnalysisTwin(const Text &joystick, Text path, Text time)
        : m_path(std::move(path)), m_time(std::move(time))
    {
        for (const Text &line : AlignmentTwin::read(AlignmentTwin::alignForLayouts(joystick))) {
            extract(line);
        }
    }

    /// The kept lines as the file of them has them.
    Text kept() const
    {
        Text all;
        for (const Text &line : m_lines) {
            all += line + "\r\n";
        }
        return all;
    }

    std::vector<Text> joystickSheet()
    {
        m_boxes.assign(17, "");
        m_boxes[14] = "Custom 1:";
        m_boxes[15] = "Custom 2:";
        m_boxes[16] = "Custom 3:";
        const char *prefixes[9][2] = { { "U", "U:  " },  { "L", "L:  " },  { "R", "R:  " },
                                       { "D", "D:  " },  { "M", "M:  " },  { "UL", "UL: " },
                                       { "DL", "DL: " }, { "UR", "UR: " }, { "DR", "DR: " } };
        for (int n = 1; n <= 4; ++n) {
            Text &box = m_boxes[size_t(n) - 1];
            const Text number = std::to_string(n);
            box = "Hat " + number;
            if (m_hats[size_t(n) - 1] != "") {
                box += "\r\n" + m_hats[size_t(n) - 1];
                continue;
            }
            for (const auto &each : prefixes) {
                fillTextBox("BTN H" + number + each[0], size_t(n) - 1, each[1]);
            }
        }
        button(4, "BTN S1", "      ");
        button(5, "BTN S2", "      ");
        button(6, "BTN S3", "      ");
        button(7, "BTN S4", "      ");
        m_boxes[8] = "Triggers";
        fillTextBox("BTN TG1", 8, "TG1    ");
        fillTextBox("BTN TG2", 8, "TG2    ");
        button(9, "JOYX", "     ");
        button(10, "JOYY", "    ");
        m_boxes[11] = "Sim: ";
        m_boxes[12] = "File: " + m_path;
        m_boxes[13] = "Date: " + m_time;
        return m_boxes;
    }

    std::vector<Text> throttleSheet()
    {
        m_boxes.assign(24, "");
        m_boxes[21] = "Custom 1:";
        m_boxes[22] = "Custom 2:";
        m_boxes[23] = "Custom 3:";
        const Text blanks = "       ";
        if (m_mType == 1 || m_mType == 3) {
            m_boxes[0] = "BTN T1 \r\n Left mouse button";
        } else if (m_mType == 2 || m_mType == 4) {
            m_boxes[0] = "BTN T1 \r\n Right mouse button";
        } else if (m_mType == 0 || m_mType == 5) {
            button(0, "BTN T1 ", blanks);
        } else {
            m_boxes[0] = "BTN T1 ";
        }
        for (size_t box = 1; box <= 4; ++box) {
            const Text heading = "BTN T" + std::to_string(box + 1) + " ";
            if (m_radio != "") {
                m_boxes[box] = heading + "\r\n" + m_radio;
            } else {
                button(box, heading, blanks);
            }
        }
        if (m_mType == 1) {
            m_boxes[5] = "BTN T6 \r\n Right mouse button";
        } else if (m_mType == 2) {
            m_boxes[5] = "BTN T6 \r\n Left mouse button";
        } else {
            button(5, "BTN T6 ", blanks);
        }
        button(6, "BTN T7 ", blanks);
        button(7, "BTN T8 ", blanks);
        button(8, "BTN T9 ", blanks);
        button(9, "BTN T10", blanks);
        button(10, "THR", "   ");
        button(11, "RDDR", "    ");
        button(12, "ANT", "   ");
        button(13, "RNG", "   ");
        button(14, "MIX", "   ");
        button(15, "MIY", "   ");
        button(16, "LBRK", "    ");
        button(17, "RBRK", "    ");
        m_boxes[18] = "Sim: ";
        m_boxes[19] = "File: " + m_path;
        m_boxes[20] = "Date: " + m_time;
        return m_boxes;
    }

private:
    static Text left(const Text &text, size_t count) { return text.substr(0, count); }

    void extract(const Text &line)
    {
        bool isKept = true;
        if (left(line, 5) == "DEF X") {
            isKept = false;
        }
        if (AlignmentTwin::lower(left(line, 3)) == "rem") {
            isKept = false;
        }
        if (line == "") {
            isKept = false;
        }
        if (left(line, 3) == "USE") {
            isKept = false;
            for (int n = 1; n <= 4; ++n) {
                if (left(line, 11) == "USE HAT" + std::to_string(n) + " AS") {
                    m_hats[size_t(n) - 1] = line.substr(11);
                }
            }
            if (left(line, 18) == "USE RADIOSWITCH AS") {
                m_radio = line.substr(18);
            }
            if (left(line, 11) == "USE MTYPE A") {
                m_mType = number(line.substr(11));
            }
        }
        if (left(line, 7) == "DISABLE") {
            isKept = false;
        }
        if (isKept) {
            m_lines.push_back(line);
        }
    }

    /// The whole number that a text begins with; blanks do not count.
    static int number(const Text &text)
    {
        Text digits;
        for (const char each : text) {
            if (each == ' ') {
                continue;
            }
            const bool isSign = each == '-' && digits.empty();
            if (!isSign && (each < '0' || each > '9')) {
                break;
            }
            digits += each;
        }
        return digits.empty() || digits == "-" ? 0 : std::stoi(digits);
    }

    static bool isStatementStart(const Text &line)
    {
        for (const char *word : { "BTN", "JOYX", "JOYY", "THR", "RDDR", "RNG", "ANT", "MIX", "MIY",
                                  "LBRK", "RBRK", "CURVE" }) {
            if (left(line, Text(word).size()) == word) {
                return true;
            }
        }
        return false;
    }

    void button(size_t box, const Text &heading, const Text &prefix)
    {
        m_boxes[box] = heading;
        fillTextBox(heading, box, prefix);
    }

    void fillTextBox(const Text &search, size_t index, const Text &prefix)
    {
        size_t i = 0;
        while (i < m_lines.size() && left(m_lines[i], search.size()) != search) {
            ++i;
        }
        if (i == m_lines.size()) {
            return;
        }
        size_t last = i;
        while (last + 1 < m_lines.size() && !isStatementStart(m_lines[last + 1])) {
            ++last;
        }
        Text &box = m_boxes[index];
        if (box != "" && (box.size() < 2 || box.substr(box.size() - 2) != "\r\n")) {
            box += "\r\n";
        }
        for (size_t line = i; line <= last; ++line) {
            if (left(m_lines[line], search.size()) == search && prefix != "") {
                box += prefix + " " + m_lines[line].substr(search.size());
            } else {
                box += m_lines[line];
            }
            if (line < last) {
                box += "\r\n";
            }
        }
    }

    Text m_path;
    Text m_time;
    std::vector<Text> m_lines;
    std::array<Text, 4> m_hats;
    Text m_radio;
    int m_mType = 0;
    std::vector<Text> m_boxes;
};

} // namespace zeph::test
