// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/richtext/rich_text_box.h"

namespace zeph {

/// The control in which a box's text is edited. It lies over the box and breaks its lines as the
/// sheet does; the box's frame and white are what the sheet draws under it. The steps to undo are
/// the sheet's.
class BoxEditor : public RichTextBox
{
    Q_OBJECT
public:
    explicit BoxEditor(QWidget *parent = nullptr);

    /// Gives characters without a font this one.
    void setPlain(const CharFormat &plain);
    /// Shows a text; the selection stays where it was in one that is the same box's.
    void showBoxText(const RichText &text, bool keepsSelection);
    /// Whether there is more text than the box shows.
    bool isOverflowing() const;

protected:
    /// Leaves undo and redo to the window's entries.
    bool event(QEvent *event) override;

private:
    void setUp();

    CharFormat m_plain;
};

} // namespace zeph
