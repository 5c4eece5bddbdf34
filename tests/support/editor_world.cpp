// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "tests/support/editor_world.h"

#include <QCoreApplication>
#include <QDir>

namespace zeph::test {

EditorWorld::EditorWorld()
{
    for (const QString &name : { u"Rtf"_s, u"Files"_s, u"Layouts"_s, u"Temp"_s, u"Backup"_s }) {
        QDir(folder.path()).mkdir(name);
    }
    // Where backups of saved files go: without a name they would go to the current folder.
    settings.of<EditorSettings>().BackUpFolder = folder.file(u"Backup/"_s);
    settings.of<EditorSettings>().UpdateModified = true;
    settings.of<ColourSettings>().TextFontName = u"Arial"_s;
    settings.of<ColourSettings>().TextFontSize = 8;
    settings.of<ColourSettings>().BackgroundColour = 0xFFFFFF;
    settings.of<ColourSettings>().MacroBackgroundColour = 0xFFFFFF;
    makeEditor();
}

void EditorWorld::makeEditor()
{
    editor = std::make_unique<Editor>(context());
}

void EditorWorld::showEditor()
{
    editor->resize(1200, 800);
    editor->show();
    QCoreApplication::processEvents();
}

void EditorWorld::type(DocumentKind kind, const QString &text)
{
    editor->view().control(kind).insertPlainText(text);
}

} // namespace zeph::test
