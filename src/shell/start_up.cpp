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

#include <QAction>
#include <QFileInfo>

namespace zeph {

namespace {

constexpr int drawnForDpi = 96;

QString existingFile(QString name)
{
    name.remove(u'"');
    const QString path = existingPath(nativeSeparators(name));
    return !path.isEmpty() && fileExists(path) ? QFileInfo(path).absoluteFilePath() : QString();
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
