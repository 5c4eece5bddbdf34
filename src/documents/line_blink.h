// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "language/file_kinds.h"
#include "platform/context.h"

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

class Document;
class EditorView;

/// What the caret does at a line that is shown: a line to look at is selected; one to write in is
/// not, since the first key would replace it.
enum class LineCaret { SelectsLine, AtStart };

/// Brings a document to the front with the caret at one of its lines (1-based). A line that the
/// document does not have is told; false then.
bool showLine(const Context &context, EditorView &view, Document &document, int line,
              LineCaret caret);

} // namespace zeph
