// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/status_line.h"

namespace zeph {

void StatusLine::setContents(StatusPanel panel, const StatusContents &contents)
{
    StatusContents &shown = m_panels[size_t(panel)];
    if (shown == contents) {
        return;
    }
    const bool hasNewMessage = panel == StatusPanel::Message && shown.text != contents.text;
    shown = contents;
    Q_EMIT changed(panel);
    if (hasNewMessage) {
        Q_EMIT textChanged(text());
    }
}

void StatusLine::setText(const QString &text)
{
    m_showsKeys = false;
    setContents(StatusPanel::Message, { .text = text, .tooltip = textTooltip() });
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
    setContents(StatusPanel::Message, { .text = text(), .tooltip = tooltip });
}

void StatusLine::setLine(int line)
{
    setContents(StatusPanel::Line, { .text = u"Line no: "_s + QString::number(line) });
}

void StatusLine::setSaved(int picture, const QString &tooltip)
{
    setContents(StatusPanel::Saved, { .picture = picture, .tooltip = tooltip });
}

void StatusLine::setOtherSaved(int picture, const QString &tooltip)
{
    setContents(StatusPanel::OtherSaved, { .picture = picture, .tooltip = tooltip });
}

void StatusLine::setModePicture(int picture)
{
    setContents(StatusPanel::Mode,
                { .picture = picture, .tooltip = contents(StatusPanel::Mode).tooltip });
}

void StatusLine::setModeTooltip(const QString &tooltip)
{
    setContents(StatusPanel::Mode, { .picture = modePicture(), .tooltip = tooltip });
}

void StatusLine::setStandIns(bool inUse)
{
    setContents(StatusPanel::StandIns,
                inUse ? StatusContents{ .text = u"Stand-in tools"_s,
                                        .tooltip = u"The tools in use are the stand-ins that come "
                                                   "with Zeph: they check files, and nothing "
                                                   "reaches a stick."_s }
                      : StatusContents{});
}

} // namespace zeph
