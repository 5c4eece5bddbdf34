// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAccessibleWidget>

class QPlainTextEdit;

namespace zeph {

class ColouredText;

/// What a screen reader is told of a view of a text: the text, the caret and the selection, and the
/// colours and fonts, which the toolkit's own interface does not find in the text. Offsets are
/// 0-based characters; attributes() gives a run within one line.
class TextAccessible : public QAccessibleWidget,
                       public QAccessibleTextInterface,
                       public QAccessibleEditableTextInterface
{
public:
    /// The view shows the text; both must outlive this object.
    TextAccessible(QPlainTextEdit &view, ColouredText &text);

    QAccessible::State state() const override;
    QString text(QAccessible::Text kind) const override;
    void *interface_cast(QAccessible::InterfaceType type) override;

    void selection(int index, int *start, int *end) const override;
    int selectionCount() const override;
    void addSelection(int start, int end) override;
    void removeSelection(int index) override;
    void setSelection(int index, int start, int end) override;
    int cursorPosition() const override;
    void setCursorPosition(int position) override;
    QString text(int start, int end) const override;
    int characterCount() const override;
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint &point) const override;
    void scrollToSubstring(int start, int end) override;
    QString attributes(int offset, int *start, int *end) const override;

    void deleteText(int start, int end) override;
    void insertText(int offset, const QString &text) override;
    void replaceText(int start, int end, const QString &text) override;

private:
    QPlainTextEdit &m_view;
    ColouredText &m_text;
};

} // namespace zeph
