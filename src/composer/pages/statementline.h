// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/colour_scheme.h"
#include "platform/richtext/rich_text_box.h"

namespace zeph {

/// A text box of one line that shows a piece of joystick file in its colours, and paints it anew as
/// it changes. Line ends that are dropped or pasted become blanks; Enter, Up and Down leave the
/// line.
class StatementLine : public RichTextBox
{
    Q_OBJECT
public:
    explicit StatementLine(QWidget *parent = nullptr);

    /// The colours of the text and of plain characters, and the background.
    void setColours(const ColourScheme &scheme, const CharFormat &plain, ColorRef background);
    /// Puts in another text, unless it is the same; the caret goes to its end.
    void setLine(const QString &text);
    /// Adds to the text's end; the caret goes to the new end.
    void addToEnd(const QString &text);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The line has got the focus.
    void entered();
    /// A key goes to the line before (-1) or to the next one (1).
    void stepWanted(int step);

protected:
    void focusInEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void insertFromMimeData(const QMimeData *source) override;

private:
    class Painter;

    Painter *m_painter;
};

} // namespace zeph
