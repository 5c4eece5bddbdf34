// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "documents/coloured_insert.h"
#include "documents/document_settings.h"
#include "documents/highlighting.h"
#include "documents/undo_histories.h"
#include "menus/menu_actions.h"
#include "platform/richtext/rich_text_document.h"
#include "settings/colour_settings.h"
#include "tests/support/editor_fixture.h"

#include <QSignalSpy>

namespace zeph::test {

/// The Editor with a scheme of easily told colours; what the texts look like is read as one letter
/// a character.
class PaintingTest : public EditorTest
{
protected:
    PaintingTest()
    {
        settings.of<ColourSettings>().JoystickTextDefaultColour = 0x111111;
        settings.of<ColourSettings>().MacroTextDefaultColour = 0x222222;
        settings.of<ColourSettings>().BTNColour = 0xB00000;
        settings.of<ColourSettings>().SlashColour = 0x0000AA;
        settings.of<ColourSettings>().RAWColour = 0x00BB00;
        settings.of<ColourSettings>().MiscellaneousColour = 0xCCCC00;
        settings.of<ColourSettings>().RemStatements = 0x808080;
        settings.of<DocumentSettings>().UndoMax = 20;
        makeEditor();
    }

    TextControl *control(DocumentKind kind) { return &editor->view().control(kind); }
    TextControl *joystick() { return control(DocumentKind::Joystick); }
    TextControl *macro() { return control(DocumentKind::Macro); }
    Highlighting &highlighting() { return editor->highlighting(); }

    /// Sets a text in the plain format, saved, without a history, the caret in front.
    void set(DocumentKind kind, const QString &text)
    {
        control(kind)->shown().setText(text);
        control(kind)->shown().select(0, 0);
        editor->documents().of(kind).setState(Document::Saved);
        editor->undos().startOver(kind);
    }

    /// Looks that the user gave before; no change of the document.
    void look(DocumentKind kind, int from, int length,
              const std::function<void(CharFormat &)> &change)
    {
        control(kind)->shown().changeLooks(from, length, change);
        Document &document = editor->documents().of(kind);
        document.setState(document.state());
    }

    /// "." plain, b BTN and DEF, s slash, r raw, m miscellaneous, c comment, ! pure red, ? another.
    QString colours(DocumentKind kind)
    {
        const ColorRef plain = kind == DocumentKind::Joystick
            ? settings.of<ColourSettings>().JoystickTextDefaultColour
            : settings.of<ColourSettings>().MacroTextDefaultColour;
        const QHash<ColorRef, QChar> letters = {
            { plain, u'.' },
            { settings.of<ColourSettings>().BTNColour, u'b' },
            { settings.of<ColourSettings>().SlashColour, u's' },
            { settings.of<ColourSettings>().RAWColour, u'r' },
            { settings.of<ColourSettings>().MiscellaneousColour, u'm' },
            { settings.of<ColourSettings>().RemStatements, u'c' },
            { ColorRef(255), u'!' },
        };
        QString marks;
        for (const CharRun &run : control(kind)->shown().richText().characters) {
            const QChar letter =
                run.format.colour ? letters.value(*run.format.colour, u'?') : QChar(u'?');
            marks += QString(run.length, letter);
        }
        return marks;
    }

    /// The characters that have a flag, as "x", the others as ".".
    QString flagged(DocumentKind kind, bool CharFormat::*flag)
    {
        QString marks;
        for (const CharRun &run : control(kind)->shown().richText().characters) {
            marks += QString(run.length, run.format.*flag ? u'x' : u'.');
        }
        return marks;
    }

    /// Everything that the status line says while something is done.
    template <class Do> QStringList said(Do what)
    {
        QSignalSpy spy(&status, &StatusLine::textChanged);
        what();
        QStringList texts;
        for (const QList<QVariant> &text : spy) {
            texts.append(text.first().toString());
        }
        return texts;
    }

    void protectMacro() { editor->documents().setProtected(true); }

    static constexpr DocumentKind J = DocumentKind::Joystick;
    static constexpr DocumentKind M = DocumentKind::Macro;
};

} // namespace zeph::test
