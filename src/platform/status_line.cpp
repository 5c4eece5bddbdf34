// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/status_line.h"

namespace zeph {

void StatusLine::setText(const QString &text)
{
    m_showsKeys = false;
    if (m_text != text) {
        m_text = text;
        Q_EMIT textChanged(text);
    }
}

void StatusLine::setKeys(const QString &keys)
{
    setText(keys);
    m_showsKeys = true;
}

void StatusLine::setTextNow(const QString &text)
{
    setText(text);
    Q_EMIT repaintWanted();
}

void StatusLine::setTextTooltip(const QString &tooltip)
{
    if (m_textTooltip != tooltip) {
        m_textTooltip = tooltip;
        Q_EMIT textTooltipChanged(tooltip);
    }
}

void StatusLine::setLine(int line)
{
    const QString text = u"Line no: "_s + QString::number(line);
    if (m_lineText != text) {
        m_lineText = text;
        Q_EMIT lineTextChanged(text);
    }
}

void StatusLine::setSaved(int picture, const QString &tooltip)
{
    if (m_savedPicture != picture || m_savedTooltip != tooltip) {
        m_savedPicture = picture;
        m_savedTooltip = tooltip;
        Q_EMIT savedChanged(picture, tooltip);
    }
}

void StatusLine::setModePicture(int picture)
{
    if (m_modePicture != picture) {
        m_modePicture = picture;
        Q_EMIT modePictureChanged(picture);
    }
}

} // namespace zeph
