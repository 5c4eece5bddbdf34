// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"
#include "shell/settings/settings_moments.h"

#include <QMainWindow>

#include <functional>

namespace zeph {

class CoolBar;
class Editor;
class MainStatusBar;
class ToolWindows;

/// The main window's title, with "[*]" where the toolkit marks a changed document. The file's name
/// is left out when it is empty.
QString mumTitle(const QString &fileName, bool isFurther);

/// The main window: menus, toolbars and status bar around its one permanent child, the Editor.
class Mum : public QMainWindow
{
    Q_OBJECT
public:
    explicit Mum(const Context &context);
    ~Mum() override;

    /// Says in the title that this is not the first instance.
    void setFurther();
    /// Makes the Editor the window's content and puts its menus on the menu bar. The title follows
    /// the selected document from then on.
    void attachEditor(Editor *editor);

    ToolWindows &toolWindows() { return *m_toolWindows; }
    MainStatusBar &bar() { return *m_bar; }

    /// The window's place, in twips.
    WindowPlace place() const;
    void setPlace(const WindowPlace &place);

    /// Sets or clears every tooltip of the toolbars, by OKtoShowToolTips.
    void UpdateTooltips();
    /// Shows the bands of the toolbars, unless the window is minimised.
    void HideShowTheCoolbar();
    /// Brings the buttons up to date with settings and selected tab.
    void refreshToolbars();

    /// Asked before the window closes; false keeps it open.
    std::function<bool()> queryUnload;

    QMenu *createPopupMenu() override { return nullptr; }

Q_SIGNALS:
    /// The status bar's end was pressed for a compile.
    void compileWanted();
    /// The window is about to close for good; place() still works.
    void unloading();

protected:
    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void pressAtEnd(int press);
    void updateTitle();
    void showStatusTip(const QString &tip);

    Context m_context;
    ToolWindows *m_toolWindows;
    CoolBar *m_coolBar;
    MainStatusBar *m_bar;
    Editor *m_editor = nullptr;
    bool m_isFurther = false;
    /// What panel 1 read before a menu entry described itself there.
    std::optional<QString> m_textBelowTip;
};

} // namespace zeph
