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

/// The two documents that are edited. There are always exactly two: closing one puts a new, empty
/// one in its place. One of them is selected.
class Documents : public QObject
{
    Q_OBJECT
public:
    explicit Documents(const Context &context, QObject *parent = nullptr);

    Document &of(DocumentKind kind) { return kind == DocumentKind::Macro ? m_macro : m_joystick; }
    Document &joystick() { return m_joystick; }
    Document &macro() { return m_macro; }
    Document &selected() { return of(m_selected); }
    /// The other one of the pair.
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

    /// Marks the other document as modified when one was written over its file, since its text is
    /// on the disk no longer.
    void markOverwritten(const Document &written);
    /// Locks the macro text against changes by the user, or unlocks it.
    void setProtected(bool on);
    bool isProtected() const { return m_protected; }
    /// Tells the user when the selected text is the protected one. True when it takes no changes,
    /// for that reason or because it is locked.
    bool refuseProtected();
    /// Whether the text is on its way to the Cougar and must neither change nor be replaced
    /// meanwhile, which the status line tells.
    bool refuseSent(DocumentKind kind);

    /// Writes what a tool has made over the selection of the selected document, in its colours, as
    /// one step to undo; the caret goes to its end. False when the text takes no changes, as
    /// refuseProtected() says.
    bool insert(const Statement &statement);

    /// Gives a document the name and the path of one that has no file yet; its text stays.
    void renameFresh(DocumentKind kind);
    /// Font and colour of plain text, from the settings.
    CharFormat plainFormat(DocumentKind kind) const;

Q_SIGNALS:
    /// Another document is selected now.
    void selectedChanged(DocumentKind kind);
    void protectedChanged(bool on);

private:
    Context m_context;
    Document m_joystick;
    Document m_macro;
    DocumentKind m_selected = DocumentKind::Joystick;
    bool m_protected = false;
};

class RichTextBox;

// What a generator gives: a statement to write into a document, or a refusal to show.

/// Text that one of Zeph's windows has made for Documents::insert(): pieces, some with a colour of
/// their own.
struct Statement {
    /// A piece without a colour is painted as typing paints it.
    struct Piece {
        QString text;
        std::optional<ColorRef> colour = {};
    };

    QList<Piece> pieces;
    /// Whether it has to start a line: a line end goes before it, unless the caret is at a line's
    /// start.
    bool startsLine = false;

    QString text() const;
};

/// Why a tool makes no statement: what the box says.
struct Refusal {
    QString title;
    QString text;
    BoxIcon icon = BoxIcon::Exclamation;
};

/// A text in the colours that typing gives it; characters that no pass colours look plain. Lines
/// end in '\n'.
RichText paintedAsTyped(const QString &text, const ColourScheme &scheme, const CharFormat &plain);
/// A statement's text in its colours.
RichText richTextOf(const Statement &statement, const ColourScheme &scheme,
                    const CharFormat &plain);
/// Paints a box's text as typing paints it. Paragraphs and selection stay.
void colourBox(RichTextBox &box, const ColourScheme &scheme, const CharFormat &plain);

/// The text with each line end, CR LF or CR, made '\n'.
QString withLineEnds(QString text);

} // namespace zeph
