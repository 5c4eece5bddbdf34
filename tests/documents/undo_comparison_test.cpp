// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// The history against a plain one that keeps whole copies: same texts, looks, carets and captions
// after every step of long random sequences in the real Editor.

#include "documents/document.h"
#include "documents/document_settings.h"
#include "documents/undo_histories.h"
#include "editor/editor_settings.h"
#include "editor/files/file_new.h"
#include "editor/files/file_opening.h"
#include "editor/files/file_saving.h"
#include "menus/menu_actions.h"
#include "platform/richtext/rich_text_document.h"
#include "tests/support/copies_history.h"
#include "tests/support/editor_fixture.h"
#include "tests/support/long_run.h"
#include "tests/support/rich_texts.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QTest>

using namespace zeph;

namespace {

using CopiesHistory = test::CopiesHistory<RichText>;

class UndoComparison : public test::EditorTest
{
protected:
    UndoComparison() { settings.of<EditorSettings>().UpdateModified = false; }

    Document &document() { return editor->selected(); }
    TextControl &control() { return editor->view().control(document().kind()); }
    CopiesHistory &copies() { return m_copies[size_t(document().kind())]; }
    UndoHistory &history() { return document().history(); }

    /// Two loaded files of some lines each.
    void begin(quint32 seed)
    {
        chance = std::make_unique<test::RichTextMaker>(seed);
        // Most texts are short; some have many chunks.
        const int most = seed % 20 == 0 ? 400 : 12;
        settings.of<DocumentSettings>().UndoMax = int(10 + chance->upTo(10));
        for (const DocumentKind kind : { DocumentKind::Joystick, DocumentKind::Macro }) {
            editor->documents().of(kind).setState(Document::Saved);
            QByteArray bytes;
            for (int line = chance->upTo(most); line > 0; --line) {
                bytes += "BTN S" + QByteArray::number(line) + " Fire\r\n";
            }
            const bool macro = kind == DocumentKind::Macro;
            const QString path = file(macro ? u"r.tmm"_s : u"r.tmj"_s, bytes);
            editor->opening().OpenFavouriteFile(path);
            copies().start(control().shown().richText(), control().shown().selStart());
        }
    }
    void storeInCopies()
    {
        copies().store(control().shown().richText(), control().shown().selStart());
    }
    void changed()
    {
        copies().changed(control().shown().richText(), control().shown().selStart(),
                         settings.of<DocumentSettings>().UndoMax);
    }

