// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The workbench of the logical page: lines that are put together from words before they go into
// the joystick file.

#include "composer/generators/generators.h"
#include "text/text_lines.h"

#include <array>

namespace zeph {

/// CMDCompare, by index.
inline constexpr QStringView compareWords[] = {
    u"AND"_w, u"OR"_w, u"NOT"_w, u"("_w, u")"_w, u"BTN"_w, u"DEF"_w, u"*"_w,
};

/// SlashButton and CMDFlagSlash, by index.
inline constexpr QStringView slashButtons[] = {
    u"/U"_w, u"/M"_w, u"/D"_w, u"/I"_w, u"/O"_w, u"/P"_w, u"/R"_w, u"/H"_w, u"/A"_w, u"/T"_w,
};

/// FlagList_0 and FlagList_4: X1 to X48.
std::span<const QStringView> flagNames();
/// FlagList_1, and FlagList_5: a hat and its position together name a control.
inline constexpr QStringView flagHats[] = { u"H1", u"H2", u"H3", u"H4" };
inline constexpr QStringView flagHatPositions[] = {
    u"U", u"D", u"L", u"R", u"M", u"UL", u"DL", u"UR", u"DR",
};
/// FlagList_2.
inline constexpr QStringView flagButtons[] = {
    u"S1"_w, u"S2"_w, u"S3"_w, u"S4"_w, u"T1"_w, u"T2"_w,  u"T3"_w,  u"T4"_w,
    u"T5"_w, u"T6"_w, u"T7"_w, u"T8"_w, u"T9"_w, u"T10"_w, u"TG1"_w, u"TG2"_w,
};
/// FlagList_3.
inline constexpr QStringView flagTimers[] = { u"PULSE"_w, u"DELAY"_w };

/// What the lists and value boxes beside the CMDFlagInsert buttons show.
struct FlagFields {
    /// The selected items of FlagList_0 to FlagList_5.
    std::array<QString, 6> lists;
    /// The texts of TxtFlag_0 to TxtFlag_5.
    std::array<QString, 6> values;
};

/// What the button CMDFlagInsert with this index appends; empty for an index that appends nothing.
/// A value box without text gives brackets without the value.
QString flagTerm(int index, const FlagFields &fields);

/// The line with a word at its end, one blank apart unless the line is empty or ends in a blank.
QString withWord(const QString &line, QStringView word);

/// The workbench's 96 lines, one of which receives the words of the buttons. Indices are 0-based.
class LogicWorkbench
{
public:
    static constexpr int lineCount = 96;
    /// Lines on one tab of SSTabFlags.
    static constexpr int linesPerTab = 12;

    const QString &line(int index) const { return m_lines[size_t(index)]; }
    void setLine(int index, const QString &text) { m_lines[size_t(index)] = text; }

    /// The index of the selected line.
    int WhichLogicText() const { return m_selected; }
    void select(int index) { m_selected = index; }

    /// Appends a word to the selected line, as withWord() does.
    void append(QStringView word);

    /// All lines that are not empty, each with its line end, and one line end more. No value when
    /// all are empty.
    std::optional<Statement> allLines() const;
    /// The same with the selected line alone.
    std::optional<Statement> selectedLine() const;

    /// Replaces the lines by those of the text that begin "BTN X" or "DEF X", in exactly these
    /// letters, and selects the first; lines of the text beyond the last of the workbench are left
    /// out. An empty text changes nothing. The box to show when the text has no such line.
    std::optional<Refusal> readBack(QStringView joystickText);

private:
    std::array<QString, lineCount> m_lines;
    int m_selected = 0;
};

/// A statement on a flag, written in one line as the workbench holds it. Comments stay only at the
/// end. No value for any other text.
std::optional<QString> readLogicLine(QStringView statement);

} // namespace zeph
