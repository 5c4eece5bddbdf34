// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/quickview/assignments.h"

#include "text/mouse_types.h"

#include <limits>

namespace zeph {

namespace {

constexpr qsizetype modifierLength = 3; // with the blank after it

qsizetype indexOfAnyCase(QStringView text, QStringView part, qsizetype from = 0)
{
    return text.indexOf(part, from, Qt::CaseInsensitive);
}

bool beginsAnyCase(QStringView text, QStringView start)
{
    return text.startsWith(start, Qt::CaseInsensitive);
}

QString stored(QStringView text)
{
    return RemoveUMDIOmodifiers(text).trimmed().toString();
}

void assign(ColumnTexts &columns, int base, QStringView modeText)
{
    const ShiftTexts texts = IndividualArrayAssign(modeText);
    if (texts.held) {
        columns[size_t(base + heldIn - 1)] = texts.held;
    }
    if (texts.out) {
        columns[size_t(base + letOut - 1)] = texts.out;
    }
}

/// The base of the mode that a continuation line begins; no value for other lines.
std::optional<int> modeBegunBy(QStringView line)
{
    if (beginsAnyCase(line, u"/M"_w)) {
        return middleBase;
    }
    return beginsAnyCase(line, u"/D"_w) ? std::optional(downBase) : std::nullopt;
}

/// A value of the digest that is no control's record. Any line of the digest can hold one; the last
/// wins.
struct UseValue {
    QString text;
    int line = 0;
};

std::optional<UseValue> lastValue(std::span<const DigestLine> lines, QStringView label)
{
    const auto last = std::find_if(lines.rbegin(), lines.rend(), [label](const DigestLine &line) {
        return line.text.startsWith(label);
    });
    if (last == lines.rend()) {
        return std::nullopt;
    }
    return UseValue{ last->text.sliced(label.size()).trimmed().toString(), last->source };
}

void setInAllColumns(Assignments &table, int row, const QString &text, int line)
{
    for (int column = 1; column <= columnCount; ++column) {
        table.at(row, column) = { text, line, true };
    }
}

/// A hat's role, known by its first two letters; any other value as it was typed.
QString hatRole(const QString &value)
{
    constexpr std::array roles = { u"POV"_w, u"MOUSE"_w, u"ARROWKEYS"_w, u"KEYPAD"_w };
    for (const QStringView role : roles) {
        if (beginsAnyCase(value, role.first(2))) {
            return role.toString();
        }
    }
    return value;
}

void setHats(Assignments &table, std::span<const DigestLine> lines)
{
    constexpr std::array labels = { u"Hat1:", u"Hat2:", u"Hat3:", u"Hat4:" };
    static_assert(labels.size() == hatCount);
    for (int hat = 0; hat < hatCount; ++hat) {
        const auto value = lastValue(lines, labels[size_t(hat)]);
        if (!value || value->text.isEmpty()) {
            continue;
        }
        const int first = firstHatRow + hat * hatRowCount;
        for (const int direction : { 0, 2, 4, 6 }) {
            setInAllColumns(table, first + direction, hatRole(value->text), value->line);
        }
    }
}

void setRadio(Assignments &table, std::span<const DigestLine> lines)
{
    const auto value = lastValue(lines, u"Radio:");
    if (!value || value->text.isEmpty()) {
        return;
    }
    for (int row = rowOfControl(u"T2"_w); row <= rowOfControl(u"T5"_w); ++row) {
        setInAllColumns(table, row, value->text, value->line);
    }
}

/// The number that a text begins with, held to what an int can be; 0 without one.
int numberAtStart(QStringView text)
{
    int number = 0;
    for (const QChar each : text) {
        if (each < u'0' || each > u'9') {
            break;
        }
        constexpr int most = (std::numeric_limits<int>::max() - 9) / 10;
        number = std::min(number, most) * 10 + (each.unicode() - u'0');
    }
    return number;
}

void setMouseButton(Assignments &table, QStringView control, MouseButton button, int line)
{
    if (button != MouseButton::None) {
        const QString text =
            button == MouseButton::Left ? u"Left mouse button"_s : u"Right mouse button"_s;
        setInAllColumns(table, rowOfControl(control), text, line);
    }
}

void setMouse(Assignments &table, std::span<const DigestLine> lines)
{
    const auto value = lastValue(lines, u"MType: ");
    table.mouseType = value ? numberAtStart(value->text) : 0;
    if (table.mouseType >= 1 && table.mouseType <= int(std::size(mouseTypes))) {
        const MouseType &type = mouseTypes[table.mouseType - 1];
        setMouseButton(table, u"T1"_w, type.t1, value->line);
        setMouseButton(table, u"T6"_w, type.t6, value->line);
    }
}

} // namespace

QString Assignments::microstickTitle() const
{
    return mouseType == 0 ? u"Microstick"_s : u"  Mouse"_s;
}

QStringView RemoveUMDIOmodifiers(QStringView text)
{
    constexpr std::array modifiers = { u"/U"_w, u"/M"_w, u"/D"_w, u"/I"_w, u"/O"_w };
    const bool found = std::ranges::any_of(
        modifiers, [text](QStringView modifier) { return beginsAnyCase(text, modifier); });
    return found ? text.sliced(std::min(modifierLength, text.size())) : text;
}

ShiftTexts IndividualArrayAssign(QStringView modeText)
{
    const qsizetype held = indexOfAnyCase(modeText, u"/I ");
    // The /O that ends the text of /I; without one, an /O before it counts.
    qsizetype out = indexOfAnyCase(modeText, u"/O ", std::max<qsizetype>(held, 0));
    const qsizetype heldEnd = out < 0 ? modeText.size() : out;
    if (out < 0) {
        out = indexOfAnyCase(modeText, u"/O ");
    }
    if (held < 0 && out < 0) {
        const QString whole = stored(modeText);
        return { whole, whole };
    }
    ShiftTexts texts;
    if (held >= 0) {
        texts.held = stored(modeText.first(heldEnd).sliced(held + modifierLength));
    }
    if (out >= 0) {
        texts.out = stored(modeText.sliced(out + modifierLength));
    }
    return texts;
}

ColumnTexts TestForUMDIO(const ControlRecord &record)
{
    ColumnTexts columns;
    const QStringView first = record.firstText();
    const qsizetype up = indexOfAnyCase(first, u"/U ");
    const bool hasModes = up >= 0;
    QString text = (hasModes ? first.sliced(up + modifierLength) : first).toString();
    int base = upBase;
    for (const DigestLine &line : record.lines.subspan(1)) {
        const std::optional<int> next = modeBegunBy(line.text);
        if (next && !hasModes) {
            break;
        }
        if (next) {
            assign(columns, base, text);
            text.clear();
            base = *next;
        }
        text += line.text;
    }
    assign(columns, base, text);
    if (!hasModes) {
        assign(columns, middleBase, text);
        assign(columns, downBase, text);
    }
    return columns;
}

Assignments AssignToArray(const Digest &digest)
{
    const std::vector<DigestLine> lines = linesOf(digest);
    Assignments table;
    for (const ControlRecord &record : controlRecords(lines)) {
        ColumnTexts columns = TestForUMDIO(record);
        for (int column = 1; column <= columnCount; ++column) {
            if (std::optional<QString> &text = columns[size_t(column - 1)]) {
                table.at(record.row, column) = { std::move(*text), record.firstSource(), false };
            }
        }
    }
    setHats(table, lines);
    setRadio(table, lines);
    setMouse(table, lines);
    return table;
}

} // namespace zeph
