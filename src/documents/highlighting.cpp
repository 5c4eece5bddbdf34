// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/highlighting.h"

#include "documents/coloured_copies.h"
#include "documents/coloured_insert.h"
#include "documents/editor_texts.h"
#include "documents/editor_view.h"
#include "menus/menu_actions.h"
#include "platform/status_line.h"
#include "settings/colour_settings.h"
#include "settings/settings.h"

#include <QTextBlock>

namespace zeph {

namespace {

using language::operator""_w;

/// What the status line says when the pass of a word begins.
struct PassStatus {
    QStringView word;
    QStringView text;
};

constexpr PassStatus joystickSteps[] = {
    { u"BTN"_w, u"Applying colour to BTN statements ..." },
    { u"USE"_w, u"Applying colour to USE,ANT,MDEF etc. commands ..." },
    { u"DEF"_w, u"Applying colour to logical programming statements ..." },
    { u"Rem"_w, u"Applying colour to Rem comments ..." },
};
constexpr PassStatus macroSteps[] = {
    { u"/U"_w, u"Applying colour to / modifiers ..." },
    { u"Rem"_w, u"Applying colour to Rem comments ..." },
};

/// Shows the steps one after another, in the order of the passes. They are told before any pass
/// begins, since all passes go through the text together.
void tellSteps(StatusLine &status, std::span<const PaintPass> passes,
               std::span<const PassStatus> steps)
{
    for (const PaintPass &pass : passes) {
        for (const PassStatus &step : steps) {
            if (step.word == pass.word) {
                status.setTextNow(step.text.toString());
            }
        }
    }
}

} // namespace

Highlighting::Highlighting(const Context &context, const Parts &parts)
    : m_context(context), m_parts(parts), m_documents(parts.view.documents())
{
    connectMenus();
}

void Highlighting::connectMenus()
{
    MenuActions &on = m_parts.actions;
    on.connectTo(u"mnuViewColourJoystick", [this] { mnuViewColourJoystick_Click(); });
    on.connectTo(u"mnuViewColourMacro", [this] { mnuViewColourMacro_Click(); });
    on.connectTo(u"mnuViewApplyColourBothFiles", [this] { mnuViewApplyColourBothFiles_Click(); });
    on.connectTo(u"mnuViewHighlightLine", [this] { mnuViewHighlightLine_Click(); });
    on.connectTo(u"mnuRemoveColourJoystick", [this] { mnuRemoveColourJoystick_Click(); });
    on.connectTo(u"mnuRemoveColourMacro", [this] { mnuRemoveColourMacro_Click(); });
    on.connectTo(u"mnuRemoveColourSelectedText", [this] { mnuRemoveColourSelectedText_Click(); });
    on.connectTo(u"mnuViewReformat", [this] { mnuViewReformat_Click(); });
}

void Highlighting::reformat(Document &document)
{
    if (document.length() == 0) {
        return;
    }
    m_context.status.setText(u"Reformatting layout. Please wait ..."_s);
    document.setMargins();
    document.setCharacterRuns({ { document.length(), m_documents.plainFormat(document.kind()) } });
    m_parts.view.UpdateSavedIcon();
    m_context.status.setText(u"Layout refreshed ... (I wish I was!)"_s);
}

void Highlighting::mnuViewReformat_Click()
{
    Document &selected = m_documents.selected();
    if (!m_documents.refuseProtected() && selected.length() > 0) {
        reformat(selected);
        selected.history().storeShown();
        selected.updateState();
    }
}

void Highlighting::applyColour(Document &document)
{
    StatusLine &status = m_context.status;
    if (document.length() == 0) {
        status.setText(document.caption() + u" has no text to highlight."_s);
        return;
    }
    const bool isJoystick = document.kind() == DocumentKind::Joystick;
    // Old colours are not removed in a step of their own, since the new looks replace them; the
    // status line tells of both all the same.
    status.setTextNow(u"Removing colour highlighting from "_s + document.caption()
                      + u". Please wait ..."_s);
    status.setText(u"Done"_s);
    status.setTextNow(u"Applying colour highlighting to "_s + document.caption()
                      + u". Please wait ..."_s);
    m_documents.select(document.kind());
    m_parts.view.applyLook();
    const auto passes = isJoystick ? joystickPasses() : macroPasses();
    tellSteps(status, passes, isJoystick ? std::span<const PassStatus>(joystickSteps) : macroSteps);
    const auto runs = paint(document.text(), passes,
                            colourScheme(m_context.settings.of<ColourSettings>(), document.kind()));
    const EditorView::KeptPlace place(m_parts.view, document);
    document.setLooks(lookRuns(runs, m_documents.plainFormat(document.kind())));
    document.select(document.selStart(), 0);
    document.history().storeShown();
    if (auto saved = m_parts.copies.SaveColouredText(document); !saved) {
        status.setText(u"The coloured copy couldn't be written: "_s + saved.error().path + u": "_s
                       + saved.error().reason);
        return;
    }
    status.setText(u"Done"_s);
}

void Highlighting::ApplyColourHighlighting()
{
    applyColour(m_documents.joystick());
    m_documents.joystick().updateState();
}

void Highlighting::ApplyMacroColourHighlighting()
{
    applyColour(m_documents.macro());
    m_documents.macro().updateState();
}

void Highlighting::mnuViewColourJoystick_Click()
{
    ApplyColourHighlighting();
}

void Highlighting::mnuViewColourMacro_Click()
{
    if (m_documents.isProtected()) {
        m_context.dialogs.box(fileProtectedBox());
        return;
    }
    ApplyMacroColourHighlighting();
}

void Highlighting::mnuViewApplyColourBothFiles_Click()
{
    const EditorView::KeptTab tab(m_parts.view);
    applyColourInPlace(m_documents.joystick());
    if (!m_documents.isProtected()) {
        applyColourInPlace(m_documents.macro());
    }
}

void Highlighting::applyColourInPlace(Document &document)
{
    const EditorView::KeptPlace place(m_parts.view, document);
    const int anchor = document.cursor().anchor();
    const int caret = document.cursor().position();
    applyColour(document);
    document.setCaret(anchor, caret);
}

void Highlighting::removeColour(Document &document, int from, int length)
{
    m_context.status.setTextNow(u"Removing colour highlighting from "_s + document.caption()
                                + u". Please wait ..."_s);
    const auto plain = m_documents.plainFormat(document.kind()).colour;
    document.changeLooks(
        from, length,
        [plain](CharFormat &format) {
            format.colour = plain;
            format.bold = format.italic = format.underline = false;
        },
        ColourGivenBy::Highlighter);
    document.updateState();
    m_context.status.setText(u"Done"_s);
}

void Highlighting::mnuRemoveColourJoystick_Click()
{
    removeColour(m_documents.joystick(), 0, m_documents.joystick().length());
}

void Highlighting::mnuRemoveColourMacro_Click()
{
    removeColour(m_documents.macro(), 0, m_documents.macro().length());
}

void Highlighting::mnuRemoveColourSelectedText_Click()
{
    if (!m_documents.refuseProtected()) {
        Document &selected = m_documents.selected();
        removeColour(selected, selected.selStart(), selected.selLength());
    }
}

void Highlighting::followScheme(const ColourSettings &before)
{
    m_documents.forEach([this, &before](Document &each) {
        const DocumentKind kind = each.kind();
        const auto colours =
            recolouring(colourScheme(before, kind),
                        colourScheme(m_context.settings.of<ColourSettings>(), kind));
        const CharFormat font = plainFormat(m_context.settings.of<ColourSettings>(), kind);
        CharFormat fontBefore = plainFormat(before, kind);
        fontBefore.colour = font.colour;
        const bool hasNewFont = fontBefore != font;
        if ((colours.isEmpty() && !hasNewFont) || each.length() == 0) {
            return;
        }
        each.changeLooks(
            0, each.length(),
            [&colours](CharFormat &format) {
                if (format.colour) {
                    format.colour = colours.value(*format.colour, *format.colour);
                }
            },
            ColourGivenBy::SameAsBefore);
        each.history().storeShown();
        if (each.state() == Document::Saved) {
            // The copy is only a cache: nothing is lost when it cannot be written.
            (void)m_parts.copies.SaveColouredText(each);
        }
    });
}

void Highlighting::paintStretch(Document &document, int from, int to)
{
    const QString text = document.richText(from, to - from).text;
    document.setCharacterRuns(ColourType(text).characters, from);
    document.updateState();
}

void Highlighting::BlockColour()
{
    Document &document = m_documents.selected();
    const QTextDocument &lines = document.content();
    const QTextBlock last = lines.findBlock(document.selStart() + document.selLength());
    const int to = std::min(last.position() + last.length(), document.length());
    paintStretch(document, lines.findBlock(document.selStart()).position(), to);
}

void Highlighting::TestColour(int flag)
{
    Document &document = m_documents.selected();
    const QTextBlock line = document.content().findBlock(document.selStart());
    if (flag == 1) {
        m_parts.insert.BeginColInsert();
    }
    paintStretch(document, line.position(), line.position() + line.length() - 1);
    if (flag == 1) {
        m_parts.insert.EndColInsert();
    }
}

void Highlighting::mnuViewHighlightLine_Click()
{
    if (!m_documents.refuseProtected()) {
        TestColour(1);
    }
}

RichText Highlighting::painted(const QString &text, const Painter &painter) const
{
    const DocumentKind kind = m_documents.selected().kind();
    RichText result = RichText::plain(text, {}, documentParagraph);
    result.characters = characterRuns(
        painter.paint(text, colourScheme(m_context.settings.of<ColourSettings>(), kind)),
        m_documents.plainFormat(kind));
    return result;
}

RichText Highlighting::ColourType(const QString &text) const
{
    return painted(text, m_typing);
}

RichText Highlighting::JustREMtocolour(const QString &text) const
{
    return painted(text, m_comments);
}

} // namespace zeph
