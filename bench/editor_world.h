// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The real Editor window, shown on the offscreen platform, over a long joystick file.

#include "editor/files/file_opening.h"
#include "tests/support/editor_world.h"

#include <QCoreApplication>
#include <QFile>

namespace zeph::bench {

inline QByteArray longFile(int lines)
{
    QByteArray bytes = "USE MDEF none.tmm\r\n";
    for (int line = 1; line < lines; ++line) {
        bytes += "BTN H" + QByteArray::number(line % 4 + 1)
            + "U /U /I Radar_Mode DLY(60) /O Missile_Mode Rem line " + QByteArray::number(line)
            + "\r\n";
    }
    return bytes;
}

struct World : test::EditorWorld {
    explicit World(int lines = 10000) : path(file(u"long.tmj"_s, longFile(lines)))
    {
        setFirstRunColours(settings.of<ColourSettings>());
        makeEditor();
        showEditor();
    }

    const QString path;
};

} // namespace zeph::bench
