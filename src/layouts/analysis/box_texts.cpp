// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/analysis/box_texts.h"

#include "text/insert_blocks.h"
#include "text/mouse_types.h"

#include <iterator>

namespace zeph {

namespace {

/// What fills a box after its heading.
enum class BoxSource : quint8 {
    Statements,
    // Statements, unless a USE line gives the controls another task.
    Hat1,
    Hat2,
    Hat3,
    Hat4,
    Radio,
    MouseT1,
    MouseT6,
    // The sheet's captions.
    Path,
    Time,
    Pilot ///< left to the pilot
};

/// One call of FillTextBox.
struct Search {
    QString words;
    QString prefix;
};

struct BoxRow {
    QString heading;
    BoxSource source = BoxSource::Statements;
    std::vector<Search> searches = {};
    QString cleared = {}; ///< the text after all boxes have been cleared
    QString status = {}; ///< told before the box is filled; empty for none
};

using BoxRows = std::vector<BoxRow>;

void addHats(BoxRows &rows)
{
    static const std::pair<QString, QString> directions[] = {
        { u"U"_s, u"U:  "_s },  { u"L"_s, u"L:  "_s },  { u"R"_s, u"R:  "_s },
        { u"D"_s, u"D:  "_s },  { u"M"_s, u"M:  "_s },  { u"UL"_s, u"UL: "_s },
        { u"DL"_s, u"DL: "_s }, { u"UR"_s, u"UR: "_s }, { u"DR"_s, u"DR: "_s },
    };
    QString status = u" Extracting hats "_s;
    for (int hat = 0; hat < 4; ++hat) {
        const QString number = QString::number(hat + 1);
        status += u"..."_s;
        BoxRow row{ .heading = u"Hat "_s + number,
                    .source = BoxSource(int(BoxSource::Hat1) + hat),
                    .status = status };
        for (const auto &[direction, prefix] : directions) {
            row.searches.push_back({ u"BTN H"_s + number + direction, prefix });
        }
        rows.push_back(row);
    }
}

/// A box whose heading is also what is searched for.
BoxRow controlRow(const QString &words, int blanks, BoxSource source = BoxSource::Statements)
{
    return { .heading = words, .source = source, .searches = { { words, QString(blanks, u' ') } } };
}

BoxRow clearedTo(const QString &text, BoxRow row)
{
    row.cleared = text;
    return row;
}

BoxRow after(const QString &status, BoxRow row)
{
    row.status = status;
    return row;
}

/// The boxes that end both sheets.
void addCaptions(BoxRows &rows, const QString &status)
{
    rows.push_back({ .heading = u"Sim: "_s, .cleared = u"Sim:"_s, .status = status });
    rows.push_back({ .heading = u"File: "_s, .source = BoxSource::Path, .cleared = u"File:"_s });
    rows.push_back({ .heading = u"Date: "_s, .source = BoxSource::Time, .cleared = u"Date:"_s });
    for (const QString &caption : { u"Custom 1:"_s, u"Custom 2:"_s, u"Custom 3:"_s }) {
        rows.push_back({ .heading = {}, .source = BoxSource::Pilot, .cleared = caption });
    }
}

BoxRows joystickRows()
{
    BoxRows rows;
    addHats(rows);
    rows.push_back(after(u" Extracting buttons: ..."_s, controlRow(u"BTN S1"_s, 6)));
    rows.push_back(controlRow(u"BTN S2"_s, 6));
    rows.push_back(controlRow(u"BTN S3"_s, 6));
    rows.push_back(after(u" Extracting buttons: ......"_s, controlRow(u"BTN S4"_s, 6)));
    rows.push_back(
        { .heading = u"Triggers"_s,
          .searches = { { u"BTN TG1"_s, u"TG1    "_s }, { u"BTN TG2"_s, u"TG2    "_s } } });
    rows.push_back(clearedTo(u"JoyX"_s, controlRow(u"JOYX"_s, 5)));
    rows.push_back(clearedTo(u"JoyY"_s, controlRow(u"JOYY"_s, 4)));
    addCaptions(rows, u" Extracting buttons: ..........."_s);
    return rows;
}

/// The blank after T1 to T9 keeps "BTN T1" from finding T10.
BoxRows throttleRows()
{
    using enum BoxSource;
    BoxRows rows;
    rows.push_back(after(u" Extracting statements ..."_s, controlRow(u"BTN T1 "_s, 7, MouseT1)));
    for (const QString &radio : { u"BTN T2 "_s, u"BTN T3 "_s, u"BTN T4 "_s, u"BTN T5 "_s }) {
        rows.push_back(controlRow(radio, 7, Radio));
    }
    rows.push_back(controlRow(u"BTN T6 "_s, 7, MouseT6));
    for (const QString &button : { u"BTN T7 "_s, u"BTN T8 "_s, u"BTN T9 "_s, u"BTN T10"_s }) {
        rows.push_back(controlRow(button, 7));
    }
    for (const auto &[axis, blanks] : { std::pair(u"THR"_s, 3),
                                        { u"RDDR"_s, 4 },
                                        { u"ANT"_s, 3 },
                                        { u"RNG"_s, 3 },
                                        { u"MIX"_s, 3 },
                                        { u"MIY"_s, 3 },
                                        { u"LBRK"_s, 4 },
                                        { u"RBRK"_s, 4 } }) {
        rows.push_back(controlRow(axis, blanks));
    }
    addCaptions(rows, {});
    return rows;
}

const BoxRows &rowsOf(SheetKind kind)
{
    static const BoxRows joystick = joystickRows();
    static const BoxRows throttle = throttleRows();
    static const BoxRows none;
    switch (kind) {
    case SheetKind::Joystick:
        return joystick;
    case SheetKind::Throttle:
        return throttle;
    case SheetKind::Custom:
        break;
    }
    return none;
}

std::optional<QString> unlessEmpty(const QString &text)
{
    return text.isEmpty() ? std::nullopt : std::optional(text);
}

/// Null for a number that is no mouse type.
const MouseType *mouseTypeOf(int number)
{
    const bool isOne = number >= 1 && number <= int(std::size(mouseTypes));
    return isOne ? &mouseTypes[number - 1] : nullptr;
}

std::optional<QString> taskOf(MouseButton button)
{
    switch (button) {
    case MouseButton::Left:
        return u" Left mouse button"_s;
    case MouseButton::Right:
        return u" Right mouse button"_s;
    case MouseButton::None:
        break;
    }
    return std::nullopt;
}

/// A number that is no mouse type leaves T1 without a text.
std::optional<QString> taskOfT1(int number)
{
    if (const MouseType *type = mouseTypeOf(number)) {
        return taskOf(type->t1);
    }
    return number == 0 ? std::nullopt : std::optional(QString());
}

std::optional<QString> taskOfT6(int number)
{
    const MouseType *type = mouseTypeOf(number);
    return type ? taskOf(type->t6) : std::nullopt;
}

/// What USE lines give a box instead of its statements.
std::optional<QString> givenByUse(BoxSource source, const AnalysedFile &file)
{
    using enum BoxSource;
    switch (source) {
    case Hat1:
    case Hat2:
    case Hat3:
    case Hat4:
        return unlessEmpty(file.hats[size_t(source) - size_t(Hat1)]);
    case Radio:
        return unlessEmpty(file.radio);
    case MouseT1:
        return taskOfT1(file.mouseType);
    case MouseT6:
        return taskOfT6(file.mouseType);
    default:
        return std::nullopt;
    }
}

QString textOf(const BoxRow &row, const AnalysedFile &file, const FileCaption &caption)
{
    switch (row.source) {
    case BoxSource::Path:
        return row.heading + caption.path;
    case BoxSource::Time:
        return row.heading + stampText(caption.time);
    case BoxSource::Pilot:
        return row.cleared;
    default:
        break;
    }
    QString text = row.heading;
    if (const std::optional<QString> given = givenByUse(row.source, file)) {
        return given->isEmpty() ? text : text + u'\n' + *given;
    }
    for (const Search &search : row.searches) {
        FillTextBox(text, file, search.words, search.prefix);
    }
    return text;
}

} // namespace

QStringList AnalyseJoystickFile(SheetKind kind, const AnalysedFile &file,
                                const FileCaption &caption)
{
    QStringList texts;
    for (const BoxRow &row : rowsOf(kind)) {
        texts.append(textOf(row, file, caption));
    }
    return texts;
}

std::optional<QString> AnalyseTextbox(SheetKind kind, int box, const AnalysedFile &file,
                                      const FileCaption &caption)
{
    if (box < 0 || box >= analysedBoxCount(kind)) {
        return std::nullopt;
    }
    return textOf(rowsOf(kind)[size_t(box)], file, caption);
}

int analysedBoxCount(SheetKind kind)
{
    return int(std::ranges::count_if(
        rowsOf(kind), [](const BoxRow &row) { return row.source != BoxSource::Pilot; }));
}

QStringList ClearAllTextboxes(SheetKind kind)
{
    QStringList texts;
    for (const BoxRow &row : rowsOf(kind)) {
        texts.append(row.cleared);
    }
    return texts;
}

QStringList extractionStatuses()
{
    return { u" Analysing joystick file ... please wait ...."_s,
             u" Hang on - this could take time ..."_s };
}

QStringList analysisStatuses(SheetKind kind)
{
    QStringList statuses;
    for (const BoxRow &row : rowsOf(kind)) {
        if (!row.status.isEmpty()) {
            statuses.append(row.status);
        }
    }
    if (!statuses.isEmpty()) {
        statuses.append(u" All definitions extracted"_s);
    }
    return statuses;
}

} // namespace zeph
