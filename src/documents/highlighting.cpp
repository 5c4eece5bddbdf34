// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/highlighting.h"

#include "documents/coloured_copies.h"
#include "documents/coloured_insert.h"
#include "documents/document_look.h"
#include "documents/editor_texts.h"
#include "documents/editor_view.h"
#include "documents/text_control.h"
#include "documents/undo_history.h"
#include "platform/richtext/rich_text_document.h"
#include "platform/status_line.h"
#include "settings/colour_settings.h"
#include "settings/settings.h"

#include <QTextBlock>

namespace zeph {

namespace {

/// What the status line says from the pass of a word on.
struct PassStatus {
    QStringView word;
    QStringView text;
};

constexpr PassStatus joystickSteps[] = {
    { u"BTN", u"Applying colour to BTN statements ..." },
    { u"USE", u"Applying colour to USE,ANT,MDEF etc. commands ..." },
    { u"DEF", u"Applying colour to logical programming statements ..." },
    { u"Rem", u"Applying colour to Rem comments ..." },
};
constexpr PassStatus macroSteps[] = {
    { u"/U", u"Applying colour to / modifiers ..." },
    { u"Rem", u"Applying colour to Rem comments ..." },
};

} // namespace

Highlighting::Highlighting(const Context &context, const Parts &parts)
    : m_context(context), m_parts(parts)
{
}

EditorDocument &Highlighting::document(DocumentKind kind) const
{
    return m_parts.view.document(kind);
}

void Highlighting::reformat(EditorDocument &document)
{
    TextControl &control = *document.control;
    if (control.end() == 0) {
        return;
    }
    const BusyGuard busy(m_parts.view);
    m_context.status.setText(u"Reformatting layout. Please wait ..."_s);
    setParagraphFormat(*control.document(), documentParagraph);
    control.setCharacterRuns({ { control.end(), m_parts.view.plainFormat(document.kind) } });
    m_parts.view.UpdateSavedIcon();
    m_context.status.setText(u"Layout refreshed ... (I wish I was!)"_s);
}

void Highlighting::mnuViewReformat_Click()
{
    EditorDocument &selected = m_parts.view.selected();
    if (!m_parts.view.refuseProtected() && selected.control->end() > 0) {
        reformat(selected);
        m_parts.histories.of(selected.kind).storeTop();
    }
}

void Highlighting::applyColour(EditorDocument &document)
{
    StatusLine &status = m_context.status;
    TextControl &control = *document.control;
    if (control.end() == 0) {
        status.setText(document.caption() + u" has no text to highlight."_s);
        return;
    }
    const bool isJoystick = document.kind == DocumentKind::Joystick;
    const BusyGuard busy(m_parts.view);
    // Colours go before colours come; one set of looks serves both.
    status.setTextNow(u"Removing colour highlighting from "_s + document.caption()
                      + u". Please wait ..."_s);
    status.setText(u"Done"_s);
    status.setTextNow(u"Applying colour highlighting to "_s + document.caption()
                      + u". Please wait ..."_s);
    m_parts.view.select(document.kind);
    m_parts.view.applyLook();
    const std::span<const PassStatus> steps =
        isJoystick ? std::span<const PassStatus>(joystickSteps) : macroSteps;
    const auto tell = [&status, steps](const PaintPass &pass) {
        for (const PassStatus &step : steps) {
            if (step.word == pass.word) {
                status.setTextNow(step.text.toString());
            }
        }
    };
    const auto runs =
        paint(control.text(), isJoystick ? joystickPasses() : macroPasses(),
              colourScheme(m_context.settings.of<ColourSettings>(), document.kind), tell);
    TextControl::Place place = control.place();
    place.anchor = place.caret = control.selStart();
    control.states().setLooks(lookRuns(runs, m_parts.view.plainFormat(document.kind)));
    control.setPlace(place);
    m_parts.histories.of(document.kind).storeTop();
    if (auto saved = m_parts.copies.SaveColouredText(document); !saved) {
        status.setText(u"The coloured copy couldn't be written: "_s + saved.error().path + u": "_s
                       + saved.error().reason);
        return;
    }
    status.setText(u"Done"_s);
}

void Highlighting::ApplyColourHighlighting()
{
    applyColour(document(DocumentKind::Joystick));
}

void Highlighting::ApplyMacroColourHighlighting()
{
    applyColour(document(DocumentKind::Macro));
}

void Highlighting::mnuViewColourJoystick_Click()
{
    ApplyColourHighlighting();
}

void Highlighting::mnuViewColourMacro_Click()
{
    if (m_parts.view.isProtected()) {
        m_context.dialogs.box(fileProtectedBox());
        return;
    }
    ApplyMacroColourHighlighting();
}

void Highlighting::mnuViewApplyColourBothFiles_Click()
{
    ApplyColourHighlighting();
    if (!m_parts.view.isProtected()) {
        ApplyMacroColourHighlighting();
    }
}

void Highlighting::removeColour(EditorDocument &document, int from, int length)
{
    const BusyGuard busy(m_parts.view);
    m_context.status.setTextNow(u"Removing colour highlighting from "_s + document.caption()
                                + u". Please wait ..."_s);
    const auto plain = m_parts.view.plainFormat(document.kind).colour;
    document.control->changeLooks(from, length, [plain](CharFormat &format) {
        format.colour = plain;
        format.bold = format.italic = format.underline = false;
    });
    m_context.status.setText(u"Done"_s);
}

void Highlighting::mnuRemoveColourJoystick_Click()
{
    EditorDocument &joystick = document(DocumentKind::Joystick);
    removeColour(joystick, 0, joystick.control->end());
}

void Highlighting::mnuRemoveColourMacro_Click()
{
    EditorDocument &macro = document(DocumentKind::Macro);
    removeColour(macro, 0, macro.control->end());
}

void Highlighting::mnuRemoveColourSelectedText_Click()
{
    if (!m_parts.view.refuseProtected()) {
        EditorDocument &selected = m_parts.view.selected();
        removeColour(selected, selected.control->selStart(), selected.control->selLength());
    }
}

void Highlighting::followScheme(const ColourSettings &before)
{
    for (const DocumentKind kind : { DocumentKind::Joystick, DocumentKind::Macro }) {
        EditorDocument &each = document(kind);
        const auto colours =
            recolouring(colourScheme(before, kind),
                        colourScheme(m_context.settings.of<ColourSettings>(), kind));
        const CharFormat font = plainFormat(m_context.settings.of<ColourSettings>(), kind);
        CharFormat fontBefore = font;
        takeFont(fontBefore, plainFormat(before, kind));
        const bool hasNewFont = !(fontBefore == font);
        if ((colours.isEmpty() && !hasNewFont) || each.control->end() == 0) {
            continue;
        }
        const BusyGuard busy(m_parts.view);
        each.control->changeLooks(0, each.control->end(), [&](CharFormat &format) {
            if (hasNewFont) {
                takeFont(format, font);
            }
            if (format.colour) {
                format.colour = colours.value(*format.colour, *format.colour);
            }
        });
        UndoHistory &history = m_parts.histories.of(kind);
        if (!history.canRedo()) {
            history.storeTop();
        }
        if (each.state == EditorDocument::Saved) {
            // A copy that cannot be written is only a cache that lags behind.
            (void)m_parts.copies.SaveColouredText(each);
        }
    }
}

void Highlighting::paintStretch(EditorDocument &document, int from, int to)
{
    const BusyGuard busy(m_parts.view);
    const QString text = richTextOf(*document.control->document(), from, to - from).text;
    document.control->setCharacterRuns(ColourType(text).characters, from);
}

void Highlighting::BlockColour()
{
    EditorDocument &document = m_parts.view.selected();
    const QTextCursor cursor = document.control->textCursor();
    const QTextDocument &text = *document.control->document();
    const QTextBlock last = text.findBlock(cursor.selectionEnd());
    const int to = std::min(last.position() + last.length(), document.control->end());
    paintStretch(document, text.findBlock(cursor.selectionStart()).position(), to);
}

void Highlighting::TestColour(int flag)
{
    EditorDocument &document = m_parts.view.selected();
    const qint16 state = document.state;
    const QTextBlock line = document.control->document()->findBlock(document.control->selStart());
    if (flag == 1) {
        m_parts.insert.BeginColInsert();
    }
    paintStretch(document, line.position(), line.position() + line.length() - 1);
    if (flag == 1) {
        m_parts.insert.EndColInsert();
        // A step to undo, but no change to save: the file itself has no colours.
        m_parts.view.setState(document, state);
    }
}

void Highlighting::mnuViewHighlightLine_Click()
{
    if (!m_parts.view.refuseProtected()) {
        TestColour(1);
    }
}

RichText Highlighting::painted(const QString &text, const Painter &painter) const
{
    const DocumentKind kind = m_parts.view.selected().kind;
    RichText result = RichText::plain(text, {}, documentParagraph);
    result.characters = characterRuns(
        painter.paint(text, colourScheme(m_context.settings.of<ColourSettings>(), kind)),
        m_parts.view.plainFormat(kind));
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
