// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "notes.h"

#include <QObject>
#include <QPointer>

#include <optional>

class QTimer;
struct _SDL_Joystick;

/// A virtual game controller in the pilot's hands. It is one of SDL's, inside the program itself,
/// so that the program reads it as it reads a real one. driver.cpp describes the steps.
class JoystickSteps : public QObject
{
public:
    explicit JoystickSteps(Notes &notes) : m_notes(notes) { }
    ~JoystickSteps() override;
    Q_DISABLE_COPY_MOVE(JoystickSteps)

    /// Does one step. False: what it waits for is not there yet; no value: the verb is none of
    /// these.
    std::optional<bool> perform(const QString &verb, const QString &rest);

private:
    bool act(const QString &verb, const QStringList &words);
    bool plugIn(int buttons);
    bool pullOut();
    void setButtons(const QStringList &numbers, bool isDown);
    bool bold(const QStringList &wanted);
    void countTicks();

    Notes &m_notes;
    _SDL_Joystick *m_stick = nullptr;
    bool m_runs = false;
    QPointer<QTimer> m_timer;
    /// How often the program's window has looked at the controller since the last act.
    int m_ticks = 0;
};
