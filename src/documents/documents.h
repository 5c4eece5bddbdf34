// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "documents/document.h"
#include "platform/context.h"
#include "platform/dialogs.h"
#include "text/painter.h"

#include <array>

namespace zeph {

struct Statement;

/// The pair of documents that is edited: there are always exactly two, and closing one means a
/// fresh empty one. One of them is selected.
class Documents : public QObject
{
    Q_OBJECT
public:
    explicit Documents(const Context &context, QObject *parent = nullptr);

    Document &of(DocumentKind kind) { return kind == DocumentKind::Macro ? m_macro : m_joystick; }
    Document &joystick() { return m_joystick; }
    Document &macro() { return m_macro; }
    Document &selected() { return of(m_selected); }
    /// The one that is not given.
    Document &other(const Document &document)
    {
        return document.kind() == DocumentKind::Macro ? m_joystick : m_macro;
    }
    /// Calls a function with the joystick document, then with the macro document.
    template <class Function> void forEach(Function function)
    {
        function(m_joystick);
        function(m_macro);
    }

    /// Selects a document, as a click on its tab does.
    void select(DocumentKind kind);

    /// Guards the macro text against the user.
    void setProtected(bool on);
    bool isProtected() const { return m_protected; }
    /// Whether the selected text takes no changes, which is told.
    bool refuseProtected();
    /// Whether the text is on its way to the Cougar and must neither change nor be replaced
    /// meanwhile, which the status line tells.
    bool refuseSent(DocumentKind kind);

    /// Writes what a tool has made into the selected document, over the selection, in its colours:
    /// one step to undo, and the caret goes to its end. False when the text takes no changes: a
    /// protected one is told.
    bool insert(const Statement &statement);

    /// A name and a path for a document that has no file yet; its text stays.
    void renameFresh(DocumentKind kind);
    /// Font and colour of plain text that the settings say.
    CharFormat plainFormat(DocumentKind kind) const;

Q_SIGNALS:
    /// Another document is selected now.
    void selectedChanged(DocumentKind kind);
    void protectedChanged(bool on);

private:
    void markOverwritten(const Document &written);

    Context m_context;
    Document m_joystick;
    Document m_macro;
    DocumentKind m_selected = DocumentKind::Joystick;
    bool m_protected = false;
};

// What a generator gives: a statement to write into a document, or a refusal to show. Plain values.

class RichTextBox;

/// Text of a joystick or macro file that a tool has made.
struct Statement {
    /// A piece without a colour is painted as typing paints it.
    struct Piece {
        QString text;
        std::optional<ColorRef> colour = {};
    };

    QList<Piece> pieces;
    /// It begins a line of its own, unless the caret is at the start of one.
    bool startsLine = false;

    QString text() const;
};

/// Why a tool makes no statement: what its box says.
struct Refusal {
    QString title;
    QString text;
    BoxIcon icon = BoxIcon::Exclamation;
};

/// A text in the colours that typing gives it; characters without a colour look plain. Lines end
/// in '\n'.
RichText paintedAsTyped(const QString &text, const ColourScheme &scheme, const CharFormat &plain);
/// A statement's text in its colours.
RichText richTextOf(const Statement &statement, const ColourScheme &scheme,
                    const CharFormat &plain);
/// Paints a box's text as typing is painted. Its paragraphs, caret and selection stay.
void colourBox(RichTextBox &box, const ColourScheme &scheme, const CharFormat &plain);

/// A text whose line ends are CR LF or CR, with '\n' for each.
QString withLineEnds(QString text);

} // namespace zeph
