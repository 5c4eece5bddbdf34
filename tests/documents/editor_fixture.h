// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "documents/editor_view.h"
#include "documents/text_control.h"
#include "editor/editor.h"
#include "editor/editor_settings.h"
#include "platform/clock.h"
#include "platform/context.h"
#include "platform/fakes/fake_keyboard.h"
#include "platform/fakes/fake_launcher.h"
#include "platform/fakes/scripted_dialogs.h"
#include "platform/status_line.h"
#include "settings/colour_settings.h"
#include "settings/settings.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <QDir>

namespace zeph::test {

/// A colour that no scheme of the tests has.
constexpr ColorRef blue = 0xFF0000;

/// A stopped clock: 5 March 2024, 9:07.
class StoppedClock : public Clock
{
public:
    QDateTime now() const override { return QDateTime(QDate(2024, 3, 5), QTime(9, 7)); }
};

/// The real Editor in a folder of its own, with scripted dialogs. At its end no box may have come
/// unprepared.
class EditorTest : public testing::Test
{
protected:
    EditorTest()
    {
        paths.appFolder = folder.path();
        paths.hotasFolder = folder.path() + u'/';
        paths.iniPath = folder.file(u"Zeph.ini"_s);
        for (const QString &name : { u"Rtf"_s, u"Files"_s, u"Layouts"_s, u"Temp"_s, u"Backup"_s }) {
            QDir(folder.path()).mkdir(name);
        }
        // Where backups of saved files go: without a name they would go to the current folder.
        settings.of<EditorSettings>().BackUpFolder = folder.path() + u"/Backup/"_s;
        settings.of<ColourSettings>().TextFontName = u"Arial"_s;
        settings.of<ColourSettings>().TextFontSize = 8;
        settings.of<ColourSettings>().BackgroundColour = 0xFFFFFF;
        settings.of<ColourSettings>().MacroBackgroundColour = 0xFFFFFF;
        settings.of<EditorSettings>().UpdateModified = true;
        makeEditor();
    }
    ~EditorTest() override
    {
        EXPECT_TRUE(dialogs.unexpected().isEmpty())
            << dialogs.unexpected().join(u'\n').toStdString();
    }

    void makeEditor()
    {
        editor = std::make_unique<Editor>(
            Context{ paths, settings, status, dialogs, launcher, clock, keyboard });
    }

    /// Writes a file into the Files folder and gives its path.
    QString file(const QString &name, const QByteArray &bytes)
    {
        return folder.write(u"Files/"_s + name, bytes);
    }
    void type(DocumentKind kind, const QString &text)
    {
        editor->view().control(kind).insertPlainText(text);
    }

    TempFolder folder;
    Paths paths;
    Settings settings;
    StatusLine status;
    ScriptedDialogs dialogs;
    FakeLauncher launcher;
    StoppedClock clock;
    FakeKeyboard keyboard;
    std::unique_ptr<Editor> editor;
};

} // namespace zeph::test
