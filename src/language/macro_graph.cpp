// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "language/macro_graph.h"

#include "language/reporter.h"

#include <vector>

namespace zeph::language {

namespace {

constexpr qint64 memoryBytes = 65536;
constexpr qint64 largestSize = 1'000'000'000;

constexpr int statementBytes = 4;
constexpr int branchBytes = 2;
constexpr int keyBytes = 2;
constexpr int callBytes = 3;

bool isCertainUse(const Item &item)
{
    return item.kind == ItemKind::MacroUse && !item.alsoKey && item.reference >= 0;
}

enum class Visit : quint8 { Not, Open, Done };

struct Step {
    int macro;
    int item;
};

int bytesOf(const Item &item)
{
    switch (item.kind) {
    case ItemKind::Call:
        return callBytes;
    case ItemKind::Comma:
    case ItemKind::Slash:
    case ItemKind::Group:
        return 0;
    default:
        return keyBytes;
    }
}

qint64 bodySize(const Source &source, const Body &body, const std::vector<qint64> &macroSizes)
{
    qint64 size = qint64(body.branches.size()) * branchBytes;
    for (int index = body.items.first; index < body.items.end; ++index) {
        const Item &item = source.items[index];
        size += isCertainUse(item) ? macroSizes[size_t(item.reference)] : bytesOf(item);
        size = std::min(size, largestSize);
    }
    return size;
}

} // namespace

MacroOrder orderMacros(const MacroFile &macro)
{
    MacroOrder result;
    std::vector<Visit> visits(size_t(macro.macros.size()), Visit::Not);
    std::vector<Step> path;
    const auto enter = [&](int index) {
        visits[size_t(index)] = Visit::Open;
        path.push_back({ index, macro.macros[index].body.items.first });
    };
    for (int start = 0; start < int(macro.macros.size()); ++start) {
        if (visits[size_t(start)] == Visit::Not)
            enter(start);
        while (!path.empty()) {
            Step &step = path.back();
            if (step.item >= macro.macros[step.macro].body.items.end) {
                visits[size_t(step.macro)] = Visit::Done;
                result.order.append(step.macro);
                path.pop_back();
                continue;
            }
            const int at = step.item++;
            const Item &item = macro.items[at];
            if (!isCertainUse(item))
                continue;
            if (visits[size_t(item.reference)] == Visit::Open)
                result.cycles.append({ step.macro, at });
            else if (visits[size_t(item.reference)] == Visit::Not)
                enter(item.reference);
        }
    }
    return result;
}

void checkMacroCycles(Reporter &reporter, const MacroFile &macro)
{
    for (const MacroCycle &cycle : orderMacros(macro).cycles) {
        const Item &item = macro.items[cycle.item];
        reporter.report(InMacroFile, item.place,
                        u"The macro %1 calls itself"_s.arg(macro.at(item)));
    }
}

qint64 compiledSize(const FilePair &pair)
{
    std::vector<qint64> macroSizes(size_t(pair.macro.macros.size()), 0);
    for (const int index : orderMacros(pair.macro).order)
        macroSizes[size_t(index)] = bodySize(pair.macro, pair.macro.macros[index].body, macroSizes);
    qint64 size = 0;
    for (const JoystickStatement &statement : pair.joystick.statements) {
        size += statementBytes + bodySize(pair.joystick, statement.body, macroSizes);
        size = std::min(size, largestSize);
    }
    return size;
}

int memoryPercent(qint64 bytes)
{
    if (bytes >= memoryBytes)
        return 100;
    // Below that it is not full, and whatever takes memory takes at least one percent.
    return int(std::min<qint64>(99, (bytes * 100 + memoryBytes - 1) / memoryBytes));
}

} // namespace zeph::language
