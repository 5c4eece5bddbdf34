// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The aligners once more, step by step and slowly, over plain bytes with 1-based columns: what the
// fast ones have to agree with.

#include <algorithm>
#include <cctype>
#include <sstream>
#include <string>
#include <vector>

namespace zeph::test {

struct AlignmentTwin {
    using Line = std::string;

    static int inStr(const Line &line, const char *word)
    {
        for (size_t i = 0; i + Line(word).size() <= line.size(); ++i) {
            if (line.substr(i, Line(word).size()) == word) {
                return int(i) + 1;
            }
        }
        return 0;
    }
    static Line lower(Line line)
    {
        for (char &each : line) {
            each = char(std::tolower(each));
        }
        return line;
    }
    static Line upper(Line line)
    {
        for (char &each : line) {
            each = char(std::toupper(each));
        }
        return line;
    }
    static Line left(const Line &line, size_t count) { return line.substr(0, count); }
    static bool begins(const Line &line, const Line &start)
    {
        return left(line, start.size()) == start;
    }
    static std::vector<Line> read(const Line &text)
    {
        std::istringstream in(text);
        std::vector<Line> lines;
        for (Line line; std::getline(in, line);) {
            lines.push_back(line);
        }
        return lines;
    }
    static Line tidy(Line line)
    {
        for (char &each : line) {
            if (each == '\t') {
                each = ' ';
            }
        }
        while (!line.empty() && line[0] == ' ') {
            line.erase(0, 1);
        }
        while (inStr(line, "  ") > 0) {
            line.erase(size_t(inStr(line, "  ")) - 1, 1);
        }
        return line;
    }
    static bool isStatement(const Line &line)
    {
        for (const char *word : { "btn", "curve", "joyx", "joyy", "thr", "rddr", "lbrk", "rbrk",
                                  "mix", "miy", "ant", "rng" }) {
            if (begins(lower(line), word)) {
                return true;
            }
        }
        return false;
    }
    static Line blanks(int column) { return Line(size_t(std::min(column - 1, 69)), ' '); }

    static Line alignSlashes(const Line &text, bool indents, int spaces)
    {
        Line out;
        Line reference;
        int dogfight = 0;
        int s3 = 0;
        int action = 0;
        int toggle = 0;
        for (Line line : read(text)) {
            if (lower(left(line, 3)) == "rem" || left(line, 1) == "~" || line.empty()) {
                out += line + "\n";
                continue;
            }
            line = tidy(line);
            int indent = 0;
            if (isStatement(line)) {
                dogfight = inStr(line, "/U");
                if (dogfight == 0) {
                    dogfight = inStr(line, "/M");
                }
                if (dogfight == 0) {
                    dogfight = inStr(line, "/D");
                }
                s3 = inStr(line, "/I") > 0 ? inStr(line, "/I") : inStr(line, "/O");
                action = inStr(line, "/P") > 0 ? inStr(line, "/P") : inStr(line, "/R");
                toggle = inStr(line, "/T");
            } else {
                const Line two = left(line, 2);
                const auto look = [&](const char *own, const char *other, int otherwise) {
                    int column = inStr(reference, own);
                    if (column == 0) {
                        column = inStr(reference, other);
                    }
                    return column == 0 ? otherwise : column;
                };
                if (two == "/U" || two == "/M" || two == "/D") {
                    indent = dogfight;
                }
                if (two == "/I") {
                    indent = look("/I", "/O", s3);
                }
                if (two == "/O") {
                    indent = look("/O", "/I", s3);
                }
                if (two == "/P") {
                    indent = look("/P", "/R", action);
                }
                if (two == "/R") {
                    indent = look("/R", "/P", action);
                }
                if (two == "/T") {
                    indent = look("/T", "/T", toggle);
                }
            }
            if (indent > 0) {
                line = blanks(indent) + line;
            }
            if (inStr(line, "/") > 0) {
                reference = line;
            }
            if (indents && line.size() >= 3 && lower(left(line, 3)) != "rem") {
                line = Line(size_t(spaces), ' ') + line;
            }
            out += line + "\n";
        }
        return out;
    }

