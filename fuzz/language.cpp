// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// Both texts of a pair, as files hold them: the first NUL parts the joystick file from the macro
// file.

#include "language/checker.h"
#include "language/macro_graph.h"
#include "platform/core/text1252.h"

#include <cstdlib>

using namespace zeph;
using namespace zeph::language;

namespace {

void require(bool holds)
{
    if (!holds)
        std::abort();
}

void walk(const Source &source)
{
    qsizetype characters = 0;
    for (const Item &item : source.items) {
        characters += source.at(item).size();
        require(item.endItem <= source.items.size() && item.place.length > 0);
    }
    for (const Branch &branch : source.branches) {
        characters += source.at(branch.place).size();
        require(branch.items.first <= branch.items.end);
        require(branch.items.end <= source.items.size());
    }
    require(characters >= 0);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    const qsizetype part = bytes.indexOf('\0');
    const QString joystick = fromText1252(part < 0 ? bytes : bytes.first(part));
    const QString macro = part < 0 ? QString() : fromText1252(bytes.sliced(part + 1));
    const FilePair pair = parsePair(joystick, macro);
    walk(pair.joystick);
    walk(pair.macro);
    for (const JoystickStatement &statement : pair.joystick.statements) {
        require(!pair.joystick.at(statement.place).isEmpty());
        require(statement.body.items.end <= pair.joystick.items.size());
        pair.joystick.at(statement.subject);
        pair.joystick.at(statement.tail);
    }
    for (const Finding &finding : check(pair)) {
        const Source &source =
            finding.file == File::Macro ? static_cast<const Source &>(pair.macro) : pair.joystick;
        source.at(finding.place);
        require(finding.place.line >= 1);
    }
    require(memoryPercent(compiledSize(pair)) <= 100);
    return 0;
}
