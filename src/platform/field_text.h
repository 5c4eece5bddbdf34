// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLineEdit>

namespace zeph {

/// Puts a text into a field, its beginning in sight. A field that shows the text already keeps its
/// caret and its own undo.
inline void showText(QLineEdit &field, const QString &text)
{
    if (field.text() != text) {
        field.setText(text);
        field.setCursorPosition(0);
    }
}

} // namespace zeph
