// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/generators/digital_axis.h"
#include "composer/generators/parted_statement.h"

#include "language/scan.h"

namespace zeph {

using namespace language;

namespace {

// A range of parts.
struct Parts {
    const PartedStatement &all;
    int at = 0;
    int end = 0;

    bool isEmpty() const { return at >= end; }
    int size() const { return end - at; }
};

// Reads the axis, if there is one, the modifier and the type.
bool readHead(Parts &parts, DigitalAxisFields &fields)
{
    const StatementKind kind = parts.all.kind();
    if (kind != StatementKind::Axis && kind != StatementKind::Unknown)
        return false;
    fields.withoutAxis = kind == StatementKind::Unknown;
    if (!fields.withoutAxis)
        fields.axis = spelledAs(digitalAxes, parts.all.keyword()).value_or(QString());
    if (parts.all.slash(parts.at) >= 0) {
        fields.slash = indexIn(digitalSlashes, parts.all.text(parts.at));
        ++parts.at;
    }
    if (parts.isEmpty() || fields.slash < 0)
        return false;
    fields.type = wholeNumber(parts.all.text(parts.at)).value_or(0);
    ++parts.at;
    return fields.type >= 1 && fields.type <= lastAxisType;
}

// The option is at the end, after a dash.
void readForceMacros(Parts &parts, DigitalAxisFields &fields)
{
    const auto takeLast = [&parts](QStringView word) {
        const bool takes = !parts.isEmpty() && parts.all.isWord(parts.end - 1, word);
        parts.end -= takes ? 1 : 0;
        return takes;
    };
    fields.forceMacros = takeLast(u"FORCE_MACROS"_w);
    if (fields.forceMacros)
        takeLast(u"-");
}

bool readCount(Parts &parts, DigitalAxisFields &fields)
{
    if (parts.isEmpty())
        return false;
    fields.count = parts.all.text(parts.at).toString();
    ++parts.at;
    return true;
}

// Whether the next part belongs to the same key: it follows a modifier, or no blank is between
// them, as in "[Fire]".
bool goesOn(const PartedStatement &parts, int part)
{
    const Item &item = parts[part];
    return item.kind == ItemKind::ModifierKey || item.kind == ItemKind::Slash
        || item.place.end() == parts[part + 1].place.position;
}

using Texts = QList<QStringView>;

// Each key with its modifiers, a group or a call is one.
Texts keysByModel(const Parts &parts)
{
    Texts keys;
    for (int first = parts.at; first < parts.end;) {
        int last = first;
        while (last + 1 < parts.end && goesOn(parts.all, last))
            ++last;
        keys.append(parts.all.text(first, last + 1));
        first = last + 1;
    }
    return keys;
}

Texts wordsIn(QStringView text)
{
    Texts words;
    for (qsizetype at = skipBlanks(text, 0); at < text.size(); at = skipBlanks(text, at)) {
        const qsizetype first = at;
        while (at < text.size() && !isBlank(text[at]))
            ++at;
        words.append(text.sliced(first, at - first));
    }
    return words;
}

// Brackets are keys too, and only the modifiers SHF, CTL and the like belong to what follows.
Texts keysWithModifiers(const Texts &words)
{
    Texts keys;
    bool isOpen = false;
    for (const QStringView word : words) {
        if (isOpen)
            keys.last() = QStringView(keys.last().begin(), word.end());
        else
            keys.append(word);
        isOpen = rowOf(word).is(ModifierKeyRole);
    }
    return keys;
}

QStringList upTo(int most, const Texts &keys)
{
    QStringList result;
    for (int index = 0; index < std::min<qsizetype>(keys.size(), most); ++index) {
        const QStringView last = index == most - 1 ? keys.last() : keys[index];
        result.append(QStringView(keys[index].begin(), last.end()).toString());
    }
    return result;
}

// At least and at most so many keys, the last one with the rest; fewer if there are no more. A
// bracket and a modifier can be keys themselves: "( ^ )" and "LSHF ^ RSHF" are three. So the first
// way to part the text that gives the right number is taken.
QStringList keysOf(const Parts &parts, int least, int most)
{
    const Texts words = wordsIn(parts.all.text(parts.at, parts.end));
    const std::array ways{ keysByModel(parts), keysWithModifiers(words), words };
    const auto isRight = [&](const Texts &keys) {
        return keys.size() >= least && keys.size() <= most;
    };
    auto way = std::ranges::find_if(ways, isRight);
    if (way == ways.end())
        way = std::ranges::find_if(ways, [&](const Texts &keys) { return keys.size() > most; });
    return upTo(most, way == ways.end() ? ways.front() : *way);
}

bool readKeys(const Parts &parts, DigitalAxisFields &fields, int least)
{
    const QStringList keys = keysOf(parts, least, int(fields.keys.size()));
    if (keys.size() < least)
        return false;
    std::ranges::copy(keys, fields.keys.begin());
    return true;
}

std::optional<Bands> readBorders(Parts &parts, int type)
{
    const auto arguments = parts.size() < 2 ? std::nullopt : parts.all.groupArguments(parts.at + 1);
    if (!arguments)
        return {};
    QList<int> percents;
    for (const Argument &argument : *arguments) {
        for (const QStringView border : wordsIn(argument.text)) {
            const std::optional<int> percent = wholeNumber(border);
            if (!percent)
                return {};
            percents.append(*percent);
        }
    }
    const std::optional<int> count = wholeNumber(parts.all.text(parts.at));
    if (!count || percents.size() != *count + 1)
        return {};
    parts.at += 2;
    return Bands::withBorders(type, percents);
}

bool readBands(Parts &parts, DigitalAxisFields &fields)
{
    std::optional<Bands> bands = readBorders(parts, fields.type);
    if (!bands)
        return false;
    const bool isStepped = fields.type == 6;
    const int most = isStepped && !bands->takesCentre() ? Bands::centre : bands->macros();
    const QStringList keys = keysOf(parts, isStepped ? Bands::centre : most, most);
    for (int index = 0; index < keys.size(); ++index) {
        const bool isNull = keys[index] == u"^" && !(isStepped && index == Bands::centre);
        bands->setMacro(index, isNull ? QString() : keys[index]);
    }
    fields.bands = *bands;
    return true;
}

bool readSequence(const Parts &parts, DigitalAxisFields &fields)
{
    fields.keys[0] = parts.all.text(parts.at, parts.end).toString();
    return !fields.keys[0].isEmpty();
}

} // namespace

std::optional<DigitalAxisFields> readDigitalAxis(QStringView statement)
{
    const std::optional<PartedStatement> all = PartedStatement::of(statement);
    if (!all || statementHalves(statement).size() != 1)
        return {};
    Parts parts{ *all, 0, all->size() };
    DigitalAxisFields fields;
    if (!readHead(parts, fields))
        return {};
    const bool takesForceMacros = fields.type != 3 && fields.type != 4;
    if (takesForceMacros)
        readForceMacros(parts, fields);
    bool isRead = true;
    switch (fields.type) {
    case 1:
        isRead = readCount(parts, fields) && readKeys(parts, fields, 2);
        break;
    case 2:
        isRead = readCount(parts, fields) && readSequence(parts, fields);
        break;
    case 3:
        isRead = readKeys(parts, fields, 3);
        break;
    case 4:
        isRead = readCount(parts, fields) && readKeys(parts, fields, 3);
        break;
    default:
        isRead = readBands(parts, fields);
    }
    return isRead ? std::optional(fields) : std::nullopt;
}

} // namespace zeph
