// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Recorded looks at a joystick, and what Quick View shows of each, in golden files.

#include "livetools/quickview/live_state.h"
#include "tests/support/golden.h"

namespace zeph::test {

inline GoldenKind recordings()
{
    return { u"joystick"_s, { u"readings"_s }, { u"shown"_s } };
}

/// A look a line: result, buttons in hexadecimal digits, hat. Lines that begin with # are comments.
inline QList<JoystickReading> readingsOf(const GoldenCase &golden)
{
    QList<JoystickReading> readings;
    for (const QByteArray &line : golden.bytes(golden.input).split('\n')) {
        const QList<QByteArray> words = line.simplified().split(' ');
        if (words.size() == 3 && !line.startsWith('#')) {
            readings.append({ words[0].toUInt(), words[1].toUInt(nullptr, 16), words[2].toUInt() });
        }
    }
    return readings;
}

/// A line of the expectation: the column, and the controls that are bold, by their flags.
inline QString shownLine(int column, const std::bitset<flagCount> &bold)
{
    QString line = columnName(column) + u':';
    for (size_t flag = 0; flag < flagCount; ++flag) {
        if (bold[flag]) {
            line += u' ' + controlName(int(flag) + 1).toString();
        }
    }
    return line + u'\n';
}

/// The same of a joystick that does not answer: what the status line says.
inline QString manualLine(const QString &status)
{
    return u"manual: "_s + status + u'\n';
}

} // namespace zeph::test
