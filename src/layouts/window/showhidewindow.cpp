// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/window/showhidewindow.h"

#include "layouts/files/sheet_kinds.h"
#include "layouts/window/sheet_model.h"
#include "menus/menu_actions.h"

#include <QAction>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QPushButton>
#include <QVBoxLayout>

#include <array>

namespace zeph {

namespace {

/// In the order of SheetKind.
constexpr std::array<QStringView, 3> names = { u"HideForF22", u"HideForTQS", u"HideForCleo" };

struct Command {
    QStringView name;
    const char16_t *caption;
    QStringView entry;
};

constexpr std::array commands = {
    Command{ u"cmdHideEmpty", u"&Hide all empty textboxes", u"mnuHideEmptyText" },
    Command{ u"cmdShowGrid", u"Show/hide &grid", u"mnuShowGrid" },
    Command{ u"cmdSnap", u"&Snap to grid", u"mnuSnapToGrid_1" },
    Command{ u"cmdResize", u"&Resize to grid", u"mnuResizeToGrid_1" },
    Command{ u"cmdSize", u"&Textbox size", u"mnuTextBoxSize" },
};

constexpr int mostTicksInAColumn = 14;

} // namespace

ShowHideWindow::ShowHideWindow(SheetKind kind, SheetModel &model, MenuActions &actions,
                               QWidget *parent)
    : QDialog(parent), m_model(model)
{
    setObjectName(names[size_t(kind)].toString());
    setWindowTitle(u"Show/Hide textboxes"_s);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(makeTicks(kind));
    layout->addWidget(makeCommands(actions));
    connect(&m_model, &SheetModel::changed, this, &ShowHideWindow::showTicks);
    showTicks();
    m_ticks.front()->setFocus();
}

QWidget *ShowHideWindow::makeTicks(SheetKind kind)
{
    const SheetKindRow &row = sheetKind(kind);
    auto *frame = new QGroupBox(u"The following textboxes are visible"_s, this);
    frame->setObjectName(u"Frame1"_s);
    auto *grid = new QGridLayout(frame);
    const int columns = (row.boxes + mostTicksInAColumn - 1) / mostTicksInAColumn;
    for (int i = 0; i < row.boxes; ++i) {
        auto *tick = new QCheckBox(row.boxNames[size_t(i)].toString(), frame);
        tick->setObjectName(u"Check1_"_s + QString::number(i));
        grid->addWidget(tick, i / columns, i % columns);
        connect(tick, &QCheckBox::clicked, this, [this, i](bool isOn) {
            Sheet sheet = m_model.sheet();
            sheet.boxes[size_t(i)].Visible = isOn;
            m_model.change(std::move(sheet));
        });
        m_ticks.push_back(tick);
    }
    return frame;
}

QWidget *ShowHideWindow::makeCommands(MenuActions &actions)
{
    auto *frame = new QWidget(this);
    auto *grid = new QGridLayout(frame);
    grid->setContentsMargins(0, 0, 0, 0);
    int place = 0;
    const auto add = [&](QStringView name, const QString &caption) {
        auto *button = new QPushButton(caption, frame);
        button->setObjectName(name.toString());
        button->setAutoDefault(false);
        grid->addWidget(button, place / 2, place % 2);
        ++place;
        return button;
    };
    for (const Command &command : commands) {
        QAction *entry = actions.action(command.entry);
        QPushButton *button = add(command.name, QString::fromUtf16(command.caption));
        button->setToolTip(entry->statusTip());
        connect(button, &QPushButton::clicked, entry, &QAction::trigger);
    }
    connect(add(u"cmdClose", u"&Close"_s), &QPushButton::clicked, this, &QDialog::reject);
    return frame;
}

void ShowHideWindow::showTicks()
{
    for (size_t i = 0; i < m_ticks.size(); ++i) {
        m_ticks[i]->setChecked(m_model.sheet().boxes[i].Visible);
    }
}

} // namespace zeph
