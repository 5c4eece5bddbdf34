// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/cool_bar.h"

#include "editor/actions.h"
#include "editor/editor.h"
#include "editor/editor_settings.h"
#include "menus/menu_actions.h"
#include "menus/menu_settings.h"
#include "platform/icons.h"
#include "platform/status_line.h"
#include "settings/settings.h"
#include "settings/shared_settings.h"

#include <QAction>
#include <QEvent>
#include <QMainWindow>
#include <QMouseEvent>
#include <QToolBar>
#include <QToolButton>

namespace zeph {

namespace {

constexpr int iconSize = 20;

QString text(const char16_t *characters)
{
    return QString::fromUtf16(characters);
}

/// Whether a button's tooltip is that of its entry: undo and redo show how many steps they have
/// left.
bool saysSteps(const ToolButtonRow &row)
{
    const QString name = text(row.look.action);
    return name == u"mnuEditUndo" || name == u"mnuEditRedo";
}

bool isCustomApp(const ToolButtonRow &row)
{
    return text(row.look.action).startsWith(u"mnuCustomApp");
}

} // namespace

CoolBar::CoolBar(QMainWindow &window, const Context &context) : QObject(&window), m_context(context)
{
    m_toolbar1 = makeBand(window, u"Toolbar1"_s, u"Main toolbar"_s);
    window.addToolBarBreak();
    m_toolbar2 = makeBand(window, u"Toolbar2"_s, u"Apps toolbar"_s);
    m_shortcuts = makeBand(window, u"Shortcuts"_s, u"Shortcuts"_s);
    fillBand(m_toolbar1, toolbar1Table());
    fillBand(m_toolbar2, toolbar2Table());
    fillBand(m_shortcuts, shortcutTable());
    refresh();
}

QToolBar *CoolBar::makeBand(QMainWindow &window, const QString &name, const QString &title)
{
    auto *band = new QToolBar(title, &window);
    band->setObjectName(name);
    band->setIconSize({ iconSize, iconSize });
    band->setFloatable(false);
    band->setMouseTracking(true);
    band->installEventFilter(this);
    window.addToolBar(Qt::TopToolBarArea, band);
    return band;
}

void CoolBar::fillBand(QToolBar *band, std::span<const ToolButtonRow> rows)
{
    const QString prefix = band == m_shortcuts ? u"Shortcut_"_s : band->objectName() + u'_';
    int place = rows.empty() ? 0 : rows.front().place;
    for (const ToolButtonRow &row : rows) {
        if (row.place > place) {
            band->addSeparator();
        }
        place = row.place + 1;
        auto *control = new QToolButton(band);
        control->setObjectName(prefix + QString::number(row.place));
        control->setIcon(iconNamed(m_context.paths, row.icon));
        control->setIconSize(band->iconSize());
        control->setAutoRaise(true);
        control->setFocusPolicy(Qt::TabFocus);
        control->setMouseTracking(true);
        control->installEventFilter(this);
        connect(control, &QToolButton::clicked, this, [this, &row] { press(row); });
        m_buttons.push_back({ &row, control, band->addWidget(control) });
    }
}

void CoolBar::attach(Editor &editor)
{
    m_editor = &editor;
    for (const ActionRow &row : actionTable()) {
        const QString name = text(row.name);
        if (editor.actions().has(name)) {
            connect(editor.action(name), &QAction::changed, this, &CoolBar::refreshLater);
        }
    }
    refresh();
}

// Entries change by the dozen.
void CoolBar::refreshLater()
{
    if (!m_refreshIsDue) {
        m_refreshIsDue = true;
        QMetaObject::invokeMethod(this, &CoolBar::refresh, Qt::QueuedConnection);
    }
}

void CoolBar::refresh()
{
    m_refreshIsDue = false;
    for (Button &button : m_buttons) {
        follow(button);
    }
    UpdateTooltips();
}

void CoolBar::follow(Button &button)
{
    const QAction *action = target(*button.row);
    if (isCustomApp(*button.row)) {
        // Before the button is enabled: what is shown again is enabled by the toolkit.
        button.visibility->setVisible(action && action->isVisible());
    }
    const bool showsEditor = button.row->look.action[0] == 0;
    button.control->setEnabled(m_editor && (showsEditor || (action && action->isEnabled())));
    button.control->setCheckable(action && action->isCheckable());
    button.control->setChecked(action && action->isChecked());
    button.control->setAccessibleName(tooltipOf(*button.row, choices()));
    const QString lack = action ? m_editor->actions().lackOf(action->objectName()) : QString();
    if (!lack.isEmpty()) {
        button.control->setAccessibleName(button.control->accessibleName() + u" - "_s + lack);
    }
    if (action && saysSteps(*button.row)) {
        button.control->setAccessibleName(action->toolTip());
    }
    if (action && isCustomApp(*button.row)) {
        button.control->setAccessibleName(action->text().replace(u"&&"_s, u"&"_s));
        button.control->setIcon(action->icon());
    }
}

void CoolBar::UpdateTooltips()
{
    const bool shown = m_context.settings.of<MenuSettings>().OKtoShowToolTips;
    for (const Button &button : m_buttons) {
        button.control->setToolTip(shown ? button.control->accessibleName() : QString());
    }
}

void CoolBar::setBandsVisible(bool visible)
{
    for (QToolBar *band : { m_toolbar1, m_toolbar2, m_shortcuts }) {
        band->setVisible(visible);
    }
}

QAction *CoolBar::target(const ToolButtonRow &row) const
{
    if (!m_editor) {
        return nullptr;
    }
    const bool macroSelected = m_editor->selected().kind() == DocumentKind::Macro;
    const QString name = actionOf(lookOf(row, choices()), macroSelected);
    QAction *action = m_editor->actions().has(name) ? m_editor->action(name) : nullptr;
    // Files without a picture of their own get the viewer's default one.
    if (action && !action->isEnabled() && name == u"mnuAppsViewGraphic") {
        action = m_editor->action(u"mnuAppsImageViewer");
    }
    return action;
}

void CoolBar::press(const ToolButtonRow &row)
{
    if (row.look.action[0] == 0) {
        m_editor->show();
        m_editor->ResetFocusToEditor();
        return;
    }
    if (QAction *action = target(row); action && action->isEnabled()) {
        action->trigger();
    }
    // The entry may have refused the change of its tick; the button shows the entry's state.
    refresh();
}

ToolbarChoices CoolBar::choices() const
{
    return { .openBoth = m_context.settings.of<MenuSettings>().OpenBothOnToolbar,
             .saveBoth = m_context.settings.of<MenuSettings>().SaveBothOnToolbar,
             .directXKeyTester = m_context.settings.of<SharedSettings>().DefaultToDX8KeyTester };
}

QString CoolBar::hoverText(const QObject *watched) const
{
    for (const Button &button : m_buttons) {
        if (button.control == watched) {
            const QAction *action = target(*button.row);
            const QString lack =
                action ? m_editor->actions().lackOf(action->objectName()) : QString();
            return lack.isEmpty() ? text(lookOf(*button.row, choices()).status) : lack;
        }
    }
    return watched == m_shortcuts
        ? QString()
        : toolbarGreeting(watched == m_toolbar2,
                          m_context.settings.of<SharedSettings>().PilotCallsign);
}

bool CoolBar::eventFilter(QObject *watched, QEvent *event)
{
    const bool passes = event->type() == QEvent::MouseMove || event->type() == QEvent::Enter;
    // A usable button passes the move on to its band, which must not replace the button's words.
    const auto *band = qobject_cast<QToolBar *>(watched);
    const auto *move =
        event->type() == QEvent::MouseMove ? static_cast<QMouseEvent *>(event) : nullptr;
    const bool overButton = band && move && qobject_cast<QToolButton *>(band->childAt(move->pos()));
    if (passes && !overButton && m_context.settings.of<MenuSettings>().ButtonsOnStatusBar) {
        const QString hover = hoverText(watched);
        if (!hover.isEmpty()) {
            m_context.status.setText(hover);
        }
    }
    return QObject::eventFilter(watched, event);
}

} // namespace zeph
