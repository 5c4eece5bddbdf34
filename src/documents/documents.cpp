// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/documents.h"

#include "documents/document.h"
#include "documents/document_settings.h"
#include "documents/editor_texts.h"
#include "platform/dialogs.h"
#include "platform/richtext/rich_text_box.h"
#include "platform/status_line.h"
#include "settings/colour_settings.h"
#include "settings/settings.h"

#include <QTextBlock>

namespace zeph {

Documents::Documents(const Context &context, QObject *parent)
    : QObject(parent), m_context(context),
      m_joystick(DocumentKind::Joystick, context.settings.of<DocumentSettings>().UndoMax),
      m_macro(DocumentKind::Macro, context.settings.of<DocumentSettings>().UndoMax)
{
    renameFresh(DocumentKind::Joystick);
    renameFresh(DocumentKind::Macro);
}

void Documents::markOverwritten(const Document &written)
{
    Document &other = this->other(written);
    if (other.state() != Document::Empty && other.path() == written.path()
        && other.text() != written.text()) {
        other.setState(Document::Modified);
    }
}

void Documents::select(DocumentKind kind)
{
    if (m_selected != kind) {
        m_selected = kind;
        Q_EMIT selectedChanged(kind);
    }
}

void Documents::setProtected(bool on)
{
    m_protected = on;
    m_macro.setLocked(on);
    Q_EMIT protectedChanged(on);
}

bool Documents::refuseProtected()
{
    if (m_selected == DocumentKind::Macro && m_protected) {
        m_context.dialogs.box(fileProtectedBox());
        return true;
    }
    return refuseSent(m_selected);
}

bool Documents::refuseSent(DocumentKind kind)
{
    // The macro text is locked only while it is protected, which is another matter.
    if (kind == DocumentKind::Macro || !m_joystick.isLocked()) {
        return false;
    }
    // It lasts for seconds only: no box.
    m_context.status.setText(
        u" %1 is on its way to the Cougar: I keep it as it is until it's there"_s.arg(
            m_joystick.caption()));
    return true;
}

bool Documents::insert(const Statement &statement)
{
    if (refuseProtected()) {
        return false;
    }
    Document &into = selected();
    RichText text =
        richTextOf(statement, colourScheme(m_context.settings.of<ColourSettings>(), into.kind()),
                   into.plain());
    const int line = into.content().findBlock(into.selStart()).position();
    if (statement.startsLine && line != into.selStart()) {
        RichText started = RichText::plain(u"\n"_s, into.plain());
        started.append(text);
        text = started;
    }
    Change change(into);
    into.insert(text);
    change.commit();
    return true;
}

void Documents::renameFresh(DocumentKind kind)
{
    of(kind).rename(m_context.paths.filesFolder() + freshName(kind));
}

CharFormat Documents::plainFormat(DocumentKind kind) const
{
    return zeph::plainFormat(m_context.settings.of<ColourSettings>(), kind);
}

QString Statement::text() const
{
    QString all;
    for (const Piece &piece : pieces) {
        all += piece.text;
    }
    return all;
}

RichText paintedAsTyped(const QString &text, const ColourScheme &scheme, const CharFormat &plain)
{
    RichText painted = RichText::plain(text);
    painted.characters = characterRuns(paint(text, typingPasses(), scheme), plain);
    return painted;
}

RichText richTextOf(const Statement &statement, const ColourScheme &scheme, const CharFormat &plain)
{
    RichText all;
    for (const Statement::Piece &piece : statement.pieces) {
        const QString text = withLineEnds(piece.text);
        if (!piece.colour) {
            all.append(paintedAsTyped(text, scheme, plain));
            continue;
        }
        CharFormat format = plain;
        format.colour = piece.colour;
        all.append(RichText::plain(text, format));
    }
    return all;
}

void colourBox(RichTextBox &box, const ColourScheme &scheme, const CharFormat &plain)
{
    RichText text = box.richText();
    text.characters = paintedAsTyped(text.text, scheme, plain).characters;
    const int start = box.selStart();
    const int length = box.selLength();
    box.setRichText(text);
    box.select(start, length);
}

QString withLineEnds(QString text)
{
    text.replace(u"\r\n"_s, u"\n"_s);
    text.replace(u'\r', u'\n');
    return text;
}

} // namespace zeph
