// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"
#include "shell/status_bar_rules.h"

#include <QStatusBar>

class QLabel;

namespace zeph {

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
    void setModeTooltip(const QString &tooltip);

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
    QLabel *makePanel(int number, const QString &accessibleName);
    void showMode(int picture);
    void showSaved(int picture, const QString &tooltip);

    Context m_context;
    QLabel *m_message;
    QLabel *m_mode;
    QLabel *m_line;
    QLabel *m_saved;
};

} // namespace zeph
