// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/composer_keys.h"

#include "composer/composer_editor.h"
#include "composer/editor_entries.h"
#include "platform/context.h"
#include "platform/dialogs.h"
#include "platform/tool_windows.h"

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QShortcut>
#include <QTextEdit>

#include <array>

namespace zeph {

namespace {

using enum QKeySequence::StandardKey;

// clang-format off
constexpr std::array keys = {
    ComposerKey{ Qt::Key_F3, u"mnuAppsComposer" },
    ComposerKey{ Qt::Key_F4, u"mnuAppsTumbo" },
    ComposerKey{ Qt::Key_F5, u"mnuInsertHeading" },
    ComposerKey{ Qt::Key_F6, u"mnuInsertRemStatement" },
    ComposerKey{ Qt::Key_F7, u"mnuMacrosIdentify" },
    ComposerKey{ Qt::Key_F8, u"mnuFileOpen" },
    ComposerKey{ Qt::Key_F9, u"mnuAppsPreferences" },
    ComposerKey{ Qt::Key_F11, u"mnuAppsCompile" },
    ComposerKey{ Qt::Key_F12, u"DownloadArray1_0" },
    ComposerKey{ Qt::CTRL | Qt::Key_Z, u"mnuEditUndo", Undo },
    ComposerKey{ Qt::CTRL | Qt::Key_Y, u"mnuEditRedo", Redo },
    ComposerKey{ Qt::CTRL | Qt::Key_X, u"mnuEditCut", Cut },
    ComposerKey{ Qt::CTRL | Qt::Key_C, u"mnuEditCopy", Copy },
    ComposerKey{ Qt::CTRL | Qt::Key_V, u"mnuEditPaste", Paste },
    ComposerKey{ Qt::CTRL | Qt::Key_A, u"mnuEditSelectAll", SelectAll },
    ComposerKey{ Qt::CTRL | Qt::Key_F, u"mnuEditFind" },
    ComposerKey{ Qt::CTRL | Qt::Key_G, u"mnuEditGoto" },
    ComposerKey{ Qt::CTRL | Qt::Key_R, u"mnuEditReplace" },
    ComposerKey{ Qt::CTRL | Qt::Key_N, u"mnuFileNewJoystick" },
    ComposerKey{ Qt::CTRL | Qt::Key_O, u"mnuFileJoystickLoad" },
    ComposerKey{ Qt::CTRL | Qt::Key_S, u"mnuFileSave" },
    ComposerKey{ Qt::CTRL | Qt::Key_P, u"mnuFilePrintJoystick" },
    ComposerKey{ Qt::CTRL | Qt::Key_U, u"mnuEditUpdateMacros" },
    ComposerKey{ Qt::CTRL | Qt::Key_H, u"mnuViewReformat" },
    ComposerKey{ Qt::CTRL | Qt::Key_B, u"mnuViewApplyColourBothFiles" },
    ComposerKey{ Qt::CTRL | Qt::Key_T, u"mnuViewApplyColourBothFiles" },
    ComposerKey{ Qt::CTRL | Qt::Key_L, u"mnuViewHighlightLine" },
    ComposerKey{ Qt::CTRL | Qt::Key_M, u"mnuAlignSlash" },
    ComposerKey{ Qt::CTRL | Qt::Key_F8, u"mnuFileSaveBoth" },
    ComposerKey{ Qt::CTRL | Qt::Key_K, u"mnuAppsKeyTester" },
};
// clang-format on

template <class Box> void edit(Box &box, QKeySequence::StandardKey key)
{
    switch (key) {
    case Undo:
        return box.undo();
    case Redo:
        return box.redo();
    case Cut:
        return box.cut();
    case Copy:
        return box.copy();
    case Paste:
        return box.paste();
    case SelectAll:
        return box.selectAll();
    default:
        return;
    }
}

template <class Box> bool editIf(QWidget *widget, QKeySequence::StandardKey key)
{
    auto *box = qobject_cast<Box *>(widget);
    if (box) {
        edit(*box, key);
    }
    return box != nullptr;
}

void run(const ComposerKey &key, const QWidget &window, const Context &context,
         ComposerEditor &editor)
{
    if (key.inTextBox != QKeySequence::UnknownKey
        && editTextBox(window.focusWidget(), key.inTextBox)) {
        return;
    }
    runEntry(editor, context.status, key.entry);
}

} // namespace

std::span<const ComposerKey> composerKeys()
{
    return keys;
}

void addEditorKeys(QWidget &window, const Context &context, ComposerEditor &editor)
{
    const auto add = [&window, &context](QKeySequence key, auto act) {
        auto *shortcut = new QShortcut(key, &window);
        QObject::connect(shortcut, &QShortcut::activated, &window, guarded(context.dialogs, act));
    };
    for (const ComposerKey &key : composerKeys()) {
        add(QKeySequence(key.key),
            [&key, &window, context, &editor] { run(key, window, context, editor); });
    }
    add(Qt::Key_F2, [&window, &editor] { returnToEditor(window, editor); });
}

void returnToEditor(const QWidget &window, ComposerEditor &editor)
{
    if (const QWidget *owner = window.parentWidget()) {
        ToolWindows::raise(*owner->window());
    }
    editor.ResetFocusToEditor();
}

bool editTextBox(QWidget *box, QKeySequence::StandardKey key)
{
    if (auto *combo = qobject_cast<QComboBox *>(box); combo && combo->isEditable()) {
        box = combo->lineEdit();
    }
    return editIf<QLineEdit>(box, key) || editIf<QTextEdit>(box, key)
        || editIf<QPlainTextEdit>(box, key);
}

} // namespace zeph
