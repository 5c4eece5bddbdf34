// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

#include <QKeySequence>

#include <span>

class QWidget;

namespace zeph {

class ComposerEditor;
struct Context;

/// A key of the Composer that runs a menu entry of the Editor.
struct ComposerKey {
    QKeyCombination key;
    QStringView entry;
    /// What the key does in a text box, which keeps it for itself; UnknownKey for any other key.
    QKeySequence::StandardKey inTextBox = QKeySequence::UnknownKey;
};

std::span<const ComposerKey> composerKeys();

/// Lets the keys run their entries while the window has the focus, and F2 return to the Editor. An
/// entry that is disabled is told on the status line. The Editor must outlive the window.
void addEditorKeys(QWidget &window, const Context &context, ComposerEditor &editor);

/// Gives the focus back to the Editor's document, and the Editor's window with it.
void returnToEditor(const QWidget &window, ComposerEditor &editor);

/// Does in a text box what one of its editing keys does. False when the widget is no text box.
bool editTextBox(QWidget *box, QKeySequence::StandardKey key);

} // namespace zeph
