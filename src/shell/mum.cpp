// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/mum.h"

#include "documents/editor_view.h"
#include "editor/editor.h"
#include "menus/menu_actions.h"
#include "platform/core/units.h"
#include "platform/icons.h"
#include "platform/status_line.h"
#include "platform/tool_windows.h"
#include "shell/cool_bar.h"
#include "shell/main_status_bar.h"
#include "shell/settings/shell_settings.h"

#include <QAction>
#include <QCloseEvent>
#include <QMenuBar>
#include <QScreen>
#include <QStatusTipEvent>

namespace zeph {

Mum::Mum(const Context &context)
    : m_context(context), m_toolWindows(new ToolWindows(this)),
      m_coolBar(new CoolBar(*this, context)), m_bar(new MainStatusBar(context, this))
{
    setObjectName(u"Mum"_s);
    setWindowTitle(u"Zeph"_s);
    setWindowIcon(iconNamed(context.paths, u"zeph"));
    setStatusBar(m_bar);
    connect(m_bar, &MainStatusBar::endPressed, this,
            [this](StatusPress press) { pressAtEnd(int(press)); });
}

Mum::~Mum()
{
    // Tool windows may hold references into the Editor, which goes with the window's children.
    m_toolWindows->unloadAll();
}

void Mum::attachEditor(Editor *editor)
{
    m_editor = editor;
    setCentralWidget(editor);
    editor->actions().addTo(*menuBar());
    m_coolBar->attach(*editor);
    connect(&editor->documents(), &Documents::selectedChanged, m_coolBar, &CoolBar::refresh);
}

WindowPlace Mum::place() const
{
    const auto state = isMinimized() ? WindowState::Minimised
        : isMaximized()              ? WindowState::Maximised
                                     : WindowState::Normal;
    return { .left = double(twipsFromPixels(x())),
             .top = double(twipsFromPixels(y())),
             .width = double(twipsFromPixels(width())),
             .height = double(twipsFromPixels(height())),
             .state = state };
}

void Mum::setPlace(const WindowPlace &place)
{
    if (place.state == WindowState::Maximised) {
        // The size for a later restore. The first dialogs open over this place, before the system
        // has maximised the window.
        resize(pixelsFromTwips(defaultOf(&ShellSettings::MumWidthAtStartup)),
               pixelsFromTwips(defaultOf(&ShellSettings::MumHeightAtStartup)));
        QRect restored = rect();
        restored.moveCenter(screen()->availableGeometry().center());
        move(restored.topLeft());
        setWindowState(windowState() | Qt::WindowMaximized);
        return;
    }
    resize(pixelsFromTwips(place.width), pixelsFromTwips(place.height));
    move(pixelsFromTwips(place.left), pixelsFromTwips(place.top));
}

void Mum::UpdateTooltips()
{
    m_coolBar->UpdateTooltips();
}

void Mum::HideShowTheCoolbar()
{
    m_coolBar->setBandsVisible(!isMinimized());
}

void Mum::refreshToolbars()
{
    m_coolBar->refresh();
}

void Mum::pressAtEnd(int press)
{
    if (!m_editor) {
        return;
    }
    if (StatusPress(press) == StatusPress::Compile) {
        // Not through the menu entry, which is off on the macro tab: the bar's end always compiles.
        Q_EMIT compileWanted();
        return;
    }
    MenuActions &actions = m_editor->actions();
    actions
        .action(m_editor->selected().kind() == DocumentKind::Joystick ? u"mnuViewColourJoystick"
                                                                      : u"mnuViewColourMacro")
        ->trigger();
    actions.action(u"mnuFileSave")->trigger();
    actions.action(u"mnuMacrosIdentify")->trigger();
}

void Mum::showStatusTip(const QString &tip)
{
    if (!tip.isEmpty()) {
        if (!m_textBelowTip) {
            m_textBelowTip = m_context.status.text();
        }
        m_context.status.setText(tip);
    } else if (m_textBelowTip) {
        m_context.status.setText(*std::exchange(m_textBelowTip, std::nullopt));
    }
}

bool Mum::event(QEvent *event)
{
    if (event->type() == QEvent::StatusTip) {
        showStatusTip(static_cast<QStatusTipEvent *>(event)->tip());
        return true;
    }
    return QMainWindow::event(event);
}

void Mum::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() != QEvent::WindowStateChange) {
        return;
    }
    HideShowTheCoolbar();
    if (isMinimized()) {
        m_toolWindows->minimiseAll();
    } else {
        m_toolWindows->restoreAll();
    }
}

void Mum::closeEvent(QCloseEvent *event)
{
    if (queryUnload && !queryUnload()) {
        event->ignore();
        return;
    }
    Q_EMIT unloading();
    event->accept();
}

} // namespace zeph
