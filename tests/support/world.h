// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/clock.h"
#include "platform/context.h"
#include "platform/fakes/fake_keyboard.h"
#include "platform/fakes/fake_launcher.h"
#include "platform/fakes/scripted_dialogs.h"
#include "platform/status_line.h"
#include "settings/settings.h"
#include "tests/support/temp_folder.h"

namespace zeph::test {

/// A stopped clock: 5 March 2024, 9:07.
class StoppedClock : public Clock
{
public:
    QDateTime now() const override { return QDateTime(QDate(2024, 3, 5), QTime(9, 7)); }
};

/// The small world of tests and benchmarks: a program's folder, which is the tools' folder too, and
/// around it everything that windows share, each part a fake or scripted where there is one. The
/// layers for the Editor, the tools and the whole program stand on it. It needs no GoogleTest:
/// what goes wrong in it is a warning, which fails the running test (watch.h).
struct World {
    World();
    /// Warns of every box and dialog that came unprepared or was prepared and did not come.
    ~World();
    Q_DISABLE_COPY_MOVE(World)

    Context context() { return { paths, settings, status, dialogs, launcher, clock, keyboard }; }

    /// Writes a file into the Files folder and gives its path.
    QString file(const QString &name, const QByteArray &bytes) const;
    /// Writes a settings file that has seen its first run and shows no tips.
    void writeStore(const QByteArray &more = {}) const;
    /// Copies a file into the folder from what is installed beside the program.
    void installData(const QString &name) const;
    /// Lets the folder have the program's icons.
    void installIcons() const;
    /// The titles of all boxes so far.
    QStringList boxTitles() const;

    TempFolder folder;
    Paths paths;
    Settings settings;
    StatusLine status;
    ScriptedDialogs dialogs;
    FakeLauncher launcher;
    StoppedClock clock;
    FakeKeyboard keyboard;
};

} // namespace zeph::test
