// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/paths.h"
#include "toolchain/games/games.h"

#include <QWidget>

#include <QDialog>
#include <memory>

class QLineEdit;

namespace zeph {

class Dialogs;

namespace Ui {
class GameFields;
}

/// The fields of one game, a part of every window in which games are edited.
class GameFields : public QWidget
{
    Q_OBJECT
public:
    GameFields(const Paths &paths, Dialogs &dialogs, QWidget *parent = nullptr);
    ~GameFields() override;

    /// Shows a game, without emitting edited().
    void setGame(const Game &game);
    /// What the fields say, trimmed. A mode that is none of the three is kept until the user
    /// touches one of the ticks.
    Game game() const;
    /// Gives the name's field the keyboard and selects its text.
    void startNaming();

Q_SIGNALS:
    void edited();
    /// The user has finished with a field.
    void left();

private:
    void connectFields();
    void connectButtons();
    void browseCommand();
    void browseFolder();
    void browseJoystickFile();
    void chooseMode();
    void changed();
    void update();
    QList<QLineEdit *> lines() const;

    const Paths &m_paths;
    Dialogs &m_dialogs;
    qint16 m_mode = 0;
    bool m_isShowing = false;
    std::unique_ptr<Ui::GameFields> m_ui;
};

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
