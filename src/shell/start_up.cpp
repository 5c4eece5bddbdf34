// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/start_up.h"

#include "editor/editor.h"
#include "editor/editor_settings.h"
#include "editor/files/file_opening.h"
#include "language/file_kinds.h"
#include "lists/favourites_menu.h"
#include "menus/menu_actions.h"
#include "platform/core/paths.h"
#include "platform/system_info.h"
#include "preferences/setting_fields.h"
#include "settings/settings_files.h"
#include "shell/sheet_command.h"
#include "shell/version_check.h"

#include <QAction>
#include <QFileInfo>

#include <algorithm>

namespace zeph {

namespace {

constexpr int drawnForDpi = 96;

QString existingFile(QString name)
{
    name.remove(u'"');
    const QString path = existingPath(nativeSeparators(name));
    return !path.isEmpty() && fileExists(path)
        ? nativeSeparators(QFileInfo(path).absoluteFilePath())
        : QString();
}

/// True when the last run left a file to open, whether or not that still exists.
bool openRestored(Editor &editor, const EditorSettings &settings)
{
    // Opening a file reads the settings again and would change these names on the way.
    const QString joystick = settings.RestoreJoyFile;
    const QString macro = settings.RestoreMacroFile;
    if (joystick.isEmpty() && macro.isEmpty()) {
        return false;
    }
    editor.opening().OpenRestoredStatus(joystick, macro);
    if (!joystick.isEmpty() && !macro.isEmpty()) {
        editor.actions().action(u"mnuMacrosIdentify")->trigger();
    }
    return true;
}

void openAutoload(Editor &editor, const ProfileFile &store, Dialogs &dialogs)
{
    if (const auto favourite = autoloadFavourite(readFavourites(store))) {
        openFavouriteInEditor(*favourite, editor, dialogs);
    }
}

} // namespace

std::optional<Box> smallFontsWarning(int logicalDpi)
{
    if (logicalDpi == drawnForDpi) {
        return std::nullopt;
    }
    return Box{
        .title = u"WARNING: Small fonts not detected!"_s,
        .text = u"WARNING: I've just had a quick check to see what your Display Font Size is set "
                "to, and I've noticed that your settings are not the default 'Small Fonts' size. "
                "Nothing will break, but some of my windows may look a bit odd. Please see the "
                "help file topic: 'Small Fonts, big problems' under the Miscellaneous heading for "
                "more information."_s,
        .icon = BoxIcon::Exclamation,
    };
}

Box tooManyWindowsBox()
{
    return { .title = u"Exiting now ..."_s,
             .text = u"Sorry, you've got too many windows open. Far too many !!!"_s,
             .icon = BoxIcon::Stop };
}

Box nowhereToWriteBox(const QString &appFolder)
{
    return { .title = u"I can't write anything"_s,
             .text = u"Neither the folder that I'm installed in nor your own folder for programs' "
                     "data can be written, so I work from "_s
                 + appFolder
                 + u" and can't keep anything there: no settings, no backups, no black box. Please "
                   "save your files elsewhere, and make room or ask for the right to write."_s,
             .icon = BoxIcon::Exclamation };
}

QString keptFilesText(const QStringList &files)
{
    constexpr qsizetype mostNames = 6;
    const qsizetype more = files.size() - mostNames;
    return u"I'm up to date now, but you've changed these, so I kept yours: "_s
        + files.first(std::min(files.size(), mostNames)).join(u", "_s)
        + (more > 0 ? u" and %1 more"_s.arg(more) : QString());
}

void renewFilesFolder(const Paths &paths)
{
    const SettingsFiles files = settingsFilesOf(paths);
    const QString explorer = filesDirectoryCommand(windowsFolder(), paths.filesFolder());
    const struct {
        const ProfileFile &file;
        ProfileEntry entry;
    } renewed[] = {
        { files.hotasIni, { u"Files"_s, u"Files"_s, paths.filesFolder() } },
        { files.hotasIni, { u"Launcher"_s, u"FilesDirectory"_s, explorer } },
        { files.store, { u"Launcher"_s, u"FilesDirectory"_s, explorer } },
    };
    for (const auto &[file, entry] : renewed) {
        const QString now = file.text(entry.section, entry.key);
        if (!now.isEmpty() && now != entry.value) {
            // As at each start, a file that cannot be written is not told.
            (void)file.write(entry);
        }
    }
}

std::optional<QString> commandLineAnswer(const QStringList &arguments)
{
    if (arguments.contains(u"--help"_s)) {
        return u"Usage: zeph [FILE]\n"
               "       "_s
            + sheetUsage()
            + u"\n\n"
              "Opens FILE, a joystick file or a macro file, with the file that belongs to it.\n\n"
              "  --sheet joystick|throttle  write the layout sheet of a joystick file, without a "
              "window\n"
              "  --out FILE                 the file to write; its ending says what it becomes\n"
              "  --scale 1|2|4              pixels of a PNG for each one of the sheet\n"
              "  --help                     show this text\n"
              "  --version                  show the version\n\n"
              "The exit code of a sheet is 0 when it is written, 1 when something cannot be read "
              "or\nwritten, 2 for wrong arguments.\n"_s;
    }
    if (arguments.contains(u"--version"_s)) {
        return u"Zeph "_s + QString::fromUtf16(versionText) + u'\n';
    }
    return std::nullopt;
}

QString TestCommandLine(const QStringList &arguments)
{
    if (arguments.isEmpty()) {
        return {};
    }
    const QString first = existingFile(arguments.first());
    return first.isEmpty() ? existingFile(arguments.join(u' ')) : first;
}

Box missingFileBox(const QStringList &arguments)
{
    return { .title = u"I can't find that file buddy"_s,
             .text = u"You asked me to open "_s + arguments.join(u' ')
                 + u", but there is no such file, so I've started without it."_s,
             .icon = BoxIcon::Exclamation };
}

void openStartFiles(Editor &editor, const QString &commandLineFile, const EditorSettings &settings,
                    const ProfileFile &store, Dialogs &dialogs)
{
    if (!commandLineFile.isEmpty()) {
        // A pair is looked for only where the ending names one of the Cougar's own files.
        if (isMacroExtension(lastThree(commandLineFile))
            || isJoystickExtension(lastThree(commandLineFile))) {
            editor.opening().OpenPreviouslySavedFiles(commandLineFile);
        } else {
            editor.opening().mnuFileJoystickLoad_Click(commandLineFile);
        }
    } else if (!settings.RestoreStatus || !openRestored(editor, settings)) {
        openAutoload(editor, store, dialogs);
    }
}

} // namespace zeph
