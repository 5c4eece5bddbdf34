// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/right_menu.h"

#include "documents/editor_view.h"
#include "editor/actions.h"
#include "menus/menu_actions.h"

#include <QAction>
#include <QCoreApplication>
#include <QMenu>
#include <QStatusTipEvent>

namespace zeph {

RightMenu::RightMenu(EditorView &view, MenuActions &actions) : m_view(view), m_actions(actions)
{
    connect(&view, &EditorView::popUpWanted, this, [this](DocumentKind kind, const QPoint &at) {
        m_view.documents().select(kind);
        build()->exec(at);
    });
}

std::unique_ptr<QMenu> RightMenu::build() const
{
    auto menu = std::make_unique<QMenu>();
    menu->setObjectName(u"mnuRHMouse"_s);
    const bool macro = m_view.documents().selected().kind() == DocumentKind::Macro;
    QMenu *submenu = nullptr;
    for (const RightMenuRow &row : rightMenuTable()) {
        if (row.shown == RightMenuRow::Divider) {
            menu->addSeparator();
            continue;
        }
        if (row.shown == RightMenuRow::Submenu) {
            submenu = menu->addMenu(QString::fromUtf16(row.caption));
            submenu->menuAction()->setObjectName(QString::fromUtf16(row.name));
            continue;
        }
        if (row.shown == (macro ? RightMenuRow::JoystickOnly : RightMenuRow::MacroOnly)) {
            continue;
        }
        QAction *target = m_actions.action(QStringView(row.target));
        const QString caption = QString::fromUtf16(row.caption);
        QMenu &place = row.shown == RightMenuRow::InSubmenu ? *submenu : *menu;
        QAction *entry =
            place.addAction(target->icon(), caption.isEmpty() ? target->text() : caption);
        entry->setObjectName(QString::fromUtf16(row.name));
        entry->setStatusTip(target->statusTip());
        entry->setEnabled(target->isEnabled());
        entry->setCheckable(target->isCheckable());
        entry->setChecked(target->isChecked());
        connect(entry, &QAction::triggered, target, &QAction::trigger);
    }
    // The toolkit sends status tips of a pop-up to the pop-up itself, but the status bar belongs to
    // the window.
    connect(menu.get(), &QMenu::hovered, this,
            [this](const QAction *entry) { showStatusTip(entry->statusTip()); });
    connect(menu.get(), &QMenu::aboutToHide, this, [this] { showStatusTip({}); });
    return menu;
}

void RightMenu::showStatusTip(const QString &tip) const
{
    QStatusTipEvent event(tip);
    QCoreApplication::sendEvent(&m_view, &event);
}

} // namespace zeph
