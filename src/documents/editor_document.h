// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "language/file_kinds.h"
#include "platform/core/rich_text.h"

namespace zeph {

class TextControl;

/// One of the two edited texts. There are always exactly two; closing one means a fresh empty one.
struct EditorDocument {
    enum State : qint16 { Empty = -1, Saved = 0, Modified = 1 };

    DocumentKind kind = DocumentKind::Joystick;
    QString path;
    QString name;
    qint16 state = Empty;
    /// The text came back after a crash, and the user has not saved it yet: until then nothing but
    /// the user changes the file.
    bool recovered = false;
    /// Last known selection, kept across tab changes (0-based characters).
    int caret = 0;
    int selLength = 0;
    /// The visible control; owned by the Editor window.
    TextControl *control = nullptr;

    bool isModified() const { return state == Modified; }
    QString caption() const { return tabCaption(name); }
};

} // namespace zeph
