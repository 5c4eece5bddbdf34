// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

#include <QObject>

namespace zeph {

/// The panels of the main window's status bar as values: any room writes them, the bar shows them.
class StatusLine : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;

    /// Panel 1, the message line.
    const QString &text() const { return m_text; }
    void setText(const QString &text);
    /// The same with a macro's keys, which a change of tabs leaves.
    void setKeys(const QString &keys);
    bool showsKeys() const { return m_showsKeys; }
    /// Shows the text at once, for an operation that will not return to the event loop soon.
    /// Nothing but the panel is repainted: no event is handled, no timer fires.
    void setTextNow(const QString &text);
    /// Panel 1's tooltip: what the macro list holds.
    const QString &textTooltip() const { return m_textTooltip; }
    void setTextTooltip(const QString &tooltip);

    /// The panel with "Line no: " and the caret's 1-based line.
    const QString &lineText() const { return m_lineText; }
    void setLine(int line);

    /// The saved state's picture of the selected document (1 empty, 2 saved, 3 modified) and its
    /// tooltip.
    int savedPicture() const { return m_savedPicture; }
    const QString &savedTooltip() const { return m_savedTooltip; }
    void setSaved(int picture, const QString &tooltip);

    /// The Cougar's mode picture: 1 selector off, 2 Windows mode, 3 Programmed mode, 4 unknown.
    int modePicture() const { return m_modePicture; }
    void setModePicture(int picture);

Q_SIGNALS:
    void textChanged(const QString &text);
    /// The message line is to be on the screen before this returns.
    void repaintWanted();
    void textTooltipChanged(const QString &tooltip);
    void lineTextChanged(const QString &text);
    void savedChanged(int picture, const QString &tooltip);
    void modePictureChanged(int picture);

private:
    QString m_text;
    bool m_showsKeys = false;
    QString m_textTooltip;
    QString m_lineText;
    int m_savedPicture = 1;
    QString m_savedTooltip;
    int m_modePicture = 1;
};

} // namespace zeph
