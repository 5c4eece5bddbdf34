// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"
#include "shell/toolbar_table.h"

#include <QObject>

#include <vector>

class QAction;
class QMainWindow;
class QToolBar;
class QToolButton;

namespace zeph {

class Editor;

/// The toolbars of the main window: two movable bands of buttons and the three shortcut pictures.
/// Each button runs a menu entry and can be used when that can; one shows the Editor instead.
class CoolBar : public QObject
{
    Q_OBJECT
public:
    CoolBar(QMainWindow &window, const Context &context);

    /// Connects the buttons with the Editor's entries; before that all are disabled.
    void attach(Editor &editor);
    /// Brings the buttons up to date with the settings and the selected tab.
    void refresh();
    /// Tooltips on or off, by OKtoShowToolTips.
    void UpdateTooltips();
    void setBandsVisible(bool visible);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Button {
        const ToolButtonRow *row;
        QToolButton *control;
        /// Custom applications show only while they are in use.
        QAction *visibility;
    };

    QToolBar *makeBand(QMainWindow &window, const QString &name, const QString &title);
    void fillBand(QToolBar *band, std::span<const ToolButtonRow> rows);
    void refreshLater();
    QAction *target(const ToolButtonRow &row) const;
    void press(const ToolButtonRow &row);
    void follow(Button &button);
    ToolbarChoices choices() const;
    QString hoverText(const QObject *watched) const;

    Context m_context;
    Editor *m_editor = nullptr;
    QToolBar *m_toolbar1;
    QToolBar *m_toolbar2;
    QToolBar *m_shortcuts;
    std::vector<Button> m_buttons;
    bool m_refreshIsDue = false;
};

} // namespace zeph
