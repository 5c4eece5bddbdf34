// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/analysis/joystick_lines.h"

#include "platform/core/units.h"
#include "text/alignment.h"

#include <algorithm>

namespace zeph {

namespace {

constexpr std::array<QStringView, 4> hatUses = { u"USE HAT1 AS"_w, u"USE HAT2 AS"_w,
                                                 u"USE HAT3 AS"_w, u"USE HAT4 AS"_w };
constexpr QStringView radioUse = u"USE RADIOSWITCH AS"_w;
constexpr QStringView mouseUse = u"USE MTYPE A"_w;

/// In exact case, and even where the keyword starts a longer word.
bool startsStatement(QStringView line)
{
    constexpr auto axes = language::wordsOf<language::AxisRole>();
    return line.startsWith(u"BTN"_w) || line.startsWith(u"CURVE"_w)
        || std::ranges::any_of(axes, [line](QStringView axis) { return line.startsWith(axis); });
}

bool isDropped(QStringView line)
{
    return line.isEmpty() || line.startsWith(u"Rem"_w, Qt::CaseInsensitive)
        || line.startsWith(u"USE"_w) || line.startsWith(u"DISABLE"_w)
        || line.startsWith(u"DEF X"_w);
}

/// The whole number of a mouse type. What is no mouse type stays none, however large.
int mouseTypeOf(QStringView text)
{
    constexpr double limit = language::lastMouseType + 1;
    return int(std::clamp(roundHalfEven(leadingNumber(text)), -1.0, limit));
}

/// Notes what a USE line says of a hat, the radio switch or the mouse. The last line wins.
void noteUse(AnalysedFile &file, QStringView line)
{
    for (size_t hat = 0; hat < hatUses.size(); ++hat) {
        if (line.startsWith(hatUses[hat])) {
            file.hats[hat] = line.sliced(hatUses[hat].size()).toString();
        }
    }
    if (line.startsWith(radioUse)) {
        file.radio = line.sliced(radioUse.size()).toString();
    }
    if (line.startsWith(mouseUse)) {
        file.mouseType = mouseTypeOf(line.sliced(mouseUse.size()));
    }
}

} // namespace

std::optional<AnalysedFile> AnalyseAndExtract(QStringView joystickText)
{
    if (joystickText.isEmpty()) {
        return std::nullopt;
    }
    AnalysedFile file;
    file.aligned = AlignForLayouts(joystickText);
    file.lines.reserve(file.aligned.size());
    forEachLine(file.aligned, [&file](QStringView line) {
        noteUse(file, line);
        if (isDropped(line)) {
            return;
        }
        if (startsStatement(line)) {
            file.statements.push_back({ file.lines.size(), 0 });
        }
        file.lines += line;
        file.lines += u'\n';
        if (!file.statements.empty()) {
            LineRange &statement = file.statements.back();
            statement.length = file.lines.size() - 1 - statement.start;
        }
    });
    return file;
}

void FillTextBox(QString &box, const AnalysedFile &file, QStringView search, QStringView prefix)
{
    const QStringView lines(file.lines);
    const auto found = std::ranges::find_if(file.statements, [&](LineRange each) {
        return lines.sliced(each.start, each.length).startsWith(search);
    });
    if (found == file.statements.end()) {
        return;
    }
    if (!box.isEmpty() && !box.endsWith(u'\n')) {
        box += u'\n';
    }
    QStringView statement = lines.sliced(found->start, found->length);
    if (!prefix.isEmpty()) {
        box += prefix;
        box += u' ';
        statement = statement.sliced(search.size());
    }
    box += statement;
}

} // namespace zeph
