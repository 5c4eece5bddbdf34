// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "language/file_kinds.h"

#include <QObject>
#include <QTimer>

namespace zeph {

class Document;
class EditorView;

/// Selects the caret's line, its line end left out.
void SelectLine(Document &document);

/// Shows where undo and redo have led: the caret's line is selected and let go again, twice.
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
    /// A key or a click finds the caret where it belongs: typing must not replace the line.
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
