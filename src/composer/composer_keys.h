// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

#include <QKeySequence>

#include <span>

class QWidget;

namespace zeph {

/// A key of the Composer that runs a menu entry of the Editor.
struct ComposerKey {
    QKeyCombination key;
    QStringView entry;
    /// What the key does in a text box, which keeps it for itself; UnknownKey for any other key.
    QKeySequence::StandardKey inTextBox = QKeySequence::UnknownKey;
};

std::span<const ComposerKey> composerKeys();

/// Does in a text box what one of its editing keys does. False when the widget is no text box.
bool editTextBox(QWidget *box, QKeySequence::StandardKey key);

} // namespace zeph
