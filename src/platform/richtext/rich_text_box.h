// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/rich_text.h"

#include <QTextEdit>

#include <functional>
#include <memory>

namespace zeph {

/// A rich text control for windows that show or edit formatted text: the operations of
/// rich_text_document.h on a widget. Positions are 0-based, in UTF-16 units.
class RichTextBox : public QTextEdit
{
    Q_OBJECT
public:
    explicit RichTextBox(QWidget *parent = nullptr);

    RichText richText() const;
    void setRichText(const RichText &text);
    /// Shows another document, which was filled beforehand, in place of its own.
    void adopt(std::unique_ptr<QTextDocument> document);

    int selStart() const;
    int selLength() const;
    QString selText() const;
    void select(int start, int length);
    /// Scrolls so that the stretch is seen, at the top of the view where possible.
    void scrollTo(int position);
    /// Searches as findText() does over the whole text; selects and scrolls to a hit, whose
    /// position it gives, or -1.
    int find(QStringView word, int from, int options);

protected:
    /// Lets Shift+Enter start a line like Enter, since the only line end of a text is '\n'.
    void keyPressEvent(QKeyEvent *event) override;
    /// The clipboard gives and takes what a rich text can hold: no pictures or tables, which would
    /// be seen and then be lost by a save.
    QMimeData *createMimeDataFromSelection() const override;
    bool canInsertFromMimeData(const QMimeData *source) const override;
    void insertFromMimeData(const QMimeData *source) override;

private:
    void watchDocument();
    void showText(bool hasLongWord, const std::function<void()> &show);
    void wrapLongWords(int position, int added);
    void leaveLink();
};

} // namespace zeph
