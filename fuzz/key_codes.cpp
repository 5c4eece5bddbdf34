// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// A key table, and every key named by it.

#include "livetools/key_names.h"
#include "livetools/virtual_keys.h"
#include "platform/core/text1252.h"

#include <cstdlib>

using namespace zeph;

namespace {

void require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString file =
        fromText1252(QByteArrayView(reinterpret_cast<const char *>(data), qsizetype(size)));
    const KeyTable table = keyTableFrom(file);
    require(!table.isEmpty() && table.first().code == -1);
    require(table.size() <= file.count(u',') + 1);
    for (const KeyName &each : table) {
        require(!each.name.contains(u'\n'));
    }
    for (int code = 0; code <= unknownKeyCode; ++code) {
        const QString name = nameOf(table, code);
        for (int shift = 0; shift <= (ShiftDown | CtrlDown | AltDown); ++shift) {
            const KeyText named = WhichKey(table, code, shift);
            require(name.isEmpty() || named.text.endsWith(name) || named.suppressesPress);
        }
        require(eventLine(table, KeyDirection::Down, code).size() > 6);
    }
    return 0;
}
