// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

#include <QObject>

#include <array>

namespace zeph {

/// The panels of the main window's status bar from left to right.
enum class StatusPanel { Message, Mode, Line, Saved, OtherSaved, StandIns };
constexpr size_t statusPanels = size_t(StatusPanel::StandIns) + 1;

/// What a panel shows.
struct StatusContents {
    QString text = {};
    /// One of the panel's pictures, from 1; a panel without pictures shows its text. A panel of
    /// pictures is hidden at 0.
    int picture = 0;
    QString tooltip = {};

    friend bool operator==(const StatusContents &, const StatusContents &) = default;
};

/// The panels of the main window's status bar as values: any room writes them, the bar shows them.
class StatusLine : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;

    const StatusContents &contents(StatusPanel panel) const { return m_panels[size_t(panel)]; }
    void setContents(StatusPanel panel, const StatusContents &contents);

    /// The message line.
    const QString &text() const { return contents(StatusPanel::Message).text; }
    void setText(const QString &text);
    /// The same with a macro's keys, which a change of tabs leaves.
    void setKeys(const QString &keys);
    bool showsKeys() const { return m_showsKeys; }
    /// Shows the text at once, for an operation that will not return to the event loop soon.
    /// Nothing but the panel is repainted: no event is handled, no timer fires.
    void setTextNow(const QString &text);
    /// The message line's tooltip: what the macro list holds.
    const QString &textTooltip() const { return contents(StatusPanel::Message).tooltip; }
    void setTextTooltip(const QString &tooltip);

    /// The panel with "Line no: " and the caret's 1-based line.
    const QString &lineText() const { return contents(StatusPanel::Line).text; }
    void setLine(int line);

    /// The saved state's picture of the selected document (1 empty, 2 saved, 3 modified) and its
    /// tooltip.
    int savedPicture() const { return contents(StatusPanel::Saved).picture; }
    const QString &savedTooltip() const { return contents(StatusPanel::Saved).tooltip; }
    void setSaved(int picture, const QString &tooltip);
    /// The same for the document that is shown beside the selected one; 0 when none is.
    void setOtherSaved(int picture, const QString &tooltip);

    /// The Cougar's mode picture: 1 selector off, 2 Windows mode, 3 Programmed mode, 4 unknown.
    int modePicture() const { return contents(StatusPanel::Mode).picture; }
    void setModePicture(int picture);
    void setModeTooltip(const QString &tooltip);

    /// Whether the tools in use are the stand-ins, so that nothing reaches a Cougar.
    bool standIns() const { return !contents(StatusPanel::StandIns).text.isEmpty(); }
    void setStandIns(bool inUse);

Q_SIGNALS:
    void changed(zeph::StatusPanel panel);
    /// The message line says something else now.
    void textChanged(const QString &text);
    /// The message line is to be on the screen before this returns.
    void repaintWanted();

private:
    bool m_showsKeys = false;
    std::array<StatusContents, statusPanels> m_panels{ {
        {},
        { .picture = 1, .tooltip = u"Cougar mode selector is off"_s },
        {},
        { .picture = 1 },
        {},
        {},
    } };
};

} // namespace zeph
