// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "language/file_kinds.h"

#include <QObject>
#include <QTimer>

namespace zeph {

class Document;
class EditorView;

/// Selects the caret's line without its line end.
void SelectLine(Document &document);

/// Shows where undo and redo have led: the caret's line is shown selected, twice, for a moment.
class LineBlink : public QObject
{
    Q_OBJECT
public:
    LineBlink(EditorView &view, QObject *parent);

    /// Blinks the line of a document's caret.
    void start(DocumentKind kind);
    /// Puts the caret back at once, if a line blinks.
    void stop();

protected:
    /// Ends the blinking before a key or a click takes effect: typing must not replace the line.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void tick();
    void showLine();
    void putCaretBack();

    EditorView &m_view;
    DocumentKind m_kind = DocumentKind::Joystick;
    QTimer m_timer{ this };
    int m_count = 0;
};

} // namespace zeph
