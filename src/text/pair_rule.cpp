// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "text/pair_rule.h"

#include "language/file_kinds.h"
#include "text/text_lines.h"

namespace zeph {

std::optional<MdefReference> lastMdefReference(QStringView joystickText)
{
    constexpr QStringView words = u"USE MDEF"_w;
    const qsizetype hit = joystickText.lastIndexOf(words, -1, Qt::CaseInsensitive);
    if (hit < 0) {
        return std::nullopt;
    }
    const qsizetype behind = hit + words.size();
    qsizetype lineEnd = joystickText.indexOf(u'\n', behind);
    if (lineEnd < 0) {
        lineEnd = joystickText.size();
    }
    const qsizetype start = std::min(behind + 1, lineEnd);
    const QStringView line = joystickText.sliced(start, lineEnd - start);
    return MdefReference{ line.toString(), withoutBlanksAtEnd(beforeRem(line)).toString() };
}

QString macroNameFor(const MdefReference &reference, QStringView joystickName)
{
    const QString extension = macroExtensionFor(joystickName);
    if (lastThree(reference.cut) == extension) {
        return reference.cut;
    }
    return reference.wholeLine + u'.' + extension;
}

} // namespace zeph
