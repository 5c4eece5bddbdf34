// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/document_settings.h"
#include "editor/files/auto_save.h"
#include "editor/files/file_opening.h"
#include "editor/files/loss_guards.h"
#include "tests/editor/walk.h"
#include "text/text_lines.h"

#include <QFile>

namespace zeph::test {

namespace {

void save(Walk &walk)
{
    walk.model.save();
    walk.run(u"mnuFileSave", Qt::Key_S);
}

void saveBoth(Walk &walk)
{
    walk.model.saveBoth();
    walk.trigger(u"mnuFileSaveBoth");
}

void saveAs(Walk &walk)
{
    walk.model.saveAs();
    walk.trigger(u"mnuFileSaveAs");
}

void openOne(Walk &walk)
{
    const DocumentKind kind = bothKinds[walk.upTo(1)];
    walk.model.openOne(kind);
    walk.trigger(kind == DocumentKind::Joystick ? u"mnuFileJoystickLoad" : u"MnuFileMacroLoad");
}

void openPair(Walk &walk)
{
    walk.model.openPair();
    walk.trigger(u"mnuFileOpen");
}

void reload(Walk &walk)
{
    const WalkModel::File &file = walk.model.selected();
    if (!isUntitled(file.name()) && walk.model.files.contains(file.path)) {
        const QString path = file.path;
        walk.model.openOne(walk.document().kind(), path);
        walk.editor->opening().OpenFavouriteFile(path);
    }
}

void makeFresh(Walk &walk)
{
    if (walk.oneIn(3)) {
        walk.model.freshBoth();
        walk.trigger(u"mnuFileNewBoth");
        return;
    }
    const DocumentKind kind = walk.oneIn(2) ? bothKinds[walk.upTo(1)] : walk.document().kind();
    const bool isClosed = kind == walk.document().kind() && walk.oneIn(2);
    walk.model.fresh(kind);
    walk.trigger(isClosed                             ? u"mnuFileClose"
                     : kind == DocumentKind::Joystick ? u"mnuFileNewJoystick"
                                                      : u"mnuFileNewMacro");
}

/// Another program writes a document's file, also as it was or as the Editor shows it, or takes it
/// away.
void changeFile(Walk &walk)
{
    const WalkModel::File &file = walk.model.of(bothKinds[walk.upTo(1)]);
    if (isUntitled(file.name())) {
        return;
    }
    const QByteArray now = walk.model.files.value(file.path);
    const QByteArray choices[] = { now + "Theirs = t\r\n", "", now.left(now.size() / 2),
                                   file.known.value_or(now), documentBytes(file.document.text()) };
    const int choice = walk.upTo(5);
    if (choice < 5) {
        walk.writeFile(file.name(), choices[choice]);
    } else {
        walk.model.files.remove(file.path);
        QFile::remove(file.path);
    }
    if (walk.oneIn(2)) {
        save(walk);
    }
}

void autosave(Walk &walk)
{
    walk.settings.of<EditorSettings>().AutoSaveTime = 1;
    walk.model.autosave();
    walk.editor->guards().autoSave.Timer1_Timer();
}

void updateMacros(Walk &walk)
{
    walk.model.updateMacros();
    walk.trigger(u"mnuEditUpdateMacros");
}

void changeOption(Walk &walk)
{
    auto &options = walk.settings.of<DocumentSettings>();
    options.ColourWithTyping = walk.oneIn(2);
    options.HighlightLineOnUndo = walk.oneIn(2);
    walk.model.settings.undoClearOnSave = options.UndoClearOnSave = walk.oneIn(4);
    walk.model.settings.updateModified = walk.settings.of<EditorSettings>().UpdateModified =
        walk.oneIn(2);
}

constexpr WalkAction allFiles[] = {
    { "save", 6, save },
    { "save both", 2, saveBoth },
    { "save as", 2, saveAs },
    { "open", 3, openOne },
    { "open a pair", 2, openPair },
    { "open again", 2, reload },
    { "new", 1, makeFresh },
    { "change the file", 4, changeFile },
    { "autosave", 2, autosave },
    { "update macros", 1, updateMacros },
    { "options", 1, changeOption },
};

} // namespace

std::span<const WalkAction> fileActions()
{
    return allFiles;
}

} // namespace zeph::test
