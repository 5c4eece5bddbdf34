// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/window/box_editor.h"

#include "layouts/draw/box_text.h"
#include "platform/richtext/rich_text_document.h"

#include <QAbstractTextDocumentLayout>
#include <QKeyEvent>

#include <cmath>

namespace zeph {

BoxEditor::BoxEditor(QWidget *parent) : RichTextBox(parent)
{
    setObjectName(u"TxtRTF"_s);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    const int padding = int(std::lround(boxPadding));
    setViewportMargins(padding, padding, padding, padding);
    setAccessibleName(u"Text box"_s);
    setTabChangesFocus(false);
    // The sheet is paper: black on white whatever the desktop looks like.
    QPalette paper = palette();
    paper.setColor(QPalette::Base, Qt::transparent);
    paper.setColor(QPalette::Text, Qt::black);
    paper.setColor(QPalette::Highlight, QColor(180, 210, 245));
    paper.setColor(QPalette::HighlightedText, Qt::black);
    setPalette(paper);
    viewport()->setAutoFillBackground(false);
    setUp();
}

void BoxEditor::setUp()
{
    setUpBoxDocument(*document(), m_plain);
}

void BoxEditor::setPlain(const CharFormat &plain)
{
    m_plain = plain;
    setUp();
}

void BoxEditor::showBoxText(const RichText &text, bool keepsSelection)
{
    const int start = selStart();
    const int length = selLength();
    setRichText(text);
    setUp();
    if (keepsSelection) {
        const int most = int(text.text.size());
        select(std::min(start, most), std::min(length, most - std::min(start, most)));
    }
}

bool BoxEditor::isOverflowing() const
{
    return document()->documentLayout()->documentSize().height() > viewport()->height();
}

bool BoxEditor::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        auto *key = static_cast<QKeyEvent *>(event);
        if (key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo)
            || (key->modifiers() == Qt::ControlModifier && key->key() == Qt::Key_Y)) {
            event->ignore();
            return true;
        }
    }
    return RichTextBox::event(event);
}

} // namespace zeph