    void typeKey(int key)
    {
        copies().key(key, control().shown().text().isEmpty(), control().shown().selLength() > 0);
        const RichText before = control().shown().richText();
        if (key < 128 && key != Qt::Key_Space) {
            QTest::keyClick(&control(), char(key));
        } else {
            QTest::keyClick(&control(), Qt::Key(key));
        }
        // At an end Backspace and Delete change nothing.
        const bool erases = key == Qt::Key_Backspace || key == Qt::Key_Delete;
        if (!erases || control().shown().richText() != before) {
            changed();
        }
    }
    void typeWords()
    {
        constexpr int keys[] = { 'a',
                                 'b',
                                 'Z',
                                 '/',
                                 Qt::Key_Space,
                                 Qt::Key_Space,
                                 Qt::Key_Return,
                                 Qt::Key_Return,
                                 Qt::Key_Backspace,
                                 Qt::Key_Delete };
        for (int count = 1 + chance->upTo(5); count > 0; --count) {
            typeKey(keys[chance->upTo(9)]);
        }
    }
    void selectSomething(int most)
    {
        control().shown().select(chance->upTo(int(control().shown().text().size())),
                                 chance->upTo(most));
        copies().caretAt(control().shown().selStart());
    }
    void deleteSelection()
    {
        const bool much = chance->upTo(9) == 0;
        selectSomething(much ? 5000 : 30);
        if (control().shown().selLength() > 0) {
            storeInCopies();
            editor->action(u"mnuEditDelete")->trigger();
            changed();
        }
    }
    void paste()
    {
        const bool much = chance->upTo(9) == 0;
        QString text = chance->make(u"cd \n"_s, 20).text + u'e';
        text = much ? text.repeated(60) : text;
        QGuiApplication::clipboard()->setText(text);
        selectSomething(10);
        // A paste is a tool's insert: it begins with putting the present state into its slot.
        storeInCopies();
        editor->action(u"mnuEditPaste")->trigger();
        changed();
    }
    RichText piece()
    {
        RichText text = chance->make(u"xy \n"_s, 12);
        for (ParagraphRun &run : text.paragraphs) {
            // Files have no lists, whose keys are the toolkit's own.
            run.format.bullet = false;
        }
        text.normalise();
        return text;
    }
    void insertAsTool()
    {
        selectSomething(0);
        storeInCopies();
        Change change(document());
        for (int pieces = 1 + chance->upTo(2); pieces > 0; --pieces) {
            document().insert(piece());
        }
        if (!change.commit()) {
            return;
        }
        changed();
    }
    void colour(bool store)
    {
        RichText looks = control().shown().richText();
        for (int stretches = chance->upTo(4); stretches > 0; --stretches) {
            looks.change(chance->upTo(int(looks.text.size())), chance->upTo(40),
                         [this](CharFormat &format) { format = chance->characterFormat(); });
        }
        looks.normalise();
        document().setCharacterRuns(looks.characters);
        if (store) {
            history().storeShown();
            storeInCopies();
        }
    }
    void indent()
    {
        const Document::Quiet quiet(document());
        QTextCursor cursor(control().document());
        cursor.setPosition(chance->upTo(int(control().shown().text().size())));
        QTextBlockFormat format;
        format.setLeftMargin(chance->upTo(2) * 5);
        cursor.setBlockFormat(format);
    }
    void step(bool back)
    {
        CopiesHistory &plain = copies();
        const bool possible = plain.canStep(back);
        QAction *entry = editor->action(back ? u"mnuEditUndo" : u"mnuEditRedo");
        ASSERT_EQ(entry->isEnabled(), possible);
        entry->trigger();
        if (possible) {
            const CopiesHistory::Slot &slot = plain.step(back);
            ASSERT_EQ(control().shown().richText(), slot.text);
            ASSERT_EQ(control().shown().selStart(), slot.caret);
            ASSERT_EQ(control().textCursor().selectionStart(), slot.caret);
        }
    }
    void save()
    {
        settings.of<DocumentSettings>().UndoClearOnSave = int(chance->upTo(1));
        const QString before = control().shown().text();
        editor->saving().SaveText(document());
        ASSERT_EQ(control().shown().text(), before);
        if (settings.of<DocumentSettings>().UndoClearOnSave) {
            copies().start(control().shown().richText(), control().shown().selStart());
        }
    }
    void compareMenus()
    {
        const CopiesHistory &plain = copies();
        ASSERT_EQ(editor->action(u"mnuEditUndo")->text(), plain.undoCaption());
        ASSERT_EQ(editor->action(u"mnuEditRedo")->text(), plain.redoCaption());
    }
    void oneStep()
    {
        switch (chance->upTo(19)) {
        case 0:
        case 1:
        case 2:
        case 3:
        case 4:
            return step(true);
        case 5:
        case 6:
            return step(false);
        case 7:
            return paste();
        case 8:
            return deleteSelection();
        case 9:
            return insertAsTool();
        case 10:
            return colour(true);
        case 11:
            return colour(false);
        case 12:
            return indent();
        case 13:
            return editor->documents().select(DocumentKind(chance->upTo(1)));
        case 14:
            return chance->upTo(3) == 0 ? save() : selectSomething(3);
        default:
            return typeWords();
        }
    }

    std::unique_ptr<test::RichTextMaker> chance;

private:
    std::array<CopiesHistory, 2> m_copies;
};

} // namespace

TEST_F(UndoComparison, RandomSequencesGiveWhatWholeCopiesGive)
{
    const auto sequences = quint32(test::repeats(300, 2000));
    for (quint32 sequence = 0; sequence < sequences; ++sequence) {
        begin(sequence);
        for (int steps = 0; steps < 25; ++steps) {
            oneStep();
            compareMenus();
            if (HasFatalFailure()) {
                FAIL() << "sequence " << sequence << " step " << steps;
            }
        }
        // Whatever is held comes back in the end.
        while (editor->action(u"mnuEditUndo")->isEnabled()) {
            step(true);
            if (HasFatalFailure()) {
                FAIL() << "sequence " << sequence;
            }
        }
    }
}
