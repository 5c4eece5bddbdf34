// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/rich_text.h"

#include <QPlainTextEdit>

namespace zeph {

/// One of the Editor's two texts: shows a document's text and colours, unwrapped, so that a line is
/// always a line of the file. Keeps no undo of its own. Positions are 0-based characters.
class TextControl : public QPlainTextEdit
{
    Q_OBJECT
public:
    explicit TextControl(QWidget *parent = nullptr);

    /// Background of the whole control and the format of plain text.
    void setLook(ColorRef background, const CharFormat &plain);
    const CharFormat &plainFormat() const { return m_plain; }

    /// The text, every character as it is (the toolkit's own call changes some blanks).
    QString text() const;
    RichText richText() const;
    void setText(const QString &text);
    void setRichText(const RichText &text);
    /// Replaces a stretch, in the format that stands there; caret and selection of the user move
    /// along.
    void replace(int start, int length, const QString &text);

    int selStart() const;
    int selLength() const;
    void select(int start, int length);
    /// 1-based line of the caret.
    int caretLine() const;

    /// Where the user is in the text: the selection, with its direction, and what is seen of it.
    struct Place {
        int anchor = 0;
        int caret = 0;
        int across = 0; ///< of the scroll bars
        int down = 0;
    };
    Place place() const;
    void setPlace(const Place &place);

    /// Guards the text against the user; the caret still moves and text can still be selected.
    void setLocked(bool on);

Q_SIGNALS:
    /// The text has got the focus.
    void focused();

protected:
    void focusInEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    QMimeData *createMimeDataFromSelection() const override;
    bool canInsertFromMimeData(const QMimeData *source) const override;
    void insertFromMimeData(const QMimeData *source) override;

private:
    CharFormat m_plain;
};

} // namespace zeph
