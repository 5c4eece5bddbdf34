// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"
#include "platform/core/rich_text.h"

#include <QObject>

#include <functional>

class QComboBox;
class QFontComboBox;
class QToolBar;
class QToolButton;

namespace zeph {

/// What all of a selection has in common; no value where it is mixed.
struct CommonLook {
    std::optional<QString> family;
    std::optional<double> pointSize;
    std::optional<ColorRef> colour;
    bool bold = false; ///< this and the flags below: true when all of it is so
    bool italic = false;
    bool underline = false;
    bool strike = false;
    bool bullets = false;
    std::optional<ParagraphAlignment> alignment;

    friend bool operator==(const CommonLook &, const CommonLook &) = default;
};

/// The look of a text that is not empty.
CommonLook commonLook(const RichText &selection);
/// The look of an empty selection, which is that of the text typed next.
CommonLook commonLook(const CharFormat &format, const ParagraphFormat &paragraph);

class MenuActions;
class RichTextBox;

/// Formats the text of the Template Editor: menu entries and toolbar change the selection's looks
/// and show them. Fills the toolbar.
class TemplateFormatting : public QObject
{
    Q_OBJECT
public:
    struct Parts {
        RichTextBox &text;
        MenuActions &actions;
        QToolBar &toolbar;
    };
    /// Characters without a font count as having that of the plain format.
    TemplateFormatting(const Context &context, const Parts &parts, CharFormat plain);

    /// Switches bold (0), italic (1), underline (2) or strike out (3) off when all of the selection
    /// has it, else on.
    void mnuFormatArray1_Click(int Index);
    /// Puts a bullet before each paragraph of the selection; takes them away when all have one.
    void mnuFormatBullets_Click();
    /// Aligns the selected paragraphs: left (0), centre (1), right (2).
    void mnuFormatAlign_Click(int Index);
    /// Gives the selection one of the nine styles, 0 to 8.
    void mnuStyleArray_Click(int Index);
    /// Writes the styles' names into the menu entries.
    void UpdateStyleCaptions();
    void mnuFormatFont_Click();
    void mnuFormatColour_Click();

    /// Shows the looks of the selection on the toolbar and in the menu.
    void UpdateToolbarButtonStates();

private:
    void fillToolbar();
    void connectEntries();
    void change(const std::function<void(CharFormat &)> &change);
    CommonLook look() const;
    void UpdateComboFonts(const CommonLook &look);
    void UpdateComboFontSize(const CommonLook &look);
    void UpdateBoldButton(const CommonLook &look);
    void UpdateItalicsButton(const CommonLook &look);
    void UpdateUnderlineButton(const CommonLook &look);
    void UpdateBulletedButton(const CommonLook &look);
    void UpdateAlignmentButtons(const CommonLook &look);
    void updateStrike(const CommonLook &look);
    void updateColour(const CommonLook &look);
    void setSize(const QString &text);

    Context m_context;
    Parts m_parts;
    CharFormat m_plain;
    QFontComboBox *m_fonts = nullptr;
    QComboBox *m_sizes = nullptr;
    QToolButton *m_colour = nullptr;
};

} // namespace zeph
