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
#include "platform/window_places.h"
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
    updateTitle();
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

QString mumTitle(const QString &fileName, bool isFurther)
{
    QString file = fileName;
    // A name that holds the toolkit's mark keeps it when the mark is doubled.
    file.replace(u"[*]"_s, u"[*][*]"_s);
    return (file.isEmpty() ? QString() : file + u"[*] - "_s) + u"Zeph"_s
        + (isFurther ? u" - secondary window"_s : QString());
}

void Mum::setFurther()
{
    m_isFurther = true;
    updateTitle();
}

void Mum::updateTitle()
{
    setWindowTitle(mumTitle(m_editor ? m_editor->selected().name() : QString(), m_isFurther));
    setWindowModified(m_editor && m_editor->selected().isModified());
}

void Mum::attachEditor(Editor *editor)
{
    m_editor = editor;
    setCentralWidget(editor);
    editor->actions().addTo(*menuBar());
    m_coolBar->attach(*editor);
    connect(&editor->documents(), &Documents::selectedChanged, m_coolBar, &CoolBar::refresh);
    connect(&editor->documents(), &Documents::selectedChanged, this, &Mum::updateTitle);
    editor->documents().forEach([this](Document &each) {
        connect(&each, &Document::renamed, this, &Mum::updateTitle);
        connect(&each, &Document::stateChanged, this, &Mum::updateTitle);
    });
    updateTitle();
}

WindowPlace Mum::place() const
{
    const auto state = isMinimized() ? WindowState::Minimised
        : isMaximized()              ? WindowState::Maximised
                                     : WindowState::Normal;
    const QRect place = normalPlace(*this);
    return { .left = double(twipsFromPixels(place.x())),
             .top = double(twipsFromPixels(place.y())),
             .width = double(twipsFromPixels(place.width())),
             .height = double(twipsFromPixels(place.height())),
             .state = state };
}

void Mum::setPlace(const WindowPlace &place)
{
    const QRect wanted(pixelsFromTwips(place.left), pixelsFromTwips(place.top),
                       pixelsFromTwips(place.width), pixelsFromTwips(place.height));
    if (place.state != WindowState::Maximised) {
        restorePlace(*this, wanted);
        return;
    }
    const QRect usual(0, 0, pixelsFromTwips(defaultOf(&ShellSettings::MumWidthAtStartup)),
                      pixelsFromTwips(defaultOf(&ShellSettings::MumHeightAtStartup)));
    const QRect available = screen()->availableGeometry();
    // A maximised window's own size, which older stores hold, is none to go back to.
    const bool coversScreen =
        wanted.width() >= available.width() && wanted.height() >= available.height();
    if (wanted.isEmpty() || wanted == usual || coversScreen) {
        // The first dialogs open over this place, before the system has maximised the window.
        QRect centred = usual;
        centred.moveCenter(available.center());
        setGeometry(centred);
    } else {
        restorePlace(*this, wanted);
    }
    setWindowState(windowState() | Qt::WindowMaximized);
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
