// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"
#include "platform/core/base.h"
#include "platform/status_line.h"

#include <QStatusBar>

class QLabel;

namespace zeph {

// What the mouse over the main window's status bar means. Distances are in twips from the bar's
// left end.

/// What panel 1 shows for the mouse's place.
struct StatusHover {
    /// The text for panel 1; empty where the Cougar's mode is shown instead.
    QString text;
    bool wantsModeTooltip = false;
};

/// Left edges of panels 2 and 3.
struct StatusPanelEdges {
    int panel2 = 0;
    int panel3 = 0;
};

StatusHover statusBarHover(int xTwips, const StatusPanelEdges &edges, bool selectorOn,
                           const QString &callsign);

enum class StatusPress { None, ColourAndSave, Compile };

/// What a press means: the bar's left end colours and saves with the left button, compiles with the
/// right one.
StatusPress statusBarPress(int xTwips, bool rightButton);

/// The main window's status bar. Shows the status line's panels and turns the mouse's place into
/// meaning; signals tell what a press is for.
class MainStatusBar : public QStatusBar
{
    Q_OBJECT
public:
    explicit MainStatusBar(const Context &context, QWidget *parent = nullptr);

    /// Left edges of panels 2 and 3 in twips.
    StatusPanelEdges edges() const;
    /// The tooltip of panel 2.
    QString modeTooltip() const;

Q_SIGNALS:
    void endPressed(zeph::StatusPress press);
    /// The mouse is over the mode picture with the selector on.
    void modeTooltipWanted();
    void modePanelClicked(Qt::MouseButton button);

protected:
    bool event(QEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    QLabel *makePanel(StatusPanel panel);
    QLabel &panel(StatusPanel panel) const { return *m_panels[qsizetype(panel)]; }
    void showPanel(StatusPanel shown);

    Context m_context;
    QLabel *m_message;
    QList<QLabel *> m_panels; ///< in the order of StatusPanel
};

} // namespace zeph
