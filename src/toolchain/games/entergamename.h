// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/paths.h"
#include "toolchain/games/games.h"

#include <QDialog>

#include <memory>

namespace zeph {

class Dialogs;
class GameFields;

namespace Ui {
class EnterGameName;
}

/// Asks for a game and what the Cougar needs for it. The list of games is left to the caller.
class EnterGameName : public QDialog
{
    Q_OBJECT
public:
    /// Suggests a joystick file; if its path is empty, Windows mode.
    EnterGameName(const Paths &paths, Dialogs &dialogs, const QString &joystickFile,
                  QWidget *parent = nullptr);
    ~EnterGameName() override;

    Game game() const;

private:
    void update();

    std::unique_ptr<Ui::EnterGameName> m_ui;
    GameFields *m_fields;
};

} // namespace zeph
