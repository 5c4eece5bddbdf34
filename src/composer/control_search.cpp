// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/control_search.h"

#include "cougar/places.h"
#include "language/words.h"
#include "platform/core/text_search.h"

#include <algorithm>
#include <array>

namespace zeph {

namespace {

constexpr int hats = 4;

constexpr std::array<QStringView, 9> hatWays = { u"U",  u"D",  u"L",  u"R", u"M",
                                                 u"UL", u"DL", u"UR", u"DR" };

// A text with one of these is sought as a whole word.
constexpr std::array<QStringView, 6> axisWords = { u"RNG"_w, u"ANT"_w, u"RDDR"_w,
                                                   u"JSX"_w, u"JSY"_w, u"THR"_w };

constexpr int linesTold = 6;

bool isAxisText(const QString &text)
{
    return std::ranges::any_of(
        axisWords, [&text](QStringView word) { return text.contains(word, Qt::CaseInsensitive); });
}

bool isInComment(QStringView text, qsizetype at)
{
    const qsizetype start = text.first(at).lastIndexOf(u'\n') + 1;
    const qsizetype rem = remAt(text.sliced(start));
    return rem >= 0 && start + rem + remAndBlank.size() <= at;
}

} // namespace

QStringList offeredControls(QStringView id, bool triggerHasStages)
{
    if (id == u"TRIG") {
        return triggerHasStages ? QStringList{ u"TG1"_s, u"TG2"_s } : QStringList{ u"TG1"_s };
    }
    for (int hat = 0; hat < hats; ++hat) {
        if (id != u"HAT_"_s + QString::number(hat)) {
            continue;
        }
        QStringList controls;
        for (const QStringView way : hatWays) {
            controls.append(u"H%1%2"_s.arg(hat + 1).arg(way));
        }
        return controls;
    }
    const QString button = id.startsWith(u"BTN_") ? controlOf(id) : QString();
    return button.isEmpty() ? QStringList() : QStringList{ button };
}

QString buttonStatement(const QString &control)
{
    return u"BTN "_s + control + u' ';
}

std::optional<LineRange> findControl(QStringView joystickText, const QString &statement)
{
    const QString name = withoutBlanksAtEnd(statement).toString();
    const bool needsBlank = name.size() < statement.size();
    const int options = isAxisText(name) ? SearchWholeWord : SearchPlain;
    qsizetype at = findText(joystickText, name, 0, options);
    for (; at >= 0; at = findText(joystickText, name, at + name.size(), options)) {
        const qsizetype end = at + name.size();
        const bool lineEnds = end >= joystickText.size() || joystickText[end] == u'\n';
        const bool blankFollows =
            !lineEnds && (joystickText[end] == u' ' || joystickText[end] == u'\t');
        if ((lineEnds || blankFollows || !needsBlank) && !isInComment(joystickText, at)) {
            return LineRange{ at, end + (needsBlank && blankFollows ? 1 : 0) - at };
        }
    }
    return {};
}

QString toldOf(QStringView joystickText, const QString &control)
{
    const auto found = findControl(joystickText, buttonStatement(control));
    if (!found) {
        return control + u": nothing yet"_s;
    }
    const qsizetype start = joystickText.first(found->start).lastIndexOf(u'\n') + 1;
    QStringList lines;
    bool isWhole = true;
    bool isOver = false;
    forEachLine(joystickText.sliced(start), [&](QStringView line) {
        // The statement goes on in the lines that start with a blank or with a slash.
        isOver = isOver
            || (!lines.isEmpty() && (line.isEmpty() || !(line[0].isSpace() || line[0] == u'/')));
        if (isOver) {
            return;
        }
        if (lines.size() < linesTold) {
            lines.append(line.toString());
        } else {
            isWhole = false;
        }
    });
    return control + u":\n"_s + lines.join(u'\n') + (isWhole ? QString() : u"\n..."_s);
}

} // namespace zeph
