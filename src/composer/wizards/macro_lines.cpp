// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/wizards/macro_lines.h"

#include "text/insert_blocks.h"
#include "text/macro_table.h"

namespace zeph {

namespace {

/// The rules of a heading are so much longer than its text.
constexpr qsizetype longerRule = 20;

} // namespace

QString previewOf(const QString &name, const QString &keys)
{
    return name.isEmpty() ? QString() : withoutRefused(name) + u" = "_s + keys;
}

QString headingLines(const QString &heading)
{
    return headingBlock(heading, longerRule).join(u'\n') + u"\n\n"_s;
}

QString warningAbout(const QString &name, const QString &macroFile)
{
    if (name.isEmpty()) {
        return {};
    }
    const MacroTable table = extractMacros(usableMacroLines(macroFile));
    return inWords(faultOfNewName({}, name, table.names.value(0)), name);
}

} // namespace zeph
