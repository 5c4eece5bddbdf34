// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The real Editor window, shown on the offscreen platform, over a long joystick file.

#include "documents/editor_view.h"
#include "documents/text_control.h"
#include "editor/editor.h"
#include "editor/files/file_opening.h"
#include "platform/clock.h"
#include "platform/fakes/fake_keyboard.h"
#include "platform/fakes/fake_launcher.h"
#include "platform/fakes/scripted_dialogs.h"
#include "platform/status_line.h"
#include "settings/colour_settings.h"
#include "settings/settings.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

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

struct World {
    explicit World(int lines = 10000)
    {
        paths.appFolder = folder.path();
        paths.hotasFolder = folder.path() + u'/';
        paths.iniPath = folder.filePath(u"Zeph.ini"_s);
        QDir(folder.path()).mkdir(u"Rtf"_s);
        QDir(folder.path()).mkdir(u"Files"_s);
        setFirstRunColours(settings.of<ColourSettings>());
        path = folder.filePath(u"Files/long.tmj"_s);
        QFile file(path);
        if (file.open(QIODevice::WriteOnly)) {
            file.write(longFile(lines));
        }
        editor = std::make_unique<Editor>(
            Context{ paths, settings, status, dialogs, launcher, clock, keyboard });
        editor->resize(1200, 800);
        editor->show();
        QCoreApplication::processEvents();
    }

    QTemporaryDir folder;
    Paths paths;
    Settings settings;
    StatusLine status;
    ScriptedDialogs dialogs;
    FakeLauncher launcher;
    Clock clock;
    FakeKeyboard keyboard;
    QString path;
    std::unique_ptr<Editor> editor;
};

} // namespace zeph::bench
