// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/games/entergamename.h"

#include "platform/core/storable.h"
#include "toolchain/games/gamefields.h"
#include "ui_entergamename.h"

namespace zeph {

EnterGameName::EnterGameName(const Paths &paths, Dialogs &dialogs, const QString &joystickFile,
                             QWidget *parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::EnterGameName>()),
      m_fields(new GameFields(paths, dialogs, this))
{
    m_ui->setupUi(this);
    m_ui->layoutPage->insertWidget(0, m_fields);
    m_fields->setGame(startingGame(paths.filesFolder(), joystickFile));
    m_fields->showSample();
    connect(m_fields, &GameFields::edited, this, &EnterGameName::update);
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &EnterGameName::accept);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &EnterGameName::reject);
    update();
}

EnterGameName::~EnterGameName() = default;

void EnterGameName::update()
{
    const Game now = game();
    bool storable = true;
    for (const QString &text : { now.GameName, now.GamePath, now.GameDIRPath, now.GameJF }) {
        storable = storable && isStorable(text);
    }
    m_ui->cmdOK->setEnabled(storable && !now.GameName.isEmpty() && !now.GamePath.isEmpty());
}

Game EnterGameName::game() const
{
    return m_fields->game();
}

} // namespace zeph
