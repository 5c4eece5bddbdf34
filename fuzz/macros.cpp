// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// A macro file and, after the first line that holds "====", the joystick file that uses it.

#include "text/macro_search.h"
#include "text/macro_table.h"
#include "text/text_lines.h"

#include <cstdlib>

using namespace zeph;

namespace {

void require(bool holds)
{
    if (!holds) {
        abort();
    }
}

void extract(const QString &macros, const QString &joystick)
{
    const QStringList lines = usableMacroLines(macros);
    const MacroTable table = extractMacros(lines);
    require(table.names.size() == table.MacroHeadings.size());
    require(table.names.first().size() <= lines.size());
    qsizetype under = 0;
    for (const QStringList &names : table.names.mid(1)) {
        under += names.size();
    }
    require(under <= table.names.first().size());

    const QStringList names = table.names.first().mid(0, 50);
    const QList<bool> used = usedMacros(joystick, names);
    for (qsizetype i = 0; i < names.size(); ++i) {
        require(used[i] == !macroUses(joystick, names[i]).isEmpty());
        if (const auto keys = macroKeys(table, names[i])) {
            require(lines.contains(*keys));
        }
        qsizetype end = 0;
        for (const qsizetype hit : renameHits(joystick, names[i])) {
            require(hit >= end && hit + names[i].size() <= joystick.size());
            end = hit + names[i].size();
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const auto text =
        documentText(QByteArray(reinterpret_cast<const char *>(data), qsizetype(size)));
    if (!text) {
        return 0;
    }
    const qsizetype border = text->indexOf(u"====");
    const QString joystick = border < 0 ? *text : text->mid(border);
    extract(border < 0 ? *text : text->left(border), joystick);
    for (qsizetype at = -1; at <= joystick.size(); at += 7) {
        const QString word = wordOver(joystick, at);
        require(word.isEmpty() || joystick.contains(word));
    }
    return 0;
}
