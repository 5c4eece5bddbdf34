// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "language/reporter.h"
#include "language/scan.h"
#include "language/words.h"

namespace zeph::language {

namespace {

using Parts = QVarLengthArray<const Item *, 8>;

// The items of a branch outside all brackets.
Parts topLevel(const Source &source, const Branch &branch)
{
    Parts parts;
    for (int index = branch.items.first; index < branch.items.end;) {
        const Item &item = source.items[index];
        if (item.parent < 0)
            parts.append(&item);
        index = item.endItem;
    }
    return parts;
}

// Whether the branch holds the axis's type and bands: the dogfight switch and S3 choose between
// definitions, while any other modifier is followed by keys.
bool opensDefinition(const Branch &branch)
{
    for (int at = 0; at < branch.chain.size; ++at) {
        const int modifier = branch.chain.links[size_t(at)].modifier;
        const SlashLevel level = slashModifiers[size_t(modifier)].level;
        if (level != SlashLevel::Dogfight && level != SlashLevel::S3)
            return false;
    }
    return true;
}

// In the head of an axis a number is a number, even if a macro has its name.
std::optional<int> number(const Source &source, const Item &item)
{
    const bool isWord = item.kind == ItemKind::Number || item.kind == ItemKind::MacroUse;
    return isWord ? wholeNumber(source.at(item)) : std::nullopt;
}

std::optional<int> number(const Source &source, const Parts &parts, int index)
{
    return index < parts.size() ? number(source, *parts[index]) : std::nullopt;
}

// Borders are printed as whole percents. With a count that is a multiple of eight they can be half
// percents, which round to the even number, so that two neighbours can print alike.
bool mayPrintAlike(int border, int count)
{
    return border % 2 == 0 && count % 8 == 0;
}

void checkBorders(Reporter &reporter, const Item &group, int count)
{
    const Source &source = reporter.source();
    int borders = 0;
    int before = -1;
    for (int index = int(&group - source.items.constData()) + 1; index < group.endItem; ++index) {
        const Item &item = source.items[index];
        if (item.kind == ItemKind::Comma)
            continue;
        const std::optional<int> border = number(source, item);
        if (!border)
            return;
        const bool rises = *border > before || (*border == before && mayPrintAlike(before, count));
        if (*border < 0 || *border > lastPercent || !rises) {
            reporter.report(BandBorders, item.place,
                            u"The border %1 is out of order"_s.arg(source.at(item)));
            return;
        }
        before = *border;
        ++borders;
    }
    if (borders != count + 1)
        reporter.report(
            BandCount, group.place,
            u"%1 bands need %2 borders, and there are %3"_s.arg(count).arg(count + 1).arg(borders));
}

// Without an opening bracket a comma between borders is read as a key.
bool mayBeBorder(const Source &source, const Item &item)
{
    const QStringView text = source.at(item);
    return text == u"," || decimalNumber(text);
}

// The borders without their opening bracket are numbers up to a closing one. It may have been
// taken for a key, and is only reported here then. Returns whether it is there.
bool checkOpening(Reporter &reporter, const Parts &parts, qsizetype statementEnd)
{
    const Source &source = reporter.source();
    if (parts.size() < 3 || !decimalNumber(source.at(*parts[2])))
        return false;
    int next = 3;
    while (next < parts.size() && mayBeBorder(source, *parts[next]))
        ++next;
    if (next < parts.size() && source.at(*parts[next]) == u")") {
        reporter.report(StrayBracketCode, parts[next]->place, u"The bracket ) was never opened"_s);
        return true;
    }
    const qsizetype end = next < parts.size() ? parts[next]->place.position : statementEnd;
    return hasStrayClosing(source, parts[2]->place.position, end);
}

void checkBands(Reporter &reporter, const Parts &parts, qsizetype statementEnd)
{
    const std::optional<int> count = number(reporter.source(), parts, 1);
    if (!count)
        return;
    if (*count < 1 || *count > lastBandCount) {
        reporter.report(
            BandCount, parts[1]->place,
            u"The number of bands must be 1 to %1, not %2"_s.arg(lastBandCount).arg(*count));
        return;
    }
    const bool hasBorders = parts.size() > 2 && parts[2]->kind == ItemKind::Group;
    if (hasBorders && parts[2]->closed)
        checkBorders(reporter, *parts[2], *count);
    else if (!hasBorders && !checkOpening(reporter, parts, statementEnd))
        reporter.report(BandCount, parts[1]->place, u"The borders of the bands are missing"_s);
}

bool isSingleKey(const Item &item)
{
    return item.kind == ItemKind::Key || item.kind == ItemKind::Number
        || item.kind == ItemKind::MacroUse;
}

// Type, count and three keys (up, down, centre) make five parts. A SHF or an unknown word among
// them leaves the number of keys uncertain, so nothing is reported.
void checkCentre(Reporter &reporter, Parts parts)
{
    const Source &source = reporter.source();
    const auto size = parts.size();
    if (size > 2 && sameWord(source.at(*parts[size - 1]), u"FORCE_MACROS"_w))
        parts.resize(source.at(*parts[size - 2]) == u"-" ? size - 2 : size - 1);
    const std::optional<int> count = number(source, parts, 1);
    if (!count || *count % 2 == 0 || parts.size() != 5)
        return;
    if (std::all_of(parts.begin() + 2, parts.end(), [](const Item *i) { return isSingleKey(*i); }))
        reporter.report(OddBandsWithCentre, parts[1]->place,
                        u"The number of bands is odd, and there is a centre character"_s);
}

} // namespace

void checkDigitalAxis(Reporter &reporter, const JoystickStatement &statement)
{
    const Source &source = reporter.source();
    for (int index = statement.body.branches.first; index < statement.body.branches.end; ++index) {
        const Branch &branch = source.branches[index];
        if (!opensDefinition(branch))
            continue;
        const Parts parts = topLevel(source, branch);
        const std::optional<int> type = number(source, parts, 0);
        if (!type)
            continue;
        if (*type < 1 || *type > lastAxisType)
            reporter.report(UnknownAxisType, parts[0]->place,
                            u"There is no digital axis of type %1"_s.arg(*type));
        else if (*type == 1)
            checkCentre(reporter, parts);
        else if (*type >= 5)
            checkBands(reporter, parts, statement.place.end());
    }
}

} // namespace zeph::language
