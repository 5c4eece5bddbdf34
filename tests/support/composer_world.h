// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The real Editor with the real Composer beside it, the pictures of the controls in the folder.
// Whoever includes this links zeph_shell and defines ZEPH_PICTURES.

#include "composer/insertoptions.h"
#include "editor/files/file_opening.h"
#include "menus/menu_actions.h"
#include "platform/tool_windows.h"
#include "shell/composer_tools.h"
#include "tests/support/editor_world.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QFile>

namespace zeph::test {

struct ComposerWorld : EditorWorld {
    ComposerWorld() : windows(editor.get())
    {
        const QString pictures = QStringLiteral(ZEPH_PICTURES "/");
        const QString drawings = QStringLiteral(ZEPH_SOURCE_DIR "/artwork/");
        for (const QString &name : { u"F-16 Block 50"_s, u"Straight grip"_s, u"Throttle"_s }) {
            folder.show(pictures + name + u".bmp"_s, name + u".bmp"_s);
            folder.show(drawings + name + u".svg"_s, name + u".svg"_s);
        }
        for (const QString &handle : { u"F-16 Block 50.tmh"_s, u"Straight grip.tmh"_s }) {
            folder.show(pictures + handle, handle);
        }
        tools = new ComposerTools(context(), windows, *editor);
        editor->applySettings();
    }
    ~ComposerWorld() { windows.unloadAll(); }

    /// Opens the Composer by its menu entry, active and laid out.
    InsertOptions &open()
    {
        editor->action(u"mnuAppsComposer")->trigger();
        auto *window = windows.get<InsertOptions>();
        QApplication::setActiveWindow(window);
        QApplication::processEvents();
        return *window;
    }
    InsertOptions *composer() { return windows.get<InsertOptions>(); }
    /// The Composer's control of that name; there must be one.
    template <class T> T &control(const QString &name)
    {
        T *found = composer()->findChild<T *>(name);
        if (!found) {
            qFatal("the Composer has no %s", qPrintable(name));
        }
        return *found;
    }
    void click(const QString &button) { control<QAbstractButton>(button).click(); }

    /// Puts texts into the documents as if they were loaded, and the caret to an end or a place.
    void setJoystick(const QString &text, int caret = -1)
    {
        setText(DocumentKind::Joystick, text, caret);
    }
    void setMacro(const QString &text, int caret = -1)
    {
        setText(DocumentKind::Macro, text, caret);
    }
    /// Opens a macro file, which fills the macro list.
    void openMacros(const QByteArray &bytes)
    {
        editor->opening().OpenFavouriteFile(file(u"m.tmm"_s, bytes));
    }
    Document &joystick() { return editor->joystick(); }
    Document &macro() { return editor->macro(); }

    ToolWindows windows;
    ComposerTools *tools = nullptr; ///< the Editor's

private:
    void setText(DocumentKind kind, const QString &text, int caret)
    {
        Document &document = editor->documents().of(kind);
        editor->documents().select(kind);
        document.setText(text);
        document.tellReplaced(Document::How::Loaded);
        document.select(caret < 0 ? int(text.size()) : caret, 0);
    }
};

} // namespace zeph::test
