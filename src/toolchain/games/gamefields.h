// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/paths.h"
#include "toolchain/games/games.h"

#include <QWidget>

#include <memory>

class QLineEdit;

namespace zeph {

class Dialogs;

namespace Ui {
class GameFields;
}

/// The fields of one game, for every window in which a game is edited.
class GameFields : public QWidget
{
    Q_OBJECT
public:
    GameFields(const Paths &paths, Dialogs &dialogs, QWidget *parent = nullptr);
    ~GameFields() override;

    /// Shows a game, which is no edit of it.
    void setGame(const Game &game);
    /// As the fields stand, without blanks around them. A mode that is none of the three is kept
    /// until one of the ticks is touched.
    Game game() const;
    /// Shows in the working directory's field what may stand there; it counts as empty.
    void showSample();
    /// Puts the caret into the name, all of it selected.
    void startNaming();

Q_SIGNALS:
    void edited();
    /// The user is done with a field.
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

} // namespace zeph
