// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"
#include "text/text_styles.h"

#include <QPointer>

#include <QObject>
#include <functional>

namespace zeph {

class ColouredInsert;
class Documents;
class MenuActions;
class EditorView;
class StyleEditor;

/// What the Format menu does to the texts: bold, italic, underline, the nine styles, the font.
class TextLooks
{
public:
    struct Parts {
        EditorView &view;
        MenuActions &actions;
        ColouredInsert &insert;
    };
    TextLooks(const Context &context, const Parts &parts);
    ~TextLooks();

    /// Switches bold (0), italic (1) or underline (2) off when all of the selection has it, on
    /// otherwise. Without a selection the switch is for what is typed next. A change of a selection
    /// is one undo step. Refused on a protected macro file, as styles are.
    void mnuFormatArray1_Click(int Index);
    /// Gives the selection one of the styles, 0 to 8.
    void mnuStyleArray_Click(int Index);
    /// Opens the style editor; its OK keeps the styles.
    void mnuFormatStyleEditor_Click();
    /// Writes the styles' names into the menu entries.
    void UpdateStyleCaptions();

    /// Asks for a font, keeps it in the settings and gives it to both texts.
    void mnuFormatFont_Click();
    /// Gives both texts the font of the settings; colours, italic, underline and the fonts of
    /// styles stay.
    void DoTheFonts();

private:
    void change(const std::function<void(CharFormat &)> &change);
    void keepStyles(const TextStyles &styles);

    Context m_context;
    Parts m_parts;
    Documents &m_documents;
    QPointer<StyleEditor> m_editor;
};

class Highlighting;
struct DocumentSettings;

/// Colours lines as they are typed, while ColourWithTyping is on: before a blank or a line end goes
/// in, after Backspace and Right, and after the mouse has selected something. A protected macro
/// text stays as it is.
class TypingColour : public QObject
{
    Q_OBJECT
public:
    TypingColour(EditorView &view, Highlighting &highlighting, const DocumentSettings &settings);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool endsLine(const QEvent &event) const;

    Documents &m_documents;
    Highlighting &m_highlighting;
    const DocumentSettings &m_settings;
};

} // namespace zeph