    static Line alignForLayouts(const Line &text)
    {
        Line out;
        Line last;
        int u = 0;
        int i = 0;
        int p = 0;
        int t = 0;
        const auto take = [](int &column, const Line &line, std::vector<const char *> words) {
            for (const char *word : words) {
                if (inStr(line, word) > 0) {
                    column = inStr(line, word);
                    return;
                }
            }
        };
        for (Line line : read(text)) {
            if (lower(left(line, 3)) == "rem" || left(line, 1) == "~") {
                out += line + "\n";
                continue;
            }
            line = tidy(line);
            int indent = 0;
            if (isStatement(line)) {
                take(u, line, { "/U", "/M", "/D" });
                take(i, line, { "/I", "/O" });
                take(p, line, { "/P", "/R" });
                take(t, line, { "/T" });
            } else {
                if (inStr(line, "/U") > 0 || inStr(line, "/M") > 0 || inStr(line, "/D") > 0) {
                    indent = u;
                }
                const auto rule = [&](const char *begin, const char *above, int otherwise) {
                    if (begins(line, begin)) {
                        indent = inStr(last, above) > 0 ? inStr(last, above) : otherwise;
                    }
                };
                rule("/I", "/O", i);
                rule("/O", "/I", i);
                rule("/P", "/R", p);
                rule("/R", "/P", p);
                rule("/T", "/T", t);
            }
            if (indent > 0) {
                line = blanks(indent) + line;
            }
            if (inStr(line, "/") > 0) {
                last = line;
            }
            out += line + "\n";
        }
        return out;
    }

    static Line leftAlignAnalyse(const Line &text)
    {
        Line out;
        const auto record = [&out](const Line &what) {
            out += "*** \n" + what + " \n";
        };
        const auto cut = [](const Line &line) {
            const int rem = inStr(upper(line), "REM ");
            return rem > 0 ? left(line, size_t(rem) - 1) : line;
        };
        for (Line line : read(text)) {
            if (line.size() < 3) {
                continue;
            }
            line = tidy(line);
            const Line folded = upper(line);
            if (begins(folded, "REM") || begins(folded, "DISABLE")) {
                continue;
            }
            if (begins(folded, "USE")) {
                for (const char *hat : { "1", "2", "3", "4" }) {
                    if (begins(folded, Line("USE HAT") + hat + " AS") && line.size() > 11) {
                        record(Line("Hat") + hat + ":" + line.substr(11));
                    }
                }
                if (begins(folded, "USE RADIOSWITCH AS") && line.size() > 18) {
                    record("Radio:" + line.substr(18));
                }
                if (begins(folded, "USE MTYPE A")) {
                    Line number;
                    for (size_t at = 11; at < line.size() && std::isdigit(line[at]); ++at) {
                        number += line[at];
                    }
                    if (!number.empty()) {
                        record("MType: " + number);
                    }
                }
                continue;
            }
            if (begins(folded, "DEF") || begins(folded, "BTN X") || line.size() < 2) {
                continue;
            }
            if (begins(folded, "BTN ") && line.size() > 4) {
                record(cut(line.substr(4)));
                continue;
            }
            bool opens = false;
            for (const char *word : { "JOYX ", "JOYY ", "THR ", "ANT ", "RNG ", "RDDR ", "LBRK ",
                                      "RBRK ", "MIX ", "MIY ", "CURVE " }) {
                opens = opens || (begins(folded, word) && line.size() > Line(word).size());
            }
            if (opens) {
                record(cut(line));
            } else {
                out += cut(line) + " \n";
            }
        }
        return out + "*** \nEND \n";
    }
};

} // namespace zeph::test
