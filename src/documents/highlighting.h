// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"
#include "text/painter.h"

namespace zeph {

class ColouredCopies;
class ColouredInsert;
class Document;
class Documents;
class EditorView;
class MenuActions;
struct ColourSettings;

/// Gives the documents their colours and takes them away. Only looks change: not the text, and the
/// saved state only where looks go that the user gave. Caret and scroll stay where the user has
/// them.
class Highlighting
{
public:
    struct Parts {
        EditorView &view;
        MenuActions &actions;
        ColouredCopies &copies;
        ColouredInsert &insert;
    };
    Highlighting(const Context &context, const Parts &parts);

    /// Gives the whole document the plain font, size, colour and margin; bold, italic, underline
    /// and colours go. An empty document stays as it is.
    void reformat(Document &document);
    /// Reformats the selected document, and stores its looks in the undo slot shown. Refused on a
    /// protected macro file.
    void mnuViewReformat_Click();

    /// Colours the whole document, stores its looks in the undo slot shown and writes its coloured
    /// copy. An empty document is told on the status line.
    void applyColour(Document &document);
    void ApplyColourHighlighting();
    void ApplyMacroColourHighlighting();
    void mnuViewColourJoystick_Click();
    /// Colours the macro file, unless it is protected.
    void mnuViewColourMacro_Click();
    /// Colours the joystick file, then the macro file unless it is protected.
    void mnuViewApplyColourBothFiles_Click();

    void mnuRemoveColourJoystick_Click();
    void mnuRemoveColourMacro_Click();
    /// Takes the colours from the selection. Refused on a protected macro file.
    void mnuRemoveColourSelectedText_Click();

    /// Takes changed colours over into both documents: text in a colour of the scheme before gets
    /// the one that replaced it, all other colours and looks stay. Plain text follows a changed
    /// font by itself. The coloured copy of a saved document is written anew for either.
    void followScheme(const ColourSettings &before);

    /// Colours the lines of the selection, or the caret's line, without a look at the rest of the
    /// text.
    void BlockColour();
    /// Colours the caret's line, or the one in which the selection starts. Flag 1 makes it an undo
    /// step of its own, 0 no step.
    void TestColour(int flag);
    /// Colours the caret's line as TestColour(1) does. Refused on a protected macro file.
    void mnuViewHighlightLine_Click();

    /// A piece of text in the selected document's font, painted as typing paints it.
    RichText ColourType(const QString &text) const;
    /// The same, but only comments are painted.
    RichText JustREMtocolour(const QString &text) const;

private:
    /// Paints a document; its caret, its selection and what is seen of it stay.
    void applyColourInPlace(Document &document);
    void connectMenus();
    void removeColour(Document &document, int from, int length);
    void paintStretch(Document &document, int from, int to);
    RichText painted(const QString &text, const Painter &painter) const;

    Context m_context;
    Parts m_parts;
    Documents &m_documents;
    Painter m_typing{ typingPasses() };
    Painter m_comments{ remPasses() };
};

} // namespace zeph
