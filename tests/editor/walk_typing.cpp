// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/undo_histories.h"
#include "platform/core/rtf.h"
#include "platform/richtext/rich_text_mime.h"
#include "tests/editor/walk.h"

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QUrl>

namespace zeph::test {

namespace {

void typeKeys(Walk &walk)
{
    constexpr int keys[] = { 'a',
                             'B',
                             '/',
                             '=',
                             Qt::Key_Tab,
                             Qt::Key_Space,
                             Qt::Key_Space,
                             Qt::Key_Return,
                             Qt::Key_Return,
                             Qt::Key_Backspace,
                             Qt::Key_Delete };
    for (int count = 1 + walk.upTo(5); count > 0; --count) {
        walk.typeKey(keys[walk.upTo(int(std::size(keys)) - 1)]);
    }
}

void typeWord(Walk &walk)
{
    const QString word = walk.word();
    for (const QChar character : word) {
        walk.typeKey(character.unicode());
    }
}

void typeStranger(Walk &walk)
{
    walk.typeKey(walk.oneIn(3) ? 0x3C0 : 0xE9);
}

void moveCaret(Walk &walk)
{
    constexpr int keys[] = { Qt::Key_Left, Qt::Key_Right, Qt::Key_Up,
                             Qt::Key_Down, Qt::Key_Home,  Qt::Key_End };
    const int key = keys[walk.upTo(5)];
    walk.sendKey(key, {}, walk.oneIn(3) ? Qt::ShiftModifier : Qt::NoModifier);
    walk.document().follow(walk.shown().cursor().anchor(), walk.shown().cursor().position());
    if (walk.coloursTyping() && key == Qt::Key_Right) {
        walk.document().paintLines();
    }
}

void selectStretch(Walk &walk)
{
    walk.selectSome();
}

void selectAll(Walk &walk)
{
    walk.document().follow(0, int(walk.document().text().size()));
    walk.trigger(u"mnuEditSelectAll");
}

void placeCaret(Walk &walk)
{
    const int at = walk.upTo(int(walk.document().text().size()));
    walk.select(at, at);
}

void removeSelection(Walk &walk)
{
    if (walk.oneIn(2)) {
        walk.selectSome();
    }
    if (walk.document().selLength() > 0) {
        walk.document().begin();
        const int start = walk.document().selStart();
        walk.document().replace(start, walk.document().selLength(), {});
        walk.document().put(start, start);
        walk.document().commit();
    }
}

void cut(Walk &walk)
{
    removeSelection(walk);
    walk.run(u"mnuEditCut", Qt::Key_X);
}

void remove(Walk &walk)
{
    removeSelection(walk);
    walk.trigger(u"mnuEditDelete");
}

void copy(Walk &walk)
{
    walk.selectSome();
    walk.run(u"mnuEditCopy", Qt::Key_C);
}

RichText piece(Walk &walk)
{
    RichText text = walk.chance.make(u"xy S1\n"_s, 20);
    text.paragraphs = RichText::plain(text.text).paragraphs;
    return text;
}

/// What pasted text becomes: the plain font, and colours, italics and lines below as they are.
WalkText pasted(Walk &walk, const RichText &text)
{
    WalkText result = WalkText::of(text);
    const CharFormat plain = walk.document().plainLook().format;
    for (WalkLook &look : result.looks) {
        CharFormat format = plain;
        format.italic = look.format.italic;
        format.underline = look.format.underline;
        format.colour = look.format.colour ? look.format.colour : plain.colour;
        look.format = format;
    }
    return result;
}

void paste(Walk &walk)
{
    if (walk.oneIn(3)) {
        QApplication::clipboard()->setText(walk.word() + u"\n"_s);
    } else if (walk.oneIn(2)) {
        QApplication::clipboard()->setMimeData(new RichTextMime(piece(walk)));
    }
    if (walk.oneIn(2)) {
        walk.selectSome();
    }
    const QMimeData *data = QApplication::clipboard()->mimeData();
    if (!data || data->text().isEmpty()) {
        return;
    }
    const bool isSimple = walk.oneIn(3);
    const auto rich = readRtf(data->data(u"text/rtf"_s));
    walk.document().begin();
    walk.document().insert(!isSimple && rich && !rich->text.isEmpty()
                               ? pasted(walk, *rich)
                               : WalkText::of(data->text(), walk.document().plainLook()));
    walk.document().commit();
    if (isSimple) {
        walk.trigger(u"mnuPasteSimple");
    } else {
        walk.run(u"mnuEditPaste", Qt::Key_V);
    }
}

void steps(Walk &walk, bool back)
{
    for (int count = walk.oneIn(8) ? 20 : 1 + walk.upTo(2); count > 0; --count) {
        walk.document().undo(back);
        back ? walk.run(u"mnuEditUndo", Qt::Key_Z) : walk.run(u"mnuEditRedo", Qt::Key_Y);
    }
}

void undo(Walk &walk)
{
    steps(walk, true);
}

void redo(Walk &walk)
{
    steps(walk, false);
}

void drop(Walk &walk)
{
    const QPoint point(walk.upTo(200), walk.upTo(100));
    const bool isFile = walk.oneIn(3);
    QMimeData data;
    if (isFile) {
        // Files are opened from the menus; a text takes none.
        data.setUrls({ QUrl::fromLocalFile(walk.model.settings.folder + u"a.tmj"_s) });
    } else {
        data.setText(walk.word());
    }
    QDragEnterEvent enter(point, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(walk.control().viewport(), &enter);
    if (!isFile) {
        // Only now, since the blink of an undone line ends when something is dragged in.
        walk.document().drop(walk.control().cursorForPosition(point).position(),
                             WalkText::of(data.text(), walk.document().plainLook()));
    }
    QDropEvent event(point, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(walk.control().viewport(), &event);
}

void deleteUndos(Walk &walk)
{
    for (const DocumentKind kind : bothKinds) {
        walk.model.of(kind).document.clearUndos();
    }
    walk.editor->undos().DeleteUndosFromMemory();
}

void otherTab(Walk &walk)
{
    walk.model.select(walk.document().kind() == DocumentKind::Joystick ? DocumentKind::Macro
                                                                       : DocumentKind::Joystick);
    walk.trigger(u"mnuViewOtherFile");
}

constexpr WalkAction allTyping[] = {
    { "type keys", 14, typeKeys },
    { "type a word", 10, typeWord },
    { "type a strange letter", 1, typeStranger },
    { "move the caret", 8, moveCaret },
    { "place the caret", 6, placeCaret },
    { "select", 6, selectStretch },
    { "select all", 1, selectAll },
    { "cut", 3, cut },
    { "copy", 3, copy },
    { "paste", 6, paste },
    { "delete", 3, remove },
    { "undo", 12, undo },
    { "redo", 7, redo },
    { "delete the undos", 1, deleteUndos },
    { "other tab", 6, otherTab },
    { "drop", 2, drop },
};

} // namespace

std::span<const WalkAction> typingActions()
{
    return allTyping;
}

} // namespace zeph::test
