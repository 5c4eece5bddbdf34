// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "layouts/window/sheet_desk.h"

#include <QObject>

#include <functional>

namespace zeph {

class CustomFormatter;
class RichTextBox;

/// Fonts, colours and styles of the selected box's text, and its cutting and pasting. What has no
/// selection changes the look of what is typed next.
class SheetFormatting : public QObject
{
    Q_OBJECT
public:
    /// The window owns this.
    explicit SheetFormatting(const SheetDesk &desk);

    /// Applies a style (0-based) to the selection.
    void mnuStyleArray_Click(int index);
    void UpdateStyleCaptions();
    /// Gives the selection a colour.
    void ColourTextFormatter(ColorRef colour);
    void AssignFontName(const QString &family);
    void AssignFontSize(double points);
    void editStyles();
    void showFormatter();

private:
    using Change = std::function<void(CharFormat &)>;

    void connectEntries();
    void change(const Change &change);
    void toggle(bool CharFormat::*flag);
    void mnuFormatFont_Click();
    void mnuFormatColour_Click();
    void updateConditions();
    /// The look at the caret, or of the selection's first character.
    CharFormat look() const;
    RichTextBox &box() const;

    SheetDesk m_desk;
};

} // namespace zeph
